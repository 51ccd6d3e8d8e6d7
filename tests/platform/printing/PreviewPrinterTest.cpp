// SPDX-License-Identifier: MIT
#include "platform/printing/PreviewPrinter.h"

#include "platform/paint/Recording.h"

#include <gtest/gtest.h>

namespace {

QRgb At(const QImage& image, double dblX, double dblY, double perInch) {
    return image.pixel(int(dblX * perInch), int(dblY * perInch));
}

} // namespace

TEST(PreviewPrinter, KeepsThePageOnItsPaperAndLeavesThePrinterAlone) {
    PdfPrinter paper({}, {}, QPageSize::A4);
    PreviewPrinter printer(paper);
    printer.SetOrientation(PageOrientation::Landscape);
    printer.CentreSheet(QSizeF(10, 7.96));
    EXPECT_EQ(printer.PrintableInches(), paper.PrintableInches());
    printer.hDC().FillRect(600, 600, 1200, 1200, Color::Rgb(255, 0, 0));
    EXPECT_TRUE(printer.Page().IsNull());
    printer.EndDoc();
    const PreviewPage page = printer.Page();
    EXPECT_EQ(paper.Pages(), 0);
    EXPECT_NEAR(page.paper.size.width(), 297 / 25.4, 0.01);
    constexpr double kPerInch = 100;
    const QImage image = page.Image(QSize(1169, 827));
    EXPECT_NEAR(image.width(), 1169, 1);
    EXPECT_NEAR(image.height(), 827, 1);
    const double left = page.paper.origin.x() + 1;
    const double top = page.paper.origin.y() + 1;
    EXPECT_EQ(At(image, left + 0.1, top + 0.1, kPerInch), qRgb(255, 0, 0));
    EXPECT_EQ(At(image, left - 0.05, top + 0.1, kPerInch), qRgb(255, 255, 255));
    EXPECT_EQ(At(image, left + 1.05, top + 0.1, kPerInch), qRgb(255, 255, 255));
}

TEST(PreviewPrinter, APageWithoutAMarkIsAPageAndAKilledOneIsNone) {
    PdfPrinter paper({}, {});
    PreviewPrinter printer(paper);
    printer.hDC().FillRect(0, 0, 10, 10, Color::Black());
    printer.KillDoc();
    EXPECT_TRUE(printer.Page().IsNull());
    printer.EndDoc();
    EXPECT_FALSE(printer.Page().IsNull());
    EXPECT_EQ(printer.Page().Image(QSize(85, 110)).pixel(25, 25), qRgb(255, 255, 255)) << "nothing of the one before";
}
