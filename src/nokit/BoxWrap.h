// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/FoldNet.h"

/// The box of a game without a kit. Banknotes lie beside the deeds in it, and the news cards above the notes.
namespace BoxWrap {

/// Length and width of the tray's floor, and its height, in inches.
constexpr QSizeF kInside(6.5, 4.0);
constexpr double kHeight = 1.5;
constexpr double kLidHeight = 1.1;
/// By so much the lid is longer and wider than the tray: card is so thick, twice, and it has to slide.
constexpr double kLoose = 0.08;

FoldNet Tray();
FoldNet Lid();

} // namespace BoxWrap
