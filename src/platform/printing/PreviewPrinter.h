// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/Printer.h"

#include <memory>

class Recording;

/// A page as a printer would put it on its paper: what was drawn, to be played at any size.
struct PreviewPage {
    std::shared_ptr<const Recording> drawing;
    PaperOfPage paper;

    bool IsNull() const { return !drawing; }
    /// Paints the sheet of paper with what is printed on it; so many of the painter's units make an inch.
    void Paint(QPainter& painter, double unitsPerInch) const;
    /// The whole sheet as large as it fits into so many pixels.
    QImage Image(QSize most) const;
};

/// Takes pages for another printer, on that printer's paper, and keeps what was drawn.
class PreviewPrinter : public Printer {
public:
    static constexpr int kDpi = 600;

    /// The printer lives longer; its orientation follows this one's.
    explicit PreviewPrinter(Printer& paper) : m_paper(paper) {}
    ~PreviewPrinter() override;

    double DotsPerInch() const override { return kDpi; }
    DeviceContext& hDC() override;
    QSize SizeInPixels() const override;
    void SetOrientation(PageOrientation orientation) override { m_paper.SetOrientation(orientation); }
    PageOrientation Orientation() const override { return m_paper.Orientation(); }
    void CentreSheet(QSizeF inches) override { m_paper.CentreSheet(inches); }
    PaperOfPage PagePaper() const override { return m_paper.PagePaper(); }
    /// What was drawn so far becomes the page that Page gives.
    void EndDoc() override;
    void KillDoc() override;
    QSizeF PrintableInches() const override { return m_paper.PrintableInches(); }

    /// The page ended last; nothing before the first.
    const PreviewPage& Page() const { return m_page; }

private:
    Printer& m_paper;
    std::shared_ptr<Recording> m_drawing;
    std::unique_ptr<QPainter> m_painter;
    std::unique_ptr<DeviceContext> m_context;
    PreviewPage m_page;
};
