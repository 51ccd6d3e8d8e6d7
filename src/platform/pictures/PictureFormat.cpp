// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureFormat.h"

#include <QtEndian>

#include <array>
#include <cstdlib>

namespace {

struct Signature {
    PictureFormat format;
    int offset;
    QByteArrayView bytes;
};

constexpr std::array<Signature, 11> kSignatures = {{
    {PictureFormat::Bmp, 0, "BM"},
    {PictureFormat::Jpeg, 0, "\xFF\xD8\xFF"},
    {PictureFormat::Gif, 0, "GIF87a"},
    {PictureFormat::Gif, 0, "GIF89a"},
    {PictureFormat::Png, 0, "\x89PNG\r\n\x1A\n"},
    {PictureFormat::WebP, 8, "WEBP"},
    {PictureFormat::Tiff, 0, QByteArrayView("II*\0", 4)},
    {PictureFormat::Tiff, 0, QByteArrayView("MM\0*", 4)},
    {PictureFormat::Heif, 4, "ftyp"},
    {PictureFormat::Metafile, 0, "\xD7\xCD\xC6\x9A"},
    // A plain metafile: in memory, header of nine words.
    {PictureFormat::Metafile, 0, QByteArrayView("\x01\x00\x09\x00", 4)},
}};

constexpr int kFileHeadSize = 14;
constexpr int kCoreHeadSize = 12;
constexpr int kInfoHeadSize = 40;
// Some writers leave out the padding behind the last row.
constexpr int kMissingPadding = 3;

template <typename T>
T At(QByteArrayView bytes, int offset) {
    return qFromLittleEndian<T>(bytes.data() + offset);
}

} // namespace

PictureFormat PictureFormatOf(QByteArrayView bytes) {
    for (const Signature& signature : kSignatures) {
        if (bytes.size() < signature.offset + signature.bytes.size()) continue;
        if (bytes.sliced(signature.offset, signature.bytes.size()) == signature.bytes) return signature.format;
    }
    return PictureFormat::Unknown;
}

bool IsSizeAllowed(QSize size) {
    constexpr int kBytesPerPixel = 4;
    return !size.isEmpty() && qint64(size.width()) * size.height() <= kMaxPictureBytes / kBytesPerPixel;
}

bool IsJpegSizeAllowed(QSize size) {
    return !size.isEmpty() && IsSizeAllowed(QSize((size.width() + 1) / 2, (size.height() + 1) / 2));
}

QString TooLargeToOpen(QSize size) {
    return QStringLiteral("The picture claims to be %1 by %2 pixels, which is more than can be opened")
        .arg(size.width())
        .arg(size.height());
}

bool IsBmpWhole(QByteArrayView start, qint64 size) {
    if (start.size() < kFileHeadSize + kCoreHeadSize) return false;
    const quint32 bits = At<quint32>(start, 10);
    const quint32 headSize = At<quint32>(start, 14);
    const bool core = headSize == kCoreHeadSize;
    if (!core && (headSize < kInfoHeadSize || start.size() < kFileHeadSize + kInfoHeadSize)) return false;
    const qint64 width = core ? At<quint16>(start, 18) : At<qint32>(start, 18);
    const qint64 height = core ? At<quint16>(start, 20) : std::abs(qint64(At<qint32>(start, 22)));
    const int depth = At<quint16>(start, core ? 24 : 28);
    if (width > INT_MAX / 64 || height > INT_MAX / 64 || depth > 32) return false;
    if (!IsSizeAllowed(QSize(int(width), int(height)))) return false;
    const quint32 compression = core ? 0 : At<quint32>(start, 30);
    constexpr quint32 kRunLength8 = 1;
    constexpr quint32 kRunLength4 = 2;
    // What run lengths make of it only the decoder knows.
    if (compression == kRunLength8 || compression == kRunLength4) return bits < size;
    const qint64 rowBytes = (width * depth + 31) / 32 * 4;
    return qint64(bits) + rowBytes * height <= size + kMissingPadding;
}

namespace {

/// Steps through the blocks of a GIF file.
class GifWalker {
public:
    explicit GifWalker(QByteArrayView bytes) : m_bytes(bytes) {}

    /// The next byte, or -1 behind the end.
    int Byte() { return m_at < m_bytes.size() ? quint8(m_bytes[m_at++]) : -1; }
    void Skip(qsizetype count) { m_at += count; }
    /// Skips the color table that a byte of flags announces.
    void SkipTable(int flags) {
        constexpr int kHasTable = 0x80;
        if (flags > 0 && (flags & kHasTable) != 0) Skip(qsizetype(3) << ((flags & 7) + 1));
    }
    /// Skips pieces, each led by its length, up to the empty one. False when the file ends before.
    bool SkipPieces() {
        int length = Byte();
        while (length > 0) {
            Skip(length);
            length = Byte();
        }
        return length == 0;
    }

private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

} // namespace

bool IsGifWhole(QByteArrayView bytes) {
    constexpr int kExtension = 0x21;
    constexpr int kFrame = 0x2C;
    GifWalker walker(bytes);
    walker.Skip(10);
    const int flags = walker.Byte();
    walker.Skip(2);
    walker.SkipTable(flags);
    while (true) {
        const int block = walker.Byte();
        if (block == kExtension) {
            walker.Skip(1);
            if (!walker.SkipPieces()) return false;
        } else if (block == kFrame) {
            walker.Skip(8);
            walker.SkipTable(walker.Byte());
            walker.Skip(1); // code size
            return walker.SkipPieces();
        } else {
            return false;
        }
    }
}
