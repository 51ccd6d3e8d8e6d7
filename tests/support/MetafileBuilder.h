// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"
#include "platform/pictures/metafile/MetafileRecords.h"

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QRect>

/// Metafiles as tests need them, record by record, right or wrong in one chosen detail. Numbers are the 16-bit
/// words of a record in the order of the file.
class MetafileBuilder {
public:
    using Words = QList<int>;

    /// Starts with a window of the given size, so that one unit is a pixel when played at that size.
    explicit MetafileBuilder(int width, int height);
    /// Starts with nothing.
    MetafileBuilder() = default;

    MetafileBuilder& Add(MetafileOrder order, const Words& words = {}, const QByteArray& tail = {});
    /// A record whose head tells any size.
    MetafileBuilder& AddRaw(quint32 words, quint16 order, const QByteArray& parameters);

    /// Each creates an object and selects it; slots count from 0.
    MetafileBuilder& Pen(int style, int width, Color color);
    MetafileBuilder& NullPen() { return Pen(5, 0, Color::Black()); }
    MetafileBuilder& Brush(Color color) { return BrushOf(0, color, 0); }
    MetafileBuilder& BrushOf(int style, Color color, int hatch);
    MetafileBuilder& HollowBrush() { return BrushOf(1, Color::Black(), 0); }
    MetafileBuilder& Font(int height, const QByteArray& face = "Arial", int charset = 0, int escapement = 0);
    MetafileBuilder& Region(const QList<QRect>& bands);
    MetafileBuilder& Palette(const QList<Color>& colors);
    MetafileBuilder& Select(int slot) { return Add(MetafileOrder::SelectObject, {slot}); }
    int Objects() const { return m_objects; }

    /// Left, top, right, bottom as the drawing orders take them.
    MetafileBuilder& Box(MetafileOrder order, int left, int top, int right, int bottom);
    MetafileBuilder& Rectangle(int left, int top, int right, int bottom) {
        return Box(MetafileOrder::Rectangle, left, top, right, bottom);
    }
    MetafileBuilder& Polygon(const QList<QPoint>& points, MetafileOrder order = MetafileOrder::Polygon);
    MetafileBuilder& PolyPolygon(const QList<QList<QPoint>>& parts);
    MetafileBuilder& Line(int x1, int y1, int x2, int y2);
    MetafileBuilder& Text(int x, int y, const QByteArray& text);
    MetafileBuilder& ExtText(int x, int y, const QByteArray& text, int options, const QRect& box,
                             const Words& distances);
    MetafileBuilder& StretchDib(const QRect& target, const QRect& source, const QByteArray& dib,
                                quint32 operation = 0x00CC0020, int colourUse = 0);

    QByteArray Plain() const;
    QByteArray Placeable() const;

    static Words ColorWords(Color color) { return {color.Value() & 0xFFFF, color.Value() >> 16 & 0xFFFF}; }
    static QByteArray WordBytes(const Words& words);
    /// An uncompressed picture of 24 or 32 bits, or with 1, 4 or 8 bits the indexed picture's own.
    static QByteArray Dib(const QImage& image, int bits, bool topDown = false);
    /// The head and colour table of a picture, the pixels to be added.
    static QByteArray DibHead(int width, int height, int bits, quint32 compression, const QList<QRgb>& colors);
    /// A picture of the recording device, 1 bit or 24.
    static QByteArray DeviceBitmap(const QImage& image, int bits);

private:
    QByteArray m_records;
    int m_objects = 0;
};
