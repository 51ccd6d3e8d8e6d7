// SPDX-License-Identifier: MIT
// The table of the sheets that need no boxed kit.
#include "nokit/NoKitSheets.h"

#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "nokit/PageCanvas.h"
#include "platform/printing/Printer.h"

#include <algorithm>

// Out here, so that the classes which the rows name are those of the sheets' files.
constexpr NoKitSheet kNoKitSheets[] = {
    {.sName = "guide",
     .sTitle = "First page: how to make it",
     .stock = NoKitStock::Paper,
     .sHowTo = "",
     .pages = PagesOf<class GuideSheet>},
    {.sName = "board",
     .sTitle = "Game board",
     .stock = NoKitStock::Card,
     .sHowTo = "Cut each page at its marks, lay the next one on its edge and glue.",
     .pages = PagesOf<class BoardOnPages>},
    {.sName = "standees",
     .sTitle = "Tokens",
     .stock = NoKitStock::Card,
     .sHowTo = "Cut out, fold over the head, glue back to back, and fold the feet apart.",
     .pages = PagesOf<class StandeeSheet>},
    {.sName = "dice",
     .sTitle = "Two dice",
     .stock = NoKitStock::Card,
     .sHowTo = "Cut out, fold at the dashed lines and glue the flaps inside.",
     .pages = PagesOf<class DiceSheet>},
    {.sName = "stories",
     .sTitle = "Building stories",
     .stock = NoKitStock::Card,
     .sHowTo = "Cut out and fold each into a tent.",
     .pages = PagesOf<class StoriesSheet>},
    {.sName = "box-wrap",
     .sTitle = "Box with a lid",
     .stock = NoKitStock::Card,
     .sHowTo = "Cut out, fold up the walls and glue the flaps inside: first the tray, then its lid.",
     .pages = PagesOf<class BoxWrapSheet>},
    {.sName = "deeds",
     .sTitle = "Title deeds",
     .stock = NoKitStock::Card,
     .sHowTo = "Cut apart.",
     .pages = PagesOf<class DeedsOnCard>},
    {.sName = "news",
     .sTitle = "Good News, Bad News",
     .stock = NoKitStock::Card,
     .sHowTo = "Cut apart into two decks.",
     .pages = PagesOf<class NewsOnCard>},
    {.sName = "money",
     .sTitle = "Money",
     .stock = NoKitStock::Paper,
     .sHowTo = "Cut apart.",
     .pages = PagesOf<class MoneyOnPaper>},
    {.sName = "rules",
     .sTitle = "Rules of the game",
     .stock = NoKitStock::Paper,
     .sHowTo = "Read aloud before you begin.",
     .pages = PagesOf<class RulesOnPaper>},
    {.sName = "bank",
     .sTitle = "Bank and score pad",
     .stock = NoKitStock::Paper,
     .sHowTo = "Tick who has what. The marks at its foot lie on deeds that are mortgaged.",
     .pages = PagesOf<class BankSheet>},
};

namespace {

// Of the marks in the corners.
constexpr double kMark = 0.16;

} // namespace

std::span<const NoKitSheet> NoKitSheets() { return kNoKitSheets; }

QString NameOfGame() {
    const QString title = basPosit::m_CenterText(1).sText + u' ' + basPosit::m_CenterText(0).sText;
    return basTAVL::CRLF2Space(title).simplified();
}

const NoKitSheet* FindNoKitSheet(const QString& sName) {
    const auto found = std::find_if(std::begin(kNoKitSheets), std::end(kNoKitSheets),
                                    [&](const NoKitSheet& sheet) { return sName == QLatin1String(sheet.sName); });
    return found == std::end(kNoKitSheets) ? nullptr : &*found;
}

QString NameOf(NoKitStock stock) {
    switch (stock) {
        case NoKitStock::Paper:
            return QStringLiteral("paper");
        case NoKitStock::Card:
            return QStringLiteral("card");
        default:
            return QStringLiteral("colored card");
    }
}

QSizeF PrintableOf(QSizeF paperInches) {
    return paperInches - QSizeF(2 * PdfPrinter::kMarginInches, 2 * PdfPrinter::kMarginInches);
}

QSizeF PaperOf(const NoKitChoices& choices, bool bLengthwise) {
    const QSizeF upright = choices.PaperInches();
    return bLengthwise ? upright.transposed() : upright;
}

std::vector<QLineF> RegistrationMarks(QSizeF printable) {
    std::vector<QLineF> marks;
    for (const double x : {kMark / 2, printable.width() - kMark / 2}) {
        for (const double y : {kMark / 2, printable.height() - kMark / 2}) {
            marks.emplace_back(x - kMark / 2, y, x + kMark / 2, y);
            marks.emplace_back(x, y - kMark / 2, x, y + kMark / 2);
        }
    }
    return marks;
}

bool PaintPage(const NoKitPage& page, PageCanvas& canvas, QStringList& lacking) {
    const bool whole = page.paint(canvas, lacking);
    for (const QLineF& mark : RegistrationMarks(canvas.Inches()))
        canvas.Tick(mark);
    return whole;
}
