// SPDX-License-Identifier: MIT
#include "pack/ZipWriter.h"

#include <zip.h>

#include <algorithm>
#include <cstring>
#include <memory>

/// Reads one entry for the library, which asks for it piece by piece.
class ZipEntrySource {
public:
    static zip_source_t* Create(ZipWriter::Entry& entry) {
        auto source = std::make_unique<ZipEntrySource>(entry);
        zip_source_t* const made = zip_source_function_create(&Answer, source.get(), nullptr);
        // From here on it is the library's, which tells when it needs it no more.
        if (made) [[maybe_unused]]
            auto* const given = source.release();
        return made;
    }
    explicit ZipEntrySource(ZipWriter::Entry& entry) : m_entry(entry) { zip_error_init(&m_error); }
    ~ZipEntrySource() { zip_error_fini(&m_error); }
    ZipEntrySource(const ZipEntrySource&) = delete;
    ZipEntrySource& operator=(const ZipEntrySource&) = delete;

private:
    static zip_int64_t Answer(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
        auto* const source = static_cast<ZipEntrySource*>(self);
        if (command == ZIP_SOURCE_FREE) {
            delete source;
            return 0;
        }
        return source->Do(command, static_cast<char*>(data), length);
    }

    zip_int64_t Do(zip_source_cmd_t command, char* data, zip_uint64_t length) {
        switch (command) {
            case ZIP_SOURCE_SUPPORTS:
                return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                                      ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, -1);
            case ZIP_SOURCE_OPEN:
                return Open();
            case ZIP_SOURCE_READ:
                return Read(data, length);
            case ZIP_SOURCE_CLOSE:
                m_bytes.clear();
                return 0;
            case ZIP_SOURCE_STAT:
                return Tell(data, length);
            case ZIP_SOURCE_ERROR:
                return zip_error_to_data(&m_error, data, length);
            default:
                zip_error_set(&m_error, ZIP_ER_OPNOTSUPP, 0);
                return -1;
        }
    }

    zip_int64_t Open() {
        const std::optional<QByteArray> bytes = m_entry.content(m_entry.sError);
        if (bytes && bytes->size() == m_entry.size) {
            m_bytes = *bytes;
            m_at = 0;
            return 0;
        }
        if (bytes) m_entry.sError = QStringLiteral("The file was changed in the meantime");
        zip_error_set(&m_error, ZIP_ER_READ, 0);
        return -1;
    }

    zip_int64_t Read(char* data, zip_uint64_t length) {
        const qsizetype step = qsizetype(std::min(length, zip_uint64_t(m_bytes.size() - m_at)));
        std::memcpy(data, m_bytes.constData() + m_at, size_t(step));
        m_at += step;
        return step;
    }

    zip_int64_t Tell(char* data, zip_uint64_t length) const {
        zip_stat_t told;
        zip_stat_init(&told);
        told.valid = ZIP_STAT_SIZE;
        told.size = zip_uint64_t(m_entry.size);
        if (length < sizeof told) return -1;
        std::memcpy(data, &told, sizeof told);
        return sizeof told;
    }

    ZipWriter::Entry& m_entry;
    QByteArray m_bytes;
    qsizetype m_at = 0;
    zip_error_t m_error{};
};

namespace {

// The first day that a zip file can name.
constexpr zip_uint16_t kNoTime = 0;
constexpr zip_uint16_t kFirstDay = (1U << 5U) | 1U;
// A regular file that its owner may write and everybody may read.
constexpr zip_uint32_t kPlainFile = 0100644U << 16U;
// Small enough to be quick; the pictures that are shrunk by it come from old programs.
constexpr zip_uint32_t kLevel = 6;

struct SourceFreed {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using SourceHolder = std::unique_ptr<zip_source_t, SourceFreed>;

struct ArchiveDiscarded {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using ArchiveHolder = std::unique_ptr<zip_t, ArchiveDiscarded>;

QString Sentence(const zip_t* archive) { return QString::fromUtf8(zip_strerror(const_cast<zip_t*>(archive))); }

bool Put(zip_t* archive, const QByteArray& name, ZipWriter::Method method, zip_source_t* source) {
    // No source, where there is too little memory for one, is refused like any other.
    const zip_int64_t index = zip_file_add(archive, name.constData(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    const zip_int32_t how = method == ZipWriter::Method::Stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE;
    const auto place = zip_uint64_t(index);
    return zip_set_file_compression(archive, place, how, kLevel) == 0 &&
           zip_file_set_dostime(archive, place, kNoTime, kFirstDay, 0) == 0 &&
           zip_file_set_external_attributes(archive, place, 0, ZIP_OPSYS_UNIX, kPlainFile) == 0;
}

// What the closed archive has written into the source.
std::optional<QByteArray> BytesOf(zip_source_t* source) {
    if (zip_source_open(source) != 0) return std::nullopt;
    zip_stat_t told;
    zip_stat_init(&told);
    QByteArray bytes;
    if (zip_source_stat(source, &told) == 0 && (told.valid & ZIP_STAT_SIZE))
        bytes = QByteArray(qsizetype(told.size), Qt::Uninitialized);
    const zip_int64_t read = zip_source_read(source, bytes.data(), zip_uint64_t(bytes.size()));
    zip_source_close(source);
    if (read != bytes.size() || bytes.isEmpty()) return std::nullopt;
    return bytes;
}

} // namespace

void ZipWriter::Add(const QString& sName, Method method, qint64 size, Content content) {
    m_entries.push_back({sName.toUtf8(), method, size, std::move(content), QString()});
}

void ZipWriter::Add(const QString& sName, Method method, const QByteArray& bytes) {
    Add(sName, method, bytes.size(), [bytes](QString&) { return bytes; });
}

std::optional<QByteArray> ZipWriter::Finish(QString& sError) {
    const SourceHolder target(zip_source_buffer_create(nullptr, 0, 0, nullptr));
    if (!target) return std::nullopt;
    // An archive frees its source.
    zip_source_keep(target.get());
    ArchiveHolder archive(zip_open_from_source(target.get(), ZIP_TRUNCATE, nullptr));
    if (!archive) {
        zip_source_free(target.get());
        return std::nullopt;
    }
    bool well = true;
    for (Entry& entry : m_entries)
        well = well && Put(archive.get(), entry.sName, entry.method, ZipEntrySource::Create(entry));
    if (!well || zip_close(archive.get()) != 0) {
        const auto failed = std::find_if(m_entries.begin(), m_entries.end(),
                                         [](const Entry& entry) { return !entry.sError.isEmpty(); });
        sError = failed == m_entries.end() ? Sentence(archive.get()) : failed->sError;
        return std::nullopt;
    }
    [[maybe_unused]] zip_t* const closed = archive.release();
    std::optional<QByteArray> bytes = BytesOf(target.get());
    if (!bytes) sError = QStringLiteral("There is too little memory");
    return bytes;
}
