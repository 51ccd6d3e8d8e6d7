// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/FileName.h"
#include "check/ShownPart.h"

template <>
void RunCheck<class PictureBars>(const CheckedGame& game, Findings& findings) {
    for (const PaperPicture& picture : game.Pictures()) {
        const std::optional<ZoomedSource> part = ShownPartOf(picture);
        if (!part || !LeavesBars(picture, *part)) continue;
        findings
            .Add(picture.piece,
                 QStringLiteral("The picture %1 doesn't fill its place: bars stay beside it.")
                     .arg(FileNameOf(picture.ref.sPath)),
                 QStringLiteral("Crop Image fills the place when you zoom in a little."))
            .sheets = picture.sheets;
    }
}

template <>
std::optional<Edit> MendFinding<class PictureBars>(const Game& game, const Finding& finding, const QString&) {
    return WithOtherPart(game, finding.piece, 1);
}
