// SPDX-License-Identifier: MIT
#include "board/basPositTables.h"

#include "document/Game.h"
#include "document/Subscript.h"

namespace basPosit {
namespace {

struct Tables {
    std::array<std::array<BoardRect, 2>, kSpacesOnBoard> spaceRect;
    std::array<SideRecord, kSidesOfBoard> sideRec;
    std::array<std::array<BoardPoint, kCornerPoints>, kCornersOnBoard> cornerPoly;
    std::array<BoardRect, kCenterBoxes> centerRect;
    // Those of the game in hand aren't here; their places stay empty.
    std::array<SpecialText, kCenterTexts> centerText;
    std::array<CenterTextLook, kCenterTexts> centerLook;
    std::array<Color, kPropColors> propColor;
    std::array<Color, kStripCells> stripColor;
    std::array<Color, kColumnCells> columnColorA;
    std::array<Color, kColumnCells> columnColorB;
};

Tables& Module() {
    static Tables tables;
    return tables;
}

template <typename Entry, size_t count>
Entry& At(std::array<Entry, count>& table, int index) {
    return table[CheckedSubscript(index, int(count))];
}

} // namespace

BoardRect& m_SpaceRect(int iSpace, SpacePart part) { return At(At(Module().spaceRect, iSpace), int(part)); }
SideRecord& m_SideRec(int iSide) { return At(Module().sideRec, iSide); }
std::array<BoardPoint, kCornerPoints>& m_CornerPoly(int iCorner) { return At(Module().cornerPoly, iCorner); }
BoardRect& m_CenterRect(int iBox) { return At(Module().centerRect, iBox); }
SpecialText& m_CenterText(int iIndex) {
    return Titles::Holds(iIndex) ? TheGame().titles.Text(iIndex) : At(Module().centerText, iIndex);
}
CenterTextLook& m_CenterLook(int iIndex) { return At(Module().centerLook, iIndex); }
Color& m_lPropColor(int iGroup) { return At(Module().propColor, iGroup); }
Color& m_lStripColor(int iCell) { return At(Module().stripColor, iCell); }
Color& m_lColumnColorA(int iCell) { return At(Module().columnColorA, iCell); }
Color& m_lColumnColorB(int iCell) { return At(Module().columnColorB, iCell); }

void ResetTablesForTest() { Module() = Tables{}; }

} // namespace basPosit
