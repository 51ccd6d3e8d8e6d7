// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class ProgramLock;

/// What a start has to settle about the folder of games before it may work there. Whatever is in the way is told in a
/// box, as there is no window yet.
namespace GamesFolder {

/// Finds the folder, and makes it where it is missing. False, after a box that says why and where, when it can't be
/// made.
bool IsThere();

/// Goes on: this start works in the folder. HandedOver: another program works there and opens the game. Refused: so may
/// one that can't be reached, and the user doesn't want to start anyway.
enum class Taking { GoesOn, HandedOver, Refused };
Taking Take(ProgramLock& lock, const QString& sGame, int milliseconds = 5000);

} // namespace GamesFolder
