// SPDX-License-Identifier: MIT
#include "windowing/ProgramLock.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QThread>

#include <algorithm>

namespace {

const char* const kLockName = ".tavlora.lock";
constexpr int kBetweenTries = 20;
// A file that names nobody may be one that another start is just writing.
constexpr int kUntilGarbage = 300;
// What is longer was never written by this program.
constexpr qint64 kLongestNote = 4096;

// The file of a process that is gone can't be taken over where nothing can be deleted.
bool TakesFiles(const QString& sFolder) { return QFileInfo(sFolder).isWritable(); }

} // namespace

// What the file says, as the toolkit writes it: a line each.
struct ProgramLock::Note {
    qint64 process = 0;
    QString sComputer;
    QByteArray machine;
    bool bReadable = true;

    bool NamesNobody() const { return bReadable && process <= 0; }
    bool IsOfThisComputer() const {
        // The computer's own number outlives a change of its name.
        const QByteArray ours = QSysInfo::machineUniqueId();
        if (!machine.isEmpty() && !ours.isEmpty()) return machine == ours;
        return sComputer.isEmpty() || sComputer == QSysInfo::machineHostName();
    }
};

ProgramLock::ProgramLock(const QString& sFolder, QObject* parent)
    : QObject(parent), m_folder(QDir(sFolder).canonicalPath()),
      m_path(QDir(sFolder).filePath(QString::fromLatin1(kLockName))), m_file(m_path), m_socket(m_folder) {
    // However old the file is, the process that wrote it decides.
    m_file.setStaleLockTime(0);
    connect(&m_socket, &StartSocket::Called, this, &ProgramLock::Called);
}

ProgramLock::~ProgramLock() { Release(); }

ProgramLock::Note ProgramLock::ReadNote() const {
    QFile file(m_path);
    const bool plain = QFileInfo(m_path).isFile() && file.size() <= kLongestNote;
    if (!plain) return {};
    if (!file.open(QIODevice::ReadOnly)) return {0, QString(), QByteArray(), false};
    QList<QByteArray> lines = file.readAll().split('\n');
    lines.resize(4);
    return {lines[0].trimmed().toLongLong(), QString::fromUtf8(lines[2].trimmed()), lines[3].trimmed(), true};
}

// False when somebody else has the file. One that can't be made keeps nobody out.
bool ProgramLock::TakeFile() {
    const QFileInfo inItsPlace(m_path);
    // A pipe would be waited for.
    if (inItsPlace.exists() && !inItsPlace.isFile()) return false;
    return m_file.tryLock() || m_file.error() != QLockFile::LockFailedError || !TakesFiles(m_folder);
}

bool ProgramLock::Take() {
    if (!TakeFile()) return false;
    m_socket.Listen();
    return true;
}

// Only a file that could be ours; the toolkit sees to it that nobody holds it by now.
bool ProgramLock::ClearNote() {
    const QFileInfo info(m_path);
    return info.isFile() && info.size() <= kLongestNote && m_file.removeStaleLockFile();
}

ProgramLock::Start ProgramLock::TakeOrCall(const QString& sGame, int milliseconds) {
    QElapsedTimer tried;
    tried.start();
    for (;;) {
        if (Take()) return Start::Taken;
        const int left = int(std::max<qint64>(milliseconds - tried.elapsed(), 0));
        if (CallHolder(sGame, left)) return Start::HandedOver;
        const Note note = ReadNote();
        if (note.NamesNobody() && tried.elapsed() >= kUntilGarbage) {
            TakeAnyway();
            return Start::Taken;
        }
        if (!note.NamesNobody() && !note.IsOfThisComputer()) return Start::OtherComputer;
        if (tried.elapsed() >= milliseconds) return Start::NoAnswer;
        QThread::msleep(kBetweenTries);
    }
}

void ProgramLock::TakeAnyway() {
    ClearNote();
    TakeFile();
    m_socket.Listen();
}

void ProgramLock::Release() {
    m_socket.Close();
    if (m_file.isLocked()) m_file.unlock();
}

qint64 ProgramLock::Holder() const { return std::max<qint64>(ReadNote().process, 0); }
QString ProgramLock::HoldersComputer() const { return ReadNote().sComputer; }

bool ProgramLock::CallHolder(const QString& sGame, int milliseconds) const {
    return m_socket.Call(sGame, milliseconds);
}
