// SPDX-License-Identifier: MIT
#include "PictureComparison.h"

#include <cstdlib>

QImage PictureComparison::Blurred(const QImage& image) {
    const QImage from = image.convertToFormat(QImage::Format_RGB32);
    QImage blurred(from.size(), QImage::Format_RGB32);
    for (int y = 0; y < from.height(); ++y) {
        for (int x = 0; x < from.width(); ++x) {
            const QRect around = QRect(x - 1, y - 1, 3, 3) & from.rect();
            int red = 0;
            int green = 0;
            int blue = 0;
            for (int v = around.top(); v <= around.bottom(); ++v) {
                for (int u = around.left(); u <= around.right(); ++u) {
                    const QRgb pixel = from.pixel(u, v);
                    red += qRed(pixel);
                    green += qGreen(pixel);
                    blue += qBlue(pixel);
                }
            }
            const int count = around.width() * around.height();
            blurred.setPixel(x, y, qRgb(red / count, green / count, blue / count));
        }
    }
    return blurred;
}

double PictureComparison::DifferingPercent(const QImage& a, const QImage& b, int tolerance) {
    if (a.size() != b.size() || a.isNull()) return 100;
    const QImage left = Blurred(a);
    const QImage right = Blurred(b);
    int differing = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb p = left.pixel(x, y);
            const QRgb q = right.pixel(x, y);
            differing += std::abs(qRed(p) - qRed(q)) > tolerance || std::abs(qGreen(p) - qGreen(q)) > tolerance ||
                         std::abs(qBlue(p) - qBlue(q)) > tolerance;
        }
    }
    return 100.0 * differing / (left.width() * left.height());
}
