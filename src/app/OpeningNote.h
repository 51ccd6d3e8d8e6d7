// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Which game a start is opening, as a file in My Games: a game that ends the program would otherwise end it at each
/// start again.
namespace OpeningNote {

/// Path of the game that the start before was opening when it ended; empty when it came through.
QString Left();
/// The start goes on with this game. A folder that takes no file takes no note either.
void Write(const QString& sGame);
/// The game is open and the window stands.
void Remove();

} // namespace OpeningNote
