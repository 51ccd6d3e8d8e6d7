// SPDX-License-Identifier: MIT
#include "game/DroppedPictures.h"

#include "game/PieceImages.h"
#include "pictures/PicturePart.h"
#include "services/BoardFacts.h"

#include <vector>

namespace DroppedPictures {
namespace {

using Kind = PictureOwner::Kind;

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

Outcome OntoPlaces(const Game& game, const QStringList& files, const std::vector<PictureOwner>& places,
                   const Refusal& whyNot) {
    Outcome outcome;
    QStringList told;
    Game after = game;
    size_t taken = 0;
    int tooMany = 0;
    for (const QString& file : files) {
        if (const QString why = whyNot(file); !why.isEmpty()) {
            // That the disk is full is said once.
            if (!told.contains(why)) told.append(why);
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
    const QString name = taken == 1 ? NameOf(game, after, places.front()) : QStringLiteral("%1 Pictures").arg(taken);
    outcome.edit = Edit{name, std::move(after)};
    return outcome;
}

} // namespace

bool Takes(const PictureOwner& piece) {
    if (piece.iNumber < 0 || piece.iNumber >= PieceImages::CountOf(piece.kind) || piece.IsFate()) return false;
    return piece.kind != Kind::Space || !(BoardFacts::IsLotto(piece.iNumber) || BoardFacts::IsNews(piece.iNumber));
}

void GivePicture(Game& game, const PictureOwner& piece, const QString& sFile) {
    constexpr int kBlock = 0;
    const size_t slot = size_t(piece.iNumber);
    C_Image& image = PieceImages::Of(game, piece);
    const PictureRef before = image.Ref();
    switch (piece.kind) {
        case Kind::Space:
            game.spaces[slot].SetImagePath(sFile);
            break;
        case Kind::Corner:
            image.Let_FullPath(sFile);
            // The words make room for it.
            game.corners[slot].SetText(kBlock, TextLines::kUseExisting);
            break;
        case Kind::Money:
            image.Let_FullPath(sFile);
            break;
        default:
            game.tokens[slot].SetImagePath(sFile);
    }
    ShowPart(image, PartAtFirst(before, sFile));
}

std::vector<PictureOwner> FreeBehind(const Game& game, const PictureOwner& piece) {
    const bool board = piece.IsOnBoard();
    const Kind kind = board ? Kind::Space : piece.kind;
    // Behind a corner comes the first space of its side.
    const int first = piece.kind == Kind::Corner ? piece.iNumber * BoardFacts::kSpacesPerSide : piece.iNumber + 1;
    std::vector<PictureOwner> free;
    for (int i = 0; i < PieceImages::CountOf(kind); ++i) {
        const PictureOwner next{kind, qint16((first + i) % PieceImages::CountOf(kind))};
        if (next != piece && Takes(next) && PieceImages::Of(game, next).FullPath().isEmpty()) free.push_back(next);
    }
    return free;
}

Outcome Onto(const Game& game, const QStringList& files, const PictureOwner& piece, const Refusal& whyNot) {
    if (piece.IsPiece() && piece.iNumber == kNoneFree) return OntoPlaces(game, files, {}, whyNot);
    if (!Takes(piece)) return {std::nullopt, QStringLiteral("This place shows a picture of its own.")};
    std::vector<PictureOwner> places = FreeBehind(game, piece);
    places.insert(places.begin(), piece);
    return OntoPlaces(game, files, places, whyNot);
}

Outcome Behind(const Game& game, const QStringList& files, const PictureOwner& piece, const Refusal& whyNot) {
    return OntoPlaces(game, files, FreeBehind(game, piece), whyNot);
}

} // namespace DroppedPictures
