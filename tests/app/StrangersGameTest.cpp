// SPDX-License-Identifier: MIT
// A game file that came from a stranger names no file that is written or deleted.
#include "AppFixture.h"

namespace {

const QString kTheirs = QStringLiteral("Theirs");

class StrangersGameTest : public AppTest {
protected:
    StrangersGameTest() {
        QDir(folder.path()).mkdir(QStringLiteral("mail"));
        WriteFile(QStringLiteral("profile.sh"), "echo mine\n");
        WriteGame(QStringLiteral("Mine.gam"), QStringLiteral("As saved"));
        SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    }
    /// Puts a game that calls itself an autosave of the victim into a folder.
    QString Mail(const QString& to, const QString& named) const {
        WriteGame(QStringLiteral("Mailed.gam"), kTheirs, named);
        const QString path = PathOf(to);
        QFile::remove(path);
        EXPECT_TRUE(QFile::rename(InGames(QStringLiteral("Mailed.gam")), path));
        return path;
    }
    void Open(const QString& path) {
        desktop.onDialog = [path](CommonDialog& dialog) {
            dialog.sFileName = path;
            return true;
        };
        ChooseMenu("mnuFile_2");
    }
    const QString victim = PathOf(QStringLiteral("profile.sh"));
    QString Name() const { return window->Commands().InHand().GameName(); }
};

TEST_F(StrangersGameTest, AFileThatCallsItselfAnAutosaveIsSavedAsItselfOnly) {
    for (const char* name : {"mail/~AutoSave.gam", "mail/~AutoSave.dat", "games/~AutoSave.gam"}) {
        Start();
        const QString path = Mail(QString::fromLatin1(name), victim);
        Open(path);
        ASSERT_EQ(TextOfSpace4(), kTheirs) << name;
        EXPECT_EQ(Name(), path);
        EXPECT_EQ(Ini("GameName"), path);
        Edit(QStringLiteral("Zap"));
        ChooseMenu("mnuFile_3");
        EXPECT_EQ(ReadFile(victim), "echo mine\n") << name;
        EXPECT_TRUE(ReadFile(path).contains("\"Zap\"")) << name;
        EXPECT_FALSE(HasAutosave());
    }
}

TEST_F(StrangersGameTest, AnAutosaveThatNamesNoGameGoesOnUnderANewName) {
    const QString missing = PathOf(QStringLiteral("mail/run-me.sh"));
    for (const QString& target : {victim, missing, folder.path(), InGames(QStringLiteral("~AutoSave.dat")), QString(),
                                  QStringLiteral("profile.gam"), QStringLiteral("/dev/null")}) {
        Mail(QStringLiteral("games/~AutoSave.dat"), target);
        Start();
        ASSERT_EQ(TextOfSpace4(), kTheirs) << target.toStdString();
        EXPECT_EQ(Name(), InGames(QStringLiteral("Game1.gam"))) << target.toStdString();
        EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
        Edit(QStringLiteral("Zap"));
        bool ok = false;
        desktop.answers = {vbYes};
        window->Commands().OkToEndProgram(ok);
        EXPECT_TRUE(ok);
        EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Game1.gam"))).contains("\"Zap\"")) << target.toStdString();
        EXPECT_EQ(ReadFile(victim), "echo mine\n") << target.toStdString();
        EXPECT_FALSE(QFile::exists(missing));
        QFile::remove(InGames(QStringLiteral("Game1.gam")));
        SetIni(QStringLiteral("GameName"), InGames(QStringLiteral("Mine.gam")));
    }
}

TEST_F(StrangersGameTest, AnAutosaveGoesOnAsTheGameThatItWasEditedAs) {
    const QString oldName = PathOf(QStringLiteral("mail/Dr. Who"));
    ASSERT_TRUE(QFile::copy(InGames(QStringLiteral("Mine.gam")), oldName));
    for (const QString& game : {InGames(QStringLiteral("Mine.gam")), InGames(QStringLiteral("New.GAM")), oldName}) {
        Mail(QStringLiteral("games/~AutoSave.dat"), game);
        Start();
        EXPECT_EQ(Name(), game);
    }
}

TEST_F(StrangersGameTest, AnAutosaveOpenedByHandStaysUnsavedAndKept) {
    WriteGame(QStringLiteral("~AutoSave.bak"), kTheirs, InGames(QStringLiteral("Mine.gam")));
    Start();
    ChooseMenu("mnuFile_3");
    WriteGame(QStringLiteral("~AutoSave.bak"), QStringLiteral("Older"), InGames(QStringLiteral("Mine.gam")));
    Open(InGames(QStringLiteral("~AutoSave.bak")));
    ASSERT_EQ(TextOfSpace4(), QStringLiteral("Older"));
    EXPECT_EQ(Name(), InGames(QStringLiteral("Mine.gam")));
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved()) << "it is nowhere else";
    EXPECT_TRUE(HasAutosave());
    Start();
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Older"));
}

TEST_F(StrangersGameTest, WorkIsNeverSavedAsAnAutosaveWhichASaveDeletes) {
    Start();
    WriteFile(QStringLiteral("games/~AutoSave.dat"), "damaged");
    Open(InGames(QStringLiteral("~AutoSave.dat")));
    ASSERT_EQ(window->Commands().LoadResult(), -1);
    EXPECT_EQ(Name(), InGames(QStringLiteral("Game1.gam")));
    Edit(QStringLiteral("Zap"));
    bool ok = false;
    window->Commands().OkToEndProgram(ok);
    EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Game1.gam"))).contains("\"Zap\""));
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Rescued ~AutoSave.dat"))), "damaged");
}

TEST_F(StrangersGameTest, AGameWithACommaInItsNameComesBackAsItself) {
    const QString name = InGames(QStringLiteral("Mum, Dad and me.gam"));
    WriteGame(QStringLiteral("Mum, Dad and me.gam"), QStringLiteral("As saved"));
    WriteFile(QStringLiteral("games/Mum"), "a letter");
    SetIni(QStringLiteral("GameName"), name);
    Start();
    Edit(QStringLiteral("Zap"));
    Start();
    EXPECT_EQ(TextOfSpace4(), QStringLiteral("Zap"));
    EXPECT_EQ(Name(), name);
    ChooseMenu("mnuFile_3");
    EXPECT_TRUE(ReadFile(name).contains("\"Zap\""));
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("Mum"))), "a letter");
}

} // namespace
