// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureDecoder.h"

#include "platform/paint/Resample.h"
#include "platform/pictures/CameraTags.h"
#include "platform/pictures/DecodingRoom.h"
#include "platform/pictures/JpegMarkers.h"
#include "platform/pictures/Metafile.h"
#include "platform/pictures/OtherKinds.h"
#include "platform/pictures/PictureFile.h"
#include "platform/pictures/PictureFormat.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <climits>
#include <mutex>
#include <optional>

namespace PictureDecoder {
namespace {

constexpr int kMostReduction = 8;

const QString kDamaged = QStringLiteral("The picture file is damaged or cut short");

QString WhyUnknown(const QByteArray& bytes) {
    const QString other = OtherKindOf(bytes, QString());
    return other.isEmpty() ? QStringLiteral("The file does not hold a picture of a known kind")
                           : QStringLiteral("The file is ") + other;
}

const char* ReaderName(PictureFormat format) {
    switch (format) {
        case PictureFormat::Bmp:
            return "bmp";
        case PictureFormat::Gif:
            return "gif";
        case PictureFormat::Png:
            return "png";
        case PictureFormat::WebP:
            return "webp";
        case PictureFormat::Tiff:
            return "tiff";
        default:
            return "";
    }
}

QSize ReducedSize(QSize size, int reduction) {
    return {(size.width() + reduction - 1) / reduction, (size.height() + reduction - 1) / reduction};
}

// A large PNG that is wanted small is averaged by its reader, row by row, and never stands in memory as a whole.
QSize SizeOfReader(PictureFormat format, QSize size, int longerSideWanted) {
    constexpr qint64 kMostPixelsOfAll = 16'000'000;
    if (format != PictureFormat::Png || qint64(size.width()) * size.height() <= kMostPixelsOfAll) return size;
    return ReducedSize(size, ReductionFor(std::max(size.width(), size.height()), longerSideWanted));
}

// One of the toolkit's readers. The room that the picture takes is left to the caller.
Picture Read(QIODevice& file, PictureFormat format, int longerSideWanted, std::optional<DecodingRoom>& room,
             QString& sError) {
    static std::once_flag limit;
    std::call_once(limit, [] { QImageReader::setAllocationLimit(int(kMaxPictureBytes >> 20)); });
    QImageReader reader(&file, ReaderName(format));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isValid() && !IsSizeAllowed(size)) {
        sError = TooLargeToOpen(size);
        return {};
    }
    const QSize given = SizeOfReader(format, size, longerSideWanted);
    room.emplace(size.isValid() ? given : QSize(1, 1));
    if (given != size) reader.setScaledSize(given);
    QImage image = reader.read();
    if (image.isNull()) {
        sError = reader.errorString();
        return {};
    }
    // Not all of the toolkit's readers look at what the camera says of this.
    const bool upright = reader.transformation() != QImageIOHandler::TransformationNone;
    if (!upright) image = Upright(image, ReadCameraTagsOfChunks(file).orientation);
    if (given == size) return Picture(image);
    return Picture(image, image.size() == given ? size : size.transposed());
}

// In place where the pixels are of 32 bits already: a second copy of a large photograph is a lot of memory.
QImage AsPixels(QImage image) {
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return image;
}

// Keeps no more pixels than will be drawn; formats without a fast reduced decoding come whole.
Picture Reduced(const QImage& image, int longerSideWanted) {
    const int reduction = ReductionFor(std::max(image.width(), image.height()), longerSideWanted);
    if (reduction == 1) return Picture(image);
    return Picture(Resample(image, QRectF(image.rect()), ReducedSize(image.size(), reduction)), image.size());
}

Picture DecodeByReader(QIODevice& file, PictureFormat format, int longerSideWanted, QString& sError) {
    std::optional<DecodingRoom> room;
    Picture picture = Read(file, format, longerSideWanted, room, sError);
    if (picture.IsNull()) return {};
    const QSize full(picture.Width(), picture.Height());
    if (!IsSizeAllowed(full)) {
        sError = TooLargeToOpen(full);
        return {};
    }
    QImage image = picture.Image();
    // In place, where nobody else has it.
    picture = Picture();
    image = InScreenColors(AsPixels(std::move(image)), {});
    return image.size() == full ? Reduced(image, longerSideWanted) : Picture(image, full);
}

// A drawing has no pixels of its own: it gets as many as are wanted, on nothing.
Picture DecodeMetafile(const QByteArray& bytes, int longerSideWanted, QString& sError) {
    constexpr int kLongerSide = 1200;
    const std::optional<Metafile> metafile = Metafile::FromBytes(bytes, sError);
    if (!metafile) return {};
    const QSize told = metafile->PlaceableSize();
    const QSize shape = told.isEmpty() ? QSize(1, 1) : told;
    const int side = longerSideWanted == kAllPixels ? kLongerSide : std::min(longerSideWanted, 2 * kLongerSide);
    QImage image(shape.scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    if (!metafile->Play(painter, QRectF(image.rect()))) {
        sError = QStringLiteral("The metafile holds nothing that can be drawn");
        return {};
    }
    painter.end();
    return Picture(image, shape.scaled(kLongerSide, kLongerSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
}

} // namespace

int ReductionFor(int longerSide, int longerSideWanted) {
    if (longerSideWanted == kAllPixels) return 1;
    int reduction = 1;
    while (reduction < kMostReduction && longerSide / (reduction * 2) >= longerSideWanted)
        reduction *= 2;
    return reduction;
}

SizesAlike SizesOfReduction(int longerSide, int iReduction) {
    return {iReduction == kMostReduction ? 1 : longerSide / (2 * iReduction) + 1,
            iReduction == 1 ? INT_MAX : longerSide / iReduction};
}

QImage InScreenColors(QImage image, const QByteArray& colorProfile) {
    if (!colorProfile.isEmpty()) image.setColorSpace(QColorSpace::fromIccProfile(colorProfile));
    if (image.colorSpace().isValid() && image.colorSpace() != QColorSpace(QColorSpace::SRgb))
        image.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
    image.setColorSpace(QColorSpace());
    return image;
}

Picture Decode(PictureFile& file, int longerSideWanted, QString& sError) {
    switch (const PictureFormat format = file.Format()) {
        case PictureFormat::Bmp:
        case PictureFormat::Png:
        case PictureFormat::Tiff: {
            if (format == PictureFormat::Bmp && !IsBmpWhole(file.Start(), file.size())) {
                sError = kDamaged;
                return {};
            }
            Picture picture = DecodeByReader(file, format, longerSideWanted, sError);
            // What it didn't get says nothing of the picture.
            return file.WasRead(sError) ? picture : Picture();
        }
        case PictureFormat::Unknown:
            return Decode(file.Start(), longerSideWanted, sError);
        default:
            const std::optional<QByteArray> bytes = file.Whole(sError);
            return bytes ? Decode(*bytes, longerSideWanted, sError) : Picture();
    }
}

Picture Decode(const QByteArray& bytes, int longerSideWanted, QString& sError) {
    const PictureFormat format = PictureFormatOf(bytes);
    switch (format) {
        case PictureFormat::Jpeg:
            return DecodeJpeg(bytes, longerSideWanted, sError);
        case PictureFormat::Heif: {
            const Picture picture = DecodeHeif(bytes, sError);
            return picture.IsNull() ? picture : Reduced(picture.Image(), longerSideWanted);
        }
        case PictureFormat::Metafile:
            return DecodeMetafile(bytes, longerSideWanted, sError);
        case PictureFormat::Unknown:
            sError = WhyUnknown(bytes);
            return {};
        default:
            break;
    }
    if ((format == PictureFormat::Bmp && !IsBmpWhole(bytes, bytes.size())) ||
        (format == PictureFormat::Gif && !IsGifWhole(bytes))) {
        sError = kDamaged;
        return {};
    }
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return DecodeByReader(buffer, format, longerSideWanted, sError);
}

} // namespace PictureDecoder
