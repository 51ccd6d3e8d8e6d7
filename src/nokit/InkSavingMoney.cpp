// SPDX-License-Identifier: MIT
#include "nokit/InkSavingMoney.h"

#include "board/basPositRents.h"
#include "document/basTAVL.h"
#include "nokit/KitDrawings.h"
#include "nokit/PageCanvas.h"

namespace {

constexpr double kInset = 0.1;
constexpr double kEdge = 0.08;
constexpr QSizeF kValueSize(0.85, 0.3);

} // namespace

InkSavingMoney::InkSavingMoney(int iMoney, bool bSavesInk) : m_money(iMoney), m_before(basTAVL::g_oMoney(iMoney)) {
    if (!bSavesInk) return;
    C_Money& money = basTAVL::g_oMoney(iMoney);
    // The thumbnail's file has the note's colour round its oval, and other prints find it again.
    money.FaceImage.GetThumbnail(false);
    money.BackColor = Color::White();
    money.BackImage.Let_FullPath(QString());
}

InkSavingMoney::~InkSavingMoney() { basTAVL::g_oMoney(m_money).LoadFromObject(m_before); }

void InkSavingMoney::Edge(PageCanvas& page, const QRectF& note) const {
    const QRectF edge = note.adjusted(kInset, kInset, -kInset, -kInset);
    page.Box(edge, Color::None(), m_before.BackColor, kEdge);
    const QRectF inside = edge.adjusted(kEdge, kEdge, -kEdge, -kEdge);
    const QString value = basPosit::FormatCost(MoneySheets()[size_t(m_money)].iValue);
    QRectF place(inside.topLeft(), kValueSize);
    page.Text(place, value, {.dblHeight = 0.28, .bBold = true, .align = TextLook::Align::Left});
    place.moveBottomRight(inside.bottomRight());
    page.Text(place, value, {.dblHeight = 0.28, .bBold = true, .align = TextLook::Align::Right});
}
