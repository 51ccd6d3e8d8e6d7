// SPDX-License-Identifier: MIT
#include "check/PieceSheets.h"

#include "kit/Sheets.h"
#include "services/BoardFacts.h"

namespace PieceSheets {
namespace {

constexpr const char* kMoney[] = {"money100", "money500", "money1000", "money5000"};

bool IsOnFirstHalf(int iSpace) { return iSpace < BoardFacts::kSpaces / 2; }

QStringList Word(const char* sSheet) { return {QString::fromLatin1(sSheet)}; }

QStringList All() {
    QStringList all;
    for (const Sheet& sheet : Sheets())
        all += Word(sheet.sName);
    return all;
}

} // namespace

QStringList Of(const GamePiece& piece) {
    switch (piece.kind) {
        case GamePiece::Kind::Titles:
            return OfBoxLabels() + OfBoardLabels();
        case GamePiece::Kind::Space:
            return OfSticker(piece) + OfDeed(piece.iNumber);
        case GamePiece::Kind::Corner:
            return OfSticker(piece);
        case GamePiece::Kind::Deck:
        case GamePiece::Kind::Card:
            return Word(piece.iDeck == 0 ? "good" : "bad");
        case GamePiece::Kind::Money:
            return Word(kMoney[piece.iNumber]);
        case GamePiece::Kind::Token:
            return OfBoxLabels();
        default:
            return All();
    }
}

QStringList OfSticker(const GamePiece& piece) {
    const bool west = piece.kind == GamePiece::Kind::Corner || IsOnFirstHalf(piece.iNumber);
    return Word(west ? "west" : "east");
}

QStringList OfDeed(int iSpace) { return Word(IsOnFirstHalf(iSpace) ? "deeds1" : "deeds2"); }

QStringList OfBoxLabels() { return Word("box"); }

QStringList OfBoardLabels() { return Word("east"); }

} // namespace PieceSheets
