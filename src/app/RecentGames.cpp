// SPDX-License-Identifier: MIT
#include "app/RecentGames.h"

#include "game/GameNames.h"
#include "services/basCommon.h"
#include "services/basPath.h"

namespace RecentGames {
namespace {

QString KeyOf(int iPlace) { return QStringLiteral("RecentGame%1").arg(iPlace + 1); }

// Those that were read back may be fewer than were kept before.
void Keep(const QStringList& paths) {
    for (int i = 0; i < kMost; ++i) {
        const QString path = paths.value(i);
        if (path != basCommon::GetIniString(KeyOf(i))) basCommon::WriteIniString(KeyOf(i), path);
    }
}

} // namespace

QStringList List() {
    QStringList paths;
    for (int i = 0; i < kMost; ++i) {
        const QString path = basCommon::GetIniString(KeyOf(i));
        if (!path.isEmpty()) paths.append(path);
    }
    return paths;
}

void Note(const QString& sPath) {
    QStringList paths = List();
    if (!paths.isEmpty() && paths.first() == sPath) return;
    paths.removeAll(sPath);
    paths.prepend(sPath);
    Keep(paths);
}

void Replace(const QString& sPath, const QString& sFound) {
    QStringList paths = List();
    const qsizetype place = paths.indexOf(sPath);
    if (place < 0 || sPath == sFound) return;
    if (paths.contains(sFound)) {
        paths.removeAt(place);
    } else {
        paths[place] = sFound;
    }
    Keep(paths);
}

bool IsAway(const QString& sPath) { return !basCommon::DoesFileExist(sPath); }

QStringList Captions(const QStringList& paths) {
    QStringList captions;
    for (int i = 0; i < paths.size(); ++i) {
        QString caption = QStringLiteral("&%1 ").arg((i + 1) % kMost);
        caption += GameNames::FileNameOf(paths[i]).replace(u'&', QStringLiteral("&&"));
        if (IsAway(paths[i])) {
            caption +=
                QStringLiteral(" (not in ") + GameNames::FolderOf(paths[i]).replace(u'&', QStringLiteral("&&")) + u')';
        }
        captions.append(caption);
    }
    return captions;
}

} // namespace RecentGames
