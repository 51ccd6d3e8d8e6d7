// SPDX-License-Identifier: MIT
#include "board/basPositPaint.h"

#include "board/basPosit.h"
#include "board/basPositPaint_state.h"
#include "board/basTAVL_news.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

#include <QRect>

using namespace basDraw;

namespace basPosit {
namespace {

constexpr Color kPanelColor = Color::FromValue(0xFFB000);
constexpr Color kNewsColor = Color::FromValue(0xC08080);
constexpr Color kMoneyColor = Color::FromValue(0x80E080);
constexpr Color kTokensColor = Color::FromValue(0x9370DB);

// What stands on the boxes that open an editor.
struct Label {
    CenterBox box;
    const char* sLine[2];
    int iRows;
};
constexpr Label kLabel[] = {
    {kGoodNewsBox, {"Good", "News"}, 2},
    {kBadNewsBox, {"Bad", "News"}, 2},
    {kMoneyBox, {"Money", ""}, 1},
    {kTokensBox, {"Tokens", ""}, 1},
};
// Share of a row's height that its letters take.
constexpr double kLabelFill = 0.9;

// The small game board drawn round the title, in fractions of the title box's width and height.
constexpr float kStripCell = 0.0288F;
constexpr float kStripStart = 0.0392F;
constexpr float kStripDepth = 0.05286F;
constexpr float kStripInner = 0.1762F;
constexpr float kColumnCell = 0.1295F;
constexpr float kColumnStart = 0.1762F;
constexpr float kColumnDepth = 0.0098F;
constexpr float kColumnInner = 0.0392F;

constexpr int kTitles = 3;

// Parts of a deck's place that its title takes.
constexpr double kDeckTitleFill = 0.7;
// Of the half of the panel that a deck lies in, so that what it leaves is seen.
constexpr float kMostOfHalf = 0.94F;
constexpr int kUpward = 900;
// Of what is edged with a colour in place of being filled with it.
constexpr float kColoredEdge = 0.003F;

struct PaintedFor {
    std::optional<PaperLook> paper;
};

PaintedFor& Module() {
    static PaintedFor paintedFor;
    return paintedFor;
}

// Edges of the title box, its two strips (T and B) and its two columns (L and R).
struct TitleGrid {
    BoardRect box;
    float W = box.Width();
    float H = box.Height();
    float T1 = box.y1 + kStripInner * H;
    float T0 = T1 - kStripDepth * H;
    float B0 = box.y2 - kStripInner * H;
    float B1 = B0 + kStripDepth * H;
    float L1 = box.x1 + kColumnInner * W;
    float L0 = L1 - kColumnDepth * W;
    float R0 = box.x2 - kColumnInner * W;
    float R1 = R0 + kColumnDepth * W;

    float StripFromLeft(int i) const { return (kStripCell * float(i) + kStripStart) * W + box.x1; }
    float StripFromRight(int i) const { return box.x2 - (kStripCell * float(i) + kStripStart) * W; }
    float Column(int i) const { return (kColumnCell * float(i) + kColumnStart) * H + box.y1; }
};

void DrawBoardRect(float x1, float y1, float x2, float y2) { Draw_Rect(PosX(x1), PosY(y1), PosX(x2), PosY(y2)); }
void DrawBoardLine(float x1, float y1, float x2, float y2) { Draw_Line(PosX(x1), PosY(y1), PosX(x2), PosY(y2)); }

void DrawBoxes() {
    const Color face = FaceColor();
    const Color fill[kCenterBoxes] = {
        SavesInk() ? Color::White() : kPanelColor, face, face, kNewsColor, kNewsColor, kMoneyColor, kTokensColor};
    const int boxes = OnPaper() ? kGoodNewsBox : kCenterBoxes;
    for (int i = 0; i < boxes; ++i) {
        const BoardRect& box = m_CenterRect(i);
        Draw_SetBrush(fill[i]);
        DrawBoardRect(box.x1, box.y1, box.x2, box.y2);
    }
}

// The title of a deck on the place where it lies, a word to a line, as its cards bear it.
void DrawDeckTitle(int iDeck, const BoardRect& box, bool bTurned) {
    const QStringList words =
        basTAVL::CRLF2Space(m_CenterText(basTAVL::NewsTitleRecord(iDeck)).sText).split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty()) return;
    const QSize size(PosX(box.x2) - PosX(box.x1), PosY(box.y2) - PosY(box.y1));
    const QSize inside = (bTurned ? size.transposed() : size) * kDeckTitleFill;
    const QString family = QStringLiteral("Arial");
    const int lines = int(words.size());
    const int height = Pos_ComputeSize(family, false, true, words, lines, inside.width(), inside.height());
    Draw_SetFont(family, height, 0, bTurned ? kUpward : 0, 0, false, true, false);
    const int before = lines * height / 2;
    const int x = PosX((box.x1 + box.x2) / 2) - (bTurned ? before : 0);
    const int y = PosY((box.y1 + box.y2) / 2) - (bTurned ? 0 : before);
    Draw_TextArray(words, QStringLiteral("C"), x, y, Color::Black());
}

void DrawDeckPlaces(const PaperLook& look) {
    const DeckPlaces places = DeckPlacesOf(look);
    for (int deck = 0; deck < int(places.box.size()); ++deck) {
        const BoardRect& box = places.box[size_t(deck)];
        DrawColored(kNewsColor, PosX(box.x1), PosY(box.y1), PosX(box.x2), PosY(box.y2));
        DrawDeckTitle(deck, box, places.bTurned);
    }
}

void DrawLabels() {
    for (const Label& label : kLabel) {
        const BoardRect& box = m_CenterRect(label.box);
        const int height = PosY(box.y2) - PosY(box.y1);
        Draw_SetFont(QStringLiteral("Arial"), CLng(double(height) / label.iRows * kLabelFill), 0, 0, 0, false, true,
                     false);
        const QStringList lines{QString::fromLatin1(label.sLine[0]), QString::fromLatin1(label.sLine[1])};
        Draw_TextArray(lines, QStringLiteral("C"), PosX((box.x1 + box.x2) / 2), PosY(box.y1), Color::Black());
    }
}

// The bottom strip is the top one turned by half a turn.
void DrawStripCells(const TitleGrid& grid) {
    for (int i = 0; i < kStripCells; ++i) {
        const Color color = m_lStripColor(i);
        if (color.IsNone()) continue;
        Draw_SetPen(PenStyle::Solid, 0, color);
        Draw_SetBrush(color);
        const float fromLeft = grid.StripFromLeft(i);
        const float fromRight = grid.StripFromRight(i);
        DrawBoardRect(fromLeft, grid.T0, fromLeft + kStripCell * grid.W, grid.T1);
        DrawBoardRect(fromRight - kStripCell * grid.W, grid.B0, fromRight, grid.B1);
    }
}

void DrawColumnCell(Color color, float x1, float y1, float x2, float y2) {
    Draw_SetPen(PenStyle::Solid, 0, color);
    Draw_SetBrush(color);
    DrawBoardRect(x1, y1, x2, y2);
}

void DrawColumnCells(const TitleGrid& grid) {
    for (int i = 0; i < kColumnCells; ++i) {
        if (m_lColumnColorA(i).IsNone()) continue;
        const float from = grid.Column(i);
        const float to = from + kColumnCell * grid.H;
        DrawColumnCell(m_lColumnColorA(i), grid.L0, from, grid.L1, to);
        DrawColumnCell(m_lColumnColorB(i), grid.R0, from, grid.R1, to);
    }
}

void DrawGridLines(const TitleGrid& grid) {
    const BoardRect& box = grid.box;
    Draw_SetPen(PenStyle::Solid, 0, Color::Black());
    for (int i = 1; i < kStripCells; ++i) {
        const float x = grid.StripFromLeft(i);
        DrawBoardLine(x, box.y1, x, grid.T1);
        DrawBoardLine(x, grid.B0, x, box.y2);
    }
    for (int i = 1; i < kColumnCells; ++i) {
        const float y = grid.Column(i);
        DrawBoardLine(box.x1, y, grid.L1, y);
        DrawBoardLine(grid.R0, y, box.x2, y);
    }
    DrawBoardLine(box.x1, grid.T1, box.x2, grid.T1);
    DrawBoardLine(box.x1, grid.B0, box.x2, grid.B0);
    DrawBoardLine(grid.L1, box.y1, grid.L1, box.y2);
    DrawBoardLine(grid.R0, box.y1, grid.R0, box.y2);
}

void DrawDecoration(const BoardRect& box) {
    const TitleGrid grid{box};
    DrawStripCells(grid);
    DrawColumnCells(grid);
    DrawGridLines(grid);
}

// A view in which the board is one device unit wide, so that places given in device units stay as they are.
class UnitView {
public:
    UnitView() {
        PosSetScale(1);
        PosSetOffsetX(0);
        PosSetOffsetY(0);
    }
    ~UnitView() {
        PosSetScale(m_fScale);
        PosSetOffsetX(m_lOffsetX);
        PosSetOffsetY(m_lOffsetY);
    }
    UnitView(const UnitView&) = delete;
    UnitView& operator=(const UnitView&) = delete;

private:
    float m_fScale = GetScale();
    int m_lOffsetX = GetOffsetX();
    int m_lOffsetY = GetOffsetY();
};

void DrawTitles() {
    for (int i = 0; i < kTitles; ++i) {
        const SpecialText& text = m_CenterText(i);
        const CenterTextLook& look = m_CenterLook(i);
        Draw_SetFont(look.Family(), CLng(PosLength(look.fFontHeight)), CLng(PosLength(text.fFontWidth)), 0, 0,
                     look.bBold, look.bItalic, false);
        Draw_Text(basTAVL::CRLF2Space(text.sText), look.sAlign, PosX(look.anchor.x), PosY(look.anchor.y),
                  Color::Black());
    }
}

} // namespace

void PosSetPaper(const std::optional<PaperLook>& look) { Module().paper = look; }

const PaperLook* OnPaper() { return Module().paper ? &*Module().paper : nullptr; }

bool SavesInk() { return OnPaper() && OnPaper()->bSavesInk; }

Color FaceColor() { return SavesInk() ? Color::White() : basTAVL::g_lMagicColor(); }

void DrawColored(Color color, int x1, int y1, int x2, int y2) {
    Draw_SetBrush(SavesInk() ? Color::White() : color);
    Draw_Rect(x1, y1, x2, y2);
    if (!SavesInk()) return;
    const int pen = CLng(PosLength(kBoardPen));
    const int inside = CLng(PosLength(kColoredEdge) / 2 + pen / 2.0);
    Draw_SetPen(PenStyle::Solid, CLng(PosLength(kColoredEdge)), color);
    Draw_SetBrush(Color::None());
    Draw_Rect(x1 + inside, y1 + inside, x2 - inside, y2 - inside);
    Draw_SetPen(PenStyle::Solid, pen, Color::Black());
}

DeckPlaces DeckPlacesOf(const PaperLook& look) {
    // Under the titles, as far from them as from the panel's lower edge; each in the middle of its half.
    const BoardRect& panel = m_CenterRect(kPanel);
    const float half = panel.Width() / 2;
    const float middle = (m_CenterRect(kSubtitleBox).y2 + panel.y2) / 2;
    DeckPlaces places;
    places.bTurned = look.fCardWidth > half * kMostOfHalf;
    const float w = places.bTurned ? look.fCardHeight : look.fCardWidth;
    const float h = places.bTurned ? look.fCardWidth : look.fCardHeight;
    for (size_t deck = 0; deck < places.box.size(); ++deck) {
        const float x = panel.x1 + half * (float(deck) + 0.5F);
        places.box[deck] = {x - w / 2, middle - h / 2, x + w / 2, middle + h / 2};
    }
    return places;
}

void Pos_DrawCenter() try {
    Draw_SetPen(PenStyle::Solid, CLng(PosLength(kBoardPen)), Color::Black());
    DrawBoxes();
    if (OnPaper()) {
        DrawDeckPlaces(*OnPaper());
    } else {
        DrawLabels();
    }
    DrawDecoration(m_CenterRect(kTitleBox));
    DrawTitles();
} catch (...) {
    ErrTail("basPosit!", "Pos_DrawCenter");
}

void DrawTitleDecoration(const QRect& box) {
    const UnitView inDeviceUnits;
    DrawDecoration(
        {float(box.left()), float(box.top()), float(box.left() + box.width()), float(box.top() + box.height())});
}

} // namespace basPosit
