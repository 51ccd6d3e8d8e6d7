// SPDX-License-Identifier: MIT
#include "support/PictureFiles.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>

namespace PictureFiles {
namespace {

/// Bytes of little-endian numbers.
class Bytes {
public:
    Bytes& U8(int value) {
        m_bytes.append(char(value));
        return *this;
    }
    Bytes& U16(quint32 value) { return U8(int(value & 0xFF)).U8(int(value >> 8 & 0xFF)); }
    Bytes& U32(quint32 value) { return U16(value & 0xFFFF).U16(value >> 16); }
    Bytes& Text(const QByteArray& text) {
        m_bytes.append(text);
        return *this;
    }
    const QByteArray& All() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

QByteArray Heads(const QImage& image, const BmpOptions& options, const QByteArray& table, qsizetype pixelBytes) {
    const quint32 bits = quint32(54 + table.size());
    const quint32 height = quint32(options.topDown ? -image.height() : image.height());
    return Bytes()
        .Text("BM")
        .U32(quint32(bits + pixelBytes))
        .U32(0)
        .U32(bits)
        .U32(40)
        .U32(quint32(image.width()))
        .U32(height)
        .U16(options.planes)
        .U16(quint32(options.bits))
        .U32(options.compression)
        .U32(quint32(pixelBytes))
        .U32(3780)
        .U32(3780)
        .U32(options.colorsUsed)
        .U32(0)
        .Text(table)
        .All();
}

QByteArray TableOf(const QImage& image, int count) {
    Bytes table;
    for (int i = 0; i < count; ++i) {
        const QRgb color = i < image.colorCount() ? image.color(i) : 0;
        table.U8(qBlue(color)).U8(qGreen(color)).U8(qRed(color)).U8(0);
    }
    return table.All();
}

QByteArray RowOf(const QImage& image, int y, int bits) {
    Bytes row;
    int packed = 0;
    for (int x = 0; x < image.width(); ++x) {
        const QRgb color = image.pixel(x, y);
        if (bits == 24) {
            row.U8(qBlue(color)).U8(qGreen(color)).U8(qRed(color));
        } else if (bits == 32) {
            row.U8(qBlue(color)).U8(qGreen(color)).U8(qRed(color)).U8(0);
        } else if (bits == 16) {
            row.U16(quint32(qRed(color) >> 3 << 10 | qGreen(color) >> 3 << 5 | qBlue(color) >> 3));
        } else {
            const int perByte = 8 / bits;
            packed = packed << bits | image.pixelIndex(x, y);
            if (x % perByte == perByte - 1 || x == image.width() - 1) {
                packed <<= bits * (perByte - 1 - x % perByte);
                row.U8(packed);
                packed = 0;
            }
        }
    }
    while (row.All().size() % 4 != 0)
        row.U8(0);
    return row.All();
}

} // namespace

QImage Quarters(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 2, height / 2, Qt::red);
    painter.fillRect(width / 2, 0, width - width / 2, height / 2, Qt::green);
    painter.fillRect(0, height / 2, width / 2, height - height / 2, Qt::blue);
    return image;
}

QByteArray Encoded(const QImage& image, const char* format, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    writer.write(image);
    return bytes;
}

QByteArray Bmp(const QImage& image, const BmpOptions& options) {
    const int colors = options.bits > 8 ? 0 : options.colorsUsed ? int(options.colorsUsed) : 1 << options.bits;
    QByteArray pixels;
    for (int i = 0; i < image.height(); ++i)
        pixels += RowOf(image, options.topDown ? i : image.height() - 1 - i, options.bits);
    return Heads(image, options, TableOf(image, colors), pixels.size()) + pixels;
}

QByteArray MonochromeBmp(const QImage& image, quint32 colorsUsed) {
    QImage indexed(image.size(), QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            indexed.setPixel(x, y, qGray(image.pixel(x, y)) >= 128 ? 1 : 0);
    }
    return Bmp(indexed, {.bits = 1, .colorsUsed = colorsUsed});
}

QByteArray RunLengthBmp(const QImage& indexed) {
    Bytes pixels;
    for (int y = indexed.height() - 1; y >= 0; --y) {
        for (int x = 0; x < indexed.width(); ++x)
            pixels.U8(1).U8(indexed.pixelIndex(x, y));
        pixels.U8(0).U8(0); // end of row
    }
    pixels.U8(0).U8(1); // end of picture
    constexpr quint32 kRunLength8 = 1;
    return Heads(indexed, {.bits = 8, .compression = kRunLength8}, TableOf(indexed, 256), pixels.All().size()) +
           pixels.All();
}

QByteArray WithOrientation(const QByteArray& jpeg, int orientation, bool littleEndian) {
    const auto number = [littleEndian](quint32 value, int length) {
        QByteArray bytes;
        for (int i = 0; i < length; ++i)
            bytes.append(char(value >> 8 * (littleEndian ? i : length - 1 - i) & 0xFF));
        return bytes;
    };
    const QByteArray tiff = QByteArray(littleEndian ? "II" : "MM") + number(42, 2) + number(8, 4) + number(1, 2) +
                            number(0x0112, 2) + number(3, 2) + number(1, 4) + number(quint32(orientation), 2) +
                            number(0, 2) + number(0, 4);
    const QByteArray body = QByteArray("Exif\0\0", 6) + tiff;
    const int length = int(body.size()) + 2;
    return jpeg.left(2) + QByteArray("\xFF\xE1") + char(length >> 8) + char(length & 0xFF) + body + jpeg.mid(2);
}

QByteArray Gif(const QImage& indexed, int transparentIndex) {
    // Codes of three bits; a clear code ahead of every pixel keeps them from growing.
    constexpr int kClear = 4;
    constexpr int kEnd = 5;
    Bytes file;
    file.Text("GIF89a").U16(quint32(indexed.width())).U16(quint32(indexed.height())).U8(0xA1).U8(0).U8(0);
    for (int i = 0; i < 4; ++i) {
        const QRgb color = i < indexed.colorCount() ? indexed.color(i) : 0;
        file.U8(qRed(color)).U8(qGreen(color)).U8(qBlue(color));
    }
    if (transparentIndex >= 0) file.U8(0x21).U8(0xF9).U8(4).U8(1).U16(0).U8(transparentIndex).U8(0);
    file.U8(0x2C).U32(0).U16(quint32(indexed.width())).U16(quint32(indexed.height())).U8(0).U8(2);
    QByteArray packed;
    int bits = 0;
    int count = 0;
    const auto code = [&](int value) {
        bits |= value << count;
        count += 3;
        while (count >= 8) {
            packed.append(char(bits & 0xFF));
            bits >>= 8;
            count -= 8;
        }
    };
    for (int y = 0; y < indexed.height(); ++y) {
        for (int x = 0; x < indexed.width(); ++x) {
            code(kClear);
            code(indexed.pixelIndex(x, y));
        }
    }
    code(kEnd);
    packed.append(char(bits & 0xFF));
    for (qsizetype at = 0; at < packed.size(); at += 255) {
        const QByteArray block = packed.mid(at, 255);
        file.U8(int(block.size())).Text(block);
    }
    return file.U8(0).U8(0x3B).All();
}

} // namespace PictureFiles
