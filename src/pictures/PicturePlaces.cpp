// SPDX-License-Identifier: MIT
#include "pictures/PicturePlaces.h"

#include "pictures/MovedGame.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/BoardFacts.h"
#include "services/ProgramSettings.h"

#include <algorithm>
#include <optional>

namespace PicturePlaces {
namespace {

// Where relative pictures are looked for first.
QString PictureBase() {
    const QString& base = Settings().sRelativePictureBase;
    return base.isEmpty() ? basCommon::GetMyGamesDirectory() : base;
}

// What follows the folder in the path; nothing when the path doesn't lie in it.
std::optional<QString> PartBelow(const QString& sFolder, const QString& sPath) {
    const QString prefix = basCommon::JoinPath(sFolder, QString());
    if (sFolder.isEmpty() || !sPath.startsWith(prefix, Qt::CaseInsensitive)) return std::nullopt;
    QString part = sPath.mid(prefix.size());
    // Where case counts, a folder in another spelling is another folder: from here its pictures would never be found.
    const bool otherSpelling = !sPath.startsWith(prefix);
    if (otherSpelling && Files::Exists(sPath) && Files::StampOf(sPath) != Files::StampOf(prefix + part))
        return std::nullopt;
    return part;
}

// A drive without a folder names a file in the drive's root, as there is no current folder on a drive; a
// path without any separator would count as a programming error further on.
QString WithRootOfDrive(const QString& sName) {
    const bool driveOnly = sName.size() >= 2 && sName[1] == u':' && !sName.contains(u'\\') && !sName.contains(u'/');
    return driveOnly ? sName.left(2) + u'\\' + sName.mid(2) : sName;
}

bool IsComplete(const QString& sName) {
    return sName.startsWith(u'/') || sName.startsWith(u'\\') || (sName.size() >= 2 && sName[1] == u':');
}

// Of a folder with or without a separator behind it.
QString FolderAbove(const QString& sFolder) {
    const QString folder = sFolder.endsWith(u'/') || sFolder.endsWith(u'\\') ? sFolder.chopped(1) : sFolder;
    return folder.left(std::max(folder.lastIndexOf(u'/'), folder.lastIndexOf(u'\\')) + 1);
}

// The places at which a picture of a game file is looked for ahead of the program's own folder.
QStringList PlacesOf(const QString& sName) {
    if (IsComplete(sName)) {
        const QString place = basCommon::GetFullPath(PictureBase(), sName, QString());
        return {place, MovedGame::PlaceOf(place)};
    }
    QStringList places{basCommon::JoinPath(PictureBase(), sName)};
    const QString& beside = Settings().sGameDirectory;
    if (beside.isEmpty()) return places;
    places.append(basCommon::JoinPath(beside, sName));
    // A game in a folder of its own, "Family/Family.gam", names "Family/Pictures/cat.jpg": moved as a whole, both still
    // lie in a folder of that name.
    const QString above = FolderAbove(beside);
    if (!above.isEmpty()) places.append(basCommon::JoinPath(above, sName));
    // Under another name by now.
    places.append(MovedGame::PlaceOfRelative(sName));
    return places;
}

QString PlaceOf(const QString& sName) {
    for (const QString& place : PlacesOf(sName)) {
        if (basCommon::DoesFileExist(place)) return place;
    }
    // A name without an extension gets the wildcard as one. No such file is ever there; kept on purpose, as
    // the message about the missing file has always named it so.
    return basCommon::GetFullPath(Folders::ProgramDirectory(), sName, QStringLiteral("*.bmp"));
}

} // namespace

QString RelativeOf(const QString& sFullPath) {
    if (const std::optional<QString> part = PartBelow(PictureBase(), sFullPath)) return *part;
    if (const std::optional<QString> part = PartBelow(Folders::ProgramDirectory(), sFullPath)) return *part;
    return sFullPath;
}

QString FullOf(const QString& sName) {
    const QString name = sName.trimmed();
    return name.isEmpty() ? QString() : Files::InDiskSpelling(PlaceOf(WithRootOfDrive(name)));
}

QString FullFor(const QString& sName, const PictureOwner& owner, Kit kit) {
    const bool fate = ReadsFateItself(kit) && owner.IsFate();
    return FullOf(fate ? QString::fromLatin1(BoardFacts::kFatePicture) : sName);
}

QString Fate() {
    return basCommon::JoinPath(Folders::ProgramDirectory(), QString::fromLatin1(BoardFacts::kFatePicture));
}

} // namespace PicturePlaces
