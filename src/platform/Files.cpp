// SPDX-License-Identifier: MIT
#include "platform/Files.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace Files {
namespace {

FaultHook& Hook() {
    static FaultHook hook;
    return hook;
}

bool Failed(const QFileDevice& file, QString& sError) {
    sError = file.errorString();
    return false;
}

// Where the user's data folder is missing, the toolkit would take the current folder for the trash.
bool HasTrash() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return !data.isEmpty() && QDir().mkpath(data);
}

// Renaming over a device would replace the device by a file, and one may be read for ever.
bool IsNoSpecialFile(const QString& sPath, QString& sError) {
    const QFileInfo info(sPath);
    if (!info.exists() || info.isFile()) return true;
    sError = info.isDir() ? QStringLiteral("It is a folder, not a file") : QStringLiteral("It is no regular file");
    return false;
}

} // namespace

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

bool Exists(const QString& sPath) { return !sPath.isEmpty() && QFileInfo(sPath).isFile(); }

bool CanBeReplaced(const QString& sPath, QString& sError) { return IsNoSpecialFile(sPath, sError); }

bool IsDirectory(const QString& sPath) { return !sPath.isEmpty() && QFileInfo(sPath).isDir(); }

QString InDiskSpelling(const QString& sPath) {
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

qint64 Size(const QString& sPath) { return QFileInfo(sPath).size(); }

Stamp StampOf(const QString& sPath) {
    const QFileInfo info(sPath);
    if (!info.isFile()) return {};
    return {info.lastModified().toMSecsSinceEpoch(), info.size()};
}

std::optional<QByteArray> ReadAll(const QString& sPath, QString& sError) {
    if (!IsPermitted(Operation::OpenRead, sPath, sError)) return std::nullopt;
    if (!IsNoSpecialFile(sPath, sError)) return std::nullopt;
    QFile file(InDiskSpelling(sPath));
    if (!file.open(QIODevice::ReadOnly)) {
        Failed(file, sError);
        return std::nullopt;
    }
    if (!IsPermitted(Operation::Read, sPath, sError)) return std::nullopt;
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        Failed(file, sError);
        return std::nullopt;
    }
    return bytes;
}

WholeFile::WholeFile(const QString& sPath) : m_path(sPath), m_file(std::make_unique<QSaveFile>(sPath)) {
    m_file->setDirectWriteFallback(true);
}

WholeFile::~WholeFile() {
    if (m_file->isOpen()) m_file->cancelWriting();
}

bool WholeFile::Open(QString& sError) {
    if (!IsPermitted(Operation::OpenWrite, m_path, sError) || !CanBeReplaced(m_path, sError)) return false;
    return m_file->open(QIODevice::WriteOnly) || Failed(*m_file, sError);
}

bool WholeFile::Write(const QByteArray& bytes, QString& sError) {
    if (!IsPermitted(Operation::Write, m_path, sError)) return false;
    return m_file->write(bytes) == bytes.size() || Failed(*m_file, sError);
}

bool WholeFile::Commit(QString& sError) {
    if (!IsPermitted(Operation::Commit, m_path, sError)) return false;
    // The toolkit's commit doesn't look whether its buffer reached the disk, and on a full one would put an
    // empty file in place of the old one.
    return (m_file->flush() && m_file->commit()) || Failed(*m_file, sError);
}

bool WriteWhole(const QString& sPath, const QByteArray& bytes, QString& sError) {
    WholeFile file(sPath);
    return file.Open(sError) && file.Write(bytes, sError) && file.Commit(sError);
}

bool Append(const QString& sPath, const QByteArray& bytes, QString& sError) {
    if (!IsPermitted(Operation::OpenAppend, sPath, sError)) return false;
    QFile file(sPath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) return Failed(file, sError);
    if (!IsPermitted(Operation::Append, sPath, sError)) return false;
    if (file.write(bytes) != bytes.size()) return Failed(file, sError);
    file.close();
    return file.error() == QFileDevice::NoError || Failed(file, sError);
}

bool Remove(const QString& sPath, QString& sError) {
    if (!IsPermitted(Operation::Remove, sPath, sError)) return false;
    QFile file(sPath);
    return !file.exists() || file.remove() || Failed(file, sError);
}

bool Rename(const QString& sFrom, const QString& sTo, QString& sError) {
    if (!IsPermitted(Operation::Rename, sFrom, sError)) return false;
    QFile file(sFrom);
    return file.rename(sTo) || Failed(file, sError);
}

bool Copy(const QString& sFrom, const QString& sTo, QString& sError) {
    if (!IsPermitted(Operation::Copy, sTo, sError)) return false;
    const std::optional<QByteArray> bytes = ReadAll(sFrom, sError);
    return bytes && WriteWhole(sTo, *bytes, sError);
}

bool MakeDirectory(const QString& sPath, QString& sError) {
    if (!IsPermitted(Operation::MakeDirectory, sPath, sError)) return false;
    if (IsDirectory(sPath) || QDir().mkdir(sPath)) return true;
    sError = QStringLiteral("The folder '%1' can't be created").arg(sPath);
    return false;
}

bool MoveToTrash(const QString& sPath, QString& sError) {
    if (!IsPermitted(Operation::Remove, sPath, sError)) return false;
    QFile file(sPath);
    return !file.exists() || (HasTrash() && file.moveToTrash()) || file.remove() || Failed(file, sError);
}

} // namespace Files
