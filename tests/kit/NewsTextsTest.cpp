// SPDX-License-Identifier: MIT
// What is written on the news cards: each card in a font and a size of its own.
#include "support/SheetMarks.h"

namespace {

constexpr int kGood = 0;
constexpr int kBad = 1;
const QColor kInk(20, 40, 90);

/// What a size in points becomes: its height and the pitch of its lines in dots, and how far down two lines begin.
struct ToldSize {
    int points;
    double height;
    int pitch;
    int down;
};
// 0.0118 inch of nominal size for each point, 0.625 of a line's height; 570 dots less two lines, halved.
constexpr ToldSize kSizes[] = {{8, 91.2, 91, 194},    {9, 102.4, 102, 183},  {10, 113.6, 114, 171},
                               {11, 124.8, 125, 160}, {12, 136.0, 136, 149}, {13, 147.2, 147, 138},
                               {14, 158.4, 158, 127}, {15, 169.6, 170, 115}, {16, 180.8, 181, 104},
                               {17, 192.0, 192, 93},  {18, 203.2, 203, 82},  {19, 216.0, 216, 69}};

class NewsTextsTest : public SheetMarksTest {
protected:
    NewsTextsTest() {
        basTAVL::g_lPrintBlack() = Color::Rgb(20, 40, 90);
        basPosit::SetSpecialText(4, QStringLiteral("Hurrah!"));
        basPosit::SetSpecialText(5, QStringLiteral("Alas!"));
        for (const int deck : {kGood, kBad}) {
            for (int i = 0; i < basTAVL::kCards; ++i) {
                C_News& card = basTAVL::g_oNews(deck, i);
                UseFace(card.FontBody, BodyFace(deck, i), float(kSizes[i].points));
                UseFace(card.FontHead, HeadFace(deck), 12);
                card.Let_Text(QStringLiteral("Card %1\r\nof %2").arg(i).arg(deck));
            }
        }
    }
    static void UseFace(C_FontInfo& font, const KnownFace& face, float size) {
        font.Load(QString::fromLatin1(face.family), face.italic, face.bold, size);
    }
    static const KnownFace& BodyFace(int deck, int i) { return KnownFaces()[size_t(i + 5 * deck) % 12]; }
    static const KnownFace& HeadFace(int deck) {
        return deck == kGood ? Face("Courier New", true, false) : Face("Times New Roman", false, true);
    }
    static QPoint CornerOf(int i) { return {165 + i % 2 * 1800, 165 + i / 2 * 972}; }

    void ExpectTexts(int deck) const {
        for (int i = 0; i < basTAVL::kCards; ++i) {
            const QPoint corner = CornerOf(i);
            ToldText line{.sText = QStringLiteral("Card %1").arg(i),
                          .face = &BodyFace(deck, i),
                          .x = double(corner.x() + 75 + 825),
                          .y = double(corner.y() + 312 + kSizes[i].down),
                          .height = kSizes[i].height,
                          .heightWithin = kSizes[i].height / 50,
                          .color = kInk};
            ExpectText(marks, line);
            line.sText = QStringLiteral("of %1").arg(deck);
            line.y += kSizes[i].pitch;
            ExpectText(marks, line);
        }
    }
    void ExpectHeads(const QString& sHead, int deck, QColor color) const {
        const QList<PageMark> heads = TextsThatRead(sHead);
        ASSERT_EQ(heads.size(), basTAVL::kCards);
        for (int i = 0; i < basTAVL::kCards; ++i) {
            const PageMark& head = heads[i];
            EXPECT_TRUE(HasFace(head, HeadFace(deck))) << head.sFace.toStdString();
            EXPECT_TRUE(IsNear(head.color, color)) << head.color.name().toStdString();
            // The picture of the head fills the frame but for the width of its line above and below.
            // Slanted letters have room beside them.
            EXPECT_NEAR(head.Box().center().x(), CornerOf(i).x() + 75 + 825, HeadFace(deck).italic ? 12 : 4) << i;
            EXPECT_NEAR(head.Box().top(), CornerOf(i).y() + 59.25, 4) << i;
            EXPECT_NEAR(head.Box().height(), 187.5, 4) << i;
        }
    }
};

TEST_F(NewsTextsTest, EveryGoodCardHasItsOwnFontAndSizeAndTheHeadOfItsDeck) {
    ASSERT_TRUE(PrintSheetNamed("good"));
    ExpectTexts(kGood);
    ExpectHeads(QStringLiteral("Hurrah!"), kGood, kInk);
}

TEST_F(NewsTextsTest, EveryBadCardHasItsOwnFontAndSizeAndAWhiteHeadOnInk) {
    ASSERT_TRUE(PrintSheetNamed("bad"));
    ExpectTexts(kBad);
    ExpectHeads(QStringLiteral("Alas!"), kBad, Qt::white);
}

} // namespace
