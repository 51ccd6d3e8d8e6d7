// SPDX-License-Identifier: MIT
#include "platform/pictures/DecodingRoom.h"
#include "platform/pictures/HeifLibrary.h"
#include "platform/pictures/PictureDecoder.h"
#include "platform/pictures/PictureFormat.h"

#include <cstring>
#include <memory>

namespace PictureDecoder {
namespace {

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using ImageHandle = std::unique_ptr<const heif_image_handle, decltype(&heif_image_handle_release)>;
using Image = std::unique_ptr<heif_image, decltype(&heif_image_release)>;

bool Failed(const heif_error& error, QString& sError) {
    if (error.code == heif_error_Ok) return false;
    sError = QString::fromUtf8(error.message);
    return true;
}

QByteArray ColorProfileOf(const HeifLibrary& heif, const heif_image_handle* handle) {
    QByteArray profile(qsizetype(heif.image_handle_get_raw_color_profile_size(handle)), '\0');
    if (profile.isEmpty() || heif.image_handle_get_raw_color_profile(handle, profile.data()).code != heif_error_Ok)
        return {};
    return profile;
}

// In place: a second copy of a large photograph is a lot of memory.
void ToScreenOrder(uint8_t* plane, QSize size, int stride, bool transparent) {
    for (int y = 0; y < size.height(); ++y) {
        uint8_t* at = plane + qsizetype(y) * stride;
        for (int x = 0; x < size.width(); ++x, at += sizeof(QRgb)) {
            const QRgb pixel = qRgba(at[0], at[1], at[2], transparent ? at[3] : 255);
            const QRgb onScreen = transparent ? qPremultiply(pixel) : pixel;
            std::memcpy(at, &onScreen, sizeof(QRgb));
        }
    }
}

// The pixels stay where the library has put them as long as anybody holds the picture.
void Release(void* image) { HeifLibrary::Get()->image_release(static_cast<const heif_image*>(image)); }

} // namespace

// The library turns and mirrors the picture as the file says, so the orientation tag that such files carry
// as well must not be looked at: the picture would be turned twice.
Picture DecodeHeif(QByteArrayView bytes, QString& sError) {
    const HeifLibrary* const library = HeifLibrary::Get();
    if (!library) {
        sError = QStringLiteral("This computer lacks the library for such photos (libheif)");
        return {};
    }
    const HeifLibrary& heif = *library;
    const Context context(heif.context_alloc(), heif.context_free);
    if (Failed(heif.context_read_from_memory_without_copy(context.get(), bytes.data(), size_t(bytes.size()), nullptr),
               sError))
        return {};
    heif_image_handle* rawHandle = nullptr;
    if (Failed(heif.context_get_primary_image_handle(context.get(), &rawHandle), sError)) return {};
    const ImageHandle handle(rawHandle, heif.image_handle_release);
    const QSize told(heif.image_handle_get_width(rawHandle), heif.image_handle_get_height(rawHandle));
    if (!IsSizeAllowed(told)) {
        sError = QStringLiteral("The picture claims to be %1 by %2 pixels, which is more than can be opened")
                     .arg(told.width())
                     .arg(told.height());
        return {};
    }
    const DecodingRoom room(told);
    heif_image* rawImage = nullptr;
    if (Failed(heif.decode_image(rawHandle, &rawImage, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr),
               sError))
        return {};
    Image decoded(rawImage, heif.image_release);
    const QSize size(heif.image_get_primary_width(rawImage), heif.image_get_primary_height(rawImage));
    int stride = 0;
    uint8_t* const plane = heif.image_get_plane(rawImage, heif_channel_interleaved, &stride);
    if (!plane || !IsSizeAllowed(size) || stride < size.width() * 4) {
        sError = QStringLiteral("The picture could not be decoded");
        return {};
    }
    const bool transparent = heif.image_handle_has_alpha_channel(rawHandle);
    ToScreenOrder(plane, size, stride, transparent);
    const QImage::Format format = transparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    QImage image(plane, size.width(), size.height(), stride, format, Release, decoded.release());
    return Picture(InScreenColors(std::move(image), ColorProfileOf(heif, rawHandle)));
}

} // namespace PictureDecoder
