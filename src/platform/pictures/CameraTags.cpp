// SPDX-License-Identifier: MIT
#include "platform/pictures/CameraTags.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/pictures/ByteReader.h"
#include "platform/pictures/PictureFormat.h"

#include <QBuffer>
#include <QDateTime>

#include <algorithm>
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

/// How a kind of file is made of pieces that have a name, a length and a content.
struct Pieces {
    qint64 head;
    const char* sNotes;
    /// Behind this one there are no more; nullptr where none has to be the last.
    const char* sLast;
    bool nameFirst;
    bool littleEndian;
    /// Behind the content: a check, or what makes its length even.
    int check;
    bool even;
};
constexpr Pieces kPng{8, "eXIf", "IEND", false, false, 4, false};
constexpr Pieces kWebP{12, "EXIF", nullptr, true, true, 0, true};

QByteArray At(QIODevice& file, qint64 place, qint64 count) {
    return file.seek(place) ? file.read(count) : QByteArray();
}

QByteArray NotesIn(QIODevice& file, const Pieces& pieces) {
    // Far more than any camera makes, and far larger.
    constexpr int kMostPieces = 100'000;
    constexpr qint64 kMostOfNotes = qint64(1) << 20;
    constexpr int kNameAndLength = 8;
    qint64 at = pieces.head;
    for (int i = 0; i < kMostPieces; ++i) {
        const QByteArray lead = At(file, at, kNameAndLength);
        if (lead.size() < kNameAndLength) break;
        ByteReader reader(lead);
        reader.SetLittleEndian(pieces.littleEndian);
        const qint64 length = *reader.Number(pieces.nameFirst ? 4 : 0, 4);
        const QByteArray name = lead.mid(pieces.nameFirst ? 0 : 4, 4);
        if (name == pieces.sLast) break;
        if (name == pieces.sNotes) return At(file, at + kNameAndLength, std::min(length, kMostOfNotes));
        at += kNameAndLength + length + pieces.check + (pieces.even ? length % 2 : 0);
    }
    return {};
}

// Photos of telephones bury them somewhere in their first part.
QByteArrayView NotesNear(QByteArrayView start) {
    const qsizetype lead = start.indexOf(kLead);
    return lead < 0 ? QByteArrayView() : start.sliced(lead + kLead.size());
}

// Empty for a file that isn't made of such pieces.
QByteArray NotesOfChunks(QIODevice& file) {
    constexpr qint64 kEnoughToTell = 16;
    switch (PictureFormatOf(At(file, 0, kEnoughToTell))) {
        case PictureFormat::Png:
            return NotesIn(file, kPng);
        case PictureFormat::WebP:
            return WithoutLead(NotesIn(file, kWebP)).toByteArray();
        default:
            return {};
    }
}

QByteArray NotesAtStart(QByteArray start) {
    QBuffer file(&start);
    file.open(QIODevice::ReadOnly);
    switch (PictureFormatOf(start)) {
        case PictureFormat::Tiff:
            return start;
        case PictureFormat::Png:
        case PictureFormat::WebP:
            return NotesOfChunks(file);
        default:
            return NotesNear(start).toByteArray();
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

CameraTags ReadCameraTagsOfChunks(QIODevice& file) { return ReadCameraTags(NotesOfChunks(file)); }

qint64 DateTaken(const QString& sPath) {
    constexpr qint64 kStart = qint64(64) << 10;
    BinaryFile file;
    QString error;
    const QString path = Files::InDiskSpelling(sPath);
    const QByteArray start = file.OpenForReading(path, error) ? file.Bytes(kStart) : QByteArray();
    const qint64 taken = ReadCameraTags(NotesAtStart(start)).takenMs;
    return taken >= 0 ? taken : Files::StampOf(path).modifiedMs;
}
