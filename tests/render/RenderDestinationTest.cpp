// SPDX-License-Identifier: MIT
#include "render/clsRenderDestination.h"

#include "board/basPositTables.h"
#include "document/Game.h"
#include "drawing/DrawDottedBox.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/printing/Printer.h"
#include "services/basErrLog.h"
#include "services/WorkFiles.h"
#include "support/PageMarks.h"
#include "support/TestFixture.h"

#include <QProcess>

#include <functional>

namespace {

QRect InkBox(const QImage& image) {
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGreen(image.pixel(x, y)) < 200) box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

class RenderDestinationTest : public TavloraTest {
protected:
    RenderDestinationTest() : form(QSize(600, 400)) {
        basErrLog::ResetForTest();
        basErrLog::ErrInit(60000);
        destination.Init(form, 1.0);
    }
    ~RenderDestinationTest() override {
        basPosit::ResetTablesForTest();
        TheGame() = Game();
    }
    QRect Ink() { return InkBox(form.Image()); }
    /// The texts of a single line that is printed at 600 dots an inch.
    QList<PageMark> PrintedLine(int iItem, double x, double y, double width, double height, double margin) {
        return Printed([&](clsRenderDestination& onPrinter) {
            onPrinter.SingleLine(iItem, sArial, false, false, x, y, width, height, 0.5, margin, Color::Black(),
                                 Color::Rgb(255, 255, 0));
        });
    }
    /// All texts that something prints at 600 dots an inch.
    QList<PageMark> Printed(const std::function<void(clsRenderDestination&)>& print) {
        const QString path = PathOf(QStringLiteral("printed.pdf"));
        PdfPrinter printer(path, QStringLiteral("printed"), QPageSize::Letter, 600);
        clsRenderDestination onPrinter;
        onPrinter.Init(printer, 1.0);
        print(onPrinter);
        printer.EndDoc();
        QString error;
        EXPECT_TRUE(printer.Close(error)) << qPrintable(error);
        QList<PageMark> texts;
        for (const PageMark& mark : ReadPageMarks(path, 1, 600)) {
            if (mark.kind == PageMark::Kind::Text) texts.append(mark);
        }
        return texts;
    }

    ScratchForm form;
    clsRenderDestination destination;
    const QString sArial = QStringLiteral("Arial");
};

TEST_F(RenderDestinationTest, Edge_APrinterOf600DotsIsProbedWithSize150) {
    PdfPrinter printer(PathOf(QStringLiteral("x.pdf")), QStringLiteral("x"));
    clsRenderDestination onPrinter;
    onPrinter.Init(printer, 1.0);
    EXPECT_DOUBLE_EQ(onPrinter.DPI(), 600.0);
    EXPECT_DOUBLE_EQ(printer.FontSize(), 150.0);
    EXPECT_EQ(printer.FontName, sArial);
    EXPECT_EQ(printer.ScaleMode, ScaleModeKind::Pixels);
    // A line of 100 pixels has the nominal size 62.5; times the factor its text measures 100 pixels.
    printer.SetFontSize(62.5 * onPrinter.FontFactor());
    EXPECT_NEAR(printer.TextHeight(QStringLiteral("Test")), 100.0, 0.01);
}

TEST_F(RenderDestinationTest, Edge_OnAWindowTheFactorIs1AndTheDotsAre96) {
    EXPECT_DOUBLE_EQ(destination.DPI(), 96.0);
    EXPECT_DOUBLE_EQ(destination.FontFactor(), 1.0);
    destination.Init(form, 2.5);
    EXPECT_DOUBLE_EQ(destination.DPI(), 240.0);
}

TEST_F(RenderDestinationTest, Edge_AWordWiderThanTheBlockIsSplitBetweenLetters) {
    QString text = QStringLiteral("Donaudampfschifffahrt");
    int y = 10;
    destination.TextBlock(text, 10, y, 60, sArial, 24, false, false, QStringLiteral("L"));
    EXPECT_TRUE(text.isEmpty());
    EXPECT_GE(y, 10 + 3 * 24);
    EXPECT_LE(Ink().right(), 10 + 60 + 20) << "a line ends with the character that reaches the width";
    // A letter of Courier is 53.7 dots wide where a line is 100 high: five of them don't reach 300 dots, six do.
    const QList<PageMark> texts = Printed([](clsRenderDestination& onPrinter) {
        QString word = QStringLiteral("Donaudampfschifffahrt");
        int top = 20;
        onPrinter.TextBlock(word, 10, top, 300, QStringLiteral("Courier New"), 100, false, false, QStringLiteral("L"));
        EXPECT_EQ(top, 20 + 4 * 100);
    });
    const QStringList told{QStringLiteral("Donaud"), QStringLiteral("ampfsc"), QStringLiteral("hifffa"),
                           QStringLiteral("hrt")};
    ASSERT_EQ(texts.size(), told.size());
    for (qsizetype i = 0; i < told.size(); ++i) {
        EXPECT_EQ(texts[i].sText, told[i]);
        EXPECT_NEAR(texts[i].Box().left(), 10, 1);
        EXPECT_NEAR(texts[i].Box().top(), 20 + 100 * double(i), 1);
    }
}

TEST_F(RenderDestinationTest, Edge_ABoxWithoutLinesDrawsNoBackgroundEither) {
    basPosit::m_CenterText(6).iNLines = 0;
    destination.MultiLineBox(6, sArial, false, false, 1, 1, 2, 2, Color::Black(), Color::Rgb(255, 0, 0));
    EXPECT_TRUE(Ink().isNull());
}

TEST_F(RenderDestinationTest, ABoxOfATitleRecordIsFilledAndHoldsItsLines) {
    SpecialText& record = basPosit::m_CenterText(6);
    record.sLine = {QStringLiteral("Our"), QStringLiteral("Town")};
    record.iNLines = 2;
    destination.MultiLineBox(6, sArial, true, false, 1, 1, 2, 1, Color::Black(), Color::Rgb(255, 255, 0));
    EXPECT_EQ(form.hDC().GetPixel(97, 97), Color::Rgb(255, 255, 0));
    EXPECT_TRUE(QRect(96, 96, 192, 96).contains(Ink()));
    EXPECT_NEAR(Ink().center().x(), 192, 3);
}

TEST_F(RenderDestinationTest, Edge_AVeryLongSingleLineIsSqueezedIntoItsBox) {
    basPosit::m_CenterText(1).sText = QStringLiteral("MMMMMMMMMM ").repeated(20).trimmed();
    destination.SingleLine(1, sArial, false, false, 1, 1, 2, 0.5, 0.5, 0.05, Color::Black(), Color::Rgb(255, 255, 0));
    // 192 by 48 pixels with a margin of 5.
    EXPECT_TRUE(QRect(96 + 5, 96 + 5, 192 - 10, 48 - 10).contains(Ink()));
    EXPECT_GT(Ink().width(), 170);
    EXPECT_EQ(form.hDC().GetPixel(97, 97), Color::Rgb(255, 255, 0));
    // On paper it is one text, whole, from margin to margin but for the white of its picture, which is stretched with
    // it; 30 of 600 dots are the margin.
    const QList<PageMark> texts = PrintedLine(1, 1, 1, 2, 0.5, 0.05);
    ASSERT_EQ(texts.size(), 1) << "not wrapped";
    EXPECT_EQ(texts[0].sText, basPosit::m_CenterText(1).sText) << "not cut";
    EXPECT_NEAR(texts[0].Box().left(), 630, 24);
    EXPECT_NEAR(texts[0].Box().right(), 600 + 1200 - 30, 24);
    EXPECT_NEAR(texts[0].Box().top(), 630, 3);
    EXPECT_NEAR(texts[0].Box().bottom(), 600 + 300 - 30, 3);
}

TEST_F(RenderDestinationTest, ASingleLineFillsItsBoxWhateverItsProportions) {
    basPosit::m_CenterText(0).sText = QStringLiteral("H\r\nH");
    destination.SingleLine(0, sArial, true, false, 1, 1, 4, 1, 0.5, 0, Color::Black(), Color::White());
    EXPECT_GT(Ink().width(), 300);
    EXPECT_GT(Ink().height(), 60);
    EXPECT_FALSE(Files::Exists(WorkFiles::PathOf(QStringLiteral("TempTextBMP0.temp"))));
    basPosit::m_CenterText(2).sText = QStringLiteral("Sub");
    destination.SingleLine(2, sArial, true, false, 1, 1, 4, 1, 0.5, 0, Color::Black(), Color::White());
    EXPECT_TRUE(Files::Exists(WorkFiles::PathOf(QStringLiteral("TempBMP2.temp"))));
}

TEST_F(RenderDestinationTest, ASingleLineIsPrintedAsText) {
    basPosit::m_CenterText(1).sText = QStringLiteral("Tavloton");
    const QString path = PathOf(QStringLiteral("line.pdf"));
    {
        PdfPrinter printer(path, QStringLiteral("line"));
        clsRenderDestination onPrinter;
        onPrinter.Init(printer, 1.0);
        onPrinter.SingleLine(1, sArial, false, false, 1, 1, 4, 1, 0.5, 0.05, Color::Black(), Color::White());
        printer.EndDoc();
        QString error;
        ASSERT_TRUE(printer.Close(error)) << qPrintable(error);
    }
    QProcess pdftotext;
    pdftotext.start(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
    if (!pdftotext.waitForStarted()) GTEST_SKIP() << "pdftotext isn't installed";
    pdftotext.waitForFinished();
    EXPECT_TRUE(QString::fromUtf8(pdftotext.readAllStandardOutput()).contains(QStringLiteral("Tavloton")));
}

TEST_F(RenderDestinationTest, Edge_ALegendWithoutAnArrowIsIndentedAllTheSame) {
    destination.Legend(1.0F, 1.0F, QStringLiteral("none"), QStringLiteral("HHH"), Color::Black());
    const QRect without = Ink();
    EXPECT_GE(without.left(), 96 + 15);
    form.Cls();
    destination.Legend(1.0F, 1.0F, QStringLiteral("up"), QStringLiteral("HHH"), Color::Black());
    EXPECT_EQ(Ink().right(), without.right());
    // On paper a line is 60 dots and the arrow 90; only an arrow to the right moves its text to the left.
    const struct {
        const char* direction;
        double left;
        double top;
    } rows[] = {{"none", 690, 600}, {"up", 690, 600}, {"left", 690, 600}, {"down", 690, 510}, {"right", 510, 600}};
    for (const auto& row : rows) {
        const QList<PageMark> texts = Printed([&](clsRenderDestination& onPrinter) {
            onPrinter.Legend(1.0F, 1.0F, QString::fromLatin1(row.direction), QStringLiteral("HHH"), Color::Black());
        });
        ASSERT_EQ(texts.size(), 1) << row.direction;
        EXPECT_NEAR(texts[0].Box().left(), row.left, 1) << row.direction;
        EXPECT_NEAR(texts[0].Box().top(), row.top, 1) << row.direction;
    }
}

TEST_F(RenderDestinationTest, LinesAreCentredAndFitTheirBox) {
    destination.MultiLineTextAutofit({QStringLiteral("Our Town"), QStringLiteral("Game")}, 2, sArial, true, false, 100,
                                     50, 300, 200, Color::Black());
    const QRect ink = Ink();
    EXPECT_TRUE(QRect(100, 50, 300, 190).contains(ink));
    EXPECT_NEAR(ink.center().x(), 250, 3);
}

TEST_F(RenderDestinationTest, AWideLineShrinksTheWholeBlock) {
    destination.MultiLineTextAutofit({QString(60, u'W'), QStringLiteral("x")}, 2, sArial, false, false, 50, 50, 500,
                                     300, Color::Black());
    const QRect ink = Ink();
    EXPECT_GE(ink.left(), 50);
    EXPECT_LE(ink.right(), 550);
    // In half of 95 of 100 of 570 dots a line is 271 high and its nominal size 169; 70 letters of Courier are 10168
    // dots wide then, and 26 is the size at which they are no wider than 95 of 100 of 1650. They are 1564 wide and,
    // as Courier is a 70th part higher than the typeface that the sizes go by, 42.2 high. Lines are 42 apart, and the
    // two stand in the middle of 542.
    const QString wide(70, u'm');
    const QList<PageMark> texts = Printed([&](clsRenderDestination& onPrinter) {
        onPrinter.MultiLineTextAutofit({wide, QStringLiteral("x")}, 2, QStringLiteral("Courier New"), false, false, 100,
                                       200, 1650, 570, Color::Black());
    });
    ASSERT_EQ(texts.size(), 2);
    EXPECT_EQ(texts[0].sText, wide);
    EXPECT_NEAR(texts[0].width, 1564, 3);
    EXPECT_NEAR(texts[0].height, 42.2, 0.2);
    EXPECT_NEAR(texts[0].Box().center().x(), 100 + 825, 1);
    EXPECT_NEAR(texts[0].Box().top(), 200 + 229, 1);
    EXPECT_NEAR(texts[1].Box().center().x(), 100 + 825, 1);
    EXPECT_NEAR(texts[1].Box().top(), 200 + 229 + 42, 1);
}

TEST_F(RenderDestinationTest, ASizeLimitKeepsSeveralBoxesAlike) {
    destination.MultiLineTextAutofitWithSize({QStringLiteral("Game")}, 1, 12, sArial, false, false, 0, 0, 600, 400,
                                             Color::Black());
    EXPECT_DOUBLE_EQ(form.FontSize(), 12.0);
    destination.MultiLineTextAutofitWithSize({QStringLiteral("Game")}, 1, 0, sArial, false, false, 0, 0, 600, 400,
                                             Color::Black());
    EXPECT_DOUBLE_EQ(form.FontSize(), 1.0);
    destination.MultiLineTextAutofitWithSize({QStringLiteral("Game")}, 1, 5000, sArial, false, false, 0, 0, 600, 40,
                                             Color::Black());
    EXPECT_LT(form.FontSize(), 40.0) << "a limit never makes a text larger";
}

TEST_F(RenderDestinationTest, ABlockBreaksAtBlanksAndMovesDown) {
    QString text = QStringLiteral("Roll both dice and move that many spaces clockwise");
    int y = 0;
    destination.TextBlock(text, 20, y, 150, sArial, 20, false, false, QStringLiteral("L"));
    EXPECT_EQ(y % 20, 0);
    EXPECT_GE(y, 40);
    EXPECT_LE(Ink().right(), 170);
    QString empty;
    const int before = y;
    destination.TextBlock(empty, 20, y, 150, sArial, 20, false, false, QStringLiteral("L"));
    EXPECT_EQ(y, before + 20) << "an empty text advances by one line";
}

TEST_F(RenderDestinationTest, BlocksAlignLeftCentreAndRight) {
    for (const char* align : {"L", "C", "R"}) {
        form.Cls();
        QString text = QStringLiteral("HHH");
        int y = 10;
        destination.TextBlock(text, 100, y, 300, sArial, 24, false, false, QString::fromLatin1(align));
        const QRect ink = Ink();
        if (*align == 'L') {
            EXPECT_NEAR(ink.left(), 100, 3);
        }
        if (*align == 'C') {
            EXPECT_NEAR(ink.center().x(), 250, 3);
        }
        if (*align == 'R') {
            EXPECT_NEAR(ink.right(), 400, 3);
        }
    }
    QString text = QStringLiteral("x");
    int y = 0;
    EXPECT_THROW(destination.TextBlock(text, 0, y, 100, sArial, 20, false, false, QStringLiteral("J")), ProgramEnded);
    EXPECT_TRUE(desktop.boxes[0].sText.endsWith(QStringLiteral("Unexpected Case in clsRenderDestination!TextBlock")));
}

TEST_F(RenderDestinationTest, ABreakNeverPartsACharacterFromItsAccents) {
    QString text = QString::fromUtf8("ééé🎲🎲");
    int y = 0;
    destination.TextBlock(text, 0, y, 1, sArial, 20, false, false, QStringLiteral("L"));
    EXPECT_EQ(y, 5 * 20);
}

TEST_F(RenderDestinationTest, ADottedBoxPutsItsDashesOnePixelOutside) {
    basTAVL::DrawDottedBox(form, 50, 40, 250, 140, 5, Color::None());
    EXPECT_EQ(Ink(), QRect(QPoint(49, 39), QPoint(251, 141)));
    DeviceContext& context = form.hDC();
    EXPECT_EQ(context.GetPixel(50, 39), Color::Black());
    EXPECT_EQ(context.GetPixel(60, 39), Color::White()) << "the gap is three dashes long";
    EXPECT_EQ(context.GetPixel(248, 39), Color::Black()) << "the corner has ink";
    EXPECT_EQ(context.GetPixel(150, 90), Color::White());
    EXPECT_EQ(form.DrawWidth, 1);
}

TEST_F(RenderDestinationTest, ABoxWithoutDashIsOnlyFilled) {
    basTAVL::DrawDottedBox(form, 50, 40, 250, 140, 0, Color::Rgb(255, 0, 0));
    EXPECT_EQ(Ink(), QRect(QPoint(50, 40), QPoint(250, 140)));
}

TEST_F(RenderDestinationTest, ARingStandsInItsSquare) {
    destination.CircleRender(1.0, 1.0, 0.5);
    const QRect ink = Ink();
    EXPECT_NEAR(ink.left(), 96, 1);
    EXPECT_NEAR(ink.right(), 192, 1);
    EXPECT_NEAR(ink.bottom(), 192, 1);
}

TEST_F(RenderDestinationTest, AMissingPictureDrawsNothingAndRaisesNothing) {
    destination.OutputFromBMP(QString(), 0, 0, 1, 1);
    destination.OutputFromBMP(PathOf(QStringLiteral("none.bmp")), 0, 0, 1, 1);
    EXPECT_TRUE(Ink().isNull());
    QImage red(10, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(PathOf(QStringLiteral("red.bmp"))));
    destination.OutputFromBMP(PathOf(QStringLiteral("red.bmp")), 1, 1, 2, 1);
    EXPECT_EQ(Ink(), QRect(96, 96, 192, 96));
}

TEST_F(RenderDestinationTest, APictureThatIsThereAndCannotBeReadIsNamed) {
    const QString bad = WriteFile(QStringLiteral("bad.bmp"), "not a picture");
    try {
        destination.OutputFromBMP(bad, 0, 0, 1, 1);
        FAIL() << "nothing was raised";
    } catch (const TavloraError& error) {
        EXPECT_TRUE(error.Description().startsWith(QStringLiteral("clsRenderDestination!OutputFromBMP(\"") + bad));
        EXPECT_TRUE(basErrLog::ErrDismiss(error.Description())
                        .startsWith(QStringLiteral("The picture in the file '%1' could not be read: ").arg(bad)))
            << error.Description().toStdString();
    }
    EXPECT_TRUE(Ink().isNull());
}

TEST_F(RenderDestinationTest, AnUnknownDirectionEndsTheProgramAndAMissingArrowDoesNot) {
    EXPECT_THROW(destination.Legend(1, 1, QStringLiteral("sideways"), QStringLiteral("x"), Color::Black()),
                 ProgramEnded);
    Folders::SetProgramDirectory(folder.path());
    form.Cls();
    destination.Legend(1, 1, QStringLiteral("Left"), QStringLiteral("HHH"), Color::Black());
    EXPECT_GE(Ink().left(), 96 + 15);
}
