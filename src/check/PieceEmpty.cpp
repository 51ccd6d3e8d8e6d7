// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/GameWords.h"
#include "check/OwnPieces.h"

using GameWords::IsBlank;

namespace {

/// Tells of empty pieces, one by one where a game has grown, and all at once where it is hardly begun.
class EmptyPieces {
public:
    void Look(GamePiece piece, const QString& sWords, const QString& sPicture) {
        if (IsBlank(sWords) && sPicture.isEmpty()) m_empty.push_back(piece);
    }
    void Tell(Findings& findings) const {
        for (const GamePiece& piece : m_empty) {
            const bool card = piece.kind == GamePiece::Kind::Card;
            findings.Add(piece,
                         card ? QStringLiteral("Nothing is written on it yet.")
                              : QStringLiteral("It has neither words nor a picture yet."),
                         card ? QStringLiteral("Write what happens to whoever draws it.")
                              : QStringLiteral("Click it and give it a name."));
        }
    }
    void TellAtOnce(Findings& findings) const {
        if (m_empty.empty()) return;
        findings.Add(GamePiece::Whole(), Severity::Hint,
                     QStringLiteral("%1 pieces have neither words nor a picture yet.").arg(m_empty.size()),
                     QStringLiteral("Click them on the board, one after the other."));
    }

private:
    std::vector<GamePiece> m_empty;
};

} // namespace

template <>
void RunCheck<class PieceEmpty>(const CheckedGame& game, Findings& findings) {
    EmptyPieces empty;
    const Game& g = game.game;
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (OwnPieces::IsSpace(i))
            empty.Look(GamePiece::Space(i), GameWords::OfSpace(g, i), g.spaces[size_t(i)].Image.FullPath());
    }
    for (int deck = 0; deck < basTAVL::kNewsSets; ++deck) {
        for (int i = 0; i < basTAVL::kCards; ++i)
            empty.Look(GamePiece::Card(deck, i), GameWords::OfCard(g, deck, i), {});
    }
    for (int i = 0; i < basTAVL::kMoney; ++i) {
        const C_Money& note = g.money[size_t(i)];
        empty.Look(GamePiece::Money(i), (note.Text(0) + note.Text(1)).simplified(), note.FaceImage.FullPath());
    }
    for (int i = 0; i < basTAVL::kTokens; ++i)
        empty.Look(GamePiece::Token(i), GameWords::OfToken(g, i), g.tokens[size_t(i)].Image.FullPath());
    if (game.IsBegun()) {
        empty.Tell(findings);
    } else {
        empty.TellAtOnce(findings);
    }
}
