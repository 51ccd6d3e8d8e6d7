// SPDX-License-Identifier: MIT
#include "document/Locale.h"
#include "platform/files/Files.h"
#include "platform/text/Numbers.h"
#include "services/Desktop.h"
#include "support/BoardFixture.h"

#include <QFile>

#include <cmath>

using namespace basPosit;

namespace {

class RentsTest : public BoardTest {
protected:
    // What ReadRents shows ahead of ending the program; fails the test if it doesn't.
    QStringList MessagesOfTheEnd() {
        EXPECT_THROW(ReadRents(), ProgramEnded);
        for (const TestDesktop::Box& box : desktop.boxes)
            EXPECT_EQ(box.iStyle, vbCritical);
        return desktop.Texts();
    }
    static QString RowMessage(int row, const QString& file) {
        return QStringLiteral("Row #%1 was not found where expected in the file named '").arg(row) + file +
               QStringLiteral("'. \r\n\r\nSince we cannot get the rent values, the program is being terminated. "
                              "\r\n\r\nTo correct this problem, you may have to reinstall the software. ");
    }
    static QString FinalSentences() {
        return QStringLiteral("Since we cannot get the rent values without this file, the program is being "
                              "terminated. \r\n\r\nTo correct this problem, you may have to reinstall the software. ");
    }
    QString ReadErrorMessage(const QString& error) const {
        return QStringLiteral("The following error was encountered trying to read the file named '") + path +
               QStringLiteral(" '. \r\n\r\n") + error + QStringLiteral("\r\n\r\n") + FinalSentences();
    }
    const QString path = PathOf(QStringLiteral("program/Rents.dat"));
};

TEST_F(RentsTest, Edge_RowsBeyondTheLastSpaceAreIgnored) {
    WriteRents(31);
    ReadRents();
    EXPECT_EQ(m_Rent(27).DefaultName, QStringLiteral("Name 27"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(RentsTest, Edge_TwentySevenRowsEndTheProgramWithTheMessageForRowTwentySeven) {
    WriteRents(27);
    EXPECT_EQ(MessagesOfTheEnd(), QStringList{RowMessage(27, path)});
}

TEST_F(RentsTest, Edge_RowNumberOutOfPlaceStopsAtThatRow) {
    QByteArray text;
    for (int r = 0; r < 28; ++r)
        text += RentRow(r == 13 ? 14 : r);
    WriteFile(QStringLiteral("program/Rents.dat"), text);
    EXPECT_EQ(MessagesOfTheEnd(), QStringList{RowMessage(13, path)});
}

TEST_F(RentsTest, Edge_SideNameJustOverTheLimitDropsToHalfTheLetterWidth) {
    QString name;
    SetSideText(0, name);
    QString last = name;
    while (m_SideRec(0).fFontWidth == 8 / 500.0F) {
        last = name;
        name += u'i';
        SetSideText(0, name);
        ASSERT_LT(name.size(), 500);
    }
    EXPECT_FLOAT_EQ(m_SideRec(0).fFontWidth, 4 / 500.0F);
    SetSideText(0, last);
    EXPECT_FLOAT_EQ(m_SideRec(0).fFontWidth, 0.016F);
    EXPECT_FLOAT_EQ(m_SideRec(0).fFontHeight, 0.019F);
}

TEST_F(RentsTest, Edge_EmptyTitleGivesOneEmptyLineAndNoFitting) {
    PosInit();
    SetSpecialText(1, QStringLiteral("Family"));
    const float width = m_CenterText(1).fFontWidth;
    const int fonts = context.Created().fonts;
    SetSpecialText(1, QString());
    EXPECT_EQ(m_CenterText(1).iNLines, 1);
    EXPECT_EQ(m_CenterText(1).sLine[0], QString());
    EXPECT_FLOAT_EQ(m_CenterText(1).fFontWidth, width);
    EXPECT_EQ(context.Created().fonts, fonts);
}

TEST_F(RentsTest, Edge_TextOfMoreThanTenLinesKeepsItsRemainderInTheTenth) {
    QStringList lines;
    for (int i = 0; i < 13; ++i)
        lines.append(QString::number(i));
    SetSpecialText(5, lines.join(QStringLiteral("\r\n")));
    EXPECT_EQ(m_CenterText(5).iNLines, 10);
    EXPECT_EQ(m_CenterText(5).sLine[8], QStringLiteral("8"));
    EXPECT_EQ(m_CenterText(5).sLine[9], QStringLiteral("9\r\n10\r\n11\r\n12"));
}

TEST_F(RentsTest, RowsFillRentsAndPrices) {
    PosInit();
    const RentRecord& rent = m_Rent(12);
    EXPECT_EQ(rent.Cost, 2200);
    EXPECT_EQ(rent.RentSingle, 121);
    EXPECT_EQ(rent.RentTwo, 122);
    EXPECT_EQ(rent.RentStory1, 123);
    EXPECT_EQ(rent.RentStory2, 124);
    EXPECT_EQ(rent.RentAddStory, 125);
    EXPECT_EQ(rent.Extra, 126);
    EXPECT_EQ(rent.DefaultName, QStringLiteral("Name 12"));
    EXPECT_EQ(basTAVL::g_oSpaces(12).Cost, QStringLiteral("$2,200"));
    EXPECT_EQ(basTAVL::g_oSpaces(3).Cost, QString());
    EXPECT_EQ(basTAVL::g_oSpaces(17).Cost, QString());
    EXPECT_EQ(basTAVL::g_oSpaces(10).Cost, QStringLiteral("PLAY LOTTO"));
    EXPECT_EQ(ErrorOf([] { m_Rent(28); }), ErrNumber::kSubscript);
}

TEST_F(RentsTest, BytesAreReadWithoutTouchingRentsOrGame) {
    QByteArray bytes;
    for (int r = 0; r < 28; ++r)
        bytes += RentRow(r);
    const RentReading whole = ReadRentRows(bytes, Kit::Eight, {});
    EXPECT_TRUE(whole.IsWhole());
    EXPECT_EQ(whole.rents[12].RentStory2, 124);
    EXPECT_EQ(m_Rent(12).RentStory2, 0);
    EXPECT_EQ(basTAVL::g_oSpaces(12).Cost, QString());

    const RentReading five = ReadRentRows(RentRow(0) + RentRow(1), Kit::Five, {});
    EXPECT_EQ(five.iRows, 1) << "a column too many comes in front of the second row";
    EXPECT_EQ(five.sError, QStringLiteral("Type mismatch"));

    const RentReading cut = ReadRentRows(RentRow(0) + RentRow(1), Kit::Eight, whole.rents);
    EXPECT_EQ(cut.iRows, 2);
    EXPECT_EQ(cut.sError, QString());
    EXPECT_EQ(cut.rents[12].RentStory2, 124) << "what stood there before";
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(RentsTest, PricesTakeCommasAndTheSignOnEveryDesktop) {
    EXPECT_EQ(FormatCost(0), QStringLiteral("$0"));
    EXPECT_EQ(FormatCost(999), QStringLiteral("$999"));
    EXPECT_EQ(FormatCost(12345), QStringLiteral("$12,345"));
    EXPECT_EQ(FormatCost(-1500), QStringLiteral("-$1,500"));
}

TEST_F(RentsTest, MissingFileGivesBothMessagesAndEnds) {
    QFile::remove(path);
    const QString us = PathOf(QStringLiteral("program/Rents_US.dat"));
    const QStringList texts = MessagesOfTheEnd();
    ASSERT_EQ(texts.size(), 2);
    EXPECT_TRUE(texts[0].startsWith(QStringLiteral("Unable to locate the file named '") + us +
                                    QStringLiteral(" '. \r\n\r\nThe following error was reported: \r\n")));
    EXPECT_TRUE(texts[0].endsWith(QStringLiteral("\r\n\r\n") + FinalSentences()));
    EXPECT_EQ(texts[1], RowMessage(0, us));
}

TEST_F(RentsTest, CountrysFileServesWhereThereIsNoOther) {
    QFile::rename(path, PathOf(QStringLiteral("program/Rents_US.dat")));
    ReadRents();
    EXPECT_EQ(m_Rent(1).Cost, 1100);
}

TEST_F(RentsTest, DamagedRowsTellWhatIsWrongAndEnd) {
    const struct {
        const char* tag;
        QByteArray row;
        const char* error;
    } rows[] = {
        {"letters for a number", "3,abc,1,2,3,4,5,6,\"x\"\r\n", "Type mismatch"},
        {"beyond 16 bits", "3,40000,1,2,3,4,5,6,\"x\"\r\n", "Overflow"},
        {"a column less", "3,1,2,3,4,5,6,\"x\"\r\n", "Type mismatch"},
        {"cut off", "3,1,2", "Input past end of file"},
        {"zeros", QByteArray(20, '\0'), "Type mismatch"},
    };
    for (const auto& row : rows) {
        ResetForTest();
        desktop.boxes.clear();
        WriteFile(QStringLiteral("program/Rents.dat"), RentRow(0) + RentRow(1) + RentRow(2) + row.row);
        EXPECT_EQ(MessagesOfTheEnd(),
                  (QStringList{ReadErrorMessage(QString::fromLatin1(row.error)), RowMessage(3, path)}))
            << row.tag;
    }
}

TEST_F(RentsTest, OtherKitsReadAColumnLessFromAFolderOfTheirOwn) {
    QDir(folder.path()).mkdir(QStringLiteral("program/older"));
    QByteArray text;
    for (int r = 0; r < 28; ++r)
        text += QByteArray::number(r) + ", 500 ,1,2,3,4,5, Street " + QByteArray::number(r) + "\n";
    WriteFile(QStringLiteral("program/older/Rents.dat"), text);
    basTAVL::Let_g_sGameVersion(QStringLiteral("2A"));
    ReadRents();
    EXPECT_EQ(m_Rent(27).Extra, 5);
    EXPECT_EQ(m_Rent(27).RentAddStory, 0);
    EXPECT_EQ(m_Rent(27).DefaultName, QStringLiteral("Street 27"));
    EXPECT_EQ(basTAVL::g_oSpaces(0).Cost, QStringLiteral("$500"));
}

TEST_F(RentsTest, FileIsReadAgainOnlyWhenItHasChanged) {
    int reads = 0;
    Files::SetFaultHook([&](Files::Operation operation, const QString&) -> std::optional<QString> {
        reads += operation == Files::Operation::OpenRead;
        return std::nullopt;
    });
    PosInit();
    PosInit();
    EXPECT_EQ(reads, 1);
    basTAVL::g_oSpaces(0).Cost.clear();
    PosInit();
    EXPECT_EQ(basTAVL::g_oSpaces(0).Cost, QStringLiteral("$1,000"));
    WriteRents(29);
    PosInit();
    EXPECT_EQ(reads, 2);
}

TEST_F(RentsTest, ProgramEndsBeforeAnythingElseIsSetUp) {
    WriteRents(5);
    EXPECT_THROW(PosInit(), ProgramEnded);
    EXPECT_EQ(basTAVL::g_oSpaces(0).SpaceType, QString());
}

TEST_F(RentsTest, OrdinarySideNameKeepsEightUnits) {
    for (int i = 0; i < 4; ++i) {
        SetSideText(i, QString::fromLatin1(Locale::kSideNames[size_t(i)]));
        EXPECT_FLOAT_EQ(m_SideRec(i).fFontWidth, 0.016F) << i;
    }
    EXPECT_EQ(ErrorOf([] { SetSideText(4, QString()); }), ErrNumber::kSubscript);
}

// Letters 8 wide on average: an n is 10.21 and an i 4.65 in bold, plain an i would be 4.03. The limit is 268. A small
// Cyrillic t is 8.19; in italics it looks like an m and is 14.86.
TEST_F(RentsTest, SideNameIsMeasuredInBoldAgainstItsLimit) {
    const struct {
        QChar letter;
        int count;
        int width;
    } rows[] = {{u'n', 26, 8}, {u'n', 27, 4},      {u'i', 57, 8},     {u'i', 60, 4},
                {u'n', 52, 2}, {u'\u0442', 32, 8}, {u'\u0442', 33, 4}};
    for (const auto& row : rows) {
        SetSideText(0, QString(row.count, row.letter));
        EXPECT_FLOAT_EQ(m_SideRec(0).fFontWidth, float(row.width) / 500) << row.count;
        EXPECT_FLOAT_EQ(m_SideRec(0).fFontHeight, 0.019F);
    }
}

// Letters 25 wide on average: an n is 31.08 in italics. The limit is 898 times 1.2, which 34 of them keep.
TEST_F(RentsTest, SubtitleMayBeAFifthLongerThanItsLimit) {
    PosInit();
    const struct {
        int count;
        int width;
    } rows[] = {{28, 25}, {30, 25}, {34, 25}, {35, 24}, {70, 12}};
    for (const auto& row : rows) {
        SetSpecialText(2, QString(row.count, u'n'));
        EXPECT_FLOAT_EQ(m_CenterText(2).fFontWidth, float(row.width) / 2500) << row.count;
    }
}

// In a typeface whose letters are all equally wide. Of 500 units the two words of the title box may take 99 and 136;
// they are 21 high, so that their letters start 10 wide. Of 2500 the subtitle may take 1078.
TEST_F(RentsTest, SpecialTextsTakeTheWidthThatIsTheirs) {
    PosInit();
    for (int i = 0; i < 3; ++i)
        m_CenterLook(i).sFamily = QStringLiteral("Courier New");
    const struct {
        int record, letters, width, of;
    } rows[] = {{0, 2, 49, 500}, {0, 5, 19, 500},  {0, 20, 4, 500},   {1, 2, 68, 500},   {1, 8, 17, 500},
                {1, 20, 6, 500}, {2, 1, 25, 2500}, {2, 43, 25, 2500}, {2, 44, 24, 2500}, {2, 100, 10, 2500}};
    for (const auto& row : rows) {
        SetSpecialText(row.record, QString(row.letters, u'm'));
        EXPECT_FLOAT_EQ(m_CenterText(row.record).fFontWidth, float(row.width) / float(row.of))
            << row.record << ": " << row.letters;
    }
}

TEST_F(RentsTest, SpecialTextsAreMeasuredInWeightAndSlantOfTheirLook) {
    PosInit();
    CenterTextLook& look = m_CenterLook(0);
    const auto widthOf = [&look](bool bold, bool italic) {
        look.bBold = bold;
        look.bItalic = italic;
        SetSpecialText(0, QStringLiteral("fffff"));
        return std::lround(m_CenterText(0).fFontWidth * 500);
    };
    // At letters 10 wide 31, 35 and, in the other typeface, 41 and 35.
    EXPECT_EQ(widthOf(false, false), 31);
    EXPECT_EQ(widthOf(true, false), 28);
    look.sFamily = QStringLiteral("Times New Roman");
    EXPECT_EQ(widthOf(false, false), 24);
    EXPECT_EQ(widthOf(false, true), 28);
}

TEST_F(RentsTest, TitleWordAlwaysSpansItsPartOfTheBox) {
    PosInit();
    for (const char* word : {"TAVLO", "WE", "Long"}) {
        SetSpecialText(0, QString::fromLatin1(word));
        const SpecialText& record = m_CenterText(0);
        const CenterTextLook& look = m_CenterLook(0);
        constexpr int kScale = 20;
        basDraw::Draw_SetFont(QStringLiteral("Arial"), CLng(500 * double(look.fFontHeight)) * kScale,
                              CLng(500 * double(record.fFontWidth)) * kScale, 0, 0, false, false, false);
        const double span = basDraw::Draw_GetWidth(record.sText) / (500.0 * kScale);
        basDraw::Draw_ReleaseObjects();
        // Letter widths are whole units, so a step of one is as near as it gets.
        EXPECT_LE(span, -look.fWidthLimit * 1.02) << word;
        EXPECT_GE(span, -look.fWidthLimit * 0.85) << word;
    }
}

TEST_F(RentsTest, TitleOfTwoLinesIsFittedAsTheOneLineThatTheBoardShows) {
    PosInit();
    SetSpecialText(1, QStringLiteral("Summer at the Lake"));
    const float width = m_CenterText(1).fFontWidth;
    SetSpecialText(1, QStringLiteral("Summer\r\nat the Lake"));
    EXPECT_FLOAT_EQ(m_CenterText(1).fFontWidth, width);
    EXPECT_EQ(m_CenterText(1).iNLines, 2);
}

TEST_F(RentsTest, SubtitleKeepsItsShapeUntilItIsTooLong) {
    PosInit();
    SetSpecialText(2, QStringLiteral("Short"));
    EXPECT_FLOAT_EQ(m_CenterText(2).fFontWidth, 25 / 2500.0F);
    SetSpecialText(2, QString(200, u'm'));
    EXPECT_LT(m_CenterText(2).fFontWidth, 25 / 2500.0F);
    SetSpecialText(2, QStringLiteral("Short"));
    EXPECT_FLOAT_EQ(m_CenterText(2).fFontWidth, 25 / 2500.0F);
}

TEST_F(RentsTest, TextWithoutALimitIsNotFitted) {
    PosInit();
    const int fonts = context.Created().fonts;
    SetSpecialText(6, QString(200, u'm'));
    EXPECT_EQ(context.Created().fonts, fonts);
    EXPECT_FLOAT_EQ(m_CenterText(6).fFontWidth, 2 / 500.0F);
    EXPECT_EQ(ErrorOf([] { SetSpecialText(17, QString()); }), ErrNumber::kSubscript);
}

TEST_F(RentsTest, LinesBehindANewSpecialTextAreCleared) {
    SetSpecialText(4, QStringLiteral("a\r\nb\r\nc"));
    SetSpecialText(4, QStringLiteral("d"));
    EXPECT_EQ(m_CenterText(4).Lines(), QStringList{QStringLiteral("d")});
    EXPECT_EQ(m_CenterText(4).sLine[2], QString());
}

} // namespace
