// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "platform/paint/FontFace.h"

#include <map>

template <>
void RunCheck<class LettersMissing>(const CheckedGame& game, Findings& findings) {
    std::map<GamePiece, QStringList> missing;
    for (const PaperText& text : game.Texts()) {
        for (const WrittenText& line : text.written) {
            const FontFace& face = FontFace::Get(line.sFamily, line.bBold, line.bItalic);
            missing[text.piece].append(face.Unprintable(line.sText));
        }
    }
    for (auto& [piece, letters] : missing) {
        letters.removeDuplicates();
        if (letters.isEmpty()) continue;
        const bool one = letters.size() == 1;
        findings.Add(piece,
                     QStringLiteral("Paper won't show %1: no font of this computer can print %2.")
                         .arg(letters.join(u' '), one ? QStringLiteral("it") : QStringLiteral("them")),
                     QStringLiteral("Write it with other letters."));
    }
}
