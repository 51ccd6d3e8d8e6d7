// SPDX-License-Identifier: MIT
// Deeds, news cards, money and rules: drawn as on the sheets of the boxed kit, with lines where they are cut.
#include "kit/DeedCards.h"
#include "kit/MoneySheet.h"
#include "kit/NewsSheet.h"
#include "nokit/InkSavingMoney.h"
#include "nokit/KitDrawings.h"
#include "nokit/NoKitSheets.h"
#include "nokit/PageCanvas.h"
#include "platform/paint/Recording.h"
#include "platform/paint/RecordingForm.h"

#include <algorithm>

namespace {

// Its cards in the middle of the page.
QPointF OriginOf(const PageCanvas& page, const CardGrid& grid) { return page.Whole().center() - grid.Box().center(); }

bool PaintCards(PageCanvas& page, const char* sSheet, const CardGrid& grid, QStringList& lacking) {
    const KitDrawing drawing = DrawingOfKitSheet(sSheet, lacking);
    if (!drawing) return false;
    const QPointF origin = OriginOf(page, grid);
    // What else stands on the sheet of the kit is for the kit.
    const QRectF cards = grid.Box();
    constexpr double kDpi = RecordingPage::kDotsPerInch;
    page.Drawing(*drawing, {QRectF(cards.topLeft() * kDpi, cards.size() * kDpi), cards.translated(origin)});
    page.CutGrid(cards.translated(origin), grid.iColumns, grid.iRows);
    return true;
}

NoKitPage CardPage(const NoKitChoices& choices, const char* sSheet, const char* sName, CardGrid (*grid)()) {
    return {QString::fromLatin1(sName), PaperOf(choices), [sSheet, grid](PageCanvas& page, QStringList& lacking) {
                return PaintCards(page, sSheet, grid(), lacking);
            }};
}

bool PaintMoney(PageCanvas& page, int iMoney, bool bSavesInk, QStringList& lacking) {
    const InkSavingMoney saving(iMoney, bSavesInk);
    if (!PaintCards(page, MoneySheets()[size_t(iMoney)].sSheet, MoneyGrid(), lacking)) return false;
    const CardGrid grid = MoneyGrid();
    for (int note = 0; bSavesInk && note < kNotesOnSheet; ++note)
        saving.Edge(page, grid.CardBox(note).translated(OriginOf(page, grid)));
    return true;
}

bool PaintRules(PageCanvas& page, QStringList& lacking) {
    const KitDrawing drawing = DrawingOfKitSheet("rules", lacking);
    if (!drawing) return false;
    const double fits = std::min(
        {1.0, page.Inches().width() / KitPageInches().width(), page.Inches().height() / KitPageInches().height()});
    QRectF target(QPointF(0, 0), KitPageInches() * fits);
    target.moveCenter(page.Whole().center());
    page.Drawing(*drawing, {drawing->Whole(), target});
    return true;
}

} // namespace

template <>
std::vector<NoKitPage> PagesOf<class DeedsOnCard>(const NoKitChoices& choices) {
    return {CardPage(choices, "deeds1", "1", DeedGrid), CardPage(choices, "deeds2", "2", DeedGrid)};
}

template <>
std::vector<NoKitPage> PagesOf<class NewsOnCard>(const NoKitChoices& choices) {
    return {CardPage(choices, "good", "Good", NewsGrid), CardPage(choices, "bad", "Bad", NewsGrid)};
}

template <>
std::vector<NoKitPage> PagesOf<class MoneyOnPaper>(const NoKitChoices& choices) {
    std::vector<NoKitPage> pages;
    for (int i = 0; i < int(MoneySheets().size()); ++i) {
        const auto paint = [i, saves = choices.bSavesInk](PageCanvas& page, QStringList& lacking) {
            return PaintMoney(page, i, saves, lacking);
        };
        const MoneyKind& money = MoneySheets()[size_t(i)];
        pages.push_back({QString::number(money.iValue), PaperOf(choices), paint, money.SheetsFor(choices.nPlayers)});
    }
    return pages;
}

template <>
std::vector<NoKitPage> PagesOf<class RulesOnPaper>(const NoKitChoices& choices) {
    return {{{}, PaperOf(choices), [](PageCanvas& page, QStringList& lacking) { return PaintRules(page, lacking); }}};
}
