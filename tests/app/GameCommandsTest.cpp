// SPDX-License-Identifier: MIT
// New, Open, Save, Save As, the autosave and the question about unsaved changes.
#include "AppFixture.h"

#include "game/GameNames.h"
#include "game/SampleGames.h"
#include "platform/files/Folders.h"

namespace {

const QString kQuestion = QStringLiteral("Do you want to save the changes pending on the current game.?");

// What another start does while this one still shows its splash.
class CallWhileLoading : public TestDesktop {
public:
    explicit CallWhileLoading(std::function<void()> call) : m_call(std::move(call)) {}
    void Sleep(int) override { m_call(); }

private:
    std::function<void()> m_call;
};

class GameCommandsTest : public AppTest {
protected:
    /// The next file dialog is closed with this name.
    void AnswerDialog(const QString& path) {
        desktop.onDialog = [this, path](CommonDialog& dialog) {
            asked = dialog;
            dialog.sFileName = path;
            return !path.isEmpty();
        };
    }
    void StartWith(const QString& name) {
        WriteGame(name, QStringLiteral("As saved"));
        SetIni(QStringLiteral("GameName"), InGames(name));
        Start();
    }
    /// Of space 4 in a file of the games' folder, as it stands there.
    QByteArray SavedText(const char* file) const {
        const QList<QByteArray> lines = ReadFile(InGames(QString::fromLatin1(file))).split('\n');
        // The head, the titles and the heads of the news stand above the spaces.
        return lines.size() > 7 ? lines[7].split('"').value(1) : QByteArray();
    }
    CommonDialog asked;
};

TEST_F(GameCommandsTest, Edge_SampleOfTheUserIsNeverReplaced) {
    WriteFile(QStringLiteral("games/Blank.gam"), "mine");
    basErrLog::ErrInit(60000);
    basTAVL::CopySampleGames();
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Blank.gam"))), "mine");
    EXPECT_TRUE(HasFile(QStringLiteral("Town.gam")));
}

TEST_F(GameCommandsTest, WhateverBearsTheNameOfASampleIsLeftAlone) {
    WriteFile(QStringLiteral("games/Town.gam"), "");
    WriteFile(QStringLiteral("games/blank.gam"), "mine");
    basErrLog::ErrInit(60000);
    basTAVL::CopySampleGames();
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Town.gam"))), QByteArray()) << "somebody may just be filling it";
    EXPECT_FALSE(HasFile(QStringLiteral("Blank.gam"))) << "it stands there in another spelling";
}

TEST_F(GameCommandsTest, Edge_NewGameTakesTheFirstFreeNumber) {
    WriteGame(QStringLiteral("Game1.gam"), QStringLiteral("One"));
    WriteGame(QStringLiteral("Game3.gam"), QStringLiteral("Three"));
    Start();
    ChooseMenu("mnuFile_0");
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game2.gam"))) << "a hole";
    WriteGame(QStringLiteral("Game2.gam"), QStringLiteral("Two"));
    ChooseMenu("mnuFile_0");
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game4.gam")));
    EXPECT_EQ(window->windowTitle(),
              QStringLiteral("Tavlora: ") + InGames(QStringLiteral("Game4.gam")) + QStringLiteral("[*]"));
}

TEST_F(GameCommandsTest, Edge_GameboardAsksForANameAtEverySave) {
    StartWith(QStringLiteral("Gameboard.gam"));
    int dialogs = 0;
    desktop.onDialog = [&](CommonDialog& dialog) {
        ++dialogs;
        dialog.sFileName = InGames(QStringLiteral("Gameboard.gam"));
        return true;
    };
    ChooseMenu("mnuFile_3");
    ChooseMenu("mnuFile_3");
    EXPECT_EQ(dialogs, 2);
}

TEST_F(GameCommandsTest, Edge_AutosaveComesWithTheFirstChangeItsBackupWithTheSecondAndASaveTakesBoth) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    EXPECT_EQ(SavedText("~AutoSave.dat"), "One");
    EXPECT_FALSE(HasBackup());
    EXPECT_TRUE(window->isWindowModified());
    Edit(QStringLiteral("Two"));
    EXPECT_EQ(SavedText("~AutoSave.dat"), "Two");
    EXPECT_EQ(SavedText("~AutoSave.bak"), "One");
    EXPECT_EQ(SavedText("Mine.gam"), "As saved");
    ChooseMenu("mnuFile_3");
    EXPECT_FALSE(HasAutosave());
    EXPECT_FALSE(HasBackup());
    EXPECT_FALSE(window->isWindowModified());
    Start();
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Two"));
}

TEST_F(GameCommandsTest, Edge_NoAtTheExitLeavesNothingToRecover) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    Edit(QStringLiteral("Two"));
    desktop.answers = {vbNo};
    EXPECT_THROW(window->close(), ProgramEnded);
    EXPECT_FALSE(HasAutosave());
    EXPECT_FALSE(HasBackup());
    desktop.boxes.clear();
    Start();
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("As saved"));
}

TEST_F(GameCommandsTest, Edge_CancelledSaveAsTouchesNeitherNameNorState) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    AnswerDialog(QString());
    ChooseMenu("mnuFile_4");
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Mine.gam")));
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    EXPECT_TRUE(HasAutosave());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

// The small board that is kept with a save is drawn elsewhere where the window shows a part of it only.
TEST_F(GameCommandsTest, ASaveLeavesTheDrawingLayerWithTheBoardThatIsSeen) {
    StartWith(QStringLiteral("Mine.gam"));
    const BoardView& view = window->View();
    int painted = 0;
    QObject::connect(&view, &BoardView::Painted, [&] { ++painted; });
    const struct {
        const char* menu;
        int zoom;
        int paintedAnew;
    } rows[] = {{"mnuZoom_0", 1, 0}, {"mnuZoom_2", 3, 1}};
    for (const auto& row : rows) {
        ChooseMenu(row.menu);
        Edit(QString::fromLatin1(row.menu));
        const int side = window->View().Board().width();
        EXPECT_EQ(basPosit::GetScale(), float(side * row.zoom));
        painted = 0;
        ChooseMenu("mnuFile_3");
        QCoreApplication::processEvents();
        EXPECT_EQ(painted, row.paintedAnew) << row.menu;
        EXPECT_EQ(basPosit::GetScale(), float(side * row.zoom)) << row.menu;
    }
}

TEST_F(GameCommandsTest, SaveAsWritesUnderTheNewNameAndTitle) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    AnswerDialog(InGames(QStringLiteral("Other.gam")));
    ChooseMenu("mnuFile_4");
    EXPECT_EQ(asked.sDialogTitle, QStringLiteral("Save Game Under New Name"));
    EXPECT_EQ(asked.sFileName, QStringLiteral("Game1.gam"));
    EXPECT_EQ(asked.sDefaultExt, QStringLiteral("gam"));
    EXPECT_TRUE(asked.bOverwritePrompt);
    EXPECT_TRUE(HasFile(QStringLiteral("Other.gam")));
    EXPECT_EQ(window->windowTitle(),
              QStringLiteral("Tavlora: ") + InGames(QStringLiteral("Other.gam")) + QStringLiteral("[*]"));
    EXPECT_EQ(Ini("GameName"), InGames(QStringLiteral("Other.gam")));
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
}

TEST_F(GameCommandsTest, BrokenFileDialogIsToldForSaveAndForOpen) {
    StartWith(QStringLiteral("Mine.gam"));
    desktop.onDialog = [](CommonDialog& dialog) {
        dialog.sError = QStringLiteral("No dialogs today");
        return false;
    };
    ChooseMenu("mnuFile_4");
    ChooseMenu("mnuFile_2");
    const QString message =
        QStringLiteral("The following error was encountered while processing the File Dialog: \r\n\r\nNo dialogs "
                       "today\r\n\r\nThe game was NOT saved.");
    EXPECT_EQ(desktop.Texts(), (QStringList{message, message}));
}

TEST_F(GameCommandsTest, OpenOffersTheCurrentGameUnlessItHasNoNameYet) {
    StartWith(QStringLiteral("Mine.gam"));
    AnswerDialog(QString());
    ChooseMenu("mnuFile_2");
    EXPECT_EQ(asked.sDialogTitle, QStringLiteral("Open Game"));
    EXPECT_EQ(asked.sFileName, QStringLiteral("Mine.gam"));
    EXPECT_EQ(QDir(asked.sInitDir), QDir(PathOf(QStringLiteral("games"))));
    ChooseMenu("mnuFile_0");
    ChooseMenu("mnuFile_2");
    EXPECT_EQ(asked.sFileName, QString());
}

TEST_F(GameCommandsTest, OpenedGameBecomesTheLastOne) {
    Start();
    AnswerDialog(InGames(QStringLiteral("Family.gam")));
    ChooseMenu("mnuFile_2");
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Leo's\r\nDesk"));
    EXPECT_EQ(Ini("GameName"), InGames(QStringLiteral("Family.gam")));
    EXPECT_TRUE(desktop.boxes.isEmpty()) << "its pictures are found";
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
}

TEST_F(GameCommandsTest, GameThatCantBeReadCountsAsChanged) {
    Start();
    WriteFile(QStringLiteral("games/Bad.gam"), "nonsense\r\n");
    AnswerDialog(InGames(QStringLiteral("Bad.gam")));
    ChooseMenu("mnuFile_2");
    EXPECT_EQ(window->Commands().LoadResult(), -1);
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Bad.gam")));
}

TEST_F(GameCommandsTest, QuestionAboutChangesFollowsItsTable) {
    StartWith(QStringLiteral("Mine.gam"));
    bool ok = false;
    window->Commands().OkToEndProgram(ok);
    EXPECT_TRUE(ok);
    EXPECT_TRUE(desktop.boxes.isEmpty()) << "nothing to ask about";

    Edit(QStringLiteral("One"));
    desktop.answers = {vbCancel};
    window->Commands().OkToEndProgram(ok);
    EXPECT_FALSE(ok);
    EXPECT_TRUE(HasAutosave());
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText, kQuestion);
    EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Save Changes"));
    EXPECT_EQ(desktop.boxes[0].iStyle & 0xF, vbYesNoCancel);

    desktop.answers = {vbNo};
    window->Commands().OkToEndProgram(ok);
    EXPECT_TRUE(ok);
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved()) << "the change stays until the next load";
    EXPECT_FALSE(HasAutosave());

    desktop.answers = {vbYes};
    window->Commands().OkToEndProgram(ok);
    EXPECT_TRUE(ok);
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Mine.gam"))).contains("\"One\""));

    Edit(QStringLiteral("Two"));
    desktop.answers = {99};
    EXPECT_THROW(window->Commands().OkToEndProgram(ok), ProgramEnded);
    EXPECT_TRUE(desktop.boxes.last().sText.contains(QStringLiteral("Unexpected Response")));
}

TEST_F(GameCommandsTest, YesSavesAnUnnamedGameWithoutAskingForAName) {
    Start();
    Edit(QStringLiteral("One"));
    desktop.answers = {vbYes};
    ChooseMenu("mnuFile_0");
    EXPECT_TRUE(HasFile(QStringLiteral("Game1.gam")));
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game2.gam")));
}

TEST_F(GameCommandsTest, CancelKeepsTheGameFromNewOpenAndClose) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    AnswerDialog(InGames(QStringLiteral("Family.gam")));
    desktop.answers = {vbCancel, vbCancel, vbCancel};
    ChooseMenu("mnuFile_0");
    ChooseMenu("mnuFile_2");
    window->close();
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("One"));
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(desktop.boxes.size(), 3);
}

TEST_F(GameCommandsTest, MissingDefaultGameIsToldAndLeavesTheGameUnderANewName) {
    StartWith(QStringLiteral("Mine.gam"));
    QDir(folder.path()).mkdir(QStringLiteral("program"));
    QFile::copy(QStringLiteral(TAVLORA_DATA_DIR "/Rents_US.dat"), PathOf(QStringLiteral("program/Rents.dat")));
    Folders::SetProgramDirectory(PathOf(QStringLiteral("program")));
    ChooseMenu("mnuFile_0");
    ASSERT_FALSE(desktop.boxes.isEmpty());
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("opening the file")));
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("As saved"));
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game1.gam")));
    EXPECT_EQ(window->Commands().LoadResult(), -1);
}

TEST_F(GameCommandsTest, GameOfAnotherStartIsOpenedThroughTheSameQuestion) {
    StartWith(QStringLiteral("Mine.gam"));
    Edit(QStringLiteral("One"));
    desktop.answers = {vbCancel, vbNo};
    window->CalledByAnotherStart(InGames(QStringLiteral("Family.gam")));
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("One"));
    window->CalledByAnotherStart(InGames(QStringLiteral("Family.gam")));
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Leo's\r\nDesk"));
    window->CalledByAnotherStart(QString());
    EXPECT_EQ(desktop.boxes.size(), 2) << "coming to the front asks nothing";
}

TEST_F(GameCommandsTest, GameOfAnotherStartWaitsUntilThisOneHasLoaded) {
    CallWhileLoading call([this] { window->CalledByAnotherStart(QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam")); });
    StartWith(QStringLiteral("Mine.gam"));
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Leo's\r\nDesk"));
    EXPECT_TRUE(window->Commands().InHand().GameName().endsWith(QStringLiteral("Family_US.gam")));
}

TEST_F(GameCommandsTest, StartWithoutAGameTakesBackNoneOfAnEarlierOne) {
    CallWhileLoading call([this] {
        window->CalledByAnotherStart(QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam"));
        window->CalledByAnotherStart(QString());
    });
    StartWith(QStringLiteral("Mine.gam"));
    EXPECT_TRUE(window->Commands().InHand().GameName().endsWith(QStringLiteral("Family_US.gam")));
}

TEST_F(GameCommandsTest, FirstFourLettersTellAGameWithoutAName) {
    EXPECT_TRUE(GameNames::IsUnnamed(QStringLiteral("/a/game7.gam")));
    EXPECT_TRUE(GameNames::IsUnnamed(QStringLiteral("C:\\x\\GAMES.gam")));
    EXPECT_FALSE(GameNames::IsUnnamed(QStringLiteral("/game/Gam.gam")));
}

} // namespace
