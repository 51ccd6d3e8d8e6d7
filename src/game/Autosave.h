// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// The two files that hold the game as it is being edited, so that a crash loses at most the last edit, and
/// the rule that they never vanish while they are the only copy of somebody's work.
namespace Autosave {

/// The current state, and the state one change earlier.
QString DataPath();
QString BackupPath();

/// What became of the two files ahead of writing a new state.
enum class Rotated { DataBecameBackup, BackupIsAll };

/// Makes the current state the earlier one, ahead of writing a new one. Raises when the disk refuses.
Rotated Rotate();
/// When the new state has been written: takes away an earlier one that had to stay as long as it was all there
/// was. Raises when the disk refuses.
void EndRotation(Rotated rotated);

/// Tells how saving the game under its own name went; content is what should have been written.
void NoteSave(bool bInPlace, const QString& sGameName, const QByteArray& content);

/// Deletes both files. If the game's last save didn't put its file in place, the work is first kept in the
/// My Games directory as "Rescued " and the game's name. Raises when the disk refuses.
void Forget();

/// True when the last save of this game failed and neither an autosave nor a rescued copy holds it.
bool IsKeptNowhere(const QString& sGameName);

/// For tests: as before any save.
void ResetForTest();

} // namespace Autosave
