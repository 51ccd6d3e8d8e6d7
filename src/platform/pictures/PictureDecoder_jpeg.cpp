// SPDX-License-Identifier: MIT
#include "platform/pictures/DecodingRoom.h"
#include "platform/pictures/InkProfile.h"
#include "platform/pictures/JpegMarkers.h"
#include "platform/pictures/PictureDecoder.h"
#include "platform/pictures/PictureFormat.h"

#include <turbojpeg.h>

#include <memory>

namespace PictureDecoder {
namespace {

struct HandleEnd {
    void operator()(void* handle) const { tjDestroy(handle); }
};
using Handle = std::unique_ptr<void, HandleEnd>;

struct Head {
    int width = 0;
    int height = 0;
    int subsampling = 0;
    int colorSpace = 0;
};

const unsigned char* BytesOf(const QByteArray& bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

// Both give what the eye expects of four inks printed over each other.
QRgb FromInks(const uchar* inks, bool inverted) {
    const auto light = [inks, inverted](int i) { return inverted ? inks[i] : 255 - inks[i]; };
    return qRgb(light(0) * light(3) / 255, light(1) * light(3) / 255, light(2) * light(3) / 255);
}

void InksToScreen(QImage& image, const JpegMarkers& markers) {
    if (ToScreenByInkProfile(image, markers.isAdobe, markers.colorProfile)) return;
    for (int y = 0; y < image.height(); ++y) {
        uchar* row = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x, row += 4)
            *reinterpret_cast<QRgb*>(row) = FromInks(row, markers.isAdobe);
    }
}

enum class Outcome { Whole, Damaged, CutShort, Unreadable };

// Decodes all rows at the size of the image given. Four inks are decoded in place: they take 32 bits too.
Outcome DecodeRows(tjhandle handle, const QByteArray& bytes, const Head& head, QImage& image) {
    const bool inks = head.colorSpace == TJCS_CMYK || head.colorSpace == TJCS_YCCK;
    const bool reduced = image.width() < head.width;
    // A file with hundreds of passes over few pixels is made to keep a machine busy.
    const int flags = TJFLAG_LIMITSCANS | (reduced ? TJFLAG_FASTDCT | TJFLAG_FASTUPSAMPLE : 0);
    const int result =
        tjDecompress2(handle, BytesOf(bytes), static_cast<unsigned long>(bytes.size()), image.bits(), image.width(),
                      int(image.bytesPerLine()), image.height(), inks ? TJPF_CMYK : TJPF_BGRA, flags);
    if (result == 0) return Outcome::Whole;
    if (tjGetErrorCode(handle) != TJERR_WARNING) return Outcome::Unreadable;
    const bool cutShort = QByteArrayView(tjGetErrorStr2(handle)).startsWith("Premature end");
    return cutShort ? Outcome::CutShort : Outcome::Damaged;
}

// A file that only lacks its end mark holds every pixel; with the mark put behind it nothing is missing.
Outcome DecodeLeniently(tjhandle handle, const QByteArray& bytes, const Head& head, QImage& image) {
    const Outcome outcome = DecodeRows(handle, bytes, head, image);
    if (outcome != Outcome::CutShort) return outcome;
    const Outcome again = DecodeRows(handle, bytes + QByteArray("\xFF\xD9"), head, image);
    return again == Outcome::Whole ? Outcome::Whole : Outcome::CutShort;
}

} // namespace

Picture DecodeJpeg(const QByteArray& bytes, int longerSideWanted, QString& sError) {
    const Handle handle(tjInitDecompress());
    Head head;
    if (tjDecompressHeader3(handle.get(), BytesOf(bytes), static_cast<unsigned long>(bytes.size()), &head.width,
                            &head.height, &head.subsampling, &head.colorSpace) != 0) {
        sError = QString::fromLatin1(tjGetErrorStr2(handle.get()));
        return {};
    }
    const QSize full(head.width, head.height);
    const JpegMarkers markers = ReadJpegMarkers(bytes);
    // One in passes is held whole ahead of any reduction.
    if (!(markers.inPasses ? IsSizeAllowed(full) : IsJpegSizeAllowed(full))) {
        sError = TooLargeToOpen(full);
        return {};
    }
    const int reduction = ReductionFor(std::max(head.width, head.height), longerSideWanted);
    const tjscalingfactor factor{1, IsSizeAllowed(full) ? reduction : std::max(reduction, 2)};
    const QSize size(TJSCALED(head.width, factor), TJSCALED(head.height, factor));
    const DecodingRoom room(size);
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        sError = QStringLiteral("There is not enough memory for the picture");
        return {};
    }
    const Outcome outcome = DecodeLeniently(handle.get(), bytes, head, image);
    if (outcome == Outcome::Unreadable || outcome == Outcome::CutShort) {
        sError = outcome == Outcome::CutShort ? QStringLiteral("The picture file is cut short")
                                              : QString::fromLatin1(tjGetErrorStr2(handle.get()));
        return {};
    }
    if (head.colorSpace == TJCS_CMYK || head.colorSpace == TJCS_YCCK) {
        InksToScreen(image, markers);
    } else {
        image = InScreenColors(std::move(image), markers.colorProfile);
    }
    const bool onItsSide = markers.orientation >= 5;
    return Picture(Upright(image, markers.orientation), onItsSide ? full.transposed() : full);
}

} // namespace PictureDecoder
