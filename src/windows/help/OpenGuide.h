// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Opens a page of the guide in the browser, from this machine or, where it isn't installed, from an address. Where
/// there is no browser, a box says where the page lies.
void OpenGuide(const QString& sPage, const QString& sAddress = QString());
