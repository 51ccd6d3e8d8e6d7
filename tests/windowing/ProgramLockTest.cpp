// SPDX-License-Identifier: MIT
// One program at a time works in a folder, and later starts reach it.
#include "windowing/ProgramLock.h"
#include "platform/files/Folders.h"
#include "support/OrdinaryUser.h"
#include "support/TestFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>
#include <QProcess>
#include <QSysInfo>
#include <QThread>

#include <atomic>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

// Milliseconds that a start would wait for an answer.
constexpr int kLongWait = 60'000;

/// Whether somebody went on without the long wait: half of it is far from what any machine takes for the rest.
class NoWait {
public:
    NoWait() { m_since.start(); }
    bool IsSo() const { return m_since.elapsed() < kLongWait / 2; }

private:
    QElapsedTimer m_since;
};

class ProgramLockTest : public TavloraTest {
protected:
    ProgramLockTest() {
        QDir(folder.path()).mkdir(QStringLiteral("session"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", PathOf(QStringLiteral("session")).toLocal8Bit());
    }
    ~ProgramLockTest() override { qputenv("XDG_RUNTIME_DIR", m_sessionBefore); }

    QString LockPath() const { return PathOf(QStringLiteral(".tavlora.lock")); }
    QStringList SocketsIn(const QString& sFolder) const {
        return QDir(sFolder).entryList({QStringLiteral("tavlora-*")}, QDir::System | QDir::Files);
    }
    /// Runs events here while something waits for them elsewhere.
    static void RunAside(const std::function<void()>& act) {
        std::unique_ptr<QThread> thread(QThread::create(act));
        thread->start();
        while (!thread->isFinished())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    void LeaveLockOfAProcessThatIsGone() const {
        QProcess gone;
        gone.start(QStringLiteral("true"), {});
        const qint64 process = gone.processId();
        ASSERT_TRUE(gone.waitForFinished());
        WriteFile(QStringLiteral(".tavlora.lock"),
                  QByteArray::number(process) + "\ntavlora\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    }

private:
    const QByteArray m_sessionBefore = qgetenv("XDG_RUNTIME_DIR");
};

TEST_F(ProgramLockTest, SecondProgramIsKeptOutUntilTheFirstGoes) {
    ProgramLock first(folder.path());
    ASSERT_TRUE(first.Take());
    EXPECT_EQ(first.Holder(), QCoreApplication::applicationPid());
    ProgramLock second(folder.path());
    EXPECT_FALSE(second.Take());
    first.Release();
    EXPECT_TRUE(second.Take());
}

TEST_F(ProgramLockTest, FileOfAProcessThatIsGoneIsIgnored) {
    ASSERT_NO_FATAL_FAILURE(LeaveLockOfAProcessThatIsGone());
    ProgramLock lock(folder.path());
    EXPECT_TRUE(lock.Take());
}

TEST_F(ProgramLockTest, FileThatCantBeDeletedKeepsNobodyOut) {
    const auto owner = QFileDevice::ReadOwner | QFileDevice::ExeOwner;
    ASSERT_NO_FATAL_FAILURE(LeaveLockOfAProcessThatIsGone());
    ASSERT_TRUE(QFile::setPermissions(folder.path(), owner));
    {
        const OrdinaryUser user({folder.path(), PathOf(QStringLiteral("session"))});
        ASSERT_TRUE(user.IsIt());
        EXPECT_FALSE(QFileInfo(folder.path()).isWritable());
        EXPECT_TRUE(ProgramLock(folder.path()).Take());
    }
    ASSERT_TRUE(QFile::setPermissions(folder.path(), owner | QFileDevice::WriteOwner));
}

TEST_F(ProgramLockTest, TwoFoldersDontDisturbEachOther) {
    const QTemporaryDir other;
    ProgramLock first(folder.path());
    ProgramLock second(other.path());
    EXPECT_TRUE(first.Take());
    EXPECT_TRUE(second.Take());
}

TEST_F(ProgramLockTest, CallHandsOverTheGameWhateverItsName) {
    ProgramLock first(folder.path());
    ASSERT_TRUE(first.Take());
    QStringList called;
    QObject::connect(&first, &ProgramLock::Called, &first, [&](const QString& game) { called.append(game); });
    const QString game = QStringLiteral("/ho me/\u00FCber\nzwei%20.gam");
    // The caller waits for an answer, so it stands on a thread of its own, as another process would.
    bool answered = false;
    RunAside([&] {
        const ProgramLock second(folder.path());
        answered = second.CallHolder(game) && second.CallHolder(QString());
    });
    EXPECT_TRUE(answered);
    EXPECT_EQ(called, (QStringList{game, QString()}));
}

TEST_F(ProgramLockTest, StartWaitsForOneThatIsAboutToEnd) {
    // It holds the folder, but listens no more.
    QLockFile ending(PathOf(QStringLiteral(".tavlora.lock")));
    ASSERT_TRUE(ending.tryLock());
    std::unique_ptr<QThread> end(QThread::create([&] {
        QThread::msleep(150);
        ending.unlock();
    }));
    end->start();
    ProgramLock lock(folder.path());
    EXPECT_EQ(lock.TakeOrCall(QStringLiteral("x.gam"), 10000), ProgramLock::Start::Taken);
    end->wait();
    EXPECT_EQ(lock.Holder(), QCoreApplication::applicationPid());
}

TEST_F(ProgramLockTest, FolderHeldBySomebodyWhoNeverAnswersIsToldInTime) {
    QLockFile silent(PathOf(QStringLiteral(".tavlora.lock")));
    ASSERT_TRUE(silent.tryLock());
    EXPECT_EQ(ProgramLock(folder.path()).TakeOrCall(QString(), 100), ProgramLock::Start::NoAnswer);
}

TEST_F(ProgramLockTest, NobodyAnswersWhereNobodyIs) {
    EXPECT_FALSE(ProgramLock(folder.path()).CallHolder(QStringLiteral("x"), 50));
}

TEST_F(ProgramLockTest, FileThatNamesNobodyIsTakenOver) {
    const QByteArray garbage[] = {"",
                                  "\n\n\n",
                                  "half a fi",
                                  QByteArray(100, '\0'),
                                  "0\ntavlora\nattic\n",
                                  "-1\ntavlora\nattic\n",
                                  "99999999999999999999999\ntavlora\nattic\n"};
    for (const QByteArray& bytes : garbage) {
        WriteFile(QStringLiteral(".tavlora.lock"), bytes);
        const NoWait quick;
        ProgramLock lock(folder.path());
        EXPECT_EQ(lock.TakeOrCall(QString(), kLongWait), ProgramLock::Start::Taken) << bytes.toStdString();
        EXPECT_TRUE(quick.IsSo()) << bytes.toStdString();
        EXPECT_EQ(lock.Holder(), QCoreApplication::applicationPid()) << bytes.toStdString();
        EXPECT_FALSE(ProgramLock(folder.path()).Take()) << "and it keeps the next one out";
    }
}

TEST_F(ProgramLockTest, FileOfAnotherComputerIsLeftToTheUser) {
    const QByteArray note = "4711\ntavlora\nattic\n0123456789abcdef0123456789abcdef\n\n";
    WriteFile(QStringLiteral(".tavlora.lock"), note);
    const NoWait quick;
    ProgramLock lock(folder.path());
    EXPECT_EQ(lock.TakeOrCall(QString(), kLongWait), ProgramLock::Start::OtherComputer);
    EXPECT_TRUE(quick.IsSo()) << "nobody there can answer";
    EXPECT_EQ(lock.HoldersComputer(), QStringLiteral("attic"));
    EXPECT_EQ(ReadFile(LockPath()), note);
    lock.TakeAnyway();
    EXPECT_EQ(lock.Holder(), QCoreApplication::applicationPid());
    EXPECT_NE(lock.HoldersComputer(), QStringLiteral("attic"));
}

TEST_F(ProgramLockTest, ThisComputerUnderAFormerNameIsNoOther) {
    if (QSysInfo::machineUniqueId().isEmpty()) GTEST_SKIP() << "this machine has no number of its own";
    WriteFile(QStringLiteral(".tavlora.lock"),
              "999999999\ntavlora\nformer-name\n" + QSysInfo::machineUniqueId() + "\n\n");
    EXPECT_TRUE(ProgramLock(folder.path()).Take());
}

#ifdef Q_OS_UNIX
TEST_F(ProgramLockTest, WhatIsNoFileInItsPlaceNeitherHoldsUpNorGoes) {
    const auto start = [this] {
        const NoWait quick;
        ProgramLock lock(folder.path());
        EXPECT_EQ(lock.TakeOrCall(QString(), kLongWait), ProgramLock::Start::Taken);
        EXPECT_TRUE(quick.IsSo());
        EXPECT_EQ(SocketsIn(PathOf(QStringLiteral("session"))).size(), 1) << "it can be called all the same";
    };
    ASSERT_EQ(mkfifo(qPrintable(LockPath()), 0600), 0);
    start();
    EXPECT_TRUE(QFileInfo::exists(LockPath()));
    ASSERT_TRUE(QFile::remove(LockPath()));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral(".tavlora.lock")));
    start();
    EXPECT_TRUE(QFileInfo(LockPath()).isDir());
}

TEST_F(ProgramLockTest, SocketLiesWhereNobodyElseCanCome) {
    ProgramLock lock(folder.path());
    ASSERT_TRUE(lock.Take());
    const QStringList names = SocketsIn(PathOf(QStringLiteral("session")));
    ASSERT_EQ(names.size(), 1);
    EXPECT_FALSE(SocketsIn(QDir::tempPath()).contains(names[0])) << "there anybody may have taken the name first";
}

TEST_F(ProgramLockTest, FolderThatOthersCanEnterIsNotTheUsersOwn) {
    const QString session = PathOf(QStringLiteral("session"));
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", folder.path().toLocal8Bit());
    EXPECT_EQ(Folders::Runtime(), session);
    ASSERT_TRUE(QFile::setPermissions(session, QFile::permissions(session) | QFile::ReadGroup | QFile::ExeGroup));
    const QString own = Folders::Runtime();
    EXPECT_TRUE(own.startsWith(folder.path() + QStringLiteral("/tavlora-"))) << own.toStdString();
    EXPECT_EQ(QFile::permissions(own) & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
              QFile::Permissions());
    ASSERT_TRUE(QFile::setPermissions(own, QFile::permissions(own) | QFile::ExeOther));
    EXPECT_EQ(Folders::Runtime(), QString()) << "somebody else may have made it";
    qputenv("TMPDIR", before);
}

TEST_F(ProgramLockTest, CallerWhoTrickledBytesKeepsNobodyWaiting) {
    ProgramLock lock(folder.path());
    ASSERT_TRUE(lock.Take());
    int called = 0;
    QObject::connect(&lock, &ProgramLock::Called, &lock, [&] { ++called; });
    const QString name =
        QDir(PathOf(QStringLiteral("session"))).filePath(SocketsIn(PathOf(QStringLiteral("session"))).constFirst());
    int turns = 0;
    std::atomic<int> bytes = 0;
    bool dropped = false;
    bool answered = false;
    std::unique_ptr<QThread> caller(QThread::create([&] {
        QLocalSocket slow;
        slow.connectToServer(name);
        for (int i = 0; i < 40 && slow.state() == QLocalSocket::ConnectedState; ++i) {
            slow.write("x");
            ++bytes;
            slow.waitForBytesWritten(100);
            slow.waitForDisconnected(100);
            if (i == 3) answered = ProgramLock(folder.path()).CallHolder(QStringLiteral("x.gam"));
        }
        dropped = slow.state() != QLocalSocket::ConnectedState;
    }));
    caller->start();
    while (!caller->isFinished()) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
        ++turns;
    }
    EXPECT_GT(turns, bytes) << "who waits for the rest of a call has no turn until it ends";
    EXPECT_TRUE(answered) << "the next caller isn't kept waiting";
    EXPECT_EQ(called, 1);
    EXPECT_TRUE(dropped) << "a call takes no four seconds";
}

TEST_F(ProgramLockTest, CallThatNeverEndsIsCutOff) {
    ProgramLock lock(folder.path());
    ASSERT_TRUE(lock.Take());
    const QString name =
        QDir(PathOf(QStringLiteral("session"))).filePath(SocketsIn(PathOf(QStringLiteral("session"))).constFirst());
    bool dropped = false;
    RunAside([&] {
        QLocalSocket endless;
        endless.connectToServer(name);
        const QByteArray bytes(1 << 16, 'x');
        for (int i = 0; i < 100 && endless.state() == QLocalSocket::ConnectedState; ++i) {
            endless.write(bytes);
            endless.waitForBytesWritten(50);
        }
        dropped = endless.state() != QLocalSocket::ConnectedState;
    });
    EXPECT_TRUE(dropped);
}
#endif

} // namespace
