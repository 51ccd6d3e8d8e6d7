// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileDib.h"

#include "platform/pictures/metafile/MetafileBudget.h"
#include "platform/pictures/metafile/MetafileObjects.h"
#include "platform/pictures/metafile/MetafileReader.h"

#include <QList>
#include <QtEndian>

#include <bit>

namespace {

constexpr quint32 kCoreHeadSize = 12;
constexpr quint32 kInfoHeadSize = 40;
constexpr qint64 kUnitsPerPixel = 8;
constexpr qint64 kMostPixelsPerByte = 1024;
constexpr qsizetype kPatternBytesWithoutMeaning = 22;

enum Compression : quint32 { kPlain = 0, kRuns8 = 1, kRuns4 = 2, kBitFields = 3 };

struct Head {
    int width = 0;
    int height = 0;
    bool topDown = false;
    int bits = 0;
    quint32 compression = kPlain;
    quint32 coloursUsed = 0;
    bool threeByteColours = false;
};

struct BitField {
    quint32 mask = 0;
    int Value(quint32 pixel) const {
        if (mask == 0) return 0;
        const int shift = std::countr_zero(mask);
        const quint32 most = mask >> shift;
        return int(quint64(pixel & mask) * 255 / (quint64(most) << shift));
    }
};

struct Fields {
    BitField red;
    BitField green;
    BitField blue;
};

// Whether a picture may be decoded: of a positive size, not beyond what the bytes that follow the head could
// mean (packed runs reach 128 pixels a byte; a picture cut short is still shown), nor beyond the budget.
bool HasFittingSize(int width, int height, qsizetype bytes, MetafileBudget& budget) {
    if (width <= 0 || height <= 0) return false;
    const qint64 pixels = qint64(width) * height;
    if (pixels > (bytes + 1) * kMostPixelsPerByte) return false;
    return pixels <= MetafileDib::kMostPixels && budget.Spend(pixels * kUnitsPerPixel);
}

QImage Blank(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

bool ReadHead(MetafileReader& reader, Head& head) {
    const quint32 size = reader.U32();
    if (size == kCoreHeadSize) {
        head.width = reader.U16();
        head.height = reader.U16();
        reader.Skip(2);
        head.bits = reader.U16();
        head.threeByteColours = true;
        return !reader.Failed();
    }
    if (size < kInfoHeadSize) return false;
    head.width = reader.S32();
    const qint64 height = reader.S32();
    head.topDown = height < 0;
    head.height = int(qMin<qint64>(qAbs(height), MetafileDib::kMostPixels + 1));
    reader.Skip(2);
    head.bits = reader.U16();
    head.compression = reader.U32();
    reader.Skip(12); // Size of the pixels and resolution.
    head.coloursUsed = reader.U32();
    reader.Skip(4);
    // Later heads are longer; the masks of a bit-field one stand at the same place in all.
    if (head.compression != kBitFields || size == kInfoHeadSize) {
        reader.Skip(qsizetype(size - kInfoHeadSize));
    }
    return !reader.Failed();
}

bool IsReadable(const Head& head) {
    switch (head.bits) {
        case 1:
            return head.compression == kPlain;
        case 4:
            return head.compression == kPlain || (head.compression == kRuns4 && !head.topDown);
        case 8:
            return head.compression == kPlain || (head.compression == kRuns8 && !head.topDown);
        case 16:
        case 32:
            return head.compression == kPlain || head.compression == kBitFields;
        case 24:
            return head.compression == kPlain;
        default:
            return false;
    }
}

QList<QRgb> ReadColours(MetafileReader& reader, const Head& head, quint16 colourUse, const MetafilePalette& palette) {
    QList<QRgb> colours;
    if (head.bits > 8) {
        // A table in a picture of true colours is advice for displays that lack them.
        reader.Skip(qMin<qsizetype>(qsizetype(head.coloursUsed) * (colourUse == 1 ? 2 : 4), reader.Left()));
        return colours;
    }
    const int full = 1 << head.bits;
    const int count = head.coloursUsed == 0 ? full : int(qMin<quint32>(head.coloursUsed, quint32(full)));
    for (int i = 0; i < count && !reader.Failed(); ++i) {
        if (colourUse == 1) {
            colours.append(palette.At(reader.U16()));
            continue;
        }
        const int blue = reader.U8();
        const int green = reader.U8();
        const int red = reader.U8();
        if (!head.threeByteColours) reader.Skip(1);
        colours.append(qRgb(red, green, blue));
    }
    colours.resize(full, qRgb(0, 0, 0));
    return colours;
}

Fields ReadFields(MetafileReader& reader, const Head& head) {
    if (head.compression == kBitFields) {
        const quint32 red = reader.U32();
        const quint32 green = reader.U32();
        return {{red}, {green}, {reader.U32()}};
    }
    if (head.bits == 16) return {{0x7C00}, {0x03E0}, {0x001F}};
    return {{0xFF0000}, {0x00FF00}, {0x0000FF}};
}

void FillIndexedRow(QRgb* row, int width, const uchar* bytes, int bits, const QList<QRgb>& colours) {
    const int perByte = 8 / bits;
    const int mask = (1 << bits) - 1;
    for (int x = 0; x < width; ++x) {
        const int shift = bits * (perByte - 1 - x % perByte);
        row[x] = colours[bytes[x / perByte] >> shift & mask];
    }
}

void FillTrueRow(QRgb* row, int width, const uchar* bytes, int bits, const Fields& fields) {
    if (bits == 24) {
        for (int x = 0; x < width; ++x, bytes += 3)
            row[x] = qRgb(bytes[2], bytes[1], bytes[0]);
        return;
    }
    for (int x = 0; x < width; ++x, bytes += bits / 8) {
        const quint32 pixel = bits == 16 ? qFromLittleEndian<quint16>(bytes) : qFromLittleEndian<quint32>(bytes);
        row[x] = qRgb(fields.red.Value(pixel), fields.green.Value(pixel), fields.blue.Value(pixel));
    }
}

void FillPlain(QImage& image, MetafileReader& reader, const Head& head, const QList<QRgb>& colours,
               const Fields& fields) {
    const qsizetype stride = (qsizetype(head.width) * head.bits + 31) / 32 * 4;
    for (int i = 0; i < head.height && reader.Left() >= stride; ++i) {
        const int y = head.topDown ? i : head.height - 1 - i;
        const auto* bytes = reinterpret_cast<const uchar*>(reader.Bytes(stride).data());
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        if (head.bits <= 8) {
            FillIndexedRow(row, head.width, bytes, head.bits, colours);
        } else {
            FillTrueRow(row, head.width, bytes, head.bits, fields);
        }
    }
}

// Writes the pixels of run-length pictures, which go up from the bottom row and may leave the picture.
class RunPainter {
public:
    RunPainter(QImage& image, const QList<QRgb>& colours, int bits)
        : m_image(image), m_colours(colours), m_bits(bits) {}

    void Play(MetafileReader& reader) {
        while (reader.Left() >= 2 && m_y < m_image.height()) {
            const int count = reader.U8();
            const int value = reader.U8();
            if (count > 0) {
                for (int i = 0; i < count; ++i)
                    Put(m_bits == 8 ? value : (i % 2 == 0 ? value >> 4 : value & 15));
            } else if (!Escape(reader, value)) {
                return;
            }
        }
    }

private:
    void Put(int index) {
        if (m_x < m_image.width()) {
            auto* row = reinterpret_cast<QRgb*>(m_image.scanLine(m_image.height() - 1 - m_y));
            row[m_x] = m_colours[index];
        }
        ++m_x;
    }

    bool Escape(MetafileReader& reader, int code) {
        switch (code) {
            case 0:
                m_x = 0;
                ++m_y;
                return true;
            case 1:
                return false;
            case 2:
                m_x += reader.U8();
                m_y += reader.U8();
                return true;
            default:
                Literal(reader, code);
                return true;
        }
    }

    void Literal(MetafileReader& reader, int count) {
        const int bytes = m_bits == 8 ? count : (count + 1) / 2;
        const QByteArrayView run = reader.Bytes(bytes);
        if (bytes % 2 != 0) reader.Skip(1);
        for (int i = 0; i < count && !run.isEmpty(); ++i) {
            const int value = uchar(run[m_bits == 8 ? i : i / 2]);
            Put(m_bits == 8 ? value : (i % 2 == 0 ? value >> 4 : value & 15));
        }
    }

    QImage& m_image;
    const QList<QRgb>& m_colours;
    int m_bits;
    int m_x = 0;
    int m_y = 0;
};

QImage ReadDeviceBitmap(MetafileReader& reader, qsizetype skip, QRgb textColour, QRgb bkColour,
                        MetafileBudget& budget) {
    reader.Skip(2);
    const int width = reader.S16();
    const int height = reader.S16();
    const qsizetype stride = reader.S16();
    const int planes = reader.U8();
    const int bits = reader.U8();
    reader.Skip(skip);
    const bool known = bits == 1 || bits == 16 || bits == 24 || bits == 32;
    if (reader.Failed() || planes != 1 || !known || !HasFittingSize(width, height, reader.Left(), budget)) return {};
    if (stride < (qsizetype(width) * bits + 7) / 8) return {};
    QImage image = Blank(width, height);
    const Fields fields =
        bits == 16 ? Fields{{0xF800}, {0x07E0}, {0x001F}} : Fields{{0xFF0000}, {0x00FF00}, {0x0000FF}};
    const QList<QRgb> colours{textColour, bkColour};
    for (int y = 0; y < height && reader.Left() >= stride; ++y) {
        const auto* bytes = reinterpret_cast<const uchar*>(reader.Bytes(stride).data());
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        if (bits == 1) {
            FillIndexedRow(row, width, bytes, 1, colours);
        } else {
            FillTrueRow(row, width, bytes, bits, fields);
        }
    }
    return image;
}

} // namespace

QImage MetafileDib::Decode(QByteArrayView dib, quint16 colourUse, const MetafilePalette& palette,
                           MetafileBudget& budget) {
    MetafileReader reader(dib);
    Head head;
    if (!ReadHead(reader, head) || !IsReadable(head)) return {};
    if (!HasFittingSize(head.width, head.height, reader.Left(), budget)) return {};
    const Fields fields = ReadFields(reader, head);
    const QList<QRgb> colours = ReadColours(reader, head, colourUse, palette);
    if (reader.Failed()) return {};
    QImage image = Blank(head.width, head.height);
    if (image.isNull()) return {};
    if (head.compression == kRuns8 || head.compression == kRuns4) {
        RunPainter(image, colours, head.bits).Play(reader);
    } else {
        FillPlain(image, reader, head, colours, fields);
    }
    return image;
}

QImage MetafileDib::DecodeDeviceBitmap(QByteArrayView bitmap, QRgb textColour, QRgb bkColour, MetafileBudget& budget) {
    MetafileReader reader(bitmap);
    return ReadDeviceBitmap(reader, 0, textColour, bkColour, budget);
}

QImage MetafileDib::DecodePattern(QByteArrayView bitmap, QRgb textColour, QRgb bkColour, MetafileBudget& budget) {
    MetafileReader reader(bitmap);
    return ReadDeviceBitmap(reader, kPatternBytesWithoutMeaning, textColour, bkColour, budget);
}
