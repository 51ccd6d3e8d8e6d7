// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Dice.h"
#include "simulator/PlayerKind.h"
#include "simulator/PlaySet.h"

#include <array>
#include <bit>
#include <vector>

namespace Simulator {

constexpr int kNobody = -1;

/// One player at the table.
struct Seat {
    int kind = 0;
    int money = 0;
    /// Where the token stands, 0 to 31.
    int place = 0;
    SpaceSet deeds = 0;
    bool missesNextTurn = false;
};

/// What is remembered of one game.
struct GameRecord {
    enum class End { SomebodyBroke, Alarm };

    int players = 0;
    std::array<int, kMostPlayers> kinds{};
    int winner = kNobody;
    End end = End::Alarm;
    /// Throws of the dice that moved a token.
    int turns = 0;
    /// Deeds bought, auctioned and traded, and buildings begun: what takes time beyond the turn.
    int purchases = 0;
    int trades = 0;
    int lottoBet = 0;
    int lottoPaid = 0;
    /// The most money that the players held together.
    int mostOut = 0;
    std::array<int, kSpaces> landings{};
    /// Paid to the bank for the deed and its stories, and taken in as rent, whoever owned it.
    std::array<int, kSpaces> spent{};
    std::array<int, kSpaces> earned{};
    /// Spaces that somebody owned some time, and groups that were once whole in one hand.
    SpaceSet bought = 0;
    std::array<bool, kGroups> wasWhole{};

    /// By the clock: a turn takes 25 seconds, a purchase 20 more.
    int Seconds() const { return 25 * turns + 20 * purchases; }
};

/// All that lies on the table. Money is only ever moved from one hand to another.
class Table {
public:
    /// The player in seat 0 goes first.
    Table(const PlaySet& set, const std::vector<int>& kinds);

    const PlaySet& set;
    std::vector<Seat> seats;
    int bank;
    std::array<int, kSpaces> owner{};
    SpaceSet mortgaged = 0;
    std::array<int, kSpaces> stories{};
    int broke = kNobody;
    GameRecord record;

    int Players() const { return int(seats.size()); }
    Seat& At(int seat) { return seats[std::size_t(seat)]; }
    const Seat& At(int seat) const { return seats[std::size_t(seat)]; }
    const PlayerKind& KindOf(int seat) const { return kPlayerKinds[std::size_t(At(seat).kind)]; }
    const Deed& DeedOf(int space) const { return set.deeds[space]; }

    int LeftOf(int seat) const { return (seat + 1) % Players(); }
    /// Somebody couldn't pay: the game is over.
    bool IsOver() const { return broke != kNobody; }
    /// The player with most to call their own; of several, the one who goes first. Not the one who is broke.
    int Richest() const;

    void FromBank(int seat, int amount);
    void ToBank(int seat, int amount);
    void Give(int from, int to, int amount);

    bool OwnsGroup(int seat, int group) const;
    int StoriesOnGroup(int group) const;
    void HandOver(int space, int to);

    int RentOf(int space) const;
    /// Money, prices of deeds (half of them while mortgaged) and what the stories cost.
    int WealthOf(int seat) const;

private:
    int m_out = 0;
};

/// Calls a routine with each space of a set.
template <typename Routine>
void ForEach(SpaceSet set, const Routine& routine) {
    for (; set != 0; set &= set - 1)
        routine(std::countr_zero(set));
}

} // namespace Simulator
