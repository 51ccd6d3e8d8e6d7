// SPDX-License-Identifier: MIT
#include "windows/nokit/PrintWithoutKit.h"

#include "ConsoleFixture.h"

#include "support/PdfReader.h"

#include <QCheckBox>
#include <QDoubleSpinBox>

namespace {

class PrintWithoutKitTest : public ConsoleTest {
protected:
    PrintWithoutKitTest() {
        console.reset();
        window.TellInPrint = [this](bool now) { pages.append(now); };
    }
    /// Opens the window, does what a person does in it, and closes it.
    void Show(const std::function<void()>& act) {
        ModalSteps person;
        person.In("PrintWithoutKit", [&](QWidget& shown) {
            act();
            if (shown.isVisible()) Click(shown, "cmdClose");
        });
        window.ShowForm();
    }
    void Make() { Click(window, "cmdMake"); }
    void Choose(const char* name, const char* text) {
        Find<QComboBox>(window, name).setCurrentText(QString::fromLatin1(text));
        ASSERT_EQ(Find<QComboBox>(window, name).currentText(), QString::fromLatin1(text));
    }
    QString Label(const char* name) { return Find<QLabel>(window, name).text(); }
    bool IsShown(const char* name) { return Find<QWidget>(window, name).isVisible(); }
    QString Pdf() const { return PathOf(QStringLiteral("games/Printed/Ours - Without a Kit.pdf")); }

    PrintWithoutKit window;
};

} // namespace

TEST_F(PrintWithoutKitTest, EverythingBecomesOneFile) {
    Show([this] {
        EXPECT_FALSE(IsShown("cmdOpen"));
        Make();
        EXPECT_TRUE(IsShown("cmdOpen"));
        EXPECT_TRUE(IsShown("cmdShowFolder"));
    });
    EXPECT_TRUE(desktop.boxes.isEmpty()) << qPrintable(desktop.Texts().join(u'\n'));
    EXPECT_EQ(Label("lblPage"), Pdf());
    EXPECT_TRUE(Label("lblTold").contains(QStringLiteral("actual size")));
    EXPECT_TRUE(printer.ended.isEmpty()) << "no page goes to the printer";
    EXPECT_EQ(pages, (QList<bool>{true, false}));
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    EXPECT_EQ(PdfReader(Pdf()).Pages(), 31);
    EXPECT_EQ(PdfReader(Pdf()).PaperInches(1), QSizeF(8.5, 11));
}

TEST_F(PrintWithoutKitTest, WhatIsChosenIsMade) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    Show([this] {
        EXPECT_FALSE(Find<QWidget>(window, "spnInches").isEnabled());
        Choose("cboPaper", "A3");
        Choose("cboSize", "Another size:");
        EXPECT_TRUE(Find<QWidget>(window, "spnInches").isEnabled());
        Find<QDoubleSpinBox>(window, "spnInches").setValue(12.5);
        Choose("cboWay", "On one page, for a copy shop");
        Choose("cboPlayers", "2");
        Make();
    });
    const PdfReader made(Pdf());
    EXPECT_EQ(made.Pages(), 31 - 5 - 5) << "one page of the board, and less money";
    EXPECT_NEAR(made.PaperInches(1).height(), 420 / 25.4, 0.02);
    EXPECT_NEAR(made.PaperInches(2).width(), 12.5 + 1.2, 0.02);
    EXPECT_TRUE(made.Text(1).contains(QStringLiteral("for 2 players")));
}

TEST_F(PrintWithoutKitTest, StopLeavesTheFileOfBefore) {
    QDir().mkpath(PathOf(QStringLiteral("games/Printed")));
    WriteFile(QStringLiteral("games/Printed/Ours - Without a Kit.pdf"), "of before");
    desktop.onPump = [this] {
        EXPECT_FALSE(Find<QWidget>(window, "cmdMake").isEnabled());
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
    };
    Show([this] { Make(); });
    desktop.onPump = nullptr;
    EXPECT_EQ(Label("lblPage"), QStringLiteral("Stopped. No file was written."));
    EXPECT_EQ(ReadFile(Pdf()), QByteArray("of before"));
    EXPECT_FALSE(IsShown("cmdOpen"));
    EXPECT_EQ(pages.count(true), pages.count(false)) << "the program can be closed";
    EXPECT_TRUE(Find<QWidget>(window, "cmdMake").isEnabled());
}

TEST_F(PrintWithoutKitTest, AFileThatCannotBeWrittenIsTold) {
    QDir().mkpath(Pdf());
    Show([this] { Make(); });
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.startsWith(QStringLiteral("The game could not be printed.\r\n\r\nThe file '")))
        << qPrintable(desktop.boxes[0].sText);
    EXPECT_FALSE(IsShown("cmdOpen"));
}

TEST_F(PrintWithoutKitTest, APieceThatCannotBeMadeIsNamedAndTheFileOfBeforeStays) {
    const struct {
        const char* file;
        const char* told;
    } rows[] = {
        {"TempDeedBMP1.temp", "The deed of space 2 could not be made: "},
        {"TempNewsBMP0.temp", "Good News card 1 could not be made: "},
        {"MoneyImage.bmp", "The $100 note could not be made: "},
    };
    QDir().mkpath(PathOf(QStringLiteral("games/Printed")));
    WriteFile(QStringLiteral("games/Printed/Ours - Without a Kit.pdf"), "of before");
    for (const auto& row : rows) {
        desktop.boxes.clear();
        const Blocked blocked(row.file);
        Show([this] { Make(); });
        ASSERT_FALSE(desktop.boxes.isEmpty()) << row.file;
        const QString told = desktop.boxes.constLast().sText;
        EXPECT_TRUE(told.startsWith(QStringLiteral("The game could not be printed.\r\n\r\n"))) << qPrintable(told);
        EXPECT_TRUE(told.contains(QString::fromLatin1(row.told))) << qPrintable(told);
        EXPECT_TRUE(told.contains(QString::fromLatin1(row.file))) << qPrintable(told);
        EXPECT_EQ(ReadFile(Pdf()), QByteArray("of before"));
        EXPECT_FALSE(IsShown("cmdOpen"));
    }
}

TEST_F(PrintWithoutKitTest, TheConsoleOpensItFromItsFirstPage) {
    Open();
    ModalSteps person;
    bool shown = false;
    person.In("PrintWithoutKit", [&](QWidget& opened) {
        shown = true;
        Click(opened, "cmdClose");
    });
    Click(*console, "cmdNoKit");
    EXPECT_TRUE(shown);
}
