// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"

#include <QStringList>

#include <functional>
#include <optional>

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

/// True for a piece that takes a picture: not for those whose faces belong to the kit.
bool Takes(const PictureOwner& piece);

/// The first picture goes onto the piece, whatever it shows; each further one onto the next free piece of its kind: on
/// the board the next space in the order of play, from a corner on as well. Words stay. Measures texts on the drawing
/// layer's current context.
Outcome Onto(const Game& game, const QStringList& files, const PictureOwner& piece, const Refusal& whyNot);

} // namespace DroppedPictures
