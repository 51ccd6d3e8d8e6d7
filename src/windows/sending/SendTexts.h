// SPDX-License-Identifier: MIT
#pragma once

#include "pack/Packing.h"

/// What the window that sends a game says, worked out without it.
namespace SendTexts {

/// "850 KB", "3.4 MB", "104 MB".
QString Size(qint64 bytes);
/// What goes in: pictures, fonts and a picture of the board.
QString GoesIn(const Packing::Contents& contents);
/// What can't: missing pictures and fonts; empty where there is nothing to tell.
QString StaysBehind(const Packing::Contents& contents);
/// The complete paths of the missing pictures, a line each.
QString MissingPaths(const Packing::Contents& contents);

} // namespace SendTexts
