// SPDX-License-Identifier: MIT
// What an edit of a single piece changes, and what it is called.
#include "game/Edit.h"

#include "support/GameFixture.h"

namespace {

class EditTest : public GameTest {
protected:
    EditTest() {
        photo = WriteFile(QStringLiteral("photo.bmp"), "x");
        before.spaces[4].SetText(QStringLiteral("Elm\r\nStreet"));
        before.spaces[4].SetImagePath(photo);
        before.corners[1].SetText(0, QStringLiteral("Lose\r\nTurn"));
        before.tokens[2].SetText(QStringLiteral("Hat"));
    }
    QString NameOf(const C_Space& space) const { return Edits::OfSpace(before, 4, space).sName; }
    QString NameOf(const C_Token& token) const { return Edits::OfToken(before, 2, token).sName; }
    QString NameOf(const C_News& card, const SpecialText& head) const {
        return Edits::OfCard(before, 0, 2, card, head).sName;
    }
    static QString NameOf(const Edit& edit) { return edit.sName; }

    Game before;
    QString photo;
};

TEST_F(EditTest, ASpaceIsChangedAloneAndTheEditIsNamedAfterIt) {
    C_Space space = before.spaces[4];
    space.SetText(QStringLiteral("Acorn\r\nLane"));
    const Edit edit = Edits::OfSpace(before, 4, space);
    EXPECT_EQ(edit.sName, QStringLiteral("Name of Acorn Lane"));
    Game expected = before;
    expected.spaces[4].SetText(QStringLiteral("Acorn\r\nLane"));
    EXPECT_EQ(edit.after, expected);
}

TEST_F(EditTest, TheNameTellsWhatOfASpaceWasChanged) {
    C_Space space = before.spaces[4];
    space.Font.Bold = !space.Font.Bold;
    EXPECT_EQ(NameOf(space), QStringLiteral("Font of Elm Street"));
    space = before.spaces[4];
    space.Image.Let_Zoom(7);
    EXPECT_EQ(NameOf(space), QStringLiteral("Crop of Elm Street"));
    space = before.spaces[4];
    space.SetImagePath(QString());
    EXPECT_EQ(NameOf(space), QStringLiteral("Picture of Elm Street"));
    space.Font.Bold = !space.Font.Bold;
    EXPECT_EQ(NameOf(space), QStringLiteral("Changes to Elm Street"));
}

TEST_F(EditTest, ACornerIsNamedByItsFirstBlock) {
    C_Corner corner = before.corners[1];
    corner.SetText(0, QStringLiteral("Wait"));
    const Edit edit = Edits::OfCorner(before, 1, corner);
    EXPECT_EQ(edit.sName, QStringLiteral("Name of Wait"));
    EXPECT_EQ(edit.after.corners[1].TextAll(0), QStringLiteral("Wait"));
    corner = before.corners[1];
    corner.Image.Let_FullPath(photo);
    EXPECT_EQ(NameOf(Edits::OfCorner(before, 1, corner)), QStringLiteral("Picture of Lose Turn"));
}

TEST_F(EditTest, TitlesAreNamedAsTheirWindowNamesThem) {
    Titles titles = before.titles;
    titles.Text(1).SetText(QStringLiteral("Ours"));
    EXPECT_EQ(NameOf(Edits::OfTitles(before, titles)), QStringLiteral("Game Name"));
    titles.Text(3).SetText(QStringLiteral("Today"));
    EXPECT_EQ(NameOf(Edits::OfTitles(before, titles)), QStringLiteral("Titles"));
    EXPECT_EQ(Edits::OfTitles(before, titles).after.titles, titles);
    titles.Text(1) = before.titles.Text(1);
    EXPECT_EQ(NameOf(Edits::OfTitles(before, titles)), QStringLiteral("Second Subtitle"));
}

TEST_F(EditTest, ACardIsNamedByItsPlaceAndItsFontsReachItsDeckOnly) {
    const SpecialText head = before.titles.Text(4);
    C_News card = before.news[0][2];
    card.Let_Text(QStringLiteral("Rain"));
    EXPECT_EQ(NameOf(card, head), QStringLiteral("Text of Good News Card 3"));
    EXPECT_EQ(Edits::OfCard(before, 0, 2, card, head).after.news[0][1], before.news[0][1]);

    card = before.news[0][2];
    card.FontBody.Size = 33;
    const Edit fonts = Edits::OfCard(before, 0, 2, card, head);
    EXPECT_EQ(fonts.sName, QStringLiteral("Fonts of Good News"));
    for (size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(fonts.after.news[0][i].FontBody.Size, 33) << i;
        EXPECT_EQ(fonts.after.news[1][i], before.news[1][i]) << i;
    }

    SpecialText other = head;
    other.SetText(QStringLiteral("Hurrah"));
    const Edit title = Edits::OfCard(before, 0, 2, before.news[0][2], other);
    EXPECT_EQ(title.sName, QStringLiteral("Title of Good News"));
    EXPECT_EQ(title.after.titles.Text(4).sText, QStringLiteral("Hurrah"));
    EXPECT_EQ(title.after.titles.Text(5), before.titles.Text(5));
    EXPECT_EQ(NameOf(card, other), QStringLiteral("Changes to Good News"));
    EXPECT_EQ(NameOf(Edits::OfCard(before, 1, 2, before.news[1][2], other)), QStringLiteral("Title of Bad News"));
}

TEST_F(EditTest, OneNoteIsNamedAndManyAreMoney) {
    auto money = before.money;
    money[3].Let_Text(0, QStringLiteral("Bank"));
    EXPECT_EQ(NameOf(Edits::OfMoney(before, money)), QStringLiteral("Text of Note 5000"));
    money[0].FaceImage.Let_FullPath(photo);
    EXPECT_EQ(NameOf(Edits::OfMoney(before, money)), QStringLiteral("Money"));
    EXPECT_EQ(Edits::OfMoney(before, money).after.money, money);
    money[3] = before.money[3];
    EXPECT_EQ(NameOf(Edits::OfMoney(before, money)), QStringLiteral("Picture of Note 100"));
    const char* const names[] = {"Text of Note 100", "Text of Note 500", "Text of Note 1000", "Text of Note 5000"};
    for (size_t note = 0; note < 4; ++note) {
        Game after = before;
        after.money[note].Let_Text(1, QStringLiteral("Bank of Ada"));
        EXPECT_EQ(NameOf(Edits::OfMoney(before, after.money)), QLatin1String(names[note]));
    }
}

TEST_F(EditTest, ATokenHasEitherATextOrAPicture) {
    C_Token token = before.tokens[2];
    token.SetText(QStringLiteral("Shoe"));
    EXPECT_EQ(NameOf(token), QStringLiteral("Text of Token 3"));
    token.SetText(QString());
    token.SetImagePath(photo);
    EXPECT_EQ(NameOf(token), QStringLiteral("Picture of Token 3"));
    before.tokens[2] = token;
    token.SetImagePath(QString());
    token.SetText(QStringLiteral("Shoe"));
    EXPECT_EQ(NameOf(token), QStringLiteral("Text of Token 3"));
    token = before.tokens[2];
    token.Image.Let_Zoom(3);
    EXPECT_EQ(NameOf(token), QStringLiteral("Crop of Token 3"));
    EXPECT_EQ(Edits::OfToken(before, 2, token).after.tokens[2], token);
}

TEST_F(EditTest, PiecesThatThereAreNotRaise) {
    EXPECT_EQ(ErrorOf([this] { Edits::OfSpace(before, 28, C_Space()); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([this] { Edits::OfCorner(before, -1, C_Corner()); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([this] { Edits::OfCard(before, 2, 0, C_News(), SpecialText()); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([this] { Edits::OfCard(before, 0, 12, C_News(), SpecialText()); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([this] { Edits::OfToken(before, 6, C_Token()); }), ErrNumber::kSubscript);
}

TEST_F(EditTest, OneFontOfTheBoardReachesAllButThePieceItComesFromAndTheFixedCorner) {
    C_FontInfo font;
    font.Load(QStringLiteral("Times New Roman"), true, false, 5);
    const Edit edit = Edits::OfBoardFont(before, font, 4, Edits::kNoCorner);
    EXPECT_EQ(edit.sName, QStringLiteral("Set All Fonts"));
    for (size_t i = 0; i < 28; ++i)
        EXPECT_EQ(edit.after.spaces[i].Font == font, i != 4) << i;
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(edit.after.corners[i].Font == font, i != 3) << i;
    EXPECT_EQ(Edits::OfBoardFont(before, font, Edits::kNoSpace, 1).after.corners[1], before.corners[1]);
    EXPECT_EQ(Edits::OfBoardFont(before, font, Edits::kNoSpace, 1).after.spaces[4].Font, font);
}

TEST_F(EditTest, TextsAreFittedToTheFontThatAllGet) {
    C_FontInfo font;
    font.Load(QStringLiteral("Arial"), false, false, 99);
    before.spaces[5].Font.Size = 1;
    before.spaces[5].SetText(QStringLiteral("A long name of a street"));
    before.tokens[2].Font.Size = 1;
    C_Space fitted = before.spaces[5];
    fitted.Font.LoadFromObject(font);
    fitted.SetText(TextLines::kUseExisting);
    ASSERT_NE(fitted.TextSize(), before.spaces[5].TextSize());
    EXPECT_EQ(Edits::OfBoardFont(before, font, 4, Edits::kNoCorner).after.spaces[5].TextSize(), fitted.TextSize());
    C_Token token = before.tokens[2];
    token.Font.LoadFromObject(font);
    token.SetText(TextLines::kUseExisting);
    ASSERT_NE(token.TextSize(), before.tokens[2].TextSize());
    EXPECT_EQ(Edits::OfTokenFont(before, font).after.tokens[2].TextSize(), token.TextSize());
}

TEST_F(EditTest, FontsOfACardReachBothDecksAndATokensFontAllTokens) {
    C_News card = before.news[1][7];
    card.FontBody.Size = 31;
    card.FontHead.Size = 32;
    const Edit cards = Edits::OfNewsFonts(before, card);
    EXPECT_EQ(cards.sName, QStringLiteral("Set All Fonts"));
    for (const auto& deck : cards.after.news) {
        for (const C_News& other : deck) {
            EXPECT_EQ(other.FontBody.Size, 31);
            EXPECT_EQ(other.FontHead.Size, 32);
        }
    }
    C_FontInfo font;
    font.Load(QStringLiteral("Arial"), true, true, 33);
    const Edit tokens = Edits::OfTokenFont(before, font);
    EXPECT_EQ(tokens.sName, QStringLiteral("Set All Fonts"));
    for (const C_Token& token : tokens.after.tokens)
        EXPECT_EQ(token.Font, font);
}

} // namespace
