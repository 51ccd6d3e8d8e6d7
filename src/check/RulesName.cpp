// SPDX-License-Identifier: MIT
// The rules speak of the corners and the news spaces by their names, and the game by its title.
#include "check/Checks.h"
#include "check/GameWords.h"
#include "check/OwnPieces.h"

using GameWords::IsBlank;

namespace {

constexpr int kTitle = 1;

void Look(const CheckedGame& game, Findings& findings, GamePiece piece, const QString& sWords, const QString& sText) {
    if (!IsBlank(sWords)) return;
    findings
        .Add(piece, game.IsBegun() ? Severity::Should : Severity::Hint, sText,
             QStringLiteral("Give it a name of a word or two."))
        .sheets.append(QStringLiteral("rules"));
}

} // namespace

template <>
void RunCheck<class RulesName>(const CheckedGame& game, Findings& findings) {
    Look(game, findings, GamePiece::Titles(), GameWords::OfTitle(game.game, kTitle),
         QStringLiteral("The game has no title, which the box and the rules should bear."));
    for (int i = 0; i < basTAVL::kCorners; ++i) {
        if (OwnPieces::IsCorner(i))
            Look(game, findings, GamePiece::Corner(i), GameWords::OfCorner(game.game, i),
                 QStringLiteral("The corner has no name, so the rules will speak of it with a gap."));
    }
    for (int deck = 0; deck < basTAVL::kNewsSets; ++deck)
        Look(game, findings, GamePiece::Deck(deck), GameWords::OfTitle(game.game, Titles::kLast - 1 + deck),
             QStringLiteral("The deck has no title, so all its cards have an empty head."));
}
