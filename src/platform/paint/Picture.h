// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRectF>

#include <memory>

class Recording;

/// A caller's way of saying that every pixel is wanted.
constexpr int kAllPixels = 0;

/// A loaded picture, upright. Width and Height are those of the file; Image may hold fewer pixels when the
/// caller of LoadPicture said how large the picture will be drawn.
class Picture {
public:
    Picture() = default;
    explicit Picture(QImage image) : m_image(std::move(image)), m_size(m_image.size()) {}
    Picture(QImage image, QSize fullSize) : m_image(std::move(image)), m_size(fullSize) {}
    /// Nothing but how it was drawn: shows on paper only.
    Picture(std::shared_ptr<const ::Recording> recording, QSize size)
        : m_size(size), m_recording(std::move(recording)) {}

    bool IsNull() const { return m_image.isNull() && !m_recording; }
    int Width() const { return m_size.width(); }
    int Height() const { return m_size.height(); }
    const QImage& Image() const { return m_image; }

    /// A part given in the picture's own pixels as a part of Image.
    QRectF PartOfImage(const QRectF& part) const {
        if (m_image.size() == m_size || m_size.isEmpty()) return part;
        const double across = double(m_image.width()) / m_size.width();
        const double down = double(m_image.height()) / m_size.height();
        return {part.x() * across, part.y() * down, part.width() * across, part.height() * down};
    }

    /// How the picture was drawn, where that is known; printing draws it again.
    const std::shared_ptr<const ::Recording>& Recording() const { return m_recording; }
    void SetRecording(std::shared_ptr<const ::Recording> recording) { m_recording = std::move(recording); }

private:
    QImage m_image;
    QSize m_size;
    std::shared_ptr<const ::Recording> m_recording;
};
