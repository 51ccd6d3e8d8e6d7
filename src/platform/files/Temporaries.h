// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Files and folders that exist only while the program makes something. Their names say whose they are and they are
/// held as long as their maker lives, so that what a killed program left behind is known, and nothing else is ever
/// taken for it. They are short, however long the name of what is being made.
namespace Temporaries {

/// Path of a file in a folder, beside the one that it will replace. It is hidden; there is none of its name.
QString FileIn(const QString& sFolder);
/// Path of a folder in another.
QString FolderIn(const QString& sFolder);

/// While one exists, other threads wait with what they make: under it a file or folder is made and held at once, and
/// whoever ends the program under it leaves none behind that was made but not held yet.
class Making {
public:
    Making();
    ~Making();
    Making(const Making&) = delete;
    Making& operator=(const Making&) = delete;
};

/// Tells that this process is at work on it; handle is the open file's, or -1 for a folder. False when somebody has
/// just cleared it away: then another is needed.
bool Hold(const QString& sPath, int handle);
/// Tells that it has got its true name or is gone.
void LetGo(const QString& sPath);

/// Deletes from a folder what programs of this user on this computer have left there and nobody holds.
void ClearLeftovers(const QString& sFolder);
/// The same, the first time in this run that the folder is named.
void ClearLeftoversOnce(const QString& sFolder);

/// Deletes all that this process holds. For a program that is being ended while it works, from any thread.
void RemoveHeld();

} // namespace Temporaries
