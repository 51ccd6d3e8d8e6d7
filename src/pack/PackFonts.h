// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

/// The fonts of a game that is packed: which of them may go along.
namespace PackFonts {

struct Use {
    enum class Standing {
        GoesAlong,   ///< Everybody may pass it on.
        StaysBehind, ///< It may not be passed on, or nothing says so: whoever gets the game needs it himself.
        NotHere      ///< The game names it, but this machine hasn't got it.
    };
    struct File {
        QString sPath;
        QString sEntry;
        qint64 size = 0;
    };

    QString sFamily;
    Standing standing = Standing::NotHere;
    /// Those that go along.
    QList<File> files;
};

/// The families that the lines of a game name, each once, in their order; without those that every copy of the program
/// has or has a stand-in for.
QStringList FamiliesOf(const QStringList& lines);
/// What becomes of them. Names of entries are taken as they are given.
QList<Use> UsesOf(const QStringList& families, QSet<QString>& taken);
/// A line for each, for whoever looks into the packed game.
QByteArray ListOf(const QList<Use>& uses);

} // namespace PackFonts
