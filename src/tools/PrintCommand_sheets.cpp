// SPDX-License-Identifier: MIT
// The sheets of the game in memory, and the guide.
#include "calibration/CheckPage.h"
#include "kit/Sheets.h"
#include "platform/files/Console.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/pictures/SavePicture.h"
#include "platform/printing/PicturePrinter.h"
#include "platform/printing/SaveHtml.h"
#include "services/basPath.h"
#include "services/Guide.h"
#include "services/PrinterCorrections.h"
#include "tools/NoKitCommand.h"
#include "tools/PrintArguments.h"
#include "tools/PrintCommand.h"

#include <algorithm>

namespace {

// Painted finer than it is wanted and then shrunk, as lines of a few hundredths of an inch would vanish or double.
int DotsFor(int lSize) {
    constexpr int kShorterSideInches = 8;
    return std::max(PicturePrinter::kDefaultDpi, lSize / kShorterSideInches);
}

std::vector<std::vector<SheetPhoto>> PhotosOf(const QStringList& names) {
    std::vector<std::vector<SheetPhoto>> photos;
    for (const QString& name : names)
        photos.push_back(FindSheet(name)->Photos());
    return photos;
}

} // namespace

bool PrintCommand::PrintOneSheet(Printer& printer, const Sheet& sheet, const QString& sTold, PhotosAhead& ahead) {
    sheet.LayOn(printer, KitInUse());
    SheetJob job{printer, [this, sTold](int iThousandths) { Progress(sTold, iThousandths); }};
    job.ahead = &ahead;
    if (!sheet.Prepare(job)) return false;
    if (!sheet.Print(job)) {
        for (const QString& lack : job.lacking)
            Complain(QString::fromLatin1(sheet.sName) + QStringLiteral(": ") + lack);
        return false;
    }
    printer.EndDoc();
    ahead.SheetDone();
    return true;
}

QStringList PrintCommand::WithoutLeftOut(const QStringList& sheets) {
    QStringList printed;
    QStringList leftOut;
    QString why;
    for (const QString& name : sheets) {
        const QString reason = FindSheet(name)->WhyLeftOut(KitInUse());
        (reason.isEmpty() ? printed : leftOut).append(name);
        if (!reason.isEmpty()) why = reason;
    }
    if (!leftOut.isEmpty())
        Complain(why + QStringLiteral(" Left out: ") + leftOut.join(QStringLiteral(", ")) + QStringLiteral("."));
    return printed;
}

bool PrintCommand::PrintWithoutKit(const PrintArguments& arguments) {
    const NoKitCommand::Voice voice{[this](const QString& sText) { Complain(sText); },
                                    [this](const QString& sWhat, int iThousandths) {
                                        Progress(sWhat, iThousandths);
                                        return true;
                                    }};
    const bool printed = NoKitCommand::Print(arguments, TitleOf(arguments.sGame), voice);
    EndProgress();
    return printed;
}

int PrintCommand::PrintSheetsOf(const PrintArguments& arguments, const QStringList& asked) {
    const QStringList sheets = WithoutLeftOut(asked);
    if (sheets.isEmpty()) return kFailed;
    PdfPrinter printer(arguments.sOutput, TitleOf(arguments.sGame), arguments.Paper(), arguments.iDpi);
    if (arguments.forPrinter) printer.Correct(PrinterCorrections::OfPrinter(*arguments.forPrinter));
    PhotosAhead ahead(PhotosOf(sheets));
    int number = 0;
    for (const QString& name : sheets) {
        const Sheet& sheet = *FindSheet(name);
        const QString told = QStringLiteral("%1/%2 %3").arg(++number).arg(sheets.size()).arg(sheet.Title(Kit::Eight));
        Progress(told, 0);
        if (!PrintOneSheet(printer, sheet, told, ahead)) {
            EndProgress();
            return kFailed;
        }
    }
    EndProgress();
    QString error;
    if (printer.Close(error)) return sheets.size() == asked.size() ? kDone : kFailed;
    Complain(QStringLiteral("'%1' could not be written: %2").arg(arguments.sOutput, error));
    return kFailed;
}

bool PrintCommand::PaintPages(const PrintArguments& arguments, const QStringList& asked) {
    const QString folder = Console::CompletePath(arguments.sPages);
    QString error;
    if (!Files::MakeDirectory(folder, error)) {
        Complain(QStringLiteral("'%1' could not be made: %2").arg(folder, error));
        return false;
    }
    const QStringList sheets = WithoutLeftOut(asked);
    PhotosAhead ahead(PhotosOf(sheets));
    for (const QString& name : sheets) {
        PicturePrinter printer(DotsFor(arguments.iBoardSize));
        if (!PrintOneSheet(printer, *FindSheet(name), name, ahead)) return false;
        const QString file = basCommon::JoinPath(folder, name + QStringLiteral(".png"));
        if (SavePicture(printer.SmallPage(arguments.iBoardSize), file, error)) continue;
        Complain(QStringLiteral("'%1' could not be written: %2").arg(file, error));
        return false;
    }
    EndProgress();
    return sheets.size() == asked.size();
}

int PrintCommand::PrintCheckPage(const PrintArguments& arguments) {
    PdfPrinter printer(arguments.sOutput, QStringLiteral("Printer Check"), arguments.Paper(), arguments.iDpi);
    if (arguments.forPrinter) printer.Correct(PrinterCorrections::OfPrinter(*arguments.forPrinter));
    CheckPage::Paint(printer, QStringLiteral("Print it at actual size (100 %), never \"fit to page\"."));
    printer.EndDoc();
    QString error;
    if (printer.Close(error)) return kDone;
    Complain(QStringLiteral("'%1' could not be written: %2").arg(arguments.sOutput, error));
    return kFailed;
}

bool PrintCommand::KnowsPrinter(const PrintArguments& arguments) {
    if (!arguments.forPrinter) return true;
    const PaperOfPage paper = PaperOfPage::Of(arguments.noKit.PaperInches(), {}, {});
    if (!PrinterCorrections::Of(*arguments.forPrinter, paper).IsNothing()) return true;
    const QString printer = arguments.forPrinter->isEmpty()
                                ? QStringLiteral("PDF files")
                                : QStringLiteral("the printer '%1'").arg(*arguments.forPrinter);
    Complain(QStringLiteral("there is no correction of %1 for %2 paper; Check the Printer in Tavlora makes one")
                 .arg(printer, paper.Name()));
    return false;
}

int PrintCommand::PrintGuide(const PrintArguments& arguments) {
    if (!arguments.sData.isEmpty()) Folders::SetProgramDirectory(Console::CompletePath(arguments.sData));
    QString error;
    const HtmlBook guide{Guide::Folder(), Guide::Pages(), QStringLiteral("Putting a game of Tavlora together")};
    if (SaveHtmlAsPdf(guide, arguments.Paper(), Console::CompletePath(arguments.sOutput), error)) return kDone;
    Complain(QStringLiteral("'%1' could not be written: %2").arg(arguments.sOutput, error));
    return kFailed;
}
