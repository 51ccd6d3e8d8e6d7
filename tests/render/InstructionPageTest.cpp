// SPDX-License-Identifier: MIT
// The rules on paper: where each block begins, how wide it is, and in what fonts its lines are.
#include "platform/files/Folders.h"
#include "platform/printing/Printer.h"
#include "render/clsRenderDestination.h"
#include "services/basErrLog.h"
#include "support/TestFixture.h"
#include "support/ToldText.h"

namespace {

// Dots from the printable origin, at 600 an inch: the head is 6 inches wide, a column 2.75.
constexpr int kDpi = 600;
struct ToldBlock {
    const char* sTag;
    int left;
    int top;
    int right;
};
constexpr ToldBlock kBlocks[] = {{"<Head>", 600, 450, 4200}, {"<Col1>", 600, 825, 2250}, {"<Col2>", 2550, 825, 4200}};

class InstructionPageTest : public TavloraTest {
protected:
    InstructionPageTest() {
        basErrLog::ResetForTest();
        basErrLog::ErrInit(60000);
        Folders::SetProgramDirectory(folder.path());
    }
    void PrintRules(const QByteArray& text) {
        WriteFile(QStringLiteral("GamePlay.dat"), text);
        const QString path = PathOf(QStringLiteral("rules.pdf"));
        PdfPrinter printer(path, QStringLiteral("rules"), QPageSize::Letter, kDpi);
        clsRenderDestination destination;
        destination.Init(printer, 1.0);
        QString why;
        EXPECT_TRUE(destination.InstructionSheet({}, why)) << why.toStdString();
        printer.EndDoc();
        QString error;
        EXPECT_TRUE(printer.Close(error)) << error.toStdString();
        marks = ReadPageMarks(path, 1, kDpi);
    }
    void Expect(const char* sText, const KnownFace& face, double x, double y, char align, double height) const {
        ExpectText(marks, {.sText = QString::fromLatin1(sText),
                           .face = &face,
                           .x = x,
                           .y = y,
                           .align = align,
                           .height = height,
                           .heightWithin = height / 50});
    }
    QStringList Texts() const {
        QStringList texts;
        for (const PageMark& mark : marks) {
            if (mark.kind == PageMark::Kind::Text) texts.append(mark.sText);
        }
        return texts;
    }

    QList<PageMark> marks;
};

TEST_F(InstructionPageTest, EachBlockBeginsAtItsTopAndIsAsWideAsTold) {
    for (const ToldBlock& block : kBlocks) {
        SCOPED_TRACE(block.sTag);
        PrintRules(block.sTag + QByteArray("\r\n"
                                           "times,10,L,R:left\r\n"
                                           "arial,18,C,B:middle\r\n"
                                           "times,12,R,BI:right\r\n"
                                           "\r\n"
                                           "  \r\n"
                                           "times,6,L,I:\r\n"
                                           "arial,12,L,I:last\r\n"));
        // A point is a 72nd of an inch: 10 of them are 83 dots, 18 are 150, 12 are 100 and 6 are 50.
        Expect("left", Face("Arial", false, false), block.left, block.top, 'L', 83);
        Expect("middle", Face("Times New Roman", true, false), (block.left + block.right) / 2.0, block.top + 83, 'C',
               150);
        Expect("right", Face("Arial", true, true), block.right, block.top + 233, 'R', 100);
        Expect("last", Face("Times New Roman", false, true), block.left, block.top + 383, 'L', 100);
        EXPECT_EQ(Texts().size(), 4);
    }
}

TEST_F(InstructionPageTest, Edge_TheSecondColumnStartsAtItsTopWhateverTheFirstHolds) {
    QByteArray rules = "<Head>\r\ntimes,20,L,R:head\r\n<Col1>\r\n";
    // More than the page holds.
    for (int i = 0; i < 50; ++i)
        rules += "times,20,L,R:line " + QByteArray::number(i) + "\r\n";
    PrintRules(rules + "<Col2>\r\ntimes,20,L,R:second\r\n<Col1>\r\ntimes,20,L,R:again\r\n");
    const KnownFace& face = Face("Arial", false, false);
    Expect("head", face, 600, 450, 'L', 167);
    Expect("line 0", face, 600, 825, 'L', 167);
    Expect("line 49", face, 600, 825 + 49 * 167, 'L', 167);
    Expect("second", face, 2550, 825, 'L', 167);
    Expect("again", face, 600, 825, 'L', 167);
}

TEST_F(InstructionPageTest, ALineEndsAtTheLastBlankThatItHasRoomFor) {
    // A letter of Courier is 44.6 dots wide where a line is 83 high, so 1650 dots hold 36 of them and a blank.
    const QByteArray a(30, 'a');
    const QByteArray c(30, 'c');
    PrintRules("<Col1>\r\nCourier New,10,L,R:" + a + " bbbbb " + c + " dddddddd\r\n");
    EXPECT_EQ(Texts(),
              (QStringList{QString::fromLatin1(a + " bbbbb"), QString::fromLatin1(c), QStringLiteral("dddddddd")}));
}

} // namespace
