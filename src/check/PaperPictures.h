// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"
#include "check/PictureFacts.h"
#include "pictures/PictureRef.h"

#include <QSizeF>
#include <QStringList>

#include <optional>
#include <span>

struct Game;

/// A picture of a piece, and the box that it is printed in.
struct PaperPicture {
    GamePiece piece;
    PictureRef ref;
    QSizeF inches;
    PictureFacts::Fact fact;
    /// Words of the sheets that it stands on.
    QStringList sheets;
};

/// The pieces that may show a picture, in the order in which they are told of.
std::span<const GamePiece> PiecesWithPictures();
/// Nothing for a piece that shows none.
std::optional<PaperPicture> PaperPictureOf(const Game& game, const GamePiece& piece, PictureFacts& facts,
                                           PictureFacts::Decoding decoding);
