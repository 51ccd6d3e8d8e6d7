// SPDX-License-Identifier: MIT
#include "support/GameFixture.h"

#include "platform/text/Numbers.h"
#include "services/Desktop.h"

namespace {

class RecordsTest : public GameTest {
protected:
    static QString Lines(int count, const QString& line = QStringLiteral("x")) {
        return QStringList(count, line).join(QStringLiteral("\r\n"));
    }
    static void UseLargeFont(C_FontInfo& font) { font.Size = 1000; }
};

TEST_F(RecordsTest, Edge_ElevenLinesKeepTenAndCutOnlyTheLastToFortyCharacters) {
    const QString longLine(100, u'i');
    C_Space space;
    space.SetText(Lines(11, longLine));
    EXPECT_EQ(space.NLines(), 10);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(space.Text(i).size(), 100) << i;
    EXPECT_EQ(space.Text(9), QString(40, u'i'));
}

TEST_F(RecordsTest, Edge_PictureOnASpaceWithSixLinesHalvesTheLineHeightAndClearingRestoresIt) {
    const QString picture = WriteFile(QStringLiteral("p.bmp"), "x");
    C_Space space;
    UseLargeFont(space.Font);
    space.SetText(Lines(6, QStringLiteral("i")));
    EXPECT_FLOAT_EQ(space.m_fTextSize, 8 / 500.0F);
    space.SetImagePath(picture);
    EXPECT_FLOAT_EQ(space.m_fTextSize, 4 / 500.0F);
    space.SetImagePath(QString());
    EXPECT_FLOAT_EQ(space.m_fTextSize, 8 / 500.0F);
    EXPECT_EQ(space.NLines(), 6);
}

TEST_F(RecordsTest, Edge_TextSizeIsTheSmallerOfFontAndFit) {
    C_Space space;
    space.Font.Size = 48;
    space.Let_TextSize(0.05F);
    EXPECT_FLOAT_EQ(space.TextSize(), 0.048F);
    space.Let_TextSize(0.01F);
    EXPECT_FLOAT_EQ(space.TextSize(), 0.01F);
}

TEST_F(RecordsTest, Edge_WritingTheSecondBlocksSizeOfACornerChangesTheFirst) {
    C_Corner corner;
    UseLargeFont(corner.Font);
    corner.m_fTextSize0 = 0.01F;
    corner.m_fTextSize1 = 0.03F;
    corner.Let_TextSize(1, 0.02F);
    EXPECT_FLOAT_EQ(corner.TextSize(0), 0.02F);
    EXPECT_FLOAT_EQ(corner.TextSize(1), 0.03F);
    corner.Let_TextSize(0, 0.04F);
    EXPECT_FLOAT_EQ(corner.TextSize(0), 0.04F);
    EXPECT_FLOAT_EQ(corner.TextSize(1), 0.03F);
}

TEST_F(RecordsTest, Edge_SpacesThatDifferInASlotBehindTheTextCompareAsDifferent) {
    C_Space a;
    C_Space b;
    a.SetText(QStringLiteral("Elm"));
    b.SetText(QStringLiteral("Elm"));
    EXPECT_FALSE(a.IsDifferentFrom(b));
    b.Let_Text(7, QStringLiteral("stale"));
    EXPECT_EQ(a.TextAll(), b.TextAll());
    EXPECT_TRUE(a.IsDifferentFrom(b));
}

TEST_F(RecordsTest, TextIsSplitAtEveryLineBreak) {
    C_Space space;
    space.SetText(QString());
    EXPECT_EQ(space.NLines(), 1);
    space.SetText(QStringLiteral("a\r\n\r\nb"));
    EXPECT_EQ(space.TextArray(), (QStringList{QStringLiteral("a"), QString(), QStringLiteral("b")}));
    space.SetText(QStringLiteral("a\r\n"));
    EXPECT_EQ(space.NLines(), 2);
}

TEST_F(RecordsTest, SlotsBehindANewTextAreEmptied) {
    C_Space space;
    space.SetText(Lines(5));
    space.SetText(QStringLiteral("x"));
    for (int i = 1; i < 10; ++i)
        EXPECT_EQ(space.Text(i), QString()) << i;
}

TEST_F(RecordsTest, CutNeverSplitsACharacter) {
    const QString thirtyNine(39, u'i');
    const struct {
        const char* tag;
        QString text;
        qsizetype kept;
    } rows[] = {
        {"surrogate pair", thirtyNine + QString::fromUtf8("🏠"), 39},
        {"combining accent", thirtyNine + QString::fromUtf8("e\u0301"), 39},
        {"family of three", QString(36, u'i') + QString::fromUtf8("👨‍👩‍👧"), 36},
        {"pair that just fits", QString(38, u'i') + QString::fromUtf8("🏠x"), 40},
    };
    for (const auto& row : rows) {
        C_Space space;
        space.SetText(row.text);
        EXPECT_EQ(space.Text(0), row.text.left(row.kept)) << row.tag;
    }
}

TEST_F(RecordsTest, FittedLineIsAsHighAsTheBoxAllows) {
    C_Space space;
    UseLargeFont(space.Font);
    space.SetText(QStringLiteral("i"));
    EXPECT_FLOAT_EQ(space.m_fTextSize, 51 / 500.0F);
    C_Token token;
    UseLargeFont(token.Font);
    token.SetText(Lines(2, QStringLiteral("i")));
    EXPECT_FLOAT_EQ(token.m_fTextSize, 42 / 500.0F);
    C_Corner corner;
    UseLargeFont(corner.Font);
    corner.SetText(0, Lines(3, QStringLiteral("i")));
    EXPECT_FLOAT_EQ(corner.m_fTextSize0, 10 / 500.0F);
}

TEST_F(RecordsTest, WideLineMakesAllLinesLower) {
    C_Space space;
    UseLargeFont(space.Font);
    space.SetText(QStringLiteral("Chestnut Street"));
    const int lLine = CLng(space.m_fTextSize * 500);
    EXPECT_LT(lLine, 51);
    EXPECT_GE(lLine, 1);
    // At the fitted height the widest line just fits the space.
    basDraw::Draw_SetFont(space.Font.Family, lLine, CLng(lLine * 0.5), 0, 0, false, false, false);
    EXPECT_LE(basDraw::Draw_GetWidth(QStringLiteral("Chestnut Street")), 35);
    basDraw::Draw_ReleaseObjects();
}

TEST_F(RecordsTest, LineThatCanNeverFitIsOneUnitHigh) {
    C_Space space;
    space.SetText(Lines(2, QString(300, u'W')));
    EXPECT_FLOAT_EQ(space.m_fTextSize, 1 / 500.0F);
}

TEST_F(RecordsTest, LastFittedBlockOfACornerDecidesTheSize) {
    C_Corner corner;
    UseLargeFont(corner.Font);
    corner.SetText(0, Lines(4, QStringLiteral("i")));
    corner.SetText(1, QStringLiteral("i"));
    EXPECT_FLOAT_EQ(corner.m_fTextSize0, 32 / 500.0F);
    EXPECT_FLOAT_EQ(corner.m_fTextSize1, 0.0F);
}

TEST_F(RecordsTest, RecordNeverFilledTakesTheBoxUnscaled) {
    C_Space space;
    space.SetText(QStringLiteral("UseExistingString"));
    EXPECT_FLOAT_EQ(space.m_fTextSize, 51.0F);
    EXPECT_EQ(space.NLines(), 0);
    C_Token token;
    token.SetText(QStringLiteral("UseExistingString"));
    EXPECT_FLOAT_EQ(token.m_fTextSize, 84.0F);
    C_Corner corner;
    corner.SetText(0, QStringLiteral("UseExistingString"));
    EXPECT_FLOAT_EQ(corner.m_fTextSize0, 32 / 500.0F);
}

TEST_F(RecordsTest, SizeOfZeroEndsTheProgramWithItsMessage) {
    C_Space space;
    space.Font.Size = 0;
    EXPECT_THROW(space.SetText(QStringLiteral("x")), ProgramEnded);
    EXPECT_EQ(desktop.Texts().last(), QStringLiteral("Assertion Failure: \r\n\r\nSize set to zero in C_SpaceSetText"));
    C_Token token;
    token.Font.Size = 0;
    EXPECT_THROW(token.SetText(QStringLiteral("x")), ProgramEnded);
    EXPECT_EQ(desktop.Texts().last(), QStringLiteral("Assertion Failure: \r\n\r\nSize set to zero in C_TokenSetText"));
}

TEST_F(RecordsTest, MeasuringLeavesNothingSelected) {
    const FontHandle before = context.CurrentFont();
    C_Space space;
    space.SetText(QStringLiteral("Elm"));
    EXPECT_EQ(context.CurrentFont(), before);
}

TEST_F(RecordsTest, MoreThanTenLinesAndSubscriptsOutsideAreErrors) {
    C_Space space;
    C_Token token;
    C_Corner corner;
    C_Money money;
    EXPECT_EQ(ErrorOf([&] { space.Let_TextAll(Lines(11)); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([&] { space.Let_TextAll(Lines(10)); }), 0U);
    for (const int i : {-1, 10}) {
        EXPECT_EQ(ErrorOf([&] { space.Text(i); }), ErrNumber::kSubscript);
        EXPECT_EQ(ErrorOf([&] { token.Let_Text(i, QString()); }), ErrNumber::kSubscript);
        EXPECT_EQ(ErrorOf([&] { corner.TextLine(0, i); }), ErrNumber::kSubscript);
    }
    for (const int i : {-1, 2}) {
        EXPECT_EQ(ErrorOf([&] { corner.TextAll(i); }), ErrNumber::kSubscript);
        EXPECT_EQ(ErrorOf([&] { corner.SetText(i, QString()); }), ErrNumber::kSubscript);
        EXPECT_EQ(ErrorOf([&] { money.Text(i); }), ErrNumber::kSubscript);
    }
}

TEST_F(RecordsTest, RecordsAreCreatedWhenFirstTouchedAndStay) {
    EXPECT_EQ(basTAVL::g_oSpaces(27).TextAll(), QString());
    C_Space* const space = &basTAVL::g_oSpaces(4);
    space->Let_TextAll(QStringLiteral("Elm"));
    EXPECT_EQ(&basTAVL::g_oSpaces(4), space);
    EXPECT_EQ(ErrorOf([] { basTAVL::g_oSpaces(28); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([] { basTAVL::g_oCorners(4); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([] { basTAVL::g_oNews(2, 0); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([] { basTAVL::g_oNews(0, 12); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([] { basTAVL::g_oMoney(-1); }), ErrNumber::kSubscript);
    EXPECT_EQ(ErrorOf([] { basTAVL::g_oTokens(6); }), ErrNumber::kSubscript);
    EXPECT_NE(&basTAVL::g_oNews(0, 11), &basTAVL::g_oNews(1, 11));
}

TEST_F(RecordsTest, TokenStartsAsArialTwelveWithoutPicture) {
    C_Token token;
    token.Font.Load(QStringLiteral("Old"), true, true, 99);
    token.Init(4);
    EXPECT_EQ(token.Index, 4);
    EXPECT_EQ(token.Font.GetQuotedString(), QStringLiteral("\"Arial\",R,12"));
    EXPECT_EQ(token.Image.SpaceOrCorner(), QStringLiteral("Token"));
    EXPECT_EQ(token.Image.Index(), 4);
    EXPECT_EQ(token.Image.FullPath(), QString());
}

// Each member that a class compares: a copy with that member changed differs, and the copy back heals it.
template <typename Record, typename... Changes>
void ExpectEachChangeCounts(const Record& original, Changes... changes) {
    int number = 0;
    const auto check = [&](auto change) {
        Record copy;
        copy.LoadFromObject(original);
        EXPECT_FALSE(copy.IsDifferentFrom(original)) << number;
        change(copy);
        EXPECT_TRUE(copy.IsDifferentFrom(original)) << number;
        copy.LoadFromObject(original);
        EXPECT_FALSE(copy.IsDifferentFrom(original)) << number;
        ++number;
    };
    (check(changes), ...);
}

TEST_F(RecordsTest, EveryMemberOfASpaceIsComparedAndCopied) {
    C_Space space;
    space.SetQuotedString(QStringLiteral("9, \"a\\nb\", \"\", 0, 0, 0, \"Georgia\", BI, 14"));
    ExpectEachChangeCounts(
        space, [](C_Space& s) { s.Index = 1; }, [](C_Space& s) { s.Cost = QStringLiteral("$5"); },
        [](C_Space& s) { s.Let_Text(9, QStringLiteral("z")); }, [](C_Space& s) { s.Let_NLines(3); },
        [](C_Space& s) { s.CostColor = Color::White(); }, [](C_Space& s) { s.m_fTextSize = 1; },
        [](C_Space& s) { s.SpaceType = QStringLiteral("U"); }, [](C_Space& s) { s.SpaceColor = Color::None(); },
        [](C_Space& s) { s.IsShowing = true; }, [](C_Space& s) { s.Font.Size = 3; },
        [](C_Space& s) { s.Font.Family = QStringLiteral("georgia"); }, [](C_Space& s) { s.Image.Let_Zoom(2); });
}

TEST_F(RecordsTest, EveryMemberOfACornerIsComparedAndCopied) {
    C_Corner corner;
    corner.SetQuotedString(QStringLiteral("2, \"a\\nb\", \"c\", \"\", 0, 0, 0, \"Georgia\", BI, 14"));
    ExpectEachChangeCounts(
        corner, [](C_Corner& c) { c.Index = 1; }, [](C_Corner& c) { c.X = 1; }, [](C_Corner& c) { c.Y = 1; },
        [](C_Corner& c) { c.IsShowing = true; }, [](C_Corner& c) { c.Let_NLines(1, 3); },
        [](C_Corner& c) { c.Let_TextLine(1, 0, QStringLiteral("z")); }, [](C_Corner& c) { c.m_fTextSize0 = 9; },
        [](C_Corner& c) { c.m_fTextSize1 = 9; }, [](C_Corner& c) { c.Font.Bold = false; },
        [](C_Corner& c) { c.Image.Let_XCenter(4); });
}

TEST_F(RecordsTest, LinesOfACornerBehindItsTextAreNotCopied) {
    C_Corner from;
    from.Let_TextAll(0, QStringLiteral("a"));
    from.Let_TextLine(0, 5, QStringLiteral("stale"));
    C_Corner to;
    to.LoadFromObject(from);
    EXPECT_EQ(to.TextLine(0, 5), QString());
    EXPECT_TRUE(to.IsDifferentFrom(from));
}

TEST_F(RecordsTest, EveryMemberOfACardIsComparedAndCopied) {
    C_News card;
    card.SetQuotedString(QStringLiteral("2, \"text\""));
    ExpectEachChangeCounts(
        card, [](C_News& n) { n.Index = 1; }, [](C_News& n) { n.Let_Text(QStringLiteral("Text")); },
        [](C_News& n) { n.FontBody.Italic = true; }, [](C_News& n) { n.FontHead.Size = 1; });
}

TEST_F(RecordsTest, EveryMemberOfANoteIsComparedAndCopied) {
    C_Money money;
    money.SetQuotedString(QStringLiteral("2, \"a\", \"b\""));
    ExpectEachChangeCounts(
        money, [](C_Money& m) { m.Index = 1; }, [](C_Money& m) { m.Let_Text(1, QStringLiteral("z")); },
        [](C_Money& m) { m.BackColor = Color::White(); }, [](C_Money& m) { m.FaceImage.Let_Zoom(3); },
        [](C_Money& m) { m.BackImage.Let_Zoom(3); });
}

TEST_F(RecordsTest, ANoteThatTakesAnothersContentTellsNothingOfThePicturesOfEither) {
    C_Money there;
    there.FaceImage.Init(WriteFile(QStringLiteral("cat.png"), "picture"), QStringLiteral("Money"), 1);
    C_Money away;
    away.FaceImage.Let_SpaceOrCorner(QStringLiteral("Money"));
    away.FaceImage.Let_Index(2);
    away.FaceImage.Let_FullPath(PathOf(QStringLiteral("gone.png")));
    ASSERT_EQ(desktop.boxes.size(), 1) << "the one that is away";
    there.LoadFromObject(away);
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(there.FaceImage.FullPath(), PathOf(QStringLiteral("gone.png")));
}

TEST_F(RecordsTest, EveryMemberOfATokenIsComparedAndCopied) {
    C_Token token;
    token.SetQuotedString(QStringLiteral("2, \"a\""));
    ExpectEachChangeCounts(
        token, [](C_Token& t) { t.Index = 1; }, [](C_Token& t) { t.Let_Text(8, QStringLiteral("z")); },
        [](C_Token& t) { t.Let_NLines(2); }, [](C_Token& t) { t.m_fTextSize = 3; },
        [](C_Token& t) { t.BackColor = Color::Black(); }, [](C_Token& t) { t.Font.Italic = true; },
        [](C_Token& t) { t.Image.Let_YCenter(9); });
}

TEST_F(RecordsTest, HandingBackAnEditedSpaceKeepsTheThumbnailJustMade) {
    C_Space edited;
    edited.SetQuotedString(QStringLiteral("3, \"a\""));
    C_Space original;
    original.SetQuotedString(QStringLiteral("3, \"a\""));
    edited.Image.Let_Zoom(4);
    WriteFile(QStringLiteral("Space3.bmp"), "thumb");
    original.LoadFromObject(edited);
    EXPECT_EQ(ReadFile(PathOf(QStringLiteral("Space3.bmp"))), QByteArray("thumb"));
    EXPECT_FALSE(original.IsDifferentFrom(edited));
}

TEST_F(RecordsTest, FontGoesToTheDialogAndBack) {
    C_FontInfo font;
    font.Load(QStringLiteral("Georgia"), true, false, 10.5F);
    CommonDialog dialog;
    basTAVL::FontToDialog(dialog, font);
    EXPECT_EQ(dialog.iFlags, 1);
    C_FontInfo back;
    basTAVL::FontFromDialog(dialog, back);
    EXPECT_FALSE(back.IsDifferentFrom(font));
}

TEST_F(RecordsTest, LineBreaksBecomeBlanks) {
    EXPECT_EQ(basTAVL::CRLF2Space(QStringLiteral("a\r\nb\r\n\r\nc")), QStringLiteral("a b  c"));
}

} // namespace
