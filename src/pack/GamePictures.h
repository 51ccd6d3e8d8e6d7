// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"
#include "pictures/PictureRef.h"

#include <QList>
#include <QStringList>

/// The pictures that the lines of a game name. The lines are looked at and changed as text, so that all else in a game
/// goes on as it is.
namespace GamePictures {

/// A picture of a line: its place, and what stands there. The path is the name as the game file holds it.
struct Named {
    int iLine = 0;
    PictureOwner owner;
    PictureRef ref;
};

/// All that aren't empty, in the order of the lines. Lines that are missing name none. Raises the overflow error for
/// a number outside 16 bits.
QList<Named> Of(const QStringList& lines);

/// Puts what it says now in its place.
void Put(QStringList& lines, const Named& named);
/// Puts the name of the game in the first line; it may hold no line break.
void PutGameName(QStringList& lines, const QString& sName);

} // namespace GamePictures
