// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

/// Paints part of a picture (in its own pixels) into a rectangle of any painter, at the best the device can
/// show: on pixels every source pixel counts and the rectangle lies on whole ones; on paper there are never
/// more than 300 dots an inch, photographs go in compressed, drawings exactly. What lies outside the picture
/// or is transparent leaves the surface as it is.
void PaintImage(QPainter& painter, const QRectF& destination, const QImage& image, const QRectF& source,
                QPainter::CompositionMode mode = QPainter::CompositionMode_SourceOver);

/// Dots an inch that a picture gets on paper at most.
constexpr int kPaperDotsPerInch = 300;
