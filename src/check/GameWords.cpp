// SPDX-License-Identifier: MIT
#include "check/GameWords.h"

#include "document/basTAVL.h"
#include "document/RecordFields.h"
#include "platform/text/TextColumns.h"

namespace GameWords {
namespace {

constexpr int kReadable = 1000;
constexpr int kMostTyped = TextLines::kMaxLines * TextLines::kMaxLastLine;

// Hands on what is left of a text that is longer; all others stay as they are.
template <typename Take>
void Shorten(const QString& sText, const Take& take) {
    if (sText.size() > kReadable) take(TextColumns::LeftCharacters(sText, kReadable));
}

QString OneLine(const QString& sText) { return basTAVL::CRLF2Space(sText).simplified(); }

} // namespace

QString OfSpace(const Game& game, int iSpace) { return OneLine(game.spaces.at(size_t(iSpace)).TextAll()); }
QString OfCorner(const Game& game, int iCorner) { return OneLine(game.corners.at(size_t(iCorner)).TextAll(0)); }
QString OfCard(const Game& game, int iDeck, int iCard) {
    return OneLine(game.news.at(size_t(iDeck)).at(size_t(iCard)).Text());
}
QString OfToken(const Game& game, int iToken) { return OneLine(game.tokens.at(size_t(iToken)).TextAll()); }
QString OfTitle(const Game& game, int iTitle) { return OneLine(game.titles.Text(iTitle).sText); }

Game OfReadableLength(const Game& game) {
    Game result = game;
    for (C_Space& space : result.spaces)
        Shorten(space.TextAll(), [&](const QString& sText) { space.Let_TextAll(sText); });
    for (C_Corner& corner : result.corners) {
        for (int block = 0; block < C_Corner::kBlocks; ++block)
            Shorten(corner.TextAll(block), [&](const QString& sText) { corner.Let_TextAll(block, sText); });
    }
    for (auto& deck : result.news) {
        for (C_News& card : deck)
            Shorten(card.Text(), [&](const QString& sText) { card.Let_Text(sText); });
    }
    for (C_Money& note : result.money) {
        for (int text = 0; text < C_Money::kTexts; ++text)
            Shorten(note.Text(text), [&](const QString& sText) { note.Let_Text(text, sText); });
    }
    for (C_Token& token : result.tokens)
        Shorten(token.TextAll(), [&](const QString& sText) { token.Let_TextAll(sText); });
    for (int title = Titles::kFirst; title <= Titles::kLast; ++title) {
        SpecialText& text = result.titles.Text(title);
        Shorten(text.sText, [&](const QString& sText) { text.SetText(sText); });
    }
    return result;
}

QString Shortened(const QString& sText) {
    if (sText.size() <= kMostTyped) return sText;
    return TextColumns::LeftCharacters(sText, kMostTyped) + QStringLiteral("...");
}

bool IsBlank(const QString& sText) { return sText.trimmed().isEmpty() || sText == kNotFilledIn; }

} // namespace GameWords
