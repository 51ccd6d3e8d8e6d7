// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QRgb>

#include <span>

/// The pixels of a picture, opaque, for those who read and write them one by one. A copy shares them until one of
/// the two is changed.
class Pixels {
public:
    /// What they hold is undefined until it is written.
    explicit Pixels(QSize size) : m_image(size, QImage::Format_RGB32) {}
    explicit Pixels(const QImage& image) : m_image(image.convertToFormat(QImage::Format_RGB32)) {}

    int Width() const { return m_image.width(); }
    int Height() const { return m_image.height(); }
    qint64 SizeInBytes() const { return m_image.sizeInBytes(); }
    /// 0 is the upper one.
    std::span<const QRgb> Row(int y) const {
        return {reinterpret_cast<const QRgb*>(m_image.constScanLine(y)), size_t(Width())};
    }
    std::span<QRgb> WritableRow(int y) { return {reinterpret_cast<QRgb*>(m_image.scanLine(y)), size_t(Width())}; }
    Picture AsPicture() const { return Picture(m_image); }

private:
    QImage m_image;
};
