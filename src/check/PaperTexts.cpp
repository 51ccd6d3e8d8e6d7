// SPDX-License-Identifier: MIT
#include "check/PaperTexts.h"

#include "check/OwnPieces.h"
#include "check/PieceSheets.h"
#include "document/Game.h"
#include "drawing/DrawingAside.h"
#include "kit/BoardSheet.h"
#include "kit/BoxSheet.h"
#include "kit/DeedCards.h"
#include "kit/NewsSheet.h"
#include "pieces/frmBMP.h"

namespace {

class TextList {
public:
    explicit TextList(std::vector<PaperText>& texts) : m_texts(texts) {}

    void Add(GamePiece piece, const QString& sWhere, const QStringList& sheets, const PrintedText& printed) {
        m_texts.push_back({piece, sWhere, WrittenTextsOf(*printed.recording, printed.inches), printed.inches, sheets,
                           piece.kind == GamePiece::Kind::Token});
    }
    /// On all sheets of its piece.
    void Add(GamePiece piece, const QString& sWhere, const PrintedText& printed) {
        Add(piece, sWhere, PieceSheets::Of(piece), printed);
    }

private:
    std::vector<PaperText>& m_texts;
};

void AddLabels(TextList& list, const std::vector<LabelSheet::TitleLabel>& labels, const QStringList& sheets,
               const Titles& titles) {
    for (const LabelSheet::TitleLabel& label : labels) {
        if (titles.Text(TitlePictures::RecordOf(label.picture)).sText.trimmed().isEmpty()) continue;
        PrintedText printed = TitlePictures::Record(label.picture, titles);
        printed.inches = label.inches;
        list.Add(GamePiece::Titles(), QStringLiteral("on the label \"%1\"").arg(QLatin1String(label.sLegend)), sheets,
                 printed);
    }
}

void AddTitles(TextList& list, const Game& game, int iPart) {
    if (!HasLabelSheets(game.kit)) return;
    if (iPart == 0) {
        AddLabels(list, TitleLabelsOfBoard(), PieceSheets::OfBoardLabels(), game.titles);
    } else {
        AddLabels(list, TitleLabelsOfBox(), PieceSheets::OfBoxLabels(), game.titles);
    }
}

void AddSpace(TextList& list, const Game& game, int iSpace) {
    if (!OwnPieces::IsSpace(iSpace)) return;
    const C_Space& space = game.spaces[size_t(iSpace)];
    const GamePiece piece = GamePiece::Space(iSpace);
    if (HasLabelSheets(game.kit))
        list.Add(piece, QStringLiteral("on its sticker"), PieceSheets::OfSticker(piece),
                 frmBMP::RecordSpaceText(space));
    if (HasDeedSheets(game.kit))
        list.Add(piece, QStringLiteral("on its deed"), PieceSheets::OfDeed(iSpace), DeedTitleOnPaper(iSpace, space));
}

void AddCorner(TextList& list, const Game& game, int iCorner) {
    if (!HasLabelSheets(game.kit) || !OwnPieces::IsCorner(iCorner)) return;
    list.Add(GamePiece::Corner(iCorner), QStringLiteral("on its sticker"),
             frmBMP::RecordCornerText(game.corners[size_t(iCorner)]));
}

// Ahead of the first card the head that all of its deck bear.
void AddCard(TextList& list, const Game& game, int iPart) {
    const int deck = iPart / basTAVL::kCards;
    const int card = iPart % basTAVL::kCards;
    const QString& head = game.titles.Text(Titles::kLast - 1 + deck).sText;
    const auto& cards = game.news[size_t(deck)];
    if (card == 0 && !head.trimmed().isEmpty())
        list.Add(GamePiece::Deck(deck), QStringLiteral("on its cards"), NewsHeadOnPaper(head, cards.front().FontHead));
    list.Add(GamePiece::Card(deck, card), QString(), NewsTextOnPaper(cards[size_t(card)]));
}

void AddMoney(TextList& list, const Game& game, int iMoney) {
    list.Add(GamePiece::Money(iMoney), QString(), frmBMP::RecordMoneyText(game.money[size_t(iMoney)]));
}

void AddToken(TextList& list, const Game& game, int iToken) {
    const C_Token& token = game.tokens[size_t(iToken)];
    if (HasLabelSheets(game.kit) && token.Image.FullPath().isEmpty())
        list.Add(GamePiece::Token(iToken), QString(), frmBMP::RecordTokenText(token));
}

struct Parts {
    GamePiece::Kind kind;
    int count;
    void (*add)(TextList& list, const Game& game, int iPart);
};
constexpr Parts kParts[] = {{GamePiece::Kind::Titles, 2, AddTitles},
                            {GamePiece::Kind::Space, basTAVL::kSpaces, AddSpace},
                            {GamePiece::Kind::Corner, basTAVL::kCorners, AddCorner},
                            {GamePiece::Kind::Card, basTAVL::kNewsSets* basTAVL::kCards, AddCard},
                            {GamePiece::Kind::Money, basTAVL::kMoney, AddMoney},
                            {GamePiece::Kind::Token, basTAVL::kTokens, AddToken}};

} // namespace

bool AddPaperTexts(const Game& game, int iPart, std::vector<PaperText>& texts) {
    for (const Parts& parts : kParts) {
        if (iPart < parts.count) {
            TextList list(texts);
            parts.add(list, game, iPart);
            return true;
        }
        iPart -= parts.count;
    }
    return false;
}

std::vector<PaperText> PaperTextsOf(const Game& game, const GamePiece& piece) {
    // Whoever asks may be in the middle of measuring.
    const DrawingAside aside;
    std::vector<PaperText> texts;
    TextList list(texts);
    // The head of a deck comes with its first card.
    const GamePiece::Kind kind = piece.kind == GamePiece::Kind::Deck ? GamePiece::Kind::Card : piece.kind;
    for (const Parts& parts : kParts) {
        if (parts.kind == kind) parts.add(list, game, piece.iDeck * basTAVL::kCards + piece.iNumber);
    }
    std::erase_if(texts, [&](const PaperText& text) { return !(text.piece == piece); });
    return texts;
}
