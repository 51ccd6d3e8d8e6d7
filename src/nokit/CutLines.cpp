// SPDX-License-Identifier: MIT
// For cutting machines: where each page is cut and folded, as drawings at true size.
#include "nokit/NoKitPrint.h"
#include "platform/files/Files.h"
#include "platform/paint/RecordingForm.h"
#include "platform/printing/Printer.h"
#include "services/basPath.h"

namespace NoKitPrint {
namespace {

// Places as fine as a hundredth of a millimetre.
QByteArray Number(double inches) { return QByteArray::number(inches, 'f', 4); }

QByteArray PathOf(const QLineF& line) {
    // A drawing counts from the corner of the paper.
    constexpr double kMargin = PdfPrinter::kMarginInches;
    return "M" + Number(line.x1() + kMargin) + ' ' + Number(line.y1() + kMargin) + 'L' + Number(line.x2() + kMargin) +
           ' ' + Number(line.y2() + kMargin);
}

QByteArray GroupOf(const char* sName, const char* sColor, const QByteArray& paths) {
    if (paths.isEmpty()) return {};
    return QByteArray("<g id=\"") + sName + "\" fill=\"none\" stroke=\"" + sColor +
           "\" stroke-width=\"0.01\"><path d=\"" + paths + "\"/></g>\n";
}

QByteArray PathsOf(const std::vector<PageLine>& lines, LineKind kind) {
    QByteArray paths;
    for (const PageLine& line : lines) {
        if (line.kind == kind) paths += PathOf(line.line);
    }
    return paths;
}

bool WritePage(const NoKitSheet& sheet, const NoKitPage& page, const QString& sFolder, Job& job, QString& sError) {
    const QSizeF printable = PrintableOf(page.paperInches);
    RecordingPage surface((printable * RecordingPage::kDotsPerInch).toSize());
    PageCanvas canvas(surface, printable);
    if (!PaintPage(page, canvas, job.lacking)) return false;
    if (canvas.Lines().empty()) return true;
    const QString name = QString::fromLatin1(sheet.sName) + (page.sName.isEmpty() ? QString() : u'-' + page.sName);
    const QString path = basCommon::JoinPath(sFolder, name + QStringLiteral(".svg"));
    return Files::WriteWhole(path, SvgOf(page.paperInches, canvas.Lines()), sError);
}

} // namespace

QByteArray SvgOf(QSizeF paperInches, const std::vector<PageLine>& lines) {
    const QByteArray width = Number(paperInches.width());
    const QByteArray height = Number(paperInches.height());
    QByteArray marks;
    for (const QLineF& mark : RegistrationMarks(PrintableOf(paperInches)))
        marks += PathOf(mark);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "in\" height=\"" + height +
           "in\" viewBox=\"0 0 " + width + ' ' + height + "\">\n" +
           GroupOf("cut", "#ff0000", PathsOf(lines, LineKind::Cut)) +
           GroupOf("fold", "#0000ff", PathsOf(lines, LineKind::Fold)) + GroupOf("registration", "#000000", marks) +
           "</svg>\n";
}

bool WriteCutLines(const std::vector<const NoKitSheet*>& sheets, const NoKitChoices& choices, const QString& sFolder,
                   Job& job, QString& sError) {
    if (!Files::MakeDirectory(sFolder, sError)) return false;
    for (size_t i = 0; i < sheets.size(); ++i) {
        if (!job.GoesOn(QStringLiteral("cut lines"), int(i * 1000 / sheets.size()))) return false;
        for (const NoKitPage& page : sheets[i]->pages(choices)) {
            if (!WritePage(*sheets[i], page, sFolder, job, sError)) return false;
        }
    }
    return true;
}

} // namespace NoKitPrint
