// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>
#include <QString>

class Font;

/// For the sources of the device context only. Lines of text as they were painted last. A board is painted again and
/// again with the same words in the same places; stamping a line is many times faster than shaping and filling its
/// letters, and comes out the same to the pixel. Main thread only, as all drawing is.
namespace TextStamps {

/// Paints with the top left of the text box in a point of the painter's own, untransformed units; ratio is
/// the number of pixels that make one.
void Paint(QPainter& painter, const Font& font, QRgb color, QPointF at, const QString& sText, double ratio);

/// Paints the same straight through any painter, letter by letter.
void PaintLetters(QPainter& painter, const Font& font, QRgb color, QPointF at, const QString& sText);

/// Drops what is kept.
void Forget();

} // namespace TextStamps
