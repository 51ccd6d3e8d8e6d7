// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureMask.h"

#include "platform/paint/Picture.h"

namespace {

QRgb* RowOf(QImage& image, int y) { return reinterpret_cast<QRgb*>(image.scanLine(y)); }

} // namespace

Picture ThroughMask(const Picture& picture, const Picture& mask) {
    if (picture.IsNull() || mask.IsNull()) return picture;
    QImage shown = picture.Image().convertToFormat(QImage::Format_ARGB32);
    const QImage alpha = mask.Image()
                             .scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < shown.height(); ++y) {
        QRgb* row = RowOf(shown, y);
        const QRgb* through = reinterpret_cast<const QRgb*>(alpha.constScanLine(y));
        for (int x = 0; x < shown.width(); ++x)
            row[x] = (row[x] & 0xFFFFFF) | uint(qAlpha(row[x]) * qGreen(through[x]) / 255) << 24;
    }
    return Picture(shown.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

Picture WithoutWhite(const Picture& picture) {
    QImage shown = picture.Image().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < shown.height(); ++y) {
        QRgb* row = RowOf(shown, y);
        for (int x = 0; x < shown.width(); ++x) {
            // The greys of a smoothed edge become half transparent, so that no white seam shows.
            const int light = std::min({qRed(row[x]), qGreen(row[x]), qBlue(row[x])});
            row[x] = (row[x] & 0xFFFFFF) | uint(qAlpha(row[x]) * (255 - light) / 255) << 24;
        }
    }
    return Picture(shown.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}
