// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/Printer.h"

#include <functional>
#include <utility>

class QPrinter;
class Recording;

/// The printer of the desktop: the default one or the one that the user chose. Where none is set up, each
/// document becomes a PDF file, and whoever asks is told where it lies.
class SystemPrinter : public Printer {
public:
    /// PDF files go into this folder, which is made when the first is written.
    explicit SystemPrinter(const QString& sPdfFolder);
    ~SystemPrinter() override;

    /// True when no printer is set up.
    bool PrintsToPdf() const;
    /// Characters of the document's name that no file name takes become "-" in that of the PDF file.
    void SetDocumentName(const QString& sName) override { m_documentName = sName; }
    void SetPageName(const QString& sName) override { m_pageName = sName; }
    QString DeviceName() const override;
    bool IsThere() const override;
    QString Trouble() const override;
    QString LastPdf() const override { return m_lastPdf; }
    QString LastError() const override { return m_lastError; }
    /// Asked ahead of each page what its printer, by the desktop's name, does to it on its way to the paper.
    void Correct(std::function<PageCorrection(const QString& sPrinter, const PaperOfPage& paper)> corrections) {
        m_corrections = std::move(corrections);
    }
    /// For the dialog that chooses another printer and its settings.
    QPrinter& Device() const;

    double DotsPerInch() const override;
    DeviceContext& hDC() override;
    QSize SizeInPixels() const override;
    void SetOrientation(PageOrientation orientation) override { m_orientation = orientation; }
    PageOrientation Orientation() const override { return m_orientation; }
    void EndDoc() override;
    void KillDoc() override;
    QSizeF PrintableInches() const override { return PagePaper().printable.size(); }
    PaperOfPage PagePaper() const override;
    void CentreSheet(QSizeF inches) override { m_sheet = inches; }
    void ChoosePaper(PaperChoice choice) override;
    QPageSize::PageSizeId PaperOfFiles() const override { return PaperSizes::Of(m_paper); }

private:
    void SetPaper() const;
    void OpenDocument();
    void SendJob();
    QString PdfPath() const;

    QString m_pdfFolder;
    std::function<PageCorrection(const QString&, const PaperOfPage&)> m_corrections =
        [](const QString&, const PaperOfPage&) { return PageCorrection(); };
    QString m_documentName = QStringLiteral("Tavlora");
    QString m_pageName;
    QString m_lastPdf;
    QString m_lastError;
    PageOrientation m_orientation = PageOrientation::Portrait;
    QSizeF m_sheet;
    PaperChoice m_paper = PaperChoice::Usual;
    /// Made when it is first asked for: looking for the printers of a network takes its time.
    mutable std::unique_ptr<QPrinter> m_device;
    std::unique_ptr<PdfPrinter> m_pdf;
    // A page for a device is kept until it is whole: the toolkit can't take a begun job back.
    std::unique_ptr<Recording> m_page;
    std::unique_ptr<QPainter> m_painter;
    std::unique_ptr<DeviceContext> m_context;
};
