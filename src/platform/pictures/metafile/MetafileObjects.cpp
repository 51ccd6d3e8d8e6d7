// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileObjects.h"

namespace {

constexpr int kMostPaletteEntries = 4096;
constexpr qsizetype kMostBands = 4096;
constexpr int kFaceLength = 32;

QRgb FromColourRef(quint32 colour) {
    return qRgb(int(colour & 0xFF), int(colour >> 8 & 0xFF), int(colour >> 16 & 0xFF));
}

QRgb ReadEntry(MetafileReader& reader) { return FromColourRef(reader.U32()); }

} // namespace

std::shared_ptr<const MetafilePalette> MetafilePalette::Fixed() {
    static const auto fixed = [] {
        auto palette = std::make_shared<MetafilePalette>();
        palette->m_colours = {
            qRgb(0, 0, 0),       qRgb(128, 0, 0),     qRgb(0, 128, 0),     qRgb(128, 128, 0),   qRgb(0, 0, 128),
            qRgb(128, 0, 128),   qRgb(0, 128, 128),   qRgb(192, 192, 192), qRgb(192, 220, 192), qRgb(166, 202, 240),
            qRgb(255, 251, 240), qRgb(160, 160, 164), qRgb(128, 128, 128), qRgb(255, 0, 0),     qRgb(0, 255, 0),
            qRgb(255, 255, 0),   qRgb(0, 0, 255),     qRgb(255, 0, 255),   qRgb(0, 255, 255),   qRgb(255, 255, 255),
        };
        return palette;
    }();
    return fixed;
}

std::shared_ptr<const MetafilePalette> MetafilePalette::Read(QByteArrayView parameters) {
    MetafileReader reader(parameters);
    auto palette = std::make_shared<MetafilePalette>();
    reader.Skip(2);
    const int count = qMin<int>(reader.U16(), kMostPaletteEntries);
    for (int i = 0; i < count && reader.Left() >= 4; ++i)
        palette->m_colours.append(ReadEntry(reader));
    return palette;
}

QRgb MetafilePalette::Resolve(quint32 colour) const {
    if (colour >> 24 == 1) return At(int(colour & 0xFFFF));
    return FromColourRef(colour);
}

std::shared_ptr<const MetafilePalette> MetafilePalette::WithEntries(QByteArrayView parameters) const {
    MetafileReader reader(parameters);
    auto palette = std::make_shared<MetafilePalette>(*this);
    const int first = reader.U16();
    const int count = reader.U16();
    for (int i = first; i < first + count && i < m_colours.size() && reader.Left() >= 4; ++i)
        palette->m_colours[i] = ReadEntry(reader);
    return palette;
}

std::shared_ptr<const MetafilePalette> MetafilePalette::Resized(int count) const {
    auto palette = std::make_shared<MetafilePalette>(*this);
    palette->m_colours.resize(qBound(0, count, kMostPaletteEntries));
    return palette;
}

MetafileFont MetafileFont::Read(QByteArrayView parameters) {
    MetafileReader reader(parameters);
    MetafileFont font;
    font.height = reader.S16();
    font.width = reader.S16();
    font.escapement = reader.S16();
    reader.Skip(2); // The letters' own turn: always that of the line.
    font.weight = reader.S16();
    font.italic = reader.U8() != 0;
    font.underline = reader.U8() != 0;
    font.strikeOut = reader.U8() != 0;
    font.charset = reader.U8();
    reader.Skip(3); // Precision and quality.
    font.pitchAndFamily = reader.U8();
    const QByteArrayView face = reader.Bytes(qMin<qsizetype>(reader.Left(), kFaceLength));
    font.face = QByteArray(face.data(), qstrnlen(face.data(), size_t(face.size())));
    return font;
}

MetafileRegion MetafileRegion::Read(QByteArrayView parameters) {
    MetafileReader reader(parameters);
    MetafileRegion region;
    reader.Skip(10); // Chain, kind, count and size of the object.
    const int scans = reader.S16();
    reader.Skip(10); // Widest scan and bounding box: both told by the scans.
    for (int scan = 0; scan < scans && !reader.Failed(); ++scan) {
        const int numbers = reader.U16();
        const int top = reader.S16();
        const int bottom = reader.S16();
        for (int i = 0; i + 1 < numbers && !reader.Failed(); i += 2) {
            const int left = reader.S16();
            const int right = reader.S16();
            if (reader.Failed() || region.bands.size() >= kMostBands) return region;
            region.bands.append(QRect(left, top, right - left, bottom - top));
        }
        reader.Skip(2); // The count once more.
    }
    return region;
}

void MetafileObjects::Add(MetafileObject object) {
    while (m_lowestFree < m_slots.size() && m_slots[m_lowestFree].index() != 0)
        ++m_lowestFree;
    if (m_lowestFree >= kMostObjects) return;
    if (m_lowestFree == m_slots.size()) m_slots.emplace_back();
    m_slots[m_lowestFree] = std::move(object);
}

void MetafileObjects::Delete(int slot) {
    if (slot < 0 || size_t(slot) >= m_slots.size()) return;
    m_slots[size_t(slot)] = std::monostate();
    m_lowestFree = qMin(m_lowestFree, size_t(slot));
}

const MetafileObject& MetafileObjects::At(int slot) const {
    static const MetafileObject none;
    return slot < 0 || size_t(slot) >= m_slots.size() ? none : m_slots[size_t(slot)];
}

void MetafileObjects::Replace(int slot, MetafileObject object) {
    if (At(slot).index() != 0) m_slots[size_t(slot)] = std::move(object);
}
