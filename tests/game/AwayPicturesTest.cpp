// SPDX-License-Identifier: MIT
#include "game/AwayPictures.h"

#include "document/Game.h"
#include "pictures/PicturePlaces.h"
#include "services/ProgramSettings.h"
#include "support/TestFixture.h"

#include <QDir>
#include <QFile>

namespace {

class AwayPicturesTest : public TavloraTest {
protected:
    /// What a game file with this name for a picture gives.
    static void Read(C_Image& image, const QString& sName) {
        image.Read(u'"' + sName + QStringLiteral("\", 12, 34, 5"), image.Owner(),
                   [](const QString& name, const auto&) { return PicturePlaces::FullOf(name); });
    }
    Game game;
    AwayPictures away;
};

TEST_F(AwayPicturesTest, APictureIsBackWhenItsFileIs) {
    const QString stick = PathOf(QStringLiteral("stick"));
    C_Image& image = game.tokens[3].Image;
    Read(image, stick + QStringLiteral("/dog.png"));
    const C_Image before = image;
    EXPECT_FALSE(away.Look(game));
    EXPECT_TRUE(away.IsAny());
    QDir(folder.path()).mkdir(QStringLiteral("stick"));
    WriteFile(QStringLiteral("stick/dog.png"), "a picture");
    EXPECT_TRUE(away.Look(game));
    EXPECT_FALSE(away.IsAny());
    EXPECT_EQ(image, before);
    EXPECT_FALSE(away.Look(game)) << "it was there at the last look";
    QFile::remove(stick + QStringLiteral("/dog.png"));
    EXPECT_FALSE(away.Look(game));
    EXPECT_TRUE(away.IsAny());
}

TEST_F(AwayPicturesTest, ANameWithoutItsFolderIsFoundWhereItComesToLieAndKeepsItsPart) {
    C_Image& image = game.spaces[7].Image;
    Read(image, QStringLiteral("holiday/dog.png"));
    EXPECT_FALSE(away.Look(game));
    const QString record = image.GetQuotedString();
    QDir(folder.path()).mkdir(QStringLiteral("holiday"));
    const QString path = WriteFile(QStringLiteral("holiday/dog.png"), "a picture");
    EXPECT_TRUE(away.Look(game));
    EXPECT_EQ(image.FullPath(), path);
    EXPECT_EQ(image.Zoom(), 5);
    EXPECT_EQ(image.XCenter(), 12);
    EXPECT_EQ(image.YCenter(), 34);
    EXPECT_EQ(image.GetQuotedString(), record) << "the game file says the same";
}

TEST_F(AwayPicturesTest, WhatIsToldOfOneThatIsAwayIsToldAnewWhenItGoesAgain) {
    C_Image& image = game.money[1].FaceImage;
    Read(image, PathOf(QStringLiteral("dog.png")));
    image.GetThumbnail(false);
    EXPECT_EQ(desktop.boxes.size(), 1);
    away.Look(game);
    const QString path = WriteFile(QStringLiteral("dog.png"), "a picture");
    away.Look(game);
    QFile::remove(path);
    image.GetThumbnail(false);
    EXPECT_EQ(desktop.boxes.size(), 2);
}

TEST_F(AwayPicturesTest, APieceWithoutAPictureMissesNone) {
    EXPECT_FALSE(away.Look(game));
    EXPECT_FALSE(away.IsAny());
}

} // namespace
