// SPDX-License-Identifier: MIT
#include "platform/files/SaveFile.h"

#include "platform/files/Temporaries.h"

#include <QFileInfo>

#include <cerrno>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

std::filesystem::path SystemPath(const QString& sPath) { return sPath.toStdU16String(); }

QString Sentence(const std::error_code& error) { return QString::fromLocal8Bit(error.message().c_str()); }

QString TargetOf(const QString& sPath) {
    constexpr int kMostLinks = 40;
    QFileInfo info(sPath);
    for (int i = 0; i < kMostLinks && info.isSymLink(); ++i)
        info.setFile(info.symLinkTarget());
    return info.filePath();
}

#ifdef Q_OS_WIN
constexpr bool kRenamesOpenFiles = false;
#else
constexpr bool kRenamesOpenFiles = true;
#endif

// Brings what is written to the disk, past all that a power cut would empty.
bool ReachDisk(int handle) {
#ifdef Q_OS_WIN
    return ::_commit(handle) == 0;
#else
    return ::fsync(handle) == 0;
#endif
}

// A file that was renamed stands under its new name after a power cut only when its folder has reached the disk
// too. Where a folder can't be flushed the file is in place all the same.
void FlushFolderOf(const QString& sPath) {
#ifdef Q_OS_UNIX
    const QString folder = QFileInfo(sPath).path();
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
#else
    Q_UNUSED(sPath)
#endif
}

} // namespace

SaveFile::~SaveFile() { Discard(); }

bool SaveFile::Refuse(const QString& sWhy) {
    setErrorString(sWhy);
    return false;
}

bool SaveFile::open(OpenMode mode) {
    m_failure.clear();
    m_target = TargetOf(m_path);
    // A name that is too long would be found out only when all is written.
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::symlink_status(SystemPath(m_target), error);
    if (status.type() == std::filesystem::file_type::none) return Refuse(Sentence(error));
    const QFileInfo existing(m_target);
    if (existing.isDir()) return Refuse(QStringLiteral("It is a folder, not a file"));
    if (existing.exists() && !existing.isWritable()) return Refuse(QStringLiteral("The file may not be changed"));
    if (OpenBeside(mode)) return true;
    if (!m_mayWriteInPlace || QFileInfo(existing.path()).isWritable()) return false;
    setFileName(m_target);
    return QFile::open(mode);
}

bool SaveFile::OpenBeside(OpenMode mode) {
    constexpr int kTries = 5;
    const QFileInfo existing(m_target);
    Temporaries::ClearLeftoversOnce(existing.path());
    for (int i = 0; i < kTries; ++i) {
        const Temporaries::Making making;
        m_beside = Temporaries::FileIn(existing.path());
        setFileName(m_beside);
        const bool bOpen =
            existing.exists() ? QFile::open(mode | NewOnly, ReadOwner | WriteOwner) : QFile::open(mode | NewOnly);
        if (!bOpen) break;
        if (existing.exists()) setPermissions(existing.permissions());
        if (Temporaries::Hold(m_beside, handle())) return true;
        QFile::close();
    }
    m_beside.clear();
    return false;
}

void SaveFile::NoteFailure() {
    if (!m_failure.isEmpty()) return;
    // What is left in the buffer is tried again: that fails, and says why.
    flush();
    m_failure = errorString();
}

qint64 SaveFile::writeData(const char* data, qint64 length) {
    qint64 written = 0;
    while (written < length) {
        // What is left of a short write is tried again, for the same reason.
        const qint64 step = QFile::writeData(data + written, length - written);
        if (step <= 0) {
            NoteFailure();
            return -1;
        }
        written += step;
    }
    return written;
}

bool SaveFile::Commit(QString& sError) {
    // The toolkit doesn't look whether its buffer reached the disk.
    if (!flush()) NoteFailure();
    if (m_failure.isEmpty() && !ReachDisk(handle()))
        m_failure = Sentence(std::error_code(errno, std::generic_category()));
    // Where that can be it stays held until it has its name.
    if (!kRenamesOpenFiles) QFile::close();
    std::error_code error;
    if (m_failure.isEmpty() && !m_beside.isEmpty()) {
        std::filesystem::rename(SystemPath(m_beside), SystemPath(m_target), error);
        if (error) m_failure = Sentence(error);
    }
    sError = m_failure;
    if (!m_failure.isEmpty()) {
        Discard();
        return false;
    }
    QFile::close();
    if (!m_beside.isEmpty()) Temporaries::LetGo(m_beside);
    m_beside.clear();
    FlushFolderOf(m_target);
    return true;
}

void SaveFile::Discard() {
    QFile::close();
    if (m_beside.isEmpty()) return;
    QFile::remove(m_beside);
    Temporaries::LetGo(m_beside);
    m_beside.clear();
}
