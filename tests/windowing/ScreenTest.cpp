// SPDX-License-Identifier: MIT
#include "windowing/Screen.h"

#include "support/TestFixture.h"
#include "windowing/basAPI_screen.h"
#include "windowing/basCommon_forms.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

TEST(ScreenTest, TheScreenTellsAboutItself) {
    EXPECT_GT(basAPI::ScreenBitsPerPixel(), 8);
    EXPECT_GT(basAPI::FrameBorderThicknessX(), 0);
    EXPECT_EQ(basAPI::FrameBorderThicknessX(), basAPI::FrameBorderThicknessY());
}

TEST(ScreenTest, AWindowIsPlacedAQuarterFromTheLeftAndAThirdFromTheTop) {
    QWidget window;
    window.resize(400, 200);
    basCommon::ShowEntireForm(window);
    const QRect area = Screen::FreeArea();
    // Its frame and title stand around what is inside.
    const int border = Screen::FrameBorder().width();
    const int title = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
    EXPECT_EQ(window.x() - border, area.left() + (area.width() - 400 - 2 * border) / 4);
    EXPECT_EQ(window.y() - border - title, area.top() + (area.height() - 200 - 2 * border - title) / 3);
    window.resize(5000, 5000);
    basCommon::ShowEntireForm(window);
    EXPECT_TRUE(area.contains(window.geometry())) << "never larger than the free area";
}

TEST(MousePointer, TheHourglassIsSetAndTakenAwayOnce) {
    using Screen::MousePointer;
    for (const MousePointer pointer : {MousePointer::HourGlass, MousePointer::HourGlass, MousePointer::Default}) {
        Screen::SetMousePointer(pointer);
        EXPECT_EQ(Screen::CurrentMousePointer(), pointer);
        EXPECT_EQ(QGuiApplication::overrideCursor() != nullptr, pointer == MousePointer::HourGlass);
    }
}
