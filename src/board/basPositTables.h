// SPDX-License-Identifier: MIT
#pragma once

#include "document/SpecialText.h"
#include "platform/paint/Color.h"
#include "services/BoardFacts.h"

#include <QString>

#include <array>

/// Where everything lies on the board. All lengths and places are fractions of the board's width, 0 at the
/// top and left edge; a view turns them into device units when it draws.
namespace basPosit {

constexpr int kSpacesOnBoard = BoardFacts::kSpaces;
constexpr int kCornersOnBoard = BoardFacts::kCorners;
constexpr int kSidesOfBoard = BoardFacts::kSides;
constexpr int kCornerPoints = 5;
constexpr int kCenterBoxes = 7;
constexpr int kCenterTexts = 17;
constexpr int kPropColors = 8;
constexpr int kStripCells = 32;
constexpr int kColumnCells = 5;

/// Size of the picture that belongs to the kit and fills its corner.
constexpr float kFateImage = 0.1684F;

struct BoardRect {
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
    float Width() const { return x2 - x1; }
    float Height() const { return y2 - y1; }
};

struct BoardPoint {
    float x = 0;
    float y = 0;
};

/// A coloured band with the name of a side.
struct SideRecord {
    Color lFill;
    Color lText;
    QString sText;
    BoardRect rect;
    BoardPoint anchor;
    float fFontHeight = 0;
    float fFontWidth = 0;
};

/// How and where a text of the board's centre or of the printed sheets stands.
struct CenterTextLook {
    /// Empty means "Arial".
    QString sFamily;
    float fFontHeight = 0;
    BoardPoint anchor;
    QString sAlign = QStringLiteral("C");
    bool bBold = false;
    bool bItalic = false;
    /// Negative: the text is stretched or squeezed to exactly that width. Positive: it is squeezed down to it
    /// at most. 0: there is no limit.
    float fWidthLimit = 0;

    QString Family() const { return sFamily.isEmpty() ? QStringLiteral("Arial") : sFamily; }
};

/// The boxes of the board's centre.
enum CenterBox { kPanel, kTitleBox, kSubtitleBox, kGoodNewsBox, kBadNewsBox, kMoneyBox, kTokensBox };

/// Parts of a space.
enum class SpacePart { Whole = 0, Band = 1 };

// Each raises the subscript error outside its table.
BoardRect& m_SpaceRect(int iSpace, SpacePart part);
SideRecord& m_SideRec(int iSide);
/// The outline of a corner.
std::array<BoardPoint, kCornerPoints>& m_CornerPoly(int iCorner);
BoardRect& m_CenterRect(int iBox);
/// The special texts: 1 to 5 those of the game in hand, the others the kit's.
SpecialText& m_CenterText(int iIndex);
CenterTextLook& m_CenterLook(int iIndex);
/// The eight groups of properties.
Color& m_lPropColor(int iGroup);
/// Cells of the strips and columns of the title box; none where a cell stays empty.
Color& m_lStripColor(int iCell);
Color& m_lColumnColorA(int iCell);
Color& m_lColumnColorB(int iCell);

/// For tests: tables as at the start of the program.
void ResetTablesForTest();

} // namespace basPosit
