// SPDX-License-Identifier: MIT
#include "game/DroppedPictures.h"

#include "support/GameFixture.h"

namespace {

using Kind = PictureOwner::Kind;

class DroppedPicturesTest : public GameTest {
protected:
    QStringList Files(int count) const {
        QStringList files;
        for (int i = 0; i < count; ++i)
            files.append(WriteFile(QStringLiteral("p%1.png").arg(i), "a picture"));
        return files;
    }
    static QString Refuse(const QString& sFile) {
        return sFile.endsWith(QStringLiteral("p1.png")) ? QStringLiteral("'p1' is no picture.") : QString();
    }
    static QString TakeAll(const QString&) { return {}; }
    /// Numbers of the spaces that show a picture.
    static QList<int> SpacesWithPictures(const Game& game) {
        QList<int> spaces;
        for (int i = 0; i < basTAVL::kSpaces; ++i) {
            if (!game.spaces[size_t(i)].Image.FullPath().isEmpty()) spaces.append(i);
        }
        return spaces;
    }
    Game game;
};

TEST_F(DroppedPicturesTest, OnePictureGoesOntoThePieceWhateverItShows) {
    const QStringList files = Files(2);
    for (const PictureOwner& piece : {PictureOwner{Kind::Space, 5}, PictureOwner{Kind::Corner, 2},
                                      PictureOwner{Kind::Money, 1}, PictureOwner{Kind::Token, 4}}) {
        const DroppedPictures::Outcome first = DroppedPictures::Onto(game, {files[0]}, piece, TakeAll);
        ASSERT_TRUE(first.edit) << piece.KindName().toStdString();
        EXPECT_TRUE(first.edit->sName.startsWith(QStringLiteral("Picture of "))) << first.edit->sName.toStdString();
        const DroppedPictures::Outcome second = DroppedPictures::Onto(first.edit->after, {files[1]}, piece, TakeAll);
        ASSERT_TRUE(second.edit);
        Game expected = game;
        if (piece.kind == Kind::Space) expected.spaces[5].SetImagePath(files[1]);
        if (piece.kind == Kind::Corner) expected.corners[2].Image.Let_FullPath(files[1]);
        if (piece.kind == Kind::Money) expected.money[1].FaceImage.Let_FullPath(files[1]);
        if (piece.kind == Kind::Token) expected.tokens[4].SetImagePath(files[1]);
        EXPECT_EQ(second.edit->after, expected);
        EXPECT_EQ(second.sTold, QString());
    }
}

TEST_F(DroppedPicturesTest, SeveralFillTheFollowingFreeSpacesInTheOrderOfPlay) {
    game.spaces[6].SetImagePath(Files(1)[0]);
    const auto outcome = DroppedPictures::Onto(game, Files(4), {Kind::Space, 4}, TakeAll);
    ASSERT_TRUE(outcome.edit);
    EXPECT_EQ(SpacesWithPictures(outcome.edit->after).mid(0, 2), (QList<int>{4, 5}));
    for (const int i : SpacesWithPictures(outcome.edit->after))
        EXPECT_TRUE(DroppedPictures::Takes({Kind::Space, qint16(i)})) << i;
    EXPECT_EQ(SpacesWithPictures(outcome.edit->after).size(), 5);
    EXPECT_EQ(outcome.edit->after.spaces[6], game.spaces[6]) << "not free";
    EXPECT_EQ(outcome.edit->sName, QStringLiteral("4 Pictures"));
}

TEST_F(DroppedPicturesTest, BehindTheLastSpaceComesTheFirstAndBehindACornerItsSide) {
    const auto round = DroppedPictures::Onto(game, Files(2), {Kind::Space, 27}, TakeAll);
    ASSERT_TRUE(round.edit);
    EXPECT_EQ(SpacesWithPictures(round.edit->after), (QList<int>{0, 27}));
    const auto corner = DroppedPictures::Onto(game, Files(2), {Kind::Corner, 1}, TakeAll);
    ASSERT_TRUE(corner.edit);
    EXPECT_FALSE(corner.edit->after.corners[1].Image.FullPath().isEmpty());
    EXPECT_EQ(SpacesWithPictures(corner.edit->after), QList<int>{7});
}

TEST_F(DroppedPicturesTest, WhatIsRefusedIsToldAndTheOthersAreTaken) {
    const auto outcome = DroppedPictures::Onto(game, Files(3), {Kind::Token, 3}, Refuse);
    ASSERT_TRUE(outcome.edit);
    EXPECT_EQ(outcome.sTold, QStringLiteral("'p1' is no picture."));
    EXPECT_TRUE(outcome.edit->after.tokens[3].Image.FullPath().endsWith(QStringLiteral("p0.png")));
    EXPECT_TRUE(outcome.edit->after.tokens[4].Image.FullPath().endsWith(QStringLiteral("p2.png")));
    EXPECT_FALSE(DroppedPictures::Onto(game, Files(2).mid(1), {Kind::Token, 3}, Refuse).edit);
}

TEST_F(DroppedPicturesTest, MoreThanThereAreFreePlacesAreCounted) {
    const auto outcome = DroppedPictures::Onto(game, Files(8), {Kind::Token, 5}, TakeAll);
    ASSERT_TRUE(outcome.edit);
    EXPECT_EQ(outcome.sTold, QStringLiteral("2 pictures found no free place."));
    for (const C_Token& token : outcome.edit->after.tokens)
        EXPECT_FALSE(token.Image.FullPath().isEmpty());
}

TEST_F(DroppedPicturesTest, WhereNoneIsFreeAllAreCountedAndWhatIsNoPictureIsToldAsSuch) {
    const auto outcome = DroppedPictures::Onto(game, Files(3), {Kind::Token, DroppedPictures::kNoneFree}, Refuse);
    EXPECT_FALSE(outcome.edit);
    EXPECT_EQ(outcome.sTold, QStringLiteral("'p1' is no picture.\r\n2 pictures found no free place."));
}

TEST_F(DroppedPicturesTest, PiecesOfTheKitTakeNone) {
    for (const PictureOwner& piece : {PictureOwner{Kind::Corner, 3}, PictureOwner{Kind::Space, 3},
                                      PictureOwner{Kind::Space, 28}, PictureOwner{Kind::Token, -1}, PictureOwner{}}) {
        const auto outcome = DroppedPictures::Onto(game, Files(1), piece, TakeAll);
        EXPECT_FALSE(outcome.edit);
        EXPECT_FALSE(outcome.sTold.isEmpty());
    }
}

TEST_F(DroppedPicturesTest, WordsStayWithTheirPiece) {
    game.tokens[0].SetText(QStringLiteral("Dad"));
    const auto outcome = DroppedPictures::Onto(game, Files(1), {Kind::Token, 0}, TakeAll);
    ASSERT_TRUE(outcome.edit);
    EXPECT_EQ(outcome.edit->after.tokens[0].TextAll(), QStringLiteral("Dad"));
}

} // namespace
