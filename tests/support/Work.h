// SPDX-License-Identifier: MIT
#pragma once

#include "support/ThreadTime.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <list>
#include <vector>

/// How much work something is, beside a fixed piece of it that is done in the same moment: a slow machine, a busy one
/// and a build with checks take longer for both.
namespace Work {

/// About as many pieces as a good machine does in a second. A build with checks notes for each room of memory who asked
/// for it, which takes the longer the deeper that lies: there more of these shallow pieces make one second.
#if defined(__SANITIZE_ADDRESS__)
constexpr double kASecond = 400;
#else
constexpr double kASecond = 60;
#endif

/// Numbers are sorted and small rooms of memory taken and given back, so that checks of either kind weigh.
inline void OnePiece() {
    std::vector<std::uint32_t> numbers(250'000);
    std::uint32_t next = 1;
    std::ranges::generate(numbers, [&next] { return next = next * 1664525 + 1013904223; });
    const std::list<std::uint32_t> rooms(numbers.begin(), numbers.begin() + 40'000);
    std::ranges::sort(numbers);
    // Asked for, so that it is done at all.
    if (!std::ranges::is_sorted(numbers) || rooms.back() == rooms.front()) std::abort();
}

/// Milliseconds of this thread for what is called.
template <typename Called>
double Milliseconds(const Called& called) {
    const double before = ThreadMilliseconds();
    called();
    return ThreadMilliseconds() - before;
}

/// Milliseconds of this thread for a piece of the fixed work, as it goes now.
inline double Piece() {
    double piece = std::numeric_limits<double>::max();
    for (int i = 0; i < 3; ++i)
        piece = std::min(piece, Milliseconds(OnePiece));
    return piece;
}

/// In pieces of the fixed work.
template <typename Called>
double Of(const Called& called) {
    const double took = Milliseconds(called);
    return took / Piece();
}

} // namespace Work
