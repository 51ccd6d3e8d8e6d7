// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/GameWords.h"
#include "check/OwnPieces.h"

#include <QHash>

namespace {

/// Finds words that stood on a piece before.
class WordsSeen {
public:
    explicit WordsSeen(Findings& findings) : m_findings(findings) {}

    void Look(GamePiece piece, const QString& sWords) {
        if (GameWords::IsBlank(sWords)) return;
        const QString folded = sWords.toCaseFolded();
        const auto before = m_seen.constFind(folded);
        if (before == m_seen.constEnd()) {
            m_seen.insert(folded, piece);
            return;
        }
        // The name is the same, so only the number tells which one it is.
        const QString other = before->NameIn(Game());
        m_findings.Add(piece, QStringLiteral("It says the same as %1.").arg(other),
                       QStringLiteral("Leave it so if you like it, or write something else."));
    }

private:
    Findings& m_findings;
    QHash<QString, GamePiece> m_seen;
};

} // namespace

template <>
void RunCheck<class SameWords>(const CheckedGame& game, Findings& findings) {
    WordsSeen places(findings);
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (OwnPieces::IsSpace(i)) places.Look(GamePiece::Space(i), GameWords::OfSpace(game.game, i));
    }
    for (int i = 0; i < basTAVL::kCorners; ++i) {
        if (OwnPieces::IsCorner(i)) places.Look(GamePiece::Corner(i), GameWords::OfCorner(game.game, i));
    }
    WordsSeen cards(findings);
    for (int deck = 0; deck < basTAVL::kNewsSets; ++deck) {
        for (int i = 0; i < basTAVL::kCards; ++i)
            cards.Look(GamePiece::Card(deck, i), GameWords::OfCard(game.game, deck, i));
    }
    WordsSeen tokens(findings);
    for (int i = 0; i < basTAVL::kTokens; ++i) {
        if (game.game.tokens[size_t(i)].Image.FullPath().isEmpty())
            tokens.Look(GamePiece::Token(i), GameWords::OfToken(game.game, i));
    }
}
