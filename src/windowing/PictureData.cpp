// SPDX-License-Identifier: MIT
#include "windowing/PictureData.h"

#include <QImage>
#include <QMimeData>

Picture PictureIn(const QMimeData& data) {
    const QImage image = data.hasImage() ? data.imageData().value<QImage>() : QImage();
    return image.isNull() ? Picture() : Picture(image);
}
