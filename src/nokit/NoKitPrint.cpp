// SPDX-License-Identifier: MIT
#include "nokit/NoKitPrint.h"

#include "platform/printing/Printer.h"

namespace NoKitPrint {
namespace {

QPageSize PageSizeOf(QSizeF inches) { return QPageSize(inches, QPageSize::Inch, QString(), QPageSize::ExactMatch); }

void SetUpPage(PdfPrinter& printer, const NoKitPage& page) {
    const bool lengthwise = page.paperInches.width() > page.paperInches.height();
    printer.SetPaper(PageSizeOf(lengthwise ? page.paperInches.transposed() : page.paperInches));
    printer.SetOrientation(lengthwise ? PageOrientation::Landscape : PageOrientation::Portrait);
}

bool PrintOne(PdfPrinter& printer, const NoKitPage& page, Job& job) {
    for (int copy = 0; copy < page.nCopies; ++copy) {
        SetUpPage(printer, page);
        printer.ForgetSettings();
        PageCanvas canvas(printer, PrintableOf(page.paperInches));
        if (!PaintPage(page, canvas, job.lacking)) return false;
        printer.EndDoc();
    }
    return true;
}

bool PrintSheet(PdfPrinter& printer, const NoKitSheet& sheet, const NoKitChoices& choices, Job& job, int iDone,
                int iNext) {
    const QString title = QString::fromLatin1(sheet.sTitle);
    if (!job.GoesOn(title, iDone)) return false;
    const std::vector<NoKitPage> pages = sheet.pages(choices);
    for (size_t i = 0; i < pages.size(); ++i) {
        if (!PrintOne(printer, pages[i], job)) return false;
        if (!job.GoesOn(title, iDone + int(size_t(iNext - iDone) * (i + 1) / pages.size()))) return false;
    }
    return true;
}

} // namespace

std::vector<const NoKitSheet*> SheetsOf(const QStringList& names) {
    std::vector<const NoKitSheet*> sheets;
    for (const NoKitSheet& sheet : NoKitSheets()) {
        if (names.isEmpty() || names.contains(QLatin1String(sheet.sName))) sheets.push_back(&sheet);
    }
    return sheets;
}

bool IntoPdf(const std::vector<const NoKitSheet*>& sheets, const NoKitChoices& choices, const QString& sPath,
             const QString& sTitle, int iDpi, Job& job, QString& sError) {
    constexpr int kThousand = 1000;
    PdfPrinter printer(sPath, sTitle, QPageSize::Letter, iDpi);
    printer.Correct(job.correction);
    const int all = int(sheets.size());
    for (int i = 0; i < all; ++i) {
        if (!PrintSheet(printer, *sheets[size_t(i)], choices, job, i * kThousand / all, (i + 1) * kThousand / all))
            return false;
    }
    return printer.Close(sError);
}

} // namespace NoKitPrint
