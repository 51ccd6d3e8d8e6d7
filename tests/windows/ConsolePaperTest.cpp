// SPDX-License-Identifier: MIT
// The paper that is chosen on the print console: told to the printer, kept, and left alone amid a sheet.
#include "ConsoleFixture.h"

#include <utility>

namespace {

constexpr int kGoodNews = 5;
constexpr int kRules = 11;

class PaperPrinter : public TestPrinter {
public:
    void ChoosePaper(PaperChoice choice) override { chosen.append(choice); }

    QList<PaperChoice> chosen;
};

class ConsolePaperTest : public ConsoleTest {
protected:
    int Shown() { return Find<QComboBox>(*console, "cboPaper").currentIndex(); }
    /// Takes the paper that stands next in the list.
    void ChooseNext() { QTest::keyClick(&Find<QComboBox>(*console, "cboPaper"), Qt::Key_Down); }

    PaperPrinter laser;
};

} // namespace

TEST_F(ConsolePaperTest, WhatIsChosenIsToldToThePrinterAndKept) {
    EXPECT_EQ(Shown(), int(PaperChoice::Usual));
    ChooseNext();
    EXPECT_EQ(laser.chosen, QList{PaperChoice::Letter});
    EXPECT_EQ(ConsoleSheets::PaperInUse(), PaperChoice::Letter);
    ChooseNext();
    EXPECT_EQ(laser.chosen.last(), PaperChoice::A4);
    EXPECT_EQ(Shown(), int(PaperChoice::A4));
    laser.chosen.clear();
    Open().hide();
    ModalSteps person;
    person.In("frmTavlPrint", [this](QWidget& opened) {
        EXPECT_EQ(Shown(), int(PaperChoice::A4)) << "in the next run, too";
        Click(opened, "cmdCancel");
    });
    console->ShowForm(false);
    EXPECT_EQ(laser.chosen, QList{PaperChoice::A4});
}

TEST_F(ConsolePaperTest, OnOtherPaperASheetThatIsTooLargeIsAskedAboutAgain) {
    laser.printable = QSizeF(6, 9);
    Print(kRules);
    Print(kRules);
    EXPECT_EQ(desktop.boxes.size(), 1);
    ChooseNext();
    Print(kRules);
    EXPECT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(laser.ended.size(), 3);
}

TEST_F(ConsolePaperTest, AmidASheetThePaperStays) {
    bool acted = false;
    desktop.onPump = [&] {
        if (std::exchange(acted, true)) return;
        ChooseNext();
        EXPECT_EQ(Shown(), int(PaperChoice::Usual));
    };
    Print(kGoodNews);
    desktop.onPump = nullptr;
    EXPECT_TRUE(acted);
    EXPECT_TRUE(laser.chosen.isEmpty());
    EXPECT_EQ(ConsoleSheets::PaperInUse(), PaperChoice::Usual);
    EXPECT_EQ(laser.ended.size(), 1);
}
