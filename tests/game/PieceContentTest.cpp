// SPDX-License-Identifier: MIT
// Copies and swaps of what spaces and corners hold.
#include "game/PieceContent.h"

#include "support/GameFixture.h"

namespace {

using Kind = PictureOwner::Kind;

constexpr PictureOwner kSpace{Kind::Space, 0};
constexpr PictureOwner kOtherSpace{Kind::Space, 11};
constexpr PictureOwner kCorner{Kind::Corner, 1};
constexpr PictureOwner kOtherCorner{Kind::Corner, 2};

class PieceContentTest : public GameTest {
protected:
    PieceContentTest() {
        photo = WriteFile(QStringLiteral("photo.bmp"), "x");
        C_Space& space = game.spaces[0];
        space.Cost = QStringLiteral("$60");
        space.SpaceType = QStringLiteral("P");
        space.Font.Load(QStringLiteral("Courier"), true, false, 9);
        space.SetImagePath(photo);
        space.Image.Let_XCenter(320);
        space.Image.Let_YCenter(200);
        space.Image.Let_Zoom(7);
        space.SetText(QStringLiteral("Acorn\r\nLane"));
        C_Space& other = game.spaces[11];
        other.Cost = QStringLiteral("$220");
        other.SetText(QStringLiteral("Birch Road"));
        game.corners[1].SetText(0, QStringLiteral("Lose a Turn"));
        game.corners[1].SetText(1, QStringLiteral("in old games"));
        game.corners[2].SetText(0, QStringLiteral("Rest"));
        game.corners[2].Image.Let_FullPath(photo);
        game.corners[2].Image.Let_Zoom(3);
    }

    QString photo;
    Game game;
};

TEST_F(PieceContentTest, ACopyHasWordsFontAndPicturePartButStaysAtItsPlace) {
    const Edit edit = PieceContents::Copy(game, PieceContents::Of(game, kSpace), kOtherSpace);
    EXPECT_EQ(edit.sName, QStringLiteral("Copy Acorn Lane to Birch Road"));
    const C_Space& copy = edit.after.spaces[11];
    EXPECT_EQ(copy.TextAll(), QStringLiteral("Acorn\r\nLane"));
    EXPECT_EQ(copy.Font, game.spaces[0].Font);
    EXPECT_EQ(copy.Image.Ref(), (PictureRef{photo, 7, 320, 200}));
    EXPECT_EQ(copy.TextSize(), game.spaces[0].TextSize()) << "fitted to the room that the picture leaves";
    EXPECT_EQ(copy.Cost, QStringLiteral("$220"));
    EXPECT_EQ(copy.Image.Owner(), game.spaces[11].Image.Owner());
    Game expected = game;
    expected.spaces[11] = copy;
    EXPECT_EQ(edit.after, expected) << "nothing else has changed";
}

TEST_F(PieceContentTest, ASpaceWithoutAPictureTakesThePictureAway) {
    const Edit edit = PieceContents::Copy(game, PieceContents::Of(game, kOtherSpace), kSpace);
    EXPECT_EQ(edit.after.spaces[0].Image.Ref(), PictureRef());
    EXPECT_EQ(edit.after.spaces[0].TextSize(), game.spaces[11].TextSize());
}

TEST_F(PieceContentTest, SpacesAndCornersCopyToOneAnother) {
    const Edit toCorner = PieceContents::Copy(game, PieceContents::Of(game, kSpace), kCorner);
    const C_Corner& corner = toCorner.after.corners[1];
    EXPECT_EQ(corner.TextAll(0), QStringLiteral("Acorn\r\nLane"));
    EXPECT_EQ(corner.TextAll(1), QString()) << "no words of before stay with it";
    EXPECT_EQ(corner.Image.Ref(), (PictureRef{photo, 7, 320, 200}));
    const Edit toSpace = PieceContents::Copy(game, PieceContents::Of(game, kOtherCorner), kOtherSpace);
    EXPECT_EQ(toSpace.after.spaces[11].TextAll(), QStringLiteral("Rest"));
    EXPECT_EQ(toSpace.after.spaces[11].Image.Ref(), (PictureRef{photo, 3, 0, 0}));
}

TEST_F(PieceContentTest, ACornerIsFittedAsWhenItsGameIsRead) {
    C_Corner fitted = game.corners[2];
    fitted.SetText(0, TextLines::kUseExisting);
    const Edit edit = PieceContents::Copy(game, PieceContents::Of(game, kOtherCorner), kCorner);
    EXPECT_EQ(edit.after.corners[1].TextSize(0), fitted.TextSize(0));
}

TEST_F(PieceContentTest, ASwapExchangesWhatIsTheFamilysAndLeavesWhatIsThePlaces) {
    const Edit edit = PieceContents::Swap(game, kSpace, kOtherSpace);
    EXPECT_EQ(edit.sName, QStringLiteral("Swap Acorn Lane and Birch Road"));
    for (const auto& [one, other] : {std::pair{kSpace, kOtherSpace}, std::pair{kOtherSpace, kSpace}}) {
        EXPECT_EQ(PieceContents::Of(edit.after, one), PieceContents::Of(game, other));
        const auto slot = size_t(one.iNumber);
        EXPECT_EQ(edit.after.spaces[slot].Cost, game.spaces[slot].Cost);
        EXPECT_EQ(edit.after.spaces[slot].Index, game.spaces[slot].Index);
        EXPECT_EQ(edit.after.spaces[slot].Image.Owner(), game.spaces[slot].Image.Owner());
    }
    EXPECT_EQ(PieceContents::Swap(edit.after, kSpace, kOtherSpace).after, game) << "and back";
}

TEST_F(PieceContentTest, CornersSwapBothBlocks) {
    const Edit edit = PieceContents::Swap(game, kCorner, kOtherCorner);
    EXPECT_EQ(edit.after.corners[2].TextAll(0), QStringLiteral("Lose a Turn"));
    EXPECT_EQ(edit.after.corners[2].TextAll(1), QStringLiteral("in old games"));
    EXPECT_EQ(edit.after.corners[1].TextAll(1), QString());
    EXPECT_EQ(edit.after.corners[1].Image.Ref(), (PictureRef{photo, 3, 0, 0}));
    EXPECT_TRUE(edit.after.corners[2].Image.FullPath().isEmpty());
}

TEST_F(PieceContentTest, OnlyTwoSpacesOrTwoCornersOfTheFamilysSwap) {
    EXPECT_TRUE(PieceContents::CanSwap(kSpace, kOtherSpace));
    EXPECT_TRUE(PieceContents::CanSwap(kCorner, kOtherCorner));
    EXPECT_FALSE(PieceContents::CanSwap(kSpace, kSpace));
    EXPECT_FALSE(PieceContents::CanSwap(kSpace, kCorner));
    for (const int kits : {3, 10, 17, 24}) {
        EXPECT_FALSE(PieceContents::CanSwap(kSpace, {Kind::Space, qint16(kits)})) << kits;
        EXPECT_FALSE(PieceContents::Has({Kind::Space, qint16(kits)})) << kits;
    }
    EXPECT_FALSE(PieceContents::CanSwap(kCorner, {Kind::Corner, 3}));
    EXPECT_FALSE(PieceContents::Has({Kind::Token, 1}));
    EXPECT_FALSE(PieceContents::Has({Kind::Space, -1}));
    EXPECT_FALSE(PieceContents::Has({}));
}

TEST_F(PieceContentTest, APieceWithoutWordsIsKnownByItsPlace) {
    game.spaces[11].SetText(QStringLiteral(" "));
    EXPECT_EQ(PieceContents::Swap(game, kSpace, kOtherSpace).sName, QStringLiteral("Swap Acorn Lane and Space 12"));
    EXPECT_EQ(PieceContents::Copy(game, PieceContents::Of(game, kOtherSpace), kSpace).sName,
              QStringLiteral("Copy to Acorn Lane"));
}

TEST_F(PieceContentTest, WhatIsWrittenForOthersIsReadAsItWas) {
    PieceContent content = PieceContents::Of(game, kSpace);
    content.sText = QStringLiteral("\"A\\n\" & \u05d0\U0001F33B\r\nB");
    content.sSecondText = QStringLiteral("two");
    content.picture.sPath = QStringLiteral("C:\\new\\photo.png");
    content.picture.iXCenter = -5;
    content.font.Size = 10.5F;
    EXPECT_EQ(PieceContents::Read(PieceContents::Written(content)), content);
}

TEST_F(PieceContentTest, WhatIsNoPieceIsNotRead) {
    const QByteArray good = PieceContents::Written(PieceContents::Of(game, kSpace));
    ASSERT_TRUE(PieceContents::Read(good));
    EXPECT_FALSE(PieceContents::Read({}));
    EXPECT_FALSE(PieceContents::Read("[]"));
    EXPECT_FALSE(PieceContents::Read("Acorn Lane"));
    EXPECT_FALSE(PieceContents::Read(good.left(good.size() - 1)));
    const auto with = [&good](const char* from, const char* to) { return QByteArray(good).replace(from, to); };
    EXPECT_FALSE(PieceContents::Read(with("\"tavlora-piece\":1", "\"tavlora-piece\":2")));
    EXPECT_FALSE(PieceContents::Read(with("\"zoom\":7", "\"zoom\":70000")));
    EXPECT_FALSE(PieceContents::Read(with("\"x\":320", "\"x\":1.5")));
    EXPECT_FALSE(PieceContents::Read(with("\"y\":200", "\"y\":\"no\"")));
    EXPECT_FALSE(PieceContents::Read(with("\"size\":9", "\"size\":1e300")));
    EXPECT_FALSE(PieceContents::Read(with("Courier", "")));
    // Letters of no size would end the program in a space.
    for (const char* size : {"\"size\":0", "\"size\":-9", "\"size\":1e-60", "\"size\":\"no\"", "\"taille\":9"})
        EXPECT_FALSE(PieceContents::Read(with("\"size\":9", size))) << size;
}

TEST_F(PieceContentTest, WhatIsReadIsNoLongerThanAGameMayHold) {
    PieceContent content = PieceContents::Of(game, kSpace);
    content.sText = QString(20000, u'a');
    const std::optional<PieceContent> read = PieceContents::Read(PieceContents::Written(content));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->sText.size(), 10000);
    const Edit edit = PieceContents::Copy(game, *read, kOtherSpace);
    EXPECT_EQ(edit.after.spaces[11].TextAll().size(), TextLines::kMaxLastLine);
}

} // namespace
