// SPDX-License-Identifier: MIT
// The print console when the printer or the disk lets it down: what a person is told, and what can still be done.
#include "ConsoleFixture.h"

namespace {

constexpr int kWest = 1;
constexpr int kRules = 11;

const QString kGone = QStringLiteral("The printer 'Laser' doesn't answer. Please see that it is switched on and "
                                     "connected, then print again.\r\n\r\nClick 'OK' to print nevertheless.");

} // namespace

TEST_F(ConsoleTest, APrinterThatHasGoneIsAskedAboutBeforeTheSheetIsPainted) {
    printer.there = false;
    desktop.answers = {vbCancel, vbOK};
    Print(kRules);
    EXPECT_EQ(desktop.Texts(), QStringList{kGone});
    EXPECT_EQ(desktop.boxes[0].iStyle, vbOKCancel | vbExclamation);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_FALSE(Hourglass());
    Print(kRules);
    EXPECT_EQ(desktop.boxes.size(), 2) << "asked each time";
    EXPECT_EQ(printer.ended.size(), 1);
    printer.there = true;
    Print(kRules);
    EXPECT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(printer.ended.size(), 2);
}

TEST_F(ConsoleTest, ADiskThatFillsUpAmidASheetIsNamedAndTheWindowsAreFreeAgain) {
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation != Files::Operation::Write || !sPath.endsWith(QStringLiteral("BmpOneFullSpace.bmp"))) return {};
        return QStringLiteral("No space left on device");
    });
    Print(kWest);
    Files::SetFaultHook({});
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("No space left on device")))
        << qPrintable(desktop.boxes[0].sText);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(pages, (QList<bool>{true, false}));
    EXPECT_EQ(Text("lblSheet"), QStringLiteral("Printing has stopped."));
    // The menus work on, and the window closes.
    Click(*console, "cmdNav_0");
    EXPECT_TRUE(Shows("fraPrint_0"));
    Click(*console, "cmdCancel");
    EXPECT_FALSE(console->isVisible());
}
