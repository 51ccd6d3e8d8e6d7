// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Which page of the guide tells about which window.
namespace HelpPages {

/// The page of a window by its object name; empty for a window without one, such as the desktop's own.
QString PageOf(const QString& sWindow);
/// Object names of all windows that have a page.
QStringList Windows();

} // namespace HelpPages
