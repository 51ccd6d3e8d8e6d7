// SPDX-License-Identifier: MIT
#include "platform/files/Folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>

#include <filesystem>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace Folders {
namespace {

// A file that every installation of the program has; its presence tells a data folder.
const char* const kDataMark = "GamePlay_US.dat";

// Windows before this one had no documents folder.
constexpr int kFirstWindowsWithDocuments = 4;
constexpr int kPlatformOtherThanWindows = 3;

QString& GivenProgramDirectory() {
    static QString folder;
    return folder;
}

std::optional<SystemVersion>& PretendedSystem() {
    static std::optional<SystemVersion> system;
    return system;
}

QList<Volume>& PretendedVolumes() {
    static QList<Volume> volumes;
    return volumes;
}

double& PretendedFreeBytes() {
    static double bytes = -1;
    return bytes;
}

// Root of the volume pretended to hold a path; empty for a path on none of them.
QString PretendedRootOf(const QString& sPath) {
    QString root;
    for (const Volume& volume : PretendedVolumes()) {
        const bool inside = sPath == volume.sRoot || sPath.startsWith(volume.sRoot + u'/');
        if (inside && volume.sRoot.size() > root.size()) root = volume.sRoot;
    }
    return root;
}

bool HoldsData(const QString& sFolder) {
    return QFileInfo(QDir(sFolder).filePath(QString::fromLatin1(kDataMark))).isFile();
}

QString NearestExisting(const QString& sPath) {
    QFileInfo info(sPath);
    while (!info.exists() && info.absolutePath() != info.absoluteFilePath())
        info.setFile(info.absolutePath());
    return info.absoluteFilePath();
}

// Volumes that the system mounts for itself.
bool IsForPeople(const QStorageInfo& volume) {
    if (!volume.isValid() || !volume.isReady()) return false;
    if (volume.isRoot()) return true;
    const QString root = volume.rootPath();
    const QByteArray kind = volume.fileSystemType();
    const bool network = kind.startsWith("nfs") || kind == "cifs" || kind.startsWith("smb") || kind == "fuse.sshfs";
#ifdef Q_OS_UNIX
    return network || root.startsWith(u"/media/") || root.startsWith(u"/run/media/") || root.startsWith(u"/mnt/") ||
           root.startsWith(u"/Volumes/");
#else
    return true;
#endif
}

#ifdef Q_OS_UNIX
// Another user of the machine may have made a folder or a link of this name first.
bool IsPrivate(const QString& sFolder) {
    constexpr auto kOthers =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const QFileInfo info(sFolder);
    return info.isDir() && !info.isSymLink() && info.ownerId() == geteuid() && !(info.permissions() & kOthers);
}
#endif

} // namespace

QString Documents() { return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation); }
QString Home() { return QDir::homePath(); }
QString Pictures() { return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation); }

QString Runtime() {
#ifdef Q_OS_UNIX
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!session.isEmpty() && IsPrivate(session)) return session;
    const QString own = QDir::tempPath() + QStringLiteral("/tavlora-%1").arg(geteuid());
    QDir().mkdir(own, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return IsPrivate(own) ? own : QString();
#else
    return QDir::tempPath();
#endif
}

QString CompletePath(const QString& sPath) { return QFileInfo(sPath).absoluteFilePath(); }

bool IsComplete(const QString& sPath) { return QDir::isAbsolutePath(sPath); }

QString ProgramDirectory() {
    if (!GivenProgramDirectory().isEmpty()) return GivenProgramDirectory();
    const QString own = QCoreApplication::applicationDirPath();
    if (HoldsData(own)) return own;
    const QString shared = QDir::cleanPath(own + QStringLiteral("/../share/tavlora"));
    if (HoldsData(shared)) return shared;
    return QStringLiteral(TAVLORA_BUILD_DATA_DIR);
}

void SetProgramDirectory(const QString& sFolder) { GivenProgramDirectory() = sFolder; }

QList<Volume> Volumes() {
    if (!PretendedVolumes().isEmpty()) return PretendedVolumes();
    QList<Volume> volumes{{Home(), QStringLiteral("Home")}};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (IsForPeople(volume)) volumes.append({volume.rootPath(), volume.displayName()});
    }
    return volumes;
}

void PretendVolumes(const QList<Volume>& volumes) { PretendedVolumes() = volumes; }

bool OnSameVolume(const QString& sPathA, const QString& sPathB) {
    if (!PretendedVolumes().isEmpty()) return PretendedRootOf(sPathA) == PretendedRootOf(sPathB);
    return QStorageInfo(NearestExisting(sPathA)).rootPath() == QStorageInfo(NearestExisting(sPathB)).rootPath();
}

bool HasDrives() {
#ifdef Q_OS_WIN
    return true;
#else
    return false;
#endif
}

SystemVersion System() {
    if (PretendedSystem()) return *PretendedSystem();
    const QStringList parts = QSysInfo::kernelVersion().split(u'.');
    const auto part = [&](qsizetype at) { return at < parts.size() ? parts[at].section(u'-', 0, 0).toInt() : 0; };
    return {part(0), part(1), part(2), HasDrives() ? 2 : kPlatformOtherThanWindows};
}

void PretendSystem(const std::optional<SystemVersion>& system) { PretendedSystem() = system; }

bool SystemHasDocuments() {
    const SystemVersion system = System();
    return system.platform == kPlatformOtherThanWindows || system.major >= kFirstWindowsWithDocuments;
}

void PretendFreeBytes(double bytes) { PretendedFreeBytes() = bytes; }

double FreeBytes(const QString& sPath) {
    if (PretendedFreeBytes() >= 0) return PretendedFreeBytes();
    std::error_code error;
    const std::filesystem::path path(NearestExisting(sPath).toStdU16String());
    const std::filesystem::space_info space = std::filesystem::space(path, error);
    return error ? 0.0 : double(space.available);
}

} // namespace Folders
