// SPDX-License-Identifier: MIT
// Pictures from disks that may go away are kept in the My Games directory.
#include "platform/files/Files.h"
#include "platform/text/NewLine.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windows/pictures/frmBrowse.h"
#include "windows/pictures/KeptPicture.h"

bool frmBrowse::CopyFileToRoot() try {
    if (m_sOriginalPath == m_sFilePath) return true;
    const QString games = basCommon::GetMyGamesDirectory();
    if (BrowsePlaces::IsOnGamesDrive(m_sFilePath, games)) return true;

    QString drive, dir, base, ext;
    basCommon::FileNameFactor(m_sFilePath, drive, dir, base, ext);
    const int iCopy = BrowsePlaces::FirstFreeCopy(games, base, ext);
    const QString name = BrowsePlaces::CopyName(base, ext, iCopy);
    const QString target = basCommon::JoinPath(games, name);
    QString error;
    if (!Files::Copy(m_sFilePath, target, error)) {
        MsgBox(WhyNotCopied(m_sFilePath, target, error), vbInformation);
        return false;
    }
    // The copy of a picture told to be bad is as bad.
    if (m_sBadPath == m_sFilePath) m_sBadPath = target;
    ShowFilePath(target);
    TellCopy(name, iCopy > 0);
    return true;
} catch (...) {
    ErrTail("frmBrowse!", "CopyFileToRoot");
}

void frmBrowse::TellCopy(const QString& sCopyName, bool bRenamed) {
    QString text = QStringLiteral("This image was not on your primary local hard drive, ") +
                   QStringLiteral("so the system has copied it to your 'My Games' directory. ") +
                   QStringLiteral("Tavlora will use the copy in case the original becomes unavailable.");
    if (bRenamed) {
        // No quotation mark closes the name, and none ever has.
        text += kNewLine + kNewLine +
                QStringLiteral("Because the file name was already in use, it has been renamed to '") + sCopyName;
    }
    MsgBox(text);
}
