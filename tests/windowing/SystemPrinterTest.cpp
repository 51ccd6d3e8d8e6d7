// SPDX-License-Identifier: MIT
#include "windowing/SystemPrinter.h"

#include "platform/files/Files.h"
#include "support/TestFixture.h"
#include "windowing/DesktopWidgets.h"

#include <QDir>
#include <QPrinterInfo>

class SystemPrinterTest : public TavloraTest {
protected:
    SystemPrinterTest() {
        // Whatever is set up where the tests run: here there is no printer.
        qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    }
};

TEST_F(SystemPrinterTest, WithoutAPrinterEachDocumentIsAPdfFileNamedAfterIt) {
    SystemPrinter printer(PathOf(QStringLiteral("Printed")));
    if (!printer.PrintsToPdf()) GTEST_SKIP() << "a printer is set up on this machine";
    EXPECT_DOUBLE_EQ(printer.DotsPerInch(), 600.0);
    EXPECT_EQ(printer.PrintableInches(), QSizeF(8.0, 10.5));
    for (int round = 0; round < 2; ++round) {
        printer.SetDocumentName(QStringLiteral("Family: the \"box\""));
        printer.SetOrientation(PageOrientation::Landscape);
        EXPECT_EQ(printer.PrintableInches(), QSizeF(10.5, 8.0));
        printer.SetFontSize(12);
        printer.Print(QStringLiteral("Box Top"));
        printer.EndDoc();
        EXPECT_EQ(printer.LastPdf(), PathOf(QStringLiteral("Printed/Family- the -box-.pdf")));
        EXPECT_TRUE(Files::Exists(printer.LastPdf()));
    }
    EXPECT_EQ(QDir(PathOf(QStringLiteral("Printed"))).entryList(QDir::Files).size(), 1)
        << "a second printing replaces it";
}

TEST_F(SystemPrinterTest, AFolderThatCannotBeMadeIsTold) {
    WriteFile(QStringLiteral("Printed"), "a file stands in the way");
    SystemPrinter printer(PathOf(QStringLiteral("Printed")));
    if (!printer.PrintsToPdf()) GTEST_SKIP() << "a printer is set up on this machine";
    printer.SetDocumentName(QStringLiteral("Ours - Rules"));
    printer.EndDoc();
    EXPECT_TRUE(printer.LastPdf().isEmpty());
    const QString told =
        QStringLiteral("The file '%1' could not be written: ").arg(PathOf(QStringLiteral("Printed/Ours - Rules.pdf")));
    EXPECT_TRUE(printer.LastError().startsWith(told)) << qPrintable(printer.LastError());
    EXPECT_GT(printer.LastError().size(), told.size());
}

TEST_F(SystemPrinterTest, AKilledDocumentOfTheDesktopLeavesNoFileAndTheNextOneIsFresh) {
    SystemPrinter printer(PathOf(QStringLiteral("Printed")));
    if (!printer.PrintsToPdf()) GTEST_SKIP() << "a printer is set up on this machine";
    printer.SetDocumentName(QStringLiteral("Half a page"));
    printer.hDC().FillRect(0, 0, 100, 100, Color::Black());
    printer.KillDoc();
    EXPECT_TRUE(QDir(PathOf(QStringLiteral("Printed"))).entryList(QDir::Files).isEmpty());
    printer.SetDocumentName(QStringLiteral("Whole"));
    printer.EndDoc();
    EXPECT_EQ(printer.LastPdf(), PathOf(QStringLiteral("Printed/Whole.pdf")));
    EXPECT_TRUE(printer.DeviceName().isEmpty());
}

TEST_F(SystemPrinterTest, WithoutAPrinterTheDialogSaysThatThereIsNone) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "a printer is set up on this machine";
    DesktopWidgets widgets;
    CommonDialog dialog;
    dialog.bPrinterDefault = true;
    EXPECT_FALSE(widgets.ShowPrinter(dialog));
    EXPECT_EQ(dialog.sError, QStringLiteral("No printer is set up on this computer. Each sheet becomes a PDF file "
                                            "instead, which can be printed from any computer."));
}
