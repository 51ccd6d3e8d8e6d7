// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRectF>

/// Cuts a part out of a picture and brings it to a size. Shrinking averages every pixel by the area it
/// covers, so that thin lines grow faint instead of jagged and fine patterns even out; enlarging
/// interpolates. The part is in the image's pixels, may begin and end between them and reach beyond the
/// image; what lies beyond is transparent, and an area of one colour keeps exactly that colour. Gives 32-bit
/// pixels: premultiplied with transparency where there is any or where the part reaches beyond.
QImage Resample(const QImage& image, const QRectF& part, QSize size);
