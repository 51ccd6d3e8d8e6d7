// SPDX-License-Identifier: MIT
#include "kit/ConsoleSheets.h"

#include "platform/Desktop.h"
#include "platform/PicturePrinter.h"
#include "support/TestFixture.h"

namespace {

using namespace ConsoleSheets;

const QString kEight = QStringLiteral("8");
const QString kTail = QStringLiteral("and click 'Print' to begin printing.");

QString Prompt(int index, const char* variant) { return PaperPrompt(index, QString::fromLatin1(variant)); }
QString WithTail(const char* text) { return QString::fromLatin1(text) + kTail; }

using ConsoleSheetsTest = TavloraTest;

} // namespace

TEST_F(ConsoleSheetsTest, WhiteStockIsAskedForWhereThePrinterGivesTheColour) {
    const QString labels = WithTail("Position white peel && stick label paper in your printer.  Make sure the printing "
                                    "side is faced properly ");
    const QString card = WithTail("Please position a sheet of colored card stock in the printer ");
    const QString paper = WithTail("Please load white paper into the printer ");
    const QString white = WithTail("Please load white card stock into the printer ");
    for (const char* variant : {"8", "5", "9"}) {
        const QStringList expected{labels, labels, QStringLiteral("Obsolete"),
                                   labels, {},     card,
                                   card,   paper,  paper,
                                   paper,  paper,  paper,
                                   white,  white,  paper};
        for (int i = 0; i < kPrompts; ++i)
            EXPECT_EQ(Prompt(i, variant), expected[i]) << variant << ' ' << i;
    }
}

TEST_F(ConsoleSheetsTest, ColouredStockIsAskedForByItsColour) {
    const QString unused = QStringLiteral("Not used for this version.");
    const QStringList expected{WithTail("Please position a sheet of light green label stock in the printer "),
                               WithTail("Please position a sheet of light green label stock in the printer "),
                               QStringLiteral("Obsolete"),
                               WithTail("Please position a sheet of red label stock in the printer "),
                               WithTail("Please position a sheet of white label stock in the printer "),
                               WithTail("Please position a sheet of pink card stock in the printer "),
                               WithTail("Please position a sheet of green  card stock in the printer "),
                               WithTail("Please load pink paper into the printer "),
                               WithTail("Please load light blue paper into the printer "),
                               WithTail("Please load light green paper into the printer "),
                               WithTail("Please load mustard paper into the printer "),
                               WithTail("Please load white paper into the printer "),
                               unused,
                               unused,
                               unused};
    for (const char* variant : {"2", "2A"}) {
        for (int i = 0; i < kPrompts; ++i)
            EXPECT_EQ(Prompt(i, variant), expected[i]) << variant << ' ' << i;
    }
    EXPECT_EQ(PaperPrompt(kPrompts, kEight), QString());
}

TEST_F(ConsoleSheetsTest, LabelSheetsLieLengthwise) {
    for (int i = 0; i < kPrompts; ++i) {
        EXPECT_EQ(OrientationOf(i, kEight) == PageOrientation::Landscape, i <= 3) << i;
        EXPECT_EQ(OrientationOf(i, QStringLiteral("2")) == PageOrientation::Landscape, i == 3) << i;
    }
}

TEST_F(ConsoleSheetsTest, CaptionsCarryMnemonicsAndTitlesNone) {
    EXPECT_EQ(Caption(0, kEight), QStringLiteral("&Box Top && Token Stickers"));
    EXPECT_EQ(Title(0, kEight), QStringLiteral("Box Top & Token Stickers"));
    EXPECT_EQ(Title(1, QStringLiteral("5")), QStringLiteral("Green Game Board Labels #2"));
    EXPECT_EQ(Title(3, QStringLiteral("2")), QStringLiteral("Game  Box Red Sheet"));
    EXPECT_EQ(Title(10, kEight), QStringLiteral("$ 5,000"));
    EXPECT_EQ(ToolTip(4), QStringLiteral("Click to print Deel Card Lable Sheet"));
    EXPECT_EQ(Caption(kButtons, kEight), QString());
}

TEST_F(ConsoleSheetsTest, DeedsOrDeedLabelsAreShownByTheKit) {
    for (const char* variant : {"8", "5", "9"}) {
        EXPECT_TRUE(IsShown(12, QString::fromLatin1(variant)));
        EXPECT_FALSE(IsShown(4, QString::fromLatin1(variant)));
    }
    EXPECT_FALSE(IsShown(13, QStringLiteral("2")));
    EXPECT_TRUE(IsShown(4, QStringLiteral("2A")));
    EXPECT_FALSE(IsShown(2, kEight));
}

TEST_F(ConsoleSheetsTest, AnUnknownSheetEndsTheProgram) {
    PicturePrinter page(60);
    SheetJob job{page};
    EXPECT_THROW(PrintSheet(job, 99, kEight), ProgramEnded);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Assertion Failure: \r\n\r\nUnexpected Index in frmTavlPrint!cmdPrint_Click"));
    EXPECT_TRUE(PrintSheet(job, kNoPrompt, kEight)) << "one that prints nothing";
}

TEST_F(ConsoleSheetsTest, DocumentsAreNamedAfterGameAndSheet) {
    EXPECT_EQ(DocumentName(QStringLiteral("/home/anna/My Games/Elm Street.gam"), QStringLiteral("Rules")),
              QStringLiteral("Elm Street - Rules"));
    EXPECT_EQ(DocumentName(QStringLiteral("C:\\Games\\Elm.gam"), QStringLiteral("Rules")),
              QStringLiteral("Elm - Rules"));
}
