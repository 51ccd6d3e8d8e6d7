// SPDX-License-Identifier: MIT
#include "nokit/BoardJoins.h"

#include "nokit/Millimetres.h"
#include "platform/paint/FontFace.h"
#include "platform/paint/Recording.h"
#include "platform/paint/WrittenTexts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace BoardJoins {
namespace {

constexpr double kReach = Inches(15);
constexpr int kSteps = 30;
constexpr double kStep = kReach / kSteps; // half a millimetre
// What sums of lengths may differ by.
constexpr double kHair = 1e-6;
constexpr double kFullTurn = 360;

/// A cut that a join may make.
struct Candidate {
    double at = 0;
    int words = 0;
    double off = 0;
};

/// How good the best joins up to a candidate are, and which candidate of the join before belongs to them.
struct Best {
    int words = std::numeric_limits<int>::max();
    double off = 0;
    int before = -1;

    bool IsReached() const { return words != std::numeric_limits<int>::max(); }
    bool operator<(const Best& other) const { return words != other.words ? words < other.words : off < other.off; }
};

using Row = std::vector<Candidate>;

double Even(const Axis& axis, int pages) {
    return (axis.to - axis.from + axis.overlap * (pages - 1)) / pages - axis.overlap;
}

int FewestPages(const Axis& axis) {
    int pages = 1;
    while (Even(axis, pages) + axis.overlap > axis.most + kHair)
        ++pages;
    return pages;
}

Row CandidatesNear(double ideal, const std::vector<Span>& words) {
    Row row;
    for (int step = -kSteps; step <= kSteps; ++step) {
        const double at = ideal + step * kStep;
        row.push_back({at, WordsCut(at, words), std::abs(step * kStep)});
    }
    return row;
}

int FewestWords(const Row& row) {
    return std::min_element(row.begin(), row.end(),
                            [](const Candidate& a, const Candidate& b) { return a.words < b.words; })
        ->words;
}

// From the best ways to the joins before to those of this one.
std::vector<Best> BestOf(const Row& row, const Row& before, const std::vector<Best>& bestBefore, const Axis& axis) {
    std::vector<Best> best(row.size());
    for (size_t i = 0; i < row.size(); ++i) {
        for (size_t j = 0; j < before.size(); ++j) {
            const double step = row[i].at - before[j].at;
            if (!bestBefore[j].IsReached() || step <= axis.overlap) continue;
            if (step + axis.overlap > axis.most + kHair) continue;
            const Best way{bestBefore[j].words + row[i].words, bestBefore[j].off + row[i].off, int(j)};
            if (way < best[i]) best[i] = way;
        }
    }
    return best;
}

std::vector<double> Traced(const std::vector<Row>& rows, const std::vector<std::vector<Best>>& bests, int last) {
    std::vector<double> joins;
    int at = last;
    for (size_t row = rows.size() - 1; row > 0; --row) {
        joins.insert(joins.begin(), rows[row][size_t(at)].at);
        at = bests[row][size_t(at)].before;
    }
    return joins;
}

struct Joins {
    std::vector<double> at;
    /// Of words that are cut, how many needn't be if pages were larger.
    int tooMany = 0;
};

/// The best joins for so many pages; nothing where that many have no room.
std::optional<Joins> JoinsOf(const Axis& axis, int pages, const std::vector<Span>& words) {
    std::vector<Row> rows{{{axis.from, 0, 0}}};
    std::vector<std::vector<Best>> bests{{Best{0, 0, -1}}};
    int fewest = 0;
    for (int page = 1; page < pages; ++page) {
        rows.push_back(CandidatesNear(axis.from + page * Even(axis, pages), words));
        fewest += FewestWords(rows.back());
        bests.push_back(BestOf(rows.back(), rows[rows.size() - 2], bests.back(), axis));
    }
    std::optional<size_t> chosen;
    for (size_t i = 0; i < rows.back().size(); ++i) {
        const double last = axis.to - rows.back()[i].at;
        if (!bests.back()[i].IsReached() || last > axis.most + kHair || last <= axis.overlap) continue;
        if (!chosen || bests.back()[i] < bests.back()[*chosen]) chosen = i;
    }
    if (!chosen) return std::nullopt;
    return Joins{Traced(rows, bests, int(*chosen)), bests.back()[*chosen].words - fewest};
}

// Of a text that stands in its box: the words one by one, by the widths that they take of it.
void AddWords(const WrittenText& text, std::vector<QRectF>& boxes) {
    const FontFace& face = FontFace::Get(text.sFamily, text.bBold, text.bItalic);
    const double all = face.Advance(text.sText);
    const double turn = std::fmod(text.dblTurn + kFullTurn, kFullTurn);
    const bool along = std::abs(std::cos(turn * std::acos(-1) / (kFullTurn / 2))) > 1 - kHair;
    const bool upDown = std::abs(std::sin(turn * std::acos(-1) / (kFullTurn / 2))) > 1 - kHair;
    if (all <= 0 || !(along || upDown)) {
        boxes.push_back(text.box);
        return;
    }
    const bool backwards = turn > kFullTurn / 4 + 1;
    qsizetype at = 0;
    for (const QString& word : text.sText.split(u' ')) {
        double from = face.Advance(text.sText.left(at)) / all;
        double to = face.Advance(text.sText.left(at + word.size())) / all;
        if (backwards) std::tie(from, to) = std::pair(1 - to, 1 - from);
        at += word.size() + 1;
        if (word.isEmpty()) continue;
        QRectF box = text.box;
        if (along) {
            box.setLeft(text.box.left() + from * text.box.width());
            box.setRight(text.box.left() + to * text.box.width());
        } else {
            box.setTop(text.box.top() + from * text.box.height());
            box.setBottom(text.box.top() + to * text.box.height());
        }
        boxes.push_back(box);
    }
}

} // namespace

double Reach() { return kReach; }

int WordsCut(double at, const std::vector<Span>& words) {
    return int(
        std::count_if(words.begin(), words.end(), [at](const Span& word) { return word.from < at && at < word.to; }));
}

std::vector<Strip> Strips(const Axis& axis, const std::vector<Span>& words) {
    // A page more than there must be leaves the cuts all the room that they want; more than that would only make work.
    constexpr int kMore = 2;
    const int fewest = FewestPages(axis);
    std::optional<Joins> best;
    for (int pages = fewest; pages <= fewest + kMore && !(best && best->tooMany == 0); ++pages) {
        const std::optional<Joins> joins = JoinsOf(axis, pages, words);
        if (joins && (!best || joins->tooMany < best->tooMany)) best = joins;
    }
    std::vector<Strip> strips;
    double from = axis.from;
    for (const double join : best.value_or(Joins()).at) {
        strips.push_back({from, join, join + axis.overlap});
        from = join;
    }
    strips.push_back({from, axis.to, axis.to});
    return strips;
}

std::vector<QRectF> WordsOf(const Recording& board, double dblInches) {
    std::vector<QRectF> boxes;
    for (const WrittenText& text : WrittenTextsOf(board, {dblInches, dblInches}))
        AddWords(text, boxes);
    return boxes;
}

} // namespace BoardJoins
