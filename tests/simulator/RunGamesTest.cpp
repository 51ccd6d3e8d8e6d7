// SPDX-License-Identifier: MIT
#include "simulator/RunGames.h"

#include "TableFixture.h"

#include <set>

using namespace Simulator;

namespace {

class RunGamesTest : public TableTest {
protected:
    static Plan PlanOf(int games, int players, int threads) { return {games, players, 11, threads}; }
};

TEST_F(RunGamesTest, ThreadsShareTheGamesAndChangeNothing) {
    const Tally one = RunGames(set, PlanOf(301, 4, 1));
    const Tally three = RunGames(set, PlanOf(301, 4, 3));
    EXPECT_EQ(one.games, 301);
    EXPECT_EQ(three.games, 301);
    EXPECT_EQ(one.winsBySeat, three.winsBySeat);
    EXPECT_EQ(one.winsOfKind, three.winsOfKind);
    EXPECT_EQ(one.turns.Sum(), three.turns.Sum());
    for (int step = 0; step < Histogram::kSteps; ++step)
        ASSERT_EQ(one.minutes.At(step), three.minutes.At(step)) << step;
    EXPECT_EQ(one.lotto.Value().value, three.lotto.Value().value);
    EXPECT_EQ(one.groups[3].earned.Value().high, three.groups[3].earned.Value().high);
}

TEST_F(RunGamesTest, NoTwoGamesShareASeedAndEveryKindSitsInEverySeat) {
    std::set<std::uint64_t> seeds;
    std::set<std::pair<int, int>> seats;
    for (int players = 2; players <= 6; ++players) {
        for (int game = 0; game < 500; ++game) {
            const Plan plan = PlanOf(500, players, 1);
            seeds.insert(SeedOf(plan, game));
            const std::vector<int> kinds = KindsOf(plan, game);
            ASSERT_EQ(int(kinds.size()), players);
            for (int seat = 0; seat < players; ++seat)
                seats.insert({seat, kinds[std::size_t(seat)]});
        }
    }
    EXPECT_EQ(seeds.size(), 5U * 500);
    EXPECT_EQ(seats.size(), 6U * 4);
}

TEST_F(RunGamesTest, TallyAddsUpWhatTheRecordsSay) {
    Tally tally;
    GameRecord record;
    record.players = 2;
    record.kinds = {1, 3};
    record.winner = 1;
    record.end = GameRecord::End::SomebodyBroke;
    record.turns = 120;
    record.purchases = 30;
    record.lottoBet = 1000;
    record.lottoPaid = 900;
    record.mostOut = 21500;
    record.bought = Spaces({4, 5});
    record.spent[4] = 1000;
    record.spent[5] = 800;
    record.earned[4] = 1800;
    record.landings[6] = 3;
    record.wasWhole[2] = true;
    tally.Add(record, set.deeds);
    EXPECT_EQ(tally.minutes.At((120 * 25 + 30 * 20) / 60), 1);
    EXPECT_EQ(tally.winsBySeat[1], 1);
    EXPECT_EQ(tally.seatsOfKind[1], 1);
    EXPECT_EQ(tally.winsOfKind[3], 1);
    EXPECT_EQ(tally.endedBroke, 1);
    EXPECT_EQ(tally.groups[1].landings.Sum(), 3);
    EXPECT_EQ(tally.groups[1].deeds, 3);
    EXPECT_EQ(tally.groups[1].deedsBought, 2);
    EXPECT_EQ(tally.groups[1].gamesPaid, 1);
    EXPECT_DOUBLE_EQ(tally.groups[1].earned.Value().value, 1);
    EXPECT_EQ(tally.groups[2].gamesBought, 0);
    EXPECT_EQ(tally.groups[2].gamesWhole, 1);
    EXPECT_DOUBLE_EQ(tally.lotto.Value().value, 0.9);
    EXPECT_EQ(tally.thousandsOut.At(21), 1);
    record.earned[4] = 1700;
    tally.Add(record, set.deeds);
    EXPECT_EQ(tally.groups[1].gamesPaid, 1) << "a hundred short";
}

} // namespace
