// SPDX-License-Identifier: MIT
#include "platform/printing/PicturePrinter.h"

#include "support/TestFixture.h"

TEST(PicturePrinter, ThePageIsThePrintableAreaInItsDots) {
    PicturePrinter printer(100);
    EXPECT_TRUE(printer.IsPrinter());
    EXPECT_EQ(printer.SizeInPixels(), QSize(800, 1050));
    printer.SetOrientation(PageOrientation::Landscape);
    EXPECT_TRUE(printer.Page().IsNull());
    printer.hDC().FillRect(0, 0, 50, 50, Color::Rgb(255, 0, 0));
    printer.EndDoc();
    const QImage& page = printer.Page().Image();
    EXPECT_EQ(page.size(), QSize(1050, 800));
    EXPECT_EQ(page.pixel(25, 25), qRgb(255, 0, 0));
    EXPECT_EQ(page.pixel(75, 75), qRgb(255, 255, 255));
}

TEST(PicturePrinter, EachDocumentIsAFreshPageAndAKilledOneLeavesTheLast) {
    PicturePrinter printer(20);
    printer.hDC().FillRect(0, 0, 20, 20, Color::Black());
    printer.EndDoc();
    printer.hDC().FillRect(0, 0, 20, 20, Color::Rgb(255, 0, 0));
    printer.KillDoc();
    EXPECT_EQ(printer.Page().Image().pixel(5, 5), qRgb(0, 0, 0));
    printer.EndDoc();
    EXPECT_EQ(printer.Page().Image().pixel(5, 5), qRgb(255, 255, 255));
}
