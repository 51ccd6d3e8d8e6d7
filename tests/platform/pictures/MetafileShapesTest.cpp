// SPDX-License-Identifier: MIT
#include "support/MetafilePlaying.h"

namespace {

constexpr int kInsideFrame = 6;
constexpr int kDash = 1;
constexpr int kDot = 2;

} // namespace

class MetafileShapesTest : public MetafileTest {};

TEST_F(MetafileShapesTest, ARectangleExcludesItsRightAndBottomEdge) {
    const QImage picture =
        Played(MetafileBuilder(80, 80).Pen(0, 1, Red()).Brush(Blue()).Rectangle(10, 20, 50, 60).Plain(), 80, 80);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 20), QPoint(49, 59)));
    EXPECT_EQ(At(picture, 10, 20), kRed);
    EXPECT_EQ(At(picture, 49, 59), kRed);
    EXPECT_EQ(At(picture, 11, 21), kBlue);
    EXPECT_EQ(At(picture, 48, 58), kBlue);
}

TEST_F(MetafileShapesTest, SwappedCornersMakeTheSameRectangle) {
    const QImage picture = Played(MetafileBuilder(80, 80).Brush(Blue()).Rectangle(50, 60, 10, 20).Plain(), 80, 80);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 20), QPoint(49, 59)));
}

TEST_F(MetafileShapesTest, WithoutAPenARectangleIsAPixelSmaller) {
    const QImage picture =
        Played(MetafileBuilder(80, 80).NullPen().Brush(Blue()).Rectangle(10, 20, 50, 60).Plain(), 80, 80);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 20), QPoint(48, 58)));
    EXPECT_EQ(Count(picture, kBlue), 39 * 39);
}

TEST_F(MetafileShapesTest, WidePensAreCentredOnTheOutline) {
    for (const int width : {2, 3, 4, 5}) {
        const QImage picture = Played(
            MetafileBuilder(80, 80).Pen(0, width, Red()).HollowBrush().Rectangle(10, 20, 50, 60).Plain(), 80, 80);
        const int before = width / 2;
        const int after = (width + 1) / 2 - 1;
        EXPECT_EQ(Ink(picture), QRect(QPoint(10 - before, 20 - before), QPoint(49 + after, 59 + after))) << width;
    }
}

TEST_F(MetafileShapesTest, AnInsideFramePenStaysInside) {
    const QImage picture = Played(
        MetafileBuilder(80, 80).Pen(kInsideFrame, 6, Red()).Brush(Blue()).Rectangle(10, 20, 50, 60).Plain(), 80, 80);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 20), QPoint(49, 59)));
    EXPECT_EQ(At(picture, 14, 40), kRed);
    EXPECT_EQ(At(picture, 17, 40), kBlue);
}

TEST_F(MetafileShapesTest, ThePenScalesWithXAndIsAtLeastAPixelWide) {
    MetafileBuilder wide(40, 80);
    wide.Pen(0, 4, Red()).Line(20, 10, 20, 70);
    EXPECT_EQ(Count(Played(wide.Plain(), 80, 80).copy(0, 40, 80, 1), kRed), 8);
    MetafileBuilder thin(8000, 8000);
    thin.Pen(0, 1, Red()).Line(4000, 1000, 4000, 7000);
    EXPECT_EQ(Count(Played(thin.Plain(), 80, 80).copy(0, 40, 80, 1), kRed), 1);
}

TEST_F(MetafileShapesTest, AThinLineLeavesItsLastPixelOut) {
    const QImage picture = Played(MetafileBuilder(40, 40).Pen(0, 0, Red()).Line(10, 5, 20, 5).Plain(), 40, 40);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 5), QPoint(19, 5)));
    EXPECT_EQ(Ink(Played(MetafileBuilder(40, 40).Line(10, 5, 10, 5).Plain(), 40, 40)), QRect());
}

TEST_F(MetafileShapesTest, LinesGoOnFromWhereTheLastOneEnded) {
    MetafileBuilder builder(40, 40);
    builder.Pen(0, 1, Red()).Line(10, 5, 20, 5).Add(MetafileOrder::LineTo, {25, 20});
    EXPECT_EQ(At(Played(builder.Plain(), 40, 40), 20, 15), kRed);
}

TEST_F(MetafileShapesTest, DashesHaveGapsOnlyInPensOfOnePixel) {
    MetafileBuilder thin(80, 20);
    thin.Add(MetafileOrder::SetBkMode, {1}).Pen(kDash, 1, Red()).Line(0, 10, 80, 10);
    const int painted = Count(Played(thin.Plain(), 80, 20), kRed);
    EXPECT_GT(painted, 40);
    EXPECT_LT(painted, 70);
    MetafileBuilder wide(80, 20);
    wide.Add(MetafileOrder::SetBkMode, {1}).Pen(kDash, 3, Red()).Line(0, 10, 80, 10);
    EXPECT_EQ(Count(Played(wide.Plain(), 80, 20).copy(0, 10, 80, 1), kRed), 80);
}

TEST_F(MetafileShapesTest, OpaqueGapsTakeTheBackgroundColour) {
    MetafileBuilder builder(80, 20);
    builder.Add(MetafileOrder::SetBkMode, {2});
    builder.Add(MetafileOrder::SetBkColor, MetafileBuilder::ColorWords(Green()));
    builder.Pen(kDot, 1, Red()).Line(0, 10, 80, 10);
    const QImage row = Played(builder.Plain(), 80, 20).copy(0, 10, 80, 1);
    EXPECT_EQ(Count(row, kWhite), 0);
    EXPECT_GT(Count(row, kGreen), 20);
}

TEST_F(MetafileShapesTest, APolygonClosesItselfAndIncludesItsVertices) {
    const QImage picture = Played(MetafileBuilder(80, 80)
                                      .Pen(0, 1, Red())
                                      .Brush(Blue())
                                      .Polygon({{10, 20}, {50, 20}, {50, 60}, {10, 60}})
                                      .Plain(),
                                  80, 80);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 20), QPoint(50, 60)));
    EXPECT_EQ(At(picture, 10, 40), kRed);
    EXPECT_EQ(At(picture, 30, 40), kBlue);
}

TEST_F(MetafileShapesTest, WithoutAPenAPolygonExcludesItsRightAndBottom) {
    const QImage picture = Played(
        MetafileBuilder(80, 80).NullPen().Brush(Blue()).Polygon({{10, 20}, {50, 20}, {50, 60}, {10, 60}}).Plain(), 80,
        80);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 20), QPoint(49, 59)));
    EXPECT_EQ(Count(picture, kBlue), 1600);
}

TEST_F(MetafileShapesTest, TheFillModeDecidesAboutHoles) {
    const QList<QList<QPoint>> nested = {{{10, 10}, {70, 10}, {70, 70}, {10, 70}},
                                         {{30, 30}, {50, 30}, {50, 50}, {30, 50}}};
    const auto picture = [&](int mode) {
        MetafileBuilder builder(80, 80);
        builder.Add(MetafileOrder::SetPolyFillMode, {mode}).Brush(Blue()).PolyPolygon(nested);
        return Played(builder.Plain(), 80, 80);
    };
    EXPECT_EQ(At(picture(1), 40, 40), kWhite);
    EXPECT_EQ(At(picture(2), 40, 40), kBlue);
    EXPECT_EQ(At(picture(1), 20, 20), kBlue);
}

TEST_F(MetafileShapesTest, NeighboursWithoutAPenLeaveNoSeam) {
    MetafileBuilder builder(90, 90);
    builder.NullPen().Brush(Blue());
    builder.Polygon({{0, 0}, {90, 0}, {0, 90}}).Polygon({{90, 0}, {90, 90}, {0, 90}});
    const QImage picture = Played(builder.Plain(), 90, 90);
    EXPECT_EQ(Count(picture.copy(5, 5, 80, 80), kBlue), 80 * 80);
}

TEST_F(MetafileShapesTest, APolylineStaysOpenAndUnfilled) {
    const QImage picture = Played(MetafileBuilder(80, 80)
                                      .Pen(0, 3, Red())
                                      .Brush(Blue())
                                      .Polygon({{10, 10}, {60, 10}, {60, 60}}, MetafileOrder::Polyline)
                                      .Plain(),
                                  80, 80);
    EXPECT_EQ(At(picture, 35, 10), kRed);
    EXPECT_EQ(At(picture, 60, 40), kRed);
    EXPECT_EQ(At(picture, 35, 35), kWhite);
    EXPECT_EQ(Count(picture, kBlue), 0);
}

TEST_F(MetafileShapesTest, AnEllipseFillsItsBox) {
    const QImage picture = Played(
        MetafileBuilder(80, 80).Pen(0, 1, Red()).Brush(Blue()).Box(MetafileOrder::Ellipse, 10, 20, 70, 50).Plain(), 80,
        80);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 20), QPoint(69, 49)));
    EXPECT_EQ(At(picture, 40, 35), kBlue);
    EXPECT_EQ(At(picture, 12, 22), kWhite);
}

TEST_F(MetafileShapesTest, ARoundRectanglesCornersAreCut) {
    MetafileBuilder builder(80, 80);
    builder.Pen(0, 1, Red()).Brush(Blue()).Add(MetafileOrder::RoundRect, {30, 30, 70, 70, 10, 10});
    const QImage picture = Played(builder.Plain(), 80, 80);
    EXPECT_EQ(Ink(picture), QRect(QPoint(10, 10), QPoint(69, 69)));
    EXPECT_EQ(At(picture, 11, 11), kWhite);
    EXPECT_EQ(At(picture, 40, 11), kBlue);
}

TEST_F(MetafileShapesTest, AnArcRunsCounterClockwiseFromStartToEnd) {
    // From the right to the top: the quarter at the upper right. End, start, then the box.
    const MetafileBuilder::Words quarter = {0, 40, 40, 80, 70, 70, 10, 10};
    const auto picture = [&](MetafileOrder order) {
        return Played(MetafileBuilder(80, 80).Pen(0, 3, Red()).Brush(Blue()).Add(order, quarter).Plain(), 80, 80);
    };
    const QImage arc = picture(MetafileOrder::Arc);
    EXPECT_EQ(At(arc, 60, 19), kRed);
    EXPECT_EQ(At(arc, 20, 61), kWhite);
    EXPECT_EQ(Count(arc, kBlue), 0);
    const QImage pie = picture(MetafileOrder::Pie);
    EXPECT_EQ(At(pie, 50, 30), kBlue);
    EXPECT_EQ(At(pie, 40, 25), kRed);
    EXPECT_EQ(At(pie, 30, 50), kWhite);
    const QImage chord = picture(MetafileOrder::Chord);
    EXPECT_EQ(At(chord, 57, 23), kBlue);
    EXPECT_EQ(At(chord, 45, 35), kWhite);
}

TEST_F(MetafileShapesTest, AnArcWithOneDirectionIsAWholeEllipse) {
    MetafileBuilder builder(80, 80);
    builder.Pen(0, 3, Red()).Add(MetafileOrder::Arc, {40, 80, 40, 80, 70, 70, 10, 10});
    EXPECT_EQ(At(Played(builder.Plain(), 80, 80), 11, 40), kRed);
}

TEST_F(MetafileShapesTest, APixelIsSet) {
    MetafileBuilder builder(20, 20);
    builder.Add(MetafileOrder::SetPixel, MetafileBuilder::ColorWords(Red()) + MetafileBuilder::Words{7, 5});
    const QImage picture = Played(builder.Plain(), 20, 20);
    EXPECT_EQ(At(picture, 5, 7), kRed);
    EXPECT_EQ(Ink(picture), QRect(5, 7, 1, 1));
}

TEST_F(MetafileShapesTest, AFloodStopsAtItsBorderOrColour) {
    MetafileBuilder border(60, 60);
    border.Pen(0, 1, Red()).HollowBrush().Box(MetafileOrder::Ellipse, 10, 10, 50, 50).Brush(Blue());
    border.Add(MetafileOrder::FloodFill, MetafileBuilder::ColorWords(Red()) + MetafileBuilder::Words{30, 30});
    const QImage bounded = Played(border.Plain(), 60, 60);
    EXPECT_EQ(At(bounded, 30, 14), kBlue);
    EXPECT_EQ(At(bounded, 5, 5), kWhite);

    MetafileBuilder surface(60, 60);
    surface.Pen(0, 1, Red()).HollowBrush().Rectangle(10, 10, 50, 50).Brush(Blue());
    surface.Add(MetafileOrder::ExtFloodFill,
                MetafileBuilder::Words{1} + MetafileBuilder::ColorWords(Color::White()) + MetafileBuilder::Words{2, 2});
    const QImage around = Played(surface.Plain(), 60, 60);
    EXPECT_EQ(At(around, 55, 55), kBlue);
    EXPECT_EQ(At(around, 30, 30), kWhite);
    EXPECT_EQ(At(around, 10, 10), kRed);
}

TEST_F(MetafileShapesTest, SeveralFloodsAreDoneAtASizeForPaper) {
    MetafileBuilder builder(1200, 1200);
    builder.Pen(0, 1, Red()).HollowBrush();
    for (int i = 0; i < 3; ++i)
        builder.Box(MetafileOrder::Rectangle, 100 + i * 300, 100, 300 + i * 300, 1100);
    builder.Brush(Blue());
    for (int i = 0; i < 3; ++i) {
        builder.Add(MetafileOrder::FloodFill,
                    MetafileBuilder::ColorWords(Red()) + MetafileBuilder::Words{600, 200 + i * 300});
    }
    const QImage picture = Played(builder.Plain(), 1200, 1200);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(At(picture, 200 + i * 300, 600), kBlue) << "flood " << i;
    EXPECT_EQ(At(picture, 50, 600), kWhite);
}

TEST_F(MetafileShapesTest, AFloodWithinAShapeOfLessThanTwoPixelsNeverEscapes) {
    // Thirty units are a pixel. The flood begins within the shape, near its right side, and in a pixel of its own
    // that the shape, drawn in pixels, doesn't reach.
    MetafileBuilder builder(1800, 1800);
    builder.Pen(0, 1, Red()).HollowBrush().Rectangle(897, 300, 936, 1500).Brush(Blue());
    builder.Add(MetafileOrder::FloodFill, MetafileBuilder::ColorWords(Red()) + MetafileBuilder::Words{900, 933});
    const QImage narrow = Played(builder.Plain(), 60, 60);
    EXPECT_EQ(At(narrow, 5, 5), kWhite);
    EXPECT_EQ(At(narrow, 55, 30), kWhite);
    const QRect ink = Ink(narrow);
    EXPECT_GE(ink.left(), 29);
    EXPECT_LE(ink.right(), 31);
    EXPECT_NEAR(ink.top(), 10, 1);
    EXPECT_NEAR(ink.bottom(), 50, 1);
}

TEST_F(MetafileShapesTest, BinaryOperationsCombineWithWhatWasPainted) {
    const auto painted = [&](int rop2) {
        MetafileBuilder builder(40, 40);
        builder.NullPen().Brush(Color::FromValue(0x0F0F33)).Rectangle(0, 0, 41, 41);
        builder.Add(MetafileOrder::SetRop2, {rop2}).Brush(Color::FromValue(0x00FF55)).Rectangle(0, 0, 41, 41);
        return At(Played(builder.Plain(), 40, 40), 20, 20) & 0xFFFFFF;
    };
    const quint32 pen = 0x55FF00; // Red in the highest byte here.
    const quint32 under = 0x330F0F;
    const quint32 all = 0xFFFFFF;
    const QList<quint32> expected = {0,
                                     ~(pen | under) & all,
                                     ~pen & under,
                                     ~pen & all,
                                     pen & ~under & all,
                                     ~under & all,
                                     pen ^ under,
                                     ~(pen & under) & all,
                                     pen & under,
                                     ~(pen ^ under) & all,
                                     under,
                                     (~pen | under) & all,
                                     pen,
                                     (pen | ~under) & all,
                                     pen | under,
                                     all};
    for (int rop2 = 1; rop2 <= 16; ++rop2)
        EXPECT_EQ(painted(rop2), expected[rop2 - 1]) << rop2;
}
