// SPDX-License-Identifier: MIT
#include "check/Checks.h"

#include <algorithm>
#include <map>

namespace {

// By then a person knows what is the matter.
constexpr qsizetype kMostNamed = 12;

QString Named(const QStringList& letters) {
    const QString named = letters.first(std::min(letters.size(), kMostNamed)).join(u' ');
    const qsizetype others = letters.size() - kMostNamed;
    return others > 0 ? QStringLiteral("%1 and %2 more").arg(named).arg(others) : named;
}

struct Lacking {
    QStringList letters;
    QStringList sheets;
};

} // namespace

template <>
void RunCheck<class LettersMissing>(const CheckedGame& game, Findings& findings) {
    std::map<GamePiece, Lacking> missing;
    for (const PaperText& text : game.Texts()) {
        if (text.lacking.isEmpty()) continue;
        missing[text.piece].letters.append(text.lacking);
        missing[text.piece].sheets.append(text.sheets);
    }
    for (auto& [piece, lacking] : missing) {
        QStringList& letters = lacking.letters;
        letters.removeDuplicates();
        lacking.sheets.removeDuplicates();
        const bool one = letters.size() == 1;
        findings
            .Add(piece,
                 QStringLiteral("Paper won't show %1: no font of this computer can print %2.")
                     .arg(Named(letters), one ? QStringLiteral("it") : QStringLiteral("them")),
                 QStringLiteral("Write it with other letters."))
            .sheets = lacking.sheets;
    }
}
