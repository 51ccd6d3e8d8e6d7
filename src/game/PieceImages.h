// SPDX-License-Identifier: MIT
#pragma once

#include "document/Game.h"
#include "pictures/PictureOwner.h"

#include <QStringList>

#include <vector>

/// The pictures of a game by the pieces that show them: spaces, corners, banknotes and tokens.
namespace PieceImages {

/// All pieces that show a picture of the user's, in the order in which they are told of. The corner whose face belongs
/// to the kit is none of them.
std::vector<PictureOwner> Pieces();

/// How many pieces of a kind a game has; 0 for what is no piece.
int CountOf(PictureOwner::Kind kind);

/// The piece has to be one of the game's.
const C_Image& Of(const Game& game, const PictureOwner& piece);
C_Image& Of(Game& game, const PictureOwner& piece);

/// Complete paths of all pictures that pieces show, each once.
QStringList Files(const Game& game);
/// Whether a file, by whichever name, is one of these: nothing that is made may take its place.
bool Shows(const Game& game, const QString& sFile);

/// The same part of a picture that lies elsewhere by now.
void MoveTo(C_Image& image, const QString& sPath);

} // namespace PieceImages
