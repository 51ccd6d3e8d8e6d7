// SPDX-License-Identifier: MIT
#include "check/FoundPicture.h"

#include "check/FileName.h"
#include "check/PieceParts.h"

std::optional<Edit> WithFoundPicture(const Game& game, const GamePiece& piece, const QString& sPicture) {
    PictureRef found = PieceParts::PictureOf(game, piece);
    if (sPicture.isEmpty() || found.IsEmpty()) return std::nullopt;
    if (FileNameOf(sPicture).compare(FileNameOf(found.sPath), Qt::CaseInsensitive) != 0) found = {};
    found.sPath = sPicture;
    return PieceParts::WithPicture(game, piece, found);
}
