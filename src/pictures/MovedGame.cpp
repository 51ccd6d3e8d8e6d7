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

// "/a/b/" of "/a/b/c/" and "C:\a\" of "C:\a\b\"; empty above a root.
QString Above(const QString& sFolder) {
    const QString folder = sFolder.chopped(1);
    return folder.left(std::max(folder.lastIndexOf(u'/'), folder.lastIndexOf(u'\\')) + 1);
}

QString WithSeparator(const QString& sFolder) {
    return sFolder.isEmpty() ? QString() : basCommon::JoinPath(sFolder, QString());
}

} // namespace

void Note(const QString& sFolderBefore, const QString& sFolderNow) {
    const bool moved = !sFolderBefore.isEmpty() && !sFolderNow.isEmpty() && sFolderBefore != sFolderNow;
    OfGame() = moved ? Folders{WithSeparator(sFolderBefore), WithSeparator(sFolderNow)} : Folders();
}

QString PlaceOf(const QString& sPath) {
    // Further up the game and its pictures would hardly have been moved together.
    constexpr int kMostUp = 2;
    QString before = OfGame().sBefore;
    QString now = OfGame().sNow;
    for (int up = 0; up <= kMostUp && !before.isEmpty() && !now.isEmpty(); ++up) {
        if (sPath.startsWith(before)) {
            QString place = now + sPath.mid(before.size());
            // One that comes from another system has its separators the other way.
            if (now.contains(u'/')) place.replace(u'\\', u'/');
            return basCommon::DoesFileExist(place) ? place : QString();
        }
        before = Above(before);
        now = Above(now);
    }
    return {};
}

} // namespace MovedGame
