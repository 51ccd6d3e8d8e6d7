// SPDX-License-Identifier: MIT
#include "simulator/NewsEffect.h"

#include "simulator/PlaySetFiles.h"
#include "support/TestFixture.h"

#include <QDir>

using namespace Simulator;
using Kind = NewsEffect::Kind;

namespace {

const QStringList kSpaceNames = {QStringLiteral("The Mud Room"), QStringLiteral("Lake Cabin")};
const QStringList kCornerNames = {QStringLiteral("Front Door"), QStringLiteral("Time Out")};

class NewsEffectTest : public TavloraTest {
protected:
    static std::optional<NewsEffect> Read(const char* text) {
        return ReadNewsCard(QString::fromUtf8(text), kSpaceNames, kCornerNames);
    }
};

TEST_F(NewsEffectTest, CardsSayWhatTheyDo) {
    const struct {
        const char* text;
        NewsEffect effect;
    } cards[] = {
        {"The bank counts wrong,\r\nand in your favor.\r\nCollect $500.", {Kind::FromBank, 500}},
        {"Your old lottery ticket\r\nwas not so old.\r\nCollect $1,000.", {Kind::FromBank, 1000}},
        {"You win the raffle: a ham.\r\nSell it for $200.", {Kind::FromBank, 200}},
        {"A neighbor repays an old loan.\r\nCollect $200 from\r\nthe player on your left.", {Kind::FromLeft, 200}},
        {"Everybody remembers your\r\nbirthday. Collect $100\r\nfrom each player.", {Kind::FromEach, 100}},
        {"You ate the broccoli.\r\nCollect $100\r\nfrom each amazed player.", {Kind::FromEach, 100}},
        {"You back into a lamp post.\r\nPay $300.", {Kind::ToBank, 300}},
        {"Black flies drove off\r\nyour guests. Give back $400.", {Kind::ToBank, 400}},
        {"You said the word.\r\nPut $100 in the swear jar\r\n(that is the bank).", {Kind::ToBank, 100}},
        {"Dinner is on you.\r\nPay $100\r\nto each player.", {Kind::ToEach, 100}},
        {"The roof leaks.\r\nPay $100 for each of\r\nyour building stories.", {Kind::PerStory, 100}},
        {"Taxes are due.\r\nPay $100 for each deed\r\nyou own, $800 at most.", {Kind::PerDeed, 100, 800}},
        {"A shortcut!\r\nMove ahead three spaces\r\nand see where you are.", {Kind::Move, 3}},
        {"You forgot your keys.\r\nGo back three spaces.", {Kind::Move, -3}},
        {"Snow day!\r\nGo straight to Front Door\r\nand collect $1,000.", {Kind::ToStart}},
        {"Bedtime.\r\nGo straight to Time Out.", {Kind::ToLoseTurn}},
        {"Sail ahead to Lake Cabin.\r\nBuy it if it is free.", {Kind::ToSpace, 0, 0, 1}},
        {"You are on a roll.\r\nTake another turn\r\nright away.", {Kind::AgainNow}},
        {"You slept through the alarm.\r\nMiss your next turn.", {Kind::MissesNextTurn}},
    };
    for (const auto& card : cards) {
        const std::optional<NewsEffect> effect = Read(card.text);
        ASSERT_TRUE(effect) << card.text;
        EXPECT_EQ(*effect, card.effect) << card.text;
    }
}

TEST_F(NewsEffectTest, CardThatTellsNothingToDoIsNotMadeUp) {
    EXPECT_FALSE(Read(" "));
    EXPECT_FALSE(Read("The sun is out."));
    EXPECT_FALSE(Read("Go straight to nowhere."));
}

TEST_F(NewsEffectTest, EveryCardOfEveryShippedGameCanBePlayed) {
    const QString data = QStringLiteral(TAVLORA_DATA_DIR);
    QStringList games = QDir(data).entryList({QStringLiteral("*.gam"), QStringLiteral("Default_US.dat")}, QDir::Files);
    // All its cards are still to be written.
    games.removeAll(QStringLiteral("Blank_US.gam"));
    ASSERT_GE(games.size(), 5);
    for (const QString& game : games) {
        PlaySetFiles files = ShippedFiles(data, Kit::Eight);
        files.game = data + u'/' + game;
        QString error;
        EXPECT_TRUE(ReadPlaySet(files, error)) << game.toStdString() << ": " << error.toStdString();
    }
}

TEST_F(NewsEffectTest, GameWhoseCardsTellNothingIsRefusedWithTheCard) {
    PlaySetFiles files = ShippedFiles(QStringLiteral(TAVLORA_DATA_DIR), Kit::Eight);
    files.game = WriteFile(QStringLiteral("a.gam"), ReadFile(files.game).replace("Pay $300.", "Oh dear."));
    QString error;
    EXPECT_FALSE(ReadPlaySet(files, error));
    EXPECT_EQ(error, QStringLiteral("A news card tells nothing that can be played: "
                                    "'You back into a lamp post. Oh dear.'."));
    files.game = WriteFile(QStringLiteral("b.gam"), "no game");
    EXPECT_FALSE(ReadPlaySet(files, error));
    EXPECT_EQ(error, QStringLiteral("'%1' is no game.").arg(files.game));
}

TEST_F(NewsEffectTest, RentsOfTheWrongKitAreRefused) {
    PlaySetFiles files = ShippedFiles(QStringLiteral(TAVLORA_DATA_DIR), Kit::Five);
    files.kit = Kit::Eight;
    QString error;
    EXPECT_FALSE(ReadPlaySet(files, error));
    EXPECT_EQ(error, QStringLiteral("Row 0 of the rents in '%1' can't be read.").arg(files.rents));
}

} // namespace
