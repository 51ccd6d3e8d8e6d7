// SPDX-License-Identifier: MIT
// Takes any bytes for a picture file and makes the decisions that come before and behind the decoders: which
// kind it is, whether it is whole and of a bearable size, how a camera held it, how much of it is decoded.
// Small photographs and bitmaps are decoded, too.
#include "platform/paint/Resample.h"
#include "platform/pictures/JpegMarkers.h"
#include "platform/pictures/PictureDecoder.h"
#include "platform/pictures/PictureFormat.h"

#include <QGuiApplication>
#include <QtEndian>

#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

namespace {

// The decoders have tests of their own; pictures of many pixels would only take time.
bool IsSmall(const QByteArray& bytes, PictureFormat format) {
    constexpr int kMostBytes = 4096;
    if (bytes.size() > kMostBytes) return false;
    constexpr int kMostPixels = 128;
    if (format == PictureFormat::Bmp) {
        const auto isShort = [&](int at) {
            const qint32 side = qFromLittleEndian<qint32>(bytes.constData() + at);
            return side >= -kMostPixels && side <= kMostPixels;
        };
        return IsBmpWhole(bytes, bytes.size()) && bytes.size() > 26 && isShort(18) && isShort(22);
    }
    if (format != PictureFormat::Jpeg) return false;
    // Height and width behind the frame marker.
    for (const char* marker : {"\xFF\xC0", "\xFF\xC1", "\xFF\xC2"}) {
        for (qsizetype at = bytes.indexOf(marker); at >= 0; at = bytes.indexOf(marker, at + 2)) {
            if (at + 9 > bytes.size()) return false;
            const auto number = [&](qsizetype i) { return quint8(bytes[i]) << 8 | quint8(bytes[i + 1]); };
            if (number(at + 5) > kMostPixels || number(at + 7) > kMostPixels) return false;
        }
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const PictureFormat format = PictureFormatOf(bytes);
    IsBmpWhole(bytes, bytes.size());
    IsGifWhole(bytes);
    const JpegMarkers markers = ReadJpegMarkers(bytes);
    if (markers.orientation < 1 || markers.orientation > 8) std::abort();
    if (!IsSmall(bytes, format)) return 0;

    QString error;
    const int wanted = size % 2 == 0 ? kAllPixels : 16;
    const Picture picture = PictureDecoder::Decode(bytes, wanted, error);
    if (picture.IsNull()) {
        if (error.isEmpty()) std::abort();
        return 0;
    }
    if (!IsSizeAllowed(picture.Image().size())) std::abort();
    if (!IsJpegSizeAllowed(QSize(picture.Width(), picture.Height()))) std::abort();
    const QRectF part = picture.PartOfImage(QRectF(-3.5, 1, picture.Width(), picture.Height()));
    if (Resample(picture.Image(), part, QSize(7, 5)).size() != QSize(7, 5)) std::abort();
    return 0;
}
