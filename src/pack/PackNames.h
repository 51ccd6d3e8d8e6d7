// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

/// How the entries of a packed game are named, and which names of a stranger's are taken.
namespace PackNames {

/// What a packed game's name ends in.
extern const QString kEnding;
/// The first entry, which tells desktops what the file is, and what it says.
extern const QString kTypeEntry;
extern const QByteArray kType;
extern const QString kBoardEntry;
extern const QString kFontListEntry;
/// Folders, each with its slash.
extern const QString kPictures;
extern const QString kFonts;

/// A name that every desktop takes for a file, as near to the one asked for as can be.
QString FileName(const QString& sWanted);
/// The same for a folder among the user's games, where the program keeps files and folders of its own: none of their
/// names, whatever its case, and no bitmap's.
QString FolderName(const QString& sWanted);
/// An entry in a folder for a file of that path, and of a name that none has yet, whatever its case; it is then taken.
QString EntryFor(const QString& sFolder, const QString& sPath, QSet<QString>& taken);
/// Two names are equal, to one desktop or the other, when these are.
QString Key(const QString& sName);

/// A relative path of plain names: nothing that leads out of the folder it is unpacked to, names a drive or a device,
/// or would be another's name on some desktop. One slash at the end is passed over.
bool IsSafe(const QString& sEntry);

} // namespace PackNames
