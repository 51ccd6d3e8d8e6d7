// SPDX-License-Identifier: MIT
#include "pictures/MovedGame.h"

#include "pictures/PicturePart.h"
#include "pictures/PicturePlaces.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <QDir>

namespace {

class MovedGameTest : public TavloraTest {
protected:
    ~MovedGameTest() override { MovedGame::Note(QString(), QString()); }
    QString Make(const char* name) const {
        QDir(folder.path()).mkpath(QFileInfo(QString::fromLatin1(name)).path());
        return WriteFile(QString::fromLatin1(name), "a picture");
    }
};

TEST_F(MovedGameTest, PicturesBelowBesideAndInANeighbourFolderAreFoundWhereTheGameIsNow) {
    MovedGame::Note(QStringLiteral("/old/Family/"), PathOf(QStringLiteral("new/Family")));
    const QString below = Make("new/Family/Photos/cat.png");
    const QString beside = Make("new/Family/dog.png");
    const QString neighbour = Make("new/Photos/cow.png");
    EXPECT_EQ(PicturePlaces::FullOf(QStringLiteral("/old/Family/Photos/cat.png")), below);
    EXPECT_EQ(PicturePlaces::FullOf(QStringLiteral("/old/Family/dog.png")), beside);
    EXPECT_EQ(PicturePlaces::FullOf(QStringLiteral("/old/Photos/cow.png")), neighbour);
}

TEST_F(MovedGameTest, WhatIsStillAtItsPlaceStaysThere) {
    const QString old = Make("old/Family/cat.png");
    Make("new/Family/cat.png");
    MovedGame::Note(PathOf(QStringLiteral("old/Family")), PathOf(QStringLiteral("new/Family")));
    EXPECT_EQ(PicturePlaces::FullOf(old), old);
}

TEST_F(MovedGameTest, NothingIsFoundForOtherFoldersNorForAGameThatWasntMoved) {
    Make("new/Family/cat.png");
    MovedGame::Note(QStringLiteral("/old/Family"), PathOf(QStringLiteral("new/Family")));
    EXPECT_EQ(MovedGame::PlaceOf(QStringLiteral("/elsewhere/far/away/cat.png")), QString());
    EXPECT_EQ(MovedGame::PlaceOf(QStringLiteral("/old/Family2/cat.png")), QString());
    MovedGame::Note(QStringLiteral("/old/Family"), QString());
    EXPECT_EQ(MovedGame::PlaceOf(QStringLiteral("/old/Family/cat.png")), QString());
}

TEST_F(MovedGameTest, NothingIsFoundBeforeAnyGameWasLoaded) {
    EXPECT_EQ(MovedGame::PlaceOf(QString()), QString());
    EXPECT_EQ(MovedGame::PlaceOf(QStringLiteral("cat.png")), QString());
    EXPECT_EQ(MovedGame::PlaceOfRelative(QString()), QString());
    EXPECT_EQ(MovedGame::PlaceOfRelative(QStringLiteral("cat.png")), QString());
}

TEST_F(MovedGameTest, ANameFromTheGamesFolderIsFoundInTheRenamedFolderOfTheGame) {
    MovedGame::Note(QStringLiteral("/old/My Games/Families/Ours/"), PathOf(QStringLiteral("stick/Theirs")));
    const QString below = Make("stick/Theirs/Photos/cat.png");
    EXPECT_EQ(MovedGame::PlaceOfRelative(QStringLiteral("Families/Ours/Photos/cat.png")), below);
    EXPECT_EQ(MovedGame::PlaceOfRelative(QStringLiteral("Ours/Photos/cat.png")), below);
    EXPECT_EQ(MovedGame::PlaceOfRelative(QStringLiteral("Photos/cat.png")), QString());
    EXPECT_EQ(MovedGame::PlaceOfRelative(QStringLiteral("Ours2/Photos/cat.png")), QString());
    MovedGame::Note(QString(), QString());
    EXPECT_EQ(MovedGame::PlaceOfRelative(QStringLiteral("Ours/Photos/cat.png")), QString());
}

TEST_F(MovedGameTest, TheFirstZoomLeavesNoBar) {
    const auto file = [this](int w, int h) {
        QImage image(w, h, QImage::Format_RGB32);
        image.fill(Qt::red);
        return WriteFile(QStringLiteral("%1x%2.png").arg(w).arg(h), PictureFiles::Encoded(image, "png"));
    };
    EXPECT_EQ(ZoomThatFills(file(50, 50)), 0);
    EXPECT_EQ(ZoomThatFills(file(100, 50)), 10);
    EXPECT_EQ(ZoomThatFills(file(50, 100)), 10);
    EXPECT_EQ(ZoomThatFills(file(400, 300)), 5);
    EXPECT_EQ(ZoomThatFills(PathOf(QStringLiteral("none.png"))), 0);
}

TEST_F(MovedGameTest, APhotoChosenAgainElsewhereIsKnownByItsNameAndByBeingGone) {
    EXPECT_TRUE(IsSameElsewhere(QStringLiteral("/gone/cat.png"), PathOf(QStringLiteral("Cat.png"))));
    EXPECT_FALSE(IsSameElsewhere(QStringLiteral("/gone/cat.png"), PathOf(QStringLiteral("dog.png"))));
    EXPECT_FALSE(IsSameElsewhere(Make("cat.png"), QStringLiteral("/other/cat.png"))) << "it is still there";
    EXPECT_FALSE(IsSameElsewhere(QString(), QStringLiteral("/other/cat.png")));
}

} // namespace
