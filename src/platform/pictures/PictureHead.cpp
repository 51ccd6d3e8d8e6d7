// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureHead.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/pictures/CameraTags.h"
#include "platform/pictures/HeifLibrary.h"
#include "platform/pictures/JpegMarkers.h"
#include "platform/pictures/Metafile.h"
#include "platform/pictures/PictureFormat.h"

#include <QBuffer>
#include <QImageReader>

#include <turbojpeg.h>

#include <cstdlib>
#include <memory>

namespace {

// Room for what cameras put ahead of the pixels: their notes and a thumbnail.
constexpr qint64 kHeadBytes = qint64(256) << 10;

const QString kDamaged = QStringLiteral("The picture file is damaged or cut short");

// Turned on its side where a camera says so.
std::optional<QSize> SizeOfJpeg(const QByteArray& bytes) {
    const std::unique_ptr<void, decltype(&tjDestroy)> handle(tjInitDecompress(), tjDestroy);
    int width = 0;
    int height = 0;
    int subsampling = 0;
    int colors = 0;
    if (tjDecompressHeader3(handle.get(), reinterpret_cast<const unsigned char*>(bytes.constData()),
                            static_cast<unsigned long>(bytes.size()), &width, &height, &subsampling, &colors) != 0 ||
        width == 0)
        return std::nullopt;
    const QSize size(width, height);
    return ReadJpegMarkers(bytes).orientation >= 5 ? size.transposed() : size;
}

// The library turns such pictures by itself.
std::optional<QSize> SizeOfHeif(const QByteArray& bytes, QString& sError) {
    const HeifLibrary* const heif = HeifLibrary::Get();
    if (!heif) {
        sError = QStringLiteral("This computer lacks the library for such photos (libheif)");
        return std::nullopt;
    }
    const std::unique_ptr<heif_context, decltype(&heif_context_free)> context(heif->context_alloc(),
                                                                              heif->context_free);
    heif_image_handle* handle = nullptr;
    if (heif->context_read_from_memory_without_copy(context.get(), bytes.constData(), size_t(bytes.size()), nullptr)
                .code != heif_error_Ok ||
        heif->context_get_primary_image_handle(context.get(), &handle).code != heif_error_Ok)
        return std::nullopt;
    const std::unique_ptr<const heif_image_handle, decltype(&heif_image_handle_release)> end(
        handle, heif->image_handle_release);
    return QSize(heif->image_handle_get_width(handle), heif->image_handle_get_height(handle));
}

std::optional<QSize> SizeByReader(QByteArray bytes, const char* sFormat) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, sFormat);
    reader.setAutoDetectImageFormat(false);
    // A bitmap that is stored from its top has a height below 0.
    const QSize told = reader.size();
    if (told.width() <= 0) return std::nullopt;
    const QSize size(told.width(), std::abs(told.height()));
    // 5 and above stand on their side.
    constexpr int kFirstOnSide = 5;
    const bool onSide = reader.transformation() & QImageIOHandler::TransformationRotate90 ||
                        (reader.transformation() == QImageIOHandler::TransformationNone &&
                         ReadCameraTagsOfChunks(bytes).orientation >= kFirstOnSide);
    return onSide ? size.transposed() : size;
}

/// One file, of which no more is read than its kind needs.
class HeadReader {
public:
    HeadReader(const QString& sPath, QString& sError) : m_path(sPath), m_error(sError) {}

    std::optional<PictureHead> Read() {
        BinaryFile file;
        if (!file.OpenForReading(m_path, m_error)) return std::nullopt;
        m_bytes = file.Bytes(kHeadBytes);
        m_whole = file.AtEnd();
        if (!file.WasRead(m_error)) return std::nullopt;
        const PictureFormat format = PictureFormatOf(m_bytes);
        if (format == PictureFormat::Unknown) {
            m_error = QStringLiteral("The file does not hold a picture of a known kind");
            return std::nullopt;
        }
        if (format == PictureFormat::Metafile) return Drawing();
        const std::optional<QSize> size = SizeAs(format, file);
        const bool jpeg = format == PictureFormat::Jpeg;
        if (size && (jpeg ? IsJpegSizeAllowed(*size) : IsSizeAllowed(*size))) return PictureHead{*size};
        if (m_error.isEmpty()) m_error = size && !size->isEmpty() ? TooLargeToOpen(*size) : kDamaged;
        return std::nullopt;
    }

private:
    bool ReadWhole() {
        if (m_whole) return true;
        const std::optional<QByteArray> bytes = Files::ReadAll(Files::InDiskSpelling(m_path), m_error);
        m_bytes = bytes.value_or(QByteArray());
        m_whole = bytes.has_value();
        return m_whole;
    }

    std::optional<PictureHead> Drawing() {
        if (!ReadWhole() || !Metafile::FromBytes(m_bytes, m_error)) return std::nullopt;
        return PictureHead{{}, true};
    }

    // The decoder shows no picture of this kind that is cut short, which its last bytes tell.
    bool EndsWell(BinaryFile& file) {
        constexpr int kEndChunk = 12;
        file.Seek(Files::Size(Files::InDiskSpelling(m_path)) - kEndChunk);
        return file.Bytes(kEndChunk).contains("IEND");
    }

    std::optional<QSize> SizeAs(PictureFormat format, BinaryFile& file) {
        switch (format) {
            case PictureFormat::Png:
                return EndsWell(file) ? SizeByReader(m_bytes, "png") : std::nullopt;
            case PictureFormat::WebP:
                // The camera's notes stand behind the pixels.
                return ReadWhole() ? SizeByReader(m_bytes, "webp") : std::nullopt;
            case PictureFormat::Jpeg:
                if (const std::optional<QSize> size = SizeOfJpeg(m_bytes)) return size;
                return !m_whole && ReadWhole() ? SizeOfJpeg(m_bytes) : std::nullopt;
            default:
                return ReadWhole() ? SizeOfWhole(format) : std::nullopt;
        }
    }

    std::optional<QSize> SizeOfWhole(PictureFormat format) {
        switch (format) {
            case PictureFormat::Bmp:
                return IsBmpWhole(m_bytes) ? SizeByReader(m_bytes, "bmp") : std::nullopt;
            case PictureFormat::Gif:
                return IsGifWhole(m_bytes) ? SizeByReader(m_bytes, "gif") : std::nullopt;
            case PictureFormat::Tiff:
                return SizeByReader(m_bytes, "tiff");
            default:
                return SizeOfHeif(m_bytes, m_error);
        }
    }

    QString m_path;
    QString& m_error;
    QByteArray m_bytes;
    bool m_whole = false;
};

} // namespace

std::optional<PictureHead> ReadPictureHead(const QString& sPath, QString& sError) {
    sError.clear();
    return HeadReader(sPath, sError).Read();
}
