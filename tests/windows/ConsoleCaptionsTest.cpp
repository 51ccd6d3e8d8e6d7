// SPDX-License-Identifier: MIT
// Every word that stands in the print console, in the order of its controls.
#include "ConsoleFixture.h"

#include "windows/print/frmPrntPrep.h"

#include <QGroupBox>
#include <QPushButton>

#include <span>

namespace {

// As a person reads it: without the marks of the shortcuts.
QString Plain(QString caption) {
    const QChar kept(0x1);
    caption.replace(QStringLiteral("&&"), kept).remove(u'&');
    return caption.replace(kept, u'&');
}

struct Row {
    const char* control;
    int frame; ///< -1 below all frames.
    const char* caption;
    const char* toolTip;
};

constexpr Row kAlike[] = {
    {"cmdNav_0", -1, "Printer Main Menu", "Go back to the first menu"},
    {"cmdCancel", -1, "Done", "Go back to the main form"},
    {"cmdChangePrinter", -1, "Change Printer", "Change the destination printer"},
    {"cmdNav_1", 0, "Game Board, Box & Tokens", ""},
    {"cmdNav_2", 0, "Title Deed Cards", ""},
    {"cmdNav_3", 0, "Good News or Bad News Cards", ""},
    {"cmdNav_4", 0, "Money", ""},
    {"cmdNav_5", 0, "Instruction Sheet", ""},
    {"cmdPrint_2", 1, "Game Box Light Green Sheet", ""},
    {"cmdPrint_4", 2, "Deed Card Label Sheet", "Click to print Deel Card Lable Sheet"},
    {"cmdPrint_5", 3, "Good News Cards", ""},
    {"cmdPrint_6", 3, "Bad News Cards", ""},
    {"cmdPrint_7", 4, "$ 100", ""},
    {"cmdPrint_8", 4, "$ 500", ""},
    {"cmdPrint_9", 4, "$ 1,000", ""},
    {"cmdPrint_10", 4, "$ 5,000", ""},
    {"cmdPrint_11", 5, "Game Play Instruction Sheet",
     "Once you have created your game, this gives you the rules for playing it."},
    {"cmdPrint_12", 2, "Property Deed Sheet #1", "Click to begin printing Deed Card Sheet #1"},
    {"cmdPrint_13", 2, "Property Deed Sheet #2", "Click to begin printing Deed Card Sheet #2"},
};

constexpr Row kOfKit8[] = {
    {"cmdPrint_0", 1, "Box Top & Token Stickers", ""},
    {"cmdPrint_1", 1, "West, South & Corner Board Stickers", ""},
    {"cmdPrint_3", 1, "East, North & Title Board Stickers", ""},
};

constexpr Row kOfOtherKits[] = {
    {"cmdPrint_0", 1, "Green  Box & Board Labels #1", ""},
    {"cmdPrint_1", 1, "Green Game Board Labels #2", ""},
    {"cmdPrint_3", 1, "Game  Box Red Sheet", ""},
};

struct Frame {
    const char* caption;
    const char* label;
};

constexpr Frame kFrames[] = {
    {"What would you like to print?", "Please select the part of the game you would like to print:"},
    {"Which sheet would you like to print?", " Click below to print a label sheet:"},
    {"Which title sheet would you like to print?", "Select the sheet of cards you would like to print:"},
    {"Which News Cards  would you like to print?", "Select the sheet of cards\nyou would like to print."},
    {"What currency amount would you like to print?",
     "Please select the currency\nyou would like to print.\nClick again for additional sheets."},
    {"Would you like to print the game rules?", "Click the button below\nto print instructions for playing the game"},
};

} // namespace

TEST_F(ConsoleTest, EveryButtonHasItsCaptionItsTipAndItsFrame) {
    const auto expect = [this](std::span<const Row> rows) {
        for (const Row& row : rows) {
            const QAbstractButton& button = Button(row.control);
            EXPECT_EQ(Plain(button.text()), QString::fromLatin1(row.caption)) << row.control;
            EXPECT_EQ(button.toolTip(), QString::fromLatin1(row.toolTip)) << row.control;
            const QString parent =
                row.frame < 0 ? QStringLiteral("frmTavlPrint") : QStringLiteral("fraPrint_%1").arg(row.frame);
            EXPECT_EQ(button.parentWidget()->objectName(), parent) << row.control;
        }
    };
    for (const char* kit : {"8", "5", "2", "2A"}) {
        Open(kit);
        expect(kAlike);
        expect(qstrcmp(kit, "8") == 0 ? kOfKit8 : kOfOtherKits);
    }
}

TEST_F(ConsoleTest, EveryFrameHasItsCaptionAndItsLabel) {
    for (int i = 0; i < int(std::size(kFrames)); ++i) {
        const QString number = QString::number(i);
        EXPECT_EQ(Find<QGroupBox>(*console, qPrintable(QStringLiteral("fraPrint_") + number)).title(),
                  QString::fromLatin1(kFrames[i].caption));
        EXPECT_EQ(Text(qPrintable(QStringLiteral("lbl_") + number)), QString::fromLatin1(kFrames[i].label));
    }
    EXPECT_EQ(Text("lblNumberOfSheets"), QStringLiteral("Number of Sheets (1 - 5) to Print:"));
}

TEST_F(ConsoleTest, TheQuestionAboutThePaperAnswersWithTheCaptionPressed) {
    const Row buttons[] = {
        {"cmd_2", -1, "Print", ""}, {"cmd_1", -1, "Print Test Sheet", ""}, {"cmd_0", -1, "Cancel", ""}};
    frmPrntPrep question;
    for (const Row& row : buttons) {
        ModalSteps person;
        person.In("frmPrntPrep", [&row](QWidget& window) {
            const auto& button = Find<QPushButton>(window, row.control);
            EXPECT_EQ(Plain(button.text()), QString::fromLatin1(row.caption));
            EXPECT_EQ(button.isDefault(), qstrcmp(row.control, "cmd_2") == 0);
            Click(window, row.control);
            EXPECT_EQ(Find<QLabel>(window, "lblMain").text(), QString::fromLatin1(row.caption));
        });
        EXPECT_EQ(question.ShowForm(QStringLiteral("Please load paper")), QString::fromLatin1(row.caption));
    }
}
