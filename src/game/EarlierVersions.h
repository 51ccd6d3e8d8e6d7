// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

/// What saves have replaced: the last states of each game, in the folder "Earlier Versions" of the My Games directory.
/// The older they are, the wider apart. None of it may ever stand in the way of a save.
namespace EarlierVersions {

constexpr qsizetype kMost = 20;

/// The state that a save is about to replace.
class Replaced {
public:
    /// Reads the game's file as it stands. A file that is no game is none of ours.
    explicit Replaced(const QString& sGame);
    /// When the save has put this content in its place: keeps what stood there, unless it was the same.
    void Keep(const QByteArray& content) const;
    /// When the save has failed: keeps what stood there if that is gone, as where a file is written in place.
    void KeepIfGone() const;

private:
    QString m_sGame;
    /// The file as it stood, and as it is kept; both are empty where there was none of ours.
    QByteArray m_stood;
    QByteArray m_bytes;
    QDateTime m_when;
};

/// A small picture of the board as it was saved just now, for the time when that is an earlier version.
void KeepBoard(const QString& sGame, const QByteArray& png);

struct Version {
    QString sPath;
    /// Path of the board's picture; there may be none.
    QString sBoard;
    /// When that state was saved.
    QDateTime when;
};
/// Those of a game, the latest first.
QList<Version> Of(const QString& sGame);

/// Whether a path is that of an earlier version. Its pictures lie where its game lies.
bool IsOneOf(const QString& sPath);

/// Places of those that go when there are more than kMost; ages in seconds, the latest version first. Neighbours are
/// the wider apart the older they are; the latest and the oldest stay.
QList<qsizetype> TooMany(const QList<qint64>& ages);

} // namespace EarlierVersions
