// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

class Surface;
struct PictureRef;

// What stands on the screen, and never on paper, where a picture's file is missing.

/// True for a picture that isn't where it was.
bool IsMissing(const PictureRef& picture);
/// A grey frame with a picture that is crossed out, in a box of the surface's pixels. Too small a box keeps what it
/// shows.
void PaintMissingMark(Surface& picDest, const QRectF& box);
/// Where it stands on a token of a size, within the circle.
QRectF MarkPlaceOnToken(QSize token);
