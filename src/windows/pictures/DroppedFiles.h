// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"

#include <QStringList>

class QMimeData;
class Session;

/// Pictures that another program hands over by a drag or by the clipboard.
namespace DroppedFiles {

/// True for files, whatever they are, and for a picture without a file, as from a page of the web.
bool Holds(const QMimeData& data);

/// Paths of the files. A picture without one is kept in the games folder first, in "Pictures of" the game; empty after
/// a message where that fails, or where there is only the address of a page.
QStringList FilesOf(const QMimeData& data, const QString& sGameName);

/// Lays them onto a piece, and what is left over onto the free ones behind it, as one edit; what can't be taken is
/// told. Those on disks that may go away are kept among the games. True when the game has changed.
bool LayOnto(Session& session, const QStringList& files, const PictureOwner& piece);

/// For an editor that has the piece in hand: takes the first picture among them for it, and lays the others onto the
/// free pieces behind. Its path; empty, after it was told, where there is none. bOthers tells of the others.
QString TakeFirst(Session& session, const QStringList& files, const PictureOwner& piece, bool& bOthers);

} // namespace DroppedFiles
