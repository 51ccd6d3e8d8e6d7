// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct Game;

/// What the pieces of a game say, each on one line.
namespace GameWords {

QString OfSpace(const Game& game, int iSpace);
/// The words that are printed, which are those of the first block.
QString OfCorner(const Game& game, int iCorner);
QString OfCard(const Game& game, int iDeck, int iCard);
QString OfToken(const Game& game, int iToken);
/// Of a title by its number, 1 to 5.
QString OfTitle(const Game& game, int iTitle);

/// The game with no more of each text than anybody could read on paper, a thousand letters: what is longer is found to
/// be too long by that much, and takes no time to be measured.
Game OfReadableLength(const Game& game);

/// A text as long as it can be typed, which is four hundred letters, and three dots for what is more: for sentences and
/// lists, where a text without end would take long to lay out.
QString Shortened(const QString& sText);

/// Nothing but blanks, or what stands for a text that nobody has written yet.
bool IsBlank(const QString& sText);

} // namespace GameWords
