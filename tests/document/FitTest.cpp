// SPDX-License-Identifier: MIT
#include "support/GameFixture.h"

#include <cmath>
#include <functional>
#include <vector>

namespace {

// In this typeface all letters are equally wide, so that one is exactly as wide as it is asked for: half the height
// of its line, rounded.
const QString kEven = QStringLiteral("Courier New");

class FitTest : public GameTest {
protected:
    /// The height of a line that is fitted, in the units that it is fitted in: a 500th of the board.
    static int FittedSpace(const QString& sFamily, bool bBold, bool bItalic, const QString& sText) {
        C_Space space;
        space.Font.Load(sFamily, bItalic, bBold, 1000);
        space.SetText(sText);
        return int(std::lround(space.m_fTextSize * 500));
    }
    QString Picture() const { return WriteFile(QStringLiteral("picture.bmp"), "x"); }
};

struct Row {
    const char* text;
    int height;
};

void ExpectHeights(const std::vector<Row>& rows, const std::function<float(const QString&)>& fitted) {
    for (const Row& row : rows) {
        QString text = QString::fromLatin1(row.text);
        text.replace(u'|', QStringLiteral("\r\n"));
        EXPECT_FLOAT_EQ(fitted(text), float(row.height / 500.0)) << row.text;
    }
}

// A space is 34 wide and 51 high: one line is 51 high and its letters 26 wide, two are 25 and 12, three 17 and 8.
TEST_F(FitTest, LinesOfASpaceFillItsBox) {
    ExpectHeights({{"", 51},
                   {"m", 51},
                   {"mm", 33},
                   {"mmm", 22},
                   {"mmmmm", 13},
                   {"|", 25},
                   {"mm|m", 25},
                   {"mmm|m", 23},
                   {"m|mmm", 23},
                   {"m|mmmmm|m", 14},
                   {"m|m|m|m|m|m|m|m|m|m", 5}},
                  [](const QString& text) {
                      C_Space space;
                      space.Font.Load(kEven, false, false, 1000);
                      space.SetText(text);
                      return space.m_fTextSize;
                  });
}

// With a picture it is 25 high: one line is 25 high and its letters 12 wide, two are 12 and 6.
TEST_F(FitTest, LinesOfASpaceWithAPictureFillHalfOfItsBox) {
    const QString picture = Picture();
    ExpectHeights({{"m", 25}, {"mm", 25}, {"mmm", 23}, {"mmmm", 17}, {"mmmmm|m", 12}, {"mmmmmm|m", 11}, {"m|m|m", 8}},
                  [&picture](const QString& text) {
                      C_Space space;
                      space.Font.Load(kEven, false, false, 1000);
                      space.Image.Let_FullPath(picture);
                      space.SetText(text);
                      return space.m_fTextSize;
                  });
}

// A corner's block is 63 wide and 32 high, with a picture too: letters 16 wide on one line, 8 on two.
TEST_F(FitTest, LinesOfACornersBlockFillItsBox) {
    const QString picture = Picture();
    ExpectHeights(
        {{"", 32}, {"mmm", 32}, {"mmmm", 31}, {"mmmmm", 25}, {"mmmmmm", 21}, {"mmmmmmmm|m", 15}, {"m|m|m", 10}},
        [&picture](const QString& text) {
            C_Corner corner;
            corner.Font.Load(kEven, false, false, 1000);
            corner.SetText(0, text);
            const float without = corner.m_fTextSize0;
            corner.Image.Let_FullPath(picture);
            corner.SetText(1, text);
            EXPECT_FLOAT_EQ(corner.m_fTextSize0, without);
            return without;
        });
}

// A token is 56 wide and 84 high: letters 42 wide on one line, 21 on two, 14 on three.
TEST_F(FitTest, LinesOfATokenFillItsBox) {
    ExpectHeights({{"", 84}, {"m", 84}, {"mm", 56}, {"mmm", 37}, {"mmm|m", 37}, {"m|mmmm|m", 28}, {"m|mmmmm|m", 22}},
                  [](const QString& text) {
                      C_Token token;
                      token.Font.Load(kEven, false, false, 1000);
                      token.SetText(text);
                      return token.m_fTextSize;
                  });
}

// Worked out from the advances of the letters, which are 26 wide on average.
TEST_F(FitTest, TextIsMeasuredInItsOwnTypefaceWeightAndSlant) {
    const QString arial = QStringLiteral("Arial");
    const QString times = QStringLiteral("Times New Roman");
    const QString word = QStringLiteral("Lilli");
    EXPECT_EQ(FittedSpace(arial, false, false, word), 20);
    EXPECT_EQ(FittedSpace(arial, true, false, word), 18);
    EXPECT_EQ(FittedSpace(times, false, false, word), 15);
    EXPECT_EQ(FittedSpace(kEven, false, false, word), 13);
    EXPECT_EQ(FittedSpace(times, false, true, QStringLiteral("fffff")), 19);
    EXPECT_EQ(FittedSpace(times, true, true, QStringLiteral("illl")), 24);
}

} // namespace
