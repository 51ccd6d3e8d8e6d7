// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a start of the program fixes once and everything else asks: under which name it was started, where
/// the user's and the program's own files lie, and which boxed kit it prints for.
struct ProgramSettings {
    /// Last part of argv[0] as started, without extension. Names the INI file, its section and the log.
    QString sProgramName = QStringLiteral("tavlora");
    /// Folder for settings, log, autosave and thumbnails. Empty until first asked for.
    QString sMyGamesDirectory;
    /// Folder of this run alone, for files that are made only to be read again. Empty until first asked for.
    QString sWorkDirectory;
    /// Folder in which relative pictures are looked for first; empty means the My Games directory. Only
    /// tavlora-print sets the two apart, so that it leaves nothing in the user's folder.
    QString sRelativePictureBase;
    /// Folder of the game file in use, where relative pictures are looked for next.
    QString sGameDirectory;
    /// Folder of the settings file; empty means the My Games directory.
    QString sIniDirectory;
    /// Settings are read and never written.
    bool bIniReadOnly = false;
    /// No file of the user's is ever thrown away, whatever it is: nobody is there who could answer.
    bool bKeepUserFiles = false;
    /// Game kit variant: "2", "2A", "5" or "8".
    QString sGameVersion = QStringLiteral("8");
};

/// The settings of this run.
ProgramSettings& Settings();

/// The name a program was started under: the last part of argv[0], without extension, whichever slash
/// stands in it. A link's own name counts, not its target's.
QString ProgramNameFromArgv0(const QString& argv0);
