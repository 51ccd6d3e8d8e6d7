// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A game whose file was moved together with the pictures around it. What a game file says of a picture outside the
/// games folder is its complete path; seen from the place that the game file had when it was written, it lies in the
/// same direction now.
namespace MovedGame {

/// Folder of the game file when it was written and where it is now, of the game in hand. Equal ones mean that it wasn't
/// moved.
void Note(const QString& sFolderBefore, const QString& sFolderNow);

/// Where a picture that isn't at its complete path lies beside the game, or below its folder, or in a neighbour of it;
/// empty where it isn't.
QString PlaceOf(const QString& sPath);

/// The same for a picture of a game in the games folder, by its path from that folder: a game in a folder of its own
/// there may have been moved, or its folder renamed. Empty where it isn't.
QString PlaceOfRelative(const QString& sName);

} // namespace MovedGame
