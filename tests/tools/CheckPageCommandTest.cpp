// SPDX-License-Identifier: MIT
// The check page from the command line, and sheets for a printer that was checked.
#include "PrintCommandFixture.h"

#include "services/basCommon.h"
#include "services/PrinterCorrections.h"
#include "support/PdfReader.h"

namespace {

constexpr double kMillimetresPerInch = 25.4;

class CheckPageCommandTest : public PrintCommandTest {
protected:
    // As the window keeps it.
    void Keep(const QString& sPrinter, const PageCorrection& correction) {
        Settings().sProgramName = QStringLiteral("tavlora");
        Settings().bIniReadOnly = false;
        basCommon::InitIniPath();
        PrinterCorrections::Keep(sPrinter, PaperOfPage::Of({8.5, 11}, {}, {}), correction);
    }
    int PrintRulesFor(const QStringList& more) {
        return Run(QStringList{game, QStringLiteral("--sheet"), QStringLiteral("rules"), QStringLiteral("-o"), pdf} +
                   more);
    }
    QPointF PlaceOfRules() const { return PdfReader(pdf).BoxOf(1, QStringLiteral("and")).topLeft(); }
    const QString kForPrinter = QStringLiteral("--for-printer");
};

} // namespace

TEST_F(CheckPageCommandTest, TheCheckPageNeedsNoGame) {
    EXPECT_EQ(Run({QStringLiteral("--check-page"), QStringLiteral("-o"), pdf, QStringLiteral("--paper"),
                   QStringLiteral("a4")}),
              PrintCommand::kDone);
    EXPECT_TRUE(errors.isEmpty()) << qPrintable(errors.join(u'\n'));
    EXPECT_EQ(OutFolder(), QStringList{QStringLiteral("sheet.pdf")});
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    EXPECT_EQ(PdfReader(pdf).Pages(), 1);
    EXPECT_NEAR(PdfReader(pdf).PaperInches(1).height(), 297 / kMillimetresPerInch, 0.01);
    EXPECT_TRUE(TextOf(pdf).contains(QStringLiteral("This line is 200 mm long.")));
    EXPECT_EQ(Run({QStringLiteral("--check-page")}), PrintCommand::kWrongUsage);
    EXPECT_EQ(Run({game, QStringLiteral("--check-page"), QStringLiteral("-o"), pdf}), PrintCommand::kWrongUsage);
}

TEST_F(CheckPageCommandTest, SheetsAreMovedForAPrinterThatWasChecked) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_EQ(PrintRulesFor({}), PrintCommand::kDone);
    const QPointF before = PlaceOfRules();
    ASSERT_FALSE(before.isNull()) << qPrintable(TextOf(pdf));
    for (const QString& printer : {QStringLiteral("Hallway"), QString()}) {
        Keep(printer, {.dblRightMm = 2, .dblDownMm = -3});
        ASSERT_EQ(PrintRulesFor({kForPrinter, printer.isEmpty() ? QStringLiteral("-") : printer}), PrintCommand::kDone)
            << qPrintable(errors.join(u'\n'));
        const QPointF moved = (PlaceOfRules() - before) * kMillimetresPerInch;
        EXPECT_NEAR(moved.x(), -2, 0.05);
        EXPECT_NEAR(moved.y(), 3, 0.05);
        Keep(printer, {});
    }
}

TEST_F(CheckPageCommandTest, NothingIsPrintedForAPrinterThatWasNot) {
    Keep(QStringLiteral("Hallway"), {.dblRightMm = 2});
    EXPECT_EQ(PrintRulesFor({kForPrinter, QStringLiteral("Study")}), PrintCommand::kFailed);
    EXPECT_EQ(errors, QStringList{QStringLiteral("tavlora-print: there is no correction of the printer 'Study' for US "
                                                 "Letter paper; Check the Printer in Tavlora makes one")});
    EXPECT_EQ(PrintRulesFor({kForPrinter, QStringLiteral("Hallway"), QStringLiteral("--paper"), QStringLiteral("a4")}),
              PrintCommand::kFailed)
        << "it was checked with other paper";
    EXPECT_TRUE(OutFolder().isEmpty());
    EXPECT_EQ(Run({game, kForPrinter, QStringLiteral("Hallway"), QStringLiteral("--board"), pdf}),
              PrintCommand::kWrongUsage);
}
