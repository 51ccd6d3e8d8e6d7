// SPDX-License-Identifier: MIT
// Starts of the program as processes of their own: ahead of the window, and beside one that is running.
#include "app/StartProcess.h"
#include "platform/files/Folders.h"

#include <QCoreApplication>
#include <QLockFile>

namespace {

TEST_F(StartProcessTest, FileInPlaceOfTheDocumentsIsToldInABox) {
    QFile file(InHome(QStringLiteral("Documents")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const Seen seen = Run(kPlainStart);
    EXPECT_EQ(seen.status, 1);
    EXPECT_EQ(seen.lines,
              QStringList{QStringLiteral("box: Tavlora can't start: there is no place for your games. The folder '%1' "
                                         "can't be made: a file of that name is in its place. Please make room for "
                                         "that folder, then start Tavlora again.")
                              .arg(InHome(QStringLiteral("Documents")))});
}

#ifdef Q_OS_LINUX
TEST_F(StartProcessTest, HomeThatTakesNothingIsToldInABox) {
    const Seen seen = Run(kPlainStart, QStringLiteral("/proc"));
    EXPECT_EQ(seen.status, 1);
    ASSERT_EQ(seen.lines.size(), 1);
    EXPECT_TRUE(seen.lines[0].startsWith(QStringLiteral(
        "box: Tavlora can't start: there is no place for your games. The folder '/proc/Documents' can't be made: ")))
        << seen.lines[0].toStdString();
}
#endif

TEST_F(StartProcessTest, LockOfAnotherComputerIsAskedAbout) {
    MakeGames();
    QFile lock(InGames(QStringLiteral(".tavlora.lock")));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("4711\ntavlora\nattic\n0123456789abcdef0123456789abcdef\n\n");
    lock.close();
    const Seen refused = Run(kPlainStart);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.lines,
              QStringList{QStringLiteral("box: Tavlora seems to be open on another computer, 'attic'. Two that work in "
                                         "one folder write over each other's changes. The file '%1' says so. It also "
                                         "stays behind when that computer is switched off too early. Start anyway?")
                              .arg(lock.fileName())});
    EXPECT_TRUE(lock.exists());
    const Seen started = Run({QStringLiteral("yes"), QStringLiteral("0")});
    EXPECT_EQ(started.status, 0);
    EXPECT_EQ(started.lines.filter(QStringLiteral("title: ")).size(), 1);
    EXPECT_FALSE(lock.exists()) << "from then on it was ours";
    EXPECT_TRUE(Run(kPlainStart).Boxes().isEmpty());
}

TEST_F(StartProcessTest, HolderOfThisComputerThatDoesNotAnswerIsAskedAbout) {
    MakeGames();
    // A program that hangs: it holds the file and hears nobody.
    QLockFile held(InGames(QStringLiteral(".tavlora.lock")));
    held.setStaleLockTime(0);
    ASSERT_TRUE(held.tryLock());
    const Seen refused = Run(kPlainStart);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.lines,
              QStringList{QStringLiteral("box: Tavlora is already running, but it does not answer. Please close it "
                                         "first. The file '%1' says that it runs here as process %2. Two that work in "
                                         "one folder write over each other's changes. Start anyway?")
                              .arg(held.fileName())
                              .arg(QCoreApplication::applicationPid())});
    const Seen started = Run({QStringLiteral("yes"), QStringLiteral("0")});
    EXPECT_EQ(started.status, 0);
    EXPECT_EQ(started.lines.filter(QStringLiteral("title: ")).size(), 1);
    EXPECT_TRUE(QFile::exists(held.fileName())) << "it is still the other's";
}

TEST_F(StartProcessTest, LockThatNamesNobodyIsPassedOver) {
    MakeGames();
    QFile lock(InGames(QStringLiteral(".tavlora.lock")));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.close();
    const Seen seen = Run(kPlainStart);
    EXPECT_EQ(seen.status, 0);
    EXPECT_TRUE(seen.Boxes().isEmpty()) << seen.Boxes().join(u'\n').toStdString();
}

TEST_F(StartProcessTest, LaterStartWinsOverTheOneThatIsStillLoading) {
    MakeGames();
    const QString first = MakeGame(QStringLiteral("First.gam"));
    const QString second = MakeGame(QStringLiteral("Second.gam"));
    QProcess loading;
    Begin(loading, {QStringLiteral("no"), QStringLiteral("1500"), first}, PathOf(QStringLiteral("home")));
    ASSERT_TRUE(WaitFor(loading, "splash"));
    const Seen later = Run({QStringLiteral("no"), QStringLiteral("0"), second});
    EXPECT_EQ(later.status, 0);
    EXPECT_TRUE(later.lines.isEmpty()) << "it only hands over its game";
    EXPECT_EQ(End(loading).lines, QStringList{QStringLiteral("title: Tavlora: ") + second + QStringLiteral("[*]")});
    QFile log(InGames(QStringLiteral("tavlora.log")));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_FALSE(log.readAll().contains("First.gam")) << "one game is loaded, not two";
}

} // namespace
