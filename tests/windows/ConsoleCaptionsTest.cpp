// SPDX-License-Identifier: MIT
// Every word that stands in the print console, in the order of its controls.
#include "ConsoleFixture.h"

#include "support/ToldSheets.h"
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
};

struct ToldFrame {
    const char* caption;
    const char* label;
};

constexpr ToldFrame kFrames[] = {
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
    const auto expect = [this](const char* control, int frame, const char* caption, const char* toolTip) {
        const QAbstractButton& button = Button(control);
        EXPECT_EQ(Plain(button.text()), QString::fromLatin1(caption)) << control;
        EXPECT_EQ(button.toolTip(), QString::fromLatin1(toolTip)) << control;
        const QString parent = frame < 0 ? QStringLiteral("frmTavlPrint") : QStringLiteral("fraPrint_%1").arg(frame);
        EXPECT_EQ(button.parentWidget()->objectName(), parent) << control;
    };
    for (const char* kit : {"8", "5", "2", "2A"}) {
        Open(kit);
        for (const Row& row : kAlike)
            expect(row.control, row.frame, row.caption, row.toolTip);
        for (const ToldSheet& told : kToldSheets) {
            if (told.frame < 0) continue;
            expect(qPrintable(QStringLiteral("cmdPrint_%1").arg(told.button)), told.frame,
                   qstrcmp(kit, "8") == 0 ? told.caption : told.captionOfOthers, told.toolTip);
        }
    }
}

TEST_F(ConsoleTest, EveryRowOfTheTableHasOneButtonInTheOrderOfTheTable) {
    QMap<QString, QStringList> inFrames;
    for (const std::span<const Sheet> table : {Sheets(), ButtonsWithoutSheet()}) {
        for (const Sheet& sheet : table) {
            if (!sheet.frame) continue;
            inFrames[QStringLiteral("fraPrint_%1").arg(int(*sheet.frame))].append(
                QStringLiteral("cmdPrint_%1").arg(sheet.iButton));
        }
    }
    for (auto frame = inFrames.begin(); frame != inFrames.end(); ++frame) {
        QStringList built;
        for (const QAbstractButton* button :
             Find<QGroupBox>(*console, qPrintable(frame.key())).findChildren<QAbstractButton*>()) {
            if (button->objectName().startsWith(QStringLiteral("cmdPrint_"))) built.append(button->objectName());
        }
        EXPECT_EQ(built, frame.value()) << qPrintable(frame.key());
    }
}

TEST_F(ConsoleTest, InNoMenuTwoButtonsAnswerToOneKey) {
    for (const char* kit : {"8", "5", "2", "2A"}) {
        Open(kit);
        for (int menu = 0; menu < int(std::size(kFrames)); ++menu) {
            console->cmdNav_Click(menu);
            Control("fraProgress").show();
            Control("cmdTryAgain").show();
            QMap<QString, QString> buttonOf;
            for (const QAbstractButton* button : console->findChildren<QAbstractButton*>()) {
                if (!button->isVisible()) continue;
                const QString key = button->shortcut().toString();
                // All its digits stand on the other notes, too, and a comma is no key that anybody would look for.
                if (key.isEmpty() && button->text() == QStringLiteral("$ 5,000")) continue;
                EXPECT_FALSE(key.isEmpty()) << button->objectName().toStdString();
                EXPECT_FALSE(buttonOf.contains(key))
                    << kit << ": " << key.toStdString() << " presses " << buttonOf[key].toStdString() << " and "
                    << button->objectName().toStdString();
                buttonOf[key] = button->objectName();
            }
        }
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

TEST_F(ConsoleTest, AWhiteBarThatFillsInNavyStandsOnLightGrey) {
    const auto fill = [this](const char* name) { return Control(name).palette().color(QPalette::Window); };
    EXPECT_EQ(fill("fraProgress"), QColor(Qt::lightGray)); // 192 of each
    EXPECT_EQ(fill("shpProgressBack"), QColor(Qt::white));
    EXPECT_EQ(fill("shpProgressFore"), QColor(Qt::darkBlue)); // 128 of blue alone
}

TEST_F(ConsoleTest, TheQuestionAboutThePaperStandsBetweenEqualMargins380PixelsWide) {
    frmPrntPrep question;
    ModalSteps person;
    person.In("frmPrntPrep", [](QWidget& window) {
        const QRect prompt = Find<QLabel>(window, "lblMain").geometry();
        const QRect other = Find<QLabel>(window, "lblAlternative").geometry();
        EXPECT_EQ(prompt.width(), 380);
        EXPECT_EQ(other.left(), prompt.left());
        EXPECT_EQ(other.right(), prompt.right());
        EXPECT_EQ(window.width() - 1 - prompt.right(), prompt.left());
        Click(window, "cmd_0");
    });
    question.ShowForm(QStringLiteral("Please load paper"));
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
