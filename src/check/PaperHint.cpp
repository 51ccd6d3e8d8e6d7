// SPDX-License-Identifier: MIT
#include "check/PaperHint.h"

#include "board/basPosit.h"
#include "check/PaperTexts.h"
#include "check/PieceParts.h"
#include "check/TextLimits.h"
#include "document/Game.h"
#include "platform/text/NewLine.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QString kBreak = QStringLiteral(": press Enter to break the line.");
const QString kShorten = QStringLiteral(": say it in fewer letters.");
const QString kEnlarge = QStringLiteral(": choose a larger font size.");

// Infinite where nothing is printed.
double SmallestPoints(const Game& game, const GamePiece& piece) {
    double smallest = std::numeric_limits<double>::infinity();
    for (const PaperText& text : PaperTextsOf(game, piece)) {
        for (const WrittenText& line : text.written) {
            if (!line.sText.trimmed().isEmpty()) smallest = std::min(smallest, line.dblPoints);
        }
    }
    return smallest;
}

// Down, so that letters of nearly the smallest height don't count as good.
QString OnPaper(double dblPoints) {
    const int points = int(std::floor(dblPoints));
    const QString height = points < 1    ? QStringLiteral("less than a point")
                           : points == 1 ? QStringLiteral("1 point")
                                         : QStringLiteral("%1 points").arg(points);
    return QStringLiteral("On paper this is %1 high").arg(height);
}

// The longest line broken at the blank nearest to its middle; empty where there is no blank, or no room for a line.
QString BrokenOnce(const QString& sWords) {
    QStringList lines = sWords.split(kNewLine);
    if (lines.size() >= TextLines::kMaxLines) return {};
    QString& longest = *std::ranges::max_element(lines, {}, &QString::size);
    const qsizetype middle = longest.size() / 2;
    const qsizetype behind = longest.indexOf(u' ', middle);
    const qsizetype ahead = longest.lastIndexOf(u' ', middle);
    const bool useBehind = behind >= 0 && (ahead < 0 || behind - middle < middle - ahead);
    const qsizetype at = useBehind ? behind : ahead;
    if (at < 1 || at >= longest.size() - 1) return {};
    longest.replace(at, 1, kNewLine);
    return lines.join(kNewLine);
}

double PointsOf(const Game& game, const GamePiece& piece, const QString& sWords) {
    const std::optional<Edit> edit = PieceParts::WithWords(game, piece, sWords);
    return edit ? SmallestPoints(edit->after, piece) : 0;
}

// Tried out: letters that are as small because there are many lines already get no larger by one more.
QString WhatHelps(const Game& game, const GamePiece& piece, double dblPoints) {
    const QString broken = BrokenOnce(PieceParts::WordsOf(game, piece));
    if (!broken.isEmpty() && PointsOf(game, piece, broken) > dblPoints) return kBreak;
    // The shortest word there is would be no larger.
    const double shortest = PointsOf(game, piece, QStringLiteral("i"));
    return shortest > 0 && !(shortest > dblPoints) ? kEnlarge : kShorten;
}

QString WhatHelpsTitle(Game game, int iTitle, double dblPoints) {
    constexpr int kGameName = 1;
    SpecialText& title = game.titles.Text(iTitle);
    const QString broken = iTitle == kGameName ? QString() : BrokenOnce(title.sText);
    if (broken.isEmpty()) return kShorten;
    basPosit::SetSpecialText(title, iTitle, broken);
    return SmallestPoints(game, GamePiece::Titles()) > dblPoints ? kBreak : kShorten;
}

template <typename Advice>
QString HintOf(double dblPoints, Advice advice) {
    if (!std::isfinite(dblPoints)) return {};
    return OnPaper(dblPoints) + (dblPoints < TextLimits::kSmallestPoints ? advice() : QStringLiteral("."));
}

} // namespace

QString PaperHint(const Game& game, const GamePiece& piece) {
    const double points = SmallestPoints(game, piece);
    return HintOf(points, [&] { return WhatHelps(game, piece, points); });
}

QString PaperHintOfTitle(const Game& game, int iTitle) {
    // Titles share their sheets, and are one piece.
    Game alone = game;
    for (int i = Titles::kFirst; i <= Titles::kLast; ++i) {
        if (i != iTitle) alone.titles.Text(i).sText.clear();
    }
    const double points = SmallestPoints(alone, GamePiece::Titles());
    return HintOf(points, [&] { return WhatHelpsTitle(alone, iTitle, points); });
}

QString LongestPaperHint() { return OnPaper(0) + kBreak; }
