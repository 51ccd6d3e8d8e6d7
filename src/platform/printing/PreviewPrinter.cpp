// SPDX-License-Identifier: MIT
#include "platform/printing/PreviewPrinter.h"

#include "platform/paint/Recording.h"

#include <algorithm>

void PreviewPage::Paint(QPainter& painter, double unitsPerInch) const {
    const auto scaled = [unitsPerInch](QSizeF inches) { return inches * unitsPerInch; };
    painter.fillRect(QRectF(QPointF(0, 0), scaled(paper.size)), Qt::white);
    if (!drawing) return;
    const QSizeF inches = QSizeF(drawing->Size()) / drawing->UnitsPerInch();
    drawing->Play(painter, QRectF(paper.origin * unitsPerInch, scaled(inches)));
}

QImage PreviewPage::Image(QSize most) const {
    const QSize size = paper.size.scaled(most, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1));
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    Paint(painter, std::min(size.width() / paper.size.width(), size.height() / paper.size.height()));
    return image;
}

PreviewPrinter::~PreviewPrinter() { KillDoc(); }

QSize PreviewPrinter::SizeInPixels() const { return (PrintableInches() * kDpi).toSize(); }

DeviceContext& PreviewPrinter::hDC() {
    if (!m_context) {
        m_drawing = std::make_shared<Recording>(SizeInPixels(), kDpi);
        m_painter = std::make_unique<QPainter>(m_drawing.get());
        m_painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        m_context = std::make_unique<DeviceContext>(*m_painter);
    }
    return *m_context;
}

void PreviewPrinter::EndDoc() {
    hDC(); // a page without a mark on it is a page all the same
    m_context.reset();
    m_painter.reset();
    m_page = {std::move(m_drawing), PagePaper()};
    m_drawing.reset();
}

void PreviewPrinter::KillDoc() {
    m_context.reset();
    m_painter.reset();
    m_drawing.reset();
}
