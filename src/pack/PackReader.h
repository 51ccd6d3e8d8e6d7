// SPDX-License-Identifier: MIT
#pragma once

#include "pack/ZipReader.h"

#include <QHash>
#include <QStringList>

#include <functional>

/// A packed game in memory, as strict as must be with a stranger's: a name that leads out of its folder, a link, two
/// equal names, a trap that would fill the disk, a damaged part and the like refuse the whole file. Touches no disk.
class PackReader {
public:
    /// Nothing, and in sError what is wrong with it, to stand behind a colon: lower case, without a point.
    static std::optional<PackReader> Open(const QByteArray& bytes, QString& sError);

    /// The game's name, without an ending.
    const QString& GameName() const { return m_name; }
    /// The game's lines with each picture named by what the function makes of its entry; the game is called sGame.
    QStringList Lines(const std::function<QString(const QString& sEntry)>& nameOf, const QString& sGame) const;
    /// What is to be unpacked: the pictures that the game names, and fonts. Each a relative path of a folder and a
    /// plain name.
    const QStringList& Files() const { return m_files; }
    /// Nothing when its bytes don't agree with what the archive says.
    std::optional<QByteArray> Read(const QString& sEntry) const;
    /// The same in pieces; false when the bytes don't agree, which is known only at their end, or it was stopped.
    bool Read(const QString& sEntry, const ZipReader::Taker& take) const;

private:
    explicit PackReader(ZipReader zip) : m_zip(std::move(zip)) {}
    QString WhyRefused(qint64 packedSize);
    QString TakeNames();
    QString WhyNoPack() const;
    QString TakeGame();
    QString TakePictures();

    ZipReader m_zip;
    /// Their places, by the key of their names.
    QHash<QString, qsizetype> m_places;
    QString m_gameEntry;
    QString m_name;
    QStringList m_lines;
    QStringList m_files;
};
