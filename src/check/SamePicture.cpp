// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/FileName.h"

#include <algorithm>

template <>
void RunCheck<class SamePicture>(const CheckedGame& game, Findings& findings) {
    const std::vector<PaperPicture>& pictures = game.Pictures();
    for (auto picture = pictures.begin(); picture != pictures.end(); ++picture) {
        // Another part of the same photo is another picture.
        const auto before = std::find_if(pictures.begin(), picture, [&](const PaperPicture& other) {
            return other.ref == picture->ref && other.piece.kind == picture->piece.kind;
        });
        if (before == picture) continue;
        findings
            .Add(picture->piece,
                 QStringLiteral("It shows the same picture %1 as another: %2.")
                     .arg(FileNameOf(picture->ref.sPath), before->piece.NameIn(game.game)),
                 QStringLiteral("Leave it so if you like it, or choose another picture or another part of it."))
            .sheets = picture->sheets;
    }
}
