// SPDX-License-Identifier: MIT
// The rents, cards and rules that ship: that the rules page tells what is played, and that what is asked of a game
// holds.
#include "platform/text/Numbers.h"
#include "simulator/PlaySetFiles.h"
#include "simulator/Report.h"
#include "support/TestFixture.h"

using namespace Simulator;

namespace {

class EconomyTest : public TavloraTest {
protected:
    static QString Shipped(const char* name) {
        return QStringLiteral(TAVLORA_DATA_DIR "/") + QString::fromLatin1(name);
    }
    static PlaySet Set(Kit kit) {
        QString error;
        const std::optional<PlaySet> set = ReadPlaySet(ShippedFiles(QStringLiteral(TAVLORA_DATA_DIR), kit), error);
        if (!set) throw std::runtime_error(error.toStdString());
        return *set;
    }
    static QString Dollars(int amount) { return u'$' + WithThousands(amount); }
    // How many sheets of ten notes, in words.
    static QString Sheets(int notes) {
        const QStringList words = {QStringLiteral("no"),    QStringLiteral("one"),  QStringLiteral("two"),
                                   QStringLiteral("three"), QStringLiteral("four"), QStringLiteral("five")};
        EXPECT_EQ(notes % 10, 0);
        return words.value(notes / 10);
    }
};

TEST_F(EconomyTest, RulesPageTellsTheNumbersThatArePlayed) {
    const QString page = QString::fromUtf8(ReadFile(Shipped("GamePlay_US.dat")));
    const HouseRules rules;
    const QStringList told = {
        QStringLiteral("The first player gets ") + Dollars(rules.startMoney) +
            QStringLiteral(": five 100s, five 500s and five 1000s."),
        QStringLiteral("each of the others gets %1 more than the one before").arg(Dollars(rules.morePerSeat)),
        QStringLiteral("the bank pays you %1.").arg(Dollars(rules.passingStart)),
        QStringLiteral("You may bet up to %1, in hundreds").arg(Dollars(rules.mostLottoBet)),
        QStringLiteral("pays back that value and %1.").arg(Dollars(rules.toLiftMortgage)),
        QStringLiteral("2 - Pay %1 to each other player.").arg(Dollars(rules.fateEachPlayer)),
        QStringLiteral("5 - Collect %1 from each other player.").arg(Dollars(rules.fateEachPlayer)),
        QStringLiteral("6 - Collect %1 from the bank.").arg(Dollars(rules.fateFromBank)),
        QStringLiteral("it keeps about %1 of every $100 bet").arg(Dollars(CLng(100 * (1 - LottoReturn())))),
        QStringLiteral("$100 wins %1 on a 7 and %2 on a 2 or a 12!")
            .arg(Dollars(100 * LottoOdds(7)), Dollars(100 * LottoOdds(2))),
        QStringLiteral("%1 sheets of 100s, %2 of 500s, %3 of 1000s and %4 of 5000s. For two or three players: ")
            .arg(Sheets(rules.printed[0]), Sheets(rules.printed[1]), Sheets(rules.printed[2]),
                 Sheets(rules.printed[3])),
        QStringLiteral("players: %1, %2, %3 and %4.")
            .arg(Sheets(rules.printedForFew[0]), Sheets(rules.printedForFew[1]), Sheets(rules.printedForFew[2]),
                 Sheets(rules.printedForFew[3])),
    };
    for (const QString& words : told)
        EXPECT_TRUE(page.contains(words)) << words.toStdString();
    EXPECT_EQ(rules.startMoney, 5 * (100 + 500 + 1000));
    EXPECT_EQ(rules.mostDoubles, 3);
    EXPECT_TRUE(page.contains(QStringLiteral("a third double in a row")));
    EXPECT_EQ(rules.alarmMinutes, 60 + 45);
    EXPECT_TRUE(page.contains(QStringLiteral("Set the alarm to ring in an hour and three quarters.")));
}

TEST_F(EconomyTest, StartingMoneyOfSixPlayersIsAmongThePrintedNotes) {
    const HouseRules rules;
    // Five of each but the largest, and the hundreds that make up for going later.
    EXPECT_LE(6 * 5 + (0 + 1 + 2 + 3 + 4 + 5), rules.printed[0]);
    EXPECT_LE(6 * 5, rules.printed[1]);
    EXPECT_LE(6 * 5, rules.printed[2]);
    EXPECT_LE(3 * 5 + (0 + 1 + 2), rules.printedForFew[0]);
    EXPECT_LE(3 * 5, rules.printedForFew[1]);
    EXPECT_LE(3 * 5, rules.printedForFew[2]);
}

TEST_F(EconomyTest, WhatIsHalvedCanBePaidInTheSmallestNote) {
    for (const Kit kit : {Kit::Eight, Kit::Five}) {
        const PlaySet set = Set(kit);
        for (int space = 0; space < kSpaces; ++space) {
            const Deed& deed = set.deeds[space];
            EXPECT_EQ(deed.price / 2 % kSmallestNote, 0) << space;
            EXPECT_EQ(deed.mortgage, deed.price / 2) << space;
            EXPECT_EQ(deed.story / 2 % kSmallestNote, 0) << space << ": a story is sold for half of its price";
        }
    }
}

TEST_F(EconomyTest, RentsOfADeedGrowDownItsLines) {
    for (const Kit kit : {Kit::Eight, Kit::Five}) {
        const PlaySet set = Set(kit);
        for (int space = 0; space < kSpaces; ++space) {
            if (!BoardFacts::IsForSale(space)) continue;
            const Deed& deed = set.deeds[space];
            const int lines = BoardFacts::IsUtility(space) ? 2 : 4;
            for (int line = 1; line < lines; ++line)
                EXPECT_GT(deed.rent[std::size_t(line)], deed.rent[std::size_t(line - 1)]) << space << " " << line;
        }
    }
}

TEST_F(EconomyTest, GamesLastAsLongAsTheyShallAndGoingFirstIsWorthLittle) {
    for (const Kit kit : {Kit::Eight, Kit::Five}) {
        const PlaySet set = Set(kit);
        for (int players = kFewestPlayers; players <= kMostPlayers; ++players) {
            const Tally tally = RunGames(set, {4000, players, 1, 2});
            const std::string which = VariantOf(kit).toStdString() + ", " + std::to_string(players) + " players";
            EXPECT_GE(InTime(tally).value, Asked::kShareOfGames) << which;
            EXPECT_LT(std::abs(PointsOfSeat(tally, 0).value), Asked::kFirstSeatPoints) << which;
            EXPECT_GE(MoneyEnough(tally, set.rules).value, Asked::kMoneyEnough) << which;
            // Nobody sits down to a game in which one way to play always wins.
            for (std::size_t seat = 0; seat < kPlayerKinds.size(); ++seat)
                EXPECT_LT(double(tally.winsOfKind[seat]) * players / double(tally.seatsOfKind[seat]), 1.75) << which;
        }
    }
}

TEST_F(EconomyTest, ReportInTheDocsIsOfTheseDeedsCardsAndRules) {
    const QString report = QString::fromUtf8(ReadFile(QStringLiteral(TAVLORA_SOURCE_DIR "/docs/economy.md")));
    for (const Kit kit : {Kit::Eight, Kit::Five})
        EXPECT_TRUE(report.contains(Fingerprint(Set(kit)))) << "make it anew: tavlora-play --report docs";
    EXPECT_EQ(report.count(QStringLiteral("All that is asked holds.")), 2);
}

} // namespace
