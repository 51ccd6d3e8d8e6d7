// SPDX-License-Identifier: MIT
#include "platform/pictures/CameraTags.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/pictures/ByteReader.h"
#include "platform/pictures/PictureFormat.h"

#include <QDateTime>

#include <optional>

namespace {

constexpr int kEntrySize = 12;
constexpr quint32 kOrientationTag = 0x0112;
constexpr quint32 kDateTag = 0x0132;
constexpr quint32 kMoreTag = 0x8769;
constexpr quint32 kDateTakenTag = 0x9003;

/// Byte order, a pointer to a directory, its entries.
class Directory {
public:
    explicit Directory(QByteArrayView notes) : m_reader(notes) {
        constexpr quint32 kLittleEndian = 0x4949;
        constexpr quint32 kBigEndian = 0x4D4D;
        const quint32 mark = m_reader.Number(0, 2).value_or(0);
        if (mark != kLittleEndian && mark != kBigEndian) return;
        m_reader.SetLittleEndian(mark == kLittleEndian);
        Enter(m_reader.Number(4, 4));
    }

    /// False where there is none.
    bool Enter(std::optional<quint32> place) {
        m_place = place;
        m_entries = place ? m_reader.Number(*place, 2).value_or(0) : 0;
        return m_entries > 0;
    }
    /// Of a tag with a number of so many bytes.
    std::optional<quint32> Number(quint32 tag, int length) const {
        const std::optional<qint64> entry = Find(tag);
        return entry ? m_reader.Number(*entry + 8, length) : std::nullopt;
    }
    /// "2024:07:14 10:22:33" in milliseconds since 1970; -1 for nothing or nonsense.
    qint64 Date(quint32 tag) const {
        constexpr int kLength = 19;
        const std::optional<quint32> place = Number(tag, 4);
        if (!place) return -1;
        const QString text = QString::fromLatin1(m_reader.Bytes(*place, kLength));
        const QDateTime date = QDateTime::fromString(text, QStringLiteral("yyyy:MM:dd HH:mm:ss"));
        return date.isValid() ? date.toMSecsSinceEpoch() : -1;
    }

private:
    std::optional<qint64> Find(quint32 tag) const {
        for (quint32 i = 0; i < m_entries; ++i) {
            const qint64 entry = qint64(*m_place) + 2 + qint64(i) * kEntrySize;
            const std::optional<quint32> found = m_reader.Number(entry, 2);
            if (!found) return std::nullopt;
            if (*found == tag) return entry;
        }
        return std::nullopt;
    }

    ByteReader m_reader;
    std::optional<quint32> m_place;
    quint32 m_entries = 0;
};

const QByteArrayView kLead("Exif\0\0", 6);

QByteArrayView WithoutLead(QByteArrayView notes) {
    return notes.startsWith(kLead) ? notes.sliced(kLead.size()) : notes;
}

// Length, name, content and a check of four bytes; numbers begin with their highest byte.
QByteArrayView NotesOfPng(QByteArrayView file) {
    constexpr qint64 kSignature = 8;
    constexpr qint64 kAroundContent = 12;
    const ByteReader reader(file);
    for (qint64 at = kSignature; const std::optional<quint32> length = reader.Number(at, 4);) {
        if (reader.Bytes(at + 4, 4) == "eXIf") return reader.Bytes(at + 8, *length);
        at += qint64(*length) + kAroundContent;
    }
    return {};
}

// Name, length and content, of an even length.
QByteArrayView NotesOfWebP(QByteArrayView file) {
    constexpr qint64 kHead = 12;
    ByteReader reader(file);
    reader.SetLittleEndian(true);
    for (qint64 at = kHead; const std::optional<quint32> length = reader.Number(at + 4, 4);) {
        if (reader.Bytes(at, 4) == "EXIF") return WithoutLead(reader.Bytes(at + 8, *length));
        at += 8 + qint64(*length) + *length % 2;
    }
    return {};
}

// Photos of telephones bury them somewhere in their first part.
QByteArrayView NotesNear(QByteArrayView start) {
    const qsizetype lead = start.indexOf(kLead);
    return lead < 0 ? QByteArrayView() : start.sliced(lead + kLead.size());
}

QByteArrayView NotesAtStart(QByteArrayView start) {
    switch (PictureFormatOf(start)) {
        case PictureFormat::Tiff:
            return start;
        case PictureFormat::Png:
            return NotesOfPng(start);
        case PictureFormat::WebP:
            return NotesOfWebP(start);
        default:
            return NotesNear(start);
    }
}

} // namespace

CameraTags ReadCameraTags(QByteArrayView notes) {
    CameraTags tags;
    Directory directory(notes);
    const quint32 orientation = directory.Number(kOrientationTag, 2).value_or(1);
    tags.orientation = orientation >= 1 && orientation <= 8 ? int(orientation) : 1;
    tags.takenMs = directory.Date(kDateTag);
    if (directory.Enter(directory.Number(kMoreTag, 4))) {
        const qint64 taken = directory.Date(kDateTakenTag);
        if (taken >= 0) tags.takenMs = taken;
    }
    return tags;
}

CameraTags ReadCameraTagsOfChunks(QByteArrayView file) {
    switch (PictureFormatOf(file)) {
        case PictureFormat::Png:
            return ReadCameraTags(NotesOfPng(file));
        case PictureFormat::WebP:
            return ReadCameraTags(NotesOfWebP(file));
        default:
            return {};
    }
}

qint64 DateTaken(const QString& sPath) {
    constexpr qint64 kStart = qint64(64) << 10;
    BinaryFile file;
    QString error;
    const QString path = Files::InDiskSpelling(sPath);
    const QByteArray start = file.OpenForReading(path, error) ? file.Bytes(kStart) : QByteArray();
    const qint64 taken = ReadCameraTags(NotesAtStart(start)).takenMs;
    return taken >= 0 ? taken : Files::StampOf(path).modifiedMs;
}
