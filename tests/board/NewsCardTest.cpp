// SPDX-License-Identifier: MIT
#include "board/basTAVL_news.h"
#include "platform/Printer.h"
#include "platform/Surface.h"
#include "support/GameFixture.h"
#include "support/Ink.h"

#include <QProcess>

namespace {

constexpr QSize kCard(basTAVL::kNewsCardWidth, basTAVL::kNewsCardHeight);
// Inside of the title's frame, which is two pixels wide.
const QRect kTitleInside = basTAVL::kNewsTitleFrame.adjusted(2, 2, -2, -2);
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

    static QString Lines(int count) { return QStringList(count, QStringLiteral("Hx")).join(QStringLiteral("\r\n")); }
};

TEST_F(NewsCardTest, Edge_AShortTitleIsStretchedAndALongOneIsSqueezedToTheSameWidth) {
    // As wide as the limit but for the white at both ends and the rounding of each letter to whole pixels.
    for (const QString& title : {QStringLiteral("HaH"), QStringLiteral("Good News"),
                                 QStringLiteral("Here Is Very Good News Indeed For You")}) {
        const QRect ink = DarkBox(Title(title), kTitleInside);
        EXPECT_GE(ink.width(), 160) << title.toStdString();
        EXPECT_LE(ink.width(), 190) << title.toStdString();
        EXPECT_NEAR(ink.center().x(), basTAVL::kNewsCardWidth / 2, 3) << title.toStdString();
    }
}

TEST_F(NewsCardTest, Edge_ManyLinesGetSmallLettersAndNeverLeaveTheBoxByHeight) {
    int before = INT_MAX;
    for (const int lines : {1, 4, 10, 20, 40}) {
        const QRect ink = InkOfText(Lines(lines));
        EXPECT_FALSE(ink.isEmpty());
        EXPECT_TRUE(basTAVL::kNewsTextBox.contains(ink)) << lines;
        EXPECT_LE(ink.height() / lines, before) << lines;
        before = ink.height() / lines;
    }
    // More lines than the smallest letters have room for.
    EXPECT_TRUE(basTAVL::kNewsTextBox.contains(InkOfText(Lines(200))));
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
