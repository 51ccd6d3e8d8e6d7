// SPDX-License-Identifier: MIT
// The board on paper: on pages that are glued into one, in quarters that fold, or on a page as large as it is.
#include "nokit/BoardPages.h"

#include "board/basPosit.h"
#include "board/BoardPicture.h"
#include "document/GameHost.h"
#include "kit/NewsSheet.h"
#include "nokit/Millimetres.h"
#include "nokit/NoKitSheets.h"
#include "nokit/PageCanvas.h"
#include "platform/paint/Recording.h"

using BoardJoins::Span;
using BoardJoins::Strip;

namespace {

constexpr double kOverlap = Inches(10);
// Under the board's part: the map of the pages, and what the page is.
constexpr double kFoot = 0.5;
// Round a board that has a page of its own.
constexpr double kRoundOnePage = 0.6;
// By so much the place of a deck is larger than its cards.
constexpr double kAroundCards = 0.1;

constexpr Color kGlueColor = Color::Rgb(0, 90, 200);
constexpr double kNoteHeight = 0.11;

std::vector<Strip> StripsOf(const NoKitChoices& choices, double most, const std::vector<Span>& words) {
    const double side = choices.BoardInches();
    if (choices.way != BoardWay::Quarters) return BoardJoins::Strips({0, side, most, kOverlap}, words);
    // A board that folds is cut where it folds, whatever stands there.
    std::vector<Strip> strips = BoardJoins::Strips({0, side / 2, most, kOverlap}, words);
    for (const Strip& strip : BoardJoins::Strips({side / 2, side, most, kOverlap}, words))
        strips.push_back(strip);
    return strips;
}

BoardGrid GridOn(const NoKitChoices& choices, QSizeF paperInches, const std::vector<QRectF>& words) {
    std::vector<Span> across;
    std::vector<Span> down;
    for (const QRectF& word : words) {
        across.push_back({word.left(), word.right()});
        down.push_back({word.top(), word.bottom()});
    }
    const QSizeF printable = PrintableOf(paperInches);
    const double mostAcross = printable.width() - 2 * PageCanvas::kBorder;
    const double mostDown = printable.height() - PageCanvas::kBorder - kFoot;
    return {StripsOf(choices, mostAcross, across), StripsOf(choices, mostDown, down), paperInches};
}

/// A page of the board while it is painted.
class TilePainter {
public:
    TilePainter(const BoardGrid& grid, size_t iColumn, size_t iRow, PageCanvas& page)
        : m_grid(grid), m_column(iColumn), m_row(iRow), m_page(page), m_place(grid.PlaceOf(iColumn, iRow)) {}

    void Paint(const Recording& board, double dblInches) {
        const QRectF shown = m_grid.ShownBy(m_column, m_row);
        const double units = board.Size().width() / dblInches;
        m_page.Drawing(board, {QRectF(shown.topLeft() * units, shown.size() * units), m_place});
        m_page.CutBox(m_place);
        if (m_grid.Pages() == 1) return;
        GlueRight();
        GlueBelow();
        Map();
        Foot();
    }

private:
    // The next page lies on this one up to where the marks stand.
    void GlueRight() {
        const Strip& strip = m_grid.columns[m_column];
        if (strip.shownTo <= strip.to) return;
        const double x = m_place.left() + strip.to - strip.from;
        JoinTick({x, m_place.top()}, {0, -1});
        JoinTick({x, m_place.bottom()}, {0, 1});
        const QRectF beside(m_place.right() + 0.03, m_place.top() + 0.25, kNoteHeight, m_place.height() - 0.5);
        m_page.Text(beside, NoteOf(m_column + 1, m_row), NoteLook(1));
    }

    void GlueBelow() {
        const Strip& strip = m_grid.rows[m_row];
        if (strip.shownTo <= strip.to) return;
        const double y = m_place.top() + strip.to - strip.from;
        JoinTick({m_place.left(), y}, {-1, 0});
        JoinTick({m_place.right(), y}, {1, 0});
        const QRectF beneath(m_place.left() + 0.25, m_place.bottom() + 0.03, m_place.width() - 0.5, kNoteHeight);
        m_page.Text(beneath, NoteOf(m_column, m_row + 1), NoteLook(0));
    }

    static QString NoteOf(size_t iColumn, size_t iRow) {
        return QStringLiteral("glue: %1 lies on this edge up to the blue marks").arg(BoardGrid::NameOf(iColumn, iRow));
    }
    static TextLook NoteLook(int iQuarterTurns) {
        return {.dblHeight = kNoteHeight, .color = kGlueColor, .iQuarterTurns = iQuarterTurns};
    }

    void JoinTick(const QPointF& at, const QPointF& outward) {
        m_page.Tick({at + outward * 0.04, at + outward * 0.2}, kGlueColor);
    }

    // Of all pages, with this one filled.
    void Map() {
        const double side = kFoot - 0.14;
        const double cell = side / double(std::max(m_grid.columns.size(), m_grid.rows.size()));
        const QPointF origin(PageCanvas::kBorder, m_page.Inches().height() - side - 0.02);
        for (size_t column = 0; column < m_grid.columns.size(); ++column) {
            for (size_t row = 0; row < m_grid.rows.size(); ++row) {
                const QRectF box(origin + QPointF(double(column), double(row)) * cell, QSizeF(cell, cell));
                const bool here = column == m_column && row == m_row;
                m_page.Box(box, here ? kGlueColor : Color::White(), Color::Black(), 0.005);
            }
        }
    }

    void Foot() {
        const QString name = BoardGrid::NameOf(m_column, m_row);
        const double left = PageCanvas::kBorder + kFoot;
        const double top = m_page.Inches().height() - kFoot + 0.16;
        m_page.Text({left, top, 0.6, 0.3}, name, {.dblHeight = 0.28, .bBold = true, .align = TextLook::Align::Left});
        const QString told = QStringLiteral("Game board, page %1 of %2. Print at actual size. Cut at the black marks.")
                                 .arg(m_row * m_grid.columns.size() + m_column + 1)
                                 .arg(m_grid.Pages());
        m_page.Text({left + 0.6, top + 0.06, m_page.Inches().width() - left - 1, 0.2}, told,
                    {.dblHeight = 0.14, .align = TextLook::Align::Left});
    }

    const BoardGrid& m_grid;
    size_t m_column;
    size_t m_row;
    PageCanvas& m_page;
    QRectF m_place;
};

} // namespace

QString BoardGrid::NameOf(size_t iColumn, size_t iRow) {
    return QChar(u'A' + char16_t(iColumn)) + QString::number(iRow + 1);
}

QRectF BoardGrid::ShownBy(size_t iColumn, size_t iRow) const {
    const Strip& column = columns[iColumn];
    const Strip& row = rows[iRow];
    return {column.from, row.from, column.Shown(), row.Shown()};
}

QRectF BoardGrid::PlaceOf(size_t iColumn, size_t iRow) const {
    const QSizeF printable = PrintableOf(paperInches);
    const QSizeF size = ShownBy(iColumn, iRow).size();
    const double room = printable.height() - size.height();
    // A board on a page of its own lies in its middle; else the foot stands below.
    const double top = Pages() == 1 ? room / 2 : PageCanvas::kBorder;
    return {QPointF((printable.width() - size.width()) / 2, top), size};
}

BoardGrid GridOf(const NoKitChoices& choices, const std::vector<QRectF>& words) {
    if (choices.way == BoardWay::OnePage) {
        const double side = choices.BoardInches();
        const Strip whole{0, side, side};
        return {{whole}, {whole}, QSizeF(side + 2 * kRoundOnePage, side + 2 * kRoundOnePage)};
    }
    BoardGrid upright = GridOn(choices, PaperOf(choices), words);
    BoardGrid lengthwise = GridOn(choices, PaperOf(choices, true), words);
    return lengthwise.Pages() < upright.Pages() ? lengthwise : upright;
}

std::shared_ptr<const Recording> BoardForPages(const NoKitChoices& choices) {
    const QSizeF place = NewsCardInches() + QSizeF(kAroundCards, kAroundCards);
    std::shared_ptr<const Recording> board = basPosit::BoardOnPaper(choices.BoardInches(), place, choices.bSavesInk);
    // What is measured from here on is measured where it was before.
    basPosit::PosSethDC(&GameHost::Current().MeasuringDevice());
    return board;
}

template <>
std::vector<NoKitPage> PagesOf<class BoardOnPages>(const NoKitChoices& choices) {
    const std::shared_ptr<const Recording> board = BoardForPages(choices);
    const BoardGrid grid = GridOf(choices, BoardJoins::WordsOf(*board, choices.BoardInches()));
    std::vector<NoKitPage> pages;
    for (size_t row = 0; row < grid.rows.size(); ++row) {
        for (size_t column = 0; column < grid.columns.size(); ++column) {
            const QString name = grid.Pages() > 1 ? BoardGrid::NameOf(column, row) : QString();
            pages.push_back(
                {name, grid.paperInches,
                 [board, grid, column, row, inches = choices.BoardInches()](PageCanvas& page, QStringList&) {
                     TilePainter(grid, column, row, page).Paint(*board, inches);
                     return true;
                 }});
        }
    }
    return pages;
}
