// SPDX-License-Identifier: MIT
// Which sheets of the kit a finding concerns.
#include "check/PieceSheets.h"

#include "CheckFixture.h"
#include "kit/BoardSheet.h"
#include "kit/Sheets.h"

namespace {

QStringList Words(const char* words) { return QString::fromLatin1(words).split(u' '); }

} // namespace

TEST(PieceSheetsTest, SpacesLieOnTheStickersOfTheirHalfOfTheBoard) {
    for (int side = 0; side < 2; ++side) {
        for (int place = 0; place < 12; ++place) {
            const int space = GetSpaceFromArrayCoordinates(side, place / 6, place % 6);
            EXPECT_EQ(PieceSheets::OfSticker(GamePiece::Space(space)), Words(side == 0 ? "west" : "east")) << space;
        }
    }
}

TEST(PieceSheetsTest, EveryPieceLiesOnSheetsThatThereAre) {
    EXPECT_EQ(PieceSheets::Of(GamePiece::Space(13)), Words("west deeds1"));
    EXPECT_EQ(PieceSheets::Of(GamePiece::Space(14)), Words("east deeds2"));
    EXPECT_EQ(PieceSheets::Of(GamePiece::Corner(2)), Words("west"));
    EXPECT_EQ(PieceSheets::Of(GamePiece::Titles()), Words("box east"));
    EXPECT_EQ(PieceSheets::Of(GamePiece::Deck(0)), Words("good"));
    EXPECT_EQ(PieceSheets::Of(GamePiece::Card(1, 4)), Words("bad"));
    EXPECT_EQ(PieceSheets::Of(GamePiece::Money(3)), Words("money5000"));
    EXPECT_EQ(PieceSheets::Of(GamePiece::Token(5)), Words("box"));
    const QStringList all = PieceSheets::Of(GamePiece::Whole());
    EXPECT_EQ(all.size(), qsizetype(Sheets().size()));
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(all.contains(PieceSheets::Of(GamePiece::Money(i)).first()));
}

TEST_F(CheckTest, APictureConcernsItsStickerAndItsNameTheDeedToo) {
    ShowOnSpace(4, PathOf(QStringLiteral("away.png")));
    EXPECT_EQ(Of("picture-missing").at(0).sheets, Words("west"));
    game.spaces[20].SetText(QStringLiteral("A\U0001F3B2"));
    game.spaces[20].Font.Load(QStringLiteral("No Such Font"), false, false, 12);
    game.spaces[20].SetText(game.spaces[20].TextAll());
    EXPECT_EQ(Of("font-away").at(0).sheets, Words("east deeds2"));
}

TEST_F(CheckTest, TheRulesSpeakOfCorners) {
    game.corners[0].SetText(0, QString());
    EXPECT_EQ(Of("rules-name").at(0).sheets, Words("west rules"));
}
