// SPDX-License-Identifier: MIT
#include "simulator/GamePlay.h"

#include "TableFixture.h"

#include <set>

using namespace Simulator;
using Kind = NewsEffect::Kind;

namespace {

class GamePlayTest : public TableTest {
protected:
    GamePlayTest() {
        // Nobody buys or bids unless a test says so.
        for (int seat = 0; seat < 3; ++seat)
            GiveDeeds(table, 2,
                      {0, 1, 2, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 18, 19, 20, 21, 22, 23, 25, 26, 27});
        table.mortgaged = table.At(2).deeds;
    }
    void PutOn(int seat, int place) { table.At(seat).place = place; }

    GamePlay game{set, {kTrader, kSaver, kBuysAll}, 7};
    Table& table = game.OnTable();
};

TEST_F(GamePlayTest, PassingTheStartOrLandingOnItPaysOnce) {
    PutOn(0, 30);
    game.MoveBy(0, 1, 2);
    EXPECT_EQ(table.At(0).place, 1);
    EXPECT_EQ(Money(table, 0), 9000);
    PutOn(0, 29);
    game.MoveBy(0, 1, 2);
    EXPECT_EQ(table.At(0).place, 0);
    EXPECT_EQ(Money(table, 0), 10000);
    game.MoveBy(0, 1, 1);
    EXPECT_EQ(Money(table, 0), 10000) << "going on from the start";
}

TEST_F(GamePlayTest, RentGoesToTheOwnerAndNothingIsOwedForOnesOwn) {
    table.mortgaged = 0;
    GiveDeeds(table, 1, {4});
    PutOn(0, PlaceOfSpace(4));
    game.Land(0, 5);
    EXPECT_EQ(Money(table, 0), 7900);
    EXPECT_EQ(Money(table, 1), 8200);
    EXPECT_EQ(table.record.earned[4], 100);
    PutOn(1, PlaceOfSpace(4));
    game.Land(1, 5);
    EXPECT_EQ(Money(table, 1), 8200);
    EXPECT_EQ(table.record.landings[4], 2);
}

TEST_F(GamePlayTest, NoRentIsDueForAMortgagedDeed) {
    PutOn(0, PlaceOfSpace(4));
    game.Land(0, 5);
    EXPECT_EQ(Money(table, 0), 8000);
}

TEST_F(GamePlayTest, LottoPaysTheOddsOfTheBoardAndReturnsTheBet) {
    const struct {
        int sum;
        int odds;
    } rows[] = {{2, 30}, {3, 18}, {4, 8}, {5, 8}, {6, 6}, {7, 5}, {8, 6}, {9, 8}, {10, 8}, {11, 18}, {12, 30}};
    for (const auto& row : rows) {
        SetMoney(table, 0, 1000);
        game.Lotto(0, row.sum, row.sum);
        // The trader bets 300.
        EXPECT_EQ(Money(table, 0), 1000 + 300 * row.odds) << row.sum;
        game.Lotto(0, row.sum, row.sum == 7 ? 8 : 7);
        EXPECT_EQ(Money(table, 0), 700 + 300 * row.odds) << row.sum;
    }
    EXPECT_EQ(table.record.lottoBet, 22 * 300);
}

TEST_F(GamePlayTest, NobodyBetsMoreThanTheyHave) {
    SetMoney(table, 0, 100);
    game.Lotto(0, 7, 7);
    EXPECT_EQ(Money(table, 0), 600);
    SetMoney(table, 0, 0);
    game.Lotto(0, 7, 7);
    EXPECT_EQ(Money(table, 0), 0);
}

TEST_F(GamePlayTest, FateDoesWhatTheDieSays) {
    PutOn(0, PlaceOfCorner(3));
    EXPECT_EQ(game.Fate(0, 1), GamePlay::After::TurnEnds);
    EXPECT_EQ(table.At(0).place, PlaceOfCorner(1));
    EXPECT_TRUE(table.At(0).missesNextTurn);
    EXPECT_EQ(Money(table, 0), 8000) << "nothing is collected on the way";
    game.Fate(0, 2);
    EXPECT_EQ(Money(table, 0), 7800);
    EXPECT_EQ(Money(table, 1), 8200);
    game.Fate(0, 3);
    game.Fate(0, 4);
    EXPECT_EQ(Money(table, 0), 8000) << "a card of each deck";
    game.Fate(0, 5);
    EXPECT_EQ(Money(table, 0), 8200);
    EXPECT_EQ(Money(table, 1), 8100);
    game.Fate(0, 6);
    EXPECT_EQ(Money(table, 0), 9200);
}

TEST_F(GamePlayTest, CardsMoveMoney) {
    const struct {
        NewsEffect card;
        int after;
    } rows[] = {{{Kind::FromBank, 500}, 8500}, {{Kind::ToBank, 300}, 7700},   {{Kind::FromEach, 100}, 8200},
                {{Kind::ToEach, 100}, 7800},   {{Kind::FromLeft, 200}, 8200}, {{Kind::PerDeed, 100, 800}, 8000},
                {{Kind::PerStory, 100}, 8000}};
    for (const auto& row : rows) {
        SetMoney(table, 0, 8000);
        game.DoNews(0, row.card, 7);
        EXPECT_EQ(Money(table, 0), row.after) << int(row.card.kind);
    }
    SetMoney(table, 2, 5000);
    game.DoNews(2, {Kind::PerDeed, 100, 800}, 7);
    EXPECT_EQ(Money(table, 2), 4200) << "800 at most for 24 deeds";
    table.stories[4] = 2;
    table.stories[5] = 1;
    game.DoNews(2, {Kind::PerStory, 100}, 7);
    EXPECT_EQ(Money(table, 2), 3900);
}

TEST_F(GamePlayTest, CardsMoveTokens) {
    PutOn(0, PlaceOfSpace(3));
    game.DoNews(0, {Kind::Move, -3}, 7);
    EXPECT_EQ(table.At(0).place, PlaceOfSpace(0));
    PutOn(0, PlaceOfSpace(26));
    game.DoNews(0, {Kind::Move, 3}, 7);
    EXPECT_EQ(table.At(0).place, PlaceOfSpace(0));
    EXPECT_EQ(Money(table, 0), 9000) << "past the start";
    PutOn(0, PlaceOfSpace(17));
    game.DoNews(0, {Kind::ToStart}, 7);
    EXPECT_EQ(table.At(0).place, 0);
    EXPECT_EQ(Money(table, 0), 10000);
    PutOn(0, PlaceOfSpace(3));
    game.DoNews(0, {Kind::ToSpace, 0, 0, 22}, 7);
    EXPECT_EQ(table.At(0).place, PlaceOfSpace(22));
    EXPECT_EQ(Money(table, 0), 10000) << "the start doesn't lie between";
    game.DoNews(0, {Kind::ToSpace, 0, 0, 22}, 7);
    EXPECT_EQ(Money(table, 0), 11000) << "from there it is once round";
    EXPECT_EQ(game.DoNews(0, {Kind::ToLoseTurn}, 7), GamePlay::After::TurnEnds);
    EXPECT_EQ(game.DoNews(0, {Kind::AgainNow}, 7), GamePlay::After::OnceMore);
}

TEST_F(GamePlayTest, MissedTurnIsMissedOnce) {
    game.DoNews(0, {Kind::MissesNextTurn}, 7);
    game.TakeTurn(0);
    EXPECT_EQ(table.record.turns, 0);
    EXPECT_EQ(table.At(0).place, 0);
    game.TakeTurn(0);
    EXPECT_GE(table.record.turns, 1);
}

TEST_F(GamePlayTest, OwedToTwoAtOnceEndsWithTheOneWhoCouldNotBePaid) {
    SetMoney(table, 0, 100);
    game.Fate(0, 2);
    EXPECT_EQ(table.broke, 0);
    EXPECT_EQ(Money(table, 1), 8200) << "the left neighbor is paid first";
    EXPECT_EQ(Money(table, 2), 8200);
}

TEST_F(GamePlayTest, DoublesInARowAreCounted) {
    int doubles = 0;
    EXPECT_EQ(game.Throw(0, 1, 1, doubles), GamePlay::After::OnceMore);
    EXPECT_EQ(game.Throw(0, 2, 2, doubles), GamePlay::After::OnceMore);
    EXPECT_EQ(doubles, 2);
    EXPECT_EQ(game.Throw(0, 1, 2, doubles), GamePlay::After::TurnIsOver);
    EXPECT_EQ(doubles, 0) << "not in a row any more";
    EXPECT_EQ(game.Throw(0, 1, 1, doubles), GamePlay::After::OnceMore);
    EXPECT_EQ(game.Throw(0, 1, 1, doubles), GamePlay::After::OnceMore);
    const int place = table.At(0).place;
    EXPECT_EQ(game.Throw(0, 6, 6, doubles), GamePlay::After::TurnEnds);
    EXPECT_EQ(table.At(0).place, PlaceOfCorner(1)) << "and not twelve on from " << place;
    EXPECT_TRUE(table.At(0).missesNextTurn);
    EXPECT_EQ(table.record.turns, 6);
}

TEST_F(GamePlayTest, DoubleOntoTheCornerWhereATurnIsLostEndsTheTurn) {
    int doubles = 0;
    PutOn(0, PlaceOfCorner(1) - 4);
    EXPECT_EQ(game.Throw(0, 2, 2, doubles), GamePlay::After::TurnEnds);
    EXPECT_TRUE(table.At(0).missesNextTurn);
}

TEST_F(GamePlayTest, ThirdDoubleOfATurnIsItsLastThrow) {
    bool sawThird = false;
    for (std::uint64_t seed = 0; seed < 3000 && !sawThird; ++seed) {
        GamePlay other(set, {kSaver, kSaver}, seed);
        Table& there = other.OnTable();
        other.TakeTurn(0);
        if (there.record.turns < 3 || !there.At(0).missesNextTurn) continue;
        sawThird = true;
        EXPECT_EQ(there.At(0).place, PlaceOfCorner(1));
        EXPECT_EQ(there.record.turns, 3) << "no throw behind the third double";
    }
    EXPECT_TRUE(sawThird);
}

class WholeGamesTest : public TableTest {};

TEST_F(WholeGamesTest, NoMoneyComesFromNowhere) {
    for (int players = 2; players <= 6; ++players) {
        for (std::uint64_t seed = 0; seed < 200; ++seed) {
            std::vector<int> kinds;
            for (int seat = 0; seat < players; ++seat)
                kinds.push_back(int(seed + std::uint64_t(seat) * 3) % 4);
            GamePlay game(set, kinds, seed);
            game.Run();
            ASSERT_EQ(AllMoney(game.OnTable()), set.rules.MoneyFor(players)) << players << " " << seed;
            for (const Seat& seat : game.OnTable().seats) {
                ASSERT_GE(seat.money, 0) << players << " " << seed;
                ASSERT_EQ(seat.money % kSmallestNote, 0) << players << " " << seed;
            }
        }
    }
}

TEST_F(WholeGamesTest, EveryDeedLiesWithItsOwnerOnly) {
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        GamePlay game(set, {kTrader, kBuilder, kBuysAll, kSaver}, seed);
        game.Run();
        const Table& table = game.OnTable();
        for (int space = 0; space < kSpaces; ++space) {
            for (int seat = 0; seat < table.Players(); ++seat)
                ASSERT_EQ(Has(table.At(seat).deeds, space), table.owner[std::size_t(space)] == seat) << seed;
            ASSERT_LE(table.stories[std::size_t(space)], kMostStories) << seed;
        }
    }
}

TEST_F(WholeGamesTest, EveryGameEndsWhenSomebodyIsBrokeOrSoonAfterTheAlarm) {
    std::set<GameRecord::End> ends;
    for (std::uint64_t seed = 0; seed < 1000; ++seed) {
        GamePlay game(set, {kSaver, kBuilder, kTrader, kBuysAll, kSaver, kTrader}, seed);
        const GameRecord& record = game.Run();
        ends.insert(record.end);
        EXPECT_EQ(record.end == GameRecord::End::SomebodyBroke, game.OnTable().IsOver());
        // A round more, in which doubles are thrown and much is bought.
        ASSERT_LT(record.Seconds(), set.rules.alarmMinutes * 60 + 6 * 3 * 120) << seed;
        ASSERT_NE(record.winner, kNobody);
        ASSERT_NE(record.winner, game.OnTable().broke);
    }
    EXPECT_EQ(ends.size(), 2U);
}

TEST_F(WholeGamesTest, SameSeedPlaysTheSameGameAndAnotherSeedAnother) {
    const std::vector<int> kinds = {kTrader, kBuilder, kBuysAll};
    std::set<int> turns;
    for (std::uint64_t seed = 0; seed < 20; ++seed) {
        const GameRecord first = GamePlay(set, kinds, seed).Run();
        const GameRecord second = GamePlay(set, kinds, seed).Run();
        EXPECT_EQ(first.turns, second.turns);
        EXPECT_EQ(first.earned, second.earned);
        EXPECT_EQ(first.landings, second.landings);
        EXPECT_EQ(first.winner, second.winner);
        turns.insert(first.turns);
    }
    EXPECT_GT(turns.size(), 10U);
}

} // namespace
