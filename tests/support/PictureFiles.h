// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

/// Picture files as tests need them: made on the spot, right or wrong in one chosen detail.
namespace PictureFiles {

/// Red, green, blue and white quarters: top left, top right, bottom left, bottom right.
QImage Quarters(int width, int height);

/// A file in one of the toolkit's formats.
QByteArray Encoded(const QImage& image, const char* format, int quality = 95);

struct BmpOptions {
    int bits = 24;
    bool topDown = false;
    /// 0 in the head means that the head doesn't tell.
    quint32 colorsUsed = 0;
    quint32 compression = 0;
    quint16 planes = 1;
};

/// A bitmap file of the image. With 1, 4 or 8 bits the image must be indexed, its table becoming the file's.
QByteArray Bmp(const QImage& image, const BmpOptions& options = {});

/// Black where the predicate picture is black, white elsewhere: a bitmap file of one bit.
QByteArray MonochromeBmp(const QImage& image, quint32 colorsUsed = 0);

/// An 8-bit bitmap file of one run-length packed row after the other.
QByteArray RunLengthBmp(const QImage& indexed);

/// A JPEG file with a camera's orientation tag of either byte order.
QByteArray WithOrientation(const QByteArray& jpeg, int orientation, bool littleEndian);

/// A GIF file of an indexed picture with at most four colours; one of them may be transparent (-1: none).
QByteArray Gif(const QImage& indexed, int transparentIndex);

} // namespace PictureFiles
