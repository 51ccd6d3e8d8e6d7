// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "check/LinesAnew.h"
#include "check/TextLimits.h"

#include <map>

namespace {

struct Smallest {
    double dblPoints = TextLimits::kSmallestPoints;
    const PaperText* text = nullptr;
};

} // namespace

template <>
void RunCheck<class TextSmall>(const CheckedGame& game, Findings& findings) {
    std::map<GamePiece, Smallest> smallest;
    for (const PaperText& text : game.Texts()) {
        for (const WrittenText& line : text.written) {
            Smallest& known = smallest[text.piece];
            if (line.dblPoints < known.dblPoints && !line.sText.trimmed().isEmpty()) known = {line.dblPoints, &text};
        }
    }
    for (const auto& [piece, found] : smallest) {
        if (!found.text) continue;
        const QString where = found.text->sWhere.isEmpty() ? QString() : u' ' + found.text->sWhere;
        findings
            .Add(piece,
                 QStringLiteral("The letters are too small to read%1: %2 points high.")
                     .arg(where, QString::number(found.dblPoints, 'f', 1)),
                 QStringLiteral("Start new lines with Enter, or say it in fewer words."))
            .sheets = found.text->sheets;
    }
}

template <>
std::optional<Edit> MendFinding<class TextSmall>(const Game& game, const Finding& finding, const QString&) {
    return LinesAnew(game, finding.piece);
}
