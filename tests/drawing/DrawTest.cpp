// SPDX-License-Identifier: MIT
#include "drawing/basDraw.h"

#include "platform/paint/Surface.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "support/TestFixture.h"

using namespace basDraw;

namespace {

// A context that refuses what a real one hardly ever does.
class RefusingContext : public DeviceContext {
public:
    using DeviceContext::DeviceContext;
    FontHandle CreateFont(const FontRequest& request) override {
        return refuseFonts ? nullptr : DeviceContext::CreateFont(request);
    }
    bool GetTextExtentPoint(const QString& sText, QSize& size) override {
        return !refuseWidths && DeviceContext::GetTextExtentPoint(sText, size);
    }
    bool refuseFonts = false;
    bool refuseWidths = false;
};

} // namespace

class DrawTest : public TavloraTest {
protected:
    DrawTest() : image(400, 300, QImage::Format_RGB32), context(image) {
        basErrLog::ResetForTest();
        basErrLog::ErrInit(60000);
        image.fill(Qt::white);
        basDraw::Draw_Abandon();
        Draw_SetHdc(&context);
    }
    ~DrawTest() override { basDraw::Draw_Abandon(); }

    void UseFont(int height, int escapement = 0) {
        Draw_SetFont(QStringLiteral("Arial"), height, 0, escapement, escapement, false, false, false);
    }
    QRect Ink(QRgb paper = 0xFFFFFF) {
        context.Flush();
        QRect box;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if ((image.pixel(x, y) & 0xFFFFFF) != paper) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }
    int CountOf(Color color) {
        context.Flush();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (context.GetPixel(x, y) == color) ++count;
            }
        }
        return count;
    }

    QImage image;
    RefusingContext context;
    const QString L = QStringLiteral("L");
};

TEST_F(DrawTest, AClickNeverLandsWithinACharacter) {
    UseFont(40);
    const QString line = QStringLiteral("e\u0301\U0001F3E0");
    const int accented = Draw_GetWidth(line.left(2));
    int col = 0;
    int row = 0;
    for (int x = 0; x <= Draw_GetWidth(line); ++x) {
        Draw_FindInsertPoint({line}, L, 0, 0, x, 3, col, row);
        EXPECT_TRUE(col == 0 || col == 2 || col == 4) << x << " gives " << col;
    }
    Draw_FindInsertPoint({line}, L, 0, 0, accented / 2 + 2, 3, col, row);
    EXPECT_EQ(col, 2);
}

TEST_F(DrawTest, Edge_AFontOfHeight1HasALinePitchOf2) {
    UseFont(1);
    EXPECT_EQ(context.CurrentFont()->Request().lHeight, 1);
    int col = 0;
    int row = 0;
    const QStringList lines{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    Draw_FindInsertPoint(lines, L, 0, 0, 0, 3, col, row);
    EXPECT_EQ(row, 1);
    Draw_FindInsertPoint(lines, L, 0, 0, 0, 4, col, row);
    EXPECT_EQ(row, 2);
}

TEST_F(DrawTest, Edge_TwiceTheSameColourMakesOneBrush) {
    Draw_SetBrush(Color::Rgb(1, 2, 3));
    Draw_SetBrush(Color::Rgb(1, 2, 3));
    EXPECT_EQ(context.Created().brushes, 1);
    Draw_ReleaseObjects();
    Draw_SetBrush(Color::Rgb(1, 2, 3));
    EXPECT_EQ(context.Created().brushes, 2) << "the cache holds within one pass only";
}

TEST_F(DrawTest, Edge_ABrushOfNoColourOutlinesOnly) {
    Draw_SetPen(PenStyle::Solid, 1, Color::Black());
    Draw_SetBrush(Color::None());
    EXPECT_EQ(context.Created().brushes, 0);
    EXPECT_EQ(context.CurrentBrush(), DeviceContext::HollowBrush());
    Draw_Rect(10, 10, 50, 40);
    EXPECT_EQ(Ink(), QRect(10, 10, 40, 30));
    EXPECT_EQ(context.GetPixel(30, 25), Color::White());
}

TEST_F(DrawTest, Edge_AbovetheTextIsItsStartAndBelowItTheEndOfTheLastLine) {
    UseFont(20);
    const QStringList lines{QStringLiteral("Oak Street"), QStringLiteral("No. 7")};
    int col = 5;
    int row = 5;
    Draw_FindInsertPoint(lines, L, 100, 100, 150, 90, col, row);
    EXPECT_EQ(row, 0);
    EXPECT_EQ(col, 0);
    Draw_FindInsertPoint(lines, L, 100, 100, 101, 200, col, row);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(col, 5);
}

TEST_F(DrawTest, Edge_AClickGoesToTheNearerEdgeOfACharacterAndFromItsMiddleToTheLeft) {
    // Every letter of it is 20 wide.
    Draw_SetFont(QStringLiteral("Courier New"), 40, 20, 0, 0, false, false, false);
    const QString text = QStringLiteral("HHHH");
    int col = 0;
    int row = 0;
    const auto columnAt = [&](int x) {
        Draw_FindInsertPoint({text}, L, 0, 0, x, 5, col, row);
        return col;
    };
    for (int letter = 0; letter < 4; ++letter) {
        EXPECT_EQ(columnAt(20 * letter + 1), letter);
        EXPECT_EQ(columnAt(20 * letter + 10), letter) << "a tie goes to the left";
        EXPECT_EQ(columnAt(20 * letter + 11), letter + 1);
        EXPECT_EQ(columnAt(20 * letter + 19), letter + 1);
    }
    Draw_FindInsertPoint({QStringLiteral("I")}, L, 0, 0, 1, 5, col, row);
    EXPECT_EQ(col, 0);
}

TEST_F(DrawTest, Edge_ASelectionWhollyAboveOrBelowLeavesTheLinesPlain) {
    UseFont(20);
    const QStringList lines{QStringLiteral("one"), QStringLiteral("two")};
    const Color ink = Color::Rgb(200, 0, 0);
    Draw_TextArray(lines, L, 10, 10, ink);
    context.Flush();
    const QImage plain = image.copy();
    EXPECT_GT(CountOf(ink), 20);
    for (const int row : {-3, 7}) {
        context.Flush();
        image.fill(Qt::white);
        Draw_SetSelection(0, row, 2, row + 1);
        Draw_TextArrayShowingSelection(lines, L, 10, 10, ink);
        EXPECT_EQ(context.CurrentBkMode(), BkMode::Transparent);
        EXPECT_EQ(context.TextColor(), ink);
        context.Flush();
        EXPECT_EQ(image, plain) << row;
    }
    EXPECT_EQ(CountOf(ink.Complement()), 0);
    EXPECT_GT(CountOf(Color::White()), image.width() * image.height() - 3000);
}

TEST_F(DrawTest, Edge_AMultiLineTextWhoseSizeRoundsToNothingGetsSize1) {
    ScratchForm form(QSize(200, 100));
    Draw_MultiLineText(form, {QStringLiteral("a very long line in a box without room")}, 1, QStringLiteral("Arial"),
                       false, false, 10, 10, 2, 20);
    EXPECT_DOUBLE_EQ(form.FontSize(), 1.0);
}

TEST_F(DrawTest, ReleaseGivesBackWhatWasSelectedBefore) {
    const PenHandle pen = context.CreatePen(PenStyle::Solid, 3, Color::Rgb(1, 1, 1));
    const BrushHandle brush = context.CreateSolidBrush(Color::Rgb(2, 2, 2));
    const FontHandle font = context.CreateFont({QStringLiteral("Arial"), 9, 0, 0, false, false, false});
    context.SelectPen(pen);
    context.SelectBrush(brush);
    context.SelectFont(font);
    context.SetTextColor(Color::Rgb(3, 3, 3));
    for (int i = 0; i < 3; ++i) {
        Draw_SetPen(PenStyle::Solid, 1, Color::Rgb(9, 9, i));
        Draw_SetBrush(Color::Rgb(9, 9, i));
        UseFont(20 + i);
        Draw_Text(QStringLiteral("x"), L, 0, 0, Color::Rgb(0, i, 0));
    }
    Draw_ReleaseObjects();
    EXPECT_EQ(context.CurrentPen(), pen);
    EXPECT_EQ(context.CurrentBrush(), brush);
    EXPECT_EQ(context.CurrentFont(), font);
    EXPECT_EQ(context.TextColor(), Color::Rgb(3, 3, 3));
}

// The same colour again would otherwise be taken to be in force still.
TEST_F(DrawTest, ReleaseForgetsTheColorOfTheTextBefore) {
    const Color own = Color::Rgb(3, 3, 3);
    const Color red = Color::Rgb(200, 0, 0);
    context.SetTextColor(own);
    for (int pass = 0; pass < 2; ++pass) {
        UseFont(20);
        Draw_Text(QStringLiteral("x"), L, 0, 0, red);
        EXPECT_EQ(context.TextColor(), red) << pass;
        Draw_ReleaseObjects();
        EXPECT_EQ(context.TextColor(), own) << pass;
    }
}

TEST_F(DrawTest, ReleaseEndsAReversalThatAFailureLeftOn) {
    const Color own = Color::Rgb(250, 250, 1);
    context.SetBkColor(own);
    UseFont(20);
    Draw_SetSelection(1, 0, 1, 1);
    EXPECT_THROW(Draw_TextArrayShowingSelection({QStringLiteral("HH"), QStringLiteral("HH")}, QStringLiteral("X"), 9, 9,
                                                Color::Rgb(0, 0, 128)),
                 TavloraError);
    EXPECT_EQ(context.CurrentBkMode(), BkMode::Opaque);
    EXPECT_EQ(context.BkColor(), Color::Rgb(0, 0, 128));
    Draw_ReleaseObjects();
    EXPECT_EQ(context.CurrentBkMode(), BkMode::Transparent);
    EXPECT_EQ(context.BkColor(), own);
    EXPECT_EQ(context.TextColor(), Color::Black());
}

TEST_F(DrawTest, AlignmentsPutTheTextFromAboutAndUpToThePoint) {
    UseFont(30);
    const QString text = QStringLiteral("HHHHH");
    const int width = Draw_GetWidth(text);
    Draw_Text(text, L, 200, 10, Color::Black());
    const QRect left = Ink();
    image.fill(Qt::white);
    Draw_Text(text, QStringLiteral("C"), 200, 10, Color::Black());
    const QRect centred = Ink();
    image.fill(Qt::white);
    Draw_Text(text, QStringLiteral("R"), 200, 10, Color::Black());
    const QRect right = Ink();
    EXPECT_NEAR(left.left() - centred.left(), width / 2.0, 1.5);
    EXPECT_NEAR(left.left() - right.left(), width, 1.0);
}

TEST_F(DrawTest, LinesRunDownTheTextsOwnAxis) {
    UseFont(20, 900);
    Draw_TextArray({QStringLiteral("HH"), QStringLiteral("HH")}, L, 100, 200, Color::Black());
    const QRect ink = Ink();
    EXPECT_GT(ink.left(), 99);
    EXPECT_LT(ink.right(), 141);
    EXPECT_GT(ink.width(), 30) << "the second line stands to the right of the first";
    EXPECT_LE(ink.bottom(), 200) << "and both read upwards";
}

TEST_F(DrawTest, AnUnknownAlignmentIsReportedAndTheTextIsDrawn) {
    UseFont(20);
    EXPECT_THROW(Draw_Text(QStringLiteral("H"), QStringLiteral("X"), 50, 50, Color::Black()), TavloraError);
    EXPECT_FALSE(Ink().isNull());
    EXPECT_THROW(Draw_TextArray({QStringLiteral("H")}, QStringLiteral("X"), 50, 50, Color::Black()), TavloraError);
    EXPECT_THROW(Draw_TextArrayShowingSelection({QStringLiteral("H")}, QStringLiteral("X"), 50, 50, Color::Black()),
                 TavloraError);
    int col = 0;
    int row = 0;
    EXPECT_THROW(Draw_FindInsertPoint({QStringLiteral("H")}, QStringLiteral("X"), 0, 0, 5, 5, col, row), TavloraError);
}

TEST_F(DrawTest, ASelectionWithinOneLineReversesItsPart) {
    UseFont(30);
    const Color ink = Color::Rgb(0, 0, 128);
    Draw_SetSelection(3, 0, 1, 0);
    Draw_TextArrayShowingSelection({QStringLiteral("HHHHH")}, L, 50, 50, ink);
    EXPECT_EQ(context.CurrentBkMode(), BkMode::Transparent) << "colours and mode are restored";
    context.Flush();
    const int from = 50 + Draw_GetWidth(QStringLiteral("H"));
    const int to = 50 + Draw_GetWidth(QStringLiteral("HHH"));
    EXPECT_EQ(context.GetPixel(from + 1, 52), ink) << "background of the selection";
    EXPECT_EQ(context.GetPixel(to - 2, 52), ink);
    EXPECT_EQ(context.GetPixel(51, 52), Color::White());
    EXPECT_EQ(context.GetPixel(to + 2, 52), Color::White());
    EXPECT_GT(CountOf(ink.Complement()), 20) << "letters of the selection";
}

TEST_F(DrawTest, ASelectionOverThreeLinesReversesTheLineBetween) {
    UseFont(30);
    const Color ink = Color::Rgb(0, 0, 128);
    Draw_SetSelection(1, 0, 1, 2);
    Draw_TextArrayShowingSelection({QStringLiteral("HH"), QStringLiteral("HH"), QStringLiteral("HH")}, L, 50, 50, ink);
    context.Flush();
    const int one = Draw_GetWidth(QStringLiteral("H"));
    EXPECT_EQ(context.GetPixel(51, 52), Color::White());
    EXPECT_EQ(context.GetPixel(50 + one + 1, 52), ink);
    EXPECT_EQ(context.GetPixel(51, 82), ink);
    EXPECT_EQ(context.GetPixel(51, 112), ink);
    EXPECT_EQ(context.GetPixel(50 + 2 * one - 2, 112), Color::White());
    EXPECT_EQ(context.CurrentBkMode(), BkMode::Transparent);
}

TEST_F(DrawTest, ASelectionThatEndsBelowTheTextIsRestoredBehindTheLastLine) {
    UseFont(30);
    Draw_SetSelection(1, 0, 1, 9);
    Draw_TextArrayShowingSelection({QStringLiteral("HH")}, L, 50, 50, Color::Rgb(0, 0, 128));
    EXPECT_EQ(context.CurrentBkMode(), BkMode::Transparent);
    EXPECT_EQ(context.TextColor(), Color::Rgb(0, 0, 128));
}

TEST_F(DrawTest, WhereBothEndsMeetStandsACaret) {
    UseFont(30);
    Draw_SetPen(PenStyle::Solid, 1, Color::Rgb(255, 0, 0));
    Draw_SetSelection(1, 0, 1, 0);
    Draw_TextArrayShowingSelection({QStringLiteral("II")}, L, 50, 50, Color::Black());
    context.Flush();
    const int x = 50 + Draw_GetWidth(QStringLiteral("I"));
    for (int y = 50; y < 80; ++y)
        EXPECT_EQ(context.GetPixel(x, y), Color::Rgb(255, 0, 0)) << y;
    EXPECT_NE(context.GetPixel(x, 80), Color::Rgb(255, 0, 0));
}

TEST_F(DrawTest, AFontThatCannotBeMadeIsReportedAndTheProgramGoesOn) {
    context.refuseFonts = true;
    try {
        UseFont(20);
        FAIL();
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), ErrNumber::kAssertion);
        EXPECT_TRUE(error.Description().startsWith(QStringLiteral("basDraw!Draw_SetFont(\"Arial\", 20, ")));
        EXPECT_TRUE(error.Description().endsWith(QStringLiteral("Unable to create font")));
    }
    EXPECT_EQ(context.CurrentFont(), nullptr);
    Draw_ReleaseObjects();
}

TEST_F(DrawTest, AWidthThatCannotBeMeasuredEndsTheProgram) {
    UseFont(20);
    context.refuseWidths = true;
    EXPECT_THROW(Draw_GetWidth(QStringLiteral("Oma")), ProgramEnded);
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("Unable to Compute Width of 'Oma' in 'clsFontString!ComputeWidth'")});
}

TEST_F(DrawTest, AWidthDoesNotDependOnTheAngle) {
    UseFont(30);
    const int straight = Draw_GetWidth(QStringLiteral("The South Side"));
    UseFont(30, 450);
    EXPECT_EQ(Draw_GetWidth(QStringLiteral("The South Side")), straight);
}

TEST_F(DrawTest, ACaretNeverStandsInsideASurrogatePair) {
    UseFont(30);
    const QString dice = QString::fromUtf8("🎲🎲");
    int col = 0;
    int row = 0;
    for (int x = 0; x < Draw_GetWidth(dice) + 5; ++x) {
        Draw_FindInsertPoint({dice}, L, 0, 0, x, 5, col, row);
        EXPECT_EQ(col % 2, 0) << x;
    }
}

TEST_F(DrawTest, PolygonsAndReversedColours) {
    Draw_SetPen(PenStyle::Solid, 1, Color::Black());
    Draw_SetBrush(Color::Rgb(0, 255, 0));
    const QPoint points[] = {{10, 10}, {50, 10}, {50, 50}, {10, 50}};
    Draw_Polygon(points);
    EXPECT_EQ(Ink(), QRect(10, 10, 41, 41));
    EXPECT_EQ(context.GetPixel(30, 30), Color::Rgb(0, 255, 0));
    EXPECT_EQ(Draw_ReverseColor(Color::FromValue(0xE0FFE1)), Color::Rgb(224, 255, 225));
}

TEST_F(DrawTest, AWindowHas96DotsAnInchAndTheRatio1) {
    ScratchForm form(QSize(50, 50));
    double dpi = 0;
    double ratio = 0;
    Draw_GetDPIandPrinterSizeRatio(form, dpi, ratio, 2.0);
    EXPECT_DOUBLE_EQ(dpi, 192.0);
    EXPECT_DOUBLE_EQ(ratio, 1.0);
}

TEST_F(DrawTest, MultiLineTextStaysInItsBox) {
    ScratchForm form(QSize(300, 200));
    Draw_MultiLineText(form, {QStringLiteral("Our Town"), QStringLiteral("Game")}, 2, QStringLiteral("Arial"), true,
                       false, 50, 40, 200, 100);
    QRect ink;
    const QImage& shown = form.Image();
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (qGreen(shown.pixel(x, y)) < 200) ink |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_TRUE(QRect(50, 40, 200, 100).contains(ink));
    EXPECT_NEAR(ink.center().x(), 150, 3);
}
