// SPDX-License-Identifier: MIT
// What becomes of a run in which something fails: the box, the log, and the next start.
#include "AppFixture.h"

#include "platform/files/Files.h"

namespace {

const QString kSaved = QStringLiteral("As saved");
const QString kUnsaved = QStringLiteral("Unsaved work");
const QString kCause = QStringLiteral("The photo is upside down");

class FailureTest : public AppTest {
protected:
    FailureTest() {
        WriteGame(QStringLiteral("Mine.gam"), kSaved);
        SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    }
    /// A failure deep in what a button of the main window runs.
    void FailInAnEditor() {
        routes.onEdit = []() -> bool { ErrRaise(1234, kCause); };
        ClickButton(0);
    }
    void AnswerDialog(const QString& name) {
        desktop.onDialog = [this, name](CommonDialog& dialog) {
            dialog.sFileName = InGames(name);
            return true;
        };
    }
    bool GameHolds(const char* game, const QString& text) const {
        return ReadFile(InGames(QString::fromLatin1(game))).contains("4, \"" + text.toUtf8() + '"');
    }
};

TEST_F(FailureTest, Edge_CancelInTheBoxOfAFailureEndsTheProgramAndTheNextStartFindsTheWork) {
    Start();
    Edit(kUnsaved);
    ASSERT_TRUE(desktop.boxes.isEmpty());
    desktop.answers = {vbCancel};
    EXPECT_THROW(FailInAnEditor(), ProgramEnded);
    ASSERT_EQ(desktop.boxes.size(), 1) << "nobody is asked about unsaved changes";
    EXPECT_EQ(desktop.boxes[0].iStyle, vbOKCancel | vbExclamation);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(kCause));
    EXPECT_TRUE(Log().contains(QStringLiteral("Program Terminated by ErrReport")));
    EXPECT_TRUE(GameHolds("Mine.gam", kSaved));

    desktop.boxes.clear();
    Start();
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("An Autosave version of a previous game has been found on your disk. This "
                                         "game is being loaded.")});
    EXPECT_EQ(TextOfSpace4(), kUnsaved);
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Mine.gam")));
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
}

TEST_F(FailureTest, OkInTheBoxOfAFailureGoesOn) {
    Start();
    desktop.answers = {vbOK};
    FailInAnEditor();
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(Log().contains(QStringLiteral("Continuing")));
    routes.onEdit = {};
    routes.Take();
    ClickButton(0);
    EXPECT_EQ(routes.Take().size(), 1);
}

TEST_F(FailureTest, Edge_WithAReadOnlyLogEverythingStillRunsAndNothingIsSaid) {
    int refused = 0;
    // Root may write anywhere, so the disk's refusal is played.
    Files::SetFaultHook([&](Files::Operation, const QString& path) -> std::optional<QString> {
        if (!path.endsWith(QStringLiteral(".log"))) return std::nullopt;
        ++refused;
        return QStringLiteral("Permission denied");
    });
    Start();
    EXPECT_EQ(TextOfSpace4(), kSaved);
    Edit(kUnsaved);
    EXPECT_TRUE(HasAutosave());
    ChooseMenu("mnuFile_3");
    EXPECT_TRUE(GameHolds("Mine.gam", kUnsaved));
    ChooseMenu("mnuFile_0");
    EXPECT_EQ(window->Commands().InHand().GameName(), InGames(QStringLiteral("Game1.gam")));
    AnswerDialog(QStringLiteral("Other.gam"));
    ChooseMenu("mnuFile_4");
    EXPECT_TRUE(HasFile(QStringLiteral("Other.gam")));
    AnswerDialog(QStringLiteral("Mine.gam"));
    ChooseMenu("mnuFile_2");
    EXPECT_EQ(TextOfSpace4(), kUnsaved);
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'|').toStdString();

    FailInAnEditor();
    ASSERT_EQ(desktop.boxes.size(), 1) << "the failure, and no word about the log";
    EXPECT_TRUE(desktop.boxes[0].sText.contains(kCause));
    EXPECT_THROW(window->Form_Unload(), ProgramEnded);
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_GT(refused, 5) << "a log that nobody wrote to proves nothing";
    EXPECT_FALSE(HasFile(QStringLiteral("tavlora.log")));
}

} // namespace
