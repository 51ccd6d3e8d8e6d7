// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"
#include "game/Edit.h"

#include <optional>

/// The change that breaks the words of a piece into lines anew, where its letters then come out large and wide enough
/// on paper and within their edge; nothing where no lines do that. Texts are measured on the drawing layer's current
/// context.
std::optional<Edit> LinesAnew(const Game& game, const GamePiece& piece);
