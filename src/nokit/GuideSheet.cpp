// SPDX-License-Identifier: MIT
// The first page: what is printed on what, what is cut and folded, and how, with drawings.
#include "nokit/GuideSketches.h"

#include "nokit/NoKitPrint.h"
#include "nokit/NoKitSheets.h"

namespace {

constexpr double kLeft = 0.3;
constexpr double kText = 0.15;
constexpr double kRow = 0.76;
constexpr double kSketch = 0.66;
constexpr double kSketchWidth = 1.45;

/// A row of the page: a sheet, and on which pages of the document it stands.
struct Row {
    const NoKitSheet* sheet;
    int iFirst;
    int iLast;
};

// The pages as they follow on each other; the first page is this one.
std::vector<Row> RowsOf(const NoKitChoices& choices) {
    std::vector<Row> rows;
    int page = 1;
    for (const NoKitSheet* sheet : NoKitPrint::SheetsOf(choices.sheets)) {
        int count = 0;
        // What this page is made by mustn't ask itself.
        if (sheet == &NoKitSheets().front()) {
            page = 2;
            continue;
        }
        for (const NoKitPage& one : sheet->pages(choices))
            count += one.nCopies;
        rows.push_back({sheet, page, page + count - 1});
        page += count;
    }
    return rows;
}

QString PagesOfRow(const Row& row) {
    if (row.iFirst == row.iLast) return QStringLiteral("page %1").arg(row.iFirst);
    return QStringLiteral("pages %1 to %2").arg(row.iFirst).arg(row.iLast);
}

QString HowTo(const Row& row, const NoKitChoices& choices) {
    if (QLatin1String(row.sheet->sName) != QLatin1String("board")) return QString::fromLatin1(row.sheet->sHowTo);
    switch (choices.way) {
        case BoardWay::Quarters:
            return QStringLiteral(
                "Cut out the quarters and glue them on thick card. Tape three of the four inner edges "
                "from behind; the fourth stays open, so that the board folds twice.");
        case BoardWay::OnePage:
            return QStringLiteral("A page as large as the board: take it to a copy shop, cut it at its marks and glue "
                                  "it on thick card.");
        default:
            return QStringLiteral("Cut each page at its black marks. Lay the next one on its edge, up to the blue "
                                  "marks, and glue. Thick card behind it keeps it flat.");
    }
}

const char* HeadOf(NoKitStock stock) {
    return stock == NoKitStock::Card ? "Print on white card (160 to 250 g), or on paper that you glue on card"
                                     : "Print on white paper";
}

/// The page while it is painted, from its top down.
class Guide {
public:
    Guide(PageCanvas& page, const NoKitChoices& choices) : m_page(page), m_choices(choices) {}

    void Paint() {
        Head();
        Ruler();
        NoKitStock stock = NoKitStock::ColoredCard;
        for (const Row& row : RowsOf(m_choices)) {
            if (row.sheet->stock != stock) Stock(row.sheet->stock);
            stock = row.sheet->stock;
            Sheet(row);
        }
    }

private:
    double Width() const { return m_page.Inches().width() - 2 * kLeft; }

    void Line(const QString& sText, double height, bool bBold) {
        m_page.Text({kLeft, m_top, Width(), height}, sText,
                    {.dblHeight = height, .bBold = bBold, .align = TextLook::Align::Left});
        m_top += height;
    }

    void Head() {
        Line(NameOfGame(), 0.3, true);
        Line(QStringLiteral("Everything of the game from paper and card, for %1 players").arg(m_choices.nPlayers), 0.2,
             false);
        m_top += 0.08;
    }

    // Whoever prints "fit to page" sees it here, before any card is spent.
    void Ruler() {
        constexpr double kInches = 4;
        Line(QStringLiteral("Print at actual size (100 %), never \"fit to page\". Then this line is 4 inches long:"),
             kText, false);
        const double y = m_top + 0.14;
        m_page.Tick({kLeft, y, kLeft + kInches, y});
        for (int inch = 0; inch <= int(kInches); ++inch)
            m_page.Tick({kLeft + inch, y - 0.07, kLeft + inch, y});
        m_page.Text({kLeft + kInches + 0.15, y - 0.15, 3, kText}, QStringLiteral("A cut is a line, a fold is dashed."),
                    {.dblHeight = kText, .align = TextLook::Align::Left});
        m_top = y + 0.14;
    }

    void Stock(NoKitStock stock) {
        m_top += 0.06;
        const QRectF bar(kLeft, m_top, Width(), 0.24);
        m_page.Box(bar, m_choices.bSavesInk ? Color::White() : Color::Rgb(225, 238, 250), Color::Black(), 0.006);
        m_page.Text(bar.adjusted(0.08, 0, -0.08, 0), QString::fromLatin1(HeadOf(stock)),
                    {.dblHeight = 0.17, .bBold = true, .align = TextLook::Align::Left});
        m_top += bar.height() + 0.05;
    }

    void Sheet(const Row& row) {
        GuideSketches::Draw(m_page, QLatin1String(row.sheet->sName), {kLeft, m_top, kSketchWidth, kSketch}, m_choices);
        const double left = kLeft + kSketchWidth + 0.15;
        const QRectF text(left, m_top + 0.06, m_page.Inches().width() - left - kLeft, kText);
        m_page.Text(text, QString::fromLatin1(row.sheet->sTitle) + QStringLiteral(": ") + PagesOfRow(row),
                    {.dblHeight = 0.17, .bBold = true, .align = TextLook::Align::Left});
        m_page.Paragraph(text.translated(0, 0.19), HowTo(row, m_choices),
                         {.dblHeight = kText, .align = TextLook::Align::Left});
        m_top += kRow;
    }

    PageCanvas& m_page;
    const NoKitChoices& m_choices;
    double m_top = 0.22;
};

} // namespace

template <>
std::vector<NoKitPage> PagesOf<class GuideSheet>(const NoKitChoices& choices) {
    return {{{}, PaperOf(choices), [choices](PageCanvas& page, QStringList&) {
                 Guide(page, choices).Paint();
                 return true;
             }}};
}
