// SPDX-License-Identifier: MIT
#include "platform/pictures/ShrinkPicture.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/paint/Resample.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureFormat.h"

#include <QBuffer>

#include <algorithm>

namespace {

bool IsPhoto(const QString& sPath) {
    constexpr qint64 kHead = 64;
    BinaryFile file;
    QString error;
    if (!file.OpenForReading(sPath, error)) return false;
    switch (PictureFormatOf(file.Bytes(kHead))) {
        case PictureFormat::Bmp:
        case PictureFormat::Jpeg:
        case PictureFormat::Png:
        case PictureFormat::WebP:
        case PictureFormat::Tiff:
        case PictureFormat::Heif:
            return true;
        case PictureFormat::Gif:
        case PictureFormat::Metafile:
        case PictureFormat::Unknown:
            break;
    }
    return false;
}

QByteArray Encoded(const QImage& image, const char* format, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format, quality) ? bytes : QByteArray();
}

} // namespace

std::optional<SmallerPicture> ShrinkPicture(const QString& sPath, int longerSide) {
    // On paper nobody tells it from the best.
    constexpr int kQuality = 92;
    constexpr int kBest = -1;
    QString error;
    const Picture picture = IsPhoto(sPath) ? LoadPicture(sPath, error, longerSide) : Picture();
    const int longer = std::max(picture.Width(), picture.Height());
    if (picture.IsNull() || longerSide <= 0 || longerSide >= longer) return std::nullopt;
    const double factor = double(longerSide) / longer;
    const QSize size(std::max(qRound(picture.Width() * factor), 1), std::max(qRound(picture.Height() * factor), 1));
    const QImage image = Resample(picture.Image(), QRectF(picture.Image().rect()), size);
    const bool clear = picture.Image().hasAlphaChannel();
    const SmallerPicture smaller{clear ? Encoded(image, "PNG", kBest) : Encoded(image, "JPEG", kQuality),
                                 clear ? QStringLiteral(".png") : QStringLiteral(".jpg"), factor};
    if (smaller.bytes.isEmpty() || smaller.bytes.size() >= Files::Size(sPath)) return std::nullopt;
    return smaller;
}
