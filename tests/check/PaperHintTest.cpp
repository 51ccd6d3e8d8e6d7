// SPDX-License-Identifier: MIT
// What is told of words while somebody types them.
#include "check/PaperHint.h"

#include "CheckFixture.h"

#include "check/TextLimits.h"

namespace {

constexpr int kSpace = 4;
const GamePiece kPiece = GamePiece::Space(kSpace);

class PaperHintTest : public CheckTest {
protected:
    std::string Of(const GamePiece& piece) { return PaperHint(game, piece).toStdString(); }
    std::string OfSpace(const QString& words, float size = 48) {
        game.spaces[kSpace].Font.Size = size;
        game.spaces[kSpace].SetText(words);
        return Of(kPiece);
    }
    /// The height that the check of the whole game would tell.
    double Points(const GamePiece& piece) {
        double smallest = 1000;
        for (const PaperText& text : PaperTextsOf(game, piece)) {
            for (const WrittenText& line : text.written)
                smallest = std::min(smallest, line.dblPoints);
        }
        return smallest;
    }
};

} // namespace

TEST_F(PaperHintTest, TheHeightOnPaperIsTold) {
    EXPECT_EQ(OfSpace(QStringLiteral("Elm Street")),
              QStringLiteral("On paper this is %1 points high.").arg(int(Points(kPiece))).toStdString());
    EXPECT_GE(Points(kPiece), TextLimits::kSmallestPoints);
}

TEST_F(PaperHintTest, ALongLineIsToBeBrokenWhereThatHelps) {
    const std::string hint = OfSpace(QStringLiteral("The long and winding road to the harbour"));
    EXPECT_LT(Points(kPiece), TextLimits::kSmallestPoints);
    EXPECT_EQ(hint, QStringLiteral("On paper this is %1 points high: press Enter to break the line.")
                        .arg(int(Points(kPiece)))
                        .toStdString());
}

TEST_F(PaperHintTest, AWordThatCantBeBrokenIsToBeShorter) {
    EXPECT_EQ(OfSpace(QString(38, u'm')).substr(16), " 2 points high: say it in fewer letters.");
}

TEST_F(PaperHintTest, OneMoreLineIsNoHelpWhereThereAreManyAlready) {
    QStringList lines(9, QStringLiteral("a b"));
    EXPECT_NE(OfSpace(lines.join(QStringLiteral("\r\n"))).find("fewer letters"), std::string::npos);
    lines.append(QStringLiteral("a b"));
    EXPECT_NE(OfSpace(lines.join(QStringLiteral("\r\n"))).find("fewer letters"), std::string::npos)
        << "nor is there room for an eleventh";
}

TEST_F(PaperHintTest, ASmallFontIsToBeLarger) {
    EXPECT_EQ(OfSpace(QStringLiteral("Elm"), 3), "On paper this is 4 points high: choose a larger font size.");
    EXPECT_EQ(OfSpace(QStringLiteral("Elm"), 0.1F),
              "On paper this is less than a point high: choose a larger font size.");
}

TEST_F(PaperHintTest, WhatIsNotPrintedHasNoHeight) {
    EXPECT_EQ(OfSpace(QStringLiteral("  ")), "");
    EXPECT_EQ(Of(GamePiece::Whole()), "");
    game.titles.Text(2).sText.clear();
    EXPECT_EQ(PaperHintOfTitle(game, 2), QString());
}

TEST_F(PaperHintTest, EachKindOfPieceIsTold) {
    for (const GamePiece& piece :
         {GamePiece::Corner(1), GamePiece::Card(1, 3), GamePiece::Deck(0), GamePiece::Token(2)})
        EXPECT_EQ(Of(piece).substr(0, 17), "On paper this is ") << piece.Word().toStdString();
}

TEST_F(PaperHintTest, ATitleIsToldByItself) {
    SetTitle(1, QStringLiteral("OURS"));
    SetTitle(2, QStringLiteral("A game of ours that we have made in a long winter"));
    const QString name = PaperHintOfTitle(game, 1);
    EXPECT_TRUE(name.endsWith(QStringLiteral(" high."))) << name.toStdString();
    SetTitle(2, QStringLiteral("i"));
    EXPECT_EQ(PaperHintOfTitle(game, 1), name) << "whatever another one says";
}

TEST_F(PaperHintTest, NoneIsLongerThanTheRoomThatIsLeft) {
    for (const char* words : {"Elm", "The long and winding road to the harbour"})
        EXPECT_LE(qsizetype(OfSpace(QLatin1String(words)).size()), LongestPaperHint().size());
}
