// SPDX-License-Identifier: MIT
#pragma once

#include "game/Refusal.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The two files that hold the game as it is being edited, so that a crash loses at most the last edit, and
/// the rule that they never vanish while they are the only copy of somebody's work.
namespace Autosave {

/// The current state, and the state one change earlier.
QString DataPath();
QString BackupPath();
/// Whether a path is that of one of the two. A file of that name elsewhere is as good as any other.
bool IsOneOf(const QString& sPath);

/// What became of the two files ahead of writing a new state.
enum class Rotated { DataBecameBackup, BackupIsAll };

/// Makes the current state the earlier one, ahead of writing a new one. A current one that couldn't be read is put
/// aside. Raises when the disk refuses.
Rotated Rotate();
/// When the new state has been written: takes away an earlier one that had to stay as long as it was all there
/// was. Raises when the disk refuses.
void EndRotation(Rotated rotated, const QByteArray& content);

/// Tells how saving the game under its own name went; content is what should have been written. A refusal behind the
/// head of the file has not been told yet.
void NoteSave(const QString& sGameName, const QByteArray& content, const std::optional<GameFile::Refusal>& refusal);

/// Deletes both files. If the game's last save didn't put its file in place, the work is first kept in the My Games
/// directory as "Rescued " and the game's name, and a box says so. What can't be kept is told once, and then nothing
/// is deleted. Raises when the disk refuses.
void Forget();
/// The user wants none of it any more: as Forget, but what can't be kept is asked about no longer.
void GiveUp();

/// True when the last save of this game failed and no rescued copy holds it either.
bool IsStillToBeKept(const QString& sGameName);
/// Sentences for the user: where the game that should have been written with this content lies now. Empty when its
/// own file holds it.
QString WhereItLies(const QByteArray& content);

/// For tests: as before any save.
void ResetForTest();

} // namespace Autosave
