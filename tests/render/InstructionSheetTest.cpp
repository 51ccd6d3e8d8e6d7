// SPDX-License-Identifier: MIT
#include "render/clsRenderDestination.h"

#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"
#include "services/basErrLog.h"
#include "support/TestFixture.h"

namespace {

// A surface that keeps what is printed where.
class PageOfText : public ScratchForm {
public:
    PageOfText() : ScratchForm(QSize(768, 1008)) {}
    QRect Ink(QRect part) {
        QRect box;
        const QImage& image = Image();
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if (qGreen(image.pixel(x, y)) < 200) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }
    QRect Ink() { return Ink(Image().rect()); }
};

struct ParsedLine {
    QString sText;
    QString sFont;
    int lSize = 0;
    QString sAlign;
    bool bBold = false;
    bool bItalic = false;
    int iResult = 0;
};

ParsedLine Parse(const char* line) {
    ParsedLine parsed;
    parsed.sText = QString::fromUtf8(line);
    clsRenderDestination::ParseGamePlayLine(parsed.sText, parsed.sFont, parsed.lSize, parsed.sAlign, parsed.bBold,
                                            parsed.bItalic, parsed.iResult);
    return parsed;
}

} // namespace

class InstructionSheetTest : public TavloraTest {
protected:
    InstructionSheetTest() {
        basErrLog::ResetForTest();
        basErrLog::ErrInit(60000);
        Folders::SetProgramDirectory(folder.path());
        destination.Init(page, 1.0);
    }
    void PrintRules(const QByteArray& text) {
        WriteFile(QStringLiteral("GamePlay.dat"), text);
        destination.InstructionSheet(names, why);
    }

    PageOfText page;
    clsRenderDestination destination;
    QString why;
    InstructionNames names{QStringLiteral("Family TAVLO"), QStringLiteral("Good News"), QStringLiteral("Bad News"),
                           QStringLiteral("Start"),        QStringLiteral("Detention"), QStringLiteral("Rest Stop"),
                           QStringLiteral("Fate!")};
};

TEST_F(InstructionSheetTest, Edge_ATextBeforeAnyTagPrintsOneCharacterALineAtTheLeftEdge) {
    PrintRules("times,10,L,R:HHH\r\n");
    const QRect ink = page.Ink();
    EXPECT_LT(ink.right(), 15);
    EXPECT_GT(ink.height(), 2 * 13);
}

TEST_F(InstructionSheetTest, Edge_TimesSelectsArialWithAPitchOfTenPoints) {
    const ParsedLine line = Parse("times,10,L,R:Hello");
    EXPECT_EQ(line.sFont, QStringLiteral("Arial"));
    EXPECT_EQ(line.lSize, 10);
    EXPECT_EQ(line.sText, QStringLiteral("Hello"));
    EXPECT_EQ(line.iResult, 0);
    PrintRules("<Head>\r\ntimes,10,L,R:H\r\ntimes,10,L,R:H\r\ntimes,10,L,R:H\r\n");
    const QRect three = page.Ink();
    page.Cls();
    PrintRules("<Head>\r\ntimes,10,L,R:H\r\n");
    EXPECT_EQ(three.height() - page.Ink().height(), 2 * 13) << "10/72 inch at 96 dots is 13 pixels";
}

TEST_F(InstructionSheetTest, Edge_ATagThatOccursTwiceIsReplacedTwice) {
    EXPECT_EQ(clsRenderDestination::MakeSubstitutions(QStringLiteral("<START> and <START>"), QStringLiteral("<START>"),
                                                      QStringLiteral("Go")),
              QStringLiteral("Go and Go"));
}

TEST_F(InstructionSheetTest, Edge_ATagWithATrailingBlankIsATextLineInABadForm) {
    PrintRules("<Head> \r\ntimes,20,L,R:never printed\r\n");
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("An error occurred processing one of the lines in the "
                                                          "GamePlay.dat file.")});
    EXPECT_TRUE(page.Ink().isNull());
}

TEST_F(InstructionSheetTest, ANameHoldingItsOwnTagCannotHangThePrint) {
    EXPECT_EQ(clsRenderDestination::MakeSubstitutions(QStringLiteral("<FATE>"), QStringLiteral("<FATE>"),
                                                      QStringLiteral("x<FATE>x")),
              QStringLiteral("x<FATE>x"));
    EXPECT_EQ(clsRenderDestination::MakeSubstitutions(QStringLiteral("<fate>"), QStringLiteral("<FATE>"),
                                                      QStringLiteral("x")),
              QStringLiteral("<fate>"));
}

TEST_F(InstructionSheetTest, LinesAreTakenApart) {
    ParsedLine line = Parse(" arial , 12.9 , C , BI : Rules: of <START> ");
    EXPECT_EQ(line.iResult, 0);
    EXPECT_EQ(line.sFont, QStringLiteral("Times New Roman"));
    EXPECT_EQ(line.lSize, 12);
    EXPECT_EQ(line.sAlign, QStringLiteral("C"));
    EXPECT_TRUE(line.bBold);
    EXPECT_TRUE(line.bItalic);
    EXPECT_EQ(line.sText, QStringLiteral("Rules: of <START>"));
    line = Parse("DejaVu Sans,8,R,I:");
    EXPECT_EQ(line.sFont, QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(line.sText, QString());
    EXPECT_EQ(line.iResult, 0) << "a blank text advances one line";
}

TEST_F(InstructionSheetTest, EachBadFieldIsAFormatError) {
    for (const char* bad : {"times", "times,x,L,R:a", "times,10,M,R:a", "times,10,l,R:a", "times,10,L,IB:a",
                            "times,10,L,R a", "times,10,L", ",,,:"}) {
        EXPECT_LT(Parse(bad).iResult, 0) << bad;
    }
    EXPECT_EQ(desktop.boxes.size(), 8);
}

TEST_F(InstructionSheetTest, BytesAreReadWithoutAPageOrABox) {
    const RulesReading rules = ReadRules("<Head>\ntimes,10,C,B: Play <FATE> \n\n<Col2>\narial,8.9,L,R:\nno text line\n"
                                         "times,10,L,R:never reached\n",
                                         names);
    EXPECT_FALSE(rules.bWhole);
    ASSERT_EQ(rules.items.size(), 4U);
    EXPECT_EQ(std::get<RulesBlock>(rules.items[0]), RulesBlock::Head);
    const auto& line = std::get<RulesLine>(rules.items[1]);
    EXPECT_EQ(line.sText, QStringLiteral("Play ") + names.sFate);
    EXPECT_EQ(line.sFont, QStringLiteral("Arial"));
    EXPECT_TRUE(line.bBold);
    EXPECT_EQ(std::get<RulesBlock>(rules.items[2]), RulesBlock::Column2);
    EXPECT_EQ(std::get<RulesLine>(rules.items[3]).lSize, 8);
    EXPECT_EQ(rules.iBadLine, 6);
    EXPECT_EQ(rules.sBadLine, QStringLiteral("no text line"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(ReadRules(QByteArray(), names).bWhole);
}

TEST_F(InstructionSheetTest, WithoutTheFileItSaysWhatIsMissing) {
    destination.InstructionSheet(names, why);
    ASSERT_EQ(desktop.boxes.size(), 1);
    const QString text = desktop.boxes[0].sText;
    EXPECT_TRUE(text.startsWith(QStringLiteral("Unable to open the file named '") +
                                PathOf(QStringLiteral("GamePlay_US.dat")) +
                                QStringLiteral(".The following error was reported: \r\n\r\n")))
        << qPrintable(text);
    EXPECT_TRUE(text.endsWith(QStringLiteral("\r\n\r\nThe instruction sheet cannot be printed without this file.")));
    EXPECT_EQ(desktop.boxes[0].iStyle, vbInformation);
    EXPECT_TRUE(why.startsWith(QStringLiteral("The file named '") + PathOf(QStringLiteral("GamePlay_US.dat"))))
        << qPrintable(why);
}

TEST_F(InstructionSheetTest, ALineInABadFormIsNamedByItsNumberAndItsBeginning) {
    PrintRules("<Head>\r\n\r\n" + QByteArray("No layout at all, ").repeated(9) + "\r\n");
    EXPECT_EQ(why, QStringLiteral("Line 3 of the file named '%1' is in no form that rules have: No layout at all, No "
                                  "layout at all, No layout at all, No lay...")
                       .arg(PathOf(QStringLiteral("GamePlay.dat"))));
}

TEST_F(InstructionSheetTest, TheShippedRulesFitThePage) {
    Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
    destination.InstructionSheet(names, why);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    const QRect ink = page.Ink();
    EXPECT_GT(ink.height(), 700);
    EXPECT_LT(ink.bottom(), 1000) << "nothing runs off the page of 10.5 inches";
    EXPECT_LE(ink.right(), int(7.05 * 96));
}
