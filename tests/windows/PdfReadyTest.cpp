// SPDX-License-Identifier: MIT
#include "windows/print/PdfReady.h"

#include "ConsoleFixture.h"

#include "support/OpenedFiles.h"

namespace {

constexpr int kRules = 11;

} // namespace

TEST_F(ConsoleTest, APdfFileIsNamedAndHasToBePrintedAtActualSize) {
    printer.device.clear();
    printer.pdf = QStringLiteral("/home/anna/Printed/Ours - Rules.pdf");
    OpenedFiles opened;
    ModalSteps person;
    person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_2"); });
    person.In("PdfReady", [](QWidget& window) {
        EXPECT_EQ(
            Find<QLabel>(window, "lblTold").text(),
            QStringLiteral("This sheet is now in the file\n\n/home/anna/Printed/Ours - Rules.pdf\n\nPrint it on "
                           "white paper, at actual size (100 %), never \"fit to page\": only then the pieces have "
                           "their right size."));
        Click(window, "cmdOpen");
        Click(window, "cmdShowFolder");
        Click(window, "cmdClose");
    });
    ClickSheet(kRules);
    EXPECT_EQ(opened.paths, (QStringList{printer.pdf, PathOf(QStringLiteral("games/Printed"))}));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_FALSE(Hourglass());
}

TEST_F(ConsoleTest, AFileOfMoneyTellsHowOftenItIsPrintedAndOneOfLabelsOnWhat) {
    const QString money = ConsoleSheets::PdfMessage({}, *FindSheet(QStringLiteral("money100")), Kit::Eight);
    EXPECT_TRUE(money.endsWith(QStringLiteral("Six players need 5 sheets of it: print the file as often.")))
        << qPrintable(money);
    const QString labels = ConsoleSheets::PdfMessage({}, *FindSheet(QStringLiteral("west")), Kit::Eight);
    EXPECT_TRUE(labels.contains(QStringLiteral("on white label paper, at actual size"))) << qPrintable(labels);
    EXPECT_FALSE(labels.contains(QStringLiteral("players")));
}
