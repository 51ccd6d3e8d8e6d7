// SPDX-License-Identifier: MIT
#include "platform/printing/Printer.h"

#include "platform/files/Files.h"
#include "platform/files/SaveFile.h"
#include "platform/printing/NamedPdf.h"

#include <QPageLayout>
#include <QPdfWriter>

#include <cmath>

namespace {

Printer*& CurrentPrinter() {
    static Printer* current = nullptr;
    return current;
}

} // namespace

Printer* Printer::Install(Printer* printer) { return std::exchange(CurrentPrinter(), printer); }
Printer* Printer::Current() { return CurrentPrinter(); }

void Printer::ForgetSettings() {
    static_cast<DrawingSettings&>(*this) = DrawingSettings();
    ScaleMode = ScaleModeKind::Twips;
}

QTransform Printer::PageToDots(const PaperOfPage& paper, const PageCorrection& correction, double dotsPerInch,
                               QPoint firstDot) {
    const QPointF origin = paper.origin * dotsPerInch;
    if (correction.IsNothing()) {
        // Whole dots stay whole, whatever the sum of fractions.
        constexpr double kParts = 1024;
        const auto rounded = [](double dots) { return std::round(dots * kParts) / kParts; };
        return QTransform::fromTranslate(rounded(origin.x() - firstDot.x()), rounded(origin.y() - firstDot.y()));
    }
    return QTransform::fromTranslate(origin.x(), origin.y()) * QTransform::fromScale(1 / dotsPerInch, 1 / dotsPerInch) *
           correction.ToSheet(paper.size) * QTransform::fromScale(dotsPerInch, dotsPerInch) *
           QTransform::fromTranslate(-firstDot.x(), -firstDot.y());
}

PaperOfPage Printer::PagePaper() const {
    constexpr double margin = PdfPrinter::kMarginInches;
    const QSizeF size = PrintableInches() + QSizeF(2 * margin, 2 * margin);
    return PaperOfPage::Of(size, QMarginsF(margin, margin, margin, margin), {});
}

double PdfPrinter::MarginInches(QPageSize::PageSizeId paper) {
    return paper == QPageSize::A4 ? kMarginInchesOfA4 : kMarginInches;
}

PdfPrinter::PdfPrinter(const QString& sPath, const QString& sTitle, QPageSize::PageSizeId paper, int dpi)
    : m_title(sTitle), m_dpi(dpi), m_paper(paper), m_file(std::make_unique<SaveFile>(sPath)) {}

PdfPrinter::~PdfPrinter() { KillDoc(); }

bool PdfPrinter::OpenFile() {
    if (!Files::CanBeReplaced(m_file->Path(), m_openError)) return false;
    if (!m_file->open(QIODevice::WriteOnly)) {
        m_openError = m_file->errorString();
        return false;
    }
    m_named = std::make_unique<NamedPdf>(*m_file);
    m_writer = std::make_unique<QPdfWriter>(m_named.get());
    m_writer->setResolution(m_dpi);
    m_writer->setTitle(m_title);
    m_writer->setCreator(QStringLiteral("Tavlora"));
    return true;
}

void PdfPrinter::OpenPage() {
    const bool first = m_pages == 0;
    const bool opened = !first || OpenFile();
    m_pageOpen = true;
    ++m_pages;
    m_pageNames.append(m_pageName);
    if (!opened || !m_writer) {
        // What the page before was painted with still holds the picture.
        m_context.reset();
        m_nowhere = QImage(1, 1, QImage::Format_RGB32);
        m_context = std::make_unique<DeviceContext>(m_nowhere);
        return;
    }
    const PaperOfPage paper = PagePaper();
    const PageCorrection correction = m_correction(paper);
    LayOut(paper, correction);
    if (first) {
        m_painter = std::make_unique<QPainter>(m_writer.get());
        m_painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                                  QPainter::LosslessImageRendering);
    } else {
        m_context.reset();
        m_painter->restore();
        m_writer->newPage();
    }
    // No page finds what was chosen for the one before.
    m_painter->save();
    const QPoint firstDot = m_writer->pageLayout().paintRectPixels(m_dpi).topLeft();
    m_painter->setWorldTransform(PageToDots(paper, correction, m_dpi, firstDot));
    m_context = std::make_unique<DeviceContext>(*m_painter);
}

// A corrected page tells itself where all lies on the sheet.
void PdfPrinter::LayOut(const PaperOfPage& paper, const PageCorrection& correction) {
    constexpr double kPoints = 72;
    const bool turned = m_orientation == PageOrientation::Landscape && correction.IsNothing();
    const QPointF behind = QRectF(QPointF(0, 0), paper.size).bottomRight() - paper.printable.bottomRight();
    const QMarginsF margins(paper.origin.x(), paper.origin.y(), behind.x(), behind.y());
    m_writer->setPageLayout(QPageLayout(m_paper, turned ? QPageLayout::Landscape : QPageLayout::Portrait,
                                        correction.IsNothing() ? margins * kPoints : QMarginsF(), QPageLayout::Point));
}

DeviceContext& PdfPrinter::hDC() {
    if (!m_pageOpen) OpenPage();
    return *m_context;
}

PaperOfPage PdfPrinter::PagePaper() const {
    QSizeF inches = m_paper.size(QPageSize::Inch);
    if (m_orientation == PageOrientation::Landscape) inches.transpose();
    // Who doesn't say what is to be centred has laid the page out for the usual margin.
    const double margin = m_sheet.isEmpty() ? kMarginInches : MarginInches(m_paper.id());
    return PaperOfPage::Of(inches, QMarginsF(margin, margin, margin, margin), m_sheet);
}

QSizeF PdfPrinter::PrintableInches() const { return PagePaper().printable.size(); }

QSize PdfPrinter::SizeInPixels() const { return (PrintableInches() * m_dpi).toSize(); }

void PdfPrinter::EndPainting() {
    m_context.reset();
    if (m_painter) m_painter->restore();
    m_painter.reset();
    m_writer.reset();
    m_pageOpen = false;
}

void PdfPrinter::KillDoc() {
    EndPainting();
    m_named.reset();
    m_file->Discard();
}

bool PdfPrinter::Close(QString& sError) {
    if (m_pages == 0) hDC();
    EndPainting();
    if (!m_file->isOpen()) {
        sError = m_openError;
        return false;
    }
    m_named->NamePages(m_pageNames);
    return m_file->Commit(sError);
}
