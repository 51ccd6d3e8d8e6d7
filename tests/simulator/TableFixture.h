// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Cash.h"
#include "simulator/GamePlay.h"
#include "simulator/Places.h"

#include <gtest/gtest.h>

#include <numeric>

/// A table with deeds whose numbers are easily added: every price 1,000, a mortgage of 500, a story 200, and rents of
/// 100, 200, 400 and 800. All cards pay 100 from the bank unless a test says otherwise.
class TableTest : public testing::Test {
protected:
    static constexpr int kBuysAll = 0;
    static constexpr int kSaver = 1;
    static constexpr int kBuilder = 2;
    static constexpr int kTrader = 3;

    static basPosit::RentTable PlainRents() {
        basPosit::RentTable rents;
        for (int space = 0; space < Simulator::kSpaces; ++space) {
            if (!BoardFacts::IsForSale(space)) continue;
            basPosit::RentRecord& row = rents[std::size_t(space)];
            row.Cost = 1000;
            row.RentSingle = 100;
            row.RentTwo = 200;
            row.RentStory1 = 400;
            row.RentStory2 = 800;
            row.RentAddStory = 200;
            row.Extra = 500;
        }
        return rents;
    }
    static Simulator::PlaySet PlainSet(Kit kit = Kit::Eight) {
        Simulator::PlaySet plain{Simulator::Deeds(PlainRents(), kit), {}, {}};
        for (auto& deck : plain.news)
            deck.fill({Simulator::NewsEffect::Kind::FromBank, 100});
        return plain;
    }

    static Simulator::SpaceSet Spaces(std::initializer_list<int> spaces) {
        return std::accumulate(spaces.begin(), spaces.end(), Simulator::SpaceSet(0),
                               [](Simulator::SpaceSet all, int space) { return all | Simulator::Only(space); });
    }
    static void GiveDeeds(Simulator::Table& table, int seat, std::initializer_list<int> spaces) {
        for (const int space : spaces)
            table.HandOver(space, seat);
    }
    static int AllMoney(const Simulator::Table& table) {
        return std::accumulate(table.seats.begin(), table.seats.end(), table.bank,
                               [](int sum, const Simulator::Seat& seat) { return sum + seat.money; });
    }
    static int Money(const Simulator::Table& table, int seat) { return table.At(seat).money; }
    static void SetMoney(Simulator::Table& table, int seat, int money) {
        table.FromBank(seat, money - table.At(seat).money);
    }

    const Simulator::PlaySet set = PlainSet();
};
