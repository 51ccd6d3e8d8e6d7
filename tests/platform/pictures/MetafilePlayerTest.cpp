// SPDX-License-Identifier: MIT
#include "support/MetafilePlaying.h"

#include <QBuffer>
#include <QPdfWriter>

namespace {

MetafileBuilder BlueSquare() {
    MetafileBuilder builder(100, 100);
    builder.NullPen().Brush(Color::Rgb(0, 0, 255)).Polygon({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    return builder;
}

} // namespace

class MetafilePlayerTest : public MetafileTest {};

TEST_F(MetafilePlayerTest, Edge_WithoutThePlaceableKeyPlaysFromByte0AndWithItFromByte22) {
    const QByteArray plain = BlueSquare().Plain();
    const QByteArray placeable = BlueSquare().Placeable();
    ASSERT_EQ(placeable.mid(22), plain);
    EXPECT_EQ(Count(Played(plain, 50, 50), kBlue), 50 * 50);
    EXPECT_EQ(Count(Played(placeable, 50, 50), kBlue), 50 * 50);
}

TEST_F(MetafilePlayerTest, ThePlaceableHeaderTellsItsSizeAndPlaysNoPart) {
    QString error;
    EXPECT_EQ(Metafile::FromBytes(BlueSquare().Placeable(), error)->PlaceableSize(), QSize(100, 50));
    EXPECT_TRUE(Metafile::FromBytes(BlueSquare().Plain(), error)->PlaceableSize().isNull());
}

TEST_F(MetafilePlayerTest, FillsExactlyTheTarget) {
    QImage picture(60, 60, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QString error;
    QPainter painter(&picture);
    EXPECT_TRUE(Metafile::FromBytes(BlueSquare().Plain(), error)->Play(painter, QRectF(10, 20, 33, 7)));
    painter.end();
    EXPECT_EQ(Ink(picture), QRect(10, 20, 33, 7));
    EXPECT_EQ(Count(picture, kBlue), 33 * 7);
}

TEST_F(MetafilePlayerTest, PaintsNothingOutsideTheTarget) {
    QImage picture(60, 60, QImage::Format_RGB32);
    picture.fill(Qt::white);
    MetafileBuilder builder(100, 100);
    builder.Brush(Blue()).Rectangle(-500, -500, 500, 500).Pen(0, 30, Red()).Line(-90, 50, 900, 50);
    QString error;
    QPainter painter(&picture);
    Metafile::FromBytes(builder.Plain(), error)->Play(painter, QRectF(20, 20, 20, 20));
    painter.end();
    EXPECT_EQ(Ink(picture), QRect(20, 20, 20, 20));
}

TEST_F(MetafilePlayerTest, LeavesThePainterAsItWas) {
    QImage picture(60, 60, QImage::Format_RGB32);
    picture.fill(Qt::white);
    MetafileBuilder builder(100, 100);
    builder.Pen(0, 5, Red()).Brush(Blue()).Rectangle(10, 10, 90, 90).Font(20).Text(5, 5, "abc");
    builder.Box(MetafileOrder::IntersectClipRect, 0, 0, 50, 50).Add(MetafileOrder::SetRop2, {6});
    builder.Rectangle(0, 0, 100, 100).Add(MetafileOrder::SaveDC).Add(MetafileOrder::SaveDC);
    QString error;
    const auto metafile = Metafile::FromBytes(builder.Plain(), error);
    QPainter painter(&picture);
    painter.translate(3, 4);
    painter.scale(1.5, 1.5);
    painter.setClipRect(QRect(2, 2, 30, 30));
    painter.setPen(QPen(Qt::green, 7));
    painter.setBrush(Qt::yellow);
    painter.setOpacity(0.5);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const QTransform transform = painter.worldTransform();
    const QRegion clip = painter.clipRegion();
    EXPECT_TRUE(metafile->Play(painter, QRectF(5, 5, 20, 20)));
    EXPECT_EQ(painter.worldTransform(), transform);
    EXPECT_EQ(painter.clipRegion(), clip);
    EXPECT_EQ(painter.pen(), QPen(Qt::green, 7));
    EXPECT_EQ(painter.brush(), QBrush(Qt::yellow));
    EXPECT_EQ(painter.opacity(), 0.5);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST_F(MetafilePlayerTest, KeepsWithinTheCallersClip) {
    QImage picture(60, 60, QImage::Format_RGB32);
    picture.fill(Qt::white);
    MetafileBuilder builder(100, 100);
    builder.NullPen().Brush(Blue()).Box(MetafileOrder::IntersectClipRect, 0, 0, 100, 100);
    builder.Rectangle(0, 0, 101, 101);
    QString error;
    QPainter painter(&picture);
    painter.setClipRect(QRect(10, 10, 5, 5));
    Metafile::FromBytes(builder.Plain(), error)->Play(painter, QRectF(0, 0, 60, 60));
    painter.end();
    EXPECT_EQ(Ink(picture), QRect(10, 10, 5, 5));
}

TEST_F(MetafilePlayerTest, StaysSharpOnADensePicture) {
    QImage picture(120, 120, QImage::Format_RGB32);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::white);
    MetafileBuilder builder(100, 100);
    builder.NullPen().Brush(Blue()).Rectangle(25, 25, 76, 76);
    QString error;
    QPainter painter(&picture);
    Metafile::FromBytes(builder.Plain(), error)->Play(painter, QRectF(10, 10, 50, 50));
    painter.end();
    // A pixel is half a unit of the painter.
    picture.setDevicePixelRatio(1);
    EXPECT_EQ(Count(picture, kBlue), 50 * 50);
    EXPECT_EQ(Count(picture, kWhite), 120 * 120 - 50 * 50);
}

TEST_F(MetafilePlayerTest, ReadsBackWhatLiesUnderTheTarget) {
    MetafileBuilder builder(10, 10);
    builder.Add(MetafileOrder::PatBlt, {0x0009, 0x0055, 10, 10, 0, 0});
    EXPECT_EQ(At(Played(builder.Plain(), 20, 20, Qt::green), 10, 10), 0xFFFF00FF);
}

TEST_F(MetafilePlayerTest, OperationsReadBackAndCoverTheSamePlaceOnADensePicture) {
    MetafileBuilder builder(10, 10);
    builder.Add(MetafileOrder::PatBlt, {0x0009, 0x0055, 6, 6, 2, 2});
    QImage picture(120, 120, QImage::Format_RGB32);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::green);
    QString error;
    QPainter painter(&picture);
    EXPECT_TRUE(Metafile::FromBytes(builder.Plain(), error)->Play(painter, QRectF(10, 10, 50, 50)));
    painter.end();
    picture.setDevicePixelRatio(1);
    EXPECT_EQ(Count(picture, 0xFFFF00FF), 60 * 60);
    EXPECT_EQ(At(picture, 40, 40), 0xFFFF00FF);
    EXPECT_EQ(At(picture, 99, 99), 0xFFFF00FF);
}

TEST_F(MetafilePlayerTest, OperationsIntoATargetFarLargerThanThePictureNeedNoMemoryForAllOfIt) {
    MetafileBuilder builder(10, 10);
    builder.NullPen().Brush(Blue()).Add(MetafileOrder::SetRop2, {7}).Polygon({{0, 0}, {5, 0}, {5, 5}, {0, 5}});
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QString error;
    QPainter painter(&picture);
    // The middle of the target stands in the middle of the picture.
    EXPECT_TRUE(Metafile::FromBytes(builder.Plain(), error)->Play(painter, QRectF(-30'000, -30'000, 60'040, 60'040)));
    painter.end();
    EXPECT_EQ(Ink(picture), QRect(0, 0, 20, 20));
}

TEST_F(MetafilePlayerTest, WhereNothingCanBeReadBackAMaskedPictureStillShowsTheGround) {
    // The way icons are drawn: a mask is ANDed, the picture ORed.
    QImage mask(2, 1, QImage::Format_RGB32);
    mask.setPixel(0, 0, qRgb(0, 0, 0));
    mask.setPixel(1, 0, qRgb(255, 255, 255));
    QImage colours(2, 1, QImage::Format_RGB32);
    colours.setPixel(0, 0, kRed);
    colours.setPixel(1, 0, qRgb(0, 0, 0));
    MetafileBuilder builder(20, 10);
    builder.StretchDib(QRect(0, 0, 20, 10), QRect(0, 0, 2, 1), MetafileBuilder::Dib(mask, 24), 0x008800C6);
    builder.StretchDib(QRect(0, 0, 20, 10), QRect(0, 0, 2, 1), MetafileBuilder::Dib(colours, 24), 0x00EE0086);
    QString error;
    // A picture with an alpha channel isn't read back, nor is a scaled one.
    QImage picture(40, 20, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::green);
    QPainter painter(&picture);
    Metafile::FromBytes(builder.Plain(), error)->Play(painter, QRectF(0, 0, 40, 20));
    painter.end();
    EXPECT_EQ(picture.pixel(10, 10), kRed);
    EXPECT_EQ(picture.pixel(30, 10), kGreen);
}

TEST_F(MetafilePlayerTest, OperationsReachPaperToo) {
    MetafileBuilder builder(10, 10);
    builder.NullPen().Brush(Blue()).Rectangle(0, 0, 11, 11);
    builder.Add(MetafileOrder::SetRop2, {7}).Brush(Color::Rgb(255, 0, 255)).Rectangle(0, 0, 11, 11);
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        QPainter painter(&writer);
        QString error;
        EXPECT_TRUE(Metafile::FromBytes(builder.Plain(), error)->Play(painter, QRectF(0, 0, 500, 500)));
    }
    EXPECT_TRUE(bytes.contains("/Image"));
}

TEST_F(MetafilePlayerTest, PlainDrawingGoesOntoPaperAsLinesAndNotAsAPicture) {
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        QPainter painter(&writer);
        QString error;
        EXPECT_TRUE(Metafile::FromBytes(BlueSquare().Plain(), error)->Play(painter, QRectF(0, 0, 500, 500)));
    }
    EXPECT_FALSE(bytes.contains("/Subtype /Image"));
}

TEST_F(MetafilePlayerTest, WindowExtentsMayBeNegative) {
    MetafileBuilder builder;
    builder.Add(MetafileOrder::SetWindowOrg, {100, 0}).Add(MetafileOrder::SetWindowExt, {-100, 100});
    builder.NullPen().Brush(Blue()).Polygon({{0, 100}, {50, 100}, {50, 50}, {0, 50}});
    const QImage picture = Played(builder.Plain(), 60, 60);
    EXPECT_EQ(Ink(picture), QRect(0, 0, 30, 30));
}

TEST_F(MetafilePlayerTest, OriginsAndExtentsMoveAndScale) {
    MetafileBuilder builder(100, 100);
    builder.NullPen().Brush(Blue());
    builder.Add(MetafileOrder::OffsetWindowOrg, {-10, -20});  // Everything 20 right and 10 down.
    builder.Add(MetafileOrder::ScaleWindowExt, {2, 1, 2, 1}); // Half as many units, twice as large.
    builder.Rectangle(0, 0, 11, 11);
    const QImage window = Played(builder.Plain(), 100, 100);
    EXPECT_EQ(Ink(window).topLeft(), QPoint(40, 20));
    EXPECT_EQ(Ink(window).width(), 21);

    MetafileBuilder viewport(100, 100);
    viewport.NullPen().Brush(Blue());
    viewport.Add(MetafileOrder::SetViewportOrg, {5, 10}).Add(MetafileOrder::SetViewportExt, {50, 50});
    viewport.Add(MetafileOrder::OffsetViewportOrg, {10, 10});
    viewport.Add(MetafileOrder::ScaleViewportExt, {1, 2, 1, 2});
    viewport.Rectangle(0, 0, 11, 11);
    const QImage moved = Played(viewport.Plain(), 100, 100);
    EXPECT_EQ(Ink(moved).topLeft(), QPoint(20, 15));
    EXPECT_EQ(Ink(moved).width(), 10);
}

TEST_F(MetafilePlayerTest, AnIsotropicMappingKeepsProportions) {
    MetafileBuilder builder;
    builder.Add(MetafileOrder::SetMapMode, {7}).Add(MetafileOrder::SetWindowExt, {100, 100});
    builder.NullPen().Brush(Blue()).Polygon({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    EXPECT_EQ(Ink(Played(builder.Plain(), 80, 40)), QRect(0, 0, 40, 40));
}

TEST_F(MetafilePlayerTest, FixedMappingsCountPixelsOrInches) {
    MetafileBuilder text(10, 10);
    text.Add(MetafileOrder::SetMapMode, {1}).NullPen().Brush(Blue());
    text.Polygon({{0, 0}, {30, 0}, {30, 30}, {0, 30}});
    EXPECT_EQ(Ink(Played(text.Plain(), 80, 80)), QRect(0, 0, 30, 30));
    MetafileBuilder inches(10, 10);
    inches.Add(MetafileOrder::SetMapMode, {5}).NullPen().Brush(Blue());
    inches.Polygon({{0, 0}, {500, 0}, {500, -500}, {0, -500}});
    EXPECT_EQ(Ink(Played(inches.Plain(), 80, 80)), QRect(0, 0, 48, 48));
}

TEST_F(MetafilePlayerTest, SavesAndRestores) {
    MetafileBuilder builder(30, 30);
    builder.NullPen().Brush(Red()).Add(MetafileOrder::SaveDC).Brush(Green()).Add(MetafileOrder::SaveDC);
    builder.Brush(Blue()).Rectangle(0, 0, 11, 11);
    builder.Add(MetafileOrder::RestoreDC, {-1}).Rectangle(10, 0, 21, 11);
    builder.Add(MetafileOrder::RestoreDC, {-1}).Rectangle(20, 0, 31, 11);
    builder.Add(MetafileOrder::RestoreDC, {-1}).Add(MetafileOrder::RestoreDC, {0}).Rectangle(0, 10, 11, 21);
    const QImage picture = Played(builder.Plain(), 30, 30);
    EXPECT_EQ(At(picture, 5, 5), kBlue);
    EXPECT_EQ(At(picture, 15, 5), kGreen);
    EXPECT_EQ(At(picture, 25, 5), kRed);
    EXPECT_EQ(At(picture, 5, 15), kRed);
}

TEST_F(MetafilePlayerTest, RestoresToALevelAcrossOthers) {
    MetafileBuilder builder(30, 30);
    builder.NullPen().Brush(Red()).Add(MetafileOrder::SaveDC).Brush(Green()).Add(MetafileOrder::SaveDC);
    builder.Brush(Blue()).Add(MetafileOrder::RestoreDC, {2}).Rectangle(0, 0, 31, 31);
    EXPECT_EQ(At(Played(builder.Plain(), 30, 30), 5, 5), kRed);
    MetafileBuilder back(30, 30);
    back.NullPen().Brush(Red()).Add(MetafileOrder::SaveDC).Brush(Green()).Add(MetafileOrder::SaveDC);
    back.Brush(Blue()).Add(MetafileOrder::RestoreDC, {-2}).Rectangle(0, 0, 31, 31);
    EXPECT_EQ(At(Played(back.Plain(), 30, 30), 5, 5), kRed);
}

TEST_F(MetafilePlayerTest, OrdersWithoutEffectOnPicturesArePassedOver) {
    MetafileBuilder builder(20, 20);
    builder.Add(MetafileOrder::Escape, {15, 4}, "note").Add(MetafileOrder::SetRelAbs, {1});
    builder.Add(MetafileOrder::SetMapperFlags, {0, 0}).Add(MetafileOrder::SetLayout, {0, 0});
    builder.AddRaw(4, 0x7777, "xy");
    builder.NullPen().Brush(Blue()).Rectangle(0, 0, 21, 21);
    EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kBlue), 400);
}
