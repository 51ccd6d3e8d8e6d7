// SPDX-License-Identifier: MIT
#include "simulator/RunGames.h"

#include "simulator/GamePlay.h"

#include <algorithm>
#include <future>

namespace Simulator {
namespace {

Tally RunSome(const PlaySet& set, const Plan& plan, int first, int end) {
    Tally tally;
    for (int game = first; game < end; ++game)
        tally.Add(GamePlay(set, KindsOf(plan, game), SeedOf(plan, game)).Run(), set.deeds);
    return tally;
}

} // namespace

std::uint64_t SeedOf(const Plan& plan, int game) {
    // Far enough apart that no two games of a run share a seed.
    return plan.seed * 1000000007 + std::uint64_t(plan.players) * 100000000 + std::uint64_t(game);
}

std::vector<int> KindsOf(const Plan& plan, int game) {
    // Not the dice of the game itself, or the first throws would tell who throws them.
    Dice dice(~SeedOf(plan, game));
    std::vector<int> kinds(std::size_t(plan.players));
    std::generate(kinds.begin(), kinds.end(), [&] { return dice.Below(int(kPlayerKinds.size())); });
    return kinds;
}

Tally RunGames(const PlaySet& set, const Plan& plan) {
    std::vector<std::future<Tally>> parts;
    const int threads = std::max(1, plan.threads);
    for (int part = 0; part < threads; ++part) {
        const int first = int(std::int64_t(plan.games) * part / threads);
        const int end = int(std::int64_t(plan.games) * (part + 1) / threads);
        parts.push_back(std::async(std::launch::async, [=, &set] { return RunSome(set, plan, first, end); }));
    }
    Tally tally;
    for (std::future<Tally>& part : parts)
        tally.Add(part.get());
    return tally;
}

} // namespace Simulator
