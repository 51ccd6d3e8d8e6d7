// SPDX-License-Identifier: MIT
// Print and Setup from the main window: what it lets through meanwhile, and what it keeps.
#include "AppFixture.h"

#include "app/EditorWindows.h"
#include "kit/Sheets.h"
#include "pieces/frmBMP.h"
#include "platform/files/Folders.h"
#include "platform/pictures/LoadPicture.h"
#include "support/ModalSteps.h"
#include "support/PictureFiles.h"
#include "support/TestPrinter.h"
#include "support/Waiting.h"

#include <QCheckBox>
#include <QLineEdit>

namespace {

class PrintDoorTest : public AppTest {
protected:
    PrintDoorTest() {
        doors = &windows;
        Start();
        frmBMP::InstallAsThumbnailMaker();
        WriteGame(QStringLiteral("Ours.gam"), QStringLiteral("Desk"));
        window->Commands().OpenGame(InGames(QStringLiteral("Ours.gam")));
        Folders::PretendFreeBytes(1e12);
    }
    ~PrintDoorTest() override {
        window.reset();
        Folders::PretendFreeBytes(-1);
        Screen::SetMousePointer(Screen::MousePointer::Default);
    }

    /// Opens the console from the main window and prints the Good News cards; before the console is left, act.
    void PrintNews(const std::function<void(QWidget& console)>& act = {}) {
        ModalSteps person;
        person.In("frmTavlPrint", [act](QWidget& console) {
            ClickIn(console, "cmdNav_3");
            ClickIn(console, "cmdPrint_5");
            if (act) act(console);
            if (console.isVisible()) ClickIn(console, "cmdCancel");
        });
        person.In("frmPrntPrep", [](QWidget& paper) { ClickIn(paper, "cmd_2"); });
        ClickButton(3);
    }

    TestPrinter printer;
    EditorWindows windows;
};

} // namespace

TEST_F(PrintDoorTest, TheConsolePrintsTheGameOfTheMainWindow) {
    PrintNews();
    EXPECT_EQ(printer.ended, QStringList{QStringLiteral("Ours - Good News Cards")});
    EXPECT_TRUE(window->HasPrintedSomething());
    ChooseMenu("mnuFile_6");
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("Sorry, but you can't change printers once you have started the printing "
                                         "process.\r\nPlease stop and restart the program before changing printers.")});
}

TEST_F(PrintDoorTest, TheWholeKitIsPrintedFromTheMenuAndFromTheConsole) {
    const auto print = [](QWidget& everything) {
        ClickIn(everything, "cmdPrint");
        ClickIn(everything, "cmdClose");
    };
    {
        ModalSteps person;
        person.In("PrintEverything", print);
        ChooseMenu("mnuFile_21");
    }
    const qsizetype whole = printer.ended.size();
    EXPECT_GT(whole, qsizetype(Sheets().size()));
    EXPECT_TRUE(window->HasPrintedSomething());
    EXPECT_FALSE(window->IsInPrint());
    ModalSteps person;
    person.In("frmTavlPrint", [](QWidget& console) {
        ClickIn(console, "cmdEverything");
        ClickIn(console, "cmdCancel");
    });
    person.In("PrintEverything", print);
    ClickButton(3);
    EXPECT_EQ(printer.ended.size(), 2 * whole);
    EXPECT_TRUE(window->isEnabled());
}

TEST_F(PrintDoorTest, UnsavedChangesAreNotPrintedFromTheMenuEither) {
    Edit(QStringLiteral("Chair"));
    desktop.answers = {vbNo};
    ChooseMenu("mnuFile_21");
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("Please save your changes before printing.\r\n\r\nSave them now?")});
    EXPECT_TRUE(printer.ended.isEmpty());
}

TEST_F(PrintDoorTest, TheNextOpeningStillRefusesToChangeThePrinter) {
    PrintNews();
    ModalSteps person;
    person.In("frmTavlPrint", [](QWidget& console) {
        ClickIn(console, "cmdChangePrinter");
        ClickIn(console, "cmdCancel");
    });
    ChooseMenu("mnuFile_7");
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(PrintDoorTest, DoneDuringAJobLeavesTheMainWindowDisabledAndTheProgramOpenUntilThePageIsFinished) {
    bool acted = false;
    desktop.onPump = [&] {
        if (std::exchange(acted, true)) return;
        QWidget& console = *QApplication::activeModalWidget();
        EXPECT_TRUE(console.isEnabled());
        ClickIn(console, "cmdCancel");
        EXPECT_FALSE(console.isVisible());
        EXPECT_FALSE(window->isEnabled());
        EXPECT_TRUE(window->IsInPrint());
        window->close();
        EXPECT_TRUE(window->isVisible()) << "closing is refused";
        ClickButton(3);
        EXPECT_TRUE(printer.ended.isEmpty());
    };
    PrintNews();
    EXPECT_TRUE(acted);
    EXPECT_EQ(printer.ended.size(), 1) << "the job went on";
    EXPECT_TRUE(window->isEnabled());
    EXPECT_FALSE(window->IsInPrint());
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_FALSE(desktop.ended);
}

TEST_F(PrintDoorTest, TheBoardIsNotPaintedWhileAPageIs) {
    bool painted = true;
    desktop.onPump = [&] {
        window->View().Board().SetBackColor(Color::Rgb(1, 2, 3));
        window->View().Redraw();
        painted = window->View().Board().Image().pixel(50, 50) != qRgb(1, 2, 3);
    };
    PrintNews();
    desktop.onPump = nullptr;
    EXPECT_FALSE(painted);
}

// "Done" hides the console amid the page, and nothing modal stands on top of the board any more.
TEST_F(PrintDoorTest, APhotoThatTheBoardWaitsForComesBehindThePage) {
    PrintNews();
    const QImage good = printer.Page().Image().copy();
    QImage photo(2400, 2400, QImage::Format_RGB32);
    photo.fill(QColor(200, 0, 200));
    ForgetPictures();
    basTAVL::g_oSpaces(4).SetImagePath(WriteFile(QStringLiteral("photo.bmp"), PictureFiles::Encoded(photo, "BMP")));
    window->View().Redraw();
    const auto seen = [this] { return window->View().Board().Image().copy(); };
    const QImage before = seen();
    bool acted = false;
    desktop.onPump = [&] {
        if (std::exchange(acted, true)) return;
        ClickIn(*QApplication::activeModalWidget(), "cmdCancel");
        QTest::qWait(500);
        EXPECT_EQ(seen(), before);
    };
    PrintNews();
    desktop.onPump = nullptr;
    EXPECT_TRUE(acted);
    EXPECT_EQ(printer.Page().Image(), good);
    EXPECT_TRUE(Comes([&] { return seen() != before; })) << "it does come";
}

TEST_F(PrintDoorTest, TheConsoleStaysAliveWhileAPageIsPrinted) {
    bool acted = false;
    desktop.onPump = [&] {
        if (std::exchange(acted, true)) return;
        QWidget& console = *QApplication::activeModalWidget();
        ClickIn(console, "cmdNav_0");
        EXPECT_TRUE(console.findChild<QWidget*>(QStringLiteral("fraPrint_0"))->isVisible());
    };
    PrintNews(
        [](QWidget& console) { EXPECT_TRUE(console.findChild<QWidget*>(QStringLiteral("fraPrint_0"))->isVisible()); });
    EXPECT_TRUE(acted);
}

TEST_F(PrintDoorTest, AfterAFailureAmidASheetTheGameIsEditedSavedAndLeft) {
    desktop.onPump = [] { ErrRaise(ErrNumber::kOutOfMemory, QStringLiteral("Out of memory")); };
    PrintNews([this](QWidget&) { desktop.onPump = nullptr; });
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_TRUE(window->isEnabled());
    Edit(QStringLiteral("Chair"));
    EXPECT_TRUE(HasAutosave());
    ChooseMenu("mnuFile_2");
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Ours.gam"))).contains("Chair"));
    EXPECT_THROW(window->close(), ProgramEnded);
    EXPECT_FALSE(HasAutosave()) << "nothing is left to be rescued";
}

TEST_F(PrintDoorTest, TheColourOfSetupIsTheInkAtOnce) {
    const auto choose = [this](const char* blue, bool defaults) {
        ModalSteps person;
        person.In("frmColor", [&](QWidget& setup) {
            auto& box = ::Find<QCheckBox>(setup, "chkUseDefaults");
            if (box.isChecked() != defaults) box.click();
            if (!defaults) ::Find<QLineEdit>(setup, "txtColor_2").setText(QString::fromLatin1(blue));
            ::Find<QLineEdit>(setup, "txtColor_2").setFocus();
            ClickIn(setup, "cmdOK");
        });
        ChooseMenu("mnuView_8");
        return basTAVL::g_lPrintBlack();
    };
    EXPECT_EQ(choose("60", false), Color::Rgb(10, 10, 60));
    EXPECT_EQ(choose("", true), Color::Black()) << "the kit's own again";
}
