// SPDX-License-Identifier: MIT
#include "windows/pictures/KeptPicture.h"

#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/files/TemporaryPlaces.h"
#include "platform/text/NewLine.h"
#include "services/basPath.h"
#include "windows/pictures/BrowsePlaces.h"

namespace {

// What is left free once the half-made copy is gone again tells why there was no room for it.
bool IsDiskFull(const QString& sSource, const QString& sFolder) {
    return Folders::FreeBytes(sFolder) < double(Files::Size(sSource));
}

} // namespace

QString FreePathIn(const QString& sFolder, const QString& sBase, const QString& sExt) {
    const int iCopy = BrowsePlaces::FirstFreeCopy(sFolder, sBase, sExt);
    return basCommon::JoinPath(sFolder, BrowsePlaces::CopyName(sBase, sExt, iCopy));
}

QString KeepPicture(const QString& sFile, QString& sWhyNot) {
    const QString games = basCommon::GetMyGamesDirectory();
    if (BrowsePlaces::IsOnGamesDrive(sFile, games) && !TemporaryPlaces::Hold(sFile)) return sFile;
    QString drive, dir, base, ext, error;
    basCommon::FileNameFactor(sFile, drive, dir, base, ext);
    const QString copy = FreePathIn(games, base, ext);
    if (Files::Copy(sFile, copy, error)) return copy;
    sWhyNot = WhyNotCopied(sFile, copy, error);
    return {};
}

QString WhyNotCopied(const QString& sFile, const QString& sTarget, const QString& sError) {
    if (IsDiskFull(sFile, basCommon::GetMyGamesDirectory())) {
        return QStringLiteral("We are unable to process files because your disk is full.") + kNewLine +
               QStringLiteral("Please make some space on your disk and try again.");
    }
    return QStringLiteral("The following error occurred while ") + kNewLine +
           QStringLiteral("attempting to copy the file ") + kNewLine + QStringLiteral("named '") + sFile +
           QStringLiteral("' to '") + sTarget + QStringLiteral("'.") + kNewLine + kNewLine + sError + kNewLine +
           kNewLine + QStringLiteral("Please correct this problem and try again.");
}
