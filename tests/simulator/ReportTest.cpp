// SPDX-License-Identifier: MIT
#include "simulator/Report.h"

#include "simulator/Chart.h"
#include "TableFixture.h"

using namespace Simulator;

namespace {

class ReportTest : public TableTest {
protected:
    // So many games of two players that last so many minutes, of which the first player wins some.
    static Tally GamesOf(int games, int minutes, int wonByFirst) {
        Tally tally;
        for (int game = 0; game < games; ++game) {
            GameRecord record;
            record.players = 2;
            record.winner = game < wonByFirst ? 0 : 1;
            record.turns = minutes * 60 / 25 + 1;
            record.mostOut = 16000;
            tally.Add(record, PlainSet().deeds);
        }
        return tally;
    }
    KitPlayed Played(const Tally& tally) const { return {Kit::Eight, set, {}, {tally}}; }
};

TEST_F(ReportTest, TimeIsFrom45MinutesToTheLastBefore120) {
    EXPECT_DOUBLE_EQ(InTime(GamesOf(10, 44, 5)).value, 0);
    EXPECT_DOUBLE_EQ(InTime(GamesOf(10, 45, 5)).value, 1);
    EXPECT_DOUBLE_EQ(InTime(GamesOf(10, 119, 5)).value, 1);
    EXPECT_DOUBLE_EQ(InTime(GamesOf(10, 120, 5)).value, 0);
}

TEST_F(ReportTest, PointsOfASeatAreWhatItWinsBeyondItsShare) {
    EXPECT_NEAR(PointsOfSeat(GamesOf(100, 60, 53), 0).value, 3, 1e-9);
    EXPECT_NEAR(PointsOfSeat(GamesOf(100, 60, 53), 1).value, -3, 1e-9);
}

TEST_F(ReportTest, WhatDoesNotHoldIsNamed) {
    EXPECT_EQ(Misses(Played(GamesOf(20000, 60, 10000))), QStringList());
    const QStringList slow = Misses(Played(GamesOf(20000, 130, 10000)));
    ASSERT_EQ(slow.size(), 1);
    EXPECT_TRUE(slow[0].startsWith(QStringLiteral("2 players: 0.0")));
    const QStringList unfair = Misses(Played(GamesOf(20000, 60, 10600)));
    ASSERT_EQ(unfair.size(), 1);
    EXPECT_EQ(unfair[0], QStringLiteral("2 players: going first is worth 3.0 ± 0.7 points."));
    EXPECT_EQ(Misses(Played(GamesOf(20000, 60, 9300))).size(), 1) << "nor shall going last be";

    Tally rich = GamesOf(20000, 60, 10000);
    rich.thousandsOut = {};
    for (int game = 0; game < 20000; ++game)
        rich.thousandsOut.Add(game % 50 == 0 ? set.rules.MoneyFor(2) / 1000 : 20);
    ASSERT_EQ(Misses(Played(rich)).size(), 1);
    EXPECT_TRUE(Misses(Played(rich))[0].startsWith(QStringLiteral("2 players: the money is enough in 98.0")));
}

TEST_F(ReportTest, LottoGivesBackWhatItsOddsSay) {
    // 1/36 of 31, 2/36 of 19, 3/36 of 9, 4/36 of 9, 5/36 of 7 and 6/36 of 6, each as often as its sum comes up.
    const double back = (2 * (1.0 * 31 + 4 * 19 + 9 * 9 + 16 * 9 + 25 * 7) + 36 * 6) / (36 * 36);
    EXPECT_NEAR(LottoReturn(), back, 1e-12);
    EXPECT_NEAR(1 - LottoReturn(), 0.051, 0.001);
}

TEST_F(ReportTest, ChartsDrawEachRowAndKeepNamesHarmless) {
    const QString hills = HillChart(QStringLiteral("Ann & Bob"), {QStringLiteral("minutes"), 0, 10, 5},
                                    {{QStringLiteral("a < b"), {1, 0, 2}}, {QStringLiteral("empty"), {}}}, 2, 4);
    EXPECT_TRUE(hills.contains(QStringLiteral("Ann &amp; Bob")));
    EXPECT_TRUE(hills.contains(QStringLiteral("a &lt; b")));
    // The paper, the tint and two bars.
    EXPECT_EQ(hills.count(QStringLiteral("<rect")), 4);
    const QString dots = DotChart(QStringLiteral("dots"), {QStringLiteral("points"), -1, 1, 1},
                                  {{QStringLiteral("row"), {{0, -0.5, 0.5}, {5, 4, 6}}}},
                                  {QStringLiteral("one"), QStringLiteral("two")}, 0, 0);
    EXPECT_EQ(dots.count(QStringLiteral("<circle")), 4) << "two dots and two of the legend";
    EXPECT_EQ(dots.count(QStringLiteral("<rect")), 1) << "nothing tinted";
}

TEST_F(ReportTest, FingerprintTellsDeedsCardsAndRulesApart) {
    const QString plain = Fingerprint(set);
    EXPECT_EQ(plain, Fingerprint(PlainSet()));
    PlaySet other = set;
    other.rules.startMoney += 100;
    EXPECT_NE(Fingerprint(other), plain);
    other = set;
    other.news[1][11].amount += 100;
    EXPECT_NE(Fingerprint(other), plain);
    basPosit::RentTable rents = PlainRents();
    rents[27].RentStory2 += 100;
    EXPECT_NE(Fingerprint({Deeds(rents, Kit::Eight), set.news, set.rules}), plain);
}

} // namespace
