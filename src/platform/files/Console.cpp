// SPDX-License-Identifier: MIT
#include "platform/files/Console.h"

#include "platform/files/Files.h"
#include "platform/files/Temporaries.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <csignal>
#include <thread>
#include <unistd.h>
#endif

namespace {

void TellFatalOnly(QtMsgType type, const QMessageLogContext&, const QString& sText) {
    if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qUtf8Printable(sText));
}

#ifdef Q_OS_WIN
BOOL WINAPI ClearUpAndEnd(DWORD) {
    Temporaries::RemoveHeld();
    return FALSE;
}
#else
// Ctrl+C, a termination, and a terminal that is closed; not those that whoever started us wants to be ignored.
sigset_t SignalsThatEnd() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action {};
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) sigaddset(&signals, signal);
    }
    return signals;
}

void WaitAndClearUp(sigset_t signals) {
    int signal = 0;
    if (sigwait(&signals, &signal) != 0) return;
    const Temporaries::Making nobodyElse;
    Temporaries::RemoveHeld();
    // And then the end that the signal means, so that a shell sees what ended the program.
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    raise(signal);
}
#endif

} // namespace

namespace Console {

void SilenceToolkit() { qInstallMessageHandler(TellFatalOnly); }

void UseNoDisplay() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

bool ErrorIsTerminal() {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}

bool IsSameFile(const QString& sPathA, const QString& sPathB) {
    const QString a = QFileInfo(sPathA).canonicalFilePath();
    return !a.isEmpty() && a == QFileInfo(sPathB).canonicalFilePath();
}

QString CompletePath(const QString& sPath) { return QFileInfo(sPath).absoluteFilePath(); }

void ClearUpWhenEnded() {
#ifdef Q_OS_WIN
    SetConsoleCtrlHandler(&ClearUpAndEnd, TRUE);
#else
    const sigset_t signals = SignalsThatEnd();
    // Every thread that is started from here on inherits it, so that the one that waits gets them all.
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::thread(&WaitAndClearUp, signals).detach();
#endif
}

} // namespace Console

TemporaryFolder::TemporaryFolder() { Make(QDir::tempPath(), true); }
TemporaryFolder::TemporaryFolder(const QString& sIn) { Make(sIn, false); }

void TemporaryFolder::Make(const QString& sIn, bool bForThisUserOnly) {
    constexpr int kTries = 5;
    // The toolkit names no folder where the one in the environment is missing, and would mean the current one.
    if (sIn.isEmpty()) return;
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    Temporaries::ClearLeftovers(sIn);
    for (int i = 0; i < kTries && m_path.isEmpty(); ++i) {
        const Temporaries::Making making;
        const QString path = Temporaries::FolderIn(sIn);
        const bool bMade = bForThisUserOnly ? QDir().mkdir(path, owner) : QDir().mkdir(path);
        if (bMade && Temporaries::Hold(path, -1)) m_path = path;
    }
}

TemporaryFolder::~TemporaryFolder() {
    if (m_path.isEmpty()) return;
    QDir(m_path).removeRecursively();
    Temporaries::LetGo(m_path);
}

bool TemporaryFolder::Become(const QString& sPath, QString& sError) {
    if (!Files::IsPermitted(Files::Operation::Rename, sPath, sError)) return false;
    // Some systems rename over an empty folder.
    if (Files::IsAnything(sPath) || !QDir().rename(m_path, sPath)) {
        sError = QStringLiteral("the folder '%1' can't be made").arg(sPath);
        return false;
    }
    Temporaries::LetGo(m_path);
    m_path.clear();
    return true;
}
