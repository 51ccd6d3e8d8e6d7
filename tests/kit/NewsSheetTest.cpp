// SPDX-License-Identifier: MIT
// The news cards as a reader of the printed page finds them.
#include "kit/NewsSheet.h"

#include "board/basPositFit.h"
#include "kit/Sheets.h"
#include "platform/text/Numbers.h"
#include "render/clsRenderDestination.h"
#include "support/SheetFixture.h"

namespace {

constexpr int kGood = 0;
constexpr int kBad = 1;

class NewsSheetTest : public SheetTest {
protected:
    NewsSheetTest() {
        basPosit::SetSpecialText(4, QStringLiteral("Hurrah!"));
        basPosit::SetSpecialText(5, QStringLiteral("Alas!"));
        for (int deck = 0; deck < basTAVL::kNewsSets; ++deck) {
            for (int card = 0; card < basTAVL::kCards; ++card) {
                C_News& news = basTAVL::g_oNews(deck, card);
                news.FontHead.Load(QStringLiteral("Arial"), false, true, 12);
                news.FontBody.Load(QStringLiteral("Times New Roman"), false, false, 12);
                news.Let_Text(QStringLiteral("Deck%1card%2\r\nCollect it").arg(deck).arg(card));
            }
        }
    }

    bool PrintDeck(int iDeck) {
        return Print([iDeck](SheetJob& job) { return FindSheet(QStringLiteral("good"))->paint(job, iDeck); });
    }
    // One card alone, an inch from the top and the left.
    bool PrintCard(int iDeck) {
        return Print([iDeck](SheetJob& job) {
            clsRenderDestination destination;
            destination.Init(job.printer, 1.0);
            const int inch = CLng(destination.DPI());
            return NewsRender(destination, inch, inch, iDeck, 0);
        });
    }
    static QRectF CardAt(int i) { return {i % 2 * 3.0 + 0.275, i / 2 * 1.62 + 0.275, 3.0, 1.62}; }
    static QRectF FrameOf(const QRectF& card) { return {card.left() + 0.0625, card.top() + 0.0675, 2.875, 0.375}; }

    void ExpectSheet(int iDeck, const QString& sHead) {
        ASSERT_TRUE(PrintDeck(iDeck));
        EXPECT_EQ(reader.PaperInches(1), QSizeF(8.5, 11));
        const QList<QRectF> heads = reader.BoxesOf(1, sHead);
        ASSERT_EQ(heads.size(), basTAVL::kCards);
        for (int i = 0; i < basTAVL::kCards; ++i) {
            const QString what = QStringLiteral("card %1").arg(i);
            const QRectF card = CardAt(i);
            const QRectF frame = FrameOf(card);
            ExpectCutLines(card, what);
            ExpectBox(reader.InkBox(1, Grown(frame, 0.04)), Grown(frame, kHalfPen), what + QStringLiteral(" frame"));
            const QRectF head(frame.center() - QPointF(0.01, 0.01), QSizeF(0.02, 0.02));
            EXPECT_TRUE(std::any_of(heads.begin(), heads.end(), [&](const QRectF& box) { return box.contains(head); }))
                << i;
            const QRectF text = reader.BoxOf(1, QStringLiteral("Deck%1card%2").arg(iDeck).arg(i));
            EXPECT_NEAR(text.center().x(), card.left() + 1.5, kCaptionWithin) << i;
            // Two lines in the middle of 95 hundredths of an inch below 0.52.
            const double line = 12 * 0.0118 / 0.625;
            EXPECT_NEAR(text.top(), card.top() + 0.52 + 0.95 / 2 - line, kCaptionWithin) << i;
        }
    }
};

TEST_F(NewsSheetTest, EveryGoodNewsCardStandsAtItsPlace) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ExpectSheet(kGood, QStringLiteral("Hurrah!"));
    EXPECT_EQ(reader.ColorAt(1, 0.275 + 0.0625 + 0.06, 0.275 + 0.0675 + 0.19), QColor(Qt::white));
    EXPECT_EQ(steps, (QList<int>{0, 83, 167, 250, 333, 417, 500, 583, 667, 750, 833, 917}));
    EXPECT_TRUE(LeftBehind().isEmpty());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(NewsSheetTest, EveryBadNewsCardStandsAtItsPlaceWithAFilledHead) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ExpectSheet(kBad, QStringLiteral("Alas!"));
    for (int i = 0; i < basTAVL::kCards; ++i) {
        const QRectF frame = FrameOf(CardAt(i));
        ExpectBox(reader.ColorBox(1, Grown(frame, 0.04), Qt::black), Grown(frame, kHalfPen), QStringLiteral("head"));
        EXPECT_EQ(reader.ColorAt(1, frame.left() + 0.06, frame.center().y()), QColor(Qt::black)) << i;
        EXPECT_FALSE(reader.ColorBox(1, Grown(frame, -0.06), Qt::white).isEmpty()) << "the letters of card " << i;
    }
}

TEST_F(NewsSheetTest, Edge_ACardWithoutTextHasItsFrameAndHeadAlone) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    basTAVL::g_oNews(kGood, 0).Let_Text(QString());
    ASSERT_TRUE(PrintCard(kGood));
    EXPECT_EQ(reader.Text(1).simplified(), QStringLiteral("Hurrah!"));
    const QRectF frame = FrameOf({1, 1, 3, 1.62});
    ExpectBox(reader.InkBox(1, Grown(frame, 0.04)), Grown(frame, kHalfPen), QStringLiteral("frame"));
    EXPECT_TRUE(reader.InkBox(1, {1.05, 1.5, 2.9, 1.08}).isEmpty());
}

TEST_F(NewsSheetTest, TextKeepsToTheSizeChosenAndShrinksWhereItMust) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    C_News& news = basTAVL::g_oNews(kGood, 0);
    const auto heightOf = [&](float size, const QString& sText, const QString& sWord) {
        news.FontBody.Size = size;
        news.Let_Text(sText);
        EXPECT_TRUE(PrintCard(kGood));
        return reader.BoxOf(1, sWord).height();
    };
    const double small = heightOf(8, QStringLiteral("Pay up"), QStringLiteral("Pay"));
    const double large = heightOf(16, QStringLiteral("Pay up"), QStringLiteral("Pay"));
    EXPECT_NEAR(large, 2 * small, 0.01);
    const QString wide(70, u'm');
    heightOf(16, wide, wide);
    EXPECT_TRUE(QRectF(1.125, 1.5, 2.75, 1.0).contains(reader.BoxOf(1, wide)));
    QStringList many;
    for (int i = 0; i < 20; ++i)
        many.append(QStringLiteral("Line%1").arg(i));
    heightOf(16, many.join(QStringLiteral("\r\n")), QStringLiteral("Line0"));
    EXPECT_LT(reader.BoxOf(1, QStringLiteral("Line19")).bottom(), 1 + 1.62 - 0.05);
}

TEST_F(NewsSheetTest, GoodNewsAfterBadIsNotWrittenInWhite) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(Print([](SheetJob& job) {
        job.printer.ForeColor = Color::White();
        return FindSheet(QStringLiteral("good"))->paint(job, kGood);
    }));
    EXPECT_FALSE(reader.InkBox(1, {0.4, 0.8, 2.7, 0.95}).isEmpty());
}

TEST_F(NewsSheetTest, CardsHaveTheColorOfTheirDeck) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    basTAVL::g_lNewsColor(kGood) = Color::Rgb(255, 220, 230);
    ASSERT_TRUE(PrintCard(kGood));
    ExpectBox(reader.ColorBox(1, {0.9, 0.9, 3.3, 1.9}, QColor(255, 220, 230)), {1, 1, 3, 1.62}, QStringLiteral("card"));
}

TEST_F(NewsSheetTest, AHeadThatCannotBeMadeIsToldAndEndsItsCard) {
    for (const int deck : {kGood, kBad}) {
        const QString file = QStringLiteral("TempNewsBMP%1.temp").arg(deck);
        RefuseToReplace(file);
        EXPECT_FALSE(PrintCard(deck));
        EXPECT_EQ(desktop.boxes.last().sText, deck == kGood ? QStringLiteral("Cannot create good news card bitmap.")
                                                            : QStringLiteral("Cannot create bad news card bitmap."));
        if (PdfReader::IsInstalled()) {
            EXPECT_TRUE(reader.Words(1).isEmpty());
        }
    }
}

TEST_F(NewsSheetTest, FailuresAreOnTheStackWithTheirArguments) {
    PdfPrinter printer(pdf, QStringLiteral("cards"));
    clsRenderDestination destination;
    destination.Init(printer, 1.0);
    try {
        NewsRender(destination, 0, 1, 2, 3);
        FAIL() << "nothing was raised";
    } catch (const TavloraError& error) {
        EXPECT_TRUE(error.Description().contains(QStringLiteral("clsRenderDestination!NewsRender(0, 1, 2, 3)")))
            << error.Description().toStdString();
    }
}

} // namespace
