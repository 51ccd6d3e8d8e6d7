// SPDX-License-Identifier: MIT
#include "document/basTAVL.h"
#include "kit/Sheets.h"
#include "platform/files/Folders.h"
#include "platform/printing/Printer.h"
#include "support/TestFixture.h"

class RulesSheetTest : public TavloraTest {};

TEST_F(RulesSheetTest, RulesAreBlackWhateverWasPrintedBefore) {
    Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
    PdfPrinter printer(PathOf(QStringLiteral("rules.pdf")), QStringLiteral("Rules"), QPageSize::Letter, 72);
    printer.ForeColor = Color::Rgb(0, 255, 0);
    SheetJob job{printer};
    EXPECT_TRUE(FindSheet(QStringLiteral("rules"))->paint(job, 0));
    EXPECT_EQ(printer.ForeColor, basTAVL::g_lPrintBlack());
}
