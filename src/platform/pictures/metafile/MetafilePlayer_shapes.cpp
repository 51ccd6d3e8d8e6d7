// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileOutline.h"
#include "platform/pictures/metafile/MetafilePlayer.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// What drawing costs, as measured with many thousand random edges.
constexpr qint64 kUnitsPerEdge = 200;
constexpr qint64 kUnitsPerEdgePixel = 25;
constexpr qint64 kUnitsPerPennedEdge = 1'500;
constexpr qint64 kUnitsPerPennedPixel = 50;
constexpr qint64 kUnitsPerRoundJoin = 6'000;
// Room around the picture in which outlines are still followed, so that cuts are never seen.
constexpr double kRoom = 64;
// Slanted and curved edges were drawn pixel by pixel and came out a little beside their true place, as found
// by comparing with many pictures; straight ones stay where they are sharp.
constexpr QPointF kSlantOffset(0.25, 0.25);
constexpr QPointF kSlantOffsetOfOddPens(0.25, 0);

double Degrees(QPointF radius, QPointF from) {
    return std::atan2(-from.y() * radius.x(), from.x() * radius.y()) * 180.0 / std::numbers::pi;
}

} // namespace

bool MetafilePlayer::ObeyShapes(const MetafileRecord& record) {
    MetafileReader reader(record.parameters);
    switch (record.order) {
        case MetafileOrder::MoveTo:
            m_state.position = reader.PointYX();
            return true;
        case MetafileOrder::LineTo:
            DrawLineTo(reader.PointYX());
            return true;
        case MetafileOrder::Polyline:
            if (const auto lines = MetafilePolygons::ReadOne(record.parameters)) DrawPolyline(lines->parts.front());
            return true;
        case MetafileOrder::Polygon:
            if (const auto polygons = MetafilePolygons::ReadOne(record.parameters)) DrawPolygons(*polygons);
            return true;
        case MetafileOrder::PolyPolygon:
            if (const auto polygons = MetafilePolygons::ReadMany(record.parameters)) DrawPolygons(*polygons);
            return true;
        case MetafileOrder::Rectangle:
        case MetafileOrder::Ellipse: {
            const MetafileBox box = MetafileBox::Read(reader);
            if (reader.Failed()) return true;
            if (record.order == MetafileOrder::Rectangle) {
                DrawRectangle(ToDevice(box));
            } else {
                DrawEllipse(ToDevice(box));
            }
            return true;
        }
        case MetafileOrder::RoundRect: {
            const QPoint corner = reader.PointYX();
            const MetafileBox box = MetafileBox::Read(reader);
            if (!reader.Failed()) DrawRoundRect(ToDevice(box), corner);
            return true;
        }
        case MetafileOrder::Arc:
            if (const auto arc = MetafileArc::Read(record.parameters)) DrawArc(*arc, ArcForm::Arc);
            return true;
        case MetafileOrder::Chord:
            if (const auto arc = MetafileArc::Read(record.parameters)) DrawArc(*arc, ArcForm::Chord);
            return true;
        case MetafileOrder::Pie:
            if (const auto arc = MetafileArc::Read(record.parameters)) DrawArc(*arc, ArcForm::Pie);
            return true;
        case MetafileOrder::SetPixel: {
            const quint32 colour = reader.U32();
            const QPoint at = reader.PointYX();
            if (!reader.Failed()) DrawPixel(at, colour);
            return true;
        }
        case MetafileOrder::FloodFill:
        case MetafileOrder::ExtFloodFill: {
            const bool onlyOnColour = record.order == MetafileOrder::ExtFloodFill && reader.U16() == 1;
            const quint32 colour = reader.U32();
            const QPoint from = reader.PointYX();
            if (!reader.Failed()) DrawFlood(from, colour, onlyOnColour);
            return true;
        }
        default:
            return false;
    }
}

QRectF MetafilePlayer::ReachableArea() const {
    const double room = kRoom + (HasPen() ? PenWidth() : 0);
    return QRectF(m_canvas.Bounds()).adjusted(-room, -room, room, room);
}

// From where a shape is told to be to the middle of its line: pens of an odd width stand in the middle of a pixel.
double MetafilePlayer::PenOffset() const {
    const int pixel = m_canvas.Thinnest();
    return HasPen() && qRound(double(PenWidth()) / pixel) % 2 != 0 ? pixel / 2.0 : 0.0;
}

QPointF MetafilePlayer::SlantOffset() const {
    if (!HasPen() || PenWidth() % 2 == 0) return kSlantOffset;
    return PenWidth() == 1 ? QPointF() : kSlantOffsetOfOddPens;
}

// Asks the budget for what a path costs: its edges, and the pixels that they run through.
bool MetafilePlayer::MayDrawPath(const QPainterPath& path) {
    double length = 0;
    for (int i = 1; i < path.elementCount(); ++i) {
        const QPointF step = QPointF(path.elementAt(i)) - QPointF(path.elementAt(i - 1));
        length += qAbs(step.x()) + qAbs(step.y());
    }
    qint64 units = path.elementCount() * kUnitsPerEdge + qint64(length * kUnitsPerEdgePixel);
    if (HasPen()) units += path.elementCount() * kUnitsPerPennedEdge + qint64(length * kUnitsPerPennedPixel);
    if (HasPen() && PenWidth() > 1) units += path.elementCount() * kUnitsPerRoundJoin;
    return m_canvas.Budget().Spend(units);
}

void MetafilePlayer::DrawPath(const QPainterPath& path, Filling filling) {
    const bool fills = filling != Filling::No && m_state.brush->kind != MetafileBrush::Kind::Hollow;
    if (!fills && !HasPen()) return;
    const QRectF area = ReachableArea();
    const double slantedShare = MetafileOutline::SlantedShare(path);
    const bool slanted = slantedShare > 0.5;
    // The painter's half tones would make the corners of thin frames grey.
    const bool sharp = slantedShare == 0 && filling != Filling::No && (!HasPen() || PenWidth() <= 2);
    QPainterPath reachable = path;
    if (slanted) reachable.translate(SlantOffset());
    if (!area.contains(path.controlPointRect())) {
        reachable = filling == Filling::No ? MetafileOutline::CutLines(reachable, area)
                                           : MetafileOutline::CutAreas(reachable, area);
    }
    if (reachable.isEmpty() || !MayDrawPath(reachable)) return;
    reachable.setFillRule(filling == Filling::Winding ? Qt::WindingFill : Qt::OddEvenFill);
    const double margin = HasPen() ? PenWidth() + 1 : 1;
    const QRectF touched = reachable.controlPointRect().adjusted(-margin, -margin, margin, margin);
    m_canvas.Draw(touched.toAlignedRect(), m_state.rop2, [&](QPainter& painter) {
        const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::Antialiasing, smooth && !sharp);
        PaintPath(painter, reachable, fills, slanted);
        painter.setRenderHint(QPainter::Antialiasing, smooth);
    });
}

void MetafilePlayer::PaintPath(QPainter& painter, const QPainterPath& path, bool fills, bool slanted) const {
    const QBrush brush = fills ? MakeBrush(*m_state.brush) : QBrush(Qt::NoBrush);
    if (fills && !HasPen() && painter.testRenderHint(QPainter::Antialiasing) && !m_canvas.IsVector()) {
        // Areas that share an edge, each with half tones along it, would let the ground shine through.
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.fillPath(path, brush);
        painter.setRenderHint(QPainter::Antialiasing, true);
    }
    if (IsDashed() && m_state.opaqueBackground) {
        QPen gaps = MakePen(slanted);
        gaps.setStyle(Qt::SolidLine);
        gaps.setColor(QColor(m_state.Colour(m_state.bkColour)));
        painter.setPen(gaps);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(path);
    }
    painter.setPen(MakePen(slanted));
    painter.setBrush(brush);
    painter.drawPath(path);
}

QPolygonF MetafilePlayer::Vertices(const QList<QPoint>& points) const {
    QPolygonF vertices;
    vertices.reserve(points.size());
    const QPointF offset(PenOffset(), PenOffset());
    for (const QPoint& point : points) {
        const QPointF vertex = m_state.mapping.ToDevice(point) + offset;
        if (vertices.isEmpty() || vertices.last() != vertex) vertices.append(vertex);
    }
    return vertices;
}

void MetafilePlayer::DrawPolygons(const MetafilePolygons& polygons) {
    QPainterPath path;
    for (const QList<QPoint>& part : polygons.parts) {
        const QPolygonF vertices = Vertices(part);
        if (vertices.size() < 2) continue;
        path.addPolygon(vertices);
        path.closeSubpath();
    }
    DrawPath(path, PolygonFilling());
}

void MetafilePlayer::DrawPolyline(const QList<QPoint>& points) {
    if (points.size() < 2 || !HasPen()) return;
    QPainterPath path;
    const QPolygonF vertices = Vertices(points);
    if (vertices.size() < 2) {
        MetafileOutline::AddDot(path, vertices.front(), PenWidth());
    } else {
        path.addPolygon(vertices);
    }
    DrawPath(path, Filling::No);
}

void MetafilePlayer::DrawLineTo(QPoint to) {
    const QPoint from = std::exchange(m_state.position, to);
    if (!HasPen()) return;
    const QPointF offset(PenOffset(), PenOffset());
    QPointF start = m_state.mapping.ToDevice(from) + offset;
    QPointF end = m_state.mapping.ToDevice(to) + offset;
    QPainterPath path;
    if (start == end) {
        MetafileOutline::AddDot(path, start, PenWidth());
    } else {
        if (PenWidth() == 1 && (start.x() == end.x() || start.y() == end.y())) {
            // From the outer edge of the first pixel to the inner edge of the last, which stays unpainted.
            const QPointF step = end - start;
            const double length = qAbs(step.x()) + qAbs(step.y());
            start -= step / length * 0.5;
            end -= step / length * 0.5;
        }
        path.moveTo(start);
        path.lineTo(end);
    }
    DrawPath(path, Filling::No);
}

// The line that the pen follows round a box; without a pen, the box.
QRectF MetafilePlayer::OutlineRect(const DeviceBox& box) const {
    if (!HasPen()) return QRectF(box.Rect());
    const int width = PenWidth();
    if (m_state.pen->style == MetafilePen::kInsideFrame && width > 1) {
        const double half = std::min({width / 2.0, box.Width() / 2.0, box.Height() / 2.0});
        return QRectF(box.Rect()).adjusted(half, half, -half, -half);
    }
    return QRectF(box.left + PenOffset(), box.top + PenOffset(), box.Width() - m_canvas.Thinnest(),
                  box.Height() - m_canvas.Thinnest());
}

void MetafilePlayer::DrawRectangle(const DeviceBox& box) {
    if (box.IsEmpty()) return;
    QRectF outline = OutlineRect(box);
    // Without a pen the last column and row stay free, a habit of the old platform.
    if (!HasPen()) outline.adjust(0, 0, -m_canvas.Thinnest(), -m_canvas.Thinnest());
    QPainterPath path;
    path.addPolygon(QPolygonF({outline.topLeft(), outline.topRight(), outline.bottomRight(), outline.bottomLeft()}));
    path.closeSubpath();
    DrawPath(path, Filling::OddEven);
}

void MetafilePlayer::DrawEllipse(const DeviceBox& box) {
    if (box.IsEmpty()) return;
    QPainterPath path;
    path.addEllipse(OutlineRect(box));
    DrawPath(path, Filling::OddEven);
}

void MetafilePlayer::DrawRoundRect(const DeviceBox& box, QPoint corner) {
    if (box.IsEmpty()) return;
    const double x = m_state.mapping.Length(corner.x()) / 2;
    const double y = qAbs(corner.y() * m_state.mapping.ScaleY()) / 2;
    QPainterPath path;
    path.addRoundedRect(OutlineRect(box), x, y);
    DrawPath(path, Filling::OddEven);
}

void MetafilePlayer::DrawArc(const MetafileArc& arc, ArcForm form) {
    const DeviceBox box = ToDevice(arc.box);
    if (box.IsEmpty()) return;
    const QRectF outline = OutlineRect(box);
    const QPointF middle = outline.center();
    const QPointF radius(outline.width() / 2, outline.height() / 2);
    const double start = Degrees(radius, QPointF(m_state.mapping.ToDevice(arc.start)) - middle);
    const double end = Degrees(radius, QPointF(m_state.mapping.ToDevice(arc.end)) - middle);
    // Counter-clockwise; ends in the same direction mean all the way round.
    const double sweep = end > start ? end - start : end - start + 360;
    QPainterPath path;
    if (form == ArcForm::Pie) {
        // The tip lies on a whole pixel.
        const QPoint tip((box.left + box.right) / 2, (box.top + box.bottom) / 2);
        path.moveTo(QPointF(tip) + QPointF(PenOffset(), PenOffset()));
    } else {
        path.arcMoveTo(outline, start);
    }
    path.arcTo(outline, start, sweep);
    if (form != ArcForm::Arc) path.closeSubpath();
    DrawPath(path, form == ArcForm::Arc ? Filling::No : Filling::OddEven);
}

void MetafilePlayer::DrawPixel(QPoint at, quint32 colour) {
    const QRect pixel(m_state.mapping.ToDevice(at), QSize(1, 1) * m_canvas.Thinnest());
    m_canvas.Draw(pixel, MetafileRop::kCopyPen,
                  [&](QPainter& painter) { painter.fillRect(pixel, QColor(m_state.Colour(colour))); });
}

void MetafilePlayer::DrawFlood(QPoint from, quint32 colour, bool onlyOnColour) {
    const QBrush brush = MakeBrush(*m_state.brush);
    m_canvas.FloodFill(m_state.mapping.ToDevice(from), m_state.Colour(colour), onlyOnColour,
                       [&](QPainter& painter) { painter.fillRect(m_canvas.Bounds(), brush); });
}
