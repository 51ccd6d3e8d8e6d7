// SPDX-License-Identifier: MIT
// What a start says about the folder of games before it has a window.
#include "app/GamesFolder.h"

#include "services/ProgramSettings.h"
#include "support/TestFixture.h"
#include "windowing/ProgramLock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>

namespace {

using GamesFolder::Taking;

class GamesFolderTest : public TavloraTest {
protected:
    GamesFolderTest() {
        QDir(folder.path()).mkdir(QStringLiteral("session"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", PathOf(QStringLiteral("session")).toLocal8Bit());
    }
    ~GamesFolderTest() override { qputenv("XDG_RUNTIME_DIR", m_sessionBefore); }

    /// What a start that doesn't wait says, and what becomes of it at this answer.
    Taking Take(int answer) {
        ProgramLock lock(folder.path());
        desktop.boxes.clear();
        desktop.answers = {answer};
        return GamesFolder::Take(lock, QString(), 0);
    }
    void ExpectAsked(const QString& sWhy) const {
        ASSERT_EQ(desktop.boxes.size(), 1);
        EXPECT_EQ(desktop.boxes[0].sText, sWhy + QStringLiteral("\r\n\r\nStart anyway?"));
        EXPECT_EQ(desktop.boxes[0].iStyle, vbYesNo | vbExclamation | vbDefaultButton2) << "Enter doesn't start";
    }
    QString LockPath() const { return PathOf(QStringLiteral(".tavlora.lock")); }

private:
    const QByteArray m_sessionBefore = qgetenv("XDG_RUNTIME_DIR");
};

TEST_F(GamesFolderTest, LockOfAnotherComputerIsAskedAboutByItsName) {
    WriteFile(QStringLiteral(".tavlora.lock"), "4711\ntavlora\nattic\n0123456789abcdef0123456789abcdef\n\n");
    const QString why =
        QStringLiteral("Tavlora seems to be open on another computer, 'attic'. Two that work in one folder write over "
                       "each other's changes.\r\n\r\nThe file '%1' says so. It also stays behind when that computer is "
                       "switched off too early.")
            .arg(LockPath());
    EXPECT_EQ(Take(vbNo), Taking::Refused);
    ExpectAsked(why);
    EXPECT_EQ(Take(vbYes), Taking::GoesOn);
    ExpectAsked(why);
}

TEST_F(GamesFolderTest, HolderThatDoesNotAnswerIsAskedAboutByItsProcess) {
    QLockFile held(LockPath());
    held.setStaleLockTime(0);
    ASSERT_TRUE(held.tryLock());
    const QString why =
        QStringLiteral("Tavlora is already running, but it does not answer. Please close it first.\r\n\r\nThe file "
                       "'%1' says that it runs here as process %2. Two that work in one folder write over each "
                       "other's changes.")
            .arg(LockPath())
            .arg(QCoreApplication::applicationPid());
    EXPECT_EQ(Take(vbNo), Taking::Refused);
    ExpectAsked(why);
    EXPECT_EQ(Take(vbYes), Taking::GoesOn);
    ExpectAsked(why);
}

TEST_F(GamesFolderTest, AFreeFolderIsTakenWithoutAWord) {
    EXPECT_EQ(Take(vbNo), Taking::GoesOn);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

} // namespace
