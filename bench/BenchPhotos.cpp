// SPDX-License-Identifier: MIT
#include "BenchPhotos.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <random>

namespace {

// Smooth colours under fine noise: as much to decode as a camera's picture.
QByteArray Photograph(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    std::minstd_rand random(1);
    for (int y = 0; y < size.height(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int noise = int(random() % 24);
            row[x] = qRgb(40 + 180 * x / size.width() + noise, 40 + 180 * y / size.height() + noise,
                          120 + (x + y) / 64 % 64 + noise);
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 90);
    return bytes;
}

} // namespace

BenchPhotos::BenchPhotos(int count, QSize size) {
    const QByteArray bytes = Photograph(size);
    for (int i = 0; i < count; ++i) {
        QFile file(Path(i));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
    }
}

QString BenchPhotos::Path(int index) const { return m_folder.Path() + QStringLiteral("/photo%1.jpg").arg(index); }
