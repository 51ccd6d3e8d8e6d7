// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/PageCanvas.h"

#include <QPolygonF>
#include <QRectF>

#include <array>
#include <vector>

/// A body that is cut out flat and folded: its faces, and the flaps that it is glued by. The printed side comes to lie
/// outside. All lengths are inches from the net's top left.
struct FoldNet {
    struct Face {
        QRectF box;
        /// The face that it is folded from; -1 for the one that lies.
        int iParent = -1;
        /// How the picture of the face is turned on the page, clockwise, so that it reads upright on the body.
        int iQuarterTurns = 0;
    };
    /// Folded from a face, it is glued behind another.
    struct Flap {
        QPolygonF outline;
        int iParent;
        int iBehind;
    };

    std::vector<Face> faces;
    std::vector<Flap> flaps;

    QSizeF Size() const;
    /// The edge that a face or flap shares with the one that it is folded from.
    QLineF FoldOf(const Face& face) const;
    QLineF FoldOf(const Flap& flap) const;
    /// What is folded and what is cut, each once.
    std::vector<PageLine> Lines() const;

    void MoveBy(const QPointF& by);
};

/// A die of so many inches: face i bears i + 1 dots.
FoldNet DieNet(double dblSide);
/// An open box: the floor or, of a lid, the top, and four walls; 0 lies, 1 to 4 stand below, left of, above and right
/// of it on the page. The pictures of a lid's walls read upright when it is on, those of a tray's when it stands.
FoldNet TrayNet(QSizeF floor, double dblHeight, bool bLid);

/// What becomes of a net when it is folded: where its flat points come to lie.
namespace Folded {

struct Point {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// A flat place of the page turned into space: the directions that were right and down on the page, and the one that
/// the printed side looks to.
struct Plane {
    Point origin;
    Point right{1, 0, 0};
    Point down{0, -1, 0};
    Point outward{0, 0, 1};

    Point At(const QPointF& flat) const;
};

/// Of every face; the one that lies looks up.
std::vector<Plane> PlanesOf(const FoldNet& net);
Plane PlaneOf(const FoldNet& net, const FoldNet::Flap& flap);
/// The direction of a face that is up in its picture.
Point UpOf(const Plane& plane, int iQuarterTurns);

} // namespace Folded
