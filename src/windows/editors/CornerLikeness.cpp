// SPDX-License-Identifier: MIT
#include "windows/editors/CornerLikeness.h"

#include "document/basTAVL.h"
#include "document/Subscript.h"
#include "drawing/basDraw.h"
#include "platform/text/Numbers.h"

#include <QPoint>

#include <array>

namespace {

constexpr QSize kSize(384, 372);
/// The cut-off inner tip of the corner is at the top.
constexpr std::array<QPoint, 5> kOutline{QPoint(192, 360), QPoint(12, 180), QPoint(180, 12), QPoint(204, 12),
                                         QPoint(372, 180)};
constexpr int kCentre = 384 / 2;
constexpr QRect kImage(1080 / 8 + 12, 360 / 4, 90, 90);
/// The middle half of the drawing.
constexpr Likeness::TextBox kText{kCentre, 384 / 4, 384 * 3 / 4, 180, 90};
/// Pixels of the likeness in the width of a whole board.
constexpr double kPixelsPerBoard = 1350;

} // namespace

QSize CornerLikeness::Size() const { return kSize; }

QString CornerLikeness::Joined(const QStringList& sTextLines) const { return sTextLines.join(QStringLiteral("\r\n")); }

void CornerLikeness::LoadFromGame(const Game& game, int iIndex) {
    m_iCorner = iIndex;
    TakeBack(game);
}

const C_Corner& CornerLikeness::InGame(const Game& game) const {
    return game.corners[CheckedSubscript(m_iCorner, basTAVL::kCorners)];
}

void CornerLikeness::TakeBack(const Game& game) {
    // A corner takes over no more than the lines in use: what was typed behind them would stay and count as
    // a change.
    oCorner = C_Corner();
    oCorner.LoadFromObject(InGame(game));
}

bool CornerLikeness::IsDifferentFromGame(const Game& game) const { return InGame(game).IsDifferentFrom(oCorner); }

Edit CornerLikeness::ChangeOf(const Game& game) const {
    C_Corner corner = InGame(game);
    corner.LoadFromObject(oCorner);
    for (int iLine = oCorner.NLines(kBlock); iLine < TextLines::kMaxLines; ++iLine)
        corner.Let_TextLine(kBlock, iLine, QString());
    return Edits::OfCorner(game, m_iCorner, corner);
}

Edit CornerLikeness::AllFontsOf(const Game& game) const {
    return Edits::OfBoardFont(game, oCorner.Font, Edits::kNoSpace, m_iCorner);
}

Likeness::TextBox CornerLikeness::TextPlace() { return kText; }

QRect CornerLikeness::ImagePlace() { return kImage; }

int CornerLikeness::LineHeight() { return CLng(oCorner.TextSize(kBlock) * kPixelsPerBoard); }

void CornerLikeness::DrawOutline() { basDraw::Draw_Polygon(kOutline); }
