// SPDX-License-Identifier: MIT
#include "services/basPath.h"

#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basGetFolderPath.h"
#include "services/Desktop.h"
#include "services/ProgramSettings.h"
#include "services/TavloraError.h"

namespace basCommon {
namespace {

bool HasDrive(const QString& sPath) { return sPath.size() >= 2 && sPath[1] == u':'; }
bool IsUnc(const QString& sPath) { return sPath.startsWith(QStringLiteral("\\\\")); }

QChar SeparatorOf(const QString& sPath) { return PathFamilyOf(sPath) == PathFamily::Native ? u'/' : u'\\'; }

bool EndsInSeparator(const QString& sPath) { return sPath.endsWith(u'/') || sPath.endsWith(u'\\'); }

QString NativeSeparators(QString sPath) { return sPath.replace(u'\\', u'/'); }

QString NameWithExtension(const QString& sBase, const QString& sExt, PathFamily family) {
    // A trailing point means nothing to the Windows family, and another file to the native one.
    if (sExt.isEmpty() && family == PathFamily::Native) return sBase;
    return sBase + u'.' + sExt;
}

// The base folder cut down to its root: the drive, or the server of a UNC path. No separator is put back
// behind a drive; that is how paths in old games were made.
QString RootOf(const QString& sBase) {
    if (PathFamilyOf(sBase) == PathFamily::Native) return QStringLiteral("/");
    if (IsUnc(sBase)) {
        const qsizetype end = sBase.indexOf(u'\\', 3);
        return end < 0 ? sBase : sBase.left(end);
    }
    return sBase.left(2);
}

QString WithExtension(const QString& sPath, QString sExt) {
    for (qsizetype at = sPath.size() - 1; at >= 0; --at) {
        if (sPath[at] == u'.') return sPath;
        if (sPath[at] == u'\\' || sPath[at] == u'/') break;
    }
    while (sExt.startsWith(u'.'))
        sExt.remove(0, 1);
    return NameWithExtension(sPath, sExt, PathFamilyOf(sPath));
}

void MakeDirectory(const QString& sPath) {
    QString error;
    if (!Files::MakeDirectory(sPath, error)) ErrRaise(ErrNumber::kPathNotFound, error);
}

// Where the search for the first level below the root starts.
qsizetype FirstLevel(const QString& sPath) {
    if (PathFamilyOf(sPath) == PathFamily::Native && sPath.startsWith(u'/')) return 1;
    if (sPath.mid(1, 2) == QStringLiteral(":\\")) return 3;
    if (IsUnc(sPath)) {
        const qsizetype server = sPath.indexOf(u'\\', 2);
        if (server >= 0) return server + 1;
    }
    ErrRaise(ErrNumber::kIllegalPath, QStringLiteral("Path has illegal format"));
}

} // namespace

PathFamily PathFamilyOf(const QString& sPath) {
    if (sPath.startsWith(u'/')) return PathFamily::Native;
    return HasDrive(sPath) || sPath.contains(u'\\') ? PathFamily::Windows : PathFamily::Native;
}

QString JoinPath(const QString& sFolder, const QString& sName) {
    if (sFolder.isEmpty()) return sName;
    const bool native = PathFamilyOf(sFolder) == PathFamily::Native;
    QString name = native ? NativeSeparators(sName) : sName;
    while (name.startsWith(SeparatorOf(sFolder)))
        name.remove(0, 1);
    return EndsInSeparator(sFolder) ? sFolder + name : sFolder + SeparatorOf(sFolder) + name;
}

void Assert(bool bCondition, const QString& sMessage, const QString& sPlace) {
    if (bCondition) return;
    MsgBox(QStringLiteral("Assertion Failure: \r\n\r\n") + sMessage + QStringLiteral(" in ") + sPlace, vbCritical);
    EndProgram();
}

QString GetMyGamesDirectory() {
    QString& cached = Settings().sMyGamesDirectory;
    if (!cached.isEmpty()) return cached;
    if (!Folders::SystemHasDocuments()) {
        cached = Folders::ProgramDirectory();
        return cached;
    }
    const QString documents = basGetFolderPath::GetFolderPath(basGetFolderPath::kPersonalFolder, 0);
    const QString directory = JoinPath(documents, QStringLiteral("My Games"));
    ForceDirToExist(directory);
    cached = directory;
    return cached;
}

bool DoesFileExist(const QString& sPath) {
    if (sPath.isEmpty()) return false;
    Assert(sPath.contains(u'\\') || sPath.contains(u'/'), QStringLiteral("Incomplete path: ") + sPath,
           QStringLiteral("basCommon!DoesFileExist"));
    return Files::Exists(Files::InDiskSpelling(sPath));
}

bool DoesDirExist(const QString& sPath) {
    const bool trailing = sPath.size() > 1 && EndsInSeparator(sPath);
    return Files::IsDirectory(trailing ? sPath.chopped(1) : sPath);
}

void ForceDirToExist(const QString& sPath) {
    const QChar separator = SeparatorOf(sPath);
    QString path = sPath;
    while (path.endsWith(separator))
        path.chop(1);
    path += separator;
    qsizetype end = path.indexOf(separator, FirstLevel(path));
    while (end >= 0) {
        const QString level = path.left(end);
        if (!DoesDirExist(level)) MakeDirectory(level);
        end = path.indexOf(separator, end + 1);
    }
}

void FileNameFactor(const QString& sPath, QString& vDrive, QString& vDir, QString& vBase, QString& vExt) {
    QString rest = sPath;
    if (PathFamilyOf(sPath) == PathFamily::Windows && HasDrive(rest)) {
        vDrive = rest.left(2);
        rest.remove(0, 2);
    }
    const qsizetype slash = rest.lastIndexOf(SeparatorOf(sPath));
    if (slash >= 0) {
        vDir = rest.left(slash + 1);
        rest.remove(0, slash + 1);
    }
    const qsizetype dot = rest.lastIndexOf(u'.');
    const QString base = dot < 0 ? rest : rest.left(dot);
    if (!base.isEmpty()) vBase = base;
    if (dot >= 0 && dot + 1 < rest.size()) vExt = rest.mid(dot + 1);
}

QString GetFullPath(const QString& sBase, const QString& sPath, const QString& sExt) {
    QString base = sBase.trimmed();
    QString path = sPath.trimmed();
    if (path.isEmpty()) return {};
    const bool complete = HasDrive(path) || IsUnc(path) || path.startsWith(u'/');
    if (complete) base.clear();
    if (!base.isEmpty() && !EndsInSeparator(base)) base += SeparatorOf(base);
    if (!complete && path.startsWith(u'\\')) {
        path.remove(0, 1);
        // A native system has no current folder of the Windows family; the base then says which drive is
        // meant.
        base = base.isEmpty() ? base : RootOf(base);
    }
    if (!base.isEmpty() && PathFamilyOf(base) == PathFamily::Native) path = NativeSeparators(path);
    return WithExtension(base + path, sExt.trimmed());
}

bool ResolveFullPath(QString& sPath) {
    QString drive, dir, base, ext;
    FileNameFactor(sPath, drive, dir, base, ext);
    const bool native = sPath.startsWith(u'/');
    const bool rooted = dir.startsWith(u'\\');
    if (!native && !(rooted && !drive.isEmpty())) {
        if (rooted) {
            // Rooted without a drive: the drive of the current folder, which natively is the one root.
            sPath = NativeSeparators(dir) + NameWithExtension(base, ext, PathFamily::Native);
        } else {
            // There is no current folder on a drive to be had here, so both remaining cases meet in My Games.
            const QString folder = GetMyGamesDirectory();
            sPath = JoinPath(folder, NameWithExtension(base, ext, PathFamilyOf(folder)));
        }
    }
    sPath = Files::InDiskSpelling(sPath);
    return DoesFileExist(sPath);
}

} // namespace basCommon
