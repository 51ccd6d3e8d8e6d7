// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

#include <optional>

/// The very dark colour that prints in place of black. The settings file keeps it as a number with red in its highest
/// byte, then green, then blue, the way the boxes of Setup stand.
namespace PrintBlackAs {

/// What counts as no choice: red, green and blue 10, the same either way round.
constexpr qint32 kDefault = 0x0A0A0A;

/// The colour kept; the default when there is none or it isn't a number, which is told.
Color Read();
/// False when the settings can't be written.
bool Write(Color color);
/// The user's own colour; nothing while the default holds.
std::optional<Color> Chosen();

} // namespace PrintBlackAs
