// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

/// Where things lie on this machine.
namespace Folders {

/// The user's documents folder, without a trailing separator.
QString Documents();
QString Home();
QString Pictures();
/// A folder that nobody but this user can enter, for sockets: the session's, or one made for the purpose. Empty when
/// there is none to be had.
QString Runtime();
/// Folder of the program's own data files: the one given if any; else the folder of the program if its data
/// lie there, else share/tavlora beside it, else the build's data folder.
QString ProgramDirectory();
/// Gives another folder; an empty one lets the program find its own again.
void SetProgramDirectory(const QString& sFolder);

/// A path as a person types it, seen from the folder the program was started in, made complete.
QString CompletePath(const QString& sPath);
/// True for a path that doesn't depend on the current folder.
bool IsComplete(const QString& sPath);

struct Volume {
    QString sRoot;
    QString sName;
};
/// Home, root, removable and network volumes: those that a person would know.
QList<Volume> Volumes();
/// Tests say which volumes there are, in place of the machine's; each counts as mounted on its own. An empty
/// list gives the true ones again.
void PretendVolumes(const QList<Volume>& volumes);
/// True when both paths lie on the same mounted volume.
bool OnSameVolume(const QString& sPathA, const QString& sPathB);
/// True on a system whose volumes are named by drive letters.
bool HasDrives();
/// Bytes that the user may still write on the volume holding sPath; 0 when it can't be told.
double FreeBytes(const QString& sPath);
/// Tests say how much is free everywhere; a negative number gives the truth again.
void PretendFreeBytes(double bytes);

struct SystemVersion {
    int major = 0;
    int minor = 0;
    int build = 0;
    /// 1 old Windows, 2 Windows, 3 anything else.
    int platform = 0;
};
SystemVersion System();
/// Tests say which system this is; nothing gives the true one again.
void PretendSystem(const std::optional<SystemVersion>& system);
/// False on an old Windows only. The major version of another system is its kernel's, which says nothing about folders.
bool SystemHasDocuments();

} // namespace Folders
