// SPDX-License-Identifier: MIT
#include "support/MetafilePlaying.h"

#include "platform/pictures/metafile/MetafileBudget.h"
#include "platform/pictures/metafile/MetafileDib.h"
#include "platform/pictures/metafile/MetafileObjects.h"

namespace {

constexpr quint32 kCopy = 0x00CC0020;
// An odd size, so that faults in the length of rows show.
constexpr int kWidth = 47;
constexpr int kHeight = 33;

QImage Gradient() {
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x)
            image.setPixel(x, y, qRgb(x * 5, y * 7, (x * y) % 256));
    }
    return image;
}

QImage Indexed(int bits) {
    const int colours = 1 << bits;
    QImage image(kWidth, kHeight, QImage::Format_Indexed8);
    QList<QRgb> table;
    for (int i = 0; i < colours; ++i)
        table.append(qRgb(i * 255 / (colours - 1), 255 - i * 255 / (colours - 1), i * 40 % 256));
    image.setColorTable(table);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x)
            image.setPixel(x, y, uint((x + 2 * y) % colours));
    }
    return image;
}

QImage Decode(const QByteArray& dib, int colourUse = 0) {
    MetafileBudget budget;
    return MetafileDib::Decode(dib, quint16(colourUse), *MetafilePalette::Fixed(), budget);
}

bool SamePixels(const QImage& a, const QImage& b) {
    return a.convertToFormat(QImage::Format_RGB32) == b.convertToFormat(QImage::Format_RGB32);
}

// Red, green over blue, white.
QImage Quarters() {
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixel(0, 0, 0xFFFF0000);
    image.setPixel(1, 0, 0xFF00FF00);
    image.setPixel(0, 1, 0xFF0000FF);
    image.setPixel(1, 1, 0xFFFFFFFF);
    return image;
}

} // namespace

class MetafileBitsTest : public MetafileTest {};

TEST_F(MetafileBitsTest, PicturesOfAllDepthsAreRead) {
    for (const int bits : {1, 4, 8}) {
        const QImage image = Indexed(bits);
        EXPECT_TRUE(SamePixels(Decode(MetafileBuilder::Dib(image, bits)), image)) << bits;
        EXPECT_TRUE(SamePixels(Decode(MetafileBuilder::Dib(image, bits, true)), image)) << bits;
    }
    for (const int bits : {24, 32}) {
        EXPECT_TRUE(SamePixels(Decode(MetafileBuilder::Dib(Gradient(), bits)), Gradient())) << bits;
        EXPECT_TRUE(SamePixels(Decode(MetafileBuilder::Dib(Gradient(), bits, true)), Gradient())) << bits;
    }
}

TEST_F(MetafileBitsTest, SixteenBitsHaveFiveOrSixBitsOfGreen) {
    QByteArray plain = MetafileBuilder::DibHead(2, 1, 16, 0, {}) + MetafileBuilder::WordBytes({0x7C00, 0x03E0});
    EXPECT_EQ(Decode(plain).pixel(0, 0), kRed);
    EXPECT_EQ(Decode(plain).pixel(1, 0), kGreen);
    QByteArray fields = MetafileBuilder::DibHead(2, 1, 16, 3, {}) +
                        MetafileBuilder::WordBytes({0xF800, 0, 0x07E0, 0, 0x001F, 0, 0xF800, 0x001F});
    EXPECT_EQ(Decode(fields).pixel(0, 0), kRed);
    EXPECT_EQ(Decode(fields).pixel(1, 0), kBlue);
}

TEST_F(MetafileBitsTest, TheOldHeadHasColoursOfThreeBytes) {
    QByteArray dib = MetafileBuilder::WordBytes({12, 0, 2, 1, 1, 1});
    dib += QByteArray::fromHex("0000ff"
                               "00ff00"
                               "40000000");
    EXPECT_EQ(Decode(dib).pixel(0, 0), kRed);
    EXPECT_EQ(Decode(dib).pixel(1, 0), kGreen);
}

TEST_F(MetafileBitsTest, RunsOfEightBitsAreUnpacked) {
    const QList<QRgb> colours = {kBlack, kRed, kGreen, kBlue};
    // Three of 1, then 2 and 3 as they stand; next row; one pixel skipped, two of 3; end.
    const QByteArray runs = QByteArray::fromHex("0301"
                                                "0003020302"
                                                "00"
                                                "0000"
                                                "00020100"
                                                "0203"
                                                "0001");
    const QImage image = Decode(MetafileBuilder::DibHead(6, 2, 8, 1, colours) + runs);
    ASSERT_EQ(image.size(), QSize(6, 2));
    EXPECT_EQ(image.pixel(2, 1), kRed);
    EXPECT_EQ(image.pixel(3, 1), kGreen);
    EXPECT_EQ(image.pixel(4, 1), kBlue);
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
    EXPECT_EQ(image.pixel(1, 0), kBlue);
    EXPECT_EQ(image.pixel(2, 0), kBlue);
}

TEST_F(MetafileBitsTest, RunsOfFourBitsAlternate) {
    const QList<QRgb> colours = {kBlack, kRed, kGreen, kBlue};
    const QByteArray runs = QByteArray::fromHex("0412"
                                                "000331300000"
                                                "0001");
    const QImage image = Decode(MetafileBuilder::DibHead(7, 1, 4, 2, colours) + runs);
    const QList<QRgb> expected = {kRed, kGreen, kRed, kGreen, kBlue, kRed, kBlue};
    for (int x = 0; x < 7; ++x)
        EXPECT_EQ(image.pixel(x, 0), expected[x]) << x;
}

TEST_F(MetafileBitsTest, ATableMayHoldNumbersInThePalette) {
    QByteArray dib = MetafileBuilder::DibHead(2, 1, 1, 0, {});
    dib += MetafileBuilder::WordBytes({13, 16}) + QByteArray::fromHex("40000000");
    EXPECT_EQ(Decode(dib, 1).pixel(0, 0), kRed);
    EXPECT_EQ(Decode(dib, 1).pixel(1, 0), kBlue);
}

TEST_F(MetafileBitsTest, WhatCantBeReadIsNoPicture) {
    EXPECT_TRUE(Decode({}).isNull());
    EXPECT_TRUE(Decode(MetafileBuilder::DibHead(0, 5, 24, 0, {})).isNull());
    EXPECT_TRUE(Decode(MetafileBuilder::DibHead(-5, 5, 24, 0, {})).isNull());
    EXPECT_TRUE(Decode(MetafileBuilder::DibHead(5, 5, 7, 0, {})).isNull());
    EXPECT_TRUE(Decode(MetafileBuilder::DibHead(5, 5, 24, 1, {})).isNull());
    EXPECT_TRUE(Decode(MetafileBuilder::DibHead(5, 5, 24, 4, {})).isNull());
    EXPECT_TRUE(Decode(MetafileBuilder::DibHead(30000, 30000, 24, 0, {})).isNull());
    // Far more pixels than the bytes could mean.
    EXPECT_TRUE(Decode(MetafileBuilder::DibHead(3000, 3000, 24, 0, {}) + QByteArray(40, 'x')).isNull());
    EXPECT_TRUE(Decode(MetafileBuilder::DibHead(5, -2147483647 - 1, 24, 0, {})).isNull());
}

TEST_F(MetafileBitsTest, APictureCutShortKeepsItsRows) {
    QByteArray dib = MetafileBuilder::Dib(Gradient(), 24);
    dib.chop(10 * 144);
    const QImage image = Decode(dib);
    EXPECT_EQ(image.pixel(3, kHeight - 1), Gradient().pixel(3, kHeight - 1));
    EXPECT_EQ(qAlpha(image.pixel(3, 0)), 0);
}

TEST_F(MetafileBitsTest, AStretchedPictureKeepsItsPixelsSharp) {
    MetafileBuilder builder(40, 40);
    builder.StretchDib(QRect(10, 10, 20, 20), QRect(0, 0, 2, 2), MetafileBuilder::Dib(Quarters(), 24));
    const QImage picture = Played(builder.Plain(), 40, 40);
    EXPECT_EQ(Count(picture, kRed), 100);
    EXPECT_EQ(At(picture, 19, 19), kRed);
    EXPECT_EQ(At(picture, 20, 19), kGreen);
    EXPECT_EQ(At(picture, 19, 20), kBlue);
}

TEST_F(MetafileBitsTest, NegativeSizesMirror) {
    MetafileBuilder target(40, 40);
    target.StretchDib(QRect(30, 30, -20, -20), QRect(0, 0, 2, 2), MetafileBuilder::Dib(Quarters(), 24));
    EXPECT_EQ(At(Played(target.Plain(), 40, 40), 25, 25), kRed);
    EXPECT_EQ(At(Played(target.Plain(), 40, 40), 15, 25), kGreen);
    MetafileBuilder source(40, 40);
    source.StretchDib(QRect(10, 10, 20, 20), QRect(2, 0, -2, 2), MetafileBuilder::Dib(Quarters(), 24));
    EXPECT_EQ(At(Played(source.Plain(), 40, 40), 25, 15), kRed);
}

TEST_F(MetafileBitsTest, RowsCountFromTheBottomOrTheTopByOrder) {
    const QByteArray dib = MetafileBuilder::Dib(Quarters(), 24);
    MetafileBuilder bottom(20, 20);
    bottom.StretchDib(QRect(0, 0, 20, 20), QRect(0, 0, 2, 1), dib);
    EXPECT_EQ(At(Played(bottom.Plain(), 20, 20), 5, 5), kBlue);
    MetafileBuilder top(20, 20);
    top.Add(MetafileOrder::DibStretchBlt, {int(kCopy & 0xFFFF), int(kCopy >> 16), 1, 2, 0, 0, 20, 20, 0, 0}, dib);
    EXPECT_EQ(At(Played(top.Plain(), 20, 20), 5, 5), kRed);
}

TEST_F(MetafileBitsTest, BlitsPaintUnscaledAndScaled) {
    const QByteArray dib = MetafileBuilder::Dib(Quarters(), 24);
    MetafileBuilder blit(20, 20);
    blit.Add(MetafileOrder::DibBitBlt, {int(kCopy & 0xFFFF), int(kCopy >> 16), 0, 0, 2, 2, 5, 6}, dib);
    const QImage picture = Played(blit.Plain(), 20, 20);
    EXPECT_EQ(At(picture, 6, 5), kRed);
    EXPECT_EQ(At(picture, 6, 6), kBlue);
    MetafileBuilder device(10, 10);
    device.Add(MetafileOrder::SetDibToDev, {0, 2, 0, 0, 0, 2, 2, 1, 1}, dib);
    const QImage unscaled = Played(device.Plain(), 20, 20);
    EXPECT_EQ(Ink(unscaled), QRect(2, 2, 2, 2));
    EXPECT_EQ(At(unscaled, 2, 2), kRed);
}

TEST_F(MetafileBitsTest, PicturesOfTheRecordingDeviceArePainted) {
    MetafileBuilder colour(20, 20);
    colour.Add(MetafileOrder::StretchBlt, {int(kCopy & 0xFFFF), int(kCopy >> 16), 2, 2, 0, 0, 20, 20, 0, 0},
               MetafileBuilder::DeviceBitmap(Quarters(), 24));
    EXPECT_EQ(At(Played(colour.Plain(), 20, 20), 15, 5), kGreen);
    QImage mono(2, 2, QImage::Format_Mono);
    mono.fill(1);
    mono.setPixel(0, 0, 0);
    MetafileBuilder mask(20, 20);
    mask.Add(MetafileOrder::SetTextColor, MetafileBuilder::ColorWords(Red()));
    mask.Add(MetafileOrder::SetBkColor, MetafileBuilder::ColorWords(Green()));
    mask.Add(MetafileOrder::BitBlt, {int(kCopy & 0xFFFF), int(kCopy >> 16), 0, 0, 2, 2, 0, 0},
             MetafileBuilder::DeviceBitmap(mono, 1));
    const QImage picture = Played(mask.Plain(), 20, 20);
    EXPECT_EQ(At(picture, 0, 0), kRed);
    EXPECT_EQ(At(picture, 1, 1), kGreen);
}

TEST_F(MetafileBitsTest, PatternBlitsNeedNoPicture) {
    const auto painted = [&](MetafileOrder order, const MetafileBuilder::Words& words) {
        return Played(MetafileBuilder(20, 20).Brush(Blue()).Add(order, words).Plain(), 20, 20);
    };
    // PATCOPY, height, width, y, x; the other forms have the source's numbers and an empty word in front.
    EXPECT_EQ(Count(painted(MetafileOrder::PatBlt, {0x21, 0xF0, 5, 6, 7, 8}), kBlue), 30);
    EXPECT_EQ(Count(painted(MetafileOrder::DibBitBlt, {0x21, 0xF0, 0, 0, 0, 5, 6, 7, 8}), kBlue), 30);
    EXPECT_EQ(Count(painted(MetafileOrder::BitBlt, {0x21, 0xF0, 0, 0, 0, 5, 6, 7, 8}), kBlue), 30);
    EXPECT_EQ(Count(painted(MetafileOrder::DibStretchBlt, {0x21, 0xF0, 1, 1, 0, 0, 0, 5, 6, 7, 8}), kBlue), 30);
    EXPECT_EQ(Count(painted(MetafileOrder::PatBlt, {0x42, 0x00, 5, 6, 7, 8}), kBlack), 30);
    EXPECT_EQ(Count(painted(MetafileOrder::PatBlt, {0x62, 0xFF, 20, 20, 0, 0}), kWhite), 400);
    EXPECT_EQ(Count(painted(MetafileOrder::PatBlt, {0x49, 0x5A, 5, 6, 7, 8}), 0xFFFFFF00), 30);
}

TEST_F(MetafileBitsTest, ABlitWithoutAPictureCopiesWhatWasPainted) {
    MetafileBuilder builder(20, 20);
    builder.NullPen().Brush(Red()).Rectangle(0, 0, 6, 6);
    builder.Add(MetafileOrder::BitBlt, {int(kCopy & 0xFFFF), int(kCopy >> 16), 0, 0, 0, 5, 5, 10, 10});
    const QImage picture = Played(builder.Plain(), 20, 20);
    EXPECT_EQ(At(picture, 12, 12), kRed);
    EXPECT_EQ(Count(picture, kRed), 50);
}

TEST_F(MetafileBitsTest, TernaryOperationsCombineSourcePatternAndGround) {
    QImage source(1, 1, QImage::Format_RGB32);
    source.fill(0xFFCCAA0F);
    const QByteArray dib = MetafileBuilder::Dib(source, 24);
    for (int code = 0; code < 256; ++code) {
        MetafileBuilder builder(4, 4);
        builder.NullPen().Brush(Color::Rgb(0x0F, 0xF0, 0x33)).Rectangle(0, 0, 5, 5);
        builder.Brush(Color::Rgb(0xF0, 0x3C, 0x55));
        builder.StretchDib(QRect(0, 0, 4, 4), QRect(0, 0, 1, 1), dib, quint32(code) << 16);
        QRgb expected = 0;
        for (int bit = 0; bit < 24; ++bit) {
            const int row = int(0xF03C55u >> bit & 1) << 2 | int(0xCCAA0Fu >> bit & 1) << 1 | int(0x0FF033u >> bit & 1);
            expected |= QRgb(code >> row & 1) << bit;
        }
        EXPECT_EQ(At(Played(builder.Plain(), 4, 4), 1, 1) & 0xFFFFFF, expected) << code;
    }
}

TEST_F(MetafileBitsTest, ShrunkLinesAreKeptAsTheModeAsks) {
    QImage lines(40, 40, QImage::Format_RGB32);
    lines.fill(Qt::white);
    for (int x = 0; x < 40; ++x)
        lines.setPixel(x, 17, kBlack);
    const auto shrunk = [&](int mode) {
        MetafileBuilder builder(10, 10);
        builder.Add(MetafileOrder::SetStretchMode, {mode});
        builder.StretchDib(QRect(0, 0, 10, 10), QRect(0, 0, 40, 40), MetafileBuilder::Dib(lines, 24));
        return At(Played(builder.Plain(), 10, 10), 5, 4);
    };
    EXPECT_EQ(shrunk(1), kBlack);
    EXPECT_EQ(shrunk(2), kWhite);
    EXPECT_NEAR(qGray(shrunk(3)), 191, 10);
    EXPECT_NEAR(qGray(shrunk(4)), 191, 10);
}
