// SPDX-License-Identifier: MIT
#include "platform/printing/PicturePrinter.h"

#include "platform/paint/Resample.h"

#include <utility>

namespace {

// What is left of a US Letter page inside margins of a quarter inch.
constexpr QSizeF kPortraitInches(8.0, 10.5);

} // namespace

QSizeF PicturePrinter::PrintableInches() const {
    return m_orientation == PageOrientation::Landscape ? kPortraitInches.transposed() : kPortraitInches;
}

QSize PicturePrinter::SizeInPixels() const { return (PrintableInches() * m_dpi).toSize(); }

DeviceContext& PicturePrinter::hDC() {
    if (!m_context) {
        m_image = QImage(SizeInPixels(), QImage::Format_RGB32);
        m_image.fill(Qt::white);
        m_context = std::make_unique<DeviceContext>(m_image);
    }
    return *m_context;
}

void PicturePrinter::EndDoc() {
    hDC().Flush(); // a page without a mark on it is a page all the same
    m_context.reset();
    m_page = Picture(std::exchange(m_image, QImage()));
}

Picture PicturePrinter::SmallPage(int longerSide) const {
    const QImage& page = m_page.Image();
    const QSize size = page.size().scaled(longerSide, longerSide, Qt::KeepAspectRatio);
    if (page.isNull() || size.width() >= page.width()) return m_page;
    return Picture(Resample(page, page.rect(), size));
}

void PicturePrinter::KillDoc() {
    m_context.reset();
    m_image = QImage();
}
