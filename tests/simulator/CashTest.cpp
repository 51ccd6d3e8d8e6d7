// SPDX-License-Identifier: MIT
#include "simulator/Cash.h"

#include "TableFixture.h"

using namespace Simulator;

namespace {

class CashTest : public TableTest {
protected:
    Table table{set, {kBuysAll, kBuysAll, kBuysAll}};
};

TEST_F(CashTest, EachPlayerStartsWithAHundredMoreThanTheOneBefore) {
    EXPECT_EQ(Money(table, 0), 8000);
    EXPECT_EQ(Money(table, 1), 8100);
    EXPECT_EQ(Money(table, 2), 8200);
    EXPECT_EQ(AllMoney(table), set.rules.MoneyFor(3));
}

TEST_F(CashTest, MortgagePaysItsValueAndCostsAHundredMoreToLift) {
    GiveDeeds(table, 0, {4});
    Cash::Mortgage(table, 4);
    EXPECT_EQ(Money(table, 0), 8500);
    EXPECT_EQ(table.RentOf(4), 0);
    Cash::LiftMortgage(table, 4);
    EXPECT_EQ(Money(table, 0), 7900);
    EXPECT_EQ(table.RentOf(4), 100);
}

TEST_F(CashTest, OtherDeedsOfTheGroupKeepTheGroupsRentWhileOneIsMortgaged) {
    GiveDeeds(table, 0, {4, 5, 6});
    Cash::Mortgage(table, 4);
    EXPECT_EQ(table.RentOf(5), 200);
}

TEST_F(CashTest, StoriesAreSoldForHalf) {
    GiveDeeds(table, 0, {4, 5, 6});
    Cash::BuyStory(table, 5);
    EXPECT_EQ(Money(table, 0), 7800);
    EXPECT_EQ(table.RentOf(5), 400);
    Cash::SellStory(table, 5);
    EXPECT_EQ(Money(table, 0), 7900);
    EXPECT_EQ(table.RentOf(5), 200);
}

TEST_F(CashTest, SingleDeedsAreMortgagedBeforeGroupsAndStoriesAreSoldLast) {
    GiveDeeds(table, 0, {0, 2, 4, 5, 6, 11});
    Cash::BuyStory(table, 4);
    Cash::BuyStory(table, 5);
    SetMoney(table, 0, 0);
    Cash::Raise(table, 0, 100);
    EXPECT_EQ(table.mortgaged, Spaces({11}));
    Cash::Raise(table, 0, 1000);
    EXPECT_EQ(std::popcount(table.mortgaged & Spaces({0, 2})), 1);
    EXPECT_EQ(table.StoriesOnGroup(1), 2);
    // 500 of the other of the two, 100 each of the stories, then 500 a deed.
    Cash::Raise(table, 0, 1600);
    EXPECT_EQ(table.StoriesOnGroup(1), 1);
    EXPECT_EQ(Money(table, 0), 1600);
    Cash::Raise(table, 0, 1000000);
    EXPECT_EQ(table.mortgaged, Spaces({0, 2, 4, 5, 6, 11}));
    EXPECT_EQ(Money(table, 0), 1500 + 2 * 100 + 3 * 500);
    EXPECT_EQ(AllMoney(table), set.rules.MoneyFor(3));
}

TEST_F(CashTest, SecondStoriesAreSoldFirst) {
    GiveDeeds(table, 0, {4, 5, 6});
    for (const int space : {4, 5, 6, 6})
        Cash::BuyStory(table, space);
    SetMoney(table, 0, 0);
    Cash::Raise(table, 0, 100);
    EXPECT_EQ(table.stories[4], 1);
    EXPECT_EQ(table.stories[5], 1);
    EXPECT_EQ(table.stories[6], 1);
    EXPECT_EQ(table.record.spent[6], 2 * 200 - 100);
}

TEST_F(CashTest, WhoCanPayPaysToTheDollar) {
    EXPECT_TRUE(Cash::Pay(table, 0, 1, 8000));
    EXPECT_EQ(Money(table, 0), 0);
    EXPECT_EQ(Money(table, 1), 16100);
    EXPECT_FALSE(table.IsOver());
}

TEST_F(CashTest, WhoCannotPayGivesAllToTheCreditorAndTheGameIsOver) {
    GiveDeeds(table, 0, {4, 11});
    SetMoney(table, 0, 200);
    EXPECT_FALSE(Cash::Pay(table, 0, 2, 1300));
    EXPECT_TRUE(table.IsOver());
    EXPECT_EQ(table.broke, 0);
    EXPECT_EQ(Money(table, 0), 0);
    EXPECT_EQ(Money(table, 2), 8200 + 200 + 2 * 500);
    EXPECT_EQ(table.At(2).deeds, Spaces({4, 11}));
    EXPECT_EQ(table.mortgaged, Spaces({4, 11}));
    // Two deeds that count half.
    EXPECT_EQ(table.WealthOf(2), 9400 + 2 * 500);
    EXPECT_EQ(table.Richest(), 2);
}

TEST_F(CashTest, WhoCannotPayTheBankGivesAllToTheBank) {
    GiveDeeds(table, 0, {4});
    SetMoney(table, 0, 0);
    EXPECT_FALSE(Cash::Pay(table, 0, kNobody, 600));
    EXPECT_EQ(table.owner[4], kNobody);
    EXPECT_EQ(AllMoney(table), set.rules.MoneyFor(3));
}

TEST_F(CashTest, WealthCountsPricesStoriesAndHalfOfMortgagedDeeds) {
    GiveDeeds(table, 0, {4, 5, 6, 11});
    Cash::BuyStory(table, 4);
    Cash::Mortgage(table, 11);
    EXPECT_EQ(table.WealthOf(0), 8000 - 200 + 500 + 3 * 1000 + 200 + 500);
}

} // namespace
