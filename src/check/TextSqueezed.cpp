// SPDX-License-Identifier: MIT
#include "check/Checks.h"

#include <map>

namespace {

// Narrower letters are hard to tell apart.
constexpr double kNarrowest = 0.6;
constexpr int kHundred = 100;

struct Narrowest {
    double dblSqueeze = kNarrowest;
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
        findings.Add(piece,
                     QStringLiteral("The letters are squeezed to %1 % of their width %2.")
                         .arg(int(found.dblSqueeze * kHundred))
                         .arg(found.text->sWhere),
                     QStringLiteral("A shorter text gets wider letters."));
    }
}
