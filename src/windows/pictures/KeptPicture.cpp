// SPDX-License-Identifier: MIT
#include "windows/pictures/KeptPicture.h"

#include "platform/files/Files.h"
#include "platform/files/TemporaryPlaces.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "windows/pictures/BrowsePlaces.h"

QString FreePathIn(const QString& sFolder, const QString& sBase, const QString& sExt) {
    const int iCopy = BrowsePlaces::FirstFreeCopy(sFolder, sBase, sExt);
    return basCommon::JoinPath(sFolder, BrowsePlaces::CopyName(sBase, sExt, iCopy));
}

QString KeepPicture(const QString& sFile) {
    const QString games = basCommon::GetMyGamesDirectory();
    if (BrowsePlaces::IsOnGamesDrive(sFile, games) && !TemporaryPlaces::Hold(sFile)) return sFile;
    QString drive, dir, base, ext, error;
    basCommon::FileNameFactor(sFile, drive, dir, base, ext);
    const QString copy = FreePathIn(games, base, ext);
    if (Files::Copy(sFile, copy, error)) return copy;
    basErrLog::ErrLogToFile(error, true);
    return sFile;
}
