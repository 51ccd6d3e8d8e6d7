// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/FileName.h"

template <>
void RunCheck<class PictureMissing>(const CheckedGame& game, Findings& findings) {
    for (const PaperPicture& picture : game.Pictures()) {
        if (picture.fact.bThere) continue;
        findings
            .Add(picture.piece,
                 QStringLiteral("The picture %1 isn't where it was, so its place stays empty.")
                     .arg(FileNameOf(picture.ref.sPath)),
                 QStringLiteral("Put it back, or choose Find Missing Pictures in the File menu."))
            .sheets = picture.sheets;
    }
}
