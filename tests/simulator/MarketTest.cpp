// SPDX-License-Identifier: MIT
#include "simulator/Market.h"

#include "TableFixture.h"

using namespace Simulator;

namespace {

class MarketTest : public TableTest {};

TEST_F(MarketTest, PlayerWithTheMoneyBuysForThePriceOnTheBoard) {
    Table table(set, {kBuysAll, kBuysAll});
    Market::OfferSpace(table, 0, 4);
    EXPECT_EQ(table.owner[4], 0);
    EXPECT_EQ(Money(table, 0), 7000);
    EXPECT_EQ(table.record.spent[4], 1000);
    EXPECT_EQ(table.record.purchases, 1);
}

TEST_F(MarketTest, SaverWhoWouldRatherNotLetsOthersBid) {
    Table table(set, {kSaver, kTrader, kBuilder});
    SetMoney(table, 0, 3900);
    Market::OfferSpace(table, 0, 4);
    // The saver bids up to 600, the trader 900, the builder 800: the trader pays a step more than the builder.
    EXPECT_EQ(Market::MostBid(table, 0, 4), 600);
    EXPECT_EQ(table.owner[4], 1);
    EXPECT_EQ(table.record.spent[4], 900);
}

TEST_F(MarketTest, OnlyBidderPaysTheSmallestNoteAndWithoutABidderTheBankKeepsTheDeed) {
    Table table(set, {kSaver, kTrader});
    SetMoney(table, 0, 3000);
    Market::Auction(table, 4, 0);
    EXPECT_EQ(table.owner[4], 1);
    EXPECT_EQ(table.record.spent[4], 100);
    SetMoney(table, 1, 500);
    Market::Auction(table, 5, 0);
    EXPECT_EQ(table.owner[5], kNobody);
}

TEST_F(MarketTest, DeedThatCompletesAGroupIsWorthMoreToAll) {
    Table table(set, {kBuysAll, kBuilder});
    EXPECT_EQ(Market::MostBid(table, 1, 4), 800);
    GiveDeeds(table, 0, {5, 6});
    EXPECT_EQ(Market::MostBid(table, 1, 4), 1800);
    EXPECT_EQ(Market::MostBid(table, 0, 4), 1300);
}

TEST_F(MarketTest, GroupsAreBuiltEvenlyToTwoStoriesAndNoHigher) {
    Table table(set, {kBuilder, kSaver});
    GiveDeeds(table, 0, {4, 5, 6});
    // 300 are kept.
    SetMoney(table, 0, 300 + 2 * 200);
    Market::Improve(table, 0);
    EXPECT_EQ(table.StoriesOnGroup(1), 2);
    for (const int space : {4, 5, 6})
        EXPECT_LE(table.stories[std::size_t(space)], 1) << space;
    EXPECT_EQ(table.record.purchases, 1);
    SetMoney(table, 0, 10000);
    Market::Improve(table, 0);
    EXPECT_EQ(table.StoriesOnGroup(1), 6);
    EXPECT_EQ(Money(table, 0), 10000 - 4 * 200);
}

TEST_F(MarketTest, NothingIsBuiltOnUtilitiesPartsOfGroupsMortgagesOrInOlderKits) {
    Table table(set, {kBuilder, kSaver});
    GiveDeeds(table, 0, {1, 26, 0, 4, 5});
    Market::Improve(table, 0);
    EXPECT_EQ(table.stories, decltype(table.stories){});
    GiveDeeds(table, 0, {6});
    Cash::Mortgage(table, 6);
    SetMoney(table, 0, 700);
    Market::Improve(table, 0);
    EXPECT_EQ(table.StoriesOnGroup(1), 0);
    SetMoney(table, 0, 1000);
    Market::Improve(table, 0);
    EXPECT_EQ(table.mortgaged, 0U) << "the mortgage is lifted first";
    EXPECT_EQ(Money(table, 0), 400);

    const PlaySet older = PlainSet(Kit::Five);
    Table without(older, {kBuilder, kSaver});
    GiveDeeds(without, 0, {4, 5, 6});
    Market::Improve(without, 0);
    EXPECT_EQ(without.StoriesOnGroup(1), 0);
}

TEST_F(MarketTest, DeedsAreExchangedWhereBothCompleteAGroup) {
    Table table(set, {kTrader, kBuilder});
    GiveDeeds(table, 0, {4, 5, 9});
    GiveDeeds(table, 1, {7, 8, 6});
    const int money = AllMoney(table);
    Market::TryTrade(table, 0);
    EXPECT_EQ(table.At(0).deeds, Spaces({4, 5, 6}));
    EXPECT_EQ(table.At(1).deeds, Spaces({7, 8, 9}));
    EXPECT_EQ(table.record.trades, 1);
    EXPECT_EQ(AllMoney(table), money);
}

TEST_F(MarketTest, MoneyEvensOutWhatBothGainByTheirOwnReckoning) {
    Table table(set, {kTrader, kSaver});
    GiveDeeds(table, 0, {4, 5});
    GiveDeeds(table, 1, {6});
    Market::TryTrade(table, 0);
    // The trader has 2,000 and 450 for a group that is nearly whole, and would have 3,000 and 2,400: gains 2,950. The
    // saver loses a deed of 1,000, and half of the 1,200 that a whole group is worth to it. Half of 4,550, in hundreds.
    EXPECT_EQ(table.At(0).deeds, Spaces({4, 5, 6}));
    EXPECT_EQ(Money(table, 0), 8000 - 2200);
    EXPECT_EQ(Money(table, 1), 8100 + 2200);
}

TEST_F(MarketTest, NobodyTradesWhatTheyCannotAfford) {
    Table table(set, {kTrader, kSaver});
    GiveDeeds(table, 0, {4, 5});
    GiveDeeds(table, 1, {6});
    SetMoney(table, 0, 2200);
    Market::TryTrade(table, 0);
    EXPECT_EQ(table.record.trades, 0) << "a trader keeps 250";
}

TEST_F(MarketTest, DeedOfAGroupWithStoriesIsNotTraded) {
    Table table(set, {kTrader, kBuilder});
    GiveDeeds(table, 0, {4});
    GiveDeeds(table, 1, {5, 6});
    table.stories[5] = 1;
    Market::TryTrade(table, 0);
    EXPECT_EQ(table.record.trades, 0);
}

} // namespace
