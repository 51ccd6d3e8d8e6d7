// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureHead.h"

#include "platform/pictures/CameraTags.h"
#include "platform/pictures/HeifLibrary.h"
#include "platform/pictures/JpegMarkers.h"
#include "platform/pictures/Metafile.h"
#include "platform/pictures/PictureFile.h"

#include <QBuffer>
#include <QImageReader>

#include <turbojpeg.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

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

std::optional<QSize> SizeByReader(QIODevice& file, const char* sFormat) {
    file.seek(0);
    QImageReader reader(&file, sFormat);
    reader.setAutoDetectImageFormat(false);
    // A bitmap that is stored from its top has a height below 0.
    const QSize told = reader.size();
    if (told.width() <= 0) return std::nullopt;
    const QSize size(told.width(), std::abs(told.height()));
    // 5 and above stand on their side.
    constexpr int kFirstOnSide = 5;
    const bool onSide = reader.transformation() & QImageIOHandler::TransformationRotate90 ||
                        (reader.transformation() == QImageIOHandler::TransformationNone &&
                         ReadCameraTagsOfChunks(file).orientation >= kFirstOnSide);
    return onSide ? size.transposed() : size;
}

std::optional<QSize> SizeByReader(QByteArray bytes, const char* sFormat) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return SizeByReader(buffer, sFormat);
}

/// One file, of which no more is read than its kind needs.
class HeadReader {
public:
    explicit HeadReader(QString& sError) : m_error(sError) {}

    std::optional<PictureHead> Read(const QString& sPath) {
        if (!m_file.Open(sPath, m_error)) return std::nullopt;
        const PictureFormat format = m_file.Format();
        if (format == PictureFormat::Unknown) {
            m_error = QStringLiteral("The file does not hold a picture of a known kind");
            return std::nullopt;
        }
        if (format == PictureFormat::Metafile) return Drawing();
        const std::optional<QSize> size = SizeAs(format);
        const bool jpeg = format == PictureFormat::Jpeg;
        if (!m_file.WasRead(m_error)) return std::nullopt;
        if (size && (jpeg ? IsJpegSizeAllowed(*size) : IsSizeAllowed(*size))) return PictureHead{*size};
        if (m_error.isEmpty()) m_error = size && !size->isEmpty() ? TooLargeToOpen(*size) : kDamaged;
        return std::nullopt;
    }

private:
    std::optional<PictureHead> Drawing() {
        const std::optional<QByteArray> bytes = m_file.Whole(m_error);
        if (!bytes || !Metafile::FromBytes(*bytes, m_error)) return std::nullopt;
        return PictureHead{{}, true};
    }

    // The decoder shows no picture of this kind that is cut short, which its last bytes tell.
    bool EndsWell() {
        constexpr int kEndChunk = 12;
        return m_file.seek(std::max<qint64>(m_file.size() - kEndChunk, 0)) && m_file.read(kEndChunk).contains("IEND");
    }

    std::optional<QSize> SizeAs(PictureFormat format) {
        switch (format) {
            case PictureFormat::Png:
                return EndsWell() ? SizeByReader(m_file, "png") : std::nullopt;
            case PictureFormat::Bmp:
                return IsBmpWhole(m_file.Start(), m_file.size()) ? SizeByReader(m_file, "bmp") : std::nullopt;
            case PictureFormat::Tiff:
                return SizeByReader(m_file, "tiff");
            case PictureFormat::Jpeg:
                if (const std::optional<QSize> size = SizeOfJpeg(m_file.Start())) return size;
                break;
            default:
                break;
        }
        const std::optional<QByteArray> bytes = m_file.Whole(m_error);
        return bytes ? SizeOfWhole(format, *bytes) : std::nullopt;
    }

    std::optional<QSize> SizeOfWhole(PictureFormat format, const QByteArray& bytes) {
        switch (format) {
            case PictureFormat::Jpeg:
                return SizeOfJpeg(bytes);
            case PictureFormat::WebP:
                // The camera's notes stand behind the pixels.
                return SizeByReader(bytes, "webp");
            case PictureFormat::Gif:
                return IsGifWhole(bytes) ? SizeByReader(bytes, "gif") : std::nullopt;
            default:
                return SizeOfHeif(bytes, m_error);
        }
    }

    QString& m_error;
    PictureFile m_file;
};

} // namespace

std::optional<PictureHead> ReadPictureHead(const QString& sPath, QString& sError) {
    sError.clear();
    return HeadReader(sError).Read(sPath);
}
