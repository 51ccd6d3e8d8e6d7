// SPDX-License-Identifier: MIT
#include "windows/editors/SpaceLikeness.h"

#include "document/basTAVL.h"
#include "document/Subscript.h"
#include "drawing/basDraw.h"
#include "platform/text/Numbers.h"
#include "windows/editors/TypedText.h"

namespace {

constexpr QSize kSize(206, 332);
constexpr int kLeft = 16;
constexpr int kTop = 16;
constexpr int kRight = 190;
constexpr int kBottom = 316;
constexpr int kBandBottom = 59;
constexpr int kCentre = (kRight + kLeft) / 2;
constexpr int kCostTop = 21;
constexpr int kCostHeight = 30;
constexpr int kCostWidth = 15;
constexpr QRect kImage(41, 63, 126, 126);
constexpr Likeness::TextBox kTextWithoutImage{kCentre, kLeft, kRight, 63, 210};
constexpr Likeness::TextBox kTextWithImage{kCentre, kLeft, kRight, 189, 105};
/// Pixels of the likeness in the width of a whole board.
constexpr double kPixelsPerBoard = 2000;

} // namespace

QSize SpaceLikeness::Size() const { return kSize; }

QString SpaceLikeness::Joined(const QStringList& sTextLines) const { return TypedText::Joined(sTextLines); }

void SpaceLikeness::LoadFromGame(const Game& game, int iIndex) {
    m_iSpace = iIndex;
    TakeBack(game);
}

void SpaceLikeness::TakeBack(const Game& game) {
    oSpace = C_Space();
    oSpace.LoadFromObject(InGame(game));
}

const C_Space& SpaceLikeness::InGame(const Game& game) const {
    return game.spaces[CheckedSubscript(m_iSpace, basTAVL::kSpaces)];
}

bool SpaceLikeness::IsDifferentFromGame(const Game& game) const { return InGame(game).IsDifferentFrom(oSpace); }

Edit SpaceLikeness::ChangeOf(const Game& game) const {
    C_Space space = InGame(game);
    space.LoadFromObject(oSpace);
    return Edits::OfSpace(game, m_iSpace, space);
}

Edit SpaceLikeness::AllFontsOf(const Game& game) const {
    return Edits::OfBoardFont(game, oSpace.Font, m_iSpace, Edits::kNoCorner);
}

Likeness::TextBox SpaceLikeness::TextPlace() { return HasImage() ? kTextWithImage : kTextWithoutImage; }

QRect SpaceLikeness::ImagePlace() { return kImage; }

int SpaceLikeness::LineHeight() { return CLng(oSpace.TextSize() * kPixelsPerBoard); }

void SpaceLikeness::DrawOutline() {
    basDraw::Draw_Rect(kLeft, kTop, kRight, kBottom);
    if (!oSpace.SpaceColor.IsNone()) {
        basDraw::Draw_SetBrush(oSpace.SpaceColor);
        basDraw::Draw_Rect(kLeft, kTop, kRight, kBandBottom);
    }
    basDraw::Draw_SetFont(QStringLiteral("Arial"), kCostHeight, kCostWidth, 0, 0, false, false, false);
    basDraw::Draw_Text(oSpace.Cost, QStringLiteral("C"), kCentre, kCostTop, oSpace.CostColor);
}
