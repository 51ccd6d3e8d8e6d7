// SPDX-License-Identifier: MIT
#include "game/PieceImages.h"

#include "document/basTAVL.h"
#include "platform/files/Files.h"

#include <algorithm>

namespace PieceImages {

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

std::vector<PictureOwner> Pieces() {
    std::vector<PictureOwner> pieces;
    for (const Kind kind : {Kind::Space, Kind::Corner, Kind::Money, Kind::Token}) {
        for (int i = 0; i < CountOf(kind); ++i) {
            const PictureOwner piece{kind, qint16(i)};
            if (!piece.IsFate()) pieces.push_back(piece);
        }
    }
    return pieces;
}

const C_Image& Of(const Game& game, const PictureOwner& piece) {
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

C_Image& Of(Game& game, const PictureOwner& piece) {
    return const_cast<C_Image&>(Of(static_cast<const Game&>(game), piece));
}

QStringList Files(const Game& game) {
    QStringList files;
    for (const PictureOwner& piece : Pieces()) {
        const QString file = Of(game, piece).FullPath();
        if (!file.isEmpty() && !files.contains(file)) files.append(file);
    }
    return files;
}

bool Shows(const Game& game, const QString& sFile) {
    const QStringList files = Files(game);
    return std::any_of(files.begin(), files.end(),
                       [&sFile](const QString& file) { return ::Files::IsSameFile(file, sFile); });
}

void MoveTo(C_Image& image, const QString& sPath) {
    const PictureRef before = image.Ref();
    image.Let_FullPath(sPath);
    image.Let_Zoom(before.iZoom);
    if (!before.IsCentered()) return;
    image.Let_XCenter(before.iXCenter);
    image.Let_YCenter(before.iYCenter);
}

} // namespace PieceImages
