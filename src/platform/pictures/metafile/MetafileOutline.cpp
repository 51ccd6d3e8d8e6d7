// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileOutline.h"

#include <QPolygonF>

#include <array>
#include <optional>

namespace {

// Long enough for the stroker to see a direction, too short for the eye.
constexpr double kDotLength = 0.01;

// A half plane: the points whose coordinate is on the right side of a limit.
struct Side {
    bool vertical;
    double limit;
    int sign;

    double Coordinate(QPointF point) const { return vertical ? point.y() : point.x(); }
    bool Holds(QPointF point) const { return (Coordinate(point) - limit) * sign >= 0; }
    QPointF Crossing(QPointF a, QPointF b) const {
        const double part = (limit - Coordinate(a)) / (Coordinate(b) - Coordinate(a));
        QPointF point = a + (b - a) * part;
        (vertical ? point.ry() : point.rx()) = limit;
        return point;
    }
};

std::array<Side, 4> SidesOf(const QRectF& area) {
    return {Side{false, area.left(), 1}, Side{false, area.right(), -1}, Side{true, area.top(), 1},
            Side{true, area.bottom(), -1}};
}

// A run to and fro along the border is one edge.
void AppendOnBorder(QPolygonF& polygon, QPointF point, const Side& side) {
    const qsizetype size = polygon.size();
    const auto isOnBorder = [&](QPointF each) { return side.Coordinate(each) == side.limit; };
    if (size >= 2 && isOnBorder(point) && isOnBorder(polygon[size - 1]) && isOnBorder(polygon[size - 2])) {
        polygon.last() = point;
    } else {
        polygon.append(point);
    }
}

QPolygonF CutPolygon(const QPolygonF& polygon, const Side& side) {
    QPolygonF cut;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF from = polygon[i];
        const QPointF to = polygon[i + 1 < polygon.size() ? i + 1 : 0];
        if (side.Holds(from)) AppendOnBorder(cut, from, side);
        if (side.Holds(from) != side.Holds(to)) AppendOnBorder(cut, side.Crossing(from, to), side);
    }
    return cut;
}

std::optional<QLineF> CutLine(QLineF line, const QRectF& area) {
    for (const Side& side : SidesOf(area)) {
        const bool holdsStart = side.Holds(line.p1());
        const bool holdsEnd = side.Holds(line.p2());
        if (!holdsStart && !holdsEnd) return {};
        if (holdsStart != holdsEnd) {
            const QPointF crossing = side.Crossing(line.p1(), line.p2());
            holdsStart ? line.setP2(crossing) : line.setP1(crossing);
        }
    }
    return line;
}

} // namespace

QPainterPath MetafileOutline::CutAreas(const QPainterPath& path, const QRectF& area) {
    QPainterPath result;
    for (QPolygonF polygon : path.toSubpathPolygons()) {
        for (const Side& side : SidesOf(area))
            polygon = CutPolygon(polygon, side);
        if (polygon.size() < 2) continue;
        result.addPolygon(polygon);
        result.closeSubpath();
    }
    return result;
}

QPainterPath MetafileOutline::CutLines(const QPainterPath& path, const QRectF& area) {
    QPainterPath result;
    for (const QPolygonF& lines : path.toSubpathPolygons()) {
        for (qsizetype i = 1; i < lines.size(); ++i) {
            const std::optional<QLineF> piece = CutLine(QLineF(lines[i - 1], lines[i]), area);
            if (!piece) continue;
            if (result.isEmpty() || result.currentPosition() != piece->p1()) result.moveTo(piece->p1());
            result.lineTo(piece->p2());
        }
    }
    return result;
}

double MetafileOutline::SlantedShare(const QPainterPath& path) {
    double straight = 0;
    double slanted = 0;
    for (int i = 1; i < path.elementCount(); ++i) {
        const QPainterPath::Element to = path.elementAt(i);
        if (to.isMoveTo()) continue;
        const QPointF step = QPointF(to) - QPointF(path.elementAt(i - 1));
        const bool axial = to.isLineTo() && (step.x() == 0 || step.y() == 0);
        (axial ? straight : slanted) += qAbs(step.x()) + qAbs(step.y());
    }
    return slanted > 0 ? slanted / (slanted + straight) : 0;
}

void MetafileOutline::AddDot(QPainterPath& path, QPointF at, int penWidth) {
    if (penWidth <= 1) return;
    path.moveTo(at);
    path.lineTo(at + QPointF(kDotLength, 0));
}
