// SPDX-License-Identifier: MIT
// Starts that something is in the way of, and starts that are asked to open a game.
#include "AppFixture.h"
#include "support/Waiting.h"

#include "app/frmAbout.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"

#include <QDialog>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

const QString kSaved = QStringLiteral("As saved");
const QString kKept = QStringLiteral("As autosaved");

class StartTroubleTest : public AppTest {
protected:
    /// A game that the next start opens as the last one.
    QString MakeLastGame() const {
        WriteGame(QStringLiteral("Mine.gam"), kSaved);
        SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
        return InGames(QStringLiteral("Mine.gam"));
    }
    void MakeAutosave() const {
        WriteGame(QStringLiteral("~AutoSave.dat"), kKept, InGames(QStringLiteral("Mine.gam")));
    }
    void ExpectWholeStart() const {
        EXPECT_EQ(window->windowTitle(),
                  QStringLiteral("Tavlora: ") + window->Commands().InHand().GameName() + QStringLiteral("[*]"));
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(window->Commands().LoadResult(), 0);
        for (const QWidget* top : QApplication::topLevelWidgets())
            EXPECT_FALSE(top->objectName() == QStringLiteral("frmAbout") && top->isVisible())
                << "the splash still stands";
    }
    /// A start that ends at the moment when it reads a file.
    void BreakOffAtReading(const QString& path) {
        Files::SetFaultHook([path](Files::Operation operation, const QString& at) -> std::optional<QString> {
            if (operation == Files::Operation::OpenRead && at == path) throw ProgramEnded(1);
            return std::nullopt;
        });
        EXPECT_THROW(Start(), ProgramEnded);
        Files::SetFaultHook({});
        desktop.boxes.clear();
    }
    int TimesLoaded(const QString& name) const {
        return int(Log().count(QStringLiteral("Load Game Named: ") + InGames(name)));
    }
};

TEST_F(StartTroubleTest, RentsThatEndTooSoonEndTheProgramBeforeItShowsABoard) {
    QDir(folder.path()).mkdir(QStringLiteral("program"));
    const QList<QByteArray> rows = ReadFile(QStringLiteral(TAVLORA_DATA_DIR "/Rents_US.dat")).split('\n');
    const QString rents = WriteFile(QStringLiteral("program/Rents.dat"), rows.mid(0, 27).join('\n'));
    Folders::SetProgramDirectory(PathOf(QStringLiteral("program")));
    // The first box comes while the window is being made: its pictures lie where nothing but the rents does.
    desktop.onBox = [this] { EXPECT_FALSE(window && window->isVisible()); };
    EXPECT_THROW(Start(), ProgramEnded);
    EXPECT_FALSE(window->isVisible());
    ASSERT_FALSE(desktop.boxes.isEmpty());
    EXPECT_EQ(desktop.boxes.last().sText,
              QStringLiteral("Row #27 was not found where expected in the file named '") + rents +
                  QStringLiteral("'. \r\n\r\nSince we cannot get the rent values, the program is being terminated. "
                                 "\r\n\r\nTo correct this problem, you may have to reinstall the software. "));
}

TEST_F(StartTroubleTest, ALogIsKeptUpTo60000BytesAndDeletedBeyond) {
    const QString head = QStringLiteral("Log File Started");
    WriteFile(QStringLiteral("games/tavlora.log"), QByteArray(60000, 'x'));
    Start();
    EXPECT_TRUE(Log().startsWith(QString(60000, u'x')));
    EXPECT_TRUE(Log().contains(head)) << "it goes on behind";
    WriteFile(QStringLiteral("games/tavlora.log"), QByteArray(60001, 'x'));
    Start();
    EXPECT_FALSE(Log().contains(QStringLiteral("xxx")));
    EXPECT_TRUE(Log().contains(head));
}

TEST_F(StartTroubleTest, FoldersInPlaceOfTheAutosaveHoldUpNothing) {
    MakeLastGame();
    QDir games(PathOf(QStringLiteral("games")));
    ASSERT_TRUE(games.mkdir(QStringLiteral("~AutoSave.dat")) && games.mkdir(QStringLiteral("~AutoSave.bak")));
    Start();
    ExpectWholeStart();
    EXPECT_EQ(TextOfSpace4(), kSaved);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    Edit(QStringLiteral("One"));
    ASSERT_EQ(desktop.boxes.size(), 1) << "the work is kept nowhere, which has to be known";
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("It is a folder, not a file")));
    ChooseMenu("mnuFile_3");
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Mine.gam"))).contains("\"One\""));
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(StartTroubleTest, FolderInPlaceOfTheBackupLeavesTheAutosaveAtWork) {
    MakeLastGame();
    ASSERT_TRUE(QDir(PathOf(QStringLiteral("games"))).mkdir(QStringLiteral("~AutoSave.bak")));
    Start();
    Edit(QStringLiteral("One"));
    Edit(QStringLiteral("Two"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("~AutoSave.dat"))).contains("\"Two\""));
}

TEST_F(StartTroubleTest, DamagedAutosavesThatCantBeDeletedLeaveAWholeWindow) {
    MakeLastGame();
    WriteFile(QStringLiteral("games/~AutoSave.dat"), "damaged");
    WriteFile(QStringLiteral("games/~AutoSave.bak"), "damaged");
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Remove) return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    Start();
    Files::SetFaultHook({});
    EXPECT_EQ(TextOfSpace4(), kSaved);
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Mine.gam")));
    EXPECT_TRUE(window->windowTitle().contains(QStringLiteral("Mine.gam")));
    for (const QWidget* top : QApplication::topLevelWidgets())
        EXPECT_FALSE(top->objectName() == QStringLiteral("frmAbout") && top->isVisible()) << "the splash still stands";
}

#ifdef Q_OS_UNIX
TEST_F(StartTroubleTest, PipesInPlaceOfLogAndSettingsHoldUpNothing) {
    SetIni(QStringLiteral("ShowSplash"), QStringLiteral("false"));
    ASSERT_EQ(mkfifo(qPrintable(InGames(QStringLiteral("tavlora.log"))), 0600), 0);
    Start();
    ExpectWholeStart();
    EXPECT_TRUE(desktop.boxes.isEmpty());
    ASSERT_TRUE(QFile::remove(InGames(QStringLiteral("tavlora.ini"))));
    ASSERT_EQ(mkfifo(qPrintable(InGames(QStringLiteral("tavlora.ini"))), 0600), 0);
    WithModal("frmPrintManual", [](QWidget&) {});
    Start(QStringLiteral("tavlora"), QString());
    ExpectWholeStart();
    EXPECT_TRUE(desktop.boxes.isEmpty());
}
#endif

TEST_F(StartTroubleTest, ReadOnlyLogHoldsUpNothing) {
    MakeLastGame();
    MakeAutosave();
    WriteFile(QStringLiteral("games/tavlora.log"), "older\r\n");
    Files::SetFaultHook([](Files::Operation operation, const QString& path) -> std::optional<QString> {
        if (operation == Files::Operation::OpenAppend && path.endsWith(QStringLiteral(".log")))
            return QStringLiteral("Permission denied");
        return std::nullopt;
    });
    Start();
    ExpectWholeStart();
    EXPECT_EQ(desktop.boxes.size(), 1) << "what has been recovered";
    Edit(QStringLiteral("One"));
    ChooseMenu("mnuFile_3");
    EXPECT_THROW(window->Form_Unload(), ProgramEnded);
    Files::SetFaultHook({});
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Mine.gam"))).contains("\"One\""));
    EXPECT_EQ(Log(), QStringLiteral("older\r\n"));
}

TEST_F(StartTroubleTest, LastGameThatEndedAStartIsAskedAboutByTheNext) {
    const QString game = MakeLastGame();
    BreakOffAtReading(game);
    desktop.answers = {vbYes};
    Start();
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(
        desktop.boxes[0].sText,
        QStringLiteral("The last start of Tavlora broke off while it was opening the game 'Mine.gam'. Open it again?"));
    EXPECT_EQ(TextOfSpace4(), kSaved);
    Start();
    EXPECT_EQ(desktop.boxes.size(), 1) << "it went well since";
}

TEST_F(StartTroubleTest, LastGameThatEndedAStartStaysClosedAfterANo) {
    BreakOffAtReading(MakeLastGame());
    desktop.answers = {vbNo};
    Start();
    ExpectWholeStart();
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game1.gam")));
    EXPECT_TRUE(HasFile(QStringLiteral("Mine.gam")));
    Start();
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game1.gam"))) << "nor later, unasked";
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(StartTroubleTest, AutosaveThatEndedAStartIsPutAsideAfterANo) {
    MakeLastGame();
    MakeAutosave();
    BreakOffAtReading(InGames(QStringLiteral("~AutoSave.dat")));
    const QByteArray autosave = ReadFile(InGames(QStringLiteral("~AutoSave.dat")));
    desktop.answers = {vbNo};
    Start();
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("The last start of Tavlora broke off while it was opening what it had kept of your last "
                             "game. Open it again? If not, it stays in My Games as 'Rescued ~AutoSave.dat'."));
    ExpectWholeStart();
    EXPECT_EQ(TextOfSpace4(), kSaved);
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Rescued ~AutoSave.dat"))), autosave);
    EXPECT_FALSE(HasAutosave());
}

// As from a stranger's mail: it used to end the program, at each start again.
TEST_F(StartTroubleTest, LettersWithoutASizeAreToldAndEndNoStart) {
    const QString game = MakeLastGame();
    QByteArray bytes = ReadFile(game);
    const qsizetype record = bytes.indexOf("\r\n4, ") + 2;
    bytes.replace(record, bytes.indexOf("\r\n", record) - record, "4, \"t\", \"\", 0, 0, 0, \"Arial\",B,0");
    WriteFile(QStringLiteral("games/Mine.gam"), bytes);
    for (int start = 0; start < 2; ++start) {
        desktop.boxes.clear();
        Start();
        ASSERT_EQ(desktop.boxes.size(), 1);
        EXPECT_TRUE(desktop.boxes[0].sText.contains(game));
        EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("loading line number 4")));
        EXPECT_TRUE(window->isVisible());
        EXPECT_FALSE(desktop.ended);
    }
    // And what stands in hand can be edited.
    Edit(QStringLiteral("One"));
    EXPECT_FALSE(desktop.ended);
}

TEST_F(StartTroubleTest, GoodGameByDoubleClickComesPastTheOneThatEndsEachStart) {
    BreakOffAtReading(MakeLastGame());
    WriteGame(QStringLiteral("Other.gam"), QStringLiteral("Good"));
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), InGames(QStringLiteral("Other.gam")));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Good"));
}

TEST_F(StartTroubleTest, StartWithAGameOpensThatOneOnly) {
    MakeLastGame();
    WriteGame(QStringLiteral("Other.gam"), QStringLiteral("Asked for"));
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), InGames(QStringLiteral("Other.gam")));
    ExpectWholeStart();
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Asked for"));
    EXPECT_EQ(TimesLoaded(QStringLiteral("Mine.gam")), 0);
    EXPECT_EQ(TimesLoaded(QStringLiteral("Other.gam")), 1);
    EXPECT_EQ(Ini("GameName"), InGames(QStringLiteral("Other.gam")));
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(StartTroubleTest, StartWithAGameOffersWhatACrashLeftFirst) {
    MakeLastGame();
    MakeAutosave();
    WriteGame(QStringLiteral("Other.gam"), QStringLiteral("Asked for"));
    desktop.answers = {vbOK, vbCancel};
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), InGames(QStringLiteral("Other.gam")));
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_TRUE(desktop.boxes[0].sText.startsWith(QStringLiteral("An Autosave version of a previous game")));
    EXPECT_EQ(desktop.boxes[1].sTitle, QStringLiteral("Save Changes"));
    EXPECT_EQ(TextOfSpace4(), kKept);
    desktop.answers = {vbOK, vbYes};
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), InGames(QStringLiteral("Other.gam")));
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Asked for"));
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Mine.gam"))).contains(kKept.toUtf8()));
}

TEST_F(StartTroubleTest, StartWithTheGameThatACrashLeftAsksNothingMore) {
    const QString game = MakeLastGame();
    MakeAutosave();
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), game);
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(TextOfSpace4(), kKept);
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
}

TEST_F(StartTroubleTest, StartWithAGameThatCantBeOpenedSaysSoAndGoesOnWithTheLastOne) {
    MakeLastGame();
    WriteFile(QStringLiteral("games/Bad.gam"), "nonsense\r\n");
    for (const char* name : {"Bad.gam", "Gone.gam"}) {
        desktop.boxes.clear();
        Start(QStringLiteral("tavlora"), QStringLiteral("false"), InGames(QString::fromLatin1(name)));
        ASSERT_EQ(desktop.boxes.size(), 1);
        EXPECT_TRUE(desktop.boxes[0].sText.contains(QString::fromLatin1(name)));
        ExpectWholeStart();
        EXPECT_EQ(TextOfSpace4(), kSaved);
        EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Mine.gam")));
    }
}

class StartRequestsTest : public StartTroubleTest {
protected:
    StartRequestsTest() {
        for (const char* name : {"First.gam", "Second.gam", "Third.gam"})
            WriteGame(QString::fromLatin1(name), QString::fromLatin1(name));
    }
    void Ask(const char* name) const { window->CalledByAnotherStart(InGames(QString::fromLatin1(name))); }
    /// Lets events run until the game is there.
    static bool Comes(const char* name) {
        return ::Comes([name] { return TextOfSpace4() == QString::fromLatin1(name); });
    }
};

TEST_F(StartRequestsTest, LastRequestDuringTheStartCountsAndIsTheOnlyGameLoaded) {
    MakeLastGame();
    class Calling : public TestDesktop {
    public:
        explicit Calling(std::function<void()> call) : m_call(std::move(call)) {}
        void Sleep(int) override { m_call(); }

    private:
        std::function<void()> m_call;
    } calling([this] {
        Ask("Second.gam");
        Ask("Third.gam");
        window->CalledByAnotherStart(QString());
    });
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), InGames(QStringLiteral("First.gam")));
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Third.gam"));
    for (const char* name : {"Mine.gam", "First.gam", "Second.gam"})
        EXPECT_EQ(TimesLoaded(QString::fromLatin1(name)), 0) << name;
    EXPECT_EQ(TimesLoaded(QStringLiteral("Third.gam")), 1);
}

TEST_F(StartRequestsTest, RequestsThatCannotBeFilledYetBringOneBoxAndTheLastIsOpenedAfterwards) {
    MakeLastGame();
    Start();
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    // The box stands as long as nobody closes it; meanwhile others start the program again and again.
    class Standing : public TestDesktop {
    public:
        int MsgBox(const QString& text, int style, const QString& title) override {
            const int answer = TestDesktop::MsgBox(text, style, title);
            if (onBox) onBox();
            return answer;
        }
        std::function<void()> onBox;
    } standing;
    standing.onBox = [this] {
        Ask("Second.gam");
        Ask("Third.gam");
    };
    Ask("First.gam");
    EXPECT_EQ(standing.Texts(),
              QStringList{QStringLiteral("The game opens as soon as you have closed the window you are working in.")});
    QTest::qWait(500);
    EXPECT_EQ(TextOfSpace4(), kSaved) << "somebody is at work";
    dialog.close();
    EXPECT_TRUE(Comes("Third.gam"));
    EXPECT_EQ(TimesLoaded(QStringLiteral("First.gam")) + TimesLoaded(QStringLiteral("Second.gam")), 0);
    EXPECT_EQ(standing.boxes.size(), 1);
}

TEST_F(StartRequestsTest, RequestWhileAPageIsPrintedWaitsForItsEnd) {
    MakeLastGame();
    Start();
    window->SetInPrint(true);
    Ask("First.gam");
    QTest::qWait(500);
    EXPECT_EQ(TextOfSpace4(), kSaved);
    window->SetInPrint(false);
    EXPECT_TRUE(Comes("First.gam"));
}

} // namespace
