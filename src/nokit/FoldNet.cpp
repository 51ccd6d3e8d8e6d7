// SPDX-License-Identifier: MIT
#include "nokit/FoldNet.h"

#include <algorithm>
#include <cmath>

namespace {

// What lengths that were summed in another order may differ by.
constexpr double kHair = 1e-9;

bool Near(double a, double b) { return std::abs(a - b) < kHair; }
bool Near(const QPointF& a, const QPointF& b) { return Near(a.x(), b.x()) && Near(a.y(), b.y()); }
bool IsSameEdge(const QLineF& a, const QLineF& b) {
    return (Near(a.p1(), b.p1()) && Near(a.p2(), b.p2())) || (Near(a.p1(), b.p2()) && Near(a.p2(), b.p1()));
}

std::array<QLineF, 4> EdgesOf(const QRectF& box) {
    return {QLineF(box.topLeft(), box.topRight()), QLineF(box.topRight(), box.bottomRight()),
            QLineF(box.bottomRight(), box.bottomLeft()), QLineF(box.bottomLeft(), box.topLeft())};
}

std::vector<QLineF> EdgesOf(const QPolygonF& outline) {
    std::vector<QLineF> edges;
    for (qsizetype i = 0; i < outline.size(); ++i)
        edges.emplace_back(outline[i], outline[(i + 1) % outline.size()]);
    return edges;
}

enum class Side { Top, Right, Bottom, Left };

// A flap on a side of a face: narrower outside, so that it slips in.
QPolygonF FlapOn(const QRectF& face, Side side, double depth, double slant) {
    switch (side) {
        case Side::Top:
            return {{face.topLeft(), face.topLeft() + QPointF(slant, -depth), face.topRight() + QPointF(-slant, -depth),
                     face.topRight()}};
        case Side::Right:
            return {{face.topRight(), face.topRight() + QPointF(depth, slant),
                     face.bottomRight() + QPointF(depth, -slant), face.bottomRight()}};
        case Side::Bottom:
            return {{face.bottomRight(), face.bottomRight() + QPointF(-slant, depth),
                     face.bottomLeft() + QPointF(slant, depth), face.bottomLeft()}};
        default:
            return {{face.bottomLeft(), face.bottomLeft() + QPointF(-depth, -slant),
                     face.topLeft() + QPointF(-depth, slant), face.topLeft()}};
    }
}

} // namespace

QSizeF FoldNet::Size() const {
    QRectF all;
    for (const Face& face : faces)
        all |= face.box;
    for (const Flap& flap : flaps)
        all |= flap.outline.boundingRect();
    return all.size();
}

void FoldNet::MoveBy(const QPointF& by) {
    for (Face& face : faces)
        face.box.translate(by);
    for (Flap& flap : flaps)
        flap.outline.translate(by);
}

QLineF FoldNet::FoldOf(const Face& face) const {
    if (face.iParent < 0) return {};
    for (const QLineF& edge : EdgesOf(face.box)) {
        for (const QLineF& other : EdgesOf(faces[size_t(face.iParent)].box)) {
            if (IsSameEdge(edge, other)) return edge;
        }
    }
    return {};
}

QLineF FoldNet::FoldOf(const Flap& flap) const {
    for (const QLineF& edge : EdgesOf(flap.outline)) {
        for (const QLineF& other : EdgesOf(faces[size_t(flap.iParent)].box)) {
            if (IsSameEdge(edge, other)) return edge;
        }
    }
    return {};
}

std::vector<PageLine> FoldNet::Lines() const {
    std::vector<PageLine> lines;
    for (const Face& face : faces) {
        if (face.iParent >= 0) lines.push_back({LineKind::Fold, FoldOf(face)});
    }
    for (const Flap& flap : flaps)
        lines.push_back({LineKind::Fold, FoldOf(flap)});
    const std::vector<PageLine> folds = lines;
    const auto cutUnlessFolded = [&](const QLineF& edge) {
        const bool folded =
            std::any_of(folds.begin(), folds.end(), [&](const PageLine& fold) { return IsSameEdge(fold.line, edge); });
        if (!folded) lines.push_back({LineKind::Cut, edge});
    };
    for (const Face& face : faces) {
        for (const QLineF& edge : EdgesOf(face.box))
            cutUnlessFolded(edge);
    }
    for (const Flap& flap : flaps) {
        for (const QLineF& edge : EdgesOf(flap.outline))
            cutUnlessFolded(edge);
    }
    return lines;
}

FoldNet DieNet(double dblSide) {
    constexpr double kDepth = 0.28; // of a flap, in sides of the die
    constexpr double kSlant = 0.25;
    // A cross: four faces in a row, one above and one below the second. Opposite ones come to seven, and 1, 2 and 3
    // run against the clock round their corner, as on dice that are bought.
    const double s = dblSide;
    const double x = 0;
    const double y = (1 + kDepth) * s;
    enum { One, Two, Three, Four, Five, Six };
    FoldNet net;
    net.faces.resize(6);
    net.faces[One] = {{x + s, y, s, s}, -1};
    net.faces[Two] = {{x + 2 * s, y, s, s}, One};
    net.faces[Three] = {{x + s, y - s, s, s}, One};
    net.faces[Four] = {{x + s, y + s, s, s}, One};
    net.faces[Five] = {{x, y, s, s}, One};
    net.faces[Six] = {{x + 3 * s, y, s, s}, Two};
    const auto flap = [&](int face, Side side, int behind) {
        net.flaps.push_back({FlapOn(net.faces[size_t(face)].box, side, kDepth * s, kSlant * s), face, behind});
    };
    flap(Six, Side::Right, Five);
    flap(Three, Side::Left, Five);
    flap(Three, Side::Right, Two);
    flap(Three, Side::Top, Six);
    flap(Four, Side::Left, Five);
    flap(Four, Side::Right, Two);
    flap(Four, Side::Bottom, Six);
    return net;
}

FoldNet TrayNet(QSizeF floor, double dblHeight, bool bLid) {
    constexpr double kSlant = 0.08;
    const double h = dblHeight;
    const double w = floor.width();
    const double d = floor.height();
    // Turned so that up is away from the floor of a tray, and towards the top of a lid.
    const int turn = bLid ? 0 : 2;
    FoldNet net;
    net.faces = {{{h, h, w, d}, -1, 0},
                 {{h, h + d, w, h}, 0, turn},
                 {{0, h, h, d}, 0, 1 + turn},
                 {{h, 0, w, h}, 0, (2 + turn) % 4},
                 {{h + w, h, h, d}, 0, (3 + turn) % 4}};
    enum { Below = 1, LeftWall, Above, RightWall };
    const double depth = std::min(h, d / 3);
    const auto flap = [&](int face, Side side, int behind) {
        net.flaps.push_back({FlapOn(net.faces[size_t(face)].box, side, depth, kSlant), face, behind});
    };
    flap(Below, Side::Left, LeftWall);
    flap(Below, Side::Right, RightWall);
    flap(Above, Side::Left, LeftWall);
    flap(Above, Side::Right, RightWall);
    return net;
}

namespace Folded {
namespace {

Point operator*(const Point& p, double by) { return {p.x * by, p.y * by, p.z * by}; }
Point operator+(const Point& a, const Point& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Point operator-(const Point& a, const Point& b) { return a + b * -1; }

// Folds away from the printed side at an edge; the middle of what is folded tells on which side of it that lies.
Plane FoldedAt(const Plane& from, const QLineF& edge, const QPointF& middle) {
    Plane to = from;
    const QPointF away = middle - edge.center();
    if (Near(edge.x1(), edge.x2())) {
        const double side = away.x() > 0 ? 1 : -1;
        to.right = from.outward * -side;
        to.outward = from.right * side;
    } else {
        const double side = away.y() > 0 ? 1 : -1;
        to.down = from.outward * -side;
        to.outward = from.down * side;
    }
    to.origin = to.origin + (from.At(edge.p1()) - to.At(edge.p1()));
    return to;
}

} // namespace

Point Plane::At(const QPointF& flat) const { return origin + right * flat.x() + down * flat.y(); }

std::vector<Plane> PlanesOf(const FoldNet& net) {
    std::vector<Plane> planes(net.faces.size());
    // A face's parent stands before it in the table.
    for (size_t i = 0; i < net.faces.size(); ++i) {
        const FoldNet::Face& face = net.faces[i];
        if (face.iParent >= 0) planes[i] = FoldedAt(planes[size_t(face.iParent)], net.FoldOf(face), face.box.center());
    }
    return planes;
}

Plane PlaneOf(const FoldNet& net, const FoldNet::Flap& flap) {
    return FoldedAt(PlanesOf(net)[size_t(flap.iParent)], net.FoldOf(flap), flap.outline.boundingRect().center());
}

Point UpOf(const Plane& plane, int iQuarterTurns) {
    switch ((iQuarterTurns % 4 + 4) % 4) {
        case 1: // read downwards: up is to the right
            return plane.right;
        case 2:
            return plane.down;
        case 3:
            return plane.right * -1;
        default:
            return plane.down * -1;
    }
}

} // namespace Folded
