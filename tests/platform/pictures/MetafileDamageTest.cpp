// SPDX-License-Identifier: MIT
#include "support/MetafilePlaying.h"
#include "support/Work.h"

#include <QRandomGenerator>

#include <functional>

namespace {

constexpr int kMegabyte = 1 << 20;

// Repeats what the function adds until the file is a megabyte long.
QByteArray Megabyte(const std::function<void(MetafileBuilder&)>& add,
                    const std::function<void(MetafileBuilder&)>& start = {}) {
    MetafileBuilder once;
    add(once);
    const qsizetype size = once.Plain().size() - MetafileBuilder().Plain().size();
    MetafileBuilder builder(1000, 1000);
    if (start) start(builder);
    for (qsizetype bytes = 0; bytes + size < kMegabyte; bytes += size)
        add(builder);
    return builder.Plain();
}

QList<QPoint> RandomPoints(int count, quint32 seed, int range) {
    QRandomGenerator random(seed);
    QList<QPoint> points;
    for (int i = 0; i < count; ++i)
        points.append({random.bounded(-range, range), random.bounded(-range, range)});
    return points;
}

} // namespace

class MetafileDamageTest : public MetafileTest {
protected:
    /// What playing takes on a picture of the given side.
    static double PlayingWork(const QByteArray& bytes, int side) {
        return Work::Of([&] { Played(bytes, side, side); });
    }
};

TEST_F(MetafileDamageTest, WhatIsNoMetafileIsRefusedWithASentence) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("BM"), QByteArray(17, 'x'), QByteArray(400, 'x'), QByteArray::fromHex("d7cdc69a")}) {
        QString error;
        EXPECT_FALSE(Metafile::FromBytes(bytes, error));
        EXPECT_TRUE(error.endsWith(u'.')) << error.toStdString();
    }
}

TEST_F(MetafileDamageTest, AFileWithoutAnyOrderFailsToPlay) {
    QString error;
    const auto metafile = Metafile::FromBytes(MetafileBuilder().Plain(), error);
    ASSERT_TRUE(metafile);
    QImage picture(10, 10, QImage::Format_RGB32);
    QPainter painter(&picture);
    EXPECT_FALSE(metafile->Play(painter, QRectF(0, 0, 10, 10)));
}

TEST_F(MetafileDamageTest, AFileCutShortShowsWhatCameBefore) {
    MetafileBuilder builder(100, 100);
    builder.NullPen().Brush(Blue()).Polygon({{0, 0}, {100, 0}, {100, 100}, {0, 100}}).Font(20).Text(5, 5, "text");
    const QByteArray whole = builder.Plain();
    EXPECT_EQ(Count(Played(whole.chopped(40), 20, 20), kBlue), 400);
    for (qsizetype size = 18; size < whole.size(); ++size) {
        QString error;
        const auto metafile = Metafile::FromBytes(whole.first(size), error);
        ASSERT_TRUE(metafile);
        QImage picture(20, 20, QImage::Format_RGB32);
        QPainter painter(&picture);
        metafile->Play(painter, QRectF(0, 0, 20, 20));
    }
}

TEST_F(MetafileDamageTest, ARecordThatDoesNotGetOnEndsPlaying) {
    for (const quint32 words : {0u, 1u, 2u}) {
        MetafileBuilder builder(100, 100);
        builder.NullPen().Brush(Blue()).Rectangle(0, 0, 60, 60).AddRaw(words, 0x41B, {}).Brush(Red());
        builder.Rectangle(0, 0, 101, 101);
        EXPECT_EQ(Count(Played(builder.Plain(), 100, 100), kRed), 0);
        EXPECT_GT(Count(Played(builder.Plain(), 100, 100), kBlue), 3000);
    }
}

TEST_F(MetafileDamageTest, ARecordLargerThanTheFileIsReadAsFarAsItGoes) {
    MetafileBuilder builder(100, 100);
    builder.NullPen().Brush(Blue()).AddRaw(0xFFFFFFFF, 0x41B, MetafileBuilder::WordBytes({101, 101, 0, 0}));
    EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kBlue), 19 * 19);
}

TEST_F(MetafileDamageTest, RecordsThatAreTooShortAreSafe) {
    for (int order = 0; order < 0x10000; ++order) {
        if ((order & 0xFF) > 0x49 && (order & 0xFF) < 0xF7) continue;
        MetafileBuilder builder(10, 10);
        builder.AddRaw(3, quint16(order), {}).AddRaw(4, quint16(order), "\xFF\xFF");
        builder.AddRaw(6, quint16(order), "\xFF\xFF\xFF\x7F\x00\x80");
        QString error;
        QImage picture(10, 10, QImage::Format_RGB32);
        QPainter painter(&picture);
        EXPECT_TRUE(Metafile::FromBytes(builder.Plain(), error)->Play(painter, QRectF(0, 0, 10, 10))) << order;
    }
}

TEST_F(MetafileDamageTest, FalseCountsOfPointsAreBounded) {
    MetafileBuilder builder(100, 100);
    builder.Add(MetafileOrder::Polygon, {0xFFFF, 0, 0, 100, 0, 100, 100, 0, 100});
    builder.Add(MetafileOrder::PolyPolygon, {0xFFFF, 5, 5, 5});
    builder.Add(MetafileOrder::PolyPolygon, {2, 0xFFFF, 0xFFFF, 1, 2, 3, 4});
    builder.Add(MetafileOrder::ExtTextOut, {0, 0, 0x7FFF, 0}, "short");
    builder.Add(MetafileOrder::CreateRegion, {0, 6, 0, 0, 0, 0x7FFF, 0, 0, 0, 0, 0, 0x7FFF, 0, 0});
    builder.Add(MetafileOrder::CreatePalette, {0x300, 0x7FFF, 1, 2});
    // The first polygon still has its four true points, and playing goes on behind the last record.
    builder.Box(MetafileOrder::Rectangle, 0, 0, 2, 2);
    EXPECT_GT(Ink(Played(builder.Plain(), 100, 100)).width(), 90);
}

TEST_F(MetafileDamageTest, AWindowWithoutSizeIsPassedOver) {
    MetafileBuilder builder(100, 100);
    builder.Add(MetafileOrder::SetWindowExt, {0, 0}).Add(MetafileOrder::SetViewportExt, {0, 0});
    builder.Add(MetafileOrder::ScaleWindowExt, {0, 0, 0, 0}).Add(MetafileOrder::ScaleViewportExt, {0, 1, 0, 1});
    builder.NullPen().Brush(Blue()).Polygon({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kBlue), 400);
}

TEST_F(MetafileDamageTest, AClipMovedAwayForEverDoesNotComeRoundAgain) {
    MetafileBuilder builder;
    builder.Add(MetafileOrder::SetWindowExt, {1, 1}).NullPen().Brush(Blue());
    builder.Box(MetafileOrder::IntersectClipRect, 0, 0, 1, 1);
    // 256 pixels a unit: 1024 moves of 16384 units are 2 to the power of 32 pixels.
    for (int i = 0; i < 1024; ++i)
        builder.Add(MetafileOrder::OffsetClip, {0, 16384});
    builder.Polygon({{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    EXPECT_EQ(Count(Played(builder.Plain(), 256, 256), kWhite), 256 * 256);
}

TEST_F(MetafileDamageTest, ExtremeCoordinatesAreDrawnWhereTheyAreSeen) {
    MetafileBuilder builder;
    builder.Add(MetafileOrder::SetWindowExt, {1, 1}).NullPen().Brush(Blue());
    builder.Polygon({{-32768, -32768}, {32767, -32768}, {32767, 32767}, {-32768, 32767}});
    EXPECT_EQ(Count(Played(builder.Plain(), 200, 200), kBlue), 200 * 200);
}

TEST_F(MetafileDamageTest, AMegabyteOfHugePolygonsTakesNoMoreWorkThanASecondHas) {
    for (const int range : {1000, 32767}) {
        const QByteArray bytes =
            Megabyte([&](MetafileBuilder& builder) { builder.Polygon(RandomPoints(30'000, 7, range)); },
                     [](MetafileBuilder& builder) { builder.Pen(0, 40, Color::Black()); });
        EXPECT_LT(PlayingWork(bytes, 256), Work::kASecond) << range;
        EXPECT_LT(PlayingWork(bytes, 1500), Work::kASecond) << range;
    }
}

TEST_F(MetafileDamageTest, AMegabyteOfLinesTakesNoMoreWorkThanASecondHas) {
    for (const int style : {0, 1, 2}) {
        for (const int width : {1, 30}) {
            const QByteArray bytes =
                Megabyte([](MetafileBuilder& builder) { builder.Line(-30000, -30000, 30000, 31000); },
                         [&](MetafileBuilder& builder) { builder.Pen(style, width, Color::Black()); });
            EXPECT_LT(PlayingWork(bytes, 256), Work::kASecond) << style << ' ' << width;
            EXPECT_LT(PlayingWork(bytes, 1500), Work::kASecond) << style << ' ' << width;
        }
    }
}

TEST_F(MetafileDamageTest, AMegabyteOfShapesTakesNoMoreWorkThanASecondHas) {
    for (const int rop2 : {13, 7}) {
        const QByteArray bytes = Megabyte(
            [](MetafileBuilder& builder) {
                builder.Box(MetafileOrder::Ellipse, -1000, -1000, 2000, 2000);
                builder.Rectangle(0, 0, 1000, 1000).Add(MetafileOrder::Arc, {1, 5, 9, 700, 900, 900, 1, 1});
            },
            [&](MetafileBuilder& builder) {
                builder.Add(MetafileOrder::SetRop2, {rop2}).Pen(0, 500, Color::Black()).BrushOf(2, Red(), 5);
            });
        EXPECT_LT(PlayingWork(bytes, 256), Work::kASecond) << rop2;
        EXPECT_LT(PlayingWork(bytes, 1500), Work::kASecond) << rop2;
    }
}

TEST_F(MetafileDamageTest, AMegabyteOfStretchedPicturesTakesNoMoreWorkThanASecondHas) {
    QImage dot(1, 1, QImage::Format_RGB32);
    dot.fill(Qt::red);
    const QByteArray small = MetafileBuilder::Dib(dot, 24);
    // A head that promises millions of pixels, and next to none of them.
    const QByteArray large = MetafileBuilder::DibHead(4000, 4000, 8, 1, {0, 1}) + QByteArray(16'000, '\xFF');
    for (const quint32 operation : {0x00CC0020u, 0x00660046u, 0x00B80000u}) {
        for (const QByteArray& dib : {small, large}) {
            const int side = dib == small ? 1 : 4000;
            const QByteArray bytes = Megabyte([&](MetafileBuilder& builder) {
                builder.StretchDib(QRect(0, 0, 1000, 1000), QRect(0, 0, side, side), dib, operation);
            });
            EXPECT_LT(PlayingWork(bytes, 256), Work::kASecond) << operation << ' ' << side;
            EXPECT_LT(PlayingWork(bytes, 1500), Work::kASecond) << operation << ' ' << side;
        }
    }
}

TEST_F(MetafileDamageTest, AMegabyteOfTextTakesNoMoreWorkThanASecondHas) {
    const QByteArray manyRecords = Megabyte([](MetafileBuilder& builder) { builder.Text(10, 10, "W"); },
                                            [](MetafileBuilder& builder) { builder.Font(900, "Times New Roman"); });
    EXPECT_LT(PlayingWork(manyRecords, 256), Work::kASecond);
    EXPECT_LT(PlayingWork(manyRecords, 1500), Work::kASecond);
    const QByteArray longTexts =
        Megabyte([](MetafileBuilder& builder) { builder.Text(10, 10, QByteArray(20'000, 'W')); });
    EXPECT_LT(PlayingWork(longTexts, 256), Work::kASecond);
    const QByteArray manyFonts = Megabyte([number = 0](MetafileBuilder& builder) mutable {
        ++number;
        builder.Font(20 + number % 50, "Face " + QByteArray::number(number)).Text(1, 1, "A");
        builder.Add(MetafileOrder::DeleteObject, {0});
    });
    EXPECT_LT(PlayingWork(manyFonts, 256), Work::kASecond);
}

TEST_F(MetafileDamageTest, AMegabyteOfStatesTakesNoMoreWorkThanASecondHas) {
    const QByteArray saves = Megabyte([](MetafileBuilder& builder) { builder.Add(MetafileOrder::SaveDC); });
    EXPECT_LT(PlayingWork(saves, 256), Work::kASecond);
    const QByteArray turns = Megabyte(
        [](MetafileBuilder& builder) { builder.Add(MetafileOrder::SaveDC).Add(MetafileOrder::RestoreDC, {-1}); });
    EXPECT_LT(PlayingWork(turns, 256), Work::kASecond);
    int place = 0;
    const QByteArray clips = Megabyte([&](MetafileBuilder& builder) {
        place = (place * 37 + 11) % 997;
        builder.Box(MetafileOrder::ExcludeClipRect, place, place * 7 % 991, place + 2, place * 7 % 991 + 2);
    });
    EXPECT_LT(PlayingWork(clips, 1000), Work::kASecond);
    const QByteArray objects = Megabyte([](MetafileBuilder& builder) {
        builder.Add(MetafileOrder::CreatePen, {0, 1, 0, 0, 0});
    });
    EXPECT_LT(PlayingWork(objects, 256), Work::kASecond);
    const QByteArray floods = Megabyte([](MetafileBuilder& builder) {
        builder.Add(MetafileOrder::FloodFill, {1, 0, 500, 500});
    });
    EXPECT_LT(PlayingWork(floods, 256), Work::kASecond);
    EXPECT_LT(PlayingWork(floods, 1500), Work::kASecond);
}
