// SPDX-License-Identifier: MIT
// The title deeds as a reader of the printed page finds them.
#include "kit/DeedCards.h"

#include "board/basPositRents.h"
#include "board/basPositTables.h"
#include "platform/text/Numbers.h"
#include "render/clsRenderDestination.h"
#include "support/SheetFixture.h"

namespace {

constexpr int kCards = 12;
constexpr std::array<std::array<int, kCards>, 2> kSpaces{{
    {2, 1, 0, 6, 5, 4, 9, 8, 7, 13, 12, 11},
    {16, 15, 14, 20, 19, 18, 23, 22, 21, 27, 26, 25},
}};
constexpr const char* kCorners[] = {"ul", "ur", "ll", "lr"};
const QColor kColored(0, 200, 200);
const QColor kPlain(120, 120, 120);

class DeedCardsTest : public SheetTest {
protected:
    DeedCardsTest() {
        for (const char* corner : kCorners) {
            Ornament(QStringLiteral("deco_%1.dat").arg(QString::fromLatin1(corner)), kColored);
            Ornament(QStringLiteral("deco2_%1.bmp").arg(QString::fromLatin1(corner)), kPlain);
        }
        for (int space = 0; space < basTAVL::kSpaces; ++space)
            basTAVL::g_oSpaces(space).SetText(QStringLiteral("Name%1 Street").arg(space));
    }

    QString ProgramFile(const QString& sName) const { return PathOf(QStringLiteral("program/") + sName); }
    void Ornament(const QString& sName, QColor color) const {
        QImage picture(30, 30, QImage::Format_RGB32);
        picture.fill(color);
        EXPECT_TRUE(picture.save(ProgramFile(sName), sName.endsWith(QStringLiteral("bmp")) ? "BMP" : "PNG"));
    }
    bool PrintSheet(int iSheet) {
        return Print([iSheet](SheetJob& job) { return PrintDeeds(job, iSheet); });
    }
    // One card alone, an inch from the top and the left.
    template <typename Card>
    bool PrintCard(Card card) {
        return Print([&](SheetJob& job) {
            clsRenderDestination destination;
            destination.Init(job.printer, 1.0);
            const int inch = CLng(destination.DPI());
            return card(destination, inch, inch);
        });
    }
    bool PrintProperty(int iDeed) {
        QString band;
        if (!DeedSideColorBitmap(iDeed / basTAVL::kSpacesPerSide, band)) return false;
        return PrintCard([iDeed](clsRenderDestination& destination, int x, int y) {
            return DeedCardProp(destination, iDeed, x, y, true);
        });
    }
    bool PrintUtility(int iDeed) {
        return PrintCard([iDeed](clsRenderDestination& destination, int x, int y) {
            return DeedCardTrans(destination, iDeed, x, y, true);
        });
    }

    static QRectF CardAt(int p) { return {p % 3 * 2.5 + 0.25, p / 3 * 2.5 + 0.375, 2.5, 2.5}; }
    static QColor ToQColor(Color color) { return {color.Red(), color.Green(), color.Blue()}; }

    // The words within a part of the page, in the page's order.
    QString TextIn(const QList<PdfReader::Word>& words, const QRectF& part) const {
        QStringList found;
        for (const PdfReader::Word& word : words) {
            if (part.contains(word.box.center())) found.append(word.sText);
        }
        return found.join(u' ');
    }
    static QRectF BoxIn(const QList<PdfReader::Word>& words, const QRectF& part, const QString& sWord) {
        QRectF box;
        for (const PdfReader::Word& word : words) {
            if (word.sText == sWord && part.contains(word.box.center())) box |= word.box;
        }
        return box;
    }
    void ExpectProperty(int iSpace, const QRectF& card, const QList<PdfReader::Word>& words) const {
        const QString what = QStringLiteral("property %1").arg(iSpace);
        const QRectF side(card.left() + 0.125, card.top() + 0.125, 2.25, 0.125);
        const QRectF price(card.left() + 0.125, card.top() + 0.25, 2.25, 0.5);
        const QRectF head(card.left() + 0.05, card.top() + 0.05, 2.4, 0.8);
        ExpectBox(reader.InkBox(1, head), Grown(side | price, kHalfPen), what + QStringLiteral(" head"));
        ExpectBox(reader.ColorBox(1, Grown(side, 0.03), ToQColor(basPosit::m_SideRec(iSpace / 7).lFill)),
                  Grown(side, -kHalfPen), what + QStringLiteral(" side"));
        ExpectBox(reader.ColorBox(1, Grown(price, 0.03), ToQColor(basTAVL::g_oSpaces(iSpace).SpaceColor)),
                  Grown(price, -kHalfPen), what + QStringLiteral(" price"));
        const basPosit::RentRecord& rent = basPosit::m_Rent(iSpace);
        EXPECT_EQ(TextIn(words, price), basPosit::FormatCost(rent.Cost)) << iSpace;
        ExpectRents(card, words, 1.375, what);
        ExpectRow(card, words, 1.555, QStringLiteral("Single"), basPosit::FormatCost(rent.RentSingle), what);
        EXPECT_TRUE(TextIn(words, card).contains(QStringLiteral("Mortgage Value = $ ") + WithThousands(rent.Extra)));
        ExpectTitle(iSpace, card, words);
    }
    void ExpectUtility(int iSpace, const QRectF& card, const QList<PdfReader::Word>& words) const {
        const QString what = QStringLiteral("utility %1").arg(iSpace);
        for (const double x : {0.0625, 1.9375}) {
            for (const double y : {0.0625, 1.9375}) {
                const QRectF told(card.left() + x, card.top() + y, 0.5, 0.5);
                ExpectBox(reader.ColorBox(1, Grown(told, 0.05), kColored), told, what + QStringLiteral(" ornament"));
            }
        }
        // The frame's outer edges, measured where neither ornaments nor captions are near.
        EXPECT_NEAR(reader.InkBox(1, {card.left() + 0.1, card.top() + 1, 0.3, 0.5}).left(), card.left() + 0.25,
                    kPieceWithin);
        EXPECT_NEAR(reader.InkBox(1, {card.left() + 0.65, card.top() + 0.1, 0.2, 0.25}).top(), card.top() + 0.25,
                    kPieceWithin);
        EXPECT_NEAR(reader.InkBox(1, {card.left() + 2.1, card.top() + 1, 0.3, 0.5}).right(), card.left() + 2.25,
                    kPieceWithin);
        EXPECT_NEAR(reader.InkBox(1, {card.left() + 0.65, card.top() + 2.1, 0.2, 0.3}).bottom(), card.top() + 2.25,
                    kPieceWithin);
        ExpectCaption(card, words, 0.125, QStringLiteral("UTILITY"), what);
        ExpectCaption(card, words, 2.25, QStringLiteral("DEED"), what);
        EXPECT_NEAR(BoxIn(words, card.adjusted(0, 0, 0, -1.8), QStringLiteral("Value")).top(), card.top() + 0.375,
                    kCaptionWithin);
        ExpectRents(card, words, 1.3125, what);
        ExpectRow(card, words, 1.4925, QStringLiteral("One"), basPosit::FormatCost(basPosit::m_Rent(iSpace).RentSingle),
                  what);
        ExpectTitle(iSpace, card, words);
    }
    static void ExpectCaption(const QRectF& card, const QList<PdfReader::Word>& words, double dblTop,
                              const QString& sWord, const QString& sWhat) {
        const QRectF found = BoxIn(words, card, sWord);
        EXPECT_NEAR(found.top(), card.top() + dblTop, kCaptionWithin) << (sWhat + sWord).toStdString();
        EXPECT_NEAR(found.center().x(), card.left() + 1.25, kCaptionWithin) << (sWhat + sWord).toStdString();
    }
    static void ExpectRents(const QRectF& card, const QList<PdfReader::Word>& words, double dblTop,
                            const QString& sWhat) {
        ExpectCaption(card, words, dblTop, QStringLiteral("RENT"), sWhat);
    }
    // The first row: its label on the left and its value on the right.
    static void ExpectRow(const QRectF& card, const QList<PdfReader::Word>& words, double dblTop, const QString& sLabel,
                          const QString& sValue, const QString& sWhat) {
        const QRectF row(card.left(), card.top() + dblTop, card.width(), 0.126);
        const QRectF label = BoxIn(words, row, sLabel);
        const QRectF value = BoxIn(words, row, sValue);
        EXPECT_NEAR(label.left(), card.left() + 0.5, kCaptionWithin) << sWhat.toStdString();
        EXPECT_NEAR(label.top(), row.top(), kCaptionWithin) << sWhat.toStdString();
        EXPECT_NEAR(value.right(), card.left() + 2.0, kCaptionWithin) << sWhat.toStdString();
    }
    void ExpectTitle(int iSpace, const QRectF& card, const QList<PdfReader::Word>& words) const {
        const QRectF first = BoxIn(words, card, QStringLiteral("Name%1").arg(iSpace));
        const QRectF second = BoxIn(words, card, QStringLiteral("Street"));
        EXPECT_NEAR(first.center().x(), card.left() + 1.25, kCaptionWithin) << iSpace;
        EXPECT_NEAR(second.center().x(), card.left() + 1.25, kCaptionWithin) << iSpace;
        EXPECT_GT(first.top(), card.top() + 0.875 - kCaptionWithin) << iSpace;
        EXPECT_LT(second.bottom(), card.top() + 1.625) << iSpace;
    }
    void ExpectSheet(int iSheet) {
        ASSERT_TRUE(PrintSheet(iSheet));
        EXPECT_EQ(reader.PaperInches(1), QSizeF(8.5, 11));
        const QList<PdfReader::Word> words = reader.Words(1);
        for (int p = 0; p < kCards; ++p) {
            const int space = kSpaces[size_t(iSheet - 1)][size_t(p)];
            const QRectF card = CardAt(p);
            ExpectCutLines(card, QStringLiteral("space %1").arg(space));
            if (space == 1 || space == 26) {
                ExpectUtility(space, card, words);
            } else {
                ExpectProperty(space, card, words);
            }
        }
    }
    // No line of a card touches another, or leaves what the card has for it.
    void ExpectLinesApart(int iSheet) {
        ASSERT_TRUE(PrintSheet(iSheet));
        const QList<PdfReader::Word> words = reader.Words(1);
        EXPECT_GT(words.size(), 200);
        constexpr double kTouching = 0.004;
        for (qsizetype i = 0; i < words.size(); ++i) {
            bool inside = false;
            for (int p = 0; p < kCards; ++p)
                inside = inside || Grown(CardAt(p), -0.05).contains(words[i].box);
            EXPECT_TRUE(inside) << words[i].sText.toStdString();
            for (qsizetype j = 0; j < i; ++j) {
                const QRectF both = words[i].box & words[j].box;
                EXPECT_FALSE(both.width() > kTouching && both.height() > kTouching)
                    << words[i].sText.toStdString() << " and " << words[j].sText.toStdString();
            }
        }
    }
};

TEST_F(DeedCardsTest, EveryPartOfTheFirstSheetStandsAtItsPlace) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ExpectSheet(1);
    EXPECT_EQ(steps, (QList<int>{40, 123, 207, 290, 373, 457, 540, 623, 707, 790, 873, 957, -1}));
    EXPECT_TRUE(LeftBehind().isEmpty());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(DeedCardsTest, EveryPartOfTheSecondSheetStandsAtItsPlace) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ExpectSheet(2);
}

TEST_F(DeedCardsTest, NoLineOfADeedRunsIntoAnother) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ExpectLinesApart(1);
    ExpectLinesApart(2);
}

TEST_F(DeedCardsTest, Edge_TheLastCardOfTheSecondSheetEndsAt775By10375) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintSheet(2));
    const QRectF ink = reader.InkBox(1, {5.3, 7.95, 3.2, 3});
    EXPECT_NEAR(ink.right(), 7.75, kPieceWithin);
    EXPECT_NEAR(ink.bottom(), 10.375, kPieceWithin);
}

TEST_F(DeedCardsTest, Edge_APriceOf0StillPrintsTheBandWithTheCurrencySign) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    QByteArray rents = ReadFile(ProgramFile(QStringLiteral("Rents.dat")));
    rents.replace("5,1000,100,300,600,1000,400,500", "5,0,0,0,0,0,0,0");
    WriteFile(QStringLiteral("program/Rents.dat"), rents);
    basPosit::ResetRentsForTest();
    basPosit::PosInit();
    ASSERT_TRUE(PrintProperty(5));
    const QRectF band(1.125, 1.25, 2.25, 0.5);
    ExpectBox(reader.ColorBox(1, Grown(band, 0.03), QColor(192, 0, 96)), Grown(band, -kHalfPen),
              QStringLiteral("band"));
    EXPECT_TRUE(band.contains(reader.BoxOf(1, QStringLiteral("$0"))));
    EXPECT_FALSE(reader.Text(1).contains(QStringLiteral("Single Property"))) << "a rent of 0 has no line";
}

TEST_F(DeedCardsTest, Edge_AnOrnamentMissingInBothFormsFailsInsteadOfLeavingABlank) {
    ASSERT_TRUE(QFile::remove(ProgramFile(QStringLiteral("deco_ll.dat"))));
    ASSERT_TRUE(QFile::remove(ProgramFile(QStringLiteral("deco2_ll.bmp"))));
    PdfPrinter printer(pdf, QStringLiteral("cards"));
    SheetJob job{printer};
    try {
        PrintDeeds(job, 1);
        FAIL() << "nothing was raised";
    } catch (const TavloraError& error) {
        EXPECT_TRUE(error.Description().contains(QStringLiteral("frmTavlPrint!PrintDeeds")))
            << error.Description().toStdString();
        EXPECT_TRUE(error.Description().contains(QStringLiteral("clsRenderDestination!DeedCardTrans")))
            << error.Description().toStdString();
        EXPECT_TRUE(basErrLog::ErrDismiss(error.Description()).contains(QStringLiteral("deco2_ll.bmp' could not")))
            << error.Description().toStdString();
    }
}

TEST_F(DeedCardsTest, PlainOrnamentStandsInForAMissingColoredOne) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(QFile::remove(ProgramFile(QStringLiteral("deco_ul.dat"))));
    ASSERT_TRUE(PrintUtility(26));
    EXPECT_EQ(reader.ColorAt(1, 1.15, 1.15), kPlain);
    EXPECT_EQ(reader.ColorAt(1, 3.35, 1.15), kColored);
}

TEST_F(DeedCardsTest, PlainKitsHaveThePlainOrnamentsAndRentsOfTheirOwn) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    basTAVL::Let_g_sGameVersion(QStringLiteral("2A"));
    ASSERT_TRUE(PrintUtility(26));
    EXPECT_EQ(reader.ColorAt(1, 1.15, 1.15), kPlain);
    ASSERT_TRUE(PrintProperty(5));
    for (const char* label : {"Two Properties", "Entire Color Group", "Entire Color Side"})
        EXPECT_TRUE(reader.Text(1).contains(QString::fromLatin1(label))) << label;
    EXPECT_FALSE(reader.Text(1).contains(QStringLiteral("Two Story Building")));
}

TEST_F(DeedCardsTest, RentsOfAUtilityAreForOneAndTwo) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintUtility(1));
    const QString text = reader.Text(1).simplified();
    EXPECT_TRUE(text.contains(QStringLiteral("One Utility $200 Two Utilities 600 Mortgage Value = $ 800")))
        << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Value = $1,600")));
    EXPECT_FALSE(text.contains(QStringLiteral("doubles")));
}

TEST_F(DeedCardsTest, RowsOfAPropertyAreInTheirOrder) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintProperty(27));
    const QString text = reader.Text(1).simplified();
    EXPECT_TRUE(text.endsWith(QStringLiteral(
        "Single Property $600 Entire Color Group 1,200 One Story Building 2,300 Two Story Building 4,600 "
        "Add a Building Story @ 1,800 Entire color side doubles all rents. Mortgage Value = $ 2,000")))
        << text.toStdString();
}

TEST_F(DeedCardsTest, NamesBreakAtTwoBlanksElseNearestToTheirMiddleAndKeepBreaksOfTheirOwn) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    const struct {
        const char* name;
        QStringList lines;
    } rows[] = {
        {"Aunt Jo in the City", {"Aunt Jo in", "the City"}},
        {"The  Old Bus Stop", {"The", "Old Bus Stop"}},
        {"Treehouse", {"Treehouse"}},
        {"The\r\nOld\r\nShed", {"The", "Old", "Shed"}},
    };
    for (const auto& row : rows) {
        basTAVL::g_oSpaces(5).SetText(QString::fromLatin1(row.name));
        ASSERT_TRUE(PrintProperty(5));
        double above = 1.8;
        for (const QString& line : row.lines) {
            const QRectF box = reader.BoxOf(1, line);
            EXPECT_FALSE(box.isEmpty()) << line.toStdString();
            EXPECT_GT(box.top(), above) << line.toStdString();
            EXPECT_NEAR(box.center().x(), 2.25, kCaptionWithin) << line.toStdString();
            above = box.top() + 0.05;
        }
        EXPECT_LT(above, 2.375) << "the rents begin here";
    }
}

TEST_F(DeedCardsTest, TextsHaveTheInkOfTheGame) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    basTAVL::g_lPrintBlack() = Color::Rgb(0, 0, 160);
    ASSERT_TRUE(PrintProperty(5));
    const QRectF texts(1.1, 1.85, 2.3, 1.6);
    EXPECT_FALSE(reader.ColorBox(1, texts, QColor(0, 0, 160)).isEmpty());
    EXPECT_TRUE(reader.ColorBox(1, texts, Qt::black).isEmpty());
}

TEST_F(DeedCardsTest, ABandThatCannotBeMadeIsToldAndEndsTheSheet) {
    RefuseToReplace(QStringLiteral("Side1Image.bmp"));
    EXPECT_FALSE(PrintSheet(1));
    EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("Cannot draw title deeds at this time."));
    EXPECT_TRUE(steps.isEmpty());
}

TEST_F(DeedCardsTest, APriceThatCannotBeMadeIsToldAndEndsItsCardOnly) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    RefuseToReplace(QStringLiteral("Rent2Image.bmp"));
    EXPECT_FALSE(PrintSheet(1));
    EXPECT_EQ(desktop.boxes.last().sText, QStringLiteral("Cannot draw title deeds at this time."));
    const QList<PdfReader::Word> words = reader.Words(1);
    EXPECT_FALSE(TextIn(words, CardAt(0)).contains(QStringLiteral("RENT")));
    EXPECT_TRUE(TextIn(words, CardAt(2)).contains(QStringLiteral("RENT")));
}

TEST_F(DeedCardsTest, TheOtherHeadHasTheNameInTheLowerBand) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    basPosit::m_SideRec(0).sText = QStringLiteral("South");
    ASSERT_TRUE(PrintCard(
        [](clsRenderDestination& destination, int x, int y) { return DeedTextInColor(destination, 5, x, y); }));
    const QRectF side(1.125, 1.125, 2.25, 0.125);
    const QRectF name(1.125, 1.25, 2.25, 0.5);
    ExpectBox(reader.InkBox(1, {1, 1, 2.5, 2.5}), Grown(side | name, kHalfPen), QStringLiteral("head"));
    ExpectBox(reader.ColorBox(1, Grown(name, 0.03), QColor(192, 0, 96)), Grown(name, -kHalfPen),
              QStringLiteral("name"));
    EXPECT_TRUE(Grown(side, kCaptionWithin).contains(reader.BoxOf(1, QStringLiteral("South"))));
    EXPECT_TRUE(Grown(name, kCaptionWithin).contains(reader.BoxOf(1, QStringLiteral("Name5 Street"))));
    EXPECT_TRUE(LeftBehind().isEmpty());
}

TEST_F(DeedCardsTest, ThereIsNoThirdSheet) {
    PdfPrinter printer(pdf, QStringLiteral("cards"));
    SheetJob job{printer};
    EXPECT_NE(ErrorOf([&] { PrintDeeds(job, 3); }), 0U);
}

} // namespace
