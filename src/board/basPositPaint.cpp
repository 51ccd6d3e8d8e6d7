// SPDX-License-Identifier: MIT
#include "board/basPositPaint.h"

#include "board/basPosit.h"
#include "board/basPositPaint_state.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

#include <algorithm>

using namespace basDraw;

namespace basPosit {
namespace {

constexpr float kCostHeight = 0.012F;
// From the inner edge of a space to the top of its cost.
constexpr float kCostGap = 0.005F;

constexpr int kEscapement[kSidesOfBoard] = {0, 2700, 1800, 900};

struct DeviceRect {
    int x1;
    int y1;
    int x2;
    int y2;
};

DeviceRect Mapped(const BoardRect& rect) { return {PosX(rect.x1), PosY(rect.y1), PosX(rect.x2), PosY(rect.y2)}; }

void Draw(const DeviceRect& rect) { Draw_Rect(rect.x1, rect.y1, rect.x2, rect.y2); }

// The view is square, so its width is the limit of both axes.
bool IsInView(const DeviceRect& rect) {
    return rect.x2 >= 0 && rect.y2 >= 0 && rect.x1 <= GetViewWidth() && rect.y1 <= GetViewWidth();
}

BoardPoint MiddleOf(const BoardRect& rect) { return {(rect.x1 + rect.x2) / 2, (rect.y1 + rect.y2) / 2}; }

// Across the side the costs of all its spaces stand on one line, told by the first; along it each stands in
// the middle of its space.
BoardPoint CostAnchor(int iSide, const BoardRect& first, const BoardRect& space) {
    const BoardPoint middle = MiddleOf(space);
    switch (iSide) {
        case 0:
            return {middle.x, first.y1 + kCostGap};
        case 1:
            return {first.x2 - kCostGap, middle.y};
        case 2:
            return {middle.x, first.y2 - kCostGap};
        default:
            return {first.x1 + kCostGap, middle.y};
    }
}

int HeightOfCosts() { return CLng(PosLength(kCostHeight)); }

// Of an average letter.
int WidthOfCosts() { return CLng(HeightOfCosts() * 0.5); }

// Of a text's width, without the blanks ahead of its first letter and behind its last.
constexpr double kInkShare = 0.975;

// Of letters that leave the cost no longer than its space; with those of the side in force.
int WidthThatFits(int iSpace) {
    const DeviceRect rect = Mapped(m_SpaceRect(iSpace, SpacePart::Whole));
    const bool bUpright = iSpace / basTAVL::kSpacesPerSide % 2 == 0;
    const int iLength = bUpright ? rect.x2 - rect.x1 : rect.y2 - rect.y1;
    const int iWritten = Draw_GetWidth(basTAVL::g_oSpaces(iSpace).Cost);
    if (iWritten * kInkShare <= iLength) return WidthOfCosts();
    return std::max(Int(double(iLength) * WidthOfCosts() / iWritten), 1);
}

void SetCostFont(int iSide, int iWidth) {
    Draw_SetFont(QStringLiteral("Arial"), HeightOfCosts(), iWidth,
                 EscapementOfSide(iSide, QStringLiteral("Unexpected Case 2")), 0, false, false, false);
}

} // namespace

int EscapementOfSide(int iSide, const QString& sMessage) {
    basErrLog::ErrAssert(iSide >= 0 && iSide < kSidesOfBoard, sMessage);
    return kEscapement[iSide];
}

bool IsFixedCorner(int iCorner) { return iCorner == BoardFacts::kFateCorner && PaintsFateItself(TheGame().kit); }

void PosDrawAll() try {
    StartPictures();
    Pos_DrawCenter();
    Draw_SetPen(PenStyle::Solid, CLng(PosLength(kBoardPen)), Color::Black());
    Draw_SetBrush(FaceColor());
    DrawCorners();
    DrawSides();
    DrawSpaces();
    PosDrawCosts();
    for (int iSpace = 0; iSpace < kSpacesOnBoard; ++iSpace) {
        PosDrawSpaceText(iSpace);
        PosDrawSpaceBMP(iSpace);
    }
    for (int iCorner = 0; iCorner < kCornersOnBoard; ++iCorner) {
        PosDrawCorner(iCorner);
    }
    for (int iSpace = 0; iSpace < kSpacesOnBoard; ++iSpace) {
        if (BoardFacts::IsLotto(iSpace)) DrawLotto(iSpace);
    }
    Draw_ReleaseObjects();
} catch (...) {
    ErrTail("basPosit!", "PosDrawAll");
}

void DrawCorners() try {
    for (int iCorner = 0; iCorner < kCornersOnBoard; ++iCorner) {
        std::array<QPoint, kCornerPoints> outline;
        for (size_t i = 0; i < outline.size(); ++i) {
            const BoardPoint& point = m_CornerPoly(iCorner)[i];
            outline[i] = QPoint(PosX(point.x), PosY(point.y));
        }
        Draw_Polygon(outline);
    }
} catch (...) {
    ErrTail("basPosit!", "DrawCorners");
}

void DrawSides() try {
    for (int iSide = 0; iSide < kSidesOfBoard; ++iSide) {
        const SideRecord& side = m_SideRec(iSide);
        const DeviceRect band = Mapped(side.rect);
        DrawColored(side.lFill, band.x1, band.y1, band.x2, band.y2);
        Draw_SetFont(QStringLiteral("Arial"), CLng(PosLength(side.fFontHeight)), CLng(PosLength(side.fFontWidth)),
                     EscapementOfSide(iSide, QStringLiteral("Unexpected side")), 0, true, false, false);
        Draw_Text(side.sText, QStringLiteral("C"), PosX(side.anchor.x), PosY(side.anchor.y),
                  SavesInk() ? Color::Black() : side.lText);
    }
} catch (...) {
    ErrTail("basPosit!", "DrawSides");
}

void DrawSpaces() try {
    Draw_SetBrush(FaceColor());
    for (int iSpace = 0; iSpace < kSpacesOnBoard; ++iSpace) {
        const DeviceRect rect = Mapped(m_SpaceRect(iSpace, SpacePart::Whole));
        C_Space& space = basTAVL::g_oSpaces(iSpace);
        space.IsShowing = IsInView(rect);
        if (space.IsShowing) Draw(rect);
    }
    for (int iSpace = 0; iSpace < kSpacesOnBoard; ++iSpace) {
        const C_Space& space = basTAVL::g_oSpaces(iSpace);
        if (space.SpaceColor.IsNone() || !space.IsShowing) continue;
        // One unit further out than the space itself, which closes the gap under the pen. Ahead of the rounding: of
        // two halves in a row one is rounded down and one up.
        const BoardRect& band = m_SpaceRect(iSpace, SpacePart::Band);
        DrawColored(space.SpaceColor, PosX(band.x1), PosY(band.y1), PosX(band.x2, 1), PosY(band.y2, 1));
    }
} catch (...) {
    ErrTail("basPosit!", "DrawSpaces");
}

void PosDrawCosts() try {
    for (int iSide = 0; iSide < kSidesOfBoard; ++iSide) {
        SetCostFont(iSide, WidthOfCosts());
        const int iFirst = iSide * basTAVL::kSpacesPerSide;
        for (int iSpace = iFirst; iSpace < iFirst + basTAVL::kSpacesPerSide; ++iSpace) {
            const C_Space& space = basTAVL::g_oSpaces(iSpace);
            const BoardPoint anchor =
                CostAnchor(iSide, m_SpaceRect(iFirst, SpacePart::Whole), m_SpaceRect(iSpace, SpacePart::Whole));
            const int iNarrower = BoardFacts::IsLotto(iSpace) ? WidthThatFits(iSpace) : WidthOfCosts();
            if (iNarrower < WidthOfCosts()) SetCostFont(iSide, iNarrower);
            Draw_Text(space.Cost, QStringLiteral("C"), PosX(anchor.x), PosY(anchor.y),
                      SavesInk() ? Color::Black() : space.CostColor);
            if (iNarrower < WidthOfCosts()) SetCostFont(iSide, WidthOfCosts());
        }
    }
} catch (...) {
    ErrTail("basPosit!", "PosDrawCosts");
}

} // namespace basPosit
