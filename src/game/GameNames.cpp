// SPDX-License-Identifier: MIT
#include "game/GameNames.h"

#include "platform/text/Numbers.h"
#include "services/basPath.h"

namespace GameNames {
namespace {

struct Parts {
    QString sDrive, sDir, sBase, sExt;
};

Parts Split(const QString& sPath) {
    Parts parts;
    basCommon::FileNameFactor(sPath, parts.sDrive, parts.sDir, parts.sBase, parts.sExt);
    return parts;
}

} // namespace

bool IsUnnamed(const QString& sPath) {
    const QString mark = QStringLiteral("GAME");
    return sPath.isEmpty() || LeftStr(Split(sPath).sBase, int(mark.size())).toUpper() == mark;
}

QString FirstFreeName(const QString& sFolder) {
    for (int i = 1;; ++i) {
        const QString path = basCommon::JoinPath(sFolder, QStringLiteral("Game%1.gam").arg(i));
        if (!basCommon::DoesFileExist(path)) return path;
    }
}

QString FolderOf(const QString& sPath) {
    const Parts parts = Split(sPath);
    return parts.sDrive + parts.sDir;
}

QString FileNameOf(const QString& sPath) {
    const Parts parts = Split(sPath);
    return parts.sExt.isEmpty() ? parts.sBase : parts.sBase + u'.' + parts.sExt;
}

} // namespace GameNames
