// SPDX-License-Identifier: MIT
#include "platform/paint/Resample.h"

#include "platform/paint/Picture.h"
#include "platform/paint/Surface.h"
#include "support/TestFixture.h"

#include <QColor>

namespace {

QImage Filled(int width, int height, QColor color) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

// Columns of black and white, a pixel wide each.
QImage Stripes(int width, int height) {
    QImage image = Filled(width, height, Qt::white);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; x += 2)
            image.setPixel(x, y, qRgb(0, 0, 0));
    }
    return image;
}

TEST(ResampleTest, AreaOfOneColourKeepsItExactly) {
    for (const QColor color : {QColor(Qt::white), QColor(224, 255, 224), QColor(1, 2, 3)}) {
        for (const QSize size : {QSize(10, 10), QSize(7, 13), QSize(100, 90), QSize(1, 1)}) {
            const QImage result = Resample(Filled(47, 33, color), QRectF(1.3, 2.7, 40.1, 29.9), size);
            ASSERT_EQ(result.size(), size);
            EXPECT_EQ(result, Filled(size.width(), size.height(), color)) << size.width();
        }
    }
}

TEST(ResampleTest, FinePatternsEvenOutInsteadOfBeatingWithTheGrid) {
    const QImage result = Resample(Stripes(1000, 10), QRectF(0, 0, 1000, 10), QSize(99, 1));
    for (int x = 0; x < result.width(); ++x)
        EXPECT_NEAR(qRed(result.pixel(x, 0)), 127, 10) << x;
}

TEST(ResampleTest, BeyondThePictureThereIsNothing) {
    const QImage result = Resample(Filled(20, 10, Qt::red), QRectF(0, -5, 20, 20), QSize(20, 20));
    EXPECT_EQ(qAlpha(result.pixel(10, 4)), 0);
    EXPECT_EQ(result.pixel(10, 5), qRgb(255, 0, 0));
    EXPECT_EQ(result.pixel(10, 14), qRgb(255, 0, 0));
    EXPECT_EQ(qAlpha(result.pixel(10, 15)), 0);
}

TEST(ResampleTest, APixelHalfBeyondThePictureIsHalfTransparent) {
    const QImage result = Resample(Filled(10, 10, Qt::black), QRectF(-1, 0, 10, 10), QSize(5, 5));
    EXPECT_EQ(qAlpha(result.pixel(0, 2)), 128);
    EXPECT_EQ(qAlpha(result.pixel(1, 2)), 255);
}

TEST(ResampleTest, TransparentColourDoesNotBleed) {
    QImage glass(4, 1, QImage::Format_ARGB32);
    glass.setPixel(0, 0, qRgba(0, 255, 0, 0));
    glass.setPixel(1, 0, qRgba(0, 255, 0, 0));
    glass.setPixel(2, 0, qRgba(255, 0, 0, 255));
    glass.setPixel(3, 0, qRgba(255, 0, 0, 255));
    const QRgb mixed = Resample(glass, QRectF(0, 0, 4, 1), QSize(1, 1)).pixel(0, 0);
    EXPECT_EQ(qGreen(mixed), 0);
    EXPECT_EQ(qAlpha(mixed), 128);
}

TEST(ResampleTest, EnlargingKeepsEndsAndInterpolatesBetween) {
    QImage pair(2, 1, QImage::Format_RGB32);
    pair.setPixel(0, 0, qRgb(0, 0, 0));
    pair.setPixel(1, 0, qRgb(200, 200, 200));
    const QImage result = Resample(pair, QRectF(0, 0, 2, 1), QSize(20, 1));
    EXPECT_EQ(qRed(result.pixel(0, 0)), 0);
    EXPECT_EQ(qRed(result.pixel(19, 0)), 200);
    EXPECT_GT(qRed(result.pixel(11, 0)), qRed(result.pixel(9, 0)));
}

class PaintPictureTest : public TavloraTest {};

TEST_F(PaintPictureTest, AndKeepsTheSurfaceUnderWhiteAndBlackUnderBlack) {
    ScratchForm form(QSize(40, 40));
    form.SetBackColor(Color::Rgb(224, 255, 224));
    form.PaintPicture(Picture(Stripes(400, 400)), 0, 0, 40, 20, RasterOp::SourceAnd);
    form.PaintPicture(Picture(Filled(4, 4, Qt::white)), 0, 20, 20, 20, RasterOp::SourceAnd);
    form.PaintPicture(Picture(Filled(4, 4, Qt::black)), 20, 20, 20, 20, RasterOp::SourceAnd);
    EXPECT_EQ(form.Image().pixel(10, 30), qRgb(224, 255, 224));
    EXPECT_EQ(form.Image().pixel(30, 30), qRgb(0, 0, 0));
    // Fine lines give a darker shade of the board's colour, not another colour.
    const QRgb mixed = form.Image().pixel(10, 10);
    EXPECT_NEAR(qRed(mixed), 112, 12);
    EXPECT_NEAR(qGreen(mixed), 127, 12);
    EXPECT_EQ(qRed(mixed), qBlue(mixed));
}

TEST_F(PaintPictureTest, PartBeyondThePictureLeavesTheSurface) {
    ScratchForm form(QSize(30, 30));
    form.SetBackColor(Color::Rgb(224, 255, 224));
    form.PaintPicture(Picture(Filled(300, 200, Qt::red)), 0, 0, 30, 30, QRectF(0, 0, 300, 300));
    EXPECT_EQ(form.Image().pixel(15, 19), qRgb(255, 0, 0));
    EXPECT_EQ(form.Image().pixel(15, 20), qRgb(224, 255, 224));
    EXPECT_EQ(form.Image().pixel(15, 29), qRgb(224, 255, 224));
}

TEST_F(PaintPictureTest, FillsWholePixelsOnADenseScreen) {
    ScratchForm form(QSize(30, 30), 2.0);
    form.SetBackColor(Color::White());
    form.PaintPicture(Picture(Filled(300, 300, Qt::red)), 5, 5, 10, 10);
    const QImage& image = form.Image();
    EXPECT_EQ(image.pixel(9, 9), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(10, 10), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(29, 29), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(30, 30), qRgb(255, 255, 255));
}

} // namespace
