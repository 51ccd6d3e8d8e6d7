// SPDX-License-Identifier: MIT
#include "windows/pictures/ImagePlacing.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ImagePlacing;

TEST(ImagePlacing, SliderAndZoomStepAreToldFromEachOther) {
    EXPECT_EQ(SliderOfZoom(0), 90);
    EXPECT_EQ(SliderOfZoom(90), 0);
    EXPECT_EQ(ZoomOfSlider(100), -10);
}

TEST(ImagePlacing, TheScaleGoesByTheLongerSideOfThePicture) {
    const Scale wide = Scale::Of(QSize(300, 200), QSize(600, 696), 0);
    EXPECT_EQ(wide.iSide, 300);
    EXPECT_DOUBLE_EQ(wide.dblScale, 2.0);
    const Scale high = Scale::Of(QSize(200, 300), QSize(600, 696), 10);
    EXPECT_EQ(high.iSide, 150);
    EXPECT_DOUBLE_EQ(high.dblScale, 696.0 / 150);
}

TEST(ImagePlacing, APictureZoomedInBeyondAPixelStillHasAScale) {
    const Scale scale = Scale::Of(QSize(100, 100), QSize(600, 600), 90);
    EXPECT_EQ(scale.iSide, 1);
    EXPECT_TRUE(std::isfinite(scale.dblScale));
    EXPECT_EQ(Scale::Of(QSize(), QSize(600, 600), 0).iSide, 1);
}

TEST(ImagePlacing, ACenterStaysWithinSixteenBits) {
    const Center center = WithinLimits({-40000, 40000});
    EXPECT_DOUBLE_EQ(center.x, -32768);
    EXPECT_DOUBLE_EQ(center.y, 32767);
}

TEST(ImagePlacing, TheRingBeginsAtTheInscribedCircleAndCoversTheCorners) {
    for (const int width : {200, 482, 483, 600, 800}) {
        const Ring ring = Ring::For(width);
        EXPECT_DOUBLE_EQ(ring.dblRadius - ring.iDrawWidth / 2.0, width / 2.0);
        EXPECT_GE(ring.dblRadius + ring.iDrawWidth / 2.0, width / 2.0 * std::sqrt(2.0));
    }
    EXPECT_EQ(Ring::For(480).iDrawWidth, 100);
}
