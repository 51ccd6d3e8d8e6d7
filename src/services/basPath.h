// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Paths and existence tests of basCommon, in a unit of their own below the error log, which needs them.
/// Two families of paths are known. One with a drive letter, a leading "\\" or any "\" without a leading
/// "/" is of the Windows family, so that games from such machines are understood; one that begins with "/"
/// is native, complete and rooted. Nothing here touches the disk unless it says so.
namespace basCommon {

enum class PathFamily { Windows, Native };
PathFamily PathFamilyOf(const QString& sPath);

/// A folder and a name joined with the separator of the folder's family; backslashes in the name are
/// separators when the folder is native.
QString JoinPath(const QString& sFolder, const QString& sName);

/// If the condition is false, shows the message with the place ("module!routine") and ends the program at
/// once. For what can only be a programming error; ErrAssert is the softer one.
void Assert(bool bCondition, const QString& sMessage, const QString& sPlace);

/// The user's folder for games, settings, log and pictures, created if missing; without a trailing
/// separator. Asked of the system once in a run.
QString GetMyGamesDirectory();

/// Asks the disk. Case of letters is ignored where just one name fits. An empty path gives false; a bare
/// file name without a folder is a programming error and ends the program.
bool DoesFileExist(const QString& sPath);

/// Asks the disk; one trailing separator is ignored.
bool DoesDirExist(const QString& sPath);

/// Creates a folder and all above it. Raises 0x80040000 for a path without a root.
void ForceDirToExist(const QString& sPath);

/// Splits into drive ("C:"), directory (with its last separator), base name and extension. Parts that the
/// path hasn't are left as they were.
void FileNameFactor(const QString& sPath, QString& vDrive, QString& vDir, QString& vBase, QString& vExt);

/// The path seen from a base folder, with the extension where it has none. An empty path stays empty.
QString GetFullPath(const QString& sBase, const QString& sPath, const QString& sExt);

/// Makes a path complete, from the My Games directory where it has neither drive nor root (a relative
/// folder in it is then dropped), and tells whether that file exists. Asks the disk.
bool ResolveFullPath(QString& sPath);

} // namespace basCommon
