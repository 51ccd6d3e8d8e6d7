// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"

#include <QStringList>

/// On which sheets of the kit a piece comes out, by the sheets' words.
namespace PieceSheets {

/// All of them; of the whole game every sheet.
QStringList Of(const GamePiece& piece);
/// Of a space that with the stickers of its side of the board, of a corner that with the corners.
QStringList OfSticker(const GamePiece& piece);
QStringList OfDeed(int iSpace);
/// Those with labels of titles: the box's or the board's.
QStringList OfBoxLabels();
QStringList OfBoardLabels();

} // namespace PieceSheets
