// SPDX-License-Identifier: MIT
#include "check/LinesAnew.h"

#include "check/PaperTexts.h"
#include "check/PieceParts.h"
#include "check/TextLimits.h"
#include "document/TextLines.h"
#include "platform/text/NewLine.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

qsizetype LongestOf(const QStringList& words) {
    return std::ranges::max(words, {}, [](const QString& word) { return word.size(); }).size();
}

// As many lines as it takes when none may be longer.
QStringList Broken(const QStringList& words, qsizetype longest) {
    QStringList lines;
    for (const QString& word : words) {
        if (!lines.isEmpty() && lines.last().size() + 1 + word.size() <= longest) {
            lines.last() += u' ' + word;
        } else {
            lines.append(word);
        }
    }
    return lines;
}

// How well the words come out: from 1 on nothing is wrong with them. The worst of them counts.
double QualityOf(const Game& game, const GamePiece& piece) {
    double worst = std::numeric_limits<double>::max();
    for (const PaperText& text : PaperTextsOf(game, piece)) {
        if (TextLimits::LeavesPiece(text)) return 0;
        for (const WrittenText& line : text.written) {
            if (line.sText.trimmed().isEmpty()) continue;
            worst = std::min(
                {worst, line.dblPoints / TextLimits::kSmallestPoints, line.dblSqueeze / TextLimits::kNarrowest});
        }
    }
    return worst;
}

} // namespace

std::optional<Edit> LinesAnew(const Game& game, const GamePiece& piece) {
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QStringList words = PieceParts::WordsOf(game, piece).split(blanks, Qt::SkipEmptyParts);
    if (words.isEmpty()) return std::nullopt;
    std::optional<Edit> best;
    double quality = 1;
    QStringList before;
    for (qsizetype longest = LongestOf(words); longest <= TextLines::kMaxLastLine; ++longest) {
        const QStringList lines = Broken(words, longest);
        if (lines.size() > TextLines::kMaxLines || lines == before) continue;
        before = lines;
        const std::optional<Edit> edit = PieceParts::WithWords(game, piece, lines.join(kNewLine));
        const double reached = edit ? QualityOf(edit->after, piece) : 0;
        if (reached < quality) continue;
        quality = reached;
        best = edit;
    }
    return best;
}
