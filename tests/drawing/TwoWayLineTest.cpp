// SPDX-License-Identifier: MIT
// Caret, click and selection in lines with words that run from the right.
#include "drawing/TwoWayLine.h"

#include "drawing/basDraw.h"
#include "platform/paint/Surface.h"
#include "support/TestFixture.h"

using namespace basDraw;

namespace {

const QString kHebrew = QStringLiteral("\u05d0\u05d1\u05d2\u05d3");
const QString kArabic = QStringLiteral("\u0633\u0644\u0627\u0645");
const QString kMixed = QStringLiteral("Elm ") + kHebrew + QStringLiteral(" 7");
constexpr int kHeight = 40;
constexpr int kX = 20;
constexpr int kY = 10;

class TwoWayLineTest : public TavloraTest {
protected:
    TwoWayLineTest() {
        Draw_Abandon(&form.hDC());
        Draw_SetFont(QStringLiteral("DejaVu Sans"), kHeight, 20, 0, 0, false, false, false);
        Draw_SetPen(PenStyle::Solid, 3, Color::Black());
    }
    ~TwoWayLineTest() override {
        Draw_ReleaseObjects();
        Draw_Abandon();
    }
    const Font& UsedFont() { return *form.hDC().CurrentFont(); }
    int CaretAt(const QString& line, int column) { return TwoWayLine::CaretAt(UsedFont(), line, column); }
    int ColumnAt(const QString& line, int place) { return TwoWayLine::ColumnAt(UsedFont(), line, place); }
    QImage Shown(const QString& line, int column, int columnEnd) {
        form.hDC().FillRect(0, 0, 400, 60, Color::White());
        Draw_SetSelection(column, column < 0 ? -1 : 0, columnEnd, column < 0 ? -1 : 0);
        Draw_TextArrayShowingSelection({line}, QStringLiteral("L"), kX, kY, Color::Black());
        QImage image(400, 60, QImage::Format_RGB32);
        for (int y = 0; y < 60; ++y) {
            std::array<QRgb, 400> row{};
            form.hDC().GetPixels(0, y, row);
            for (int x = 0; x < 400; ++x)
                image.setPixel(x, y, row[size_t(x)]);
        }
        return image;
    }
    ScratchForm form{QSize(400, 60)};
};

TEST_F(TwoWayLineTest, OnlyWordsFromTheRightMakeALineTwoWay) {
    EXPECT_TRUE(TwoWayLine::Is(kHebrew));
    EXPECT_TRUE(TwoWayLine::Is(QStringLiteral("Elm ") + kArabic));
    EXPECT_FALSE(TwoWayLine::Is(QStringLiteral("Ærø \u0141\u00f3d\u017a \U0001F600 7 (a)")));
    EXPECT_FALSE(TwoWayLine::Is(QString()));
}

TEST_F(TwoWayLineTest, ACaretRunsFromTheRightInAHebrewWord) {
    const int width = Draw_GetWidth(kHebrew);
    EXPECT_EQ(CaretAt(kHebrew, 0), width);
    EXPECT_EQ(CaretAt(kHebrew, 4), 0);
    for (int column = 0; column < 4; ++column)
        EXPECT_GT(CaretAt(kHebrew, column), CaretAt(kHebrew, column + 1)) << column;
}

TEST_F(TwoWayLineTest, LettersTileTheLineInTheOrderOfTheEye) {
    const QString fromRight = kHebrew + QStringLiteral(" Elm");
    for (const QString& line : {kHebrew, kArabic, kMixed, fromRight}) {
        QList<FontFace::Letter> letters = TwoWayLine::Letters(UsedFont(), line);
        ASSERT_EQ(letters.size(), line.size());
        std::sort(letters.begin(), letters.end(),
                  [](const auto& a, const auto& b) { return a.dblAhead + a.dblBehind < b.dblAhead + b.dblBehind; });
        double place = 0;
        for (const FontFace::Letter& letter : letters) {
            EXPECT_NEAR(std::min(letter.dblAhead, letter.dblBehind), place, 0.1) << line.toStdString();
            place = std::max(letter.dblAhead, letter.dblBehind);
        }
        EXPECT_NEAR(place, Draw_GetWidth(line), 1) << line.toStdString();
    }
    EXPECT_GT(CaretAt(fromRight, 0), CaretAt(fromRight, 5)) << "the English word stands at the left";
    EXPECT_LT(CaretAt(fromRight, 5), CaretAt(fromRight, 7)) << "and runs to the right";
}

TEST_F(TwoWayLineTest, AClickFindsTheLetterThatIsSeenThere) {
    for (const QString& line : {kHebrew, kArabic, kMixed}) {
        for (const FontFace::Letter& letter : TwoWayLine::Letters(UsedFont(), line)) {
            ASSERT_NE(letter.dblAhead, letter.dblBehind) << line.toStdString();
            const double step = (letter.dblBehind - letter.dblAhead) / 4;
            EXPECT_EQ(ColumnAt(line, int(letter.dblAhead + step)), letter.iFrom) << line.toStdString();
            EXPECT_EQ(ColumnAt(line, int(letter.dblBehind - step)), letter.iTo) << line.toStdString();
        }
    }
    EXPECT_EQ(ColumnAt(kHebrew, -100), 4);
    EXPECT_EQ(ColumnAt(kHebrew, 1000), 0);
}

TEST_F(TwoWayLineTest, AClickInTheDrawnLineFindsIt) {
    int column = -1;
    int row = -1;
    const int width = Draw_GetWidth(kHebrew);
    Draw_FindInsertPoint({kHebrew}, QStringLiteral("C"), 200, kY, 200 - width / 2 + 1, kY + 5, column, row);
    EXPECT_EQ(column, 4) << "the left end is behind the last letter";
    Draw_FindInsertPoint({kHebrew}, QStringLiteral("C"), 200, kY, 200 + width / 2 - 1, kY + 5, column, row);
    EXPECT_EQ(column, 0);
}

TEST_F(TwoWayLineTest, AMixedLineHasMoreThanOneStretch) {
    // From within the English word to within the Hebrew one: its far end is covered and its near one not.
    const auto stretches = TwoWayLine::Covered(UsedFont(), kMixed, 2, 6);
    ASSERT_EQ(stretches.size(), 2);
    EXPECT_GT(stretches[1].iLeft, stretches[0].iRight);
    EXPECT_EQ(TwoWayLine::Covered(UsedFont(), kMixed, 0, int(kMixed.size())).size(), 1);
}

TEST_F(TwoWayLineTest, LettersKeepShapeAndPlaceWhilePartOfThemIsSelected) {
    for (const QString& line : {kHebrew, kArabic, kMixed}) {
        const QImage plain = Shown(line, -1, -1);
        const QImage marked = Shown(line, 1, 3);
        QRect changed;
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 400; ++x) {
                if (plain.pixel(x, y) != marked.pixel(x, y)) changed |= QRect(x, y, 1, 1);
            }
        }
        QRect covered;
        for (const TwoWayLine::Stretch& stretch : TwoWayLine::Covered(UsedFont(), line, 1, 3))
            covered |= QRect(kX + stretch.iLeft, kY, stretch.iRight - stretch.iLeft, kHeight);
        EXPECT_FALSE(changed.isEmpty()) << line.toStdString();
        EXPECT_TRUE(covered.contains(changed)) << line.toStdString();
    }
}

TEST_F(TwoWayLineTest, TheCaretIsDrawnAheadOfItsLetter) {
    const QImage first = Shown(kHebrew, 0, 0);
    const int right = kX + Draw_GetWidth(kHebrew);
    EXPECT_EQ(first.pixel(right, kY + 2), qRgb(0, 0, 0)) << "ahead of the first letter is at the right";
    EXPECT_EQ(Shown(kHebrew, 4, 4).pixel(kX, kY + 2), qRgb(0, 0, 0));
}

} // namespace
