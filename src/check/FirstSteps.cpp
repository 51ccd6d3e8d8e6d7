// SPDX-License-Identifier: MIT
#include "check/FirstSteps.h"

#include "check/GameWords.h"
#include "check/OwnPieces.h"
#include "document/basTAVL.h"
#include "document/GameText.h"

#include <vector>

namespace FirstSteps {
namespace {

struct Piece {
    GamePiece piece;
    bool bBlank;
    bool bOwn;
};
using Pieces = std::vector<Piece>;

Piece Words(GamePiece piece, const QString& sWords, const QSet<QString>& shipped) {
    const bool blank = GameWords::IsBlank(sWords);
    return {piece, blank, !blank && !shipped.contains(sWords)};
}

Pieces Photos(const Game& game, const Shipped& shipped) {
    Pieces pieces;
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (!OwnPieces::IsSpace(i)) continue;
        const QString& path = game.spaces.at(size_t(i)).Image.Ref().sPath;
        const bool came = !shipped.sFolder.isEmpty() && path.startsWith(shipped.sFolder + u'/');
        // A space without a picture is as good as one with.
        pieces.push_back({GamePiece::Space(i), false, !path.isEmpty() && !came});
    }
    return pieces;
}

Pieces PiecesOf(Step step, const Game& game, const Shipped& shipped) {
    Pieces pieces;
    switch (step) {
        case Step::Name:
            return {Words(GamePiece::Titles(), GameWords::OfTitle(game, 1), shipped.titles)};
        case Step::Photos:
            return Photos(game, shipped);
        case Step::Streets:
            for (int i = 0; i < basTAVL::kSpaces; ++i) {
                if (OwnPieces::IsSpace(i))
                    pieces.push_back(Words(GamePiece::Space(i), GameWords::OfSpace(game, i), shipped.streets));
            }
            return pieces;
        case Step::News:
            for (int deck = 0; deck < basTAVL::kNewsSets; ++deck) {
                for (int i = 0; i < basTAVL::kCards; ++i)
                    pieces.push_back(Words(GamePiece::Card(deck, i), GameWords::OfCard(game, deck, i), shipped.news));
            }
            return pieces;
        case Step::Print:
            break;
    }
    return pieces;
}

Progress Of(const Pieces& pieces) {
    Progress progress{.iOwn = 0, .iAll = int(pieces.size()), .bDone = false};
    bool blank = false;
    for (const Piece& piece : pieces) {
        progress.iOwn += piece.bOwn ? 1 : 0;
        blank = blank || piece.bBlank;
    }
    progress.bDone = !blank && progress.iOwn * 2 >= progress.iAll;
    return progress;
}

// The words of a line's record, which stand behind its number.
QString WordsOf(const QString& sLine, bool bNumbered) {
    QString rest = sLine;
    if (bNumbered) basTAVL::GetQuotedField(rest);
    return basTAVL::CRLF2Space(basTAVL::GetQuotedField(rest)).simplified();
}

} // namespace

void Shipped::Add(const QByteArray& game) {
    if (!ReadGameHeader(game).bIsGame) return;
    const QStringList lines = QString::fromUtf8(game).split(u'\n');
    titles.insert(WordsOf(lines.value(GameLines::kTitles), false));
    for (int i = GameLines::kSpaces; i < GameLines::kCorners; ++i)
        streets.insert(WordsOf(lines.value(i), true));
    for (int i = GameLines::kNews; i < GameLines::kMoney; ++i)
        news.insert(WordsOf(lines.value(i), true));
}

std::array<Progress, kSteps> Of(const Game& game, const Shipped& shipped, bool bPrinted) {
    std::array<Progress, kSteps> all;
    for (int i = 0; i < kSteps; ++i) {
        const Step step = Step(i);
        all.at(size_t(i)) =
            step == Step::Print ? Progress{bPrinted ? 1 : 0, 1, bPrinted} : Of(PiecesOf(step, game, shipped));
    }
    return all;
}

std::optional<GamePiece> PieceOf(Step step, const Game& game, const Shipped& shipped) {
    const Pieces pieces = PiecesOf(step, game, shipped);
    if (pieces.empty()) return std::nullopt;
    for (const Piece& piece : pieces) {
        if (!piece.bOwn) return piece.piece;
    }
    return pieces.front().piece;
}

} // namespace FirstSteps
