// SPDX-License-Identifier: MIT
#include "support/MetafileBuilder.h"

#include <QtEndian>

namespace {

void Append16(QByteArray& bytes, int value) {
    const quint16 little = qToLittleEndian(quint16(value));
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

void Append32(QByteArray& bytes, quint32 value) {
    const quint32 little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

QByteArray PackedRow(const QImage& image, int y, int bits) {
    QByteArray row((image.width() * bits + 7) / 8, '\0');
    for (int x = 0; x < image.width(); ++x) {
        if (bits >= 24) {
            const QRgb pixel = image.pixel(x, y);
            char* at = row.data() + x * bits / 8;
            at[0] = char(qBlue(pixel));
            at[1] = char(qGreen(pixel));
            at[2] = char(qRed(pixel));
            continue;
        }
        const int perByte = 8 / bits;
        const int index = image.pixelIndex(x, y) << bits * (perByte - 1 - x % perByte);
        row[x / perByte] = char(row[x / perByte] | index);
    }
    return row;
}

} // namespace

MetafileBuilder::MetafileBuilder(int width, int height) {
    Add(MetafileOrder::SetWindowOrg, {0, 0});
    Add(MetafileOrder::SetWindowExt, {height, width});
}

QByteArray MetafileBuilder::WordBytes(const Words& words) {
    QByteArray bytes;
    for (const int word : words)
        Append16(bytes, word);
    return bytes;
}

MetafileBuilder& MetafileBuilder::Add(MetafileOrder order, const Words& words, const QByteArray& tail) {
    QByteArray parameters = WordBytes(words) + tail;
    if (parameters.size() % 2 != 0) parameters.append('\0');
    return AddRaw(quint32(3 + parameters.size() / 2), quint16(order), parameters);
}

MetafileBuilder& MetafileBuilder::AddRaw(quint32 words, quint16 order, const QByteArray& parameters) {
    Append32(m_records, words);
    Append16(m_records, order);
    m_records += parameters;
    return *this;
}

MetafileBuilder& MetafileBuilder::Pen(int style, int width, Color color) {
    Add(MetafileOrder::CreatePen, Words{style, width, 0} + ColorWords(color));
    return Select(m_objects++);
}

MetafileBuilder& MetafileBuilder::BrushOf(int style, Color color, int hatch) {
    Add(MetafileOrder::CreateBrush, Words{style} + ColorWords(color) + Words{hatch});
    return Select(m_objects++);
}

MetafileBuilder& MetafileBuilder::Font(int height, const QByteArray& face, int charset, int escapement) {
    QByteArray tail(8, '\0');
    tail[3] = char(charset);
    tail += face.leftJustified(32, '\0', true);
    Add(MetafileOrder::CreateFont, {height, 0, escapement, 0, 400}, tail);
    return Select(m_objects++);
}

MetafileBuilder& MetafileBuilder::Region(const QList<QRect>& bands) {
    Words words{0, 6, 0, 0, 0, int(bands.size()), 2, 0, 0, 0, 0};
    for (const QRect& band : bands)
        words += {2, band.y(), band.y() + band.height(), band.x(), band.x() + band.width(), 2};
    Add(MetafileOrder::CreateRegion, words);
    ++m_objects;
    return *this;
}

MetafileBuilder& MetafileBuilder::Palette(const QList<Color>& colors) {
    Words words{0x300, int(colors.size())};
    for (const Color color : colors)
        words += ColorWords(color);
    Add(MetafileOrder::CreatePalette, words);
    Add(MetafileOrder::SelectPalette, {m_objects++});
    return Add(MetafileOrder::RealizePalette);
}

MetafileBuilder& MetafileBuilder::Box(MetafileOrder order, int left, int top, int right, int bottom) {
    return Add(order, {bottom, right, top, left});
}

MetafileBuilder& MetafileBuilder::Polygon(const QList<QPoint>& points, MetafileOrder order) {
    Words words{int(points.size())};
    for (const QPoint& point : points)
        words += {point.x(), point.y()};
    return Add(order, words);
}

MetafileBuilder& MetafileBuilder::PolyPolygon(const QList<QList<QPoint>>& parts) {
    Words words{int(parts.size())};
    for (const QList<QPoint>& part : parts)
        words.append(int(part.size()));
    for (const QList<QPoint>& part : parts) {
        for (const QPoint& point : part)
            words += {point.x(), point.y()};
    }
    return Add(MetafileOrder::PolyPolygon, words);
}

MetafileBuilder& MetafileBuilder::Line(int x1, int y1, int x2, int y2) {
    Add(MetafileOrder::MoveTo, {y1, x1});
    return Add(MetafileOrder::LineTo, {y2, x2});
}

MetafileBuilder& MetafileBuilder::Text(int x, int y, const QByteArray& text) {
    QByteArray tail = text;
    if (tail.size() % 2 != 0) tail.append('\0');
    return Add(MetafileOrder::TextOut, {int(text.size())}, tail + WordBytes({y, x}));
}

MetafileBuilder& MetafileBuilder::ExtText(int x, int y, const QByteArray& text, int options, const QRect& box,
                                          const Words& distances) {
    Words words{y, x, int(text.size()), options};
    if (options & 6) words += {box.x(), box.y(), box.x() + box.width(), box.y() + box.height()};
    QByteArray tail = text;
    if (tail.size() % 2 != 0) tail.append('\0');
    return Add(MetafileOrder::ExtTextOut, words, tail + WordBytes(distances));
}

MetafileBuilder& MetafileBuilder::StretchDib(const QRect& target, const QRect& source, const QByteArray& dib,
                                             quint32 operation, int colourUse) {
    return Add(MetafileOrder::StretchDib,
               {int(operation & 0xFFFF), int(operation >> 16), colourUse, source.height(), source.width(), source.y(),
                source.x(), target.height(), target.width(), target.y(), target.x()},
               dib);
}

QByteArray MetafileBuilder::Plain() const {
    QByteArray bytes;
    const quint32 words = quint32(9 + 3 + m_records.size() / 2);
    bytes += WordBytes({1, 9, 0x300});
    Append32(bytes, words);
    Append16(bytes, m_objects);
    Append32(bytes, words);
    Append16(bytes, 0);
    bytes += m_records;
    Append32(bytes, 3);
    Append16(bytes, 0);
    return bytes;
}

QByteArray MetafileBuilder::Placeable() const {
    QByteArray bytes;
    Append32(bytes, 0x9AC6CDD7);
    bytes += WordBytes({0, -10, -20, 90, 30, 96, 0, 0, 0});
    return bytes + Plain();
}

QByteArray MetafileBuilder::DibHead(int width, int height, int bits, quint32 compression, const QList<QRgb>& colors) {
    QByteArray dib;
    Append32(dib, 40);
    Append32(dib, quint32(width));
    Append32(dib, quint32(height));
    dib += WordBytes({1, bits});
    Append32(dib, compression);
    for (int i = 0; i < 3; ++i)
        Append32(dib, 0);
    Append32(dib, quint32(colors.size()));
    Append32(dib, 0);
    for (const QRgb color : colors)
        Append32(dib, color & 0xFFFFFF);
    return dib;
}

QByteArray MetafileBuilder::Dib(const QImage& image, int bits, bool topDown) {
    QList<QRgb> colors;
    if (bits <= 8) colors = image.colorTable();
    const int height = topDown ? -image.height() : image.height();
    QByteArray dib = DibHead(image.width(), height, bits, 0, colors);
    for (int i = 0; i < image.height(); ++i) {
        QByteArray row = PackedRow(image, topDown ? i : image.height() - 1 - i, bits);
        row.append((4 - row.size() % 4) % 4, '\0');
        dib += row;
    }
    return dib;
}

QByteArray MetafileBuilder::DeviceBitmap(const QImage& image, int bits) {
    const int stride = (image.width() * bits + 15) / 16 * 2;
    QByteArray bitmap = WordBytes({0, image.width(), image.height(), stride, 1 | bits << 8});
    for (int y = 0; y < image.height(); ++y)
        bitmap += PackedRow(image, y, bits).leftJustified(stride, '\0');
    return bitmap;
}
