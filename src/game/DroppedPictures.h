// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

/// Picture files that somebody lays onto pieces of a game.
namespace DroppedPictures {

/// What comes of it.
struct Outcome {
    /// Nothing where no picture could be taken.
    std::optional<Edit> edit;
    /// What couldn't be done, in a sentence or two; empty where all went well.
    QString sTold;
};

/// Why a file can't be taken; empty where it can.
using Refusal = std::function<QString(const QString& sFile)>;

/// Number of a piece in the place of all of its kind where none is without a picture.
constexpr qint16 kNoneFree = -1;

/// True for a piece that takes a picture: not for those whose faces belong to the kit.
bool Takes(const PictureOwner& piece);

/// Lays one onto a piece that takes it, as an editor would.
void GivePicture(Game& game, const PictureOwner& piece, const QString& sFile);

/// The pieces that further pictures go onto, in their order: free ones of the piece's kind, behind it and round.
std::vector<PictureOwner> FreeBehind(const Game& game, const PictureOwner& piece);

/// The first picture goes onto the piece, whatever it shows; each further one onto the next free piece of its kind: on
/// the board the next space in the order of play, from a corner on as well. Words stay. Measures texts on the drawing
/// layer's current context.
Outcome Onto(const Game& game, const QStringList& files, const PictureOwner& piece, const Refusal& whyNot);
/// As the further ones of Onto: the piece itself, which an editor has in hand, stays as it is.
Outcome Behind(const Game& game, const QStringList& files, const PictureOwner& piece, const Refusal& whyNot);

} // namespace DroppedPictures
