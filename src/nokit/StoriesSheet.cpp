// SPDX-License-Identifier: MIT
// Building stories: small tents in the colours of the groups, five of each.
#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "nokit/NoKitSheets.h"
#include "nokit/PageCanvas.h"

namespace {

constexpr int kOfAGroup = 5;
constexpr double kWidth = 0.62;
constexpr double kHeight = 1.3; // both sides of the tent
constexpr double kGap = 0.24;
constexpr double kTop = 0.8;
constexpr double kEdge = 0.06;

void PaintRoof(PageCanvas& page, const QRectF& side, Color color, int iQuarterTurns, bool bSavesInk) {
    if (bSavesInk) {
        const double inset = kEdge / 2;
        page.Box(side.adjusted(inset, inset, -inset, -inset), Color::None(), color, kEdge);
    } else {
        page.Box(side, color);
    }
    // A house, so that it is known for what it is in any colour.
    const QPointF middle = side.center();
    const double up = iQuarterTurns == 0 ? -1 : 1;
    const QPolygonF house = {{middle + QPointF(-0.16, -0.16 * up), middle + QPointF(-0.16, 0),
                              middle + QPointF(0, 0.16 * up), middle + QPointF(0.16, 0),
                              middle + QPointF(0.16, -0.16 * up)}};
    page.Shape(house, Color::White(), Color::Black(), 0.01);
}

bool Paint(PageCanvas& page, bool bSavesInk) {
    const int groups = basPosit::kPropColors;
    const double left = (page.Inches().width() - groups * kWidth - (groups - 1) * kGap) / 2;
    page.Text({left, 0.25, 6, 0.2}, QStringLiteral("Building stories"),
              {.dblHeight = 0.2, .bBold = true, .align = TextLook::Align::Left});
    page.Text({left, 0.5, 6.5, 0.15},
              QStringLiteral("Cut out and fold: a tent on a space is one story. Five for each color of the board."),
              {.dblHeight = 0.13, .align = TextLook::Align::Left});
    for (int group = 0; group < groups; ++group) {
        for (int i = 0; i < kOfAGroup; ++i) {
            const QRectF tab(left + group * (kWidth + kGap), kTop + i * (kHeight + kGap), kWidth, kHeight);
            const QRectF upper(tab.topLeft(), QSizeF(kWidth, kHeight / 2));
            PaintRoof(page, upper, basPosit::m_lPropColor(group), 2, bSavesInk);
            PaintRoof(page, upper.translated(0, kHeight / 2), basPosit::m_lPropColor(group), 0, bSavesInk);
            page.Edges(LineKind::Cut, QPolygonF(tab));
            page.Line(LineKind::Fold, {upper.bottomLeft(), upper.bottomRight()});
        }
    }
    return true;
}

} // namespace

template <>
std::vector<NoKitPage> PagesOf<class StoriesSheet>(const NoKitChoices& choices) {
    return {{{}, PaperOf(choices), [saves = choices.bSavesInk](PageCanvas& page, QStringList&) {
                 return Paint(page, saves);
             }}};
}
