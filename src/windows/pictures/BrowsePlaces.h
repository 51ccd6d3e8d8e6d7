// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The places and paths between which pictures are looked for. No windows here.
namespace BrowsePlaces {

enum class PlaceKind { Home, Pictures, MyGames, Volume };

/// Where looking may begin: a folder that a person knows, or a volume.
struct Place {
    PlaceKind kind = PlaceKind::Volume;
    QString sRoot;
    QString sName;
};

/// Home, pictures, My Games, then the volumes. A folder that is missing isn't offered, while a volume is: it
/// may be a drive without a disk, which is told when it is chosen.
QList<Place> Places();

/// Number of the place that a folder lies in: the one nearest above it. -1 for none.
qsizetype PlaceOf(const QList<Place>& places, const QString& sFolder);
/// Number of the My Games place; -1 where it isn't offered.
qsizetype MyGamesPlace(const QList<Place>& places);

/// The folders from a root down to a folder, both included.
QStringList ChainTo(const QString& sRoot, const QString& sFolder);
/// The folder above; empty for a root.
QString FolderAbove(const QString& sFolder);
/// A path up to its last separator or the colon behind its drive; the separator goes too, except a root's.
QString FolderOf(const QString& sFilePath);
/// A file's path in a folder, without a second separator behind a root.
QString FileIn(const QString& sFolder, const QString& sName);
/// Last part of a folder's path; the path itself for a root.
QString NameOfFolder(const QString& sFolder);

/// True when a file may be used where it lies because it can't go away while the games stay: by the first
/// letters of both paths where they name drives, else by the mounted volume.
bool IsOnGamesDrive(const QString& sFilePath, const QString& sGamesDirectory);

/// Name under which the copy of a picture is kept: the picture's own for iCopy 0, else with the number in
/// brackets.
QString CopyName(const QString& sBase, const QString& sExt, int iCopy);
/// Number of the first copy whose name is free in a folder. The names of thumbnails are taken also while there is
/// none.
int FirstFreeCopy(const QString& sFolder, const QString& sBase, const QString& sExt);

/// File patterns of the first filter, as a screen of so many bits a pixel shows them.
QString UsualFilter(bool bAllowWMF, int iBitsPerPixel);
/// File patterns of every kind of picture that can be loaded and shown.
QString AllPicturesFilter(bool bAllowWMF, int iBitsPerPixel);
/// The single patterns of a filter.
QStringList PatternsOf(const QString& sFilter);
/// True when a file's name fits one of them, in any case of its letters.
bool IsListed(const QString& sFilter, const QString& sFilePath);

} // namespace BrowsePlaces
