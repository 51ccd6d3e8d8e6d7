// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

/// How many pixels of a picture, or of a part of it, have the paper of the mark that stands for a missing picture. A
/// mark of half an inch has thousands of them, edges of other drawings have a few.
inline int PixelsOfMissingMark(const QImage& picture, const QRect& part = {}) {
    const QRect area = part.isNull() ? picture.rect() : part.intersected(picture.rect());
    int marked = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            marked += (picture.pixel(x, y) | 0xFF000000U) == qRgb(0xF0, 0xF0, 0xF0) ? 1 : 0;
    }
    return marked;
}

constexpr int kFewPixelsOfMark = 200;
