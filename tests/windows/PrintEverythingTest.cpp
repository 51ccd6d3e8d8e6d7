// SPDX-License-Identifier: MIT
#include "windows/print/PrintEverything.h"

#include "ConsoleFixture.h"

#include "support/PdfReader.h"

#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>

namespace {

constexpr int kPagesOfSix = 21;

class PrintEverythingTest : public ConsoleTest {
protected:
    PrintEverythingTest() {
        console.reset();
        window.TellInPrint = [this](bool now) { pages.append(now); };
    }
    /// Opens the window, does what a person does in it, and closes it.
    bool Show(const std::function<void()>& act) {
        ModalSteps person;
        person.In("PrintEverything", [&](QWidget& shown) {
            act();
            if (shown.isVisible()) Click(shown, "cmdClose");
        });
        return window.ShowForm(false);
    }
    void Print() { Click(window, "cmdPrint"); }
    QString Label(const char* name) { return Find<QLabel>(window, name).text(); }
    bool IsShown(const char* name) { return Find<QWidget>(window, name).isVisible(); }
    int Ticked() {
        int ticked = 0;
        const auto& sheets = Find<QListWidget>(window, "lstSheets");
        for (int row = 0; row < sheets.count(); ++row)
            ticked += sheets.item(row)->checkState() == Qt::Checked ? 1 : 0;
        return ticked;
    }
    void Tick(int row, bool on) {
        Find<QListWidget>(window, "lstSheets").item(row)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    QString Pdf() const { return PathOf(QStringLiteral("games/Printed/Ours - Whole Kit.pdf")); }

    PrintEverything window;
};

} // namespace

TEST_F(PrintEverythingTest, TellsWhatPaperItTakes) {
    Show([this] {
        EXPECT_EQ(
            Label("lblNeeded"),
            QStringLiteral("This takes:\n3 sheets of white label paper\n2 sheets of white card stock\n2 sheets of "
                           "colored card stock\n14 sheets of white paper"));
        EXPECT_EQ(Label("lblDestination"), QStringLiteral("Printer: Laser"));
        EXPECT_EQ(Find<QPushButton>(window, "cmdPrint").text(), QStringLiteral("&Print"));
        Find<QComboBox>(window, "cboPlayers").setCurrentText(QStringLiteral("2"));
        EXPECT_TRUE(Label("lblNeeded").endsWith(QStringLiteral("\n9 sheets of white paper")));
        for (int row = 1; row < int(Sheets().size()); ++row)
            Tick(row, false);
        EXPECT_EQ(Label("lblNeeded"), QStringLiteral("This takes:\n1 sheet of white label paper"));
        Tick(0, false);
        EXPECT_EQ(Label("lblNeeded"), QStringLiteral("Tick the sheets that you would like to print."));
        EXPECT_FALSE(Find<QWidget>(window, "cmdPrint").isEnabled());
    });
}

TEST_F(PrintEverythingTest, AllSheetsAreSeenWithoutScrollingAndTwiceTheRoomBelowThemIsBesideThem) {
    Show([this] {
        auto& sheets = Find<QListWidget>(window, "lstSheets");
        EXPECT_FALSE(sheets.verticalScrollBar()->isVisible());
        EXPECT_FALSE(sheets.horizontalScrollBar()->isVisible());
        const QRect last = sheets.visualItemRect(sheets.item(sheets.count() - 1));
        const QSize least = sheets.minimumSize() - 2 * QSize(sheets.frameWidth(), sheets.frameWidth());
        const int below = least.height() - (last.bottom() + 1);
        EXPECT_GT(below, 0);
        EXPECT_EQ(least.width() - sheets.sizeHintForColumn(0), 2 * below);
    });
}

TEST_F(PrintEverythingTest, OnPaperEachStockIsAskedForOnceAndWhatIsDoneLosesItsTick) {
    EXPECT_TRUE(Show([this] { Print(); })) << "pages have gone to a printer";
    ASSERT_EQ(desktop.boxes.size(), 4);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Please load 3 sheets of white label paper into the printer, then click 'OK'.\r\n\r\n"
                             "'Cancel' stops here; what has come out of the printer loses its tick."));
    EXPECT_TRUE(desktop.boxes[3].sText.startsWith(QStringLiteral("Please load 14 sheets of white paper")));
    EXPECT_EQ(printer.ended.size(), kPagesOfSix);
    EXPECT_EQ(printer.ended.first(), QStringLiteral("Ours - Box Top & Token Stickers"));
    EXPECT_EQ(printer.ended.count(QStringLiteral("Ours - $ 100")), 5);
    EXPECT_EQ(Ticked(), 0);
    EXPECT_EQ(Label("lblPage"), QStringLiteral("All 21 pages went to the printer."));
    Show([this] { EXPECT_EQ(Ticked(), int(Sheets().size())) << "all of it once more"; });
}

TEST_F(PrintEverythingTest, WhoeverStopsTakesItUpAgainWhereItWas) {
    desktop.answers = {vbOK, vbCancel};
    Show([this] { Print(); });
    EXPECT_EQ(printer.ended.size(), 3) << "the label sheets";
    EXPECT_EQ(Label("lblPage"), QStringLiteral("Stopped."));
    EXPECT_EQ(Ticked(), int(Sheets().size()) - 3);
    desktop.answers.clear();
    Show([this] {
        EXPECT_TRUE(Label("lblNeeded").startsWith(QStringLiteral("This takes:\n2 sheets of white card stock")));
        Print();
    });
    EXPECT_EQ(printer.ended.size(), kPagesOfSix);
}

TEST_F(PrintEverythingTest, StopEndsItAheadOfTheNextPage) {
    bool acted = false;
    desktop.onPump = [&] {
        if (printer.ended.size() != 1 || std::exchange(acted, true)) return;
        EXPECT_FALSE(Find<QWidget>(window, "cmdClose").isEnabled());
        EXPECT_EQ(Label("lblPage"), QStringLiteral("Page 2 of 21: West, South & Corner Board Stickers"));
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
        Click(window, "cmdStop");
    };
    Show([this] { Print(); });
    EXPECT_TRUE(acted);
    EXPECT_LE(printer.ended.size(), 2);
    EXPECT_EQ(Ticked(), int(Sheets().size()) - int(printer.ended.size()));
    EXPECT_EQ(pages.count(true), pages.count(false)) << "the program can be closed";
}

TEST_F(PrintEverythingTest, WithoutAPrinterAllPagesBecomeOneFile) {
    printer.device.clear();
    EXPECT_FALSE(Show([this] {
        EXPECT_EQ(Label("lblDestination"), QStringLiteral("No printer is set up: all pages go into one PDF file."));
        EXPECT_EQ(Find<QPushButton>(window, "cmdPrint").text(), QStringLiteral("&Make PDF"));
        EXPECT_FALSE(IsShown("cmdOpen"));
        Print();
        EXPECT_EQ(
            Label("lblDestination"),
            QStringLiteral("All 21 pages are now in one PDF file. Print it at actual size (100 %), never \"fit to "
                           "page\": only then the pieces have their right size."));
        EXPECT_TRUE(IsShown("cmdOpen"));
        EXPECT_TRUE(IsShown("cmdShowFolder"));
    })) << "a file has gone to no printer";
    EXPECT_TRUE(desktop.boxes.isEmpty()) << qPrintable(desktop.Texts().join(u'\n'));
    EXPECT_TRUE(ReadFile(Pdf()).startsWith("%PDF-"));
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(Label("lblPage"), Pdf());
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    EXPECT_EQ(PdfReader(Pdf()).Pages(), kPagesOfSix);
    EXPECT_EQ(PdfReader(Pdf()).PaperInches(1), QSizeF(11, 8.5));
}

TEST_F(PrintEverythingTest, AFileOfBeforeStaysWhenItIsStoppedOrNotWhole) {
    printer.device.clear();
    QDir().mkpath(PathOf(QStringLiteral("games/Printed")));
    WriteFile(QStringLiteral("games/Printed/Ours - Whole Kit.pdf"), "of before");
    desktop.onPump = [this] { Click(window, "cmdStop"); };
    Show([this] { Print(); });
    desktop.onPump = nullptr;
    EXPECT_EQ(Label("lblPage"), QStringLiteral("Stopped. No file was written."));
    const auto printWithout = [this](const char* made) {
        const Blocked blocked(made);
        Show([this] { Print(); });
        return desktop.boxes.constLast().sText;
    };
    QString told = printWithout("TempNewsBMP1.temp");
    EXPECT_TRUE(told.startsWith(
        QStringLiteral("The sheet 'Bad News Cards' could not be printed.\r\n\r\nBad News card 1 could not be made: ")))
        << qPrintable(told);
    told = printWithout("MoneyImage.bmp");
    EXPECT_TRUE(told.startsWith(
        QStringLiteral("The sheet '$ 100' could not be printed.\r\n\r\nThe $100 note could not be made: ")))
        << qPrintable(told);
    EXPECT_EQ(ReadFile(Pdf()), QByteArray("of before"));
    EXPECT_EQ(QDir(PathOf(QStringLiteral("games/Printed"))).entryList(QDir::Files | QDir::Hidden).size(), 1);
    EXPECT_FALSE(IsShown("cmdOpen"));
}

TEST_F(PrintEverythingTest, APageThatIsTooSmallIsAskedAboutOnceForAllSheets) {
    printer.printable = QSizeF(8.0, 10.3);
    desktop.answers = {vbCancel};
    Show([this] { Print(); });
    EXPECT_TRUE(printer.ended.isEmpty());
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(
        QStringLiteral("\r\nProperty Deed Sheet #2: The lowest row of deeds would lose 2 mm.\r\n")))
        << qPrintable(desktop.boxes[0].sText);
    EXPECT_FALSE(desktop.boxes[0].sText.contains(QStringLiteral("News")));
}

TEST_F(PrintEverythingTest, NoMorePagesGoToAPrinterThatDoesNotPrintThoseThatItHas) {
    int asked = 0;
    desktop.onBox = [&] {
        if (!desktop.boxes.last().sText.contains(QStringLiteral("doesn't print"))) return;
        EXPECT_EQ(printer.ended.size(), 3) << "the page that was under way is finished";
        // Somebody has put paper in when it is asked about for the second time.
        if (++asked == 2) printer.trouble.clear();
    };
    desktop.onPump = [&] {
        if (printer.ended.size() == 2 && asked == 0) printer.trouble = QStringLiteral("It is out of paper.");
    };
    Show([this] { Print(); });
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(printer.ended.size(), kPagesOfSix);
    printer.trouble = QStringLiteral("It is out of paper.");
    desktop.onPump = nullptr;
    desktop.onBox = nullptr;
    desktop.answers = {vbOK, vbCancel};
    Show([this] {
        Print();
        EXPECT_EQ(Label("lblPage"), QStringLiteral("Stopped."));
    });
    EXPECT_EQ(printer.ended.size(), kPagesOfSix);
}

TEST_F(PrintEverythingTest, AFailureFreesTheWindow) {
    desktop.onPump = [this] {
        if (printer.ended.size() == 1) ErrRaise(ErrNumber::kOutOfMemory, QStringLiteral("Out of memory"));
    };
    Show([this] {
        Print();
        desktop.onPump = nullptr;
        EXPECT_EQ(Ticked(), int(Sheets().size()) - 1);
        Print();
    });
    EXPECT_EQ(printer.ended.size(), kPagesOfSix);
    EXPECT_TRUE(ReadFile(basErrLog::ErrLogPath()).contains("PrintEverything!cmdPrint_Click"));
    EXPECT_EQ(pages.count(true), pages.count(false));
}

TEST_F(PrintEverythingTest, IsAskedOnceAheadOfAllSheetsThatAreTicked) {
    QList<QStringList> asked;
    window.MayPrint = [&](QDialog&, const QStringList& sheets) {
        asked.append(sheets);
        return false;
    };
    Show([this] {
        for (int row = 1; row < int(Sheets().size()) - 1; ++row)
            Tick(row, false);
        Print();
        EXPECT_EQ(Ticked(), 2);
    });
    EXPECT_EQ(asked, QList<QStringList>{QStringList({QStringLiteral("box"), QStringLiteral("rules")})});
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_TRUE(pages.isEmpty());
}
