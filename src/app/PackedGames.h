// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Packed games, as somebody sent them, on their way into My Games.
namespace PackedGames {

/// The path of the game to load: of a packed one that which it has become in My Games, of any other its own. Empty,
/// after a message, when a packed one can't be opened.
QString Arrive(const QString& sPath);

/// Tells where the game of a packed one lies from now on; of any other nothing.
void TellWhereItLies(const QString& sPath, const QString& sGame);

} // namespace PackedGames
