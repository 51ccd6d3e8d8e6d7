// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"
#include "platform/paint/Pixels.h"

#include <QPoint>

#include <array>

/// How a square picture is turned to stand on the board. All of it works at any size; the thumbnails are
/// 100 pixels square.
namespace Turning {

/// Where a pixel of a square of iSide pixels goes when the picture is turned to a side of the board (0
/// bottom, 1 left, 2 top, 3 right).
QPoint CellOnSide(int iSide, int iBoardSide, int x, int y);

/// The two cells of the half-resolution lattice over which a pixel is spread when the picture is turned by
/// 45 degrees for a corner of the board (0 to 3).
std::array<QPoint, 2> CellsOnCorner(int iSide, int iCorner, int x, int y);

/// The square turned by right angles.
Pixels ForSide(const Pixels& square, int iBoardSide);

/// The square turned by 45 degrees into the diamond inscribed in a square of the same size, with a colour
/// outside. The side must be even. Each cell averages four samples, so there are no holes.
Pixels ForCorner(const Pixels& square, int iCorner, Color outside);

} // namespace Turning
