// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

namespace Simulator {

/// A way to play. Amounts are in dollars, the rest in hundredths of a deed's price.
struct PlayerKind {
    const char* name;
    /// Kept in hand when buying and bidding, and when building and lifting mortgages.
    int keepsWhenBuying;
    int keepsWhenBuilding;
    /// Bids up to this for a deed, and for one that completes a group or keeps another from completing it.
    int bids;
    int bidsForGroup;
    /// What owning a whole group is worth to it beyond its deeds.
    int wholeGroup;
    /// On each visit to the lotto.
    int lottoBet;
    bool proposesTrades;
};

/// In the order of the report.
constexpr std::array<PlayerKind, 4> kPlayerKinds = {{
    {"buys all", 0, 500, 100, 130, 60, 100, false},
    {"saver", 3000, 4000, 60, 80, 40, 0, false},
    {"builder", 700, 300, 80, 180, 120, 0, true},
    {"trader", 500, 1000, 90, 150, 80, 300, true},
}};

} // namespace Simulator
