// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace WebPage {

/// The address under which a browser finds a file of this machine.
QString AddressOf(const QString& sLocalPath);

/// Shows a page in the user's browser: the file on this machine where it is installed, as it needs no
/// network, else the address. False when no browser could be started.
bool Open(const QString& sLocalPath, const QString& sAddress);

} // namespace WebPage
