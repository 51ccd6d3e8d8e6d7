// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Printer.h"

#include <functional>

class QPrinter;

/// The printer of the desktop: the default one or the one that the user chose. Where none is set up, each
/// document becomes a PDF file, and whoever asks is told where it lies.
class SystemPrinter : public Printer {
public:
    /// PDF files go into this folder, which is made when the first is written.
    explicit SystemPrinter(const QString& sPdfFolder);
    ~SystemPrinter() override;

    /// True when no printer is set up.
    bool PrintsToPdf() const;
    /// Name of the job, or of the PDF file; characters that no file name takes become "-".
    void SetDocumentName(const QString& sName) { m_documentName = sName; }
    /// Path of the PDF file that the last EndDoc wrote; empty when it went to a printer or failed.
    QString LastPdf() const { return m_lastPdf; }
    /// Why the last document failed; empty when it didn't.
    QString LastError() const { return m_lastError; }
    /// For the dialog that chooses the printer; nothing when none is set up.
    QPrinter* Device() { return PrintsToPdf() ? nullptr : m_device.get(); }

    double DotsPerInch() const override;
    DeviceContext& hDC() override;
    QSize SizeInPixels() const override;
    void SetOrientation(PageOrientation orientation) override { m_orientation = orientation; }
    PageOrientation Orientation() const override { return m_orientation; }
    void EndDoc() override;
    void KillDoc() override;
    QSizeF PrintableInches() const override;

private:
    void OpenDocument();
    void OpenJob();
    QString PdfPath() const;

    QString m_pdfFolder;
    QString m_documentName = QStringLiteral("Tavlora");
    QString m_lastPdf;
    QString m_lastError;
    PageOrientation m_orientation = PageOrientation::Portrait;
    std::unique_ptr<QPrinter> m_device;
    std::unique_ptr<PdfPrinter> m_pdf;
    std::unique_ptr<QPainter> m_painter;
    std::unique_ptr<DeviceContext> m_context;
    // Where drawing goes when the job can't be begun, so that the failure is told once, by EndDoc.
    QImage m_nowhere;
};
