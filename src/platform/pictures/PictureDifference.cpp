// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureDifference.h"

#include "platform/paint/Picture.h"

#include <cstdlib>

double PictureDifference(const Picture& one, const Picture& other) {
    constexpr double kFarthest = 255;
    constexpr int kBytes = 4;
    const QImage a = one.Image().convertToFormat(QImage::Format_RGB32);
    const QImage b = other.Image().convertToFormat(QImage::Format_RGB32);
    if (a.isNull() || a.size() != b.size()) return kFarthest;
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar* const rowA = a.constScanLine(y);
        const uchar* const rowB = b.constScanLine(y);
        for (int i = 0; i < a.width() * kBytes; ++i)
            sum += std::abs(int(rowA[i]) - int(rowB[i]));
    }
    constexpr int kColors = 3;
    return double(sum) / (double(a.width()) * a.height() * kColors);
}
