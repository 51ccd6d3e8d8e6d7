// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Deeds.h"
#include "simulator/NewsEffect.h"

#include <array>

namespace Simulator {

constexpr int kMostPlayers = 6;
constexpr int kFewestPlayers = 2;
constexpr std::array<int, 4> kNotes = {100, 500, 1000, 5000};
constexpr int kSmallestNote = kNotes[0];

/// The numbers of the rules page, in dollars where nothing else is said.
struct HouseRules {
    int startMoney = 8000;
    /// What each player gets more than the one who goes before.
    int morePerSeat = 100;
    int passingStart = 1000;
    int mostLottoBet = 1000;
    /// On top of the mortgage value, to turn a deed up again.
    int toLiftMortgage = 100;
    int fateEachPlayer = 100;
    int fateFromBank = 1000;
    /// Doubles in a row that send a player to where a turn is lost.
    int mostDoubles = 3;
    /// When the alarm rings the round is finished and the richest wins.
    int alarmMinutes = 105;
    /// Notes of each kind that the rules tell to print for six players.
    std::array<int, 4> printed = {50, 30, 40, 10};

    int MoneyPrinted() const {
        int money = 0;
        for (std::size_t note = 0; note < kNotes.size(); ++note)
            money += kNotes[note] * printed[note];
        return money;
    }
};

/// What a table of players is given to play with.
struct PlaySet {
    Deeds deeds;
    NewsDecks news;
    HouseRules rules;
};

/// The odds that the board prints on its lotto spaces, to 1, for the sum of two dice.
constexpr int LottoOdds(int sum) {
    constexpr std::array<int, 13> kOdds = {0, 0, 30, 18, 8, 8, 6, 5, 6, 8, 8, 18, 30};
    return kOdds[std::size_t(sum)];
}

} // namespace Simulator
