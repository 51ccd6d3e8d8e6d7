// SPDX-License-Identifier: MIT
#include "pictures/MovedGame.h"

#include "services/basPath.h"

#include <algorithm>

namespace MovedGame {
namespace {

struct Folders {
    QString sBefore;
    QString sNow;
};

Folders& OfGame() {
    static Folders folders;
    return folders;
}

// "/a/b/" of "/a/b/c/" and "C:\a\" of "C:\a\b\"; empty above a root, and of nothing.
QString Above(const QString& sFolder) {
    if (sFolder.isEmpty()) return {};
    const QString folder = sFolder.chopped(1);
    return folder.left(std::max(folder.lastIndexOf(u'/'), folder.lastIndexOf(u'\\')) + 1);
}

// One that comes from another system has its separators the other way.
QString IfThere(QString sPlace) {
    if (sPlace.contains(u'/')) sPlace.replace(u'\\', u'/');
    return basCommon::DoesFileExist(sPlace) ? sPlace : QString();
}

// Further up the game and its pictures would hardly have been moved together.
constexpr int kMostUp = 2;

QString WithSeparator(const QString& sFolder) {
    return sFolder.isEmpty() ? QString() : basCommon::JoinPath(sFolder, QString());
}

} // namespace

void Note(const QString& sFolderBefore, const QString& sFolderNow) {
    const bool moved = !sFolderBefore.isEmpty() && !sFolderNow.isEmpty() && sFolderBefore != sFolderNow;
    OfGame() = moved ? Folders{WithSeparator(sFolderBefore), WithSeparator(sFolderNow)} : Folders();
}

QString PlaceOf(const QString& sPath) {
    QString before = OfGame().sBefore;
    QString now = OfGame().sNow;
    for (int up = 0; up <= kMostUp && !before.isEmpty() && !now.isEmpty(); ++up) {
        if (sPath.startsWith(before)) return IfThere(now + sPath.mid(before.size()));
        before = Above(before);
        now = Above(now);
    }
    return {};
}

// The name begins with the last folders of the game's old path: "Family/cat.jpg" of a game in "/a/My Games/Family/".
QString PlaceOfRelative(const QString& sName) {
    const QString& before = OfGame().sBefore;
    QString above = Above(before);
    for (int up = 0; up <= kMostUp && !above.isEmpty(); ++up) {
        const QString folders = before.mid(above.size());
        if (sName.startsWith(folders)) return IfThere(OfGame().sNow + sName.mid(folders.size()));
        above = Above(above);
    }
    return {};
}

} // namespace MovedGame
