// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "platform/paint/FontFace.h"

#include <map>

namespace {

struct Lacking {
    QStringList letters;
    QStringList sheets;
};

} // namespace

template <>
void RunCheck<class LettersMissing>(const CheckedGame& game, Findings& findings) {
    std::map<GamePiece, Lacking> missing;
    for (const PaperText& text : game.Texts()) {
        for (const WrittenText& line : text.written) {
            const FontFace& face = FontFace::Get(line.sFamily, line.bBold, line.bItalic);
            const QStringList letters = face.Unprintable(line.sText);
            if (letters.isEmpty()) continue;
            missing[text.piece].letters.append(letters);
            missing[text.piece].sheets.append(text.sheets);
        }
    }
    for (auto& [piece, lacking] : missing) {
        QStringList& letters = lacking.letters;
        letters.removeDuplicates();
        lacking.sheets.removeDuplicates();
        const bool one = letters.size() == 1;
        findings
            .Add(piece,
                 QStringLiteral("Paper won't show %1: no font of this computer can print %2.")
                     .arg(letters.join(u' '), one ? QStringLiteral("it") : QStringLiteral("them")),
                 QStringLiteral("Write it with other letters."))
            .sheets = lacking.sheets;
    }
}
