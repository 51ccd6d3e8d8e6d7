// SPDX-License-Identifier: MIT
// The text data that the build ships load without a word.
#include "support/FileFixture.h"

#include "document/GameText.h"
#include "game/SampleGames.h"
#include "platform/files/Folders.h"
#include "platform/files/TextFile.h"
#include "platform/pictures/LoadPicture.h"

namespace {

class ShippedDataTest : public GameFileTest {
protected:
    ShippedDataTest() {
        basPosit::ResetForTest();
        Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
    }
    static QString Shipped(const QString& name) { return QStringLiteral(TAVLORA_DATA_DIR "/") + name; }
};

TEST_F(ShippedDataTest, RentsOfEveryKitHoldTwentyEightRows) {
    for (const char* kit : {"8", "5", "2A", "2"}) {
        basTAVL::Let_g_sGameVersion(QString::fromLatin1(kit));
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
        session.SetGameName(InGames(QStringLiteral("Copy.gam")));
        ASSERT_TRUE(Save(session.GameName()));
        const QStringList before = ComposeLines(TheGame(), session.GameName());
        ASSERT_EQ(Load(QString(session.GameName())), 0);
        EXPECT_EQ(ComposeLines(TheGame(), session.GameName()), before) << game.toStdString();
    }
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

QStringList Shown(const QStringList& paths) {
    QStringList shown;
    for (const QString& path : paths) {
        if (!path.isEmpty()) shown += path;
    }
    return shown;
}

// Where the pictures of the game in memory lie.
QStringList PicturesOfTheGame() {
    QStringList paths;
    for (int i = 0; i < 28; ++i)
        paths += basTAVL::g_oSpaces(i).Image.FullPath();
    // The last corner's picture is the kit's and not the game's.
    for (int i = 0; i < 3; ++i)
        paths += basTAVL::g_oCorners(i).Image.FullPath();
    for (int i = 0; i < 4; ++i)
        paths += basTAVL::g_oMoney(i).FaceImage.FullPath();
    for (int i = 0; i < 6; ++i)
        paths += basTAVL::g_oTokens(i).Image.FullPath();
    return Shown(paths);
}

TEST_F(ShippedDataTest, EveryPictureNamedInAGameIsThereAndCanBeRead) {
    for (const QString& game :
         QDir(QStringLiteral(TAVLORA_DATA_DIR)).entryList({QStringLiteral("*_US.*")}, QDir::Files)) {
        if (!game.endsWith(QStringLiteral(".gam")) && !game.startsWith(QStringLiteral("Default"))) continue;
        basPosit::PosInit();
        ASSERT_EQ(Load(Shipped(game)), 0) << game.toStdString();
        for (const QString& path : PicturesOfTheGame()) {
            QString error;
            const Picture picture = LoadPicture(path, error);
            EXPECT_FALSE(picture.IsNull()) << game.toStdString() << ": " << path.toStdString() << error.toStdString();
        }
    }
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

TEST_F(ShippedDataTest, CopyOfTheFamilyFindsItsPicturesBesideTheProgramAndKeepsTheirNames) {
    basTAVL::CopySampleGames();
    ASSERT_EQ(Load(InGames(QStringLiteral("Family.gam"))), 0);
    const QStringList found = PicturesOfTheGame();
    // All spaces but the two of the lotto, three corners, the notes and the tokens.
    EXPECT_EQ(found.size(), 26 + 3 + 4 + 6);
    for (const QString& path : found)
        EXPECT_TRUE(path.startsWith(Shipped(QStringLiteral("family/")))) << path.toStdString();
    // Another machine keeps the program elsewhere: what is saved again must not tell where it lies on this one.
    EXPECT_EQ(basTAVL::g_oSpaces(13).Image.RelativePath(), QStringLiteral("family/pond.png"));
    const QStringList saved = ComposeLines(TheGame(), session.GameName());
    EXPECT_FALSE(saved.join(u'\n').contains(QStringLiteral(TAVLORA_DATA_DIR)));
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

TEST_F(ShippedDataTest, NoPictureOfTheFamilyIsShippedForNothing) {
    ASSERT_EQ(Load(Shipped(QStringLiteral("Family_US.gam"))), 0);
    const QStringList used = PicturesOfTheGame();
    const QDir pictures(Shipped(QStringLiteral("family")));
    for (const QString& name : pictures.entryList(QDir::Files))
        EXPECT_TRUE(used.contains(pictures.filePath(name))) << name.toStdString();
}

} // namespace
