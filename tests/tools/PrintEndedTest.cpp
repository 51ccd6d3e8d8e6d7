// SPDX-License-Identifier: MIT
// What tavlora-print leaves behind when somebody ends it in the middle: nothing.
#include "support/TestFixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <csignal>
#endif

namespace {

#ifdef Q_OS_UNIX

class PrintEndedTest : public TavloraTest {
protected:
    PrintEndedTest() {
        for (const char* name : {"home", "tmp", "out"})
            QDir(folder.path()).mkdir(QString::fromLatin1(name));
    }
    static QStringList Names(const QString& sFolder) {
        return QDir(sFolder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QStringList InTmp() const { return Names(PathOf(QStringLiteral("tmp"))).filter(QStringLiteral("tavlora")); }
    QStringList InOut() const { return Names(PathOf(QStringLiteral("out"))); }

    /// Starts printing the whole kit, and comes back when it is amid its work and what another has left has gone.
    void StartPrinting(QProcess& process) const {
        const QStringList left = InTmp() + InOut();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), PathOf(QStringLiteral("home")));
        environment.insert(QStringLiteral("TMPDIR"), PathOf(QStringLiteral("tmp")));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TAVLORA_BIN_DIR "/tavlora-print"),
                      {QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam"), QStringLiteral("-o"),
                       PathOf(QStringLiteral("out/kit.pdf")), QStringLiteral("--data"),
                       QStringLiteral(TAVLORA_DATA_DIR)});
        ASSERT_TRUE(process.waitForStarted());
        QElapsedTimer waited;
        waited.start();
        while (waited.elapsed() < 20000 && !IsAmidItsWork(left))
            QThread::msleep(5);
        ASSERT_TRUE(IsAmidItsWork(left));
    }

private:
    bool IsAmidItsWork(const QStringList& left) const {
        const QStringList names = InTmp() + InOut();
        const bool cleared =
            std::none_of(left.begin(), left.end(), [&](const QString& name) { return names.contains(name); });
        return cleared && InTmp().size() == 1 && InOut().size() == 1 &&
               !Names(PathOf(QStringLiteral("tmp/") + InTmp().constFirst())).isEmpty();
    }
};

TEST_F(PrintEndedTest, AnyPoliteEndLeavesNothing) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        QProcess process;
        ASSERT_NO_FATAL_FAILURE(StartPrinting(process));
        ASSERT_EQ(::kill(pid_t(process.processId()), signal), 0);
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << "a shell must see what ended it";
        EXPECT_EQ(process.exitCode(), signal);
        EXPECT_EQ(InTmp(), QStringList());
        EXPECT_EQ(InOut(), QStringList());
    }
}

TEST_F(PrintEndedTest, NextRunClearsAwayWhatAKilledOneLeft) {
    QProcess killed;
    ASSERT_NO_FATAL_FAILURE(StartPrinting(killed));
    killed.kill();
    ASSERT_TRUE(killed.waitForFinished());
    ASSERT_EQ(InTmp().size(), 1);
    QProcess next;
    ASSERT_NO_FATAL_FAILURE(StartPrinting(next));
    next.terminate();
    ASSERT_TRUE(next.waitForFinished());
    EXPECT_EQ(InTmp(), QStringList());
    EXPECT_EQ(InOut(), QStringList());
}

#endif

} // namespace
