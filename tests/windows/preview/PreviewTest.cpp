// SPDX-License-Identifier: MIT
// A build that shows its sheets on the screen: this program holds the print test window as such a build has it.
#include "windows/ConsoleFixture.h"

#include "windowing/PictureBox.h"
#include "windows/print/frmPrintTest.h"

using PreviewTest = ConsoleTest;

TEST_F(PreviewTest, ASheetIsShownInsteadOfPrintedAndIsClosedByEscape) {
    QWidget main;
    main.show();
    frmPrintTest door(&main);
    // As the main window does it: it takes no input while a page is under way.
    door.Console().TellInPrint = [&main](bool now) { main.setEnabled(!now); };
    ModalSteps person;
    person.In("frmTavlPrint", [](QWidget& window) {
        Click(window, "cmdNav_1");
        Click(window, "cmdPrint_0");
        Click(window, "cmdCancel");
    });
    person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_2"); });
    bool shown = false;
    person.In("frmPrintTest", [&shown](QWidget& window) {
        shown = true;
        const QSize page = Find<PictureBox>(window, "picPage").size();
        EXPECT_NEAR(double(page.width()) / page.height(), 10.5 / 8.0, 0.01);
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
        window.close();
    });
    EXPECT_FALSE(door.ShowForm(false)) << "a page on the screen has gone to no printer";
    EXPECT_TRUE(shown);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(main.isEnabled());
}
