// SPDX-License-Identifier: MIT
#include "platform/files/SaveFile.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

// A file that was renamed stands under its new name after a power cut only when its folder has reached the disk
// too. Where a folder can't be flushed the file is in place all the same.
void FlushFolderOf(const QString& sPath) {
#ifdef Q_OS_UNIX
    const QString folder = QFileInfo(QFileInfo(sPath).canonicalFilePath()).path();
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
#else
    Q_UNUSED(sPath)
#endif
}

} // namespace

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
        const qint64 step = QSaveFile::writeData(data + written, length - written);
        if (step <= 0) {
            NoteFailure();
            return -1;
        }
        written += step;
    }
    return written;
}

bool SaveFile::Commit(QString& sError) {
    // The toolkit's commit doesn't look whether its buffer reached the disk either.
    if (!flush()) NoteFailure();
    if (m_failure.isEmpty() && commit()) {
        FlushFolderOf(fileName());
        return true;
    }
    sError = m_failure.isEmpty() ? errorString() : m_failure;
    return false;
}
