// SPDX-License-Identifier: MIT
#include "check/PaperTexts.h"

#include "check/OwnPieces.h"
#include "document/Game.h"
#include "kit/BoardSheet.h"
#include "kit/BoxSheet.h"
#include "kit/DeedCards.h"
#include "kit/NewsSheet.h"
#include "pieces/frmBMP.h"

namespace {

class TextList {
public:
    void Add(GamePiece piece, const QString& sWhere, const PrintedText& printed, bool bRound = false) {
        m_texts.push_back({piece, sWhere, WrittenTextsOf(*printed.recording, printed.inches), printed.inches, bRound});
    }
    std::vector<PaperText> Take() { return std::move(m_texts); }

private:
    std::vector<PaperText> m_texts;
};

void AddTitles(TextList& list, const std::vector<LabelSheet::TitleLabel>& labels, const Titles& titles) {
    for (const LabelSheet::TitleLabel& label : labels) {
        if (titles.Text(TitlePictures::RecordOf(label.picture)).sText.trimmed().isEmpty()) continue;
        PrintedText printed = TitlePictures::Record(label.picture, titles);
        printed.inches = label.inches;
        list.Add(GamePiece::Titles(), QStringLiteral("on the label \"%1\"").arg(QLatin1String(label.sLegend)), printed);
    }
}

void AddSpacesAndCorners(TextList& list, const Game& game) {
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (!OwnPieces::IsSpace(i)) continue;
        const C_Space& space = game.spaces[size_t(i)];
        if (HasLabelSheets(game.kit))
            list.Add(GamePiece::Space(i), QStringLiteral("on its sticker"), frmBMP::RecordSpaceText(space));
        if (HasDeedSheets(game.kit))
            list.Add(GamePiece::Space(i), QStringLiteral("on its deed"), DeedTitleOnPaper(i, space));
    }
    for (int i = 0; i < basTAVL::kCorners && HasLabelSheets(game.kit); ++i) {
        if (OwnPieces::IsCorner(i))
            list.Add(GamePiece::Corner(i), QStringLiteral("on its sticker"),
                     frmBMP::RecordCornerText(game.corners[size_t(i)]));
    }
}

void AddCards(TextList& list, const Game& game) {
    for (int deck = 0; deck < basTAVL::kNewsSets; ++deck) {
        const QString& head = game.titles.Text(Titles::kLast - 1 + deck).sText;
        const auto& cards = game.news[size_t(deck)];
        if (!head.trimmed().isEmpty())
            list.Add(GamePiece::Deck(deck), QStringLiteral("on its cards"),
                     NewsHeadOnPaper(head, cards.front().FontHead));
        for (int i = 0; i < basTAVL::kCards; ++i)
            list.Add(GamePiece::Card(deck, i), QString(), NewsTextOnPaper(cards[size_t(i)]));
    }
}

void AddMoneyAndTokens(TextList& list, const Game& game) {
    for (int i = 0; i < basTAVL::kMoney; ++i)
        list.Add(GamePiece::Money(i), QString(), frmBMP::RecordMoneyText(game.money[size_t(i)]));
    for (int i = 0; i < basTAVL::kTokens && HasLabelSheets(game.kit); ++i) {
        if (game.tokens[size_t(i)].Image.FullPath().isEmpty())
            list.Add(GamePiece::Token(i), QString(), frmBMP::RecordTokenText(game.tokens[size_t(i)]), true);
    }
}

} // namespace

std::vector<PaperText> PaperTextsOf(const Game& game) {
    TextList list;
    if (HasLabelSheets(game.kit)) {
        AddTitles(list, TitleLabelsOfBoard(), game.titles);
        AddTitles(list, TitleLabelsOfBox(), game.titles);
    }
    AddSpacesAndCorners(list, game);
    AddCards(list, game);
    AddMoneyAndTokens(list, game);
    return list.Take();
}
