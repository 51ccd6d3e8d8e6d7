// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

/// Box of the dark pixels within a part of a picture, in the picture's own pixels; empty when there are none.
/// Tiny letters are pale: a higher limit finds them.
inline QRect DarkBox(const QImage& image, const QRect& part, int darkerThan = 128) {
    QRect box;
    const QRect inside = part & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (qGray(image.pixel(x, y)) < darkerThan) box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

/// Box of the pixels that differ between two pictures of one size; empty when there are none.
inline QRect ChangedBox(const QImage& before, const QImage& after) {
    QRect box;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y)) box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}
