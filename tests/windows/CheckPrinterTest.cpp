// SPDX-License-Identifier: MIT
#include "windows/checkpage/CheckPrinter.h"

#include "ConsoleFixture.h"

#include "platform/files/Files.h"
#include "services/PrinterCorrections.h"

#include <QLineEdit>

namespace {

class CheckPrinterTest : public ConsoleTest {
protected:
    CheckPrinterTest() {
        window.TellInPrint = [this](bool now) { pages.append(now); };
    }

    /// Opens the window, does what a person does in it, and closes it.
    void Show(const std::function<void()>& act) {
        ModalSteps person;
        person.In("CheckPrinter", [&](QWidget& shown) {
            act();
            if (shown.isVisible()) Click(shown, "cmdClose");
        });
        window.ShowForm();
    }
    void Type(const char* name, const char* text) {
        auto& field = Find<QLineEdit>(window, name);
        field.clear();
        QTest::keyClicks(&field, QLatin1String(text));
    }
    void Press(const char* name) { Click(window, name); }
    QString Label(const char* name) { return Find<QLabel>(window, name).text(); }
    QString Field(const char* name) { return Find<QLineEdit>(window, name).text(); }
    PageCorrection InForce() const { return PrinterCorrections::Of(printer.device, printer.PagePaper()); }
    void TypeShift(const char* sideways, const char* upAndDown) {
        Type("txtSideways", sideways);
        Type("txtUpAndDown", upAndDown);
    }

    static void RefuseSettings() {
        Files::SetFaultHook([](Files::Operation operation, const QString& path) {
            const bool hit = operation == Files::Operation::OpenWrite && path.endsWith(QStringLiteral(".ini"));
            return hit ? std::optional(QStringLiteral("No space left on device")) : std::nullopt;
        });
    }

    CheckPrinter window;
};

} // namespace

TEST_F(CheckPrinterTest, ThePageGoesToThePrinterInForce) {
    Show([this] {
        EXPECT_EQ(Label("lblPrinter"), QStringLiteral("Printer: Laser. Paper: US Letter."));
        EXPECT_EQ(Label("lblInForce"), QStringLiteral("Sheets for it are not corrected."));
        Press("cmdPrint");
        EXPECT_TRUE(Find<QWidget>(window, "cmdOpen").isHidden());
        Press("cmdPrint");
    });
    EXPECT_EQ(printer.ended, (QStringList{QStringLiteral("Printer Check"), QStringLiteral("Printer Check")}));
    EXPECT_EQ(printer.orientations, (QList<PageOrientation>{PageOrientation::Portrait, PageOrientation::Portrait}));
    EXPECT_EQ(printer.empty, 0);
    EXPECT_EQ(pages, (QList<bool>{true, false, true, false}));
}

TEST_F(CheckPrinterTest, WhatIsReadIsToldWhileItIsTypedAndKeptAtAClick) {
    Show([this] {
        TypeShift("0 N", "0 N");
        EXPECT_EQ(Label("lblTold"), QStringLiteral("The page came out in its place: there is nothing to correct."));
        TypeShift("1 N", "21 N");
        Type("txtAcross", "199.5");
        EXPECT_EQ(Label("lblTold"),
                  QStringLiteral("\"Correct\" moves and scales every sheet: 1.2 mm right, 1.2 mm up, 0.3 "
                                 "% wider."));
        EXPECT_TRUE(InForce().IsNothing()) << "not before it is wished";
        Press("cmdCorrect");
        EXPECT_EQ(Field("txtSideways"), QString());
        EXPECT_EQ(Field("txtAcross"), QStringLiteral("200"));
        EXPECT_TRUE(Label("lblInForce").startsWith(QStringLiteral("Sheets for it are corrected: 1.2 mm right")));
        EXPECT_TRUE(Label("lblTold").contains(QStringLiteral("0 N")));
    });
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_NEAR(InForce().dblRightMm, -1.2 * 0.9975, 1e-4);
    EXPECT_NEAR(InForce().dblDownMm, 1.2, 1e-4);
    EXPECT_NEAR(InForce().dblAcross, 0.9975, 1e-6);
}

TEST_F(CheckPrinterTest, ASecondCheckCorrectsWhatIsLeft) {
    for (int round = 0; round < 2; ++round) {
        Show([this] {
            TypeShift("1 N", "0 N");
            Press("cmdCorrect");
        });
    }
    EXPECT_NEAR(InForce().dblRightMm, -2.4, 1e-4);
}

TEST_F(CheckPrinterTest, WhatCannotBeRightIsToldAndChangesNothing) {
    Show([this] {
        TypeShift("19 K", "x");
        Type("txtDown", "7.9");
        EXPECT_EQ(Label("lblTold").count(u'\n'), 2) << qPrintable(Label("lblTold"));
        Press("cmdCorrect");
        EXPECT_EQ(Field("txtSideways"), QStringLiteral("19 K")) << "nothing that was typed is lost";
    });
    ASSERT_EQ(desktop.boxes.size(), 1);
    for (const char* word : {"There is no line 19", "such as 12 K", "actual size"})
        EXPECT_TRUE(desktop.boxes[0].sText.contains(QLatin1String(word))) << word;
    EXPECT_TRUE(InForce().IsNothing());
}

TEST_F(CheckPrinterTest, FurtherThanAnyPrinterIsOffIsRefused) {
    PrinterCorrections::Keep(printer.device, printer.PagePaper(), {.dblRightMm = 15});
    Show([this] {
        // 3.6 mm more.
        TypeShift("23 N", "0 N");
        Press("cmdCorrect");
    });
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("clear the correction")));
    EXPECT_EQ(InForce().dblRightMm, 15);
}

TEST_F(CheckPrinterTest, ACorrectionIsClearedByAClick) {
    PrinterCorrections::Keep(printer.device, printer.PagePaper(), {.dblRightMm = 1});
    Show([this] { Press("cmdClear"); });
    EXPECT_TRUE(InForce().IsNothing());
    EXPECT_FALSE(Find<QWidget>(window, "cmdClear").isEnabled());
}

TEST_F(CheckPrinterTest, ACorrectionThatCannotBeKeptIsToldAndWhatWasTypedStays) {
    Show([this] {
        TypeShift("1 N", "0 N");
        RefuseSettings();
        Press("cmdCorrect");
        EXPECT_EQ(Field("txtSideways"), QStringLiteral("1 N"));
        EXPECT_FALSE(Label("lblTold").startsWith(QStringLiteral("Done"))) << qPrintable(Label("lblTold"));
        EXPECT_TRUE(InForce().IsNothing());
        Files::SetFaultHook({});
        Press("cmdCorrect");
        EXPECT_TRUE(Label("lblTold").startsWith(QStringLiteral("Done")));
        RefuseSettings();
        Press("cmdClear");
        EXPECT_FALSE(Label("lblTold").contains(QStringLiteral("cleared"))) << qPrintable(Label("lblTold"));
        EXPECT_FALSE(InForce().IsNothing());
    });
    Files::SetFaultHook({});
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_TRUE(desktop.boxes[0].sText.startsWith(QStringLiteral("The correction could not be kept: ")));
    EXPECT_TRUE(desktop.boxes[1].sText.startsWith(QStringLiteral("The correction could not be cleared: ")));
}

TEST_F(CheckPrinterTest, WithoutAPrinterThePageIsAFileThatCanBeOpened) {
    printer.device.clear();
    printer.pdf = QStringLiteral("/home/anna/Printed/Printer Check.pdf");
    Show([this] {
        EXPECT_TRUE(Label("lblPrinter").contains(QStringLiteral("actual size")));
        Press("cmdPrint");
        EXPECT_TRUE(Find<QWidget>(window, "cmdOpen").isVisible());
        EXPECT_TRUE(Label("lblTold").contains(printer.pdf));
    });
}

TEST_F(CheckPrinterTest, APageThatFailsIsTold) {
    printer.error = QStringLiteral("No space left on device");
    Show([this] { Press("cmdPrint"); });
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("The page could not be printed.\r\n\r\nNo space left on device")});
    printer.there = false;
    desktop.answers = {vbCancel};
    Show([this] { Press("cmdPrint"); });
    EXPECT_EQ(printer.ended.size(), 1) << "a printer that doesn't answer is asked about";
}

TEST_F(CheckPrinterTest, TheConsoleShowsACorrectionAndClearsItByAClick) {
    const auto shows = [this](const char* name) { return Shows(name); };
    ModalSteps person;
    person.In("frmTavlPrint", [&](QWidget& shown) {
        EXPECT_FALSE(shows("lblCorrection") || shows("cmdClearCorrection"));
        Click(shown, "cmdCheckPrinter");
        EXPECT_TRUE(shows("lblCorrection") && shows("cmdClearCorrection"));
        EXPECT_EQ(Text("lblCorrection"), QStringLiteral("Corrected: 1.2 mm right"));
        Click(shown, "cmdClearCorrection");
        EXPECT_FALSE(shows("lblCorrection") || shows("cmdClearCorrection"));
        EXPECT_TRUE(InForce().IsNothing());
        Click(shown, "cmdCancel");
    });
    person.In("CheckPrinter", [](QWidget& check) {
        QTest::keyClicks(check.findChild<QLineEdit*>(QStringLiteral("txtSideways")), QStringLiteral("1 N"));
        QTest::keyClicks(check.findChild<QLineEdit*>(QStringLiteral("txtUpAndDown")), QStringLiteral("0 N"));
        Click(check, "cmdCorrect");
        Click(check, "cmdClose");
    });
    console->hide();
    console->ShowForm(false);
}
