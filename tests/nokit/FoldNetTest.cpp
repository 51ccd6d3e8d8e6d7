// SPDX-License-Identifier: MIT
// Whether what is cut out flat closes: the nets are folded by arithmetic, and edges that meet must be one.
#include "nokit/FoldNet.h"
#include "nokit/BoxWrap.h"
#include "nokit/Standee.h"

#include <algorithm>
#include <cmath>
#include <map>

#include <gtest/gtest.h>

using Folded::Plane;
using Folded::Point;

namespace {

using Rounded = std::array<long, 3>;
using Edge = std::pair<Rounded, Rounded>;

// In millionths of an inch, so that points that meet compare as equal.
Rounded RoundedOf(const Point& p) { return {std::lround(p.x * 1e6), std::lround(p.y * 1e6), std::lround(p.z * 1e6)}; }
Edge EdgeOf(const Point& a, const Point& b) { return std::minmax(RoundedOf(a), RoundedOf(b)); }
double Dot(const Point& a, const Point& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
double Apart(const Point& a, const Point& b) {
    const Point d{a.x - b.x, a.y - b.y, a.z - b.z};
    return std::sqrt(Dot(d, d));
}

// How many faces meet in each edge of the body.
std::map<Edge, int> EdgesOf(const FoldNet& net) {
    const std::vector<Plane> planes = Folded::PlanesOf(net);
    std::map<Edge, int> edges;
    for (size_t i = 0; i < net.faces.size(); ++i) {
        const QRectF& box = net.faces[i].box;
        const QPointF corners[] = {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
        for (int c = 0; c < 4; ++c)
            ++edges[EdgeOf(planes[i].At(corners[c]), planes[i].At(corners[(c + 1) % 4]))];
    }
    return edges;
}

Point MiddleOf(const FoldNet& net, size_t face) { return Folded::PlanesOf(net)[face].At(net.faces[face].box.center()); }

// A flap lies flat behind its face and nowhere beyond it.
void ExpectFlapsBehind(const FoldNet& net) {
    const std::vector<Plane> planes = Folded::PlanesOf(net);
    for (const FoldNet::Flap& flap : net.flaps) {
        const Plane plane = Folded::PlaneOf(net, flap);
        const Plane& behind = planes[size_t(flap.iBehind)];
        EXPECT_NEAR(Dot(plane.outward, behind.outward), 1, 1e-9);
        for (const QPointF& corner : flap.outline) {
            const Point p = plane.At(corner);
            const Point from{p.x - behind.origin.x, p.y - behind.origin.y, p.z - behind.origin.z};
            EXPECT_NEAR(Dot(from, behind.outward), 0, 1e-9);
            const QPointF flat(Dot(from, behind.right), Dot(from, behind.down));
            const QRectF box = net.faces[size_t(flap.iBehind)].box.adjusted(-1e-9, -1e-9, 1e-9, 1e-9);
            EXPECT_TRUE(box.contains(flat)) << flat.x() << ' ' << flat.y();
        }
    }
}

// No two parts of a net are cut from the same place of the page.
void ExpectNothingOverlaps(const FoldNet& net) {
    std::vector<QPolygonF> parts;
    for (const FoldNet::Face& face : net.faces)
        parts.emplace_back(face.box);
    for (const FoldNet::Flap& flap : net.flaps)
        parts.push_back(flap.outline);
    for (size_t i = 0; i < parts.size(); ++i) {
        for (size_t j = i + 1; j < parts.size(); ++j) {
            const QRectF common = parts[i].intersected(parts[j]).boundingRect();
            EXPECT_LT(std::min(common.width(), common.height()), 1e-9) << i << ' ' << j;
        }
    }
}

TEST(FoldNetTest, ADieClosesWithTwoFacesAtEveryEdge) {
    const FoldNet net = DieNet(0.9);
    const std::map<Edge, int> edges = EdgesOf(net);
    EXPECT_EQ(edges.size(), 12U);
    for (const auto& [edge, faces] : edges)
        EXPECT_EQ(faces, 2);
    ExpectFlapsBehind(net);
    ExpectNothingOverlaps(net);
    EXPECT_EQ(net.flaps.size(), 7U) << "every edge that isn't folded has a flap";
}

TEST(FoldNetTest, OppositeSidesOfADieComeToSeven) {
    const FoldNet net = DieNet(1);
    for (size_t i = 0; i < 6; ++i)
        EXPECT_NEAR(Apart(MiddleOf(net, i), MiddleOf(net, 5 - i)), 1, 1e-9) << i;
}

TEST(FoldNetTest, OneTwoAndThreeRunAgainstTheClock) {
    const FoldNet net = DieNet(1);
    const std::vector<Plane> planes = Folded::PlanesOf(net);
    const Point &a = planes[0].outward, &b = planes[1].outward, &c = planes[2].outward;
    // Seen from their common corner; looking at it from outside, the triple product is positive against the clock.
    const Point cross{a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
    EXPECT_NEAR(Dot(cross, c), 1, 1e-9);
}

TEST(FoldNetTest, ThePrintedSideOfADieIsOutside) {
    const FoldNet net = DieNet(1);
    Point middle;
    for (size_t i = 0; i < 6; ++i) {
        const Point m = MiddleOf(net, i);
        middle = {middle.x + m.x / 6, middle.y + m.y / 6, middle.z + m.z / 6};
    }
    for (size_t i = 0; i < 6; ++i) {
        const Point m = MiddleOf(net, i);
        const Point out{m.x - middle.x, m.y - middle.y, m.z - middle.z};
        EXPECT_NEAR(Dot(out, Folded::PlanesOf(net)[i].outward), 0.5, 1e-9) << i;
    }
}

TEST(FoldNetTest, ABoxClosesAtItsCornersAndIsOpenAbove) {
    for (const FoldNet& net : {BoxWrap::Tray(), BoxWrap::Lid()}) {
        int shared = 0;
        int open = 0;
        for (const auto& [edge, faces] : EdgesOf(net))
            ++(faces == 2 ? shared : open);
        EXPECT_EQ(shared, 8) << "four at the floor and four upright";
        EXPECT_EQ(open, 4) << "the rim";
        ExpectFlapsBehind(net);
        ExpectNothingOverlaps(net);
    }
}

TEST(FoldNetTest, WallsReadUprightWhenTheBoxStands) {
    const auto expectUp = [](const FoldNet& net, double z) {
        const std::vector<Plane> planes = Folded::PlanesOf(net);
        for (size_t wall = 1; wall < net.faces.size(); ++wall) {
            const Point up = Folded::UpOf(planes[wall], net.faces[wall].iQuarterTurns);
            EXPECT_NEAR(up.z, z, 1e-9) << wall;
        }
    };
    // Folded with the printed side of its floor up; so a lid lies as it is used, and a tray on its rim.
    expectUp(BoxWrap::Lid(), 1);
    expectUp(BoxWrap::Tray(), -1);
}

TEST(FoldNetTest, TheLidGoesOverTheTray) {
    const QSizeF tray = BoxWrap::Tray().faces[0].box.size();
    const QSizeF lid = BoxWrap::Lid().faces[0].box.size();
    EXPECT_NEAR(lid.width() - tray.width(), BoxWrap::kLoose, 1e-9);
    EXPECT_NEAR(lid.height() - tray.height(), BoxWrap::kLoose, 1e-9);
    // Notes of 3.75 by 2 beside deeds of 2.5, and news cards of 3 by 1.62 along the notes.
    EXPECT_GE(tray.width(), 3.75 + 2.5);
    EXPECT_GE(tray.height(), 2 + 1.62);
}

TEST(FoldNetTest, EveryEdgeIsCutOrFoldedOnce) {
    for (const FoldNet& net : {DieNet(1), BoxWrap::Tray()}) {
        std::map<std::pair<std::pair<long, long>, std::pair<long, long>>, int> lines;
        size_t folds = 0;
        for (const PageLine& line : net.Lines()) {
            const auto at = [](const QPointF& p) {
                return std::pair(std::lround(p.x() * 1e6), std::lround(p.y() * 1e6));
            };
            ++lines[std::minmax(at(line.line.p1()), at(line.line.p2()))];
            folds += line.kind == LineKind::Fold ? 1 : 0;
        }
        for (const auto& [line, times] : lines)
            EXPECT_EQ(times, 1);
        EXPECT_EQ(folds, net.faces.size() - 1 + net.flaps.size());
    }
}

TEST(StandeeTest, TheBackLiesBehindTheFrontWhenItsHeadIsFolded) {
    const auto folded = [](const QRectF& box) {
        return QRectF(Standee::FoldedOver(box.topLeft()), Standee::FoldedOver(box.bottomRight())).normalized();
    };
    const auto expectSame = [](const QRectF& a, const QRectF& b) {
        EXPECT_NEAR(a.top(), b.top(), 1e-9);
        EXPECT_NEAR(a.bottom(), b.bottom(), 1e-9);
        EXPECT_NEAR(a.left(), b.left(), 1e-9);
        EXPECT_NEAR(a.right(), b.right(), 1e-9);
    };
    expectSame(folded(Standee::BackPicture()), Standee::FrontPicture());
    expectSame(folded(Standee::BackBand()), Standee::FrontBand());
    expectSame(folded(Standee::BackFoot()), Standee::FrontFoot());
    EXPECT_NEAR(Standee::FrontFoot().bottom(), Standee::Size().height(), 1e-9);
}

TEST(StandeeTest, ItIsFoldedAtItsFeetAndItsHead) {
    const std::vector<QLineF> folds = Standee::Folds();
    ASSERT_EQ(folds.size(), 3U);
    EXPECT_NEAR(folds[0].y1(), Standee::BackFoot().bottom(), 1e-9);
    EXPECT_NEAR(folds[1].y1(), Standee::FrontPicture().top(), 1e-9);
    EXPECT_NEAR(folds[2].y1(), Standee::FrontFoot().top(), 1e-9);
    for (const QLineF& fold : folds)
        EXPECT_NEAR(fold.length(), Standee::kWidth, 1e-9);
}

} // namespace
