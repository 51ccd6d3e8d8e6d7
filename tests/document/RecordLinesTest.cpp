// SPDX-License-Identifier: MIT
// The lines that records are written to and read from.
#include "support/GameFixture.h"

namespace {

class RecordLinesTest : public GameTest {};

TEST_F(RecordLinesTest, Edge_UnterminatedQuoteTakesTheRestOfTheLineAndNestedRecordsTakeDefaults) {
    C_Space space;
    EXPECT_EQ(space.SetQuotedString(QStringLiteral("4, \"Elm Street, \\qhere, 1, 2, 3")), QString());
    EXPECT_EQ(space.TextAll(), QStringLiteral("Elm Street, \"here, 1, 2, 3"));
    EXPECT_EQ(space.Image.FullPath(), QString());
    EXPECT_EQ(space.Font.GetQuotedString(), QStringLiteral("\"Arial\",R,12"));
}

TEST_F(RecordLinesTest, Edge_CardWithIndexAndTextOnlyTakesTheCardFonts) {
    C_News card;
    EXPECT_EQ(card.SetQuotedString(QStringLiteral("7, \"Go back\"")), QString());
    EXPECT_EQ(card.Index, 7);
    EXPECT_EQ(card.Text(), QStringLiteral("Go back"));
    EXPECT_EQ(card.FontBody.GetQuotedString(), QStringLiteral("\"Times New Roman\",R,12"));
    EXPECT_EQ(card.FontHead.GetQuotedString(), QStringLiteral("\"Times New Roman\",B,12"));
}

TEST_F(RecordLinesTest, Edge_EmptyStyleAndSizeReadAsRegularTwelve) {
    C_FontInfo font;
    font.Load(QStringLiteral("Old"), true, true, 99);
    EXPECT_EQ(font.SetQuotedString(QStringLiteral("\"Georgia\",,")), QString());
    EXPECT_EQ(font.GetQuotedString(), QStringLiteral("\"Georgia\",R,12"));
}

TEST_F(RecordLinesTest, FontReadsEachStyleInAnyCase) {
    const struct {
        const char* style;
        bool bold;
        bool italic;
    } rows[] = {{"R", false, false}, {"b", true, false},  {"I", false, true}, {"bi", true, true},
                {"IB", true, true},  {"X", false, false}, {"", false, false}};
    for (const auto& row : rows) {
        C_FontInfo font;
        font.SetQuotedString(QStringLiteral("\"A\",") + QString::fromLatin1(row.style) + QStringLiteral(",10.5"));
        EXPECT_EQ(font.Bold, row.bold) << row.style;
        EXPECT_EQ(font.Italic, row.italic) << row.style;
        EXPECT_EQ(font.Size, 10.5F);
    }
}

TEST_F(RecordLinesTest, FontOfAnEmptyLineIsArialTwelve) {
    C_FontInfo font;
    font.Load(QStringLiteral("Old"), true, true, 99);
    font.SetQuotedString(QString());
    EXPECT_EQ(font.GetQuotedString(), QStringLiteral("\"Arial\",R,12"));
}

TEST_F(RecordLinesTest, FontLeavesWhatFollowsIt) {
    C_FontInfo font;
    EXPECT_EQ(font.SetQuotedString(QStringLiteral("\"A, B\",BI,10.5,\"Next\",R,1")), QStringLiteral("\"Next\",R,1"));
    EXPECT_EQ(font.GetQuotedString(), QStringLiteral("\"A, B\",BI,10.5"));
}

TEST_F(RecordLinesTest, FontSizeBeyondAllNumbersOverflows) {
    C_FontInfo font;
    EXPECT_EQ(ErrorOf([&] { font.SetQuotedString(QStringLiteral("\"A\",R,1e39")); }), ErrNumber::kOverflow);
}

TEST_F(RecordLinesTest, SpaceRecordIsWrittenInOrder) {
    C_Space space;
    space.Index = 5;
    space.Let_TextAll(QStringLiteral("Elm\r\nStreet"));
    space.Font.Load(QStringLiteral("Georgia"), true, true, 14);
    EXPECT_EQ(space.GetQuotedString(), QStringLiteral("5, \"Elm\\nStreet\", \"\",0,0,0, \"Georgia\",BI,14"));
}

TEST_F(RecordLinesTest, CornerRecordIsWrittenInOrder) {
    C_Corner corner;
    corner.Index = 1;
    corner.Let_TextAll(0, QStringLiteral("Lose"));
    corner.Let_TextAll(1, QStringLiteral("Turn"));
    EXPECT_EQ(corner.GetQuotedString(), QStringLiteral("1, \"Lose\", \"Turn\", \"\",0,0,0, \"Arial\",R,12"));
}

TEST_F(RecordLinesTest, CardRecordIsWrittenInOrder) {
    C_News card;
    card.Index = 11;
    card.Let_Text(QStringLiteral("x"));
    card.FontHead.Bold = true;
    EXPECT_EQ(card.GetQuotedString(), QStringLiteral("11, \"x\", \"Arial\",R,12,\"Arial\",B,12"));
}

TEST_F(RecordLinesTest, MoneyRecordIsWrittenInOrder) {
    C_Money money;
    money.Index = 2;
    money.Let_Text(0, QStringLiteral("a"));
    money.Let_Text(1, QStringLiteral("b"));
    EXPECT_EQ(money.GetQuotedString(), QStringLiteral("2, \"a\", \"b\",\"\",0,0,0"));
}

TEST_F(RecordLinesTest, TokenRecordIsWrittenInOrder) {
    C_Token token;
    token.Init(3);
    token.Let_TextAll(QStringLiteral("Cat"));
    EXPECT_EQ(token.GetQuotedString(), QStringLiteral("3, \"Cat\", \"\",0,0,0, \"Arial\",R,12"));
}

TEST_F(RecordLinesTest, EmptyTextOfASpaceOrCardIsNotFilledInAndOfACornerOrNoteStaysEmpty) {
    C_Space space;
    space.SetQuotedString(QStringLiteral("0, \"\""));
    EXPECT_EQ(space.TextAll(), QStringLiteral("Not Filled In"));
    C_News card;
    card.SetQuotedString(QStringLiteral("0, \"\""));
    EXPECT_EQ(card.Text(), QStringLiteral("Not Filled In"));
    C_Corner corner;
    corner.SetQuotedString(QStringLiteral("0, \"\", \"\""));
    EXPECT_EQ(corner.TextAll(0), QString());
    C_Money money;
    money.SetQuotedString(QStringLiteral("0, \"\", \"\""));
    EXPECT_EQ(money.Text(0), QString());
}

TEST_F(RecordLinesTest, TokenThatIsNotFilledInBecomesEmptyAndOneWithoutFontIsLarge) {
    C_Token token;
    token.SetQuotedString(QStringLiteral("2, \"Not Filled In\", \"\", 0, 0, 0"));
    EXPECT_EQ(token.TextAll(), QString());
    EXPECT_EQ(token.Font.GetQuotedString(), QStringLiteral("\"Arial\",R,48"));
    token.SetQuotedString(QStringLiteral("2, \"Cat\", \"\", 0, 0, 0, \"Georgia\""));
    EXPECT_EQ(token.Font.GetQuotedString(), QStringLiteral("\"Georgia\",R,12"));
}

TEST_F(RecordLinesTest, SpaceWhoseTextIsTheWordForExistingLinesKeepsItsFormerLines) {
    C_Space space;
    space.SetQuotedString(QStringLiteral("0, \"Elm\""));
    space.SetQuotedString(QStringLiteral("0, \"UseExistingString\""));
    EXPECT_EQ(space.TextAll(), QStringLiteral("Elm"));
}

TEST_F(RecordLinesTest, BadIndexIsToldWithItsNameByBoardRecordsAndPassedOverByCardsAndNotes) {
    const auto messageOf = [](auto action) {
        try {
            action();
        } catch (const TavloraError& error) {
            EXPECT_EQ(error.Number(), ErrNumber::kOutOfRange);
            return error.Description();
        }
        return QString();
    };
    const QString line = QStringLiteral("abc, \"t\", \"u\"");
    EXPECT_TRUE(messageOf([&] { C_Space().SetQuotedString(line); }).contains(QStringLiteral("'sSpace'")));
    EXPECT_TRUE(messageOf([&] { C_Corner().SetQuotedString(line); }).contains(QStringLiteral("'sCorner'")));
    EXPECT_TRUE(messageOf([&] { C_Token().SetQuotedString(line); }).contains(QStringLiteral("'sSpace'")));
    C_News card;
    card.Index = 5;
    card.SetQuotedString(line);
    EXPECT_EQ(card.Index, 5);
    C_Money money;
    money.Index = 3;
    money.SetQuotedString(line);
    EXPECT_EQ(money.Index, 3);
    EXPECT_EQ(money.FaceImage.SpaceOrCorner(), QStringLiteral("Money"));
}

TEST_F(RecordLinesTest, IndexBeyondSixteenBitsOverflows) {
    const QString line = QStringLiteral("40000, \"t\"");
    EXPECT_EQ(ErrorOf([&] { C_Space().SetQuotedString(line); }), ErrNumber::kOverflow);
    EXPECT_EQ(ErrorOf([&] { C_Corner().SetQuotedString(line); }), ErrNumber::kOverflow);
    EXPECT_EQ(ErrorOf([&] { C_News().SetQuotedString(line); }), ErrNumber::kOverflow);
    EXPECT_EQ(ErrorOf([&] { C_Money().SetQuotedString(line); }), ErrNumber::kOverflow);
    EXPECT_EQ(ErrorOf([&] { C_Token().SetQuotedString(line); }), ErrNumber::kOverflow);
}

TEST_F(RecordLinesTest, ImagesOfRecordsKnowTheirOwner) {
    C_Space space;
    space.SetQuotedString(QStringLiteral("9, \"t\""));
    EXPECT_EQ(space.Image.SpaceOrCorner(), QStringLiteral("Space"));
    EXPECT_EQ(space.Image.Index(), 9);
    C_Corner corner;
    corner.SetQuotedString(QStringLiteral("2, \"t\""));
    EXPECT_EQ(corner.Image.SpaceOrCorner(), QStringLiteral("Corner"));
    EXPECT_EQ(corner.Image.Index(), 2);
    C_Token token;
    token.SetQuotedString(QStringLiteral("5, \"t\""));
    EXPECT_EQ(token.Image.SpaceOrCorner(), QStringLiteral("Token"));
    EXPECT_EQ(token.Image.Index(), 5);
}

} // namespace
