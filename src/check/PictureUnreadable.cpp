// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/FileName.h"
#include "check/FoundPicture.h"

template <>
void RunCheck<class PictureUnreadable>(const CheckedGame& game, Findings& findings) {
    for (const PaperPicture& picture : game.Pictures()) {
        if (!picture.fact.bThere || picture.fact.head) continue;
        findings
            .Add(picture.piece,
                 QStringLiteral("The picture %1 can't be read, so its place stays empty.")
                     .arg(FileNameOf(picture.ref.sPath)),
                 QStringLiteral("Copy it once more from the camera or phone, or choose another one."))
            .sheets = picture.sheets;
    }
}

template <>
std::optional<Edit> MendFinding<class PictureUnreadable>(const Game& game, const Finding& finding,
                                                         const QString& sPicture) {
    return WithFoundPicture(game, finding.piece, sPicture);
}
