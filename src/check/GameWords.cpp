// SPDX-License-Identifier: MIT
#include "check/GameWords.h"

#include "document/basTAVL.h"
#include "document/RecordFields.h"

namespace GameWords {
namespace {

QString OneLine(const QString& sText) { return basTAVL::CRLF2Space(sText).simplified(); }

} // namespace

QString OfSpace(const Game& game, int iSpace) { return OneLine(game.spaces.at(size_t(iSpace)).TextAll()); }
QString OfCorner(const Game& game, int iCorner) { return OneLine(game.corners.at(size_t(iCorner)).TextAll(0)); }
QString OfCard(const Game& game, int iDeck, int iCard) {
    return OneLine(game.news.at(size_t(iDeck)).at(size_t(iCard)).Text());
}
QString OfToken(const Game& game, int iToken) { return OneLine(game.tokens.at(size_t(iToken)).TextAll()); }
QString OfTitle(const Game& game, int iTitle) { return OneLine(game.titles.Text(iTitle).sText); }

bool IsBlank(const QString& sText) { return sText.trimmed().isEmpty() || sText == kNotFilledIn; }

} // namespace GameWords
