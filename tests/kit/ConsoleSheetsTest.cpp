// SPDX-License-Identifier: MIT
#include "kit/ConsoleSheets.h"

#include "services/Desktop.h"
#include "support/TestFixture.h"

namespace {

using namespace ConsoleSheets;
using ConsoleSheetsTest = TavloraTest;

} // namespace

TEST_F(ConsoleSheetsTest, EveryFrameHasItsWords) {
    ASSERT_EQ(Frames().size(), size_t(Frame::Rules) + 1);
    for (const FrameWords& frame : Frames()) {
        for (const char* words : {frame.sButton, frame.sCaption, frame.sLabel})
            EXPECT_TRUE(words && *words) << "of frame " << &frame - Frames().data();
    }
}

TEST_F(ConsoleSheetsTest, AnUnknownSheetEndsTheProgram) {
    EXPECT_THROW(SheetOf(99), ProgramEnded);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Assertion Failure: \r\n\r\nUnexpected Index in frmTavlPrint!cmdPrint_Click"));
    EXPECT_EQ(SheetOf(14).iButton, 14) << "one that prints nothing";
}

TEST_F(ConsoleSheetsTest, DocumentsAreNamedAfterGameAndSheet) {
    EXPECT_EQ(DocumentName(QStringLiteral("/home/anna/My Games/Elm Street.gam"), QStringLiteral("Rules")),
              QStringLiteral("Elm Street - Rules"));
    EXPECT_EQ(DocumentName(QStringLiteral("C:\\Games\\Elm.gam"), QStringLiteral("Rules")),
              QStringLiteral("Elm - Rules"));
}

TEST_F(ConsoleSheetsTest, OfManyMissingPiecesThreeAreToldAndTheOthersCounted) {
    QStringList lacking;
    for (int i = 1; i <= 3; ++i)
        lacking.append(QStringLiteral("Space %1 is missing.").arg(i));
    EXPECT_EQ(LackingMessage(lacking),
              QStringLiteral("Space 1 is missing.\r\nSpace 2 is missing.\r\nSpace 3 is missing."));
    lacking += {QStringLiteral("Space 4 is missing."), QStringLiteral("Space 5 is missing.")};
    EXPECT_EQ(LackingMessage(lacking),
              QStringLiteral("Space 1 is missing.\r\nSpace 2 is missing.\r\nSpace 3 is missing.\r\nand 2 more."));
}
