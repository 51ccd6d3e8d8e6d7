// SPDX-License-Identifier: MIT
#include "platform/printing/PaperOfPage.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

const QSizeF kLetter(8.5, 11);
const QSizeF kA4(210 / 25.4, 297 / 25.4);

QMarginsF Margins(double inches) { return {inches, inches, inches, inches}; }

} // namespace

TEST(PaperOfPage, OnTheKitsOwnPaperASheetBeginsWherePrintingBegins) {
    const PaperOfPage paper = PaperOfPage::Of(kLetter.transposed(), Margins(0.25), QSizeF(5, 5));
    EXPECT_EQ(paper.origin, QPointF(0.25, 0.25));
    EXPECT_EQ(paper.printable, QRectF(0.25, 0.25, 10.5, 8));
    EXPECT_EQ(paper.Name(), QStringLiteral("US Letter"));
}

TEST(PaperOfPage, OnOtherPaperItStandsInTheMiddle) {
    const PaperOfPage paper = PaperOfPage::Of(kA4.transposed(), Margins(0.125), QSizeF(10, 7.96));
    EXPECT_NEAR(paper.origin.x(), (297 / 25.4 - 10) / 2, 1e-9);
    EXPECT_NEAR(paper.origin.y(), (210 / 25.4 - 7.96) / 2, 1e-9);
    EXPECT_EQ(paper.Name(), QStringLiteral("A4"));
    EXPECT_EQ(PaperOfPage::Of(kA4, Margins(0.125), {}).origin, QPointF(0.125, 0.125)) << "no sheet is named";
}

TEST(PaperOfPage, UnevenMarginsAreKeptOnBothSides) {
    const QMarginsF uneven(0.1, 0.1, 1.0, 0.1);
    const PaperOfPage paper = PaperOfPage::Of(kA4, uneven, QSizeF(7, 10));
    EXPECT_NEAR(paper.origin.x(), 210 / 25.4 - 1.0 - 7, 1e-9) << "as near the middle as the right margin lets it";
    const PaperOfPage small = PaperOfPage::Of(QSizeF(5, 7), Margins(0.25), QSizeF(7, 10));
    EXPECT_EQ(small.origin, QPointF(0.25, 0.25)) << "what is lost is lost at the end";
    EXPECT_EQ(small.Name(), QStringLiteral("5.0 by 7.0 inch"));
}

TEST(PaperOfPage, TheCountryDecidesWhatPaperIsUsual) {
    const auto of = [](const char* first, const char* second = "") {
        return PaperSizes::OfLocales({QString::fromLatin1(first), QString::fromLatin1(second)});
    };
    for (const char* letter : {"en_US.UTF-8", "fr_CA", "es_MX.UTF-8", "C", "C.UTF-8", "POSIX", ""})
        EXPECT_EQ(of(letter), QPageSize::Letter) << letter;
    for (const char* a4 : {"de_DE.UTF-8", "en_GB", "pl_PL", "ja_JP.UTF-8", "pt_BR"})
        EXPECT_EQ(of(a4), QPageSize::A4) << a4;
    EXPECT_EQ(of("", "de_AT"), QPageSize::A4);
    EXPECT_EQ(of("en_US", "de_AT"), QPageSize::Letter) << "the first that says anything";
    EXPECT_EQ(PaperSizes::Of(PaperChoice::A4), QPageSize::A4);
    EXPECT_EQ(PaperSizes::Of(PaperChoice::Letter), QPageSize::Letter);
}
