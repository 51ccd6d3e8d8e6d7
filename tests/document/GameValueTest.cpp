// SPDX-License-Identifier: MIT
#include "document/Game.h"

#include "services/ProgramSettings.h"
#include "support/GameFixture.h"

#include <QFile>

#include <functional>

namespace {

class GameValueTest : public GameTest {
protected:
    Game mine;
    Game yours;
};

TEST_F(GameValueTest, RecordsOfANewGameKnowTheirNumbers) {
    for (int i = 0; i < 28; ++i)
        EXPECT_EQ(mine.spaces[size_t(i)].Index, i);
    for (int set = 0; set < 2; ++set) {
        for (int i = 0; i < 12; ++i)
            EXPECT_EQ(mine.news[size_t(set)][size_t(i)].Index, i);
    }
    EXPECT_EQ(mine.corners[3].Index, 3);
    EXPECT_EQ(mine.money[3].Index, 3);
    EXPECT_EQ(mine.tokens[5].Index, 5);
    EXPECT_EQ(mine, yours);
}

TEST_F(GameValueTest, TwoGamesStandSideBySide) {
    mine.spaces[0].SetText(QStringLiteral("Elm Street"));
    yours.spaces[0].SetText(QStringLiteral("Oak Street"));
    EXPECT_EQ(mine.spaces[0].TextAll(), QStringLiteral("Elm Street"));
    EXPECT_EQ(yours.spaces[0].TextAll(), QStringLiteral("Oak Street"));
    EXPECT_EQ(TheGame(), Game()) << "neither is the game in hand";
}

// Whatever a family can change makes two games of one, and the same change makes one of them again.
TEST_F(GameValueTest, EachChangeOfAFamilyIsADifference) {
    const QString photo = WriteFile(QStringLiteral("photo.bmp"), "x");
    const std::function<void(Game&)> changes[] = {
        [](Game& game) { game.titles.Text(1).SetText(QStringLiteral("Ours")); },
        [](Game& game) { game.titles.Text(5).SetText(QStringLiteral("Oh no")); },
        [](Game& game) { game.spaces[27].SetText(QStringLiteral("Elm")); },
        [](Game& game) { game.spaces[1].Let_Text(9, QStringLiteral("behind the lines in use")); },
        [](Game& game) { game.spaces[2].Font.Bold = true; },
        [&](Game& game) { game.spaces[3].Image.Let_FullPath(photo); },
        [](Game& game) { game.spaces[3].Image.Let_Zoom(5); },
        [](Game& game) { game.spaces[3].Image.Let_XCenter(7); },
        [](Game& game) { game.spaces[3].Image.Let_YCenter(8); },
        [](Game& game) { game.corners[0].SetText(1, QStringLiteral("Go")); },
        [](Game& game) { game.corners[1].Font.Size = 13; },
        [&](Game& game) { game.corners[2].Image.Let_FullPath(photo); },
        [](Game& game) { game.news[1][11].Let_Text(QStringLiteral("Rain")); },
        [](Game& game) { game.news[0][0].FontHead.Italic = true; },
        [](Game& game) { game.news[0][0].FontBody.Family = QStringLiteral("Times New Roman"); },
        [](Game& game) { game.money[2].Let_Text(1, QStringLiteral("500")); },
        [&](Game& game) { game.money[0].FaceImage.Let_FullPath(photo); },
        [](Game& game) { game.tokens[5].SetText(QStringLiteral("Me")); },
        [&](Game& game) { game.tokens[4].Image.Let_FullPath(photo); },
        [](Game& game) { game.tokens[0].Font.Size = 9; },
    };
    int number = 0;
    for (const auto& change : changes) {
        change(mine);
        EXPECT_FALSE(mine == yours) << number;
        change(yours);
        EXPECT_EQ(mine, yours) << number;
        ++number;
    }
}

TEST_F(GameValueTest, WhatTheStartOrThePaintWorksOutIsNoDifference) {
    mine.spaces[0].Cost = QStringLiteral("$100");
    mine.spaces[0].SpaceType = QStringLiteral("P");
    mine.spaces[0].CostColor = Color::Rgb(1, 2, 3);
    mine.spaces[0].SpaceColor = Color::Rgb(1, 2, 3);
    mine.spaces[0].IsShowing = true;
    mine.spaces[0].Let_TextSize(0.5F);
    mine.spaces[0].Image.X = 0.5F;
    mine.spaces[0].Image.Init(QString(), QStringLiteral("Space"), 0);
    mine.corners[0].X = 0.5F;
    mine.money[0].BackColor = Color::Rgb(1, 2, 3);
    mine.money[0].BackImage.Let_FullPath(WriteFile(QStringLiteral("blank.bmp"), "x"));
    mine.tokens[0].BackColor = Color::Rgb(1, 2, 3);
    mine.titles.Text(1).fFontWidth = 0.5F;
    EXPECT_EQ(mine, yours);
}

TEST_F(GameValueTest, PictureOfFateIsTheKitsWhereTheKitPaintsIt) {
    const QString photo = WriteFile(QStringLiteral("photo.bmp"), "x");
    for (const Kit kit : {Kit::Five, Kit::Eight, Kit::TwoA}) {
        mine.kit = yours.kit = kit;
        mine.corners[3].Image.Let_FullPath(photo);
        EXPECT_EQ(mine == yours, kit != Kit::TwoA);
        mine.corners[3].Image.Let_FullPath(QString());
    }
    mine.corners[3].SetText(0, QStringLiteral("Luck"));
    EXPECT_FALSE(mine == yours) << "its text is the family's in every kit: the rules are printed with it";
    yours = mine;
    yours.kit = Kit::Five;
    EXPECT_FALSE(mine == yours);
}

TEST_F(GameValueTest, NewGameIsForTheKitInUse) {
    EXPECT_EQ(mine.kit, Kit::Eight);
    basTAVL::Let_g_sGameVersion(QStringLiteral("2A"));
    EXPECT_EQ(TheGame().kit, Kit::TwoA);
    EXPECT_EQ(Game().kit, Kit::TwoA);
    basTAVL::Let_g_sGameVersion(QStringLiteral("house"));
    EXPECT_EQ(basTAVL::g_sGameVersion(), QStringLiteral("house"));
    EXPECT_EQ(TheGame().kit, Kit::Unknown);
}

TEST_F(GameValueTest, AnotherGameTakesThePlaceOfTheOneInHandAndItsRecordsStayWhereTheyAre) {
    const C_Space& elm = basTAVL::g_oSpaces(4);
    const C_News& rain = basTAVL::g_oNews(1, 11);
    mine.spaces[4].SetText(QStringLiteral("Elm Street"));
    mine.news[1][11].Let_Text(QStringLiteral("Rain"));
    const Game before = TheGame();
    TheGame() = mine;
    EXPECT_EQ(&basTAVL::g_oSpaces(4), &elm);
    EXPECT_EQ(elm.TextAll(), QStringLiteral("Elm Street"));
    EXPECT_EQ(rain.Text(), QStringLiteral("Rain"));
    TheGame() = before;
    EXPECT_EQ(elm.TextAll(), QString());
    EXPECT_EQ(TheGame(), before);
}

TEST_F(GameValueTest, ACopyTouchesNoFile) {
    const QString photo = WriteFile(QStringLiteral("photo.bmp"), "x");
    const QString thumbnail = PathOf(QStringLiteral("Space3.bmp"));
    Settings().sMyGamesDirectory = folder.path();
    C_Image& image = TheGame().spaces[3].Image;
    image.Init(photo, QStringLiteral("Space"), 3);
    WriteFile(QStringLiteral("Space3.bmp"), "thumbnail");
    const Game copy = TheGame();
    TheGame() = mine;
    TheGame() = copy;
    EXPECT_TRUE(QFile::exists(thumbnail));
    EXPECT_EQ(TheGame().spaces[3].Image.FullPath(), photo);
}

TEST_F(GameValueTest, TitlesAreCountedFromOneToFive) {
    for (const int number : {0, 6})
        EXPECT_EQ(ErrorOf([&] { mine.titles.Text(number); }), ErrNumber::kSubscript) << number;
    EXPECT_EQ(mine.titles.Text(5).sText, QString());
}

} // namespace
