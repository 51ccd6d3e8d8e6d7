// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

/// For the sources of the board's painting only.
namespace basPosit {

struct PaperLook;

/// What PosSetPaper has set; null for a screen.
const PaperLook* OnPaper();
bool SavesInk();
/// Of a space, corner or box.
Color FaceColor();
/// A rectangle of a colour, or one that saves ink: white, edged inside with the colour. With the pen that is selected.
void DrawColored(Color color, int x1, int y1, int x2, int y2);

/// Before a paint: nothing is awaited yet, and what must be decoded is decoded on other processors meanwhile.
void StartPictures();

} // namespace basPosit
