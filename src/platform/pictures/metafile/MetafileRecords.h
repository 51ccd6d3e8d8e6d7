// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pictures/metafile/MetafileReader.h"

#include <QList>
#include <QSize>

#include <optional>

/// What a record orders. The high byte tells how many words of parameters its plain form has.
enum class MetafileOrder : quint16 {
    End = 0x0000,
    SaveDC = 0x001E,
    RealizePalette = 0x0035,
    SetPaletteEntries = 0x0037,
    CreatePalette = 0x00F7,
    CreateOldBrush = 0x00F8,
    SetBkMode = 0x0102,
    SetMapMode = 0x0103,
    SetRop2 = 0x0104,
    SetRelAbs = 0x0105,
    SetPolyFillMode = 0x0106,
    SetStretchMode = 0x0107,
    SetTextCharExtra = 0x0108,
    RestoreDC = 0x0127,
    InvertRegion = 0x012A,
    PaintRegion = 0x012B,
    SelectClipRegion = 0x012C,
    SelectObject = 0x012D,
    SetTextAlign = 0x012E,
    ResizePalette = 0x0139,
    DibCreatePatternBrush = 0x0142,
    SetLayout = 0x0149,
    DeleteObject = 0x01F0,
    CreatePatternBrush = 0x01F9,
    SetBkColor = 0x0201,
    SetTextColor = 0x0209,
    SetTextJustification = 0x020A,
    SetWindowOrg = 0x020B,
    SetWindowExt = 0x020C,
    SetViewportOrg = 0x020D,
    SetViewportExt = 0x020E,
    OffsetWindowOrg = 0x020F,
    OffsetViewportOrg = 0x0211,
    LineTo = 0x0213,
    MoveTo = 0x0214,
    OffsetClip = 0x0220,
    FillRegion = 0x0228,
    SetMapperFlags = 0x0231,
    SelectPalette = 0x0234,
    CreatePen = 0x02FA,
    CreateFont = 0x02FB,
    CreateBrush = 0x02FC,
    CreateBitmapIndirect = 0x02FD,
    Polygon = 0x0324,
    Polyline = 0x0325,
    ScaleWindowExt = 0x0410,
    ScaleViewportExt = 0x0412,
    ExcludeClipRect = 0x0415,
    IntersectClipRect = 0x0416,
    Ellipse = 0x0418,
    FloodFill = 0x0419,
    Rectangle = 0x041B,
    SetPixel = 0x041F,
    FrameRegion = 0x0429,
    AnimatePalette = 0x0436,
    TextOut = 0x0521,
    PolyPolygon = 0x0538,
    ExtFloodFill = 0x0548,
    RoundRect = 0x061C,
    PatBlt = 0x061D,
    Escape = 0x0626,
    CreateBitmap = 0x06FE,
    CreateRegion = 0x06FF,
    Arc = 0x0817,
    Pie = 0x081A,
    Chord = 0x0830,
    BitBlt = 0x0922,
    DibBitBlt = 0x0940,
    ExtTextOut = 0x0A32,
    StretchBlt = 0x0B23,
    DibStretchBlt = 0x0B41,
    SetDibToDev = 0x0D33,
    StretchDib = 0x0F43,
};

struct MetafileRecord {
    MetafileOrder order = MetafileOrder::End;
    QByteArrayView parameters;
};

/// Goes through the records one by one.
class MetafileRecords {
public:
    explicit MetafileRecords(QByteArrayView orders) : m_reader(orders) {}
    /// Nothing at the end, at a record that would not get on, and at one without room for its own head. The
    /// last record of a file cut short comes with the parameters that are left.
    std::optional<MetafileRecord> Next();

private:
    MetafileReader m_reader;
};

// The records with more than a number or two. Each Read gives nothing when the parameters are too short.

/// Two corners in logical units, as they stand; either may be the greater.
struct MetafileBox {
    QPoint from;
    QPoint to;
    static MetafileBox Read(MetafileReader& reader);
};

struct MetafileArc {
    MetafileBox box;
    QPoint start;
    QPoint end;
    static std::optional<MetafileArc> Read(QByteArrayView parameters);
};

struct MetafilePolygons {
    QList<QList<QPoint>> parts;
    static std::optional<MetafilePolygons> ReadOne(QByteArrayView parameters);
    static std::optional<MetafilePolygons> ReadMany(QByteArrayView parameters);
};

struct MetafileText {
    QPoint position;
    QByteArrayView text;
    quint16 options = 0;
    MetafileBox box;         ///< Only with one of the two options that use it.
    QList<qint16> distances; ///< From each byte's start to the next one's; empty: the font's own.
    static constexpr quint16 kOpaque = 2;
    static constexpr quint16 kClipped = 4;
    static constexpr quint16 kGlyphIndex = 0x10;
    static constexpr quint16 kDistancesInPairs = 0x2000; ///< Along the line and across it.
    static std::optional<MetafileText> ReadPlain(QByteArrayView parameters);
    static std::optional<MetafileText> ReadExtended(QByteArrayView parameters);
};

/// One of the six orders that move pixels.
struct MetafileBlit {
    enum class Bits { None, Dib, DeviceBitmap };
    quint32 operation = 0;
    quint16 colourUse = 0; ///< 1: the colour table holds indices into the palette.
    QPoint source;
    QSize sourceSize; ///< May be negative: mirrored.
    QPoint target;
    QSize targetSize; ///< May be negative.
    /// The source's y counts from the picture's bottom row.
    bool fromBottom = false;
    /// Size is in the device's pixels and not in logical units.
    bool unscaled = false;
    Bits kind = Bits::None;
    QByteArrayView bits;
    static std::optional<MetafileBlit> Read(const MetafileRecord& record);
    /// The code byte of the ternary operation.
    quint8 Code() const { return quint8(operation >> 16); }
};
