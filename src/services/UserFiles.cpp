// SPDX-License-Identifier: MIT
#include "services/UserFiles.h"

#include "platform/files/Files.h"
#include "services/basErrLog.h"
#include "services/basPath.h"

namespace UserFiles {
namespace {

QString FreePathIn(const QString& sFolder, const QString& sPath) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sPath, drive, dir, base, ext);
    if (!ext.isEmpty()) ext.prepend(u'.');
    QString target = basCommon::JoinPath(sFolder, base + ext);
    for (int i = 1; basCommon::DoesFileExist(target); ++i)
        target = basCommon::JoinPath(sFolder, base + QStringLiteral("(%1)").arg(i) + ext);
    return target;
}

} // namespace

void ThrowAway(const QString& sPath) {
    const QString file = Files::InDiskSpelling(sPath);
    const QString start = QStringLiteral("The file named '") + file;
    QString error;
    if (Files::MoveToTrash(file, error)) {
        basErrLog::ErrLogToFile(start + QStringLiteral("' was moved to the trash."), true);
        return;
    }
    const QString folder = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Removed"));
    const QString target = FreePathIn(folder, file);
    const bool moved = Files::MakeDirectory(folder, error) && Files::Rename(file, target, error);
    basErrLog::ErrLogToFile(moved ? start + QStringLiteral("' was moved to '") + target + QStringLiteral("'.")
                                  : start + QStringLiteral("' stays where it is: ") + error,
                            true);
}

} // namespace UserFiles
