// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/FileName.h"
#include "check/ShownPart.h"

#include <algorithm>

namespace {

// In parts of the side; less is no bar but a line.
constexpr double kWidthOfLine = 0.01;

int LargestGap(const ZoomedSource& part, QSize picture) {
    return std::max(
        {-part.xSrc, -part.ySrc, part.xSrc + part.iSide - picture.width(), part.ySrc + part.iSide - picture.height()});
}

} // namespace

template <>
void RunCheck<class PictureBars>(const CheckedGame& game, Findings& findings) {
    for (const PaperPicture& picture : game.Pictures()) {
        const std::optional<ZoomedSource> part = ShownPartOf(picture);
        if (!part || LargestGap(*part, picture.fact.head->size) <= kWidthOfLine * part->iSide) continue;
        findings.Add(picture.piece,
                     QStringLiteral("The picture %1 doesn't fill its place: bars stay beside it.")
                         .arg(FileNameOf(picture.ref.sPath)),
                     QStringLiteral("Crop Image fills the place when you zoom in a little."));
    }
}
