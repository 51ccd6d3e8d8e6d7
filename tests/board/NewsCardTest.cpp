// SPDX-License-Identifier: MIT
#include "board/basTAVL_news.h"
#include "platform/paint/Surface.h"
#include "platform/printing/Printer.h"
#include "support/GameFixture.h"
#include "support/Ink.h"

#include <QProcess>

namespace {

constexpr QSize kCard(basTAVL::kNewsCardWidth, basTAVL::kNewsCardHeight);
// Inside of the title's frame, which is two pixels wide.
constexpr QRect kTitleInside(QPoint(10, 10), QPoint(229, 33));
// Ink this pale still counts: letters of two pixels are never black.
constexpr int kPale = 240;

class NewsCardTest : public GameTest {
protected:
    static QImage Title(const QString& sTitle, const C_FontInfo& font = {}) {
        ScratchForm form(kCard);
        basDraw::Draw_SetSelection(-1, -1, -1, -1);
        basTAVL::NewsDrawBackgroundToScreen(&form.hDC(), 0, 0);
        basTAVL::NewsDrawTitleToScreen(&form.hDC(), 0, 0, 0, sTitle, font);
        return form.Image();
    }

    // The card stands in the middle of a larger surface, so that ink beside it would be found.
    static QImage Text(const QString& sText, float size = 48) {
        ScratchForm form(kCard * 3);
        C_News card;
        card.FontBody.Size = size;
        card.Let_Text(sText);
        basDraw::Draw_SetSelection(-1, -1, -1, -1);
        basTAVL::NewsDrawTextToScreen(&form.hDC(), kCard.width(), kCard.height(), 0, card);
        return form.Image();
    }
    static QRect InkOfText(const QString& sText, float size = 48) {
        const QImage image = Text(sText, size);
        return DarkBox(image, image.rect(), kPale).translated(-kCard.width(), -kCard.height());
    }

    /// Upper edge of each stretch of rows with ink, in pixels of the card.
    static QList<int> TopsOfText(const QString& sText, float size = 48) {
        const QImage image = Text(sText, size);
        QList<int> tops;
        bool before = false;
        for (int y = 0; y < image.height(); ++y) {
            const bool here = !DarkBox(image, QRect(0, y, image.width(), 1), kPale).isEmpty();
            if (here && !before) tops.append(y - kCard.height());
            before = here;
        }
        return tops;
    }

    /// A text with letters on every so manieth line only, so that lines are told apart however low they are.
    static QString SparseLines(int count, int apart) {
        QStringList lines(count);
        for (int i = apart / 2; i < count; i += apart)
            lines[i] = QStringLiteral("HHHH");
        return lines.join(QStringLiteral("\r\n"));
    }

    static QString Lines(int count) { return QStringList(count, QStringLiteral("Hx")).join(QStringLiteral("\r\n")); }
};

TEST_F(NewsCardTest, Edge_AShortTitleIsStretchedAndALongOneIsSqueezedToTheSameWidth) {
    // Letters that are all 12 wide where they aren't stretched, with no white between them: 180 of 1, 5, 9 and 36.
    C_FontInfo even;
    even.Family = QStringLiteral("Courier New");
    for (const int letters : {1, 5, 9, 36}) {
        const QRect ink = DarkBox(Title(QString(letters, u'_'), even), kTitleInside, kPale);
        EXPECT_NEAR(ink.width(), 180, 2) << letters;
        EXPECT_NEAR(ink.center().x(), 120, 1) << letters;
    }
    // And a family's own, but for the white at both ends and the rounding of each letter to whole pixels.
    for (const QString& title : {QStringLiteral("HaH"), QStringLiteral("Good News"),
                                 QStringLiteral("Here Is Very Good News Indeed For You")}) {
        const QRect ink = DarkBox(Title(title), kTitleInside);
        EXPECT_GE(ink.width(), 160) << title.toStdString();
        EXPECT_LE(ink.width(), 190) << title.toStdString();
        EXPECT_NEAR(ink.center().x(), 120, 3) << title.toStdString();
    }
}

TEST_F(NewsCardTest, ATitleIs24PixelsHigh10BelowTheEdgeOfItsCard) {
    // Nine letters of Courier in 180 pixels.
    C_FontInfo even;
    even.Family = QStringLiteral("Courier New");
    const QString title = QStringLiteral("Good News");
    ScratchForm told(kCard);
    basDraw::Draw_SetHdc(&told.hDC());
    basDraw::Draw_SetBrush(Color::White());
    basDraw::Draw_SetPen(PenStyle::Solid, 1, Color::Black());
    basDraw::Draw_Rect(0, 0, 240, 140);
    basDraw::Draw_SetPen(PenStyle::Solid, 2, Color::Black());
    basDraw::Draw_Rect(8, 8, 232, 36);
    basDraw::Draw_SetFont(even.Family, 24, 20, 0, 0, false, false, false);
    basDraw::Draw_Text(title, QStringLiteral("C"), 120, 10, Color::Black());
    basDraw::Draw_ReleaseObjects();
    EXPECT_EQ(Title(title, even), told.Image());
}

TEST_F(NewsCardTest, Edge_ManyLinesGetSmallLettersAndNeverLeaveTheBoxByHeight) {
    // The box is 80 pixels high, and no line gets lower than 2 pixels.
    const struct {
        int lines;
        int apart; ///< Lines from one with letters to the next; those between are empty.
        int pitch; ///< Pixels from one with letters to the next.
    } rows[] = {{2, 1, 40},  {4, 1, 20},  {5, 1, 16},   {8, 1, 10},   {10, 2, 16},   {13, 2, 12},
                {20, 4, 16}, {26, 4, 12}, {40, 10, 20}, {41, 10, 20}, {100, 10, 20}, {200, 10, 20}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.lines);
        const QList<int> tops = TopsOfText(SparseLines(row.lines, row.apart));
        ASSERT_GE(tops.size(), 2);
        for (int i = 1; i < tops.size(); ++i)
            EXPECT_EQ(tops[i] - tops[i - 1], row.pitch) << "from line to line";
        EXPECT_TRUE(basTAVL::kNewsTextBox.contains(InkOfText(Lines(row.lines))));
    }
    // Nor does one of 1 point, which would be 1 pixel and a third.
    const QList<int> tops = TopsOfText(SparseLines(40, 10), 1);
    ASSERT_EQ(tops.size(), 4);
    for (int i = 1; i < tops.size(); ++i)
        EXPECT_EQ(tops[i] - tops[i - 1], 20);
}

TEST_F(NewsCardTest, TheBlockOfLinesStandsInTheMiddleOfItsBox) {
    // Half of 80 less the height of all lines, and 48 down from the card's edge.
    const struct {
        float size;
        int lines;
        int top;
        int pitch;
    } rows[] = {{48, 4, 48, 20}, {12, 1, 80, 16}, {12, 2, 72, 16}, {12, 3, 64, 16}, {9, 4, 64, 12}, {6, 5, 68, 8}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        const QList<int> tops = TopsOfText(Lines(row.lines), row.size);
        ASSERT_EQ(tops.size(), row.lines);
        // Letters begin below the top of their line: by less than a third of its height.
        EXPECT_GE(tops.first(), row.top);
        EXPECT_LE(tops.first(), row.top + row.pitch / 3);
        EXPECT_EQ(tops.last() - tops.first(), (row.lines - 1) * row.pitch);
    }
}

TEST_F(NewsCardTest, OfThousandsOfLinesThoseInTheMiddleAreSeen) {
    QStringList lines(2001);
    lines.first() = lines.last() = QStringLiteral("HHHH");
    EXPECT_EQ(TopsOfText(lines.join(QStringLiteral("\r\n"))), QList<int>());
    // Two pixels a line: line 1000 begins one pixel above the middle of a box from 48 to 128.
    lines[1000] = QStringLiteral("HHHH");
    EXPECT_EQ(TopsOfText(lines.join(QStringLiteral("\r\n"))), QList<int>{87});
    lines[1000 - 19] = lines[1000 + 20] = QStringLiteral("HHHH");
    EXPECT_EQ(TopsOfText(lines.join(QStringLiteral("\r\n"))), (QList<int>{49, 87, 127}));
}

TEST_F(NewsCardTest, ATextIsWrittenInItsFontAloneHalfAsWideAsHigh) {
    // 12 points are 16 pixels, in the middle of 80 that begin 48 down.
    ScratchForm told(kCard * 3);
    basDraw::Draw_SetHdc(&told.hDC());
    basDraw::Draw_SetFont(QStringLiteral("Arial"), 16, 8, 0, 0, false, false, false);
    basDraw::Draw_Text(QStringLiteral("Pay 500"), QStringLiteral("C"), 240 + 120, 140 + 80, Color::Black());
    basDraw::Draw_ReleaseObjects();
    EXPECT_EQ(Text(QStringLiteral("Pay 500"), 12), told.Image());
}

// Letters are as wide as the box allows, at most half as wide as high; 224 pixels are the box's width.
TEST_F(NewsCardTest, ALongLineGetsLettersThatFitTheBoxByWidth) {
    for (const int letters : {20, 30, 60}) {
        const QRect ink = InkOfText(QString(letters, u'H'));
        EXPECT_GT(ink.width(), 224 * 0.8) << letters;
        EXPECT_LE(ink.width(), 224) << letters;
        EXPECT_GT(ink.left(), basTAVL::kNewsTextBox.left()) << letters;
        EXPECT_LT(ink.right(), basTAVL::kNewsTextBox.right()) << letters;
        EXPECT_NEAR(ink.center().x(), 120, 1) << letters;
        EXPECT_NEAR(ink.center().y(), 48 + 40, 3) << letters;
    }
}

TEST_F(NewsCardTest, Edge_ASmallFontSizeCapsTheTextHoweverShort) {
    EXPECT_GT(InkOfText(QStringLiteral("H")).height(), 30);
    // 9 points are 12 pixels of 1/96 inch, of which a capital takes three quarters at most.
    EXPECT_LE(InkOfText(QStringLiteral("H"), 9).height(), 9);
    EXPECT_GE(InkOfText(QStringLiteral("H"), 9).height(), 7);
}

TEST_F(NewsCardTest, TheCardIsWhiteWithAThinFrameAndATitleFrameOfTwoPixels) {
    const QImage image = Title(QString());
    EXPECT_EQ(image.pixel(0, 70), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(1, 70), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(239, 70), qRgb(0, 0, 0));
    EXPECT_EQ(DarkBox(image, QRect(4, 4, 232, 40)), QRect(7, 7, 225, 29).intersected(QRect(4, 4, 232, 40)));
    EXPECT_TRUE(DarkBox(image, kTitleInside).isEmpty());
}

TEST_F(NewsCardTest, AnEmptyTitleAndAnEmptyTextLeaveTheirPlacesWhite) {
    EXPECT_TRUE(DarkBox(Title(QString()), kTitleInside).isEmpty());
    EXPECT_TRUE(InkOfText(QString()).isEmpty());
}

TEST_F(NewsCardTest, ATitleBeyondAllMeasureStaysInItsFrame) {
    const QImage image = Title(QString(2000, u'H'));
    const QRect outside(kTitleInside.right() + 3, 2, 4, kCard.height() - 4);
    EXPECT_TRUE(DarkBox(image, outside).isEmpty());
}

TEST_F(NewsCardTest, ALineBeyondAllMeasureStaysInItsBox) {
    EXPECT_TRUE(basTAVL::kNewsTextBox.contains(InkOfText(QString(3000, u'H'))));
}

TEST_F(NewsCardTest, ALineBreakInTheTitleCountsAsABlank) {
    EXPECT_EQ(Title(QStringLiteral("Good\r\nNews")), Title(QStringLiteral("Good News")));
}

TEST_F(NewsCardTest, TitleAndTextTakeTheirOwnFonts) {
    C_FontInfo bold;
    bold.Bold = true;
    bold.Italic = true;
    EXPECT_NE(Title(QStringLiteral("Good News"), bold), Title(QStringLiteral("Good News")));
}

TEST_F(NewsCardTest, TheContextGetsBackWhatWasSelected) {
    ScratchForm form(kCard);
    const PenHandle pen = form.hDC().CurrentPen();
    const FontHandle font = form.hDC().CurrentFont();
    basTAVL::NewsDrawBackgroundToScreen(&form.hDC(), 0, 0);
    basTAVL::NewsDrawTitleToScreen(&form.hDC(), 0, 0, 1, QStringLiteral("Bad News"), {});
    basTAVL::NewsDrawTextToScreen(&form.hDC(), 0, 0, 1, {});
    EXPECT_EQ(form.hDC().CurrentPen(), pen);
    EXPECT_EQ(form.hDC().CurrentFont(), font);
}

TEST_F(NewsCardTest, ADenseScreenShowsTheSameLayoutInMoreDots) {
    ScratchForm dense(kCard, 2.0);
    C_News card;
    card.FontBody.Size = 48;
    card.Let_Text(QStringLiteral("Hx\r\nHx"));
    basTAVL::NewsDrawTextToScreen(&dense.hDC(), 0, 0, 0, card);
    const QRect box = DarkBox(dense.Image(), dense.Image().rect(), kPale);
    const QRect plain = InkOfText(card.Text());
    EXPECT_NEAR(box.width(), 2 * plain.width(), 4);
    EXPECT_NEAR(box.top(), 2 * plain.top(), 4);
}

TEST_F(NewsCardTest, OnPaperTextIsText) {
    const QString path = PathOf(QStringLiteral("card.pdf"));
    {
        PdfPrinter printer(path, QStringLiteral("Card"));
        C_News card;
        card.Let_Text(QStringLiteral("Collect 500"));
        basTAVL::NewsDrawBackgroundToScreen(&printer.hDC(), 100, 100);
        basTAVL::NewsDrawTitleToScreen(&printer.hDC(), 100, 100, 0, QStringLiteral("Good News"), {});
        basTAVL::NewsDrawTextToScreen(&printer.hDC(), 100, 100, 0, card);
        printer.EndDoc();
        QString error;
        ASSERT_TRUE(printer.Close(error)) << error.toStdString();
    }
    QProcess pdftotext;
    pdftotext.start(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
    if (!pdftotext.waitForStarted()) GTEST_SKIP() << "pdftotext isn't installed";
    pdftotext.waitForFinished();
    const QString text = QString::fromUtf8(pdftotext.readAllStandardOutput());
    EXPECT_TRUE(text.contains(QStringLiteral("Good News"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Collect 500"))) << text.toStdString();
}

TEST_F(NewsCardTest, LinesOfACardEndAtEachLineBreak) {
    EXPECT_EQ(basTAVL::NewsTextLines(QString()), QStringList{QString()});
    EXPECT_EQ(basTAVL::NewsTextLines(QStringLiteral("a\r\n\r\nb")).size(), 3);
}

} // namespace
