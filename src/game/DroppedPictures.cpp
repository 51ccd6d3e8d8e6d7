// SPDX-License-Identifier: MIT
#include "game/DroppedPictures.h"

#include "services/BoardFacts.h"

#include <vector>

namespace DroppedPictures {
namespace {

using Kind = PictureOwner::Kind;

int CountOf(Kind kind) {
    switch (kind) {
        case Kind::Space:
            return basTAVL::kSpaces;
        case Kind::Corner:
            return basTAVL::kCorners;
        case Kind::Money:
            return basTAVL::kMoney;
        case Kind::Token:
            return basTAVL::kTokens;
        default:
            return 0;
    }
}

const C_Image& ImageOf(const Game& game, const PictureOwner& piece) {
    const size_t slot = size_t(piece.iNumber);
    switch (piece.kind) {
        case Kind::Space:
            return game.spaces[slot].Image;
        case Kind::Corner:
            return game.corners[slot].Image;
        case Kind::Money:
            return game.money[slot].FaceImage;
        default:
            return game.tokens[slot].Image;
    }
}

void GivePicture(Game& game, const PictureOwner& piece, const QString& sFile) {
    constexpr int kBlock = 0;
    const size_t slot = size_t(piece.iNumber);
    switch (piece.kind) {
        case Kind::Space:
            game.spaces[slot].SetImagePath(sFile);
            break;
        case Kind::Corner:
            game.corners[slot].Image.Let_FullPath(sFile);
            // The words make room for it.
            game.corners[slot].SetText(kBlock, TextLines::kUseExisting);
            break;
        case Kind::Money:
            game.money[slot].FaceImage.Let_FullPath(sFile);
            break;
        default:
            game.tokens[slot].SetImagePath(sFile);
    }
}

// The pieces that further pictures go onto, in their order.
std::vector<PictureOwner> FreeBehind(const Game& game, const PictureOwner& piece) {
    const bool board = piece.IsOnBoard();
    const Kind kind = board ? Kind::Space : piece.kind;
    // Behind a corner comes the first space of its side.
    const int first = piece.kind == Kind::Corner ? piece.iNumber * BoardFacts::kSpacesPerSide : piece.iNumber + 1;
    std::vector<PictureOwner> free;
    for (int i = 0; i < CountOf(kind); ++i) {
        const PictureOwner next{kind, qint16((first + i) % CountOf(kind))};
        if (next != piece && Takes(next) && ImageOf(game, next).FullPath().isEmpty()) free.push_back(next);
    }
    return free;
}

QString NameOf(const Game& before, const Game& after, const PictureOwner& piece) {
    const int i = piece.iNumber;
    switch (piece.kind) {
        case Kind::Space:
            return Edits::OfSpace(before, i, after.spaces[size_t(i)]).sName;
        case Kind::Corner:
            return Edits::OfCorner(before, i, after.corners[size_t(i)]).sName;
        case Kind::Money:
            return Edits::OfMoney(before, after.money).sName;
        default:
            return Edits::OfToken(before, i, after.tokens[size_t(i)]).sName;
    }
}

} // namespace

bool Takes(const PictureOwner& piece) {
    if (piece.iNumber < 0 || piece.iNumber >= CountOf(piece.kind) || piece.IsFate()) return false;
    return piece.kind != Kind::Space || !(BoardFacts::IsLotto(piece.iNumber) || BoardFacts::IsNews(piece.iNumber));
}

Outcome Onto(const Game& game, const QStringList& files, const PictureOwner& piece, const Refusal& whyNot) {
    Outcome outcome;
    if (!Takes(piece)) {
        outcome.sTold = QStringLiteral("This place shows a picture of its own.");
        return outcome;
    }
    QStringList told;
    std::vector<PictureOwner> places = FreeBehind(game, piece);
    places.insert(places.begin(), piece);
    Game after = game;
    size_t taken = 0;
    int tooMany = 0;
    for (const QString& file : files) {
        if (const QString why = whyNot(file); !why.isEmpty()) {
            told.append(why);
        } else if (taken == places.size()) {
            ++tooMany;
        } else {
            GivePicture(after, places[taken++], file);
        }
    }
    if (tooMany == 1) told.append(QStringLiteral("One picture found no free place."));
    if (tooMany > 1) told.append(QStringLiteral("%1 pictures found no free place.").arg(tooMany));
    outcome.sTold = told.join(QStringLiteral("\r\n"));
    if (taken == 0) return outcome;
    const QString name = taken == 1 ? NameOf(game, after, piece) : QStringLiteral("%1 Pictures").arg(taken);
    outcome.edit = Edit{name, std::move(after)};
    return outcome;
}

} // namespace DroppedPictures
