// SPDX-License-Identifier: MIT
#include "platform/files/Files.h"

#include "platform/files/SaveFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <filesystem>
#include <thread>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Files {
namespace {

FaultHook& Hook() {
    static FaultHook hook;
    return hook;
}

// The files in place of the disk, or nullptr.
MemoryFiles*& Memory() {
    static MemoryFiles* files = nullptr;
    return files;
}

std::optional<QByteArray> ReadMemory(const QString& sPath, QString& sError) {
    const auto file = Memory()->constFind(sPath);
    if (file != Memory()->constEnd()) return *file;
    sError = QStringLiteral("No such file or directory");
    return std::nullopt;
}

bool RenameInMemory(const QString& sFrom, const QString& sTo, QString& sError) {
    const std::optional<QByteArray> bytes = ReadMemory(sFrom, sError);
    if (!bytes) return false;
    if (Memory()->contains(sTo)) {
        sError = QStringLiteral("Destination file exists");
        return false;
    }
    Memory()->insert(sTo, *bytes);
    Memory()->remove(sFrom);
    return true;
}

constexpr qint64 kMostOfUnknownSize = qint64(1) << 20;

bool Failed(const QFileDevice& file, QString& sError) {
    sError = file.errorString();
    return false;
}

// Where the user's data folder is missing, the toolkit would take the current folder for the trash.
bool HasTrash() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return !data.isEmpty() && QDir().mkpath(data);
}

void BringToDisk(const QString& sPath) {
#ifdef Q_OS_UNIX
    const int handle = ::open(QFile::encodeName(sPath).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
#else
    Q_UNUSED(sPath)
#endif
}

} // namespace

void UseMemory(MemoryFiles* files) { Memory() = files; }

FaultHook SetFaultHook(FaultHook hook) {
    std::swap(Hook(), hook);
    return hook;
}

bool IsPermitted(Operation operation, const QString& sPath, QString& sError) {
    if (!Hook()) return true;
    const std::optional<QString> fault = Hook()(operation, sPath);
    if (fault) sError = *fault;
    return !fault;
}

bool Exists(const QString& sPath) {
    if (Memory()) return Memory()->contains(sPath);
    return !sPath.isEmpty() && QFileInfo(sPath).isFile();
}

bool IsNoSpecialFile(const QString& sPath, QString& sError) {
    if (Memory()) return true;
    const QFileInfo info(sPath);
    if (!info.exists() || info.isFile()) return true;
    sError = info.isDir() ? QStringLiteral("It is a folder, not a file") : QStringLiteral("It is no regular file");
    return false;
}

bool CanBeReplaced(const QString& sPath, QString& sError) { return IsNoSpecialFile(sPath, sError); }

bool IsDirectory(const QString& sPath) {
    if (Memory()) return !sPath.isEmpty() && !Memory()->contains(sPath);
    return !sPath.isEmpty() && QFileInfo(sPath).isDir();
}

bool IsAnything(const QString& sPath) {
    if (Memory()) return Memory()->contains(sPath);
    const QFileInfo info(sPath);
    return info.exists() || info.isSymLink();
}

QString InDiskSpelling(const QString& sPath) {
    if (Memory()) return sPath;
    const QFileInfo info(sPath);
    if (sPath.isEmpty() || info.exists()) return sPath;
    const QString wanted = info.fileName();
    QString found;
    const QStringList names = info.dir().entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (name.compare(wanted, Qt::CaseInsensitive) != 0) continue;
        if (!found.isEmpty()) return sPath;
        found = name;
    }
    if (found.isEmpty()) return sPath;
    return sPath.left(sPath.size() - wanted.size()) + found;
}

bool IsSameFile(const QString& sPathA, const QString& sPathB) {
    const auto clean = [](const QString& sPath) { return QDir::cleanPath(QFileInfo(sPath).absoluteFilePath()); };
    // Some disks know a file by any spelling.
    if (clean(sPathA).compare(clean(sPathB), Qt::CaseInsensitive) == 0) return true;
    const QString target = QFileInfo(sPathA).canonicalFilePath();
    return !target.isEmpty() && target == QFileInfo(sPathB).canonicalFilePath();
}

qint64 Size(const QString& sPath) { return Memory() ? qint64(Memory()->value(sPath).size()) : QFileInfo(sPath).size(); }

Stamp StampOf(const QString& sPath) {
    if (Memory()) return Exists(sPath) ? Stamp{0, Size(sPath)} : Stamp();
    const QFileInfo info(sPath);
    if (!info.isFile()) return {};
    return {info.lastModified().toMSecsSinceEpoch(), info.size()};
}

std::optional<QByteArray> ReadAll(const QString& sPath, QString& sError) {
    if (!IsPermitted(Operation::OpenRead, sPath, sError)) return std::nullopt;
    if (Memory()) return ReadMemory(sPath, sError);
    const QString path = InDiskSpelling(sPath);
    if (!IsNoSpecialFile(path, sError)) return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Failed(file, sError);
        return std::nullopt;
    }
    if (!IsPermitted(Operation::Read, sPath, sError)) return std::nullopt;
    if (file.size() > kMostBytes) {
        sError = QStringLiteral("The file is too large to be opened");
        return std::nullopt;
    }
    // What a system tells of itself looks like a file of no length, and may never end.
    const qint64 most = file.size() > 0 ? file.size() : kMostOfUnknownSize;
    QByteArray bytes = file.read(most + 1);
    if (file.error() != QFileDevice::NoError) {
        Failed(file, sError);
        return std::nullopt;
    }
    if (bytes.size() > most) {
        sError = QStringLiteral("The file holds more than it says");
        return std::nullopt;
    }
    return bytes;
}

WholeFile::WholeFile(const QString& sPath) : m_path(sPath), m_file(std::make_unique<SaveFile>(sPath)) {
    m_file->WriteInPlaceIfNeedBe();
}

WholeFile::~WholeFile() = default;

bool WholeFile::Open(QString& sError) {
    if (!IsPermitted(Operation::OpenWrite, m_path, sError) || !CanBeReplaced(m_path, sError)) return false;
    if (Memory()) return true;
    return m_file->open(QIODevice::WriteOnly) || Failed(*m_file, sError);
}

bool WholeFile::Write(const QByteArray& bytes, QString& sError) {
    if (!IsPermitted(Operation::Write, m_path, sError)) return false;
    if (Memory()) {
        m_bytes += bytes;
        return true;
    }
    return m_file->write(bytes) == bytes.size() || Failed(*m_file, sError);
}

bool WholeFile::Commit(QString& sError) {
    if (!IsPermitted(Operation::Commit, m_path, sError)) return false;
    if (Memory()) {
        Memory()->insert(m_path, m_bytes);
        return true;
    }
    return m_file->Commit(sError);
}

bool WriteWhole(const QString& sPath, const QByteArray& bytes, QString& sError) {
    WholeFile file(sPath);
    return file.Open(sError) && file.Write(bytes, sError) && file.Commit(sError);
}

bool WriteNew(const QString& sPath, const QByteArray& bytes, QString& sError) {
    if (!IsPermitted(Operation::OpenWrite, sPath, sError) || !IsPermitted(Operation::Write, sPath, sError))
        return false;
    if (Memory()) {
        Memory()->insert(sPath, bytes);
        return true;
    }
    QFile file(sPath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return Failed(file, sError);
    if (file.write(bytes) == bytes.size() && file.flush()) return true;
    Failed(file, sError);
    file.remove();
    return false;
}

bool Append(const QString& sPath, const QByteArray& bytes, QString& sError) {
    if (!IsPermitted(Operation::OpenAppend, sPath, sError)) return false;
    if (Memory()) {
        if (!IsPermitted(Operation::Append, sPath, sError)) return false;
        (*Memory())[sPath] += bytes;
        return true;
    }
    // A pipe without a reader would be waited for.
    if (!IsNoSpecialFile(sPath, sError)) return false;
    QFile file(sPath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) return Failed(file, sError);
    if (!IsPermitted(Operation::Append, sPath, sError)) return false;
    if (file.write(bytes) != bytes.size()) return Failed(file, sError);
    file.close();
    return file.error() == QFileDevice::NoError || Failed(file, sError);
}

bool Remove(const QString& sPath, QString& sError) {
    if (!IsPermitted(Operation::Remove, sPath, sError)) return false;
    if (Memory()) {
        Memory()->remove(sPath);
        return true;
    }
    QFile file(sPath);
    return !file.exists() || file.remove() || Failed(file, sError);
}

bool Rename(const QString& sFrom, const QString& sTo, QString& sError) {
    if (!IsPermitted(Operation::Rename, sFrom, sError)) return false;
    if (Memory()) return RenameInMemory(sFrom, sTo, sError);
    QFile file(sFrom);
    return file.rename(sTo) || Failed(file, sError);
}

bool Copy(const QString& sFrom, const QString& sTo, QString& sError) {
    if (!IsPermitted(Operation::Copy, sTo, sError)) return false;
    const std::optional<QByteArray> bytes = ReadAll(sFrom, sError);
    return bytes && WriteWhole(sTo, *bytes, sError);
}

bool CopyNew(const QString& sFrom, const QString& sTo, QString& sError) {
    if (Memory()) return Copy(sFrom, sTo, sError);
    if (!IsPermitted(Operation::Copy, sTo, sError)) return false;
    QFile from(InDiskSpelling(sFrom));
    if (!from.copy(sTo)) return Failed(from, sError);
    // A program's own files may be installed as nobody's to write.
    QFile to(sTo);
    if (!to.setPermissions(to.permissions() | QFile::WriteOwner)) return Failed(to, sError);
    // Left to itself the system would keep it from the disk for half a minute, and a power cut would leave it empty.
    std::thread(&BringToDisk, sTo).detach();
    return true;
}

bool MakeDirectory(const QString& sPath, QString& sError) {
    if (!IsPermitted(Operation::MakeDirectory, sPath, sError)) return false;
    if (IsDirectory(sPath)) return true;
    std::error_code error;
    const QFileInfo inItsPlace(sPath);
    if (!inItsPlace.exists() && std::filesystem::create_directory(std::filesystem::path(sPath.toStdU16String()), error))
        return true;
    const QString reason = inItsPlace.exists() ? QStringLiteral("a file of that name is in its place")
                                               : QString::fromLocal8Bit(error.message().c_str());
    sError = QStringLiteral("The folder '%1' can't be made: %2.").arg(sPath, reason);
    return false;
}

bool MoveToTrash(const QString& sPath, QString& sError) {
    if (!IsPermitted(Operation::Remove, sPath, sError)) return false;
    if (Memory()) {
        Memory()->remove(sPath);
        return true;
    }
    QFile file(sPath);
    if (!file.exists() || (HasTrash() && file.moveToTrash())) return true;
    sError = file.error() == QFileDevice::NoError ? QStringLiteral("There is no trash") : file.errorString();
    return false;
}

} // namespace Files
