// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Tally.h"

namespace Simulator {

/// How many games are played, and by whom.
struct Plan {
    int games = 20000;
    int players = kFewestPlayers;
    std::uint64_t seed = 1;
    int threads = 2;
};

/// The seed of one game of a plan: whichever thread plays it, it is the same game.
std::uint64_t SeedOf(const Plan& plan, int game);
/// Who sits down to it, drawn from all kinds of players.
std::vector<int> KindsOf(const Plan& plan, int game);

Tally RunGames(const PlaySet& set, const Plan& plan);

} // namespace Simulator
