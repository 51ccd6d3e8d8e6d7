// SPDX-License-Identifier: MIT
// What a flood fills, against a walk from pixel to pixel.
#include "platform/pictures/metafile/MetafileFlood.h"

#include <gtest/gtest.h>
#include <QPainter>
#include <QRandomGenerator>

#include <vector>

namespace {

constexpr QRgb kInk = 0xFF2040FF;

QImage Walked(QPoint start, const QImage& picture, const QRegion& within, QRgb colour, bool onlyOnColour) {
    QImage filled(picture.size(), QImage::Format_Alpha8);
    filled.fill(0);
    std::vector<QPoint> left{start};
    while (!left.empty()) {
        const QPoint at = left.back();
        left.pop_back();
        if (!picture.rect().contains(at) || !within.contains(at) || filled.pixelColor(at).alpha() != 0) continue;
        if ((picture.pixel(at) == colour) != onlyOnColour) continue;
        filled.setPixelColor(at, Qt::black);
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            left.push_back(at + step);
    }
    return filled;
}

QImage OnWholePicture(const MetafileFlood& flood, QSize size) {
    QImage whole(size, QImage::Format_Alpha8);
    whole.fill(0);
    for (int y = 0; y < flood.mask.height(); ++y) {
        for (int x = 0; x < flood.mask.width(); ++x)
            whole.setPixelColor(flood.area.topLeft() + QPoint(x, y), flood.mask.pixelColor(x, y));
    }
    return whole;
}

QImage Random(QRandomGenerator& random) {
    QImage picture(1 + random.bounded(24), 1 + random.bounded(24), QImage::Format_RGB32);
    const int inked = random.bounded(4);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, random.bounded(4) < inked ? kInk : 0xFFFFFFFF);
    }
    return picture;
}

TEST(MetafileFloodTest, FillsWhatAWalkFromPixelToPixelReaches) {
    QRandomGenerator random(16);
    int pixels = 0;
    for (int i = 0; i < 2000; ++i) {
        const QImage picture = Random(random);
        const QPoint start(random.bounded(picture.width()), random.bounded(picture.height()));
        QRegion within(picture.rect());
        for (int hole = random.bounded(3); hole > 0; --hole)
            within -= QRect(random.bounded(24), random.bounded(24), 1 + random.bounded(9), 1 + random.bounded(9));
        if (random.bounded(4) == 0) within = within.translated(-5, 3);
        const bool onlyOnColour = random.bounded(2) == 0;
        const MetafileFlood flood = MetafileFlood::From(start, picture, within, kInk, onlyOnColour);
        const QImage expected = Walked(start, picture, within, kInk, onlyOnColour);
        ASSERT_EQ(OnWholePicture(flood, picture.size()), expected) << "picture " << i;
        pixels += flood.area.width() * flood.area.height();
    }
    EXPECT_GT(pixels, 10'000);
}

TEST(MetafileFloodTest, TheAreaIsNoLargerThanWhatIsFilled) {
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter(&picture).fillRect(QRect(5, 7, 11, 4), QColor(kInk));
    EXPECT_EQ(MetafileFlood::From({8, 9}, picture, QRegion(picture.rect()), kInk, true).area, QRect(5, 7, 11, 4));
    EXPECT_TRUE(MetafileFlood::From({0, 0}, picture, QRegion(picture.rect()), kInk, true).area.isEmpty());
    EXPECT_TRUE(MetafileFlood::From({0, 0}, picture, QRegion(picture.rect()), kInk, true).mask.isNull());
    EXPECT_TRUE(MetafileFlood::From({40, 9}, picture, QRegion(picture.rect()), kInk, false).area.isEmpty());
}

} // namespace
