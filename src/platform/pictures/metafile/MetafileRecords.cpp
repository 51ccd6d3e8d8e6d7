// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileRecords.h"

namespace {

constexpr quint32 kHeadWords = 3;

QSize ReadSizeYX(MetafileReader& reader) {
    const QPoint size = reader.PointYX();
    return QSize(size.x(), size.y());
}

QList<QPoint> ReadPoints(MetafileReader& reader, int count) {
    QList<QPoint> points;
    // Asked for only as far as there are bytes, so that a false count can't claim memory.
    points.reserve(qMin<qsizetype>(count, reader.Left() / 4));
    for (int i = 0; i < count && reader.Left() >= 4; ++i)
        points.append(reader.PointXY());
    return points;
}

// A record without a picture is exactly as long as its order's high byte says: the word that stands where
// the picture's form has nothing makes up for it.
bool HasNoPicture(const MetafileRecord& record) {
    return record.parameters.size() == 2 * (qsizetype(record.order) >> 8);
}

void ReadSimpleBlit(MetafileReader& reader, bool withPicture, MetafileBlit& blit) {
    blit.source = reader.PointYX();
    if (!withPicture) reader.Skip(2);
    blit.targetSize = ReadSizeYX(reader);
    blit.sourceSize = blit.targetSize;
    blit.target = reader.PointYX();
}

void ReadStretchedBlit(MetafileReader& reader, bool withPicture, MetafileBlit& blit) {
    blit.sourceSize = ReadSizeYX(reader);
    blit.source = reader.PointYX();
    if (!withPicture) reader.Skip(2);
    blit.targetSize = ReadSizeYX(reader);
    blit.target = reader.PointYX();
}

void ReadUnscaledBlit(MetafileReader& reader, MetafileBlit& blit) {
    blit.operation = 0x00CC0020;
    blit.colourUse = reader.U16();
    // Number of the rows and of the first one: a file holds the whole picture.
    reader.Skip(4);
    blit.source = reader.PointYX();
    blit.targetSize = ReadSizeYX(reader);
    blit.sourceSize = blit.targetSize;
    blit.target = reader.PointYX();
    blit.kind = MetafileBlit::Bits::Dib;
    blit.fromBottom = true;
    blit.unscaled = true;
}

} // namespace

std::optional<MetafileRecord> MetafileRecords::Next() {
    const quint32 words = m_reader.U32();
    const quint16 order = m_reader.U16();
    if (m_reader.Failed() || words < kHeadWords || order == quint16(MetafileOrder::End)) return {};
    const qint64 wanted = (qint64(words) - kHeadWords) * 2;
    return MetafileRecord{MetafileOrder(order), m_reader.Bytes(qMin<qint64>(wanted, m_reader.Left()))};
}

MetafileBox MetafileBox::Read(MetafileReader& reader) {
    MetafileBox box;
    box.to = reader.PointYX();
    box.from = reader.PointYX();
    return box;
}

std::optional<MetafileArc> MetafileArc::Read(QByteArrayView parameters) {
    MetafileReader reader(parameters);
    MetafileArc arc;
    arc.end = reader.PointYX();
    arc.start = reader.PointYX();
    arc.box = MetafileBox::Read(reader);
    if (reader.Failed()) return {};
    return arc;
}

std::optional<MetafilePolygons> MetafilePolygons::ReadOne(QByteArrayView parameters) {
    MetafileReader reader(parameters);
    const int count = reader.U16();
    MetafilePolygons polygons;
    polygons.parts.append(ReadPoints(reader, count));
    if (reader.Failed()) return {};
    return polygons;
}

std::optional<MetafilePolygons> MetafilePolygons::ReadMany(QByteArrayView parameters) {
    MetafileReader reader(parameters);
    const int parts = reader.U16();
    QList<quint16> counts;
    for (int i = 0; i < parts && !reader.Failed(); ++i)
        counts.append(reader.U16());
    if (reader.Failed()) return {};
    MetafilePolygons polygons;
    for (const quint16 count : counts)
        polygons.parts.append(ReadPoints(reader, count));
    return polygons;
}

std::optional<MetafileText> MetafileText::ReadPlain(QByteArrayView parameters) {
    MetafileReader reader(parameters);
    MetafileText text;
    const int length = reader.U16();
    text.text = reader.Bytes(length);
    if (length % 2 != 0) reader.Skip(1);
    text.position = reader.PointYX();
    if (reader.Failed()) return {};
    return text;
}

std::optional<MetafileText> MetafileText::ReadExtended(QByteArrayView parameters) {
    MetafileReader reader(parameters);
    MetafileText text;
    text.position = reader.PointYX();
    const int length = reader.U16();
    text.options = reader.U16();
    if (text.options & (kOpaque | kClipped)) {
        text.box.from = reader.PointXY();
        text.box.to = reader.PointXY();
    }
    text.text = reader.Bytes(length);
    if (reader.Failed()) return {};
    if (length % 2 != 0) reader.Skip(1);
    // Those down the line are passed over: the letters stand on one line.
    const int step = text.options & kDistancesInPairs ? 4 : 2;
    if (length == 0 || reader.Left() < step * length) return text;
    for (int i = 0; i < length; ++i) {
        text.distances.append(reader.S16());
        reader.Skip(step - 2);
    }
    return text;
}

std::optional<MetafileBlit> MetafileBlit::Read(const MetafileRecord& record) {
    MetafileReader reader(record.parameters);
    MetafileBlit blit;
    const bool withPicture = !HasNoPicture(record);
    blit.kind = withPicture ? Bits::Dib : Bits::None;
    if (record.order != MetafileOrder::SetDibToDev) blit.operation = reader.U32();
    switch (record.order) {
        case MetafileOrder::PatBlt:
            blit.targetSize = ReadSizeYX(reader);
            blit.target = reader.PointYX();
            blit.kind = Bits::None;
            break;
        case MetafileOrder::BitBlt:
        case MetafileOrder::DibBitBlt:
            ReadSimpleBlit(reader, withPicture, blit);
            break;
        case MetafileOrder::StretchBlt:
        case MetafileOrder::DibStretchBlt:
            ReadStretchedBlit(reader, withPicture, blit);
            break;
        case MetafileOrder::StretchDib:
            blit.colourUse = reader.U16();
            ReadStretchedBlit(reader, true, blit);
            blit.kind = Bits::Dib;
            blit.fromBottom = true;
            break;
        case MetafileOrder::SetDibToDev:
            ReadUnscaledBlit(reader, blit);
            break;
        default:
            return {};
    }
    if (reader.Failed()) return {};
    const bool ofDevice = record.order == MetafileOrder::BitBlt || record.order == MetafileOrder::StretchBlt;
    if (blit.kind == Bits::Dib && ofDevice) blit.kind = Bits::DeviceBitmap;
    blit.bits = reader.Rest();
    return blit;
}
