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
#include <sys/wait.h>
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

    /// Starts printing the whole kit, and comes back when it stands still amid its work and what another has left has
    /// gone. It has to stand still: on a busy machine it would be over before anybody has looked.
    void StartPrinting(QProcess& process) const {
        const QStringList left = InTmp() + InOut();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), PathOf(QStringLiteral("home")));
        environment.insert(QStringLiteral("TMPDIR"), PathOf(QStringLiteral("tmp")));
        process.setProcessEnvironment(environment);
        // Whoever runs the tests in the background has a shell that lets them ignore what Ctrl+C sends.
        process.setChildProcessModifier([] {
            for (const int signal : {SIGINT, SIGTERM, SIGHUP})
                ::signal(signal, SIG_DFL);
        });
        process.start(QStringLiteral(TAVLORA_BIN_DIR "/tavlora-print"),
                      {QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam"), QStringLiteral("-o"),
                       PathOf(QStringLiteral("out/kit.pdf")), QStringLiteral("--data"),
                       QStringLiteral(TAVLORA_DATA_DIR)});
        ASSERT_TRUE(process.waitForStarted());
        QElapsedTimer waited;
        waited.start();
        while (HoldUp(process) && !IsAmidItsWork(left)) {
            ASSERT_LT(waited.elapsed(), kPatience);
            Send(process, SIGCONT);
            QThread::msleep(5);
        }
        ASSERT_TRUE(IsAmidItsWork(left)) << "over too soon";
    }

    /// Lets it go on with a signal waiting for it.
    static void End(QProcess& process, int signal) {
        Send(process, signal);
        Send(process, SIGCONT);
        ASSERT_TRUE(process.waitForFinished(kPatience));
    }

private:
    static constexpr int kPatience = 60000; // milliseconds

    static void Send(const QProcess& process, int signal) { ASSERT_EQ(::kill(pid_t(process.processId()), signal), 0); }
    /// False for one that has ended.
    static bool HoldUp(const QProcess& process) {
        Send(process, SIGSTOP);
        siginfo_t info{};
        return ::waitid(P_PID, id_t(process.processId()), &info, WSTOPPED | WEXITED | WNOWAIT) == 0 &&
               info.si_code == CLD_STOPPED;
    }
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
        ASSERT_NO_FATAL_FAILURE(End(process, signal));
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << "a shell must see what ended it";
        EXPECT_EQ(process.exitCode(), signal);
        EXPECT_EQ(InTmp(), QStringList());
        EXPECT_EQ(InOut(), QStringList());
    }
}

TEST_F(PrintEndedTest, NextRunClearsAwayWhatAKilledOneLeft) {
    QProcess killed;
    ASSERT_NO_FATAL_FAILURE(StartPrinting(killed));
    ASSERT_NO_FATAL_FAILURE(End(killed, SIGKILL));
    ASSERT_EQ(InTmp().size(), 1);
    QProcess next;
    ASSERT_NO_FATAL_FAILURE(StartPrinting(next));
    ASSERT_NO_FATAL_FAILURE(End(next, SIGTERM));
    EXPECT_EQ(InTmp(), QStringList());
    EXPECT_EQ(InOut(), QStringList());
}

#endif

} // namespace
