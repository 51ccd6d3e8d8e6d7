// SPDX-License-Identifier: MIT
#include "platform/paint/PictureForm.h"
#include "platform/paint/Recording.h"
#include "platform/paint/RecordingForm.h"

#include <gtest/gtest.h>

namespace {

constexpr Color kRed = Color::Rgb(255, 0, 0);
constexpr Color kGreen = Color::Rgb(0, 255, 0);
constexpr Color kBlue = Color::Rgb(0, 0, 255);
constexpr Color kYellow = Color::Rgb(255, 255, 0);

// Four fields: red and green above, blue and yellow below; twice as wide as high.
std::shared_ptr<const Recording> Fields() {
    RecordingForm form(QSize(400, 200), 100);
    form.hDC().FillRect(0, 0, 200, 100, kRed);
    form.hDC().FillRect(200, 0, 400, 100, kGreen);
    form.hDC().FillRect(0, 100, 200, 200, kBlue);
    form.hDC().FillRect(200, 100, 400, 200, kYellow);
    return form.Take();
}

// The colours of the corners of what is laid on a page: above from the left, then below.
std::array<Color, 4> CornersOf(const LaidDrawing& laid) {
    PictureForm page(QSizeF(5, 5), 100);
    page.PaintDrawing(*Fields(), laid);
    const QImage image = page.Take().Image();
    const QRectF in = laid.target.adjusted(5, 5, -5, -5);
    const auto at = [&](const QPointF& p) {
        const QRgb pixel = image.pixel(p.toPoint());
        return Color::Rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
    };
    return {at(in.topLeft()), at(in.topRight()), at(in.bottomLeft()), at(in.bottomRight())};
}

using Corners = std::array<Color, 4>;

TEST(LaidDrawingTest, ADrawingIsTurnedClockwise) {
    const QRectF whole = Fields()->Whole();
    EXPECT_EQ(CornersOf({whole, {50, 50, 400, 200}}), (Corners{kRed, kGreen, kBlue, kYellow}));
    EXPECT_EQ(CornersOf({whole, {50, 50, 200, 400}, 1}), (Corners{kBlue, kRed, kYellow, kGreen}));
    EXPECT_EQ(CornersOf({whole, {50, 50, 400, 200}, 2}), (Corners{kYellow, kBlue, kGreen, kRed}));
    EXPECT_EQ(CornersOf({whole, {50, 50, 200, 400}, 3}), (Corners{kGreen, kYellow, kRed, kBlue}));
}

TEST(LaidDrawingTest, AMirroredOneIsMirroredFirstAndTurnedThen) {
    const QRectF whole = Fields()->Whole();
    EXPECT_EQ(CornersOf({whole, {50, 50, 400, 200}, 0, true}), (Corners{kGreen, kRed, kYellow, kBlue}));
    EXPECT_EQ(CornersOf({whole, {50, 50, 400, 200}, 2, true}), (Corners{kBlue, kYellow, kRed, kGreen}))
        << "as seen in a mirror that lies below it";
}

TEST(LaidDrawingTest, APartFillsItsTargetAndNothingBeyondIt) {
    PictureForm page(QSizeF(5, 5), 100);
    page.PaintDrawing(*Fields(), {{100, 50, 200, 100}, {100, 100, 300, 300}});
    const QImage image = page.Take().Image();
    EXPECT_EQ(image.pixelColor(110, 110), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(390, 110), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(240, 390), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(260, 390), QColor(255, 255, 0));
    for (const QPoint beyond : {QPoint(97, 200), QPoint(402, 200), QPoint(200, 97), QPoint(200, 402)})
        EXPECT_EQ(image.pixelColor(beyond), QColor(Qt::white)) << beyond.x() << ' ' << beyond.y();
}

TEST(LaidDrawingTest, ADrawingWithinADrawingKeepsToItsPart) {
    RecordingForm outer(QSize(500, 500), 100);
    outer.PaintDrawing(*Fields(), {Fields()->Whole(), {100, 100, 400, 200}});
    const auto drawing = outer.Take();
    PictureForm page(QSizeF(5, 5), 100);
    page.PaintDrawing(*drawing, {{0, 0, 300, 500}, {0, 0, 300, 500}});
    const QImage image = page.Take().Image();
    EXPECT_EQ(image.pixelColor(200, 150), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(310, 150), QColor(Qt::white));
}

} // namespace
