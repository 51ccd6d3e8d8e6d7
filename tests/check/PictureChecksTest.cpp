// SPDX-License-Identifier: MIT
// What is told of pictures: each time of a game that has it, and of one that just hasn't.
#include "check/Checks.h"

#include "CheckFixture.h"

namespace {

constexpr int kSpace = 4;
const GamePiece kPiece = GamePiece::Space(kSpace);

} // namespace

TEST_F(CheckTest, APictureThatIsAwayIsMissed) {
    const QString path = Photo({400, 400});
    ShowOnSpace(kSpace, path);
    ExpectNone("picture-missing");
    QFile::remove(path);
    ExpectOnly("picture-missing", kPiece);
    EXPECT_TRUE(Of("picture-missing")[0].sText.contains(QStringLiteral("\"photo.png\"")));
    EXPECT_EQ(Of("picture-missing")[0].severity, Severity::Must);
    ExpectNone("picture-unreadable");
    Photo({400, 400});
    ExpectNone("picture-missing");
}

TEST_F(CheckTest, PicturesOfEveryKindOfPieceAreLookedFor) {
    const QString path = PathOf(QStringLiteral("away.png"));
    game.corners[1].Image.Init(path, QStringLiteral("Corner"), 1);
    game.money[2].FaceImage.Init(path, QStringLiteral("Money"), 2);
    game.tokens[3].Image.Init(path, QStringLiteral("Token"), 3);
    const std::vector<Finding> found = Of("picture-missing");
    ASSERT_EQ(found.size(), 3);
    EXPECT_EQ(found[0].piece, GamePiece::Corner(1));
    EXPECT_EQ(found[1].piece, GamePiece::Money(2));
    EXPECT_EQ(found[2].piece, GamePiece::Token(3));
}

TEST_F(CheckTest, WhatBelongsToTheKitIsLeftOut) {
    const QString path = PathOf(QStringLiteral("away.png"));
    for (const int space : {3, 10, 17, 24})
        game.spaces[size_t(space)].Image.Init(path, QStringLiteral("Space"), qint16(space));
    game.corners[3].Image.Init(path, QStringLiteral("Corner"), 3);
    game.spaces[10].SetText(QString());
    game.corners[3].SetText(0, QString());
    EXPECT_EQ(Findings(), std::vector<Finding>());
}

TEST_F(CheckTest, APictureThatCannotBeReadIsTold) {
    const QByteArray whole = PictureFiles::Encoded(PictureFiles::Quarters(400, 400), "png");
    const QString path = WriteFile(QStringLiteral("photo.png"), whole);
    ShowOnSpace(kSpace, path);
    ExpectNone("picture-unreadable");
    WriteFile(QStringLiteral("photo.png"), whole.left(whole.size() - 20));
    ExpectOnly("picture-unreadable", kPiece);
    WriteFile(QStringLiteral("photo.png"), "Dear Anna,");
    ExpectOnly("picture-unreadable", kPiece);
    ExpectNone("picture-missing");
}

// As where a copy from a camera broke off: its head is whole.
TEST_F(CheckTest, APictureThatBreaksOffBehindItsHeadIsTold) {
    const QByteArray whole = PictureFiles::Encoded(PictureFiles::Quarters(400, 400), "jpg");
    const QString path = WriteFile(QStringLiteral("photo.jpg"), whole.left(whole.size() / 2));
    ShowOnSpace(kSpace, path);
    ExpectOnly("picture-unreadable", kPiece);
    EXPECT_TRUE(Of("picture-unreadable")[0].sText.contains(QStringLiteral("\"photo.jpg\"")));
    ExpectNone("picture-coarse");
    WriteFile(QStringLiteral("photo.jpg"), whole.left(whole.size() - 2));
    ExpectNone("picture-unreadable");
    WriteFile(QStringLiteral("photo.jpg"), whole);
    ExpectNone("picture-unreadable");
}

// A space's picture is half as high as its sticker of 2.125 inches.
TEST_F(CheckTest, APictureNeeds150DotsAnInch) {
    ShowOnSpace(kSpace, Photo({160, 160}));
    ExpectNone("picture-coarse");
    ShowOnSpace(kSpace, Photo({159, 159}, QStringLiteral("small.png")));
    ExpectOnly("picture-coarse", kPiece);
    EXPECT_TRUE(Of("picture-coarse")[0].sText.contains(QStringLiteral("149 dots")));
}

TEST_F(CheckTest, WhatIsShownOfAPictureNeedsTheDots) {
    ShowOnSpace(kSpace, Photo({320, 320}));
    C_Image& image = game.spaces[kSpace].Image;
    image.Let_Zoom(10);
    ExpectNone("picture-coarse");
    image.Let_Zoom(11);
    ExpectOnly("picture-coarse", kPiece);
}

// A token is as wide as high, and nothing of it may be coarser than its 0.875 inch allow.
TEST_F(CheckTest, ATokenAndANoteNeedFewerDots) {
    game.tokens[0].SetImagePath(Photo({132, 132}));
    game.money[0].FaceImage.Init(Photo({143, 143}, QStringLiteral("note.png")), QStringLiteral("Money"), 0);
    ExpectNone("picture-coarse");
    game.tokens[0].SetImagePath(Photo({131, 131}, QStringLiteral("less.png")));
    game.money[0].FaceImage.Init(Photo({142, 142}, QStringLiteral("less note.png")), QStringLiteral("Money"), 0);
    EXPECT_EQ(Of("picture-coarse").size(), 2);
}

TEST_F(CheckTest, AnOblongPictureLeavesBars) {
    ShowOnSpace(kSpace, Photo({1000, 981}));
    ExpectNone("picture-bars");
    ShowOnSpace(kSpace, Photo({1000, 970}, QStringLiteral("oblong.png")));
    ExpectOnly("picture-bars", kPiece);
    EXPECT_FALSE(Of("picture-bars")[0].IsSerious());
    game.spaces[kSpace].Image.Let_Zoom(1);
    ExpectNone("picture-bars");
}

TEST_F(CheckTest, APictureMovedOverItsEdgeLeavesBars) {
    ShowOnSpace(kSpace, Photo({1000, 1000}));
    C_Image& image = game.spaces[kSpace].Image;
    image.Let_Zoom(10);
    image.Let_XCenter(250);
    image.Let_YCenter(500);
    ExpectNone("picture-bars");
    image.Let_XCenter(240);
    ExpectOnly("picture-bars", kPiece);
}

TEST_F(CheckTest, TheSamePartOfAPictureIsToldTheSecondTime) {
    const QString path = Photo({1000, 1000});
    ShowOnSpace(kSpace, path);
    ShowOnSpace(20, path);
    ExpectOnly("same-picture", GamePiece::Space(20));
    EXPECT_TRUE(Of("same-picture")[0].sText.contains(QStringLiteral("Place 5")));
    game.spaces[20].Image.Let_Zoom(10);
    ExpectNone("same-picture");
}

TEST_F(CheckTest, AFileIsReadOnceUntilItIsChanged) {
    ShowOnSpace(kSpace, Photo({400, 400}));
    ShowOnSpace(20, game.spaces[kSpace].Image.FullPath());
    Findings();
    EXPECT_EQ(facts.Readings(), 1);
    Findings();
    EXPECT_EQ(facts.Readings(), 1);
    Photo({100, 120});
    EXPECT_EQ(Of("picture-coarse").size(), 2);
    EXPECT_EQ(facts.Readings(), 2);
}
