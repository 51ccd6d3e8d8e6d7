// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"
#include "game/Edit.h"
#include "pictures/PictureRef.h"

#include <optional>

/// What a finding's piece holds, and the change that gives it something else.
namespace PieceParts {

/// Empty for a piece that shows none.
PictureRef PictureOf(const Game& game, const GamePiece& piece);
/// Words stay. Nothing for a piece that takes none. Texts are measured on the drawing layer's current context.
std::optional<Edit> WithPicture(const Game& game, const GamePiece& piece, const PictureRef& picture);

/// What a family has written on it, in its lines; empty for pieces whose words stand in a single line.
QString WordsOf(const Game& game, const GamePiece& piece);
/// Nothing for those. Texts are measured on the drawing layer's current context.
std::optional<Edit> WithWords(const Game& game, const GamePiece& piece, const QString& sWords);

} // namespace PieceParts
