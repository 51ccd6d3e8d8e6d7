// SPDX-License-Identifier: MIT
#include "services/PrinterCorrections.h"

#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/ProgramSettings.h"
#include "support/TestFixture.h"

#include <QDir>

namespace {

constexpr PageCorrection kCorrection{.dblRightMm = 0.4, .dblDownMm = -1.2, .dblAcross = 1.002, .dblDown = 0.9985};

class PrinterCorrectionsTest : public TavloraTest {
protected:
    PrinterCorrectionsTest() {
        QDir(folder.path()).mkdir(QStringLiteral("games"));
        Settings().sMyGamesDirectory = PathOf(QStringLiteral("games"));
        basCommon::InitIniPath();
        basErrLog::ErrInit(60000);
    }
    ~PrinterCorrectionsTest() override { basCommon::ResetForTest(); }

    static PaperOfPage Paper(QSizeF inches) { return PaperOfPage::Of(inches, {}, {}); }
    static PaperOfPage Letter() { return Paper({8.5, 11}); }
    static PaperOfPage A4() { return Paper({210 / 25.4, 297 / 25.4}); }
    static const QString kHallway;
};
const QString PrinterCorrectionsTest::kHallway = QStringLiteral("Hallway");

} // namespace

TEST_F(PrinterCorrectionsTest, EachPrinterAndPaperHasItsOwn) {
    EXPECT_TRUE(PrinterCorrections::Of(kHallway, A4()).IsNothing());
    PrinterCorrections::Keep(kHallway, A4(), kCorrection);
    EXPECT_EQ(PrinterCorrections::Of(kHallway, A4()), kCorrection);
    EXPECT_EQ(PrinterCorrections::OfPrinter(kHallway)(A4()), kCorrection);
    EXPECT_TRUE(PrinterCorrections::Of(kHallway, Letter()).IsNothing());
    EXPECT_TRUE(PrinterCorrections::Of(QStringLiteral("Study"), A4()).IsNothing());
    EXPECT_TRUE(PrinterCorrections::Of({}, A4()).IsNothing());
    PrinterCorrections::Keep({}, Letter(), kCorrection);
    EXPECT_EQ(PrinterCorrections::Of({}, Letter()), kCorrection);
    PrinterCorrections::Keep(kHallway, A4(), {});
    EXPECT_TRUE(PrinterCorrections::Of(kHallway, A4()).IsNothing());
}

TEST_F(PrinterCorrectionsTest, ItIsTheSamePaperHoweverThePageLies) {
    for (const QSizeF inches : {QSizeF(210, 297) / 25.4, QSizeF(8.5, 11), QSizeF(7, 10)}) {
        PrinterCorrections::Keep(kHallway, Paper(inches), kCorrection);
        EXPECT_EQ(PrinterCorrections::Of(kHallway, Paper(inches.transposed())), kCorrection);
    }
}

TEST_F(PrinterCorrectionsTest, NamesThatNoSettingCouldHaveAreKeptAllTheSame) {
    const QString odd = QStringLiteral("a=b [c]; #d");
    PrinterCorrections::Keep(odd, A4(), kCorrection);
    EXPECT_EQ(PrinterCorrections::Of(odd, A4()), kCorrection);
}

TEST_F(PrinterCorrectionsTest, WhatCannotBeReadOrIsNoPrintersFaultCountsAsNothingAndIsTold) {
    const QString key = QStringLiteral("Correction Hallway on A4");
    PrinterCorrections::Keep(kHallway, A4(), kCorrection);
    ASSERT_EQ(basCommon::GetIniString(key), QStringLiteral("0.4,-1.2,1.002,0.9985"));
    for (const char* value : {"1,2,3", "a,b,c,d", "1,2,1,1,1", "99,0,1,1", "0,0,2,1"}) {
        basCommon::ResetForTest();
        basCommon::InitIniPath();
        desktop.boxes.clear();
        basCommon::WriteIniString(key, QLatin1String(value));
        EXPECT_TRUE(PrinterCorrections::Of(kHallway, A4()).IsNothing()) << value;
        ASSERT_EQ(desktop.boxes.size(), 1) << value;
        EXPECT_TRUE(desktop.boxes[0].sText.contains(key));
        EXPECT_EQ(basCommon::GetIniString(key), QLatin1String(value)) << "it stays in the file";
    }
}

TEST_F(PrinterCorrectionsTest, WordsTellWhatIsDoneToASheet) {
    EXPECT_EQ(PrinterCorrections::Words(kCorrection),
              QStringLiteral("0.4 mm left, 1.2 mm down, 0.2 % narrower, 0.2 % longer"));
    EXPECT_EQ(PrinterCorrections::Words({}), QString());
    EXPECT_EQ(PrinterCorrections::Words({.dblRightMm = -3}), QStringLiteral("3.0 mm right"));
    EXPECT_EQ(PrinterCorrections::Words({.dblDownMm = 0.04}), QStringLiteral("less than 0.1 mm"));
}
