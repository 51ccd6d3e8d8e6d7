// SPDX-License-Identifier: MIT
// The print console as a person works it, with a printer and a disk of the test's making.
#include "ConsoleFixture.h"

#include "services/WorkFiles.h"
#include "windowing/PictureBox.h"
#include "windows/print/frmPrintTest.h"

namespace {

const QString kLabelsLeftOut = QStringLiteral(
    "The label sheets of this kit are not part of this build. Kit \"8\" has all of its sheets; its labels "
    "are printed on white label paper.");

constexpr int kBox = 0;
constexpr int kObsolete = 2;
constexpr int kGoodNews = 5;
constexpr int kMoney100 = 7;
constexpr int kRules = 11;
constexpr int kDeeds1 = 12;

QString LittleDisk(int megabytes, int needed) {
    return QStringLiteral("You have only %1 megabytes of free disk space on drive 'C'.\r\nYou must have at least %2 MB "
                          "free disk space to print Tavlora.\r\nPlease free up some disk space and try again.")
        .arg(megabytes)
        .arg(needed);
}

} // namespace

// ---- Edge cases.

TEST_F(ConsoleTest, Edge_ATestSheetAndAFinalSheetAreTheSameJob) {
    const QString caption = Button("cmdPrint_11").text();
    Print(kRules, "cmd_2");
    const QImage final = printer.Page().Image().copy();
    Print(kRules, "cmd_1");
    EXPECT_EQ(printer.ended.size(), 2);
    EXPECT_EQ(printer.Page().Image(), final);
    EXPECT_EQ(Button("cmdPrint_11").text(), caption) << "neither sets the done mark";
    EXPECT_EQ(ConsoleSheets::DoneMark(QStringLiteral("OK")), QStringLiteral(" (DONE)"));
    EXPECT_TRUE(ConsoleSheets::DoneMark(QStringLiteral("Print")).isEmpty());
}

TEST_F(ConsoleTest, Edge_CancellingTheQuestionAllowsAChangeOfPrinterAndASentPageRefusesIt) {
    int dialogs = 0;
    desktop.onDialog = [&](CommonDialog& dialog) {
        ++dialogs;
        EXPECT_TRUE(dialog.bPrinterDefault);
        return true;
    };
    Click(*console, "cmdChangePrinter");
    EXPECT_EQ(dialogs, 1);
    Print(kRules, "cmd_0");
    EXPECT_TRUE(printer.ended.isEmpty());
    Click(*console, "cmdChangePrinter");
    EXPECT_EQ(dialogs, 2);
    Print(kRules);
    EXPECT_EQ(printer.ended.size(), 1);
    Click(*console, "cmdChangePrinter");
    EXPECT_EQ(dialogs, 2);
    ASSERT_EQ(desktop.Texts(), QStringList{QString::fromLatin1(kNoChange)});
    EXPECT_EQ(desktop.boxes[0].iStyle, vbInformation);
}

TEST_F(ConsoleTest, Edge_TheNumberOfSheetsIsClampedToOneToFive) {
    auto& number = Find<QComboBox>(*console, "cboNumberOfSheets");
    EXPECT_EQ(number.currentText(), QStringLiteral("1"));
    EXPECT_EQ(number.count(), 5);
    EXPECT_TRUE(number.isHidden());
    EXPECT_TRUE(Control("lblNumberOfSheets").isHidden());
    const QList<std::pair<QString, int>> cases{
        {QStringLiteral("0"), 1}, {QStringLiteral("many"), 1}, {QStringLiteral("9"), 5}, {QStringLiteral("3"), 3}};
    number.setEditable(true);
    for (const auto& [text, copies] : cases) {
        printer.ended.clear();
        number.setEditText(text);
        Print(kMoney100);
        EXPECT_EQ(printer.ended.size(), copies) << qPrintable(text);
    }
    EXPECT_EQ(ConsoleSheets::Copies(ConsoleSheets::SheetOf(kDeeds1), QStringLiteral("9")), 1) << "money only";
}

TEST_F(ConsoleTest, Edge_SixMillionBytesAreEnoughForDeedsAndNotForMoney) {
    Folders::PretendFreeBytes(6'000'000);
    Print(kDeeds1);
    EXPECT_EQ(printer.ended.size(), 1);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    Print(kMoney100);
    EXPECT_EQ(printer.ended.size(), 1);
    EXPECT_EQ(desktop.Texts(), QStringList{LittleDisk(5, 40)});
    EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Tavlora"));
    EXPECT_FALSE(Hourglass());
    desktop.boxes.clear();
    Folders::PretendFreeBytes(39'999'999);
    Print(kMoney100);
    EXPECT_EQ(printer.ended.size(), 1);
    EXPECT_EQ(desktop.Texts(), QStringList{LittleDisk(38, 40)});
    Folders::PretendFreeBytes(40'000'000);
    Print(kMoney100);
    EXPECT_EQ(printer.ended.size(), 2) << "the guard is free again";
}

TEST_F(ConsoleTest, Edge_TheHiddenLightGreenSheetPrintsNothingAndClosesAnEmptyDocument) {
    EXPECT_TRUE(Button("cmdPrint_2").isHidden());
    ModalSteps person;
    person.In("frmPrntPrep", [](QWidget& window) {
        EXPECT_EQ(Find<QLabel>(window, "lblMain").text(), QStringLiteral("Obsolete"));
        Click(window, "cmd_2");
    });
    console->cmdPrint_Click(kObsolete);
    EXPECT_EQ(printer.ended.size(), 1);
    EXPECT_EQ(printer.empty, 1);
}

// ---- The window.

TEST_F(ConsoleTest, HasItsSizeAndItsFramesInOnePlace) {
    EXPECT_EQ(console->windowTitle(), QStringLiteral("Print Your Own Tavlo"));
    EXPECT_EQ(console->size(), QSize(5925 / 15, 5325 / 15));
    for (int i = 0; i < 6; ++i) {
        const QWidget& frame = Control(qPrintable(QStringLiteral("fraPrint_%1").arg(i)));
        EXPECT_EQ(frame.pos(), QPoint(8, 8));
        EXPECT_GE(frame.height(), frame.sizeHint().height()) << i << " is cut";
        EXPECT_GE(frame.width(), frame.sizeHint().width()) << i << " is cut";
    }
}

TEST_F(ConsoleTest, EachMenuButtonOpensItsFrameAlone) {
    for (const int frame : {1, 2, 3, 4, 5}) {
        Click(*console, "cmdNav_0");
        Click(*console, qPrintable(QStringLiteral("cmdNav_%1").arg(frame)));
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(Shows(qPrintable(QStringLiteral("fraPrint_%1").arg(i))), i == frame) << frame << ' ' << i;
        const QWidget* const keys = console->focusWidget();
        ASSERT_NE(keys, nullptr);
        EXPECT_EQ(keys->parentWidget(), &Control(qPrintable(QStringLiteral("fraPrint_%1").arg(frame)))) << frame;
        EXPECT_TRUE(keys->isVisible()) << "keys go to a button that is seen";
    }
}

TEST_F(ConsoleTest, OpensWithTheFirstMenuAndHandsTheFlagBack) {
    Click(*console, "cmdNav_4");
    console->hide();
    for (const bool started : {false, true}) {
        ModalSteps person;
        person.In("frmTavlPrint", [&](QWidget& window) {
            EXPECT_TRUE(Shows("fraPrint_0"));
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        EXPECT_EQ(console->ShowForm(started), started);
    }
    for (const char* answer : {"cmd_0", "cmd_2"}) {
        ModalSteps person;
        person.In("frmTavlPrint", [this](QWidget& window) {
            ClickSheet(kRules);
            Click(window, "cmdCancel");
        });
        person.In("frmPrntPrep", [answer](QWidget& window) { Click(window, answer); });
        EXPECT_EQ(console->ShowForm(false), qstrcmp(answer, "cmd_2") == 0) << "whether a page has gone to a printer";
    }
}

TEST_F(ConsoleTest, TellsWhereSheetsGo) {
    console->hide();
    const auto shown = [this] {
        ModalSteps person;
        person.In("frmTavlPrint", [](QWidget& window) { Click(window, "cmdCancel"); });
        console->ShowForm(false);
        return Text("lblPrinter");
    };
    EXPECT_EQ(shown(), QStringLiteral("Printer: Laser"));
    printer.device.clear();
    EXPECT_EQ(shown(), QStringLiteral("No printer is set up: each sheet becomes a PDF file."));
}

TEST_F(ConsoleTest, ADialogThatCannotBeShownSaysWhy) {
    desktop.onDialog = [](CommonDialog& dialog) {
        dialog.sError = QStringLiteral("No printer.");
        return false;
    };
    Click(*console, "cmdChangePrinter");
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("No printer.")});
}

TEST_F(ConsoleTest, OpeningItWritesTheSizesOfTheBoxLabels) {
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("BoxTopTitle")), QStringLiteral("4.78x0.78"));
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("BoxTop2ndSubtitle")), QStringLiteral("4.46x0.195"));
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("BoxSideTitle")), QStringLiteral("3.337x0.66"));
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("BoxSide2ndSub")), QStringLiteral("1.74x0.53"));
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("BoxTopSubTitleRed")), QStringLiteral("5.91x0.36"));
    EXPECT_EQ(basCommon::GetIniString(QStringLiteral("BoxTop2ndSubTitleRed")), QStringLiteral("1.83x0.59"));
}

// ---- The question about the paper.

TEST_F(ConsoleTest, AsksForThePaperOfTheSheet) {
    ModalSteps person;
    person.In("frmPrntPrep", [](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Select Test Sheet or Final "));
        EXPECT_EQ(Find<QLabel>(window, "lblMain").text(),
                  QStringLiteral("Please position a sheet of colored card stock in the printer and click 'Print' to "
                                 "begin printing."));
        EXPECT_EQ(Find<QLabel>(window, "lblAlternative").text(),
                  QStringLiteral("To print a test sheet, position regular white paper in the printer and click the "
                                 "middle button below:"));
        const auto left = [&](const char* name) { return Find<QWidget>(window, name).x(); };
        EXPECT_LT(left("cmd_2"), left("cmd_1"));
        EXPECT_LT(left("cmd_1"), left("cmd_0"));
        QTest::keyClick(&window, Qt::Key_Return);
    });
    ClickSheet(kGoodNews);
    EXPECT_EQ(printer.ended.size(), 1) << "Enter prints";
}

TEST_F(ConsoleTest, ClosingTheQuestionPrintsNothing) {
    for (const bool escape : {true, false}) {
        ModalSteps person;
        person.In("frmPrntPrep", [escape](QWidget& window) {
            if (escape)
                QTest::keyClick(&window, Qt::Key_Escape);
            else
                window.close();
        });
        ClickSheet(kRules);
    }
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_TRUE(pages.isEmpty());
    Print(kRules);
    EXPECT_EQ(printer.ended.size(), 1) << "the guard is free again";
}

// ---- Jobs.

TEST_F(ConsoleTest, EverySheetComesInItsOrientationUnderItsName) {
    constexpr Kit kit = Kit::Eight;
    for (const Sheet& sheet : Sheets()) {
        printer.ended.clear();
        printer.orientations.clear();
        Print(sheet.iButton);
        EXPECT_EQ(printer.ended, QStringList{QStringLiteral("Ours - ") + sheet.Title(kit)});
        EXPECT_EQ(printer.orientations, QList<PageOrientation>{sheet.OrientationOf(kit)}) << sheet.sName;
    }
    EXPECT_TRUE(desktop.boxes.isEmpty()) << qPrintable(desktop.Texts().join(u'\n'));
    EXPECT_EQ(printer.killed, 0);
    EXPECT_FALSE(Hourglass());
    EXPECT_FALSE(Shows("fraProgress"));
    EXPECT_EQ(console->Progress(), -1);
}

TEST_F(ConsoleTest, TooLittleRoomForAnySheetStopsItAndFreesTheConsole) {
    Folders::PretendFreeBytes(4'999'999);
    Print(kRules);
    EXPECT_EQ(desktop.Texts(), QStringList{LittleDisk(4, 10)}) << "the message asks for more than the test does";
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_FALSE(Hourglass());
    Folders::PretendFreeBytes(5'000'000);
    Print(kRules);
    EXPECT_EQ(printer.ended.size(), 1);
}

TEST_F(ConsoleTest, WhileAJobRunsTheHourglassShowsAndOtherSheetsAreIgnored) {
    bool acted = false;
    desktop.onPump = [&] {
        if (std::exchange(acted, true)) return;
        EXPECT_TRUE(Hourglass());
        EXPECT_TRUE(Shows("fraProgress"));
        EXPECT_EQ(Text("lblSheet"), QStringLiteral("Good News Cards"));
        EXPECT_EQ(Text("lblPiece"), QStringLiteral("Card 1 of 12"));
        Press(kGoodNews);
        Click(*console, "cmdChangePrinter");
    };
    Print(kGoodNews);
    EXPECT_TRUE(acted);
    EXPECT_EQ(printer.ended.size(), 1);
    EXPECT_EQ(desktop.Texts(), QStringList{QString::fromLatin1(kNoChange)});
    EXPECT_EQ(pages, (QList<bool>{true, false}));
}

TEST_F(ConsoleTest, DoneDuringAJobHidesTheConsoleAndTheJobGoesOn) {
    console->hide();
    bool acted = false;
    QList<bool> pagesAtDone;
    desktop.onPump = [&] {
        if (std::exchange(acted, true)) return;
        Click(*console, "cmdCancel");
        EXPECT_FALSE(console->isVisible());
        pagesAtDone = pages;
    };
    ModalSteps person;
    person.In("frmTavlPrint", [this](QWidget&) { ClickSheet(kGoodNews); });
    person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_2"); });
    EXPECT_TRUE(console->ShowForm(false));
    EXPECT_EQ(pagesAtDone, QList<bool>{true});
    EXPECT_EQ(pages, (QList<bool>{true, false}));
    EXPECT_EQ(printer.ended.size(), 1);
}

TEST_F(ConsoleTest, TheBarShowsThousandthsAndEachChangeLetsEventsRun) {
    const QWidget& back = Control("shpProgressBack");
    const QWidget& fore = Control("shpProgressFore");
    console->Let_Progress(-1);
    EXPECT_EQ(desktop.pumped, 0) << "unchanged";
    console->Let_Progress(0);
    EXPECT_EQ(fore.width(), 1);
    EXPECT_TRUE(Shows("fraProgress"));
    console->Let_Progress(500);
    console->Let_Progress(500);
    EXPECT_EQ(fore.width(), back.width() / 2);
    console->Let_Progress(1000);
    EXPECT_EQ(fore.width(), back.width());
    EXPECT_EQ(console->Progress(), 1000);
    console->Let_Progress(-1);
    EXPECT_FALSE(Shows("fraProgress"));
    EXPECT_EQ(desktop.pumped, 4);
}

TEST_F(ConsoleTest, WithoutItsPictureMoneyIsNotPrintedAndTheConsoleStaysShut) {
    const QString picture = WorkFiles::PathOf(QStringLiteral("MoneyImage.bmp"));
    QDir().mkpath(picture); // no file can be written where a folder is
    Print(kMoney100);
    ASSERT_FALSE(desktop.boxes.isEmpty());
    EXPECT_EQ(desktop.boxes.constLast().sText,
              QStringLiteral("Unable to create Money Image. Money will not be printed."));
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_TRUE(Hourglass());
    EXPECT_EQ(pages, (QList<bool>{true, false})) << "the program can be closed";
    EXPECT_TRUE(Text("lblPiece").startsWith(QStringLiteral("The $100 note could not be made: ")))
        << qPrintable(Text("lblPiece"));
    EXPECT_TRUE(Text("lblPiece").contains(QStringLiteral("MoneyImage.bmp")));
    QDir().rmdir(picture);
    ClickSheet(kRules);
    EXPECT_TRUE(printer.ended.isEmpty()) << "no paper is asked for, nothing is printed";
    EXPECT_TRUE(Shows("cmdTryAgain"));
}

TEST_F(ConsoleTest, AFailureIsReportedAndItsDocumentThrownAway) {
    desktop.onPump = [] { ErrRaise(ErrNumber::kOutOfMemory, QStringLiteral("Out of memory")); };
    printer.hDC();
    Print(kGoodNews);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("Out of memory")));
    EXPECT_TRUE(ReadFile(basErrLog::ErrLogPath()).contains("cmdPrint_Click"));
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(printer.killed, 1);
    EXPECT_TRUE(Hourglass());
    EXPECT_EQ(pages, (QList<bool>{true, false})) << "the program can be closed";
    desktop.onPump = nullptr;
    ClickSheet(kRules);
    EXPECT_TRUE(printer.ended.isEmpty()) << "the guard stays";
}

TEST_F(ConsoleTest, WhatThePrinterReportsAtTheEndIsLoggedAndNotShown) {
    // The device takes the job and reports afterwards.
    class LateFailure : public TestPrinter {
    public:
        void EndDoc() override {
            TestPrinter::EndDoc();
            error = QStringLiteral("out of paper");
        }
    } late;
    Print(kRules);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(ReadFile(basErrLog::ErrLogPath())
                    .contains("Your printer has reported a problem. Please close this game and make sure that your "
                              "computer has 50 to 100 MB of free disk space to use as a print buffer. Then try "
                              "printing again. "));
    EXPECT_FALSE(Hourglass());
}

TEST_F(ConsoleTest, AFileThatCannotBeWrittenIsTold) {
    printer.device.clear();
    printer.error = QStringLiteral("No space left on device");
    Print(kRules);
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("This sheet could not be printed.\r\n\r\nNo space left on device")});
}

TEST_F(ConsoleTest, APageSmallerThanTheSheetIsAskedAboutOnce) {
    printer.printable = QSizeF(8.0, 10.0);
    desktop.answers = {vbCancel, vbOK};
    Print(kDeeds1);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("The printer 'Laser' prints on only 8.00 by 10.00 inches of its paper. The "
                                         "lowest row of deeds would lose 10 mm.\r\n\r\n'Change Printer' chooses other "
                                         "paper, smaller margins or another printer: click 'Cancel' for that, or 'OK' "
                                         "to print nevertheless.")});
    EXPECT_EQ(desktop.boxes[0].iStyle, vbOKCancel | vbExclamation);
    Print(kDeeds1);
    Print(kDeeds1);
    EXPECT_EQ(printer.ended.size(), 2);
    EXPECT_EQ(desktop.boxes.size(), 2) << "accepted once";
    Print(kGoodNews);
    EXPECT_EQ(desktop.boxes.size(), 2) << "the page has room for the cards";
    Print(kBox);
    EXPECT_EQ(desktop.boxes.size(), 3) << "another orientation, another page";
}

TEST_F(ConsoleTest, AnotherPrinterMayBeChosenAfterTheWarningOfASmallPage) {
    printer.printable = QSizeF(8.0, 10.0);
    desktop.answers = {vbCancel};
    desktop.onDialog = [this](CommonDialog&) {
        printer.printable = QSizeF(8.0, 10.5);
        return true;
    };
    Print(kDeeds1);
    Click(*console, "cmdChangePrinter");
    Print(kDeeds1);
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(printer.ended.size(), 1);
}

// ---- Other kits.

TEST_F(ConsoleTest, KitsOnColouredStockHaveTheirOwnButtons) {
    Open("2A");
    EXPECT_EQ(Button("cmdPrint_0").text(), QStringLiteral("&Green  Box && Board Labels #1"));
    EXPECT_EQ(Text("lbl_2"), QStringLiteral("Click to Print Deed Card Label Sheet."));
    EXPECT_TRUE(Button("cmdPrint_12").isHidden());
    EXPECT_TRUE(Button("cmdPrint_13").isHidden());
    EXPECT_FALSE(Button("cmdPrint_4").isHidden());
}

TEST_F(ConsoleTest, LabelSheetsOfOtherKitsAreToldToBeMissing) {
    for (const char* variant : {"5", "2", "2A"}) {
        Open(variant);
        for (const int index : {0, 1, 3, 4}) {
            desktop.boxes.clear();
            ClickSheet(index); // no paper is asked for
            EXPECT_EQ(desktop.Texts(), QStringList{kLabelsLeftOut});
        }
    }
    EXPECT_TRUE(printer.ended.isEmpty());
}

TEST_F(ConsoleTest, AnUnknownKitIsToldUnderWhichNamesTheProgramPrints) {
    Open("9");
    for (const int index : {0, 3, 1})
        ClickSheet(index);
    const QString told = QStringLiteral("This program only prints if the EXE name is set to 'Tavlora2.exe' or "
                                        "'Tavlora2a.exe' or 'Tavlora4.exe'");
    EXPECT_EQ(desktop.Texts(), (QStringList{told, told, kLabelsLeftOut}));
    EXPECT_TRUE(printer.ended.isEmpty());
}

// ---- Aids.

TEST_F(ConsoleTest, TheReminderOfTheColourSettingComesOnceAfterOk) {
    desktop.answers = {vbCancel, vbOK};
    EXPECT_TRUE(console->CheckForNagMessage());
    EXPECT_FALSE(console->CheckForNagMessage());
    EXPECT_FALSE(console->CheckForNagMessage());
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("If you are using a color printer, your printer setting is VERY important. Please verify "
                             "that your printer is set to the highest quality color photographic setting. If your "
                             "printer offers an 'ICM' option, please turn this option on. \r\n\r\nAfter verifying this "
                             "setting, click 'OK' below to continue printing. Click 'Cancel' if you do not wish to "
                             "print at this time."));
    EXPECT_EQ(desktop.boxes[0].iStyle, vbOKCancel | vbExclamation);
}

TEST_F(ConsoleTest, OnTheScreenASheetIsShownAsItWouldBePrintedAndNothingIsPrinted) {
    console->bPrintOnScreen = true;
    Picture page;
    console->ShowPage = [&](const Picture& shown) { page = shown; };
    Print(kBox);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(QSize(page.Width(), page.Height()), QSize(3150, 2400)) << "300 dots an inch, lengthwise";
    EXPECT_NE(page.Image().pixel(60, 90), qRgb(255, 255, 255)) << "the title's background";
}

TEST_F(ConsoleTest, TheTestWindowOpensTheConsoleAndShowsPagesWhole) {
    frmPrintTest door;
    ModalSteps person;
    person.In("frmTavlPrint", [&](QWidget& window) {
        door.Console().bPrintOnScreen = true;
        Click(window, "cmdNav_5");
        Click(window, "cmdPrint_11");
        Click(window, "cmdCancel");
    });
    person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_2"); });
    person.In("frmPrintTest", [](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Form as dest for printing simulator"));
        const QSize page = Find<PictureBox>(window, "picPage").size();
        EXPECT_NEAR(double(page.width()) / page.height(), 8.0 / 10.5, 0.01);
        EXPECT_TRUE(Screen::FreeArea().size().width() >= page.width());
        window.close();
    });
    EXPECT_FALSE(door.ShowForm(false)) << "a page on the screen has gone to no printer";
    EXPECT_TRUE(printer.ended.isEmpty());
}
