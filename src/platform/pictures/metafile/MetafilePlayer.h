// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pictures/metafile/MetafileCanvas.h"
#include "platform/pictures/metafile/MetafileState.h"

#include <QPainterPath>

#include <vector>

/// Obeys the records of a metafile one after another. Orders that aren't known, and objects that don't
/// exist, are passed over.
class MetafilePlayer {
public:
    /// The viewport, in device pixels, is what the window extents are stretched over.
    MetafilePlayer(MetafileCanvas& canvas, const QRectF& viewport);
    /// To the end of the records or of the budget.
    void Play(QByteArrayView orders);

private:
    /// Pixels of a box, right and bottom edges excluded.
    struct DeviceBox {
        int left;
        int top;
        int right;
        int bottom;
        int Width() const { return right - left; }
        int Height() const { return bottom - top; }
        bool IsEmpty() const { return right <= left || bottom <= top; }
        QRect Rect() const { return QRect(left, top, Width(), Height()); }
    };
    enum class Filling { No, OddEven, Winding };
    enum class ArcForm { Arc, Chord, Pie };

    // Each obeys the orders of its topic and gives false for any other.
    bool ObeyState(const MetafileRecord& record);
    bool ObeyMapping(const MetafileRecord& record);
    bool ObeyObjects(const MetafileRecord& record);
    bool ObeyPalettes(const MetafileRecord& record);
    bool ObeyRegions(const MetafileRecord& record);
    bool ObeyShapes(const MetafileRecord& record);
    bool ObeyText(const MetafileRecord& record);
    bool ObeyBits(const MetafileRecord& record);

    // MetafilePlayer_state.cpp
    void Save();
    void Restore(int level);
    DeviceBox ToDevice(const MetafileBox& box) const;

    // MetafilePlayer_objects.cpp
    void SelectObject(int slot);
    void SelectPalette(int slot);
    void ChangePalette(std::shared_ptr<const MetafilePalette> palette);
    void CreatePen(MetafileReader& reader);
    void CreateBrush(MetafileReader& reader);
    void CreatePattern(QImage pattern, bool isMask);
    bool HasPen() const { return m_state.pen->style != MetafilePen::kNull; }
    int PenWidth() const;
    /// Where the middle of the pen runs, from the top left corner of a pixel.
    double PenOffset() const;
    bool IsDashed() const;
    QPen MakePen(bool slanted) const;
    QBrush MakeBrush(const MetafileBrush& brush) const;
    QImage HatchTile(const MetafileBrush& brush) const;

    // MetafilePlayer_regions.cpp
    QRegion ToDevice(const MetafileRegion& region);
    std::shared_ptr<const MetafileRegion> RegionAt(int slot) const;
    void SetClip(std::optional<QRegion> clip);
    void SelectClip(int slot);
    void NarrowClip(const MetafileBox& box, bool exclude);
    void OffsetClip(QPoint by);
    void FillRegion(const QRegion& region, const MetafileBrush& brush);
    void FrameRegion(const MetafileRegion& region, const MetafileBrush& brush, QPoint thickness);
    std::shared_ptr<const MetafileBrush> BrushAt(int slot) const;

    // MetafilePlayer_shapes.cpp
    void DrawPath(const QPainterPath& path, Filling filling);
    void PaintPath(QPainter& painter, const QPainterPath& path, bool fills, bool slanted) const;
    bool MayDrawPath(const QPainterPath& path);
    QRectF OutlineRect(const DeviceBox& box) const;
    QPolygonF Vertices(const QList<QPoint>& points) const;
    QRectF ReachableArea() const;
    QPointF SlantOffset() const;
    void DrawPolygons(const MetafilePolygons& polygons);
    void DrawPolyline(const QList<QPoint>& points);
    void DrawLineTo(QPoint to);
    void DrawRectangle(const DeviceBox& box);
    void DrawEllipse(const DeviceBox& box);
    void DrawRoundRect(const DeviceBox& box, QPoint corner);
    void DrawArc(const MetafileArc& arc, ArcForm form);
    void DrawPixel(QPoint at, quint32 colour);
    void DrawFlood(QPoint from, quint32 colour, bool onlyOnColour);
    Filling PolygonFilling() const { return m_state.fillsWinding ? Filling::Winding : Filling::OddEven; }

    // MetafilePlayer_text.cpp
    void DrawText(const MetafileText& text);
    void MovePastText(double width);

    // MetafilePlayer_bits.cpp
    void DrawBlit(const MetafileBlit& blit);
    void CombineBlit(const MetafileBlit& blit, const QRect& area, const QImage& source);
    QImage SourceOf(const MetafileBlit& blit);
    void PaintBits(QPainter& painter, const MetafileBlit& blit, const QRect& area, const QImage& image) const;
    QRect TargetOf(const MetafileBlit& blit) const;

    MetafileCanvas& m_canvas;
    MetafileState m_state;
    std::vector<MetafileState> m_saved;
    MetafileObjects m_objects;
};
