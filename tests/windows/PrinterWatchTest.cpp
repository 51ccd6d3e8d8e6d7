// SPDX-License-Identifier: MIT
#include "windows/print/PrinterWatch.h"
#include "support/Waiting.h"

#include "ConsoleFixture.h"

namespace {

const QString kNoPaper = QStringLiteral("It is out of paper.");

class PrinterWatchTest : public ConsoleTest {
protected:
    PrinterWatchTest() {
        watch.Tell = [this](const QString& trouble) { told.append(trouble); };
    }
    void Look(int times) {
        for (int i = 0; i < times; ++i)
            watch.Look();
    }

    QObject owner;
    PrinterWatch& watch = *new PrinterWatch(&owner);
    QStringList told;
};

} // namespace

TEST_F(PrinterWatchTest, ATroubleThatLastsIsToldOnceWithinTenSeconds) {
    EXPECT_LE(PrinterWatch::kLookEveryMs * PrinterWatch::kLooksThatAgree, 10000);
    watch.PageSent(printer);
    Look(2);
    printer.trouble = kNoPaper;
    Look(PrinterWatch::kLooksThatAgree - 1);
    EXPECT_EQ(told, QStringList());
    Look(1);
    EXPECT_EQ(told, QStringList{kNoPaper});
}

TEST_F(PrinterWatchTest, ATroubleThatPassesIsNotTold) {
    watch.PageSent(printer);
    for (int i = 0; i < 4; ++i) {
        printer.trouble = kNoPaper;
        Look(PrinterWatch::kLooksThatAgree - 1);
        printer.trouble.clear();
        Look(1);
    }
    EXPECT_EQ(told, QStringList());
}

TEST_F(PrinterWatchTest, NothingIsWatchedWithoutAPrinter) {
    printer.device.clear();
    printer.trouble = kNoPaper;
    watch.PageSent(printer);
    Look(5);
    EXPECT_EQ(told, QStringList());
}

TEST_F(PrinterWatchTest, ItIsToldOnlyWhenItMayBe) {
    bool may = false;
    watch.MayTell = [&] { return may; };
    printer.trouble = kNoPaper;
    watch.PageSent(printer);
    Look(6);
    EXPECT_EQ(told, QStringList());
    may = true;
    Look(1);
    EXPECT_EQ(told.size(), 1);
}

TEST_F(PrinterWatchTest, TheConsoleSendsTheSheetOnceMoreWhenAskedTo) {
    Print(5);
    printer.trouble = kNoPaper;
    desktop.answers = {vbYes};
    desktop.onBox = [this] { printer.trouble.clear(); };
    ModalSteps person;
    person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_2"); });
    EXPECT_TRUE(Comes([this] { return printer.ended.size() == 2; }));
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(
        desktop.boxes[0].sText,
        QStringLiteral("The printer 'Laser' doesn't print. It is out of paper.\r\n\r\nWhat was sent to it waits "
                       "there, and comes out once that is mended.\r\n\r\nIf it is lost, the sheet 'Good News Cards' "
                       "can be sent once more. Send it now?"));
    EXPECT_EQ(printer.ended[0], printer.ended[1]);
}
