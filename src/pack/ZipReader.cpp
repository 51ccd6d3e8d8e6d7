// SPDX-License-Identifier: MIT
#include "pack/ZipReader.h"

#include <zip.h>

#include <algorithm>

/// The library's archive and the bytes it reads.
struct ZipReader::Archive {
    QByteArray bytes;
    zip_t* zip = nullptr;

    explicit Archive(const QByteArray& given) : bytes(given) {
        zip_source_t* const source =
            zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, nullptr);
        if (!source) return;
        zip = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
        if (!zip) zip_source_free(source);
    }
    ~Archive() {
        if (zip) zip_discard(zip);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
};

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

} // namespace

ZipReader::ZipReader(std::shared_ptr<Archive> archive) : m_archive(std::move(archive)) {
    const zip_int64_t count = zip_get_num_entries(m_archive->zip, 0);
    m_entries.reserve(count);
    for (zip_int64_t i = 0; i < count; ++i)
        m_entries.append(EntryAt(i));
}

std::optional<ZipReader> ZipReader::Open(const QByteArray& bytes) {
    auto archive = std::make_shared<Archive>(bytes);
    // The library takes no bytes at all for an archive without entries.
    if (!archive->zip || bytes.isEmpty()) return std::nullopt;
    return ZipReader(std::move(archive));
}

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
