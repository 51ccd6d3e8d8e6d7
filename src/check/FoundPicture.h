// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"
#include "game/Edit.h"

#include <optional>

/// The change that gives a piece the picture that somebody has found for it. Where it bears the name of the bad
/// one it is the same picture, and the part that it shows is kept.
std::optional<Edit> WithFoundPicture(const Game& game, const GamePiece& piece, const QString& sPicture);
