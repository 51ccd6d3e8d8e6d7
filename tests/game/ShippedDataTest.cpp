// SPDX-License-Identifier: MIT
// The text data that the build ships load without a word.
#include "support/FileFixture.h"

#include "document/GameText.h"
#include "game/SampleGames.h"
#include "platform/files/Files.h"
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

// Where the pictures of the game in memory lie, of each piece that the kit doesn't fill by itself. Nothing for a piece
// without one.
QStringList PicturesOfThePieces() {
    QStringList paths;
    for (int i = 0; i < 28; ++i) {
        const bool lotto = i == 10 || i == 24;
        if (!lotto) paths += basTAVL::g_oSpaces(i).Image.FullPath();
    }
    // The last corner's picture is the kit's and not the game's.
    for (int i = 0; i < 3; ++i)
        paths += basTAVL::g_oCorners(i).Image.FullPath();
    for (int i = 0; i < 4; ++i)
        paths += basTAVL::g_oMoney(i).FaceImage.FullPath();
    for (int i = 0; i < 6; ++i)
        paths += basTAVL::g_oTokens(i).Image.FullPath();
    return paths;
}

QStringList PicturesOfTheGame() {
    QStringList shown = PicturesOfThePieces();
    shown.removeAll(QString());
    return shown;
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

// The folder that a sample keeps its pictures in.
QString FolderOf(const QString& sSample) { return sSample.toLower(); }

TEST_F(ShippedDataTest, EverySampleButBlankHasAPictureOfItsOwnOnEachPiece) {
    QStringList withPictures;
    for (const basTAVL::SampleGame& sample : basTAVL::SampleGames()) {
        if (sample.sName == QStringLiteral("Blank")) continue;
        withPictures += sample.sName;
        basPosit::PosInit();
        ASSERT_EQ(Load(QString(sample.sPath)), 0) << sample.sName.toStdString();
        QStringList paths = PicturesOfThePieces();
        EXPECT_EQ(paths.size(), 26 + 3 + 4 + 6);
        for (const QString& path : paths) {
            EXPECT_TRUE(path.startsWith(Shipped(FolderOf(sample.sName) + u'/')))
                << sample.sName.toStdString() << ": \"" << path.toStdString() << '"';
        }
        EXPECT_EQ(paths.removeDuplicates(), 0) << sample.sName.toStdString() << " shows a picture twice";
    }
    EXPECT_EQ(withPictures, QStringList({"Family", "Generic", "Person", "Town", "Class", "Holiday"}));
}

TEST_F(ShippedDataTest, NoPictureOfASampleIsShippedForNothing) {
    for (const basTAVL::SampleGame& sample : basTAVL::SampleGames()) {
        ASSERT_EQ(Load(QString(sample.sPath)), 0) << sample.sName.toStdString();
        const QStringList used = PicturesOfTheGame();
        const QDir pictures(Shipped(FolderOf(sample.sName)));
        for (const QString& name : pictures.entryList(QDir::Files))
            EXPECT_TRUE(used.contains(pictures.filePath(name)))
                << sample.sName.toStdString() << ": " << name.toStdString();
    }
}

// Centred, so that the whole drawing shows.
TEST_F(ShippedDataTest, EverySampleShowsItsDrawingsWhole) {
    for (const basTAVL::SampleGame& sample : basTAVL::SampleGames()) {
        basPosit::PosInit();
        ASSERT_EQ(Load(QString(sample.sPath)), 0) << sample.sName.toStdString();
        for (int i = 0; i < 28; ++i) {
            const C_Image& image = basTAVL::g_oSpaces(i).Image;
            if (image.FullPath().isEmpty()) continue;
            QString error;
            const Picture picture = LoadPicture(image.FullPath(), error);
            EXPECT_EQ(QPointF(image.XCenter(), image.YCenter()), QPointF(picture.Width() / 2, picture.Height() / 2))
                << sample.sName.toStdString() << i;
        }
    }
}

TEST_F(ShippedDataTest, ANewGameCanStartFromMoreSamplesThanAreCopied) {
    QStringList names;
    for (const basTAVL::SampleGame& sample : basTAVL::SampleGames()) {
        names += sample.sName;
        EXPECT_EQ(sample.sPath, Shipped(sample.sName + QStringLiteral("_US.gam")));
    }
    EXPECT_EQ(names, QStringList({"Family", "Generic", "Person", "Town", "Class", "Holiday", "Blank"}));
    basTAVL::CopySampleGames();
    EXPECT_EQ(QDir(PathOf(QStringLiteral("games"))).entryList({QStringLiteral("*.gam")}),
              QStringList({"Blank.gam", "Family.gam", "Generic.gam", "Person.gam", "Town.gam"}));
}

TEST_F(ShippedDataTest, OnlyASampleThatCouldNotBeCopiedIsInTheLog) {
    const QString told = QStringLiteral("A sample could not be copied to ");
    const auto log = [] { return QString::fromUtf8(ReadFile(basErrLog::ErrLogPath())); };
    basTAVL::CopySampleGames();
    EXPECT_FALSE(log().contains(told));
    const QString town = InGames(QStringLiteral("Town.gam"));
    ASSERT_TRUE(QFile::remove(town));
    Files::SetFaultHook([&town](Files::Operation, const QString& path) {
        return path.startsWith(town) ? std::optional(QStringLiteral("disk says no")) : std::nullopt;
    });
    basTAVL::CopySampleGames();
    EXPECT_TRUE(log().contains(told + town + QStringLiteral(" disk says no")));
}

TEST_F(ShippedDataTest, ASampleWithoutItsFileIsNotOffered) {
    Folders::SetProgramDirectory(PathOf(QStringLiteral("program")));
    WriteFile(QStringLiteral("program/Town.gam"), "ours");
    WriteFile(QStringLiteral("program/Town_US.gam"), "the locale's");
    const std::vector<basTAVL::SampleGame> samples = basTAVL::SampleGames();
    ASSERT_EQ(samples.size(), 1);
    EXPECT_EQ(samples[0].sPath, PathOf(QStringLiteral("program/Town.gam")));
}

} // namespace
