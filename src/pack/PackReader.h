// SPDX-License-Identifier: MIT
#pragma once

#include "pack/ZipReader.h"
#include "pack/ZipSource.h"

#include <QHash>
#include <QStringList>

#include <functional>

/// A packed game, as strict as must be with a stranger's: a name that leads out of its folder, a link, two
/// equal names, a trap that would fill the disk, a damaged part and the like refuse the whole file. Writes nothing.
class PackReader {
public:
    /// Nothing, and in sError what is wrong with it, to stand behind a colon: lower case, without a point.
    static std::optional<PackReader> Open(const QByteArray& bytes, QString& sError);
    /// The same of a file, which is read where it is needed and never held as a whole.
    static std::optional<PackReader> OpenFile(const QString& sPath, QString& sError);

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
    /// Of bytes that couldn't be read: what the disk says, or that they are damaged; as Open says it.
    QString WhyUnread() const;

private:
    PackReader(ZipReader zip, std::shared_ptr<ZipSource> source) : m_zip(std::move(zip)), m_source(std::move(source)) {}
    static std::optional<PackReader> Open(std::shared_ptr<ZipSource> source, QString& sError);
    QString WhyRefused(qint64 packedSize);
    QString TakeNames();
    QString WhyNoPack() const;
    QString TakeGame();
    QString TakePictures();

    ZipReader m_zip;
    std::shared_ptr<ZipSource> m_source;
    /// Their places, by the key of their names.
    QHash<QString, qsizetype> m_places;
    QString m_gameEntry;
    QString m_name;
    QStringList m_lines;
    QStringList m_files;
};
