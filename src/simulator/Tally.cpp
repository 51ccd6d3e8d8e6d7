// SPDX-License-Identifier: MIT
#include "simulator/Tally.h"

namespace Simulator {
namespace {

constexpr int kSecondsPerMinute = 60;
constexpr int kThousand = 1000;

void AddGroup(Tally::Group& group, SpaceSet spaces, const GameRecord& record) {
    int landings = 0;
    int spent = 0;
    int earned = 0;
    ForEach(spaces, [&](int space) {
        landings += record.landings[std::size_t(space)];
        spent += record.spent[std::size_t(space)];
        earned += record.earned[std::size_t(space)];
    });
    group.landings.Add(landings);
    group.deeds += std::popcount(spaces);
    group.deedsBought += std::popcount(spaces & record.bought);
    if ((spaces & record.bought) == 0) return;
    ++group.gamesBought;
    group.gamesPaid += earned >= spent ? 1 : 0;
    group.earned.Add(spent, earned);
}

void AddWinner(Tally& tally, const GameRecord& record) {
    ++tally.winsBySeat[std::size_t(record.winner)];
    for (int seat = 0; seat < record.players; ++seat)
        ++tally.seatsOfKind[std::size_t(record.kinds[std::size_t(seat)])];
    ++tally.winsOfKind[std::size_t(record.kinds[std::size_t(record.winner)])];
}

template <typename Counts>
void AddCounts(Counts& counts, const Counts& more) {
    for (std::size_t i = 0; i < counts.size(); ++i)
        counts[i] += more[i];
}

} // namespace

void Tally::Add(const GameRecord& record, const Deeds& deeds) {
    players = record.players;
    ++games;
    minutes.Add(record.Seconds() / kSecondsPerMinute);
    turns.Add(record.turns);
    endedBroke += record.end == GameRecord::End::SomebodyBroke ? 1 : 0;
    AddWinner(*this, record);
    trades.Add(record.trades);
    for (int group = 0; group < kGroups; ++group) {
        AddGroup(groups[std::size_t(group)], deeds.Group(group), record);
        groups[std::size_t(group)].gamesWhole += record.wasWhole[std::size_t(group)] ? 1 : 0;
    }
    if (record.lottoBet > 0) lotto.Add(record.lottoBet, record.lottoPaid);
    thousandsOut.Add(record.mostOut / kThousand);
}

void Tally::Add(const Tally& other) {
    if (other.games == 0) return;
    players = other.players;
    games += other.games;
    minutes.Add(other.minutes);
    turns.Add(other.turns);
    endedBroke += other.endedBroke;
    AddCounts(winsBySeat, other.winsBySeat);
    AddCounts(seatsOfKind, other.seatsOfKind);
    AddCounts(winsOfKind, other.winsOfKind);
    trades.Add(other.trades);
    for (std::size_t i = 0; i < groups.size(); ++i) {
        Group& group = groups[i];
        const Group& more = other.groups[i];
        group.landings.Add(more.landings);
        group.deeds += more.deeds;
        group.deedsBought += more.deedsBought;
        group.gamesWhole += more.gamesWhole;
        group.gamesBought += more.gamesBought;
        group.gamesPaid += more.gamesPaid;
        group.earned.Add(more.earned);
    }
    lotto.Add(other.lotto);
    thousandsOut.Add(other.thousandsOut);
}

} // namespace Simulator
