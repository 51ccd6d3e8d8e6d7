// SPDX-License-Identifier: MIT
#include "pack/ZipReader.h"

#include "pack/ZipSource.h"

#include <zip.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

constexpr qint64 kMostAtOnce = qint64(1) << 20;
constexpr qint64 kMostOfLists = qint64(4) << 20;

} // namespace

/// The library's archive, and the source that the library reads piece by piece.
struct ZipReader::Archive {
    explicit Archive(std::shared_ptr<ZipSource> given) : bytes(std::move(given)) {
        zip_error_init(&error);
        zip_source_t* const source = zip_source_function_create(&Answer, this, nullptr);
        if (!source) return;
        zip = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
        if (!zip) zip_source_free(source);
        mayStillRead = std::numeric_limits<qint64>::max();
    }
    ~Archive() {
        if (zip) zip_discard(zip);
        zip_error_fini(&error);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    static zip_int64_t Answer(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
        return static_cast<Archive*>(self)->Do(command, static_cast<char*>(data), length);
    }
    zip_int64_t Do(zip_source_cmd_t command, char* data, zip_uint64_t length);
    zip_int64_t Give(char* data, zip_uint64_t length);
    zip_int64_t GoTo(void* data, zip_uint64_t length);
    zip_int64_t Tell(char* data, zip_uint64_t length) const;

    std::shared_ptr<ZipSource> bytes;
    qint64 at = 0;
    /// The lists of all entries are read on opening, and held: more than any game has are cut off.
    qint64 mayStillRead = kMostOfLists;
    zip_error_t error{};
    zip_t* zip = nullptr;
};

zip_int64_t ZipReader::Archive::Do(zip_source_cmd_t command, char* data, zip_uint64_t length) {
    switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT,
                                                  ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL,
                                                  -1);
        case ZIP_SOURCE_OPEN:
            at = 0;
            return 0;
        case ZIP_SOURCE_READ:
            return Give(data, length);
        case ZIP_SOURCE_SEEK:
            return GoTo(data, length);
        case ZIP_SOURCE_TELL:
            return at;
        case ZIP_SOURCE_STAT:
            return Tell(data, length);
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error, data, length);
        case ZIP_SOURCE_CLOSE:
        case ZIP_SOURCE_FREE:
            return 0;
        default:
            zip_error_set(&error, ZIP_ER_OPNOTSUPP, 0);
            return -1;
    }
}

zip_int64_t ZipReader::Archive::Give(char* data, zip_uint64_t length) {
    const qint64 most = std::min(qint64(std::min<zip_uint64_t>(length, kMostAtOnce)), bytes->Size() - at);
    mayStillRead -= most;
    const QByteArray piece = mayStillRead < 0 ? QByteArray() : bytes->At(at, most);
    if (piece.size() != most) {
        zip_error_set(&error, ZIP_ER_READ, 0);
        return -1;
    }
    std::copy(piece.begin(), piece.end(), data);
    at += most;
    return most;
}

zip_int64_t ZipReader::Archive::GoTo(void* data, zip_uint64_t length) {
    const zip_int64_t to =
        zip_source_seek_compute_offset(zip_uint64_t(at), zip_uint64_t(bytes->Size()), data, length, &error);
    if (to < 0) return -1;
    at = to;
    return 0;
}

zip_int64_t ZipReader::Archive::Tell(char* data, zip_uint64_t length) const {
    zip_stat_t told;
    zip_stat_init(&told);
    told.valid = ZIP_STAT_SIZE;
    told.size = zip_uint64_t(bytes->Size());
    if (length < sizeof told) return -1;
    std::memcpy(data, &told, sizeof told);
    return sizeof told;
}

namespace {

// What the upper half of an entry's attributes says it is, on the systems that know more than files.
constexpr zip_uint32_t kKindOfFile = 0170000;
constexpr zip_uint32_t kRegular = 0100000;
constexpr zip_uint32_t kFolder = 0040000;
// And the lower half on others: the name of a disk, a device, something that leads elsewhere.
constexpr zip_uint32_t kDiskNameDeviceOrLink = 0x08 | 0x40 | 0x400;

ZipReader::Kind KindOf(zip_uint32_t attributes, const QString& sName) {
    const zip_uint32_t kind = (attributes >> 16U) & kKindOfFile;
    if (attributes & kDiskNameDeviceOrLink) return ZipReader::Kind::Special;
    if (sName.endsWith(u'/')) return kind == 0 || kind == kFolder ? ZipReader::Kind::Folder : ZipReader::Kind::Special;
    return kind == 0 || kind == kRegular ? ZipReader::Kind::File : ZipReader::Kind::Special;
}

// Empty when it isn't text.
QString TextOf(const char* name) {
    const QByteArray bytes(name);
    const QString text = QString::fromUtf8(bytes);
    return text.toUtf8() == bytes ? text : QString();
}

// Archives of four gigabytes and more say in a place of their own how many entries they have, which the library
// believes and makes room for before it has seen one. No game is so large.
bool CountsBeyondAFile(ZipSource& source) {
    constexpr qint64 kPlace = 20;
    constexpr qint64 kEnd = 22;
    constexpr qint64 kMostBehindTheEnd = 0xFFFF;
    const qint64 tail = std::min(source.Size(), kPlace + kEnd + kMostBehindTheEnd);
    const QByteArray bytes = source.At(source.Size() - tail, tail);
    for (qsizetype i = bytes.indexOf("PK\x06\x07"); i >= 0; i = bytes.indexOf("PK\x06\x07", i + 1)) {
        if (QByteArrayView(bytes).sliced(i).sliced(std::min(kPlace, bytes.size() - i)).startsWith("PK\x05\x06"))
            return true;
    }
    return false;
}

} // namespace

ZipReader::ZipReader(std::shared_ptr<Archive> archive) : m_archive(std::move(archive)) {
    const zip_int64_t count = zip_get_num_entries(m_archive->zip, 0);
    m_entries.reserve(count);
    for (zip_int64_t i = 0; i < count; ++i)
        m_entries.append(EntryAt(i));
}

std::optional<ZipReader> ZipReader::Open(std::shared_ptr<ZipSource> source) {
    // The library takes no bytes at all for an archive without entries.
    if (source->Size() == 0 || CountsBeyondAFile(*source)) return std::nullopt;
    auto archive = std::make_shared<Archive>(std::move(source));
    if (!archive->zip) return std::nullopt;
    return ZipReader(std::move(archive));
}

std::optional<ZipReader> ZipReader::Open(const QByteArray& bytes) { return Open(std::make_shared<ZipBytes>(bytes)); }

ZipReader::Entry ZipReader::EntryAt(qsizetype iEntry) const {
    Entry entry;
    const auto place = zip_uint64_t(iEntry);
    entry.sName = TextOf(zip_get_name(m_archive->zip, place, ZIP_FL_ENC_RAW));
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    if (zip_file_get_external_attributes(m_archive->zip, place, 0, &system, &attributes) == 0)
        entry.kind = KindOf(attributes, entry.sName);
    zip_stat_t told;
    zip_stat_init(&told);
    if (zip_stat_index(m_archive->zip, place, 0, &told) != 0 || !(told.valid & ZIP_STAT_SIZE)) return entry;
    entry.size = qint64(told.size);
    if (told.valid & ZIP_STAT_COMP_SIZE) entry.packedSize = qint64(told.comp_size);
    const bool known = told.comp_method == ZIP_CM_STORE || told.comp_method == ZIP_CM_DEFLATE;
    entry.bReadable = entry.size >= 0 && known && told.encryption_method == ZIP_EM_NONE;
    return entry;
}

std::optional<QByteArray> ZipReader::Read(qsizetype iEntry) const {
    QByteArray bytes;
    bytes.reserve(m_entries.at(iEntry).size);
    const bool well = Read(iEntry, [&bytes](const QByteArray& piece) {
        bytes += piece;
        return true;
    });
    if (!well) return std::nullopt;
    return bytes;
}

bool ZipReader::Read(qsizetype iEntry, const Taker& take) const {
    constexpr qint64 kPiece = qint64(1) << 20;
    zip_file_t* const file = zip_fopen_index(m_archive->zip, zip_uint64_t(iEntry), 0);
    if (!file) return false;
    qint64 left = m_entries.at(iEntry).size;
    bool well = true;
    while (well && left > 0) {
        QByteArray piece(std::min(left, kPiece), Qt::Uninitialized);
        well = zip_fread(file, piece.data(), zip_uint64_t(piece.size())) == piece.size() && take(piece);
        left -= piece.size();
    }
    // Only behind the last byte is the checksum looked at; and more than what was said is as wrong as less.
    char more = 0;
    const bool ends = well && zip_fread(file, &more, 1) == 0;
    return zip_fclose(file) == 0 && ends;
}
