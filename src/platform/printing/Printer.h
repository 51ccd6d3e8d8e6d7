// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Surface.h"
#include "platform/printing/PageCorrection.h"
#include "platform/printing/PaperOfPage.h"

#include <memory>
#include <utility>

class NamedPdf;
class QPdfWriter;
class SaveFile;

enum class PageOrientation { Portrait = 1, Landscape = 2 };

/// A printer. Its pixel (0, 0) is the printable origin; nothing corrects margins any further. It starts in
/// twips, as drawing code sets the mode that it wants.
class Printer : public Surface {
public:
    Printer() { ForgetSettings(); }
    bool IsPrinter() const override { return true; }
    /// All that drawing code has set is as it was at first.
    void ForgetSettings();
    /// Holds from the next page on.
    virtual void SetOrientation(PageOrientation orientation) = 0;
    virtual PageOrientation Orientation() const = 0;
    /// Ends the page and, on a real printer, the job.
    virtual void EndDoc() = 0;
    /// Throws the document away.
    virtual void KillDoc() = 0;
    /// Printable width and height in inches, in the orientation that holds.
    virtual QSizeF PrintableInches() const = 0;
    /// The paper that the next page goes on.
    virtual PaperOfPage PagePaper() const;
    /// Holds from the next page on: on paper other than the kit's own a sheet of so many inches stands in the middle.
    virtual void CentreSheet(QSizeF) {}
    /// Which paper is used from the next document on, as far as the printer lets itself be told.
    virtual void ChoosePaper(PaperChoice) {}
    /// Of files for want of a printer.
    virtual QPageSize::PageSizeId PaperOfFiles() const { return QPageSize::Letter; }

    /// Name of the next document; a printer that writes files names them after it.
    virtual void SetDocumentName(const QString&) {}
    /// Name of the next page, for printers that keep one.
    virtual void SetPageName(const QString&) {}
    /// What the desktop calls the device; empty where there is none, as with pages that go into a file.
    virtual QString DeviceName() const { return {}; }
    /// Asks the desktop for the device anew. False when it has gone, or whoever serves it.
    virtual bool IsThere() const { return true; }
    /// What keeps the device from printing what it was sent, as a sentence; empty when nothing does or nobody knows.
    virtual QString Trouble() const { return {}; }
    /// Path of the PDF file that the last EndDoc wrote; empty when it went to a device or failed.
    virtual QString LastPdf() const { return {}; }
    /// Why the document being printed, or the last one, fails; empty when it doesn't.
    virtual QString LastError() const { return {}; }

    /// The printer that sheets go to; the caller keeps ownership. Returns the one that was in force, which
    /// is nothing before the first call.
    static Printer* Install(Printer* printer);
    static Printer* Current();

protected:
    /// From the page's pixels to a device's dots, the first of which lies so many dots inside the paper: the toolkit
    /// knows margins in whole points only. A corrected page is turned upright.
    static QTransform PageToDots(const PaperOfPage& paper, const PageCorrection& correction, double dotsPerInch,
                                 QPoint firstDot);
};

/// Prints into one PDF file, a page to each EndDoc, 0.25 inch of margin on every side. A4 has half of it: the kit's
/// sheets were made for paper that is wider, and printers reach that far.
class PdfPrinter : public Printer {
public:
    static constexpr int kDefaultDpi = 600;
    static constexpr double kMarginInches = 0.25;
    static constexpr double kMarginInchesOfA4 = 0.125;
    static double MarginInches(QPageSize::PageSizeId paper);

    PdfPrinter(const QString& sPath, const QString& sTitle, QPageSize::PageSizeId paper = QPageSize::Letter,
               int dpi = kDefaultDpi);
    ~PdfPrinter() override;

    double DotsPerInch() const override { return m_dpi; }
    DeviceContext& hDC() override;
    QSize SizeInPixels() const override;
    void SetPageName(const QString& sName) override { m_pageName = sName; }
    void SetOrientation(PageOrientation orientation) override { m_orientation = orientation; }
    PageOrientation Orientation() const override { return m_orientation; }
    void EndDoc() override { m_pageOpen = false; }
    void KillDoc() override;
    QSizeF PrintableInches() const override;
    PaperOfPage PagePaper() const override;
    void CentreSheet(QSizeF inches) override { m_sheet = inches; }
    /// Of any size; holds from the next page on.
    void SetPaper(const QPageSize& paper) { m_paper = paper; }
    /// Pages are for a printer that does this to them. Such a page stands upright in the file whatever its
    /// orientation, so that nobody has to turn it on its way.
    void Correct(CorrectionOfPaper correction) { m_correction = std::move(correction); }

    /// Completes the file and puts it in place. False and a sentence in sError when that fails; no part of
    /// it is then left, and a file that stood there before stands as it was.
    bool Close(QString& sError);
    /// Pages begun so far.
    int Pages() const { return m_pages; }

private:
    void OpenPage();
    bool OpenFile();
    void LayOut(const PaperOfPage& paper, const PageCorrection& correction);
    void EndPainting();

    QString m_title;
    int m_dpi;
    QPageSize m_paper;
    PageOrientation m_orientation = PageOrientation::Portrait;
    QSizeF m_sheet;
    CorrectionOfPaper m_correction = [](const PaperOfPage&) { return PageCorrection(); };
    bool m_pageOpen = false;
    int m_pages = 0;
    QString m_pageName;
    QStringList m_pageNames;
    std::unique_ptr<SaveFile> m_file;
    QString m_openError;
    std::unique_ptr<NamedPdf> m_named;
    std::unique_ptr<QPdfWriter> m_writer;
    std::unique_ptr<QPainter> m_painter;
    std::unique_ptr<DeviceContext> m_context;
    // Where drawing goes when the file can't be opened, so that the failure is told once, by Close.
    QImage m_nowhere;
};
