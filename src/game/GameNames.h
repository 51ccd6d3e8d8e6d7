// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The names of games.
namespace GameNames {

/// True for a game that its user hasn't named yet: its base name begins with "Game", in any case. A game
/// called "Gameboard" counts too, which is why it asks for a name at every save; so does an empty text.
bool IsUnnamed(const QString& sPath);

/// The first "Game1.gam", "Game2.gam" and so on that isn't in the folder. Full path.
QString FirstFreeName(const QString& sFolder);

QString FolderOf(const QString& sPath);
/// Name and extension.
QString FileNameOf(const QString& sPath);

} // namespace GameNames
