// SPDX-License-Identifier: MIT
#include "platform/files/Temporaries.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QSysInfo>
#include <QThread>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Temporaries {
namespace {

constexpr int kDigits = 8;
// Whoever is being ended may still make files where they are being deleted.
constexpr int kTries = 50;
constexpr int kBetweenTries = 10;

struct State {
    QRecursiveMutex mutex;
    // What is held, with the handle that holds a folder.
    QHash<QString, int> held;
    QSet<QString> cleared;
};

// Never destroyed: a folder may be let go at the very end of the program.
State& TheState() {
    static State& state = *new State;
    return state;
}

// In a folder that computers share, each clears away its own only.
QString Mark() {
    const QByteArray id = QSysInfo::machineUniqueId();
    const QByteArray machine = id.isEmpty() ? QSysInfo::machineHostName().toUtf8() : id;
    const QByteArray hash = QCryptographicHash::hash(machine, QCryptographicHash::Sha256).toHex();
    return QStringLiteral("tavlora-") + QString::fromLatin1(hash.left(kDigits)) + u'-';
}

QString FreePath(const QString& sFolder, const QString& sMark) {
    for (;;) {
        const QString number =
            QStringLiteral("%1").arg(QRandomGenerator::system()->generate(), kDigits, 16, QChar(u'0'));
        const QString path = QDir(sFolder).filePath(sMark + number);
        if (!QFileInfo::exists(path)) return path;
    }
}

#ifdef Q_OS_UNIX
bool IsLocked(int handle) { return ::flock(handle, LOCK_EX | LOCK_NB) != 0; }

bool IsGone(int handle) {
    struct stat status {};
    return ::fstat(handle, &status) != 0 || status.st_nlink == 0;
}

bool Remove(const QFileInfo& info) {
    return info.isDir() ? QDir(info.filePath()).removeRecursively() : QFile::remove(info.filePath());
}

void RemoveUnlessHeld(const QFileInfo& info) {
    const int handle = ::open(QFile::encodeName(info.filePath()).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0) return;
    if (info.ownerId() == geteuid() && !IsLocked(handle)) Remove(info);
    ::close(handle);
}
#else
// An open file can't be deleted here; of a folder nothing tells whether somebody still needs it.
void RemoveUnlessHeld(const QFileInfo& info) {
    if (info.isFile()) QFile::remove(info.filePath());
}
#endif

} // namespace

Making::Making() { TheState().mutex.lock(); }
Making::~Making() { TheState().mutex.unlock(); }

QString FileIn(const QString& sFolder) { return FreePath(sFolder, u'.' + Mark()); }
QString FolderIn(const QString& sFolder) { return FreePath(sFolder, Mark()); }

bool Hold(const QString& sPath, int handle) {
    int ownHandle = -1;
#ifdef Q_OS_UNIX
    if (handle < 0) ownHandle = ::open(QFile::encodeName(sPath).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const int any = handle < 0 ? ownHandle : handle;
    // Some network folders know no locks; nobody clears away there either.
    const bool bGone = any < 0 || (IsLocked(any) && errno == EWOULDBLOCK) || IsGone(any);
    if (bGone) {
        if (ownHandle >= 0) ::close(ownHandle);
        return false;
    }
#else
    Q_UNUSED(handle)
#endif
    const QMutexLocker lock(&TheState().mutex);
    TheState().held.insert(sPath, ownHandle);
    return true;
}

void LetGo(const QString& sPath) {
    const QMutexLocker lock(&TheState().mutex);
    [[maybe_unused]] const int handle = TheState().held.value(sPath, -1);
    TheState().held.remove(sPath);
#ifdef Q_OS_UNIX
    if (handle >= 0) ::close(handle);
#endif
}

void ClearLeftovers(const QString& sFolder) {
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("\\.?") + Mark() + QStringLiteral("[0-9a-f]{8}")));
    const QDir folder(sFolder);
    const auto kinds = QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot;
    for (const QFileInfo& info : folder.entryInfoList({QStringLiteral("*tavlora-*")}, kinds)) {
        if (pattern.match(info.fileName()).hasMatch()) RemoveUnlessHeld(info);
    }
}

void ClearLeftoversOnce(const QString& sFolder) {
    {
        const QMutexLocker lock(&TheState().mutex);
        if (TheState().cleared.contains(sFolder)) return;
        TheState().cleared.insert(sFolder);
    }
    ClearLeftovers(sFolder);
}

void RemoveHeld() {
    const QMutexLocker lock(&TheState().mutex);
    const QStringList paths = TheState().held.keys();
    for (const QString& path : paths) {
        const QFileInfo info(path);
        for (int i = 0; i < kTries && info.exists(); ++i) {
            if (info.isDir() ? QDir(path).removeRecursively() : QFile::remove(path)) break;
            QThread::msleep(kBetweenTries);
        }
    }
}

} // namespace Temporaries
