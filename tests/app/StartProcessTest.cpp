// SPDX-License-Identifier: MIT
// Starts of the program as processes of their own: ahead of the window, and beside one that is running.
#include "platform/files/Folders.h"
#include "support/TestFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QProcess>

namespace {

/// A home folder, and starts of the program in it.
class StartProcessTest : public TavloraTest {
protected:
    StartProcessTest() {
        QDir(folder.path()).mkdir(QStringLiteral("session"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QDir(folder.path()).mkpath(QStringLiteral("home"));
    }

    QString InHome(const QString& sName) const { return PathOf(QStringLiteral("home/") + sName); }
    QString InGames(const QString& sName) const { return InHome(QStringLiteral("Documents/My Games/") + sName); }
    /// The folder of games, with settings that bring the short splash.
    void MakeGames() const {
        QDir(folder.path()).mkpath(QStringLiteral("home/Documents/My Games"));
        QFile ini(InGames(QStringLiteral("tavlora.ini")));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write("[tavlora]\r\nShowSplash=False\r\n");
    }
    QString MakeGame(const QString& sName) const {
        const QString path = InGames(sName);
        QFile::copy(QStringLiteral(TAVLORA_DATA_DIR "/Town_US.gam"), path);
        return path;
    }
    void Begin(QProcess& start, const QStringList& words, const QString& sHome) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), sHome);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), InHome(QStringLiteral(".config")));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), PathOf(QStringLiteral("session")));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        start.setProcessEnvironment(environment);
        start.start(QStringLiteral(TAVLORA_BIN_DIR "/answered_start"), words);
    }
    struct Seen {
        int status = -1;
        QStringList lines;
        QStringList Boxes() const { return lines.filter(QStringLiteral("box: ")); }
    };
    static Seen End(QProcess& start) {
        EXPECT_TRUE(start.waitForFinished(30000));
        EXPECT_EQ(start.exitStatus(), QProcess::NormalExit);
        return {start.exitCode(), QString::fromUtf8(start.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)};
    }
    Seen Run(const QStringList& words, const QString& sHome = QString()) const {
        QProcess start;
        Begin(start, words, sHome.isEmpty() ? PathOf(QStringLiteral("home")) : sHome);
        return End(start);
    }
    static bool WaitFor(QProcess& start, const QByteArray& line) {
        QElapsedTimer waited;
        waited.start();
        while (waited.elapsed() < 20000) {
            if (start.canReadLine() && start.readLine().trimmed() == line) return true;
            if (!start.canReadLine()) start.waitForReadyRead(100);
        }
        return false;
    }
    const QStringList kPlainStart = {QStringLiteral("no"), QStringLiteral("0")};
};

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
