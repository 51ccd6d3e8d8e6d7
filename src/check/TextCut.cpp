// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/OwnPieces.h"
#include "document/TextLines.h"

#include <algorithm>

namespace {

// The editors take no more letters into a line than a game keeps of the last one.
bool IsFull(const QString& sLine) { return sLine.size() == TextLines::kMaxLastLine; }

void Look(Findings& findings, GamePiece piece, const QStringList& lines) {
    const auto full = std::ranges::find_if(lines, IsFull);
    if (full == lines.end()) return;
    constexpr int kLettersTold = 12;
    findings.Add(piece,
                 QStringLiteral("A line ends in \"...%1\" because it is full: has something been cut off?")
                     .arg(full->right(kLettersTold)),
                 QStringLiteral("A line holds %1 letters. Start a new one with Enter.").arg(TextLines::kMaxLastLine));
}

} // namespace

template <>
void RunCheck<class TextCut>(const CheckedGame& game, Findings& findings) {
    for (int title = 1; title <= 2; ++title)
        Look(findings, GamePiece::Titles(), game.game.titles.Text(title).Lines());
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (OwnPieces::IsSpace(i)) Look(findings, GamePiece::Space(i), game.game.spaces[size_t(i)].TextArray());
    }
    for (int i = 0; i < basTAVL::kCorners; ++i) {
        if (OwnPieces::IsCorner(i)) Look(findings, GamePiece::Corner(i), game.game.corners[size_t(i)].TextArray(0));
    }
    for (int i = 0; i < basTAVL::kTokens; ++i)
        Look(findings, GamePiece::Token(i), game.game.tokens[size_t(i)].TextArray());
}
