// SPDX-License-Identifier: MIT
// Six tokens as figures that fold up and stand, and as round counters.
#include "nokit/Standee.h"

#include "document/basTAVL.h"
#include "nokit/NoKitSheets.h"
#include "nokit/TokenDrawings.h"
#include "pieces/frmBMP.h"
#include "platform/paint/Recording.h"

namespace {

constexpr int kTokens = basTAVL::kTokens;
constexpr double kGap = 0.16;
constexpr double kTop = 0.75;
constexpr double kCounter = frmBMP::kTokenInches;
constexpr double kEdge = 0.05;

// What lies in the middle of a page that is so many inches wide.
double StartOf(const PageCanvas& page, double pieceWidth) {
    return (page.Inches().width() - kTokens * pieceWidth - (kTokens - 1) * kGap) / 2;
}

void Band(PageCanvas& page, const QRectF& box, Color color, bool bSavesInk) {
    if (!bSavesInk) {
        page.Box(box, color);
        return;
    }
    const double inset = kEdge / 2;
    page.Box(box.adjusted(inset, inset, -inset, -inset), Color::None(), color, kEdge);
}

void PaintStandee(PageCanvas& page, int iToken, const QPointF& at, bool bSavesInk) {
    const auto square = TokenDrawings::Square(iToken, Standee::kPicture);
    const Color color = basTAVL::g_oTokens(iToken).BackColor;
    page.Drawing(*square, {square->Whole(), Standee::FrontPicture().translated(at)});
    // Folded over the head, a picture that is mirrored meets its like edge for edge; a text has to be read.
    const bool mirrored = TokenDrawings::ShowsPicture(iToken);
    page.Drawing(*square, {square->Whole(), Standee::BackPicture().translated(at), 2, mirrored});
    Band(page, Standee::FrontBand().translated(at), color, bSavesInk);
    Band(page, Standee::BackBand().translated(at), color, bSavesInk);
    for (const QRectF& foot : {Standee::FrontFoot(), Standee::BackFoot()})
        page.Text(foot.translated(at), QStringLiteral("foot"), {.dblHeight = 0.12, .color = Color::Rgb(128, 128, 128)});
    page.Edges(LineKind::Cut, QPolygonF(QRectF(at, Standee::Size())));
    for (const QLineF& fold : Standee::Folds())
        page.Line(LineKind::Fold, fold.translated(at));
}

void PaintCounter(PageCanvas& page, int iToken, const QRectF& box) {
    const auto round = TokenDrawings::Round(iToken, kCounter);
    page.Drawing(*round, {round->Whole(), box});
    page.CutCircle(box);
}

bool Paint(PageCanvas& page, bool bSavesInk) {
    const double left = StartOf(page, Standee::kWidth);
    const double width = page.Inches().width() - 2 * left;
    page.Text({left, 0.25, width, 0.2}, QStringLiteral("Tokens that stand, and counters that lie"),
              {.dblHeight = 0.2, .bBold = true, .align = TextLook::Align::Left});
    page.Text({left, 0.48, width, 0.15},
              QStringLiteral("Cut out, fold over the head, glue back to back, and fold the feet apart. "
                             "Glue the feet onto a counter to stand firmer."),
              {.dblHeight = 0.13, .align = TextLook::Align::Left});
    for (int token = 0; token < kTokens; ++token)
        PaintStandee(page, token, {left + token * (Standee::kWidth + kGap), kTop}, bSavesInk);
    const double counters = StartOf(page, kCounter);
    for (int row = 0; row < 2; ++row) {
        const double top = kTop + Standee::Size().height() + kGap + row * (kCounter + kGap);
        for (int token = 0; token < kTokens; ++token)
            PaintCounter(page, token, {counters + token * (kCounter + kGap), top, kCounter, kCounter});
    }
    return true;
}

} // namespace

std::vector<QLineF> Standee::Folds() {
    std::vector<QLineF> folds;
    for (const double y : {kFoot, kFoot + kHeight, kFoot + 2 * kHeight})
        folds.emplace_back(0, y, kWidth, y);
    return folds;
}

template <>
std::vector<NoKitPage> PagesOf<class StandeeSheet>(const NoKitChoices& choices) {
    return {{{}, PaperOf(choices), [saves = choices.bSavesInk](PageCanvas& page, QStringList&) {
                 return Paint(page, saves);
             }}};
}
