// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/LinesAnew.h"
#include "check/TextLimits.h"

#include <map>

namespace {

constexpr int kHundred = 100;

struct Narrowest {
    double dblSqueeze = TextLimits::kNarrowest;
    const PaperText* text = nullptr;
};

} // namespace

template <>
void RunCheck<class TextSqueezed>(const CheckedGame& game, Findings& findings) {
    std::map<GamePiece, Narrowest> narrowest;
    for (const PaperText& text : game.Texts()) {
        for (const WrittenText& line : text.written) {
            Narrowest& known = narrowest[text.piece];
            if (line.dblSqueeze < known.dblSqueeze) known = {line.dblSqueeze, &text};
        }
    }
    for (const auto& [piece, found] : narrowest) {
        if (!found.text) continue;
        findings
            .Add(piece,
                 QStringLiteral("The letters are squeezed to %1 % of their width %2.")
                     .arg(int(found.dblSqueeze * kHundred))
                     .arg(found.text->sWhere),
                 QStringLiteral("A shorter text gets wider letters."))
            .sheets = found.text->sheets;
    }
}

template <>
std::optional<Edit> MendFinding<class TextSqueezed>(const Game& game, const Finding& finding, const QString&) {
    return LinesAnew(game, finding.piece);
}
