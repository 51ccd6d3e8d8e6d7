// SPDX-License-Identifier: MIT
// What is told of texts: each time of a game that has it, and of one that just hasn't.
#include "check/Checks.h"

#include "CheckFixture.h"

#include "check/OwnPieces.h"
#include "platform/paint/FontFace.h"

#include <QFontDatabase>

namespace {

constexpr int kSpace = 4;
const GamePiece kPiece = GamePiece::Space(kSpace);

} // namespace

TEST_F(CheckTest, LettersBelowFivePointsAreTold) {
    game.spaces[kSpace].Font.Size = 3.3F;
    ExpectNone("text-small");
    game.spaces[kSpace].Font.Size = 3.0F;
    ExpectOnly("text-small", kPiece);
    EXPECT_TRUE(Of("text-small")[0].sText.contains(QStringLiteral("on its sticker: 4.7 points")))
        << Of("text-small")[0].sText.toStdString();
}

TEST_F(CheckTest, AWholeSentenceInALineBecomesTooSmall) {
    const QString words = QStringLiteral("You find a coin and may keep it. ");
    C_News& card = game.news[1][7];
    card.Let_Text(words);
    ExpectNone("text-small");
    card.Let_Text(words.repeated(5));
    ExpectOnly("text-small", GamePiece::Card(1, 7));
    card.Let_Text((words + QStringLiteral("\r\n")).repeated(5));
    ExpectNone("text-small");
}

TEST_F(CheckTest, ALongTitleIsSqueezed) {
    int length = 1;
    while (length < 40 && Of("text-squeezed").empty())
        SetTitle(1, QString(++length, u'M'));
    ASSERT_LT(length, 40);
    ExpectOnly("text-squeezed", GamePiece::Titles());
    // Just below 0.6, and the letter before it was the last that had room.
    const QString text = Of("text-squeezed")[0].sText;
    EXPECT_TRUE(text.contains(QStringLiteral("5%1 %").arg(text[text.indexOf(u'%') - 2]))) << text.toStdString();
    SetTitle(1, QString(length - 1, u'M'));
    ExpectNone("text-squeezed");
}

TEST_F(CheckTest, TheTitleOfADeckIsSqueezed) {
    SetTitle(5, QStringLiteral("What comes of being late"));
    ExpectNone("text-squeezed");
    SetTitle(5, QStringLiteral("What comes of being late when everybody is waiting"));
    ExpectOnly("text-squeezed", GamePiece::Deck(1));
}

TEST_F(CheckTest, ATokensWordsStayInItsCircle) {
    C_Token& token = game.tokens[2];
    token.SetText(QStringLiteral("Annabel\r\nTimothy"));
    ExpectNone("text-edge");
    token.SetText(QStringList(6, QStringLiteral("MMMM")).join(QStringLiteral("\r\n")));
    ExpectOnly("text-edge", GamePiece::Token(2));
    token.SetImagePath(Photo({400, 400}));
    ExpectNone("text-edge");
}

TEST_F(CheckTest, TheSubtitleStaysInItsBoxOnTheBoard) {
    SetTitle(2, QString(28, u'm'));
    ExpectOnly("text-edge", GamePiece::Titles());
    SpecialText& subtitle = game.titles.Text(2);
    subtitle.fFontWidth *= basPosit::m_CenterRect(basPosit::kSubtitleBox).Width() / 0.432F;
    ExpectNone("text-edge");
}

TEST_F(CheckTest, ALineThatIsFullMayHaveBeenCut) {
    const auto set = [this](int letters) { game.spaces[kSpace].SetText(QString(letters, u'i')); };
    set(39);
    ExpectNone("text-cut");
    set(40);
    ExpectOnly("text-cut", kPiece);
    set(49);
    ExpectOnly("text-cut", kPiece);
    // A line ahead of the last one is never cut.
    game.spaces[kSpace].SetText(QString(41, u'i') + QStringLiteral("\r\nand so on"));
    ExpectNone("text-cut");
}

TEST_F(CheckTest, AFullLineIsToldOfEveryPieceThatIsTypedInPlace) {
    const QString full(40, u'i');
    game.corners[0].SetText(0, full);
    game.tokens[0].SetText(full);
    SetTitle(2, full);
    EXPECT_EQ(Of("text-cut").size(), 3);
}

TEST_F(CheckTest, LettersThatNoFontHasAreMissing) {
    const QString privateUse(QChar(0xF8F0));
    game.spaces[kSpace].SetText(QStringLiteral("Łódź, Ærø, Zürich"));
    ExpectNone("letters-missing");
    game.spaces[kSpace].SetText(QStringLiteral("Zürich ") + privateUse);
    ExpectOnly("letters-missing", kPiece);
    EXPECT_TRUE(Of("letters-missing")[0].sText.contains(privateUse));
    EXPECT_FALSE(Of("letters-missing")[0].sText.contains(QStringLiteral("ü")));
    EXPECT_EQ(Of("letters-missing")[0].severity, Severity::Must);
}

TEST_F(CheckTest, OfManyLettersThatPaperWillNotShowADozenAreNamed) {
    QString nobodyHas;
    for (char16_t letter = 0xE001; nobodyHas.size() < 15; ++letter)
        nobodyHas.append(QChar(letter));
    game.spaces[kSpace].SetText(nobodyHas);
    EXPECT_EQ(Of("letters-missing")[0].sText,
              QStringLiteral("Paper won't show \uE001 \uE002 \uE003 \uE004 \uE005 \uE006 \uE007 \uE008 \uE009 \uE00A "
                             "\uE00B \uE00C and 3 more: no font of this computer can print them."));
}

TEST_F(CheckTest, OfATextThatNobodyCanReadTheFirstThousandLettersAreLookedAt) {
    const QString nobodyHas(QChar(0xE001));
    game.spaces[kSpace].Let_TextAll(QString(999, u'i') + nobodyHas);
    EXPECT_EQ(Of("letters-missing").size(), 1U);
    game.spaces[kSpace].Let_TextAll(QString(1000, u'i') + nobodyHas);
    EXPECT_EQ(Of("letters-missing").size(), 0U);
    EXPECT_EQ(game.spaces[kSpace].TextAll().size(), 1001) << "the game itself keeps all of it";
}

TEST_F(CheckTest, WhatIsToldIsNoLongerThanASentence) {
    game.spaces[kSpace].Let_TextAll(QString(500, u'm'));
    game.spaces[kSpace].Font.Family = QString(5000, u'F');
    EXPECT_EQ(kPiece.NameIn(game), QStringLiteral("Space \"%1...\"").arg(QString(400, u'm')));
    // All that can be typed stays whole, and a letter of two units is never halved.
    const QString typed(400, u'm');
    game.spaces[kSpace].Let_TextAll(typed);
    EXPECT_EQ(kPiece.NameIn(game), QStringLiteral("Space \"%1\"").arg(typed));
    game.spaces[kSpace].Let_TextAll(QString(399, u'm') + QStringLiteral("\U0001F600 and more"));
    EXPECT_EQ(kPiece.NameIn(game), QStringLiteral("Space \"%1...\"").arg(QString(399, u'm')));
    ASSERT_EQ(Of("font-away").size(), 1U);
    EXPECT_EQ(Of("font-away")[0].sText.size(), 403);
    EXPECT_TRUE(Of("font-away")[0].sText.endsWith(QStringLiteral("FFF...")));
}

TEST_F(CheckTest, AFontThatIsAwayIsToldOnce) {
    game.spaces[kSpace].Font.Family = QStringLiteral("No Such Font");
    game.spaces[20].Font.Family = QStringLiteral("No Such Font");
    ExpectOnly("font-away", kPiece);
    EXPECT_TRUE(
        Of("font-away")[0].sText.contains(FontFace::Get(QStringLiteral("No Such Font"), false, false).FamilyInUse()));
    game.spaces[kSpace].Font.Family = QFontDatabase::families().constFirst();
    game.spaces[20].Font.Family = QStringLiteral("times new roman");
    ExpectNone("font-away");
}

TEST_F(CheckTest, AnEmptyPieceIsTold) {
    game.spaces[kSpace].SetText(QStringLiteral("X"));
    game.news[0][3].Let_Text(QStringLiteral("X"));
    game.money[1].Let_Text(0, QString());
    ExpectNone("piece-empty");
    game.spaces[kSpace].SetText(QStringLiteral(" "));
    game.spaces[5].SetText(QStringLiteral("Not Filled In"));
    game.news[0][3].Let_Text(QString());
    game.money[1].Let_Text(1, QString());
    game.tokens[5].SetText(QString());
    const std::vector<Finding> found = Of("piece-empty");
    ASSERT_EQ(found.size(), 5);
    EXPECT_EQ(found[0].piece, kPiece);
    EXPECT_EQ(found[1].piece, GamePiece::Space(5));
    EXPECT_EQ(found[2].piece, GamePiece::Card(0, 3));
    EXPECT_EQ(found[3].piece, GamePiece::Money(1));
    EXPECT_EQ(found[4].piece, GamePiece::Token(5));
    EXPECT_EQ(found[0].severity, Severity::Should);
    ShowOnSpace(kSpace, Photo({400, 400}));
    EXPECT_EQ(Of("piece-empty").size(), 4);
}

TEST_F(CheckTest, AGameThatIsHardlyBegunIsntNagged) {
    const int own = 24;
    int emptied = 0;
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (!OwnPieces::IsSpace(i)) continue;
        if (emptied == own / 2 - 1) break;
        game.spaces[size_t(i)].SetText(QString());
        ++emptied;
    }
    EXPECT_EQ(Of("piece-empty").size(), own / 2 - 1);
    game.spaces[27].SetText(QString());
    ExpectOnly("piece-empty", GamePiece::Whole());
    EXPECT_FALSE(Of("piece-empty")[0].IsSerious());
    EXPECT_TRUE(Of("piece-empty")[0].sText.startsWith(QStringLiteral("12 ")));
}

TEST_F(CheckTest, TheSameWordsAreToldTheSecondTime) {
    game.spaces[kSpace].SetText(QStringLiteral("The\r\nPond"));
    game.corners[2].SetText(0, QStringLiteral("the pond"));
    ExpectOnly("same-words", GamePiece::Corner(2));
    EXPECT_TRUE(Of("same-words")[0].sText.contains(QStringLiteral("Space 5")));
    game.corners[2].SetText(0, QStringLiteral("The Pond 2"));
    ExpectNone("same-words");
    game.news[0][1].Let_Text(game.news[1][2].Text());
    ExpectOnly("same-words", GamePiece::Card(1, 2));
}

TEST_F(CheckTest, WhatTheRulesSpeakOfNeedsAName) {
    ExpectNone("rules-name");
    SetTitle(1, QString());
    SetTitle(4, QStringLiteral(" "));
    game.corners[1].SetText(0, QString());
    const std::vector<Finding> found = Of("rules-name");
    ASSERT_EQ(found.size(), 3);
    EXPECT_EQ(found[0].piece, GamePiece::Titles());
    EXPECT_EQ(found[1].piece, GamePiece::Corner(1));
    EXPECT_EQ(found[2].piece, GamePiece::Deck(0));
}
