// SPDX-License-Identifier: MIT
// The start of the program, its windows, and its end.
#include "AppFixture.h"

#include "app/frmAbout.h"
#include "app/frmPrintManual.h"
#include "kit/GameKit.h"

#include <QDesktopServices>
#include <QLabel>
#include <QTextBrowser>
#include <QUrl>

namespace {

const QString kAutosaveFound =
    QStringLiteral("An Autosave version of a previous game has been found on your disk. This game is being loaded.");
const QString kBackupFound = QStringLiteral(
    "The backup of an autosave version of a previous game has been found on your disk. This game is being loaded.");

QString TextOf(const QWidget& window, const char* name) {
    const auto* const label = window.findChild<QLabel*>(QString::fromLatin1(name));
    return label ? label->text() : QString();
}

bool Shows(const QWidget& window, const char* name) {
    const auto* const button = window.findChild<QPushButton*>(QString::fromLatin1(name));
    return button && button->isVisible();
}

QString CaptionOf(const QWidget& window, const char* name) {
    const auto* const button = window.findChild<QPushButton*>(QString::fromLatin1(name));
    return button ? button->text().remove(u'&') : QString();
}

class StartUpTest : public AppTest {
protected:
    static QUrl HelpPage() { return QUrl::fromLocalFile(QStringLiteral(TAVLORA_DATA_DIR "/guide/index.html")); }
    static QString HelpAddress() {
        const QString named = QStringLiteral(TAVLORA_HELP_URL);
        return named.isEmpty() ? HelpPage().toString() : named;
    }
};

TEST_F(StartUpTest, Edge_NameTavlora2aIsVariant2AAndTheIniChangesTheVariantButNotTheColours) {
    Start(QStringLiteral("Tavlora2a"));
    EXPECT_EQ(basTAVL::g_sGameVersion(), QStringLiteral("2A"));
    EXPECT_EQ(basTAVL::g_oMoney(1).BackColor, Color::White());
    EXPECT_EQ(basTAVL::g_lPrintYellow(), Color::White());
    EXPECT_EQ(Ini("GameVersion"), QStringLiteral("2A"));
    SetIni(QStringLiteral("GameVersion"), QStringLiteral("5"));
    Start(QStringLiteral("Tavlora2a"));
    EXPECT_EQ(basTAVL::g_sGameVersion(), QStringLiteral("5"));
    EXPECT_EQ(basTAVL::g_oMoney(1).BackColor, Color::White());
    EXPECT_EQ(basTAVL::g_lPrintRed(), Color::White());
    EXPECT_EQ(basTAVL::g_lPrintBlack(), Color::FromValue(657930));
}

TEST_F(StartUpTest, Edge_OnlyTheWordFalseInAnyCaseMeansTheShortSplash) {
    Start(QStringLiteral("tavlora"), QStringLiteral("FALSE"));
    EXPECT_EQ(desktop.slept, 3000);
    desktop.slept = 0;
    for (const char* word : {"True", "no", "0", "falsee"}) {
        bool welcomed = false;
        WithModal("frmPrintManual", [&](QWidget&) { welcomed = true; });
        Start(QStringLiteral("tavlora"), QString::fromLatin1(word));
        EXPECT_TRUE(welcomed) << word;
        EXPECT_EQ(desktop.slept, 0) << word;
    }
}

TEST_F(StartUpTest, Edge_UnreadableAutosaveIsFollowedByItsBackup) {
    WriteFile(QStringLiteral("games/~AutoSave.dat"), "\"SomethingElse\"\r\n");
    WriteGame(QStringLiteral("~AutoSave.bak"), QStringLiteral("Kept"), InGames(QStringLiteral("Mine.gam")));
    Start();
    // The complaint about the unreadable one stands between the two.
    ASSERT_EQ(desktop.boxes.size(), 3);
    EXPECT_EQ(desktop.boxes[0].sText, kAutosaveFound);
    EXPECT_EQ(desktop.boxes[1].iStyle, vbCritical);
    EXPECT_EQ(desktop.boxes[1].sText,
              QStringLiteral("The following error occurred while trying to load the game to the file named '") +
                  InGames(QStringLiteral("~AutoSave.dat")) +
                  QStringLiteral("'.\r\n\r\nLoading File Is Not Compatible\r\n\r\nThe problem occurred while checking "
                                 "file type. The file was NOT successfully processed. "));
    EXPECT_EQ(desktop.boxes[2].sText, kBackupFound);
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Kept"));
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Mine.gam")));
}

TEST_F(StartUpTest, Edge_LoadedAutosaveCountsAsUnsavedChanges) {
    WriteGame(QStringLiteral("~AutoSave.dat"), QStringLiteral("Kept"), InGames(QStringLiteral("Mine.gam")));
    Start();
    EXPECT_EQ(desktop.Texts(), QStringList{kAutosaveFound});
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(window->windowTitle(),
              QStringLiteral("Tavlora: ") + InGames(QStringLiteral("Mine.gam")) + QStringLiteral("[*]"));
    EXPECT_TRUE(HasAutosave());
}

TEST_F(StartUpTest, Edge_EightBitsOfColourBringAWarningOf256AndNineNone) {
    Screen::PretendBitsPerPixel(8);
    Start();
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Your system is currently set to display only 256 colors. Please use a display properties "
                             "setting that shows more than 256 colors. If this is not possible, please select only "
                             "monochrome images for your game. Even then, your printed output might be "
                             "unsatisfactory."));
    desktop.boxes.clear();
    Screen::PretendBitsPerPixel(9);
    Start();
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(StartUpTest, FreshHomeGetsSamplesDefaultsAndANewGame) {
    Start();
    for (const char* name : {"Blank.gam", "Family.gam", "Generic.gam", "Person.gam", "Town.gam", "MoneyBg.bmp"})
        EXPECT_TRUE(HasFile(QString::fromLatin1(name))) << name;
    const struct {
        const char* key;
        const char* value;
    } defaults[] = {{"GameVersion", "8"},
                    {"GoodNewsColor", "00FFFFFF"},
                    {"PrintYellowColor", "00FFFF00"},
                    {"PrintRedColor", "00FF0000"},
                    {"PrintBlackColor", "00000000"}};
    for (const auto& entry : defaults)
        EXPECT_EQ(Ini(entry.key), QString::fromLatin1(entry.value)) << entry.key;
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game1.gam")));
    EXPECT_FALSE(HasFile(QStringLiteral("Game1.gam"))) << "in memory only until it is saved";
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
    EXPECT_EQ(window->Commands().LoadResult(), 0);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(StartUpTest, LogTellsTheStartAndTheEnd) {
    Start(QStringLiteral("Tavlora5"));
    EXPECT_TRUE(Log().contains(QStringLiteral("Starting Tavlora Version 6 running as TAVLORA5")));
    EXPECT_THROW(window->Form_Unload(), ProgramEnded);
    EXPECT_TRUE(Log().contains(QStringLiteral("Normal Termination")));
}

TEST_F(StartUpTest, VariantFollowsTheNameOfTheProgram) {
    const struct {
        const char* name;
        const char* variant;
    } names[] = {{"tavlora", "8"},  {"Tavlora8", "8"},   {"tavlora5", "5"},  {"TAVLORA5x", "5"},
                 {"tavlora2", "2"}, {"tavlora2a", "2A"}, {"something", "8"}, {"", "8"}};
    for (const auto& entry : names)
        EXPECT_EQ(GameKit::VariantOf(QString::fromLatin1(entry.name)), QString::fromLatin1(entry.variant))
            << entry.name;
}

TEST_F(StartUpTest, KitsDifferInStickersAndColours) {
    Start();
    EXPECT_DOUBLE_EQ(basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth), 1.36);
    EXPECT_DOUBLE_EQ(basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight), 2.125);
    EXPECT_EQ(basTAVL::g_oMoney(0).BackColor, Color::Rgb(0xC7, 0xC7, 0xE8));
    EXPECT_EQ(basTAVL::g_oTokens(4).BackColor, Color::Rgb(0xE7, 0x78, 0x17));
    EXPECT_EQ(basTAVL::g_lPrintBack(), Color::Rgb(0xB6, 0xDD, 0xC7));
    EXPECT_EQ(basTAVL::g_lMagicColor(), Color::Rgb(224, 255, 224));
    EXPECT_EQ(basTAVL::g_vCurrencySign(), QStringLiteral("$"));
    Start(QStringLiteral("tavlora5"));
    EXPECT_DOUBLE_EQ(basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth), 1.65);
    EXPECT_DOUBLE_EQ(basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight), 1.83);
    EXPECT_DOUBLE_EQ(basTAVL::g_dblLabelSizes(basTAVL::kCornerSide), 2.125);
    EXPECT_EQ(basTAVL::g_oTokens(0).BackColor, Color::Rgb(0xDA, 0x25, 0x1D));
}

TEST_F(StartUpTest, BothDecksTakeTheOneColourOfTheSettings) {
    SetIni(QStringLiteral("GoodNewsColor"), QStringLiteral("00112233"));
    Start();
    EXPECT_EQ(basTAVL::g_lNewsColor(0), Color::Rgb(0x11, 0x22, 0x33));
    EXPECT_EQ(basTAVL::g_lNewsColor(1), Color::Rgb(0x11, 0x22, 0x33));
}

TEST_F(StartUpTest, StartGoesOnWholeWithSettingsThatCantBeRead) {
    WriteGame(QStringLiteral("~AutoSave.dat"), QStringLiteral("Kept"), InGames(QStringLiteral("Mine.gam")));
    const struct {
        const char* key;
        const char* value;
    } bad[] = {{"PrintRedColor", "red"}, {"PrintBlackAs", "dark"}, {"GoodNewsColor", "#FFF"}};
    for (const auto& setting : bad)
        SetIni(QString::fromLatin1(setting.key), QString::fromLatin1(setting.value));
    Start();
    ASSERT_EQ(desktop.boxes.size(), 4);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(desktop.boxes[i].sText.contains(
            QStringLiteral("the setting '%1', which is '%2',")
                .arg(QString::fromLatin1(bad[i].key), QString::fromLatin1(bad[i].value))))
            << desktop.boxes[i].sText.toStdString();
        EXPECT_EQ(Ini(bad[i].key), QString::fromLatin1(bad[i].value)) << "the user's to mend";
    }
    EXPECT_EQ(desktop.boxes[3].sText, kAutosaveFound);
    EXPECT_EQ(basTAVL::g_lPrintRed(), Color::Rgb(255, 0, 0));
    EXPECT_EQ(basTAVL::g_lPrintBlack(), Color::Black());
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Kept"));
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Mine.gam")));
}

TEST_F(StartUpTest, LastGameIsOpenedAgainAndAMissingOneIsReplacedByANewOne) {
    WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("Mine!"));
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    Start();
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Mine!"));
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Gone.gam")));
    Start();
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game1.gam")));
}

TEST_F(StartUpTest, UnreadableLastGameIsToldAndTheProgramStandsAllTheSame) {
    WriteFile(QStringLiteral("games/Bad.gam"), "nonsense\r\n");
    SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Bad.gam")));
    Start();
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].iStyle, vbCritical);
    EXPECT_EQ(window->Commands().LoadResult(), -1);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(StartUpTest, SplashShowsThatItIsLoadingWithoutAButton) {
    bool seen = false;
    class Watching : public TestDesktop {
    public:
        explicit Watching(bool& flag) : m_flag(flag) {}
        void Sleep(int) override {
            for (const QWidget* top : QApplication::topLevelWidgets()) {
                if (top->objectName() != QStringLiteral("frmAbout")) continue;
                m_flag = top->isVisible() && !Shows(*top, "cmdOK") &&
                         top->findChild<QLabel*>(QStringLiteral("lblLoading"))->isVisible();
                EXPECT_EQ(TextOf(*top, "lblLoading"), QStringLiteral("Loading . . ."));
            }
        }

    private:
        bool& m_flag;
    } watching(seen);
    Start();
    EXPECT_TRUE(seen);
    EXPECT_FALSE(window->View().IsNoRedraw());
    for (const QWidget* top : QApplication::topLevelWidgets())
        EXPECT_FALSE(top->objectName() == QStringLiteral("frmAbout") && top->isVisible());
}

TEST_F(StartUpTest, WelcomeWindowOffersTwoAnswersAndRemembersThatItWasPrinted) {
    WithModal("frmPrintManual", [](QWidget& modal) {
        EXPECT_EQ(modal.windowTitle(), QStringLiteral("Tavlora"));
        EXPECT_EQ(TextOf(modal, "Label1"), QStringLiteral("Welcome to Tavlora"));
        EXPECT_EQ(TextOf(modal, "Label2"),
                  QStringLiteral("If you have not already done so, please print the assembly instructions that are "
                                 "available on your cd-rom or at ") +
                      HelpAddress());
        EXPECT_TRUE(QFileInfo(HelpPage().toLocalFile()).isFile()) << "an address that leads somewhere";
        EXPECT_FALSE(Shows(modal, "cmdOK"));
        EXPECT_TRUE(Shows(modal, "cmdAlreadyPrintedIt"));
        EXPECT_EQ(CaptionOf(modal, "cmdAlreadyPrintedIt"), QStringLiteral("Already printed it"));
        EXPECT_EQ(CaptionOf(modal, "cmdDoNotPrint"), QStringLiteral("Not now. Maybe later"));
        ClickIn(modal, "cmdDoNotPrint");
    });
    Start(QStringLiteral("tavlora"), QString());
    EXPECT_EQ(Ini("ShowSplash"), QStringLiteral("True"));
    WithModal("frmPrintManual", [](QWidget& modal) { ClickIn(modal, "cmdAlreadyPrintedIt"); });
    Start(QStringLiteral("tavlora"), QString());
    EXPECT_EQ(Ini("ShowSplash"), QStringLiteral("False"));
}

// The platform of the tests has no browser.
TEST_F(StartUpTest, WithoutABrowserTheInstructionsAreToldByTheirPlace) {
    Start();
    WithModal("frmPrintManual", [this](QWidget& modal) {
        ClickIn(modal, "cmdShowPage");
        EXPECT_EQ(desktop.Texts(),
                  QStringList{QStringLiteral("No web browser was found on this computer. The instructions are in this "
                                             "file:\r\n\r\n%1\r\n\r\nA browser on any other computer shows them too.")
                                  .arg(HelpPage().toLocalFile())});
    });
    ChooseMenu("mnuHelp_1");
}

TEST_F(StartUpTest, InstructionsAreShownFromThisMachine) {
    QTextBrowser browser;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &browser, "setSource");
    Start();
    WithModal("frmPrintManual", [](QWidget& modal) { ClickIn(modal, "cmdShowPage"); });
    ChooseMenu("mnuHelp_1");
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    EXPECT_EQ(browser.source(), HelpPage());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(StartUpTest, HelpWindowBringsTheWelcomeBack) {
    Start();
    WithModal("frmPrintManual", [](QWidget& modal) {
        EXPECT_EQ(TextOf(modal, "Label1"), QStringLiteral("Assembly Instructions"));
        EXPECT_EQ(TextOf(modal, "Label2"),
                  QStringLiteral("Assembly instructions are available on your cd-rom or at ") + HelpAddress());
        EXPECT_FALSE(Shows(modal, "cmdDoNotPrint"));
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    ChooseMenu("mnuHelp_1");
    EXPECT_EQ(Ini("ShowSplash"), QStringLiteral("True"));
}

TEST_F(StartUpTest, AboutTellsTheVersionInTwoPartsAndOnAClickInThree) {
    Start();
    const QString version = QStringLiteral("Version %1.%2").arg(TAVLORA_VERSION_MAJOR).arg(TAVLORA_VERSION_MINOR);
    for (const char* item : {"mnuHelp_0", "mnuView_9"}) {
        WithModal("frmAbout", [&](QWidget& modal) {
            EXPECT_EQ(TextOf(modal, "lblVersion"), version);
            EXPECT_FALSE(TextOf(modal, "lblWarning").isEmpty());
            QTest::mouseClick(modal.findChild<QLabel*>(QStringLiteral("lblVersion")), Qt::LeftButton);
            ClickIn(modal, "cmdOK");
        });
        ChooseMenu(item);
    }
    const QString full = version + QStringLiteral(".%1").arg(TAVLORA_VERSION_REVISION);
    EXPECT_EQ(desktop.Texts(), (QStringList{full, full}));
}

TEST_F(StartUpTest, WindowOfASmallScreenIsNoWiderThanItsBoardNeeds) {
    frmTAVL unsized(routes);
    unsized.show();
    EXPECT_GT(unsized.View().Board().width(), 400);
    EXPECT_LT(unsized.width() - unsized.View().Board().width(), 80);
    EXPECT_LE(unsized.height(), 600);
}

TEST_F(StartUpTest, WindowStaysWithinTheScreen) {
    Start();
    const QRect area = Screen::FreeArea();
    EXPECT_TRUE(area.contains(window->frameGeometry())) << window->width() << ' ' << window->height();
}

} // namespace
