// SPDX-License-Identifier: MIT
#include "platform/pictures/PicturePyramid.h"

#include "platform/paint/Surface.h"

#include <QPainter>

#include <algorithm>

namespace {

// Halving goes on until a copy is no larger than a thumbnail.
constexpr int kSmallestSide = 64;

// Of two pixels of 32 bits the mean, each of their four bytes for itself.
constexpr quint32 Mean(quint32 a, quint32 b) { return (a & b) + (((a ^ b) & 0xFEFEFEFEU) >> 1); }

// An odd last row or column is dropped: at most a pixel of a picture that is shown at half its size.
QImage Halved(const QImage& image) {
    const QSize size(std::max(image.width() / 2, 1), std::max(image.height() / 2, 1));
    QImage half(size, image.format());
    for (int y = 0; y < size.height(); ++y) {
        const auto* above = reinterpret_cast<const quint32*>(image.constScanLine(2 * y));
        const auto* below = reinterpret_cast<const quint32*>(image.constScanLine(2 * y + 1));
        auto* out = reinterpret_cast<quint32*>(half.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            out[x] = Mean(Mean(above[2 * x], above[2 * x + 1]), Mean(below[2 * x], below[2 * x + 1]));
    }
    return half;
}

QImage AsPixels(const QImage& image) {
    const bool alpha = image.hasAlphaChannel();
    return image.convertToFormat(alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

} // namespace

PicturePyramid::PicturePyramid(const Picture& picture) {
    if (picture.IsNull()) return;
    m_levels.emplace_back(AsPixels(picture.Image()), QSize(picture.Width(), picture.Height()));
    while (std::min(m_levels.back().Image().width(), m_levels.back().Image().height()) >= 2 * kSmallestSide)
        m_levels.emplace_back(Halved(m_levels.back().Image()), QSize(picture.Width(), picture.Height()));
}

const Picture& PicturePyramid::LevelFor(double pixelsShownForEach) const {
    const Picture* level = &m_levels.front();
    for (const Picture& smaller : m_levels) {
        const double pixelsForEach = double(smaller.Image().width()) / smaller.Width();
        if (pixelsForEach < pixelsShownForEach) break;
        level = &smaller;
    }
    return *level;
}

void PicturePyramid::Paint(Surface& surface, const QRectF& target, const QRectF& part) const {
    if (IsNull() || target.isEmpty() || part.isEmpty()) return;
    QPainter& painter = surface.hDC().Painter();
    const double ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const double across = target.width() / part.width();
    const double down = target.height() / part.height();
    const Picture& level = LevelFor(std::max(across, down) * ratio);
    const QRectF inside = part & QRectF(0, 0, level.Width(), level.Height());
    if (inside.isEmpty()) return;
    const QRectF place(target.x() + (inside.x() - part.x()) * across, target.y() + (inside.y() - part.y()) * down,
                       inside.width() * across, inside.height() * down);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, level.Image(), level.PartOfImage(inside));
    painter.restore();
}
