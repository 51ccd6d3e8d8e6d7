// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Statistics.h"
#include "simulator/Table.h"

namespace Simulator {

/// What many games with the same number of players have in common.
struct Tally {
    void Add(const GameRecord& record, const Deeds& deeds);
    void Add(const Tally& other);

    int players = 0;
    std::int64_t games = 0;
    /// In minutes.
    Histogram minutes;
    Sample turns;
    /// Games that ended because somebody was broke; the others ended when the alarm rang.
    std::int64_t endedBroke = 0;
    std::array<std::int64_t, kMostPlayers> winsBySeat{};
    std::array<std::int64_t, kPlayerKinds.size()> seatsOfKind{};
    std::array<std::int64_t, kPlayerKinds.size()> winsOfKind{};
    Sample trades;

    struct Group {
        /// On any of its spaces, in a game.
        Sample landings;
        /// Of its deeds that somebody owned some time.
        std::int64_t deeds = 0;
        std::int64_t deedsBought = 0;
        std::int64_t gamesWhole = 0;
        /// Games in which a deed of it was bought, and in which its rents came up to all that was spent on it.
        std::int64_t gamesBought = 0;
        std::int64_t gamesPaid = 0;
        Ratio earned;
    };
    std::array<Group, kGroups> groups;

    Ratio lotto;
    /// The most that the players held together in a game, in thousands.
    Histogram thousandsOut;
};

} // namespace Simulator
