// SPDX-License-Identifier: MIT
#pragma once

#include "services/Players.h"
#include "simulator/Deeds.h"
#include "simulator/NewsEffect.h"

#include <QString>

#include <array>

namespace Simulator {

constexpr int kMostPlayers = Players::kMost;
constexpr int kFewestPlayers = Players::kFewest;
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
    /// Notes of each kind that the rules tell to print: ten a sheet.
    std::array<int, 4> printed = {50, 30, 40, 10};
    /// For two or three players.
    std::array<int, 4> printedForFew = {30, 20, 20, 10};

    int MoneyFor(int players) const {
        const std::array<int, 4>& notes = players > 3 ? printed : printedForFew;
        int money = 0;
        for (std::size_t note = 0; note < kNotes.size(); ++note)
            money += kNotes[note] * notes[note];
        return money;
    }
};

/// What a table of players is given to play with.
struct PlaySet {
    Deeds deeds;
    NewsDecks news;
    HouseRules rules;
    /// What the report calls the groups: their first and last space.
    std::array<QString, kGroups> groupNames{};
};

/// The odds that the board prints on its lotto spaces, to 1, for the sum of two dice.
constexpr int LottoOdds(int sum) {
    constexpr std::array<int, 13> kOdds = {0, 0, 30, 18, 8, 8, 6, 5, 6, 8, 8, 18, 30};
    return kOdds[std::size_t(sum)];
}

/// What comes back of a dollar bet at the lotto in the long run: who was brought there by a sum bets that it comes
/// again.
constexpr double LottoReturn() {
    double back = 0;
    for (int sum = 2; sum <= 12; ++sum) {
        const double chance = (6 - (sum > 7 ? sum - 7 : 7 - sum)) / 36.0;
        back += chance * chance * (1 + LottoOdds(sum));
    }
    return back;
}

/// The same number for the same deeds, cards and rules, so that a report can be known for one of others.
QString Fingerprint(const PlaySet& set);

} // namespace Simulator
