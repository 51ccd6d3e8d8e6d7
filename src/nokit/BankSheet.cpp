// SPDX-License-Identifier: MIT
// A pad on which the banker ticks who has what, a table for the end of the game, and marks for mortgaged deeds.
#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "nokit/NoKitSheets.h"
#include "nokit/PageCanvas.h"

namespace {

constexpr double kTop = 0.55;
constexpr double kRow = 0.215;
constexpr double kSwatch = 0.18;
constexpr double kName = 2.15;
constexpr double kPrice = 0.62;
constexpr double kPlayer = 0.5;
constexpr double kMortgaged = 0.72;
constexpr double kPen = 0.006;
constexpr double kLetters = 0.15;

constexpr const char* kScores[] = {"Money", "Deeds", "Stories", "Together"};
constexpr double kScoreRow = 0.26;

constexpr int kMarkColumns = 8;
constexpr int kMarkRows = 3;
constexpr double kMarkHeight = 0.4;

const Color kGround = Color::Rgb(235, 235, 235);

/// The pad while it is painted; places are told from its upper left.
class Pad {
public:
    Pad(PageCanvas& page, const NoKitChoices& choices)
        : m_page(page), m_players(choices.nPlayers), m_savesInk(choices.bSavesInk),
          m_left((page.Inches().width() - Width()) / 2) {}

    void Paint() {
        m_page.Text({m_left, 0.22, Width(), 0.24}, QStringLiteral("Who has what"),
                    {.dblHeight = 0.22, .bBold = true, .align = TextLook::Align::Left});
        Heads();
        double top = kTop + kRow;
        for (int space = 0; space < basTAVL::kSpaces; ++space) {
            if (!BoardFacts::IsForSale(space)) continue;
            Deed(space, top);
            top += kRow;
        }
        Scores(top + 0.2);
        Marks(top + 0.2 + kScoreRow * (1 + double(std::size(kScores))) + 0.24);
    }

private:
    double Width() const { return kSwatch + kName + kPrice + m_players * kPlayer + kMortgaged; }
    double PlayersLeft() const { return m_left + kSwatch + kName + kPrice; }

    void Cell(double left, double top, double width, double height, const QString& sText, Color fill,
              TextLook::Align align = TextLook::Align::Center) {
        const QRectF box(left, top, width, height);
        m_page.Box(box, fill, Color::Black(), kPen);
        if (!sText.isEmpty())
            m_page.Text(box.adjusted(0.05, 0, -0.05, 0), sText, {.dblHeight = kLetters, .align = align});
    }

    Color HeadGround() const { return m_savesInk ? Color::White() : kGround; }

    void Heads() {
        Cell(m_left, kTop, kSwatch + kName, kRow, QStringLiteral("Deed"), HeadGround(), TextLook::Align::Left);
        Cell(m_left + kSwatch + kName, kTop, kPrice, kRow, QStringLiteral("Price"), HeadGround());
        for (int player = 0; player < m_players; ++player)
            Cell(PlayersLeft() + player * kPlayer, kTop, kPlayer, kRow, QString(), HeadGround());
        Cell(PlayersLeft() + m_players * kPlayer, kTop, kMortgaged, kRow, QStringLiteral("mortgaged"), HeadGround());
    }

    void Deed(int iSpace, double top) {
        const C_Space& space = basTAVL::g_oSpaces(iSpace);
        const bool property = BoardFacts::IsProperty(iSpace);
        Cell(m_left, top, kSwatch, kRow, QString(), property ? space.SpaceColor : Color::White());
        Cell(m_left + kSwatch, top, kName, kRow, basTAVL::CRLF2Space(space.TextAll()), Color::White(),
             TextLook::Align::Left);
        Cell(m_left + kSwatch + kName, top, kPrice, kRow, space.Cost, Color::White(), TextLook::Align::Right);
        for (int player = 0; player < m_players; ++player)
            Cell(PlayersLeft() + player * kPlayer, top, kPlayer, kRow, QString(), Color::White());
        Cell(PlayersLeft() + m_players * kPlayer, top, kMortgaged, kRow, QString(), Color::White());
    }

    // At the end of the game: who is the richest.
    void Scores(double top) {
        Cell(m_left, top, kSwatch + kName + kPrice, kScoreRow,
             QStringLiteral("At the end (a mortgaged deed counts half)"), HeadGround(), TextLook::Align::Left);
        for (int player = 0; player < m_players; ++player)
            Cell(PlayersLeft() + player * kPlayer, top, kPlayer, kScoreRow, QString(), HeadGround());
        for (const char* score : kScores) {
            top += kScoreRow;
            Cell(m_left, top, kSwatch + kName + kPrice, kScoreRow, QString::fromLatin1(score), Color::White(),
                 TextLook::Align::Left);
            for (int player = 0; player < m_players; ++player)
                Cell(PlayersLeft() + player * kPlayer, top, kPlayer, kScoreRow, QString(), Color::White());
        }
    }

    void Marks(double top) {
        const QRectF all(m_left, top, Width(), kMarkRows * kMarkHeight);
        const QSizeF size(all.width() / kMarkColumns, kMarkHeight);
        for (int mark = 0; mark < kMarkColumns * kMarkRows; ++mark) {
            const int row = mark / kMarkColumns;
            const QPointF at(mark % kMarkColumns * size.width(), row * size.height());
            const QRectF box(all.topLeft() + at, size);
            m_page.Text(box.adjusted(0.06, 0, -0.06, 0), QStringLiteral("MORTGAGED"),
                        {.dblHeight = 0.15, .bBold = true, .color = Color::Rgb(170, 0, 0)});
        }
        m_page.CutGrid(all, kMarkColumns, kMarkRows);
    }

    PageCanvas& m_page;
    int m_players;
    bool m_savesInk;
    double m_left;
};

} // namespace

template <>
std::vector<NoKitPage> PagesOf<class BankSheet>(const NoKitChoices& choices) {
    return {{{}, PaperOf(choices), [choices](PageCanvas& page, QStringList&) {
                 Pad(page, choices).Paint();
                 return true;
             }}};
}
