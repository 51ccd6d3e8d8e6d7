// SPDX-License-Identifier: MIT
#include "windows/editors/CornerLikeness.h"

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/text/Numbers.h"
#include "windows/editors/GameFonts.h"

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

void CornerLikeness::LoadFromGame(int iIndex) {
    m_iCorner = iIndex;
    TakeBack();
}

void CornerLikeness::TakeBack() {
    // A corner takes over no more than the lines in use: what was typed behind them would stay and count as
    // a change.
    oCorner = C_Corner();
    oCorner.LoadFromObject(basTAVL::g_oCorners(m_iCorner));
}

void CornerLikeness::StoreInGame() {
    C_Corner& original = basTAVL::g_oCorners(m_iCorner);
    original.LoadFromObject(oCorner);
    for (int iLine = oCorner.NLines(kBlock); iLine < TextLines::kMaxLines; ++iLine)
        original.Let_TextLine(kBlock, iLine, QString());
}

bool CornerLikeness::IsDifferentFromGame() const { return basTAVL::g_oCorners(m_iCorner).IsDifferentFrom(oCorner); }

void CornerLikeness::SetAllFonts() { GameFonts::GiveToAllBut(oCorner.Font, GameFonts::kNoSpace, m_iCorner); }

Likeness::TextBox CornerLikeness::TextPlace() { return kText; }

QRect CornerLikeness::ImagePlace() { return kImage; }

int CornerLikeness::LineHeight() { return CLng(oCorner.TextSize(kBlock) * kPixelsPerBoard); }

void CornerLikeness::DrawOutline() { basDraw::Draw_Polygon(kOutline); }
