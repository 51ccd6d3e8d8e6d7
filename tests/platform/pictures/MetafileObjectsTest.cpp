// SPDX-License-Identifier: MIT
#include "support/MetafilePlaying.h"

#include "platform/pictures/metafile/MetafileObjects.h"

class MetafileObjectsTest : public MetafileTest {};

TEST_F(MetafileObjectsTest, AnObjectTakesTheLowestFreeSlot) {
    MetafileObjects objects;
    const auto pen = std::make_shared<const MetafilePen>();
    for (int i = 0; i < 4; ++i)
        objects.Add(pen);
    objects.Delete(2);
    objects.Delete(1);
    objects.Add(std::make_shared<const MetafileBrush>());
    EXPECT_TRUE(std::holds_alternative<std::shared_ptr<const MetafileBrush>>(objects.At(1)));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(objects.At(2)));
}

TEST_F(MetafileObjectsTest, TheTableIsBounded) {
    MetafileObjects objects;
    for (size_t i = 0; i < 2 * MetafileObjects::kMostObjects; ++i)
        objects.Add(MetafileUnknownObject());
    EXPECT_TRUE(std::holds_alternative<MetafileUnknownObject>(objects.At(int(MetafileObjects::kMostObjects) - 1)));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(objects.At(int(MetafileObjects::kMostObjects))));
}

TEST_F(MetafileObjectsTest, UnknownKindsTakeASlotToo) {
    MetafileBuilder builder(20, 20);
    builder.NullPen();                                                   // 0
    builder.Add(MetafileOrder::CreateBrush, {77, 0, 0, 0});              // 1, of a style that nobody knows
    builder.Add(MetafileOrder::DibCreatePatternBrush, {5, 0}, "broken"); // 2
    builder.Add(MetafileOrder::CreateBrush, {0, 0, 255, 0});             // 3
    builder.Select(3).Select(1).Select(2).Rectangle(0, 0, 21, 21);
    EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kBlue), 400);
}

TEST_F(MetafileObjectsTest, ObjectsOfOlderSystemsTakeASlotToo) {
    for (const MetafileOrder order :
         {MetafileOrder::CreateOldBrush, MetafileOrder::CreateBitmap, MetafileOrder::CreateBitmapIndirect}) {
        MetafileBuilder builder(20, 20);
        builder.NullPen().Add(order, {1, 2, 3}).Add(MetafileOrder::CreateBrush, {0, 0, 255, 0});
        builder.Select(2).Rectangle(0, 0, 21, 21);
        EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kBlue), 400) << int(order);
    }
}

TEST_F(MetafileObjectsTest, EmptySlotsArePassedOver) {
    MetafileBuilder builder(20, 20);
    builder.NullPen().Brush(Blue()).Select(9).Select(0xFFFF);
    builder.Add(MetafileOrder::DeleteObject, {9}).Add(MetafileOrder::DeleteObject, {0xFFFF});
    builder.Rectangle(0, 0, 21, 21);
    EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kBlue), 400);
}

TEST_F(MetafileObjectsTest, WhatIsSelectedIsUsedUntilAnotherIs) {
    MetafileBuilder builder(20, 20);
    builder.NullPen().Brush(Blue()).Add(MetafileOrder::DeleteObject, {1}).Rectangle(0, 0, 21, 21);
    EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kBlue), 400);
}

TEST_F(MetafileObjectsTest, HatchesShowTheGroundUnlessTheBackgroundIsOpaque) {
    for (int hatch = 0; hatch < 6; ++hatch) {
        MetafileBuilder clear(64, 64);
        clear.Add(MetafileOrder::SetBkMode, {1}).NullPen().BrushOf(2, Red(), hatch).Rectangle(0, 0, 65, 65);
        const QImage lines = Played(clear.Plain(), 64, 64);
        EXPECT_GT(Count(lines, kRed), 64 * 64 / 10) << hatch;
        EXPECT_EQ(Count(lines, kRed) + Count(lines, kWhite), 64 * 64) << hatch;
        MetafileBuilder opaque(64, 64);
        opaque.Add(MetafileOrder::SetBkColor, MetafileBuilder::ColorWords(Green()));
        opaque.NullPen().BrushOf(2, Red(), hatch).Rectangle(0, 0, 65, 65);
        EXPECT_EQ(Count(Played(opaque.Plain(), 64, 64), kGreen), Count(lines, kWhite)) << hatch;
    }
}

TEST_F(MetafileObjectsTest, PatternsRepeat) {
    QImage tile(8, 8, QImage::Format_RGB32);
    tile.fill(Qt::green);
    tile.setPixel(0, 0, kRed);
    MetafileBuilder builder(32, 32);
    builder.NullPen().Add(MetafileOrder::DibCreatePatternBrush, {5, 0}, MetafileBuilder::Dib(tile, 24));
    builder.Select(1).Rectangle(0, 0, 33, 33);
    const QImage picture = Played(builder.Plain(), 32, 32);
    EXPECT_EQ(Count(picture, kRed), 16);
    EXPECT_EQ(At(picture, 8, 16), kRed);
}

TEST_F(MetafileObjectsTest, APatternOfTheDeviceTakesTextAndBackgroundColour) {
    QImage tile(8, 8, QImage::Format_Mono);
    tile.fill(1);
    tile.setPixel(0, 0, 0);
    QByteArray bitmap = MetafileBuilder::DeviceBitmap(tile, 1);
    bitmap.insert(10, QByteArray(22, '\0'));
    MetafileBuilder builder(32, 32);
    builder.NullPen().Add(MetafileOrder::CreatePatternBrush, {}, bitmap).Select(1);
    builder.Add(MetafileOrder::SetTextColor, MetafileBuilder::ColorWords(Red()));
    builder.Add(MetafileOrder::SetBkColor, MetafileBuilder::ColorWords(Green()));
    builder.Rectangle(0, 0, 33, 33);
    const QImage picture = Played(builder.Plain(), 32, 32);
    EXPECT_EQ(Count(picture, kRed), 16);
    EXPECT_EQ(Count(picture, kGreen), 32 * 32 - 16);
}

TEST_F(MetafileObjectsTest, ColoursMayBeNumbersInThePalette) {
    MetafileBuilder builder(20, 20);
    builder.NullPen().Palette({Red(), Green(), Blue()});
    builder.Add(MetafileOrder::CreateBrush, {0, 2, 0x0100, 0}).Select(2).Rectangle(0, 0, 21, 21);
    EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kBlue), 400);
    MetafileBuilder relative(20, 20);
    relative.NullPen().Palette({Red()});
    relative.Add(MetafileOrder::CreateBrush, {0, 0, 0x02FF, 0}).Select(2).Rectangle(0, 0, 21, 21);
    EXPECT_EQ(Count(Played(relative.Plain(), 20, 20), kBlue), 400);
}

TEST_F(MetafileObjectsTest, WithoutAPaletteTheFixedColoursCount) {
    MetafileBuilder builder(20, 20);
    builder.NullPen().Add(MetafileOrder::CreateBrush, {0, 13, 0x0100, 0}).Select(1).Rectangle(0, 0, 21, 21);
    EXPECT_EQ(Count(Played(builder.Plain(), 20, 20), kRed), 400);
}

TEST_F(MetafileObjectsTest, PalettesCanBeEdited) {
    const auto painted = [&](MetafileOrder order, const MetafileBuilder::Words& words) {
        MetafileBuilder builder(20, 20);
        builder.NullPen().Palette({Red(), Green()}).Add(order, words);
        builder.Add(MetafileOrder::CreateBrush, {0, 1, 0x0100, 0}).Select(2).Rectangle(0, 0, 21, 21);
        return At(Played(builder.Plain(), 20, 20), 10, 10);
    };
    const MetafileBuilder::Words blueAtOne = MetafileBuilder::Words{1, 1} + MetafileBuilder::ColorWords(Blue());
    EXPECT_EQ(painted(MetafileOrder::SetPaletteEntries, blueAtOne), kBlue);
    EXPECT_EQ(painted(MetafileOrder::AnimatePalette, blueAtOne), kBlue);
    EXPECT_EQ(painted(MetafileOrder::ResizePalette, {1}), kBlack);
    EXPECT_EQ(painted(MetafileOrder::ResizePalette, {2}), kGreen);
}

TEST_F(MetafileObjectsTest, ClipsNarrowAndEnd) {
    MetafileBuilder builder(40, 40);
    builder.NullPen().Brush(Red());
    builder.Box(MetafileOrder::IntersectClipRect, 10, 10, 30, 30);
    builder.Box(MetafileOrder::ExcludeClipRect, 15, 15, 25, 25).Rectangle(0, 0, 41, 41);
    const QImage ring = Played(builder.Plain(), 40, 40);
    EXPECT_EQ(Ink(ring), QRect(10, 10, 20, 20));
    EXPECT_EQ(Count(ring, kRed), 400 - 100);
    builder.Add(MetafileOrder::OffsetClip, {5, 0}).Brush(Blue()).Rectangle(0, 0, 41, 41);
    EXPECT_EQ(Ink(Played(builder.Plain(), 40, 40)), QRect(10, 10, 20, 25));
    builder.Add(MetafileOrder::SelectClipRegion, {0}).Rectangle(0, 0, 41, 41);
    EXPECT_EQ(Count(Played(builder.Plain(), 40, 40), kBlue), 1600);
}

TEST_F(MetafileObjectsTest, RestoringBringsTheClipBack) {
    MetafileBuilder builder(40, 40);
    builder.NullPen().Brush(Red()).Add(MetafileOrder::SaveDC);
    builder.Box(MetafileOrder::IntersectClipRect, 10, 10, 11, 11).Add(MetafileOrder::RestoreDC, {-1});
    builder.Rectangle(0, 0, 41, 41);
    EXPECT_EQ(Count(Played(builder.Plain(), 40, 40), kRed), 1600);
}

TEST_F(MetafileObjectsTest, RegionsArePaintedFramedFilledInvertedAndClippedTo) {
    const QList<QRect> bands = {QRect(10, 10, 20, 10), QRect(10, 20, 10, 10)};
    const auto base = [&] {
        MetafileBuilder builder(40, 40);
        builder.NullPen().Brush(Red()).Region(bands); // The region in slot 2.
        return builder;
    };
    EXPECT_EQ(Count(Played(base().Add(MetafileOrder::PaintRegion, {2}).Plain(), 40, 40), kRed), 300);
    EXPECT_EQ(Count(Played(base().Add(MetafileOrder::FillRegion, {2, 1}).Plain(), 40, 40), kRed), 300);
    EXPECT_EQ(Count(Played(base().Add(MetafileOrder::InvertRegion, {2}).Plain(), 40, 40), kBlack), 300);
    const QImage frame = Played(base().Add(MetafileOrder::FrameRegion, {2, 1, 2, 2}).Plain(), 40, 40);
    EXPECT_EQ(Ink(frame), QRect(10, 10, 20, 20));
    EXPECT_EQ(At(frame, 14, 15), kWhite);
    EXPECT_EQ(At(frame, 11, 15), kRed);
    const QImage clipped =
        Played(base().Add(MetafileOrder::SelectClipRegion, {2}).Rectangle(0, 0, 41, 41).Plain(), 40, 40);
    EXPECT_EQ(Count(clipped, kRed), 300);
    const QImage selected = Played(base().Select(2).Rectangle(0, 0, 41, 41).Plain(), 40, 40);
    EXPECT_EQ(Count(selected, kRed), 300);
}
