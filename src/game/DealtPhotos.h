// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"
#include "pictures/PictureOwner.h"

#include <QStringList>

#include <vector>

/// Photos of a folder that are dealt onto the free places of the board, as one edit.
namespace DealtPhotos {

enum class Order { DateTaken, Name, Shuffled };

struct Photo {
    QString sFile;
    /// Milliseconds since 1970.
    qint64 iTaken = 0;
    bool bLeftOut = false;
};

/// Names as a person counts them: "cat 2" ahead of "cat 10". Two photos of one moment stay as their names say. The same
/// seed shuffles the same photos in the same way.
void Sort(std::vector<Photo>& photos, Order order, quint32 iSeed);

/// Free spaces in the order of play, and with bCorners the free corners among them.
std::vector<PictureOwner> FreePlaces(const Game& game, bool bCorners);

/// Which photo goes onto which place: the number of the place for each photo, -1 for one that is left out or finds no
/// place any more.
std::vector<int> Dealt(const std::vector<Photo>& photos, int iPlaces);

/// What a person has called a photo, "Grandmas Garden" of "grandmas_garden.jpg"; empty where a camera or a program has
/// named it, "IMG_2041.JPG".
QString NameOf(const QString& sFile);

/// Lays each photo onto its place; with bNames each space whose photo has a name takes it, in lines as long as spaces
/// hold well. Measures texts on the drawing layer's current context.
Edit Deal(const Game& game, const std::vector<Photo>& photos, const std::vector<PictureOwner>& places, bool bNames);

} // namespace DealtPhotos
