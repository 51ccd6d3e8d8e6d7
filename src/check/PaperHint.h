// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"

#include <QString>

// What to tell of words while somebody types them: how high their smallest letters come out on paper, and what helps
// where that is too small to read. Empty where none of them is printed. Texts are measured on the drawing layer's
// current context.

QString PaperHint(const Game& game, const GamePiece& piece);
/// The same of one title, 1 to 5. The first is a single line.
QString PaperHintOfTitle(const Game& game, int iTitle);

/// The longest one, for whoever leaves room for it.
QString LongestPaperHint();
