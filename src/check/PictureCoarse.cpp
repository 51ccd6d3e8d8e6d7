// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/FileName.h"
#include "check/ShownPart.h"

template <>
void RunCheck<class PictureCoarse>(const CheckedGame& game, Findings& findings) {
    for (const PaperPicture& picture : game.Pictures()) {
        const std::optional<ZoomedSource> part = ShownPartOf(picture);
        if (!part) continue;
        const double dots = DotsPerInch(picture, *part);
        if (dots >= kFewestDotsPerInch) continue;
        findings
            .Add(picture.piece,
                 QStringLiteral("The picture %1 comes out coarse: %2 dots an inch, where %3 are needed.")
                     .arg(FileNameOf(picture.ref.sPath))
                     .arg(int(dots))
                     .arg(kFewestDotsPerInch),
                 QStringLiteral("Show more of it with Crop Image, or choose a larger picture."))
            .sheets = picture.sheets;
    }
}

template <>
std::optional<Edit> MendFinding<class PictureCoarse>(const Game& game, const Finding& finding, const QString&) {
    return WithOtherPart(game, finding.piece, -1);
}
