// SPDX-License-Identifier: MIT
#pragma once

#include "pack/GamePictures.h"
#include "pack/PackFonts.h"
#include "pictures/PicturePlaces.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

/// A game with its pictures as one file, to be sent to somebody else: first what would go in is gathered, so that it
/// can be told, then it is written.
namespace Packing {

/// Pixels of the board's picture, square: enough to recognise the game by.
constexpr int kBoardSize = 960;

/// A picture that goes in, once however many pieces show it.
struct Picture {
    QString sPath;
    QString sEntry;
    /// Bytes of the file.
    qint64 size = 0;
    /// Which pieces show it, and which part of it.
    QList<GamePictures::Named> users;
    /// What goes in in place of the file, if anything.
    std::optional<QByteArray> smaller;

    qint64 PackedSize() const { return smaller ? qint64(smaller->size()) : size; }
};

struct Contents {
    /// The game's name, without folder and ending.
    QString sName;
    /// The game's lines, with the pictures named as they are inside.
    QStringList lines;
    QList<Picture> pictures;
    /// Complete paths of pictures that the game names and that aren't there.
    QStringList missing;
    /// Families that the game names and that aren't everywhere.
    QList<PackFonts::Use> fonts;
    /// A picture of the board as a PNG file; empty for none.
    QByteArray board;

    /// Bytes of all pictures as they would go in.
    qint64 PictureBytes() const;
    /// Bytes of all fonts that go along.
    qint64 FontBytes() const;
};

/// What would go in of the game with these lines; find leads from a name in the game to a complete path. Nothing is
/// written or decoded.
Contents Gather(const QStringList& lines, const QString& sGame, const PicturePlaces::Finder& find);

/// Told how far it is, in thousandths; false stops it.
using Progress = std::function<bool(int iThousandths)>;
/// The packed game's bytes, the same each time for the same files. Nothing and a sentence in sError when a picture
/// can't be read any more or it would be too large; nothing and no sentence when it was stopped.
std::optional<QByteArray> Pack(const Contents& contents, const Progress& progress, QString& sError);
/// The same into a file, whole or not at all.
bool Write(const Contents& contents, const QString& sPath, const Progress& progress, QString& sError);

} // namespace Packing
