// SPDX-License-Identifier: MIT
#include "support/MetafilePlaying.h"

#include <QDir>
#include <QFile>

#include <map>

namespace {

using Words = MetafileBuilder::Words;

QImage Checks() {
    QImage image(5, 3, QImage::Format_Indexed8);
    image.setColorTable({0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF});
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x)
            image.setPixel(x, y, uint(x + y) % 2);
    }
    return image;
}

MetafileBuilder Start() { return MetafileBuilder(60, 40); }

QByteArray Shapes() {
    MetafileBuilder builder = Start();
    builder.Pen(0, 1, Color::Black()).Brush(Color::Rgb(200, 0, 0)).Rectangle(5, 5, 50, 30);
    builder.Box(MetafileOrder::Ellipse, 5, 5, 50, 30).Add(MetafileOrder::RoundRect, {8, 8, 30, 50, 5, 5});
    const Words arc = {5, 50, 30, 5, 30, 50, 5, 5};
    builder.Add(MetafileOrder::Arc, arc).Add(MetafileOrder::Pie, arc).Add(MetafileOrder::Chord, arc);
    builder.Polygon({{1, 1}, {50, 10}, {20, 35}}).Polygon({{1, 1}, {50, 10}, {20, 35}}, MetafileOrder::Polyline);
    builder.Add(MetafileOrder::SetPolyFillMode, {2});
    builder.PolyPolygon({{{1, 1}, {50, 10}, {20, 35}}, {{9, 9}, {30, 9}, {15, 20}}});
    builder.Pen(1, 0, Color::Rgb(0, 9, 9)).Line(1, 1, 50, 30).Pen(6, 7, Color::Black()).Rectangle(9, 9, 40, 30);
    return builder.Add(MetafileOrder::SetPixel, {255, 0, 5, 6}).Placeable();
}

QByteArray Texts() {
    MetafileBuilder builder = Start();
    builder.Font(12).Text(5, 5, "Text").Font(9, "Symbol", 2).Text(5, 20, "abc").Font(9, "x", 128, 300);
    builder.Add(MetafileOrder::SetTextAlign, {7}).Add(MetafileOrder::SetTextCharExtra, {2});
    builder.Add(MetafileOrder::SetTextJustification, {1, 5}).Text(20, 20, "a b");
    builder.ExtText(9, 9, "ab", 6, QRect(3, 3, 30, 20), {5, 9});
    return builder.ExtText(9, 9, "ab", MetafileText::kDistancesInPairs, {}, {5, 1, 9, 1}).Plain();
}

QByteArray Mappings() {
    MetafileBuilder builder = Start();
    builder.Add(MetafileOrder::SaveDC).Add(MetafileOrder::SetMapMode, {7});
    builder.Add(MetafileOrder::OffsetWindowOrg, {1, 2}).Add(MetafileOrder::ScaleWindowExt, {2, 3, 2, 3});
    builder.Add(MetafileOrder::SetViewportOrg, {1, 2}).Add(MetafileOrder::SetViewportExt, {30, 20});
    builder.Add(MetafileOrder::OffsetViewportOrg, {1, 2}).Add(MetafileOrder::ScaleViewportExt, {2, 3, 2, 3});
    builder.Rectangle(0, 0, 30, 20).Add(MetafileOrder::SetMapMode, {4}).Rectangle(0, 0, 30, -20);
    return builder.Add(MetafileOrder::RestoreDC, {-1}).Rectangle(0, 0, 30, 20).Plain();
}

QByteArray Regions() {
    MetafileBuilder builder = Start();
    builder.Brush(Color::Rgb(0, 0, 99)).Region({QRect(2, 2, 20, 10), QRect(5, 12, 9, 9)});
    builder.Add(MetafileOrder::PaintRegion, {1}).Add(MetafileOrder::FillRegion, {1, 0});
    builder.Add(MetafileOrder::FrameRegion, {1, 0, 2, 2}).Add(MetafileOrder::InvertRegion, {1});
    builder.Add(MetafileOrder::SelectClipRegion, {1}).Add(MetafileOrder::OffsetClip, {2, 3});
    builder.Box(MetafileOrder::IntersectClipRect, 3, 3, 30, 30).Box(MetafileOrder::ExcludeClipRect, 5, 5, 9, 9);
    builder.Add(MetafileOrder::FloodFill, {0, 0, 7, 7}).Add(MetafileOrder::ExtFloodFill, {1, 0xFFFF, 255, 9, 9});
    return builder.Plain();
}

QByteArray Objects() {
    MetafileBuilder builder = Start();
    builder.Palette({Color::Rgb(1, 2, 3), Color::Rgb(4, 5, 6)}).Add(MetafileOrder::SetPaletteEntries, {1, 1, 7, 8});
    builder.Add(MetafileOrder::AnimatePalette, {0, 1, 7, 8}).Add(MetafileOrder::ResizePalette, {3});
    builder.Add(MetafileOrder::CreateBrush, {0, 1, 0x0100, 0}).Select(1).Rectangle(1, 1, 20, 20);
    builder.Add(MetafileOrder::DibCreatePatternBrush, {5, 0}, MetafileBuilder::Dib(Checks(), 4)).Select(2);
    builder.Rectangle(9, 9, 40, 30).Add(MetafileOrder::DeleteObject, {1}).Add(MetafileOrder::SetRop2, {7});
    builder.Add(MetafileOrder::CreateBrush, {2, 1, 0, 5}).Select(1).Rectangle(9, 9, 50, 30);
    builder.Add(MetafileOrder::CreateOldBrush, {0}).Add(MetafileOrder::CreateBitmap, {1, 2, 3});
    return builder.Add(MetafileOrder::CreateBitmapIndirect, {4, 5}).Select(3).Plain();
}

QByteArray Blits(quint32 operation) {
    const int low = int(operation & 0xFFFF);
    const int high = int(operation >> 16);
    MetafileBuilder builder = Start();
    builder.Brush(Color::Rgb(9, 99, 9)).Add(MetafileOrder::SetStretchMode, {4});
    builder.StretchDib(QRect(1, 1, 40, 30), QRect(0, 0, 5, 3), MetafileBuilder::Dib(Checks(), 8), operation);
    builder.Add(MetafileOrder::DibBitBlt, {low, high, 0, 0, 3, 5, 2, 2}, MetafileBuilder::Dib(Checks(), 1));
    builder.Add(MetafileOrder::DibStretchBlt, {low, high, 3, 5, 0, 0, -9, 20, 20, 9},
                MetafileBuilder::Dib(Checks(), 24, true));
    builder.Add(MetafileOrder::SetDibToDev, {0, 3, 0, 0, 0, 3, 5, 2, 9}, MetafileBuilder::Dib(Checks(), 32));
    builder.Add(MetafileOrder::BitBlt, {low, high, 0, 0, 3, 5, 9, 9}, MetafileBuilder::DeviceBitmap(Checks(), 24));
    builder.Add(MetafileOrder::StretchBlt, {low, high, 9, 9, 0, 0, 0, 5, 5, 20, 20});
    const QByteArray runs =
        MetafileBuilder::DibHead(6, 2, 8, 1, {0, 255, 65280}) + QByteArray::fromHex("03010003020302000000000201000203"
                                                                                    "0001");
    builder.StretchDib(QRect(1, 1, 40, 30), QRect(0, 0, 6, 2), runs, operation);
    return builder.Add(MetafileOrder::PatBlt, {low, high, 5, 6, 7, 8}).Plain();
}

std::map<QString, QByteArray> Seeds() {
    return {{QStringLiteral("shapes.wmf"), Shapes()},
            {QStringLiteral("texts.wmf"), Texts()},
            {QStringLiteral("mappings.wmf"), Mappings()},
            {QStringLiteral("regions.wmf"), Regions()},
            {QStringLiteral("objects.wmf"), Objects()},
            {QStringLiteral("blits_copy.wmf"), Blits(0x00CC0020)},
            {QStringLiteral("blits_combine.wmf"), Blits(0x00B8074A)}};
}

} // namespace

class MetafileSeedsTest : public MetafileTest {};

// The seeds of the metafile fuzz target are written here: with TAVLORA_WRITE_SEEDS set the files are made
// anew, for example after an order was added.
TEST_F(MetafileSeedsTest, TheFuzzCorpusHoldsOneFilePerTopic) {
    const QString folderOfSeeds = QStringLiteral(TAVLORA_SOURCE_DIR "/fuzz/corpus/metafile/");
    for (const auto& [name, bytes] : Seeds()) {
        if (qEnvironmentVariableIsSet("TAVLORA_WRITE_SEEDS")) {
            QFile file(folderOfSeeds + name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        }
        EXPECT_EQ(ReadFile(folderOfSeeds + name), bytes) << name.toStdString();
        EXPECT_FALSE(Ink(Played(bytes, 60, 40)).isEmpty()) << name.toStdString();
    }
}
