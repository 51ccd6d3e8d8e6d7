// SPDX-License-Identifier: MIT
// The text data that the build ships load without a word.
#include "support/FileFixture.h"

#include "platform/TextFile.h"

namespace {

class ShippedDataTest : public GameFileTest {
protected:
    ShippedDataTest() {
        basPosit::ResetForTest();
        Settings().sProgramDirectory = QStringLiteral(TAVLORA_DATA_DIR);
    }
    static QString Shipped(const QString& name) { return QStringLiteral(TAVLORA_DATA_DIR "/") + name; }
};

TEST_F(ShippedDataTest, RentsOfEveryKitHoldTwentyEightRows) {
    for (const char* kit : {"8", "5", "2A", "2"}) {
        Settings().sGameVersion = QString::fromLatin1(kit);
        QString error;
        const auto lines = TextFile::ReadLines(basPosit::RentsPath(), error);
        ASSERT_TRUE(lines) << kit << error.toStdString();
        EXPECT_EQ(lines->size(), 28) << kit;
        basPosit::ReadRents();
        for (int i = 0; i < 28; ++i) {
            const bool middle = i % 7 == 3;
            EXPECT_EQ(basPosit::m_Rent(i).Cost > 0, !middle) << kit << " " << i;
            EXPECT_FALSE(basPosit::m_Rent(i).DefaultName.isEmpty()) << kit << " " << i;
        }
    }
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

TEST_F(ShippedDataTest, EveryGameLoadsWholeAndSavesTheSameRecords) {
    QStringList games{QStringLiteral("Default_US.dat")};
    games += QDir(QStringLiteral(TAVLORA_DATA_DIR)).entryList({QStringLiteral("*.gam")}, QDir::Files);
    EXPECT_GE(games.size(), 2);
    for (const QString& game : games) {
        basPosit::PosInit();
        QString error;
        const auto lines = TextFile::ReadLines(Shipped(game), error);
        ASSERT_TRUE(lines) << error.toStdString();
        EXPECT_EQ(lines->size(), 69) << game.toStdString();
        ASSERT_EQ(Load(Shipped(game)), 0) << game.toStdString() << desktop.Texts().join(u'\n').toStdString();
        session.m_sGameName = InGames(QStringLiteral("Copy.gam"));
        ASSERT_TRUE(Save(session.m_sGameName));
        const QStringList before = GameFile::ComposeLines();
        ASSERT_EQ(Load(QString(session.m_sGameName)), 0);
        EXPECT_EQ(GameFile::ComposeLines(), before) << game.toStdString();
    }
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

} // namespace
