// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

#include <memory>
#include <vector>

class Recording;

/// Where a board is cut so that it fits on pages. All lengths are inches.
namespace BoardJoins {

/// A word, or whatever else should not be cut, along one axis.
struct Span {
    double from;
    double to;
};

/// What one page shows of the board along one axis.
struct Strip {
    double from;
    /// Where the next page lies on top.
    double to;
    /// Where the page is cut: behind what the next one is glued on.
    double shownTo;

    double Shown() const { return shownTo - from; }
};

struct Axis {
    double from;
    double to;
    /// What a page can show, with the part that is glued.
    double most;
    double overlap;
};

/// How far a cut may lie from where pages of one size would have it.
double Reach();

/// The strips of an axis: as few as there can be, and no cut runs through a word when another within Reach() of where
/// it would lie else avoids it. The axis is longer than nothing, and a page shows more than the overlap.
std::vector<Strip> Strips(const Axis& axis, const std::vector<Span>& words);

/// How many words a cut runs through.
int WordsCut(double at, const std::vector<Span>& words);

/// The boxes of all words of a board of so many inches.
std::vector<QRectF> WordsOf(const Recording& board, double dblInches);

} // namespace BoardJoins
