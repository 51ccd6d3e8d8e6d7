// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What would otherwise be gone for good is kept in the My Games directory as "Rescued " and a name, numbered if
/// taken.
namespace Rescue {

/// A free path for it. The extension goes without its dot.
QString FreePath(const QString& sBase, const QString& sExtension);
/// The same for a file of this name.
QString FreePathFor(const QString& sPath);

/// A file was to be loaded as a game and couldn't be: a damaged game, or a picture chosen by mistake. From then on
/// the program takes it for the current game all the same, and may write over it.
void NoteUnread(const QString& sPath);
/// It could be loaded, so what it holds is in the game.
void NoteRead(const QString& sPath);
/// Ahead of writing over a file or deleting it: keeps a copy of one that couldn't be read. False and a sentence in
/// sError when that fails.
bool KeepUnread(const QString& sPath, QString& sError);

/// Whether a file is one that couldn't be read.
bool IsUnread(const QString& sPath);
/// The same as KeepUnread for one that isn't needed any more where it lies: it gets another name, which takes no room.
bool PutAside(const QString& sPath, QString& sError);

/// For tests: as if nothing had been loaded yet.
void ResetForTest();

} // namespace Rescue
