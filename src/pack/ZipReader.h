// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class ZipSource;

/// The entries of a zip archive, as they say they are; what they say is for the caller to doubt. Takes a few megabytes
/// of memory, however large the archive.
class ZipReader {
public:
    enum class Kind { File, Folder, Special };
    struct Entry {
        /// Empty when it isn't text.
        QString sName;
        Kind kind = Kind::Special;
        /// As the archive says; bytes are unpacked to this size or not at all.
        qint64 size = -1;
        /// In the archive, as it says.
        qint64 packedSize = -1;
        /// Stored or deflated, and not under lock and key.
        bool bReadable = false;
    };

    /// Nothing when it isn't a whole archive that agrees with itself.
    static std::optional<ZipReader> Open(std::shared_ptr<ZipSource> source);
    static std::optional<ZipReader> Open(const QByteArray& bytes);

    const QList<Entry>& Entries() const { return m_entries; }
    /// The entry's bytes, whose number and checksum agree with what the archive says; nothing when they don't.
    std::optional<QByteArray> Read(qsizetype iEntry) const;
    /// Takes a piece of an entry's bytes; false stops it.
    using Taker = std::function<bool(const QByteArray& piece)>;
    /// The same in pieces of a megabyte, so that no entry is in memory as a whole. False when the bytes don't agree,
    /// which is known only at their end, or it was stopped.
    bool Read(qsizetype iEntry, const Taker& take) const;

private:
    struct Archive;
    explicit ZipReader(std::shared_ptr<Archive> archive);
    Entry EntryAt(qsizetype iEntry) const;

    std::shared_ptr<Archive> m_archive;
    QList<Entry> m_entries;
};
