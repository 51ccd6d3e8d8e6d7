// SPDX-License-Identifier: MIT
#include "support/BoardPage.h"

#include <algorithm>
#include <iterator>

using namespace basPosit;
using namespace basTAVL;

namespace {

constexpr int kScales[] = {4800, 4777, 2999};

// The title box and what the small board round the title is made of.
constexpr double kTitleX1 = 0.2204;
constexpr double kTitleY1 = 0.2473;
constexpr double kTitleX2 = 0.7775;
constexpr double kTitleY2 = 0.3712;
constexpr double kTitleW = kTitleX2 - kTitleX1;
constexpr double kTitleH = kTitleY2 - kTitleY1;
constexpr double kStrip = 0.0288 * kTitleW;
constexpr double kColumn = 0.1295 * kTitleH;
constexpr double kT1 = kTitleY1 + 0.1762 * kTitleH;
constexpr double kT0 = kT1 - 0.05286 * kTitleH;
constexpr double kB0 = kTitleY2 - 0.1762 * kTitleH;
constexpr double kB1 = kB0 + 0.05286 * kTitleH;
constexpr double kL1 = kTitleX1 + 0.0392 * kTitleW;
constexpr double kL0 = kL1 - 0.0098 * kTitleW;
constexpr double kR0 = kTitleX2 - 0.0392 * kTitleW;
constexpr double kR1 = kR0 + 0.0098 * kTitleW;

double StripFromLeft(int i) { return (0.0288 * i + 0.0392) * kTitleW + kTitleX1; }
double StripFromRight(int i) { return kTitleX2 - (0.0288 * i + 0.0392) * kTitleW; }
double ColumnFrom(int i) { return (0.1295 * i + 0.1762) * kTitleH + kTitleY1; }

class BoardCenterTest : public BoardPageTest {};

// Cells of a hue that nothing else on the board has.
Color StripColor(int i) { return Color::Rgb(90 + 3 * i, 4 * i, 60); }
Color ColumnColorA(int i) { return Color::Rgb(10, 200 + 8 * i, 3); }
Color ColumnColorB(int i) { return Color::Rgb(3, 10, 190 + 8 * i); }
QColor ToQt(Color color) { return {color.Red(), color.Green(), color.Blue()}; }

TEST_F(BoardCenterTest, BoxesLieOverEachOtherInTheirColors) {
    const struct {
        double x1, y1, x2, y2;
        QColor fill;
    } told[] = {
        {0.1705, 0.1705, 0.8295, 0.8295, {0, 176, 255}},   {0.2204, 0.2473, 0.7775, 0.3712, {224, 255, 224}},
        {0.3015, 0.3928, 0.7006, 0.4219, {224, 255, 224}}, {0.2287, 0.6, 0.4158, 0.7061, {128, 128, 192}},
        {0.5842, 0.6, 0.7713, 0.7061, {128, 128, 192}},    {0.2287, 0.73, 0.7713, 0.78, {128, 224, 128}},
        {0.2287, 0.52, 0.7713, 0.57, {219, 112, 147}},
    };
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        // The first areas of all that aren't black, which are pens.
        QList<PageMark> areas = Only(Paint({.scale = scale}), PageMark::Kind::Area);
        areas.removeIf([](const PageMark& mark) { return mark.color == QColor(Qt::black); });
        ASSERT_GT(areas.size(), std::ssize(told));
        const double half = Nearest(0.0031 * scale) % 2 == 1 ? 0.5 : 0;
        for (qsizetype i = 0; i < std::ssize(told); ++i) {
            EXPECT_EQ(areas[i].color, told[i].fill) << i;
            ExpectBox(areas[i].Box(), Nearest(told[i].x1 * scale) + half, Nearest(told[i].y1 * scale) + half,
                      Nearest(told[i].x2 * scale) - 1 + half, Nearest(told[i].y2 * scale) - 1 + half, "box", int(i));
        }
    }
}

TEST_F(BoardCenterTest, LabelsStandInItalicsFromTheTopOfTheirBoxes) {
    const struct {
        const char* line[2];
        double x1, y1, x2, y2;
        int rows;
    } told[] = {
        {{"Good", "News"}, 0.2287, 0.6, 0.4158, 0.7061, 2},
        {{"Bad", "News"}, 0.5842, 0.6, 0.7713, 0.7061, 2},
        {{"Money", nullptr}, 0.2287, 0.73, 0.7713, 0.78, 1},
        {{"Tokens", nullptr}, 0.2287, 0.52, 0.7713, 0.57, 1},
    };
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        const QList<PageMark> marks = Paint({.scale = scale});
        EXPECT_EQ(TextsOf(marks).count(QStringLiteral("News")), 2);
        for (const auto& label : told) {
            const int deep = Nearest(label.y2 * scale) - Nearest(label.y1 * scale);
            ToldText text{.face = &Face("Arial", false, true),
                          .x = (label.x1 + label.x2) / 2 * scale,
                          .y = label.y1 * scale,
                          .height = double(Nearest(deep / double(label.rows) * 0.9))};
            for (const char* line : label.line) {
                if (!line) continue;
                text.sText = QString::fromLatin1(line);
                ExpectText(marks, text);
                text.y += text.height;
            }
        }
    }
}

TEST_F(BoardCenterTest, TitlesStandInTheirOwnFontsAtTheirPlaces) {
    const struct {
        const char* text;
        const char* shown;
        double x, y, height;
        const KnownFace& face;
        double width;
    } told[] = {
        {"TAVLO", "TAVLO", kTitleX1 + 0.7556 * kTitleW, kTitleY1 + 0.333 * kTitleH, 0.333 * kTitleH,
         Face("Courier New", true, false), 0.031},
        {"Our\r\nname", "Our name", kTitleX1 + 0.319 * kTitleW, kTitleY1 + 0.333 * kTitleH, 0.333 * kTitleH,
         Face("Arial", true, true), 0.022},
        {"Below\r\nit", "Below it", 0.5, 0.4, 0.02, Face("Times New Roman", false, true), 0.0093},
    };
    for (int i = 0; i < 3; ++i) {
        SetSpecialText(i, QString::fromLatin1(told[i].text));
        m_CenterText(i).fFontWidth = float(told[i].width);
        CenterTextLook& look = m_CenterLook(i);
        look.sFamily = QString::fromLatin1(told[i].face.family);
        look.bBold = told[i].face.bold;
        look.bItalic = told[i].face.italic;
    }
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        const QList<PageMark> marks = Paint({.scale = scale});
        for (const auto& title : told) {
            ExpectText(marks, {.sText = QString::fromLatin1(title.shown),
                               .face = &title.face,
                               .x = title.x * scale,
                               .y = title.y * scale,
                               .height = double(Nearest(title.height * scale)),
                               .letter = double(Nearest(title.width * scale))});
        }
    }
}

TEST_F(BoardCenterTest, TitlesAreAlignedAsTheirRecordsSay) {
    SetSpecialText(2, QStringLiteral("Below"));
    for (const char align : {'L', 'R'}) {
        m_CenterLook(2).sAlign = QString(QLatin1Char(align));
        ExpectText(Paint(), {.sText = QStringLiteral("Below"),
                             .face = &Face("Times New Roman", false, true),
                             .x = 0.5 * kScale,
                             .y = 0.4 * kScale,
                             .align = align,
                             .height = 0.02 * kScale,
                             .letter = 0.01 * kScale});
    }
}

// Each cell once in the upper strip and once, from the other end, in the lower one; each column's cells at its side.
TEST_F(BoardCenterTest, CellsOfTheTitleBoxHaveTheirPlacesAndColors) {
    for (int i = 0; i < kStripCells; ++i)
        m_lStripColor(i) = i % 5 == 3 ? Color::None() : StripColor(i);
    for (int i = 0; i < kColumnCells; ++i) {
        m_lColumnColorA(i) = i == 2 ? Color::None() : ColumnColorA(i);
        m_lColumnColorB(i) = i == 2 ? Color::None() : ColumnColorB(i);
    }
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        const QList<PageMark> areas = Only(Paint({.scale = scale}), PageMark::Kind::Area);
        const auto expectCell = [&](Color color, int which, double x1, double y1, double x2, double y2, int number) {
            QList<PageMark> found = OfColor(areas, ToQt(color));
            // Each cell is a filling and the frame round it.
            ASSERT_EQ(found.size() % 2, 0) << number;
            ASSERT_GT(found.size(), 2 * which + 1) << number;
            const double tolerance = 1e-4 * scale;
            EXPECT_NEAR(found[2 * which + 1].Box().left(), x1 * scale, 0.5 + tolerance) << number;
            EXPECT_NEAR(found[2 * which + 1].Box().top(), y1 * scale, 0.5 + tolerance) << number;
            EXPECT_NEAR(found[2 * which + 1].Box().right(), x2 * scale, 0.5 + tolerance) << number;
            EXPECT_NEAR(found[2 * which + 1].Box().bottom(), y2 * scale, 0.5 + tolerance) << number;
        };
        for (int i = 0; i < kStripCells; ++i) {
            if (i % 5 == 3) continue;
            const double a = StripFromLeft(i);
            const double b = StripFromRight(i);
            expectCell(StripColor(i), 0, a, kT0, a + kStrip, kT1, i);
            expectCell(StripColor(i), 1, b - kStrip, kB0, b, kB1, i);
        }
        for (const int i : {0, 1, 3, 4}) {
            const double y = ColumnFrom(i);
            expectCell(ColumnColorA(i), 0, kL0, y, kL1, y + kColumn, 100 + i);
            expectCell(ColumnColorB(i), 0, kR0, y, kR1, y + kColumn, 200 + i);
        }
    }
}

TEST_F(BoardCenterTest, GridOfTheTitleBoxIsComplete) {
    const auto toldLines = [] {
        QList<QLineF> lines;
        for (int i = 1; i <= 31; ++i) {
            lines << QLineF(StripFromLeft(i), kTitleY1, StripFromLeft(i), kT1);
            lines << QLineF(StripFromLeft(i), kB0, StripFromLeft(i), kTitleY2);
        }
        for (int i = 1; i <= 4; ++i) {
            lines << QLineF(kTitleX1, ColumnFrom(i), kL1, ColumnFrom(i));
            lines << QLineF(kR0, ColumnFrom(i), kTitleX2, ColumnFrom(i));
        }
        lines << QLineF(kTitleX1, kT1, kTitleX2, kT1) << QLineF(kTitleX1, kB0, kTitleX2, kB0);
        lines << QLineF(kL1, kTitleY1, kL1, kTitleY2) << QLineF(kR0, kTitleY1, kR0, kTitleY2);
        return lines;
    }();
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        QList<PageMark> lines = Only(Paint({.scale = scale}), PageMark::Kind::Line);
        // The outlines of the corners are lines too.
        lines.removeIf([](const PageMark& mark) { return mark.points.size() != 2; });
        ASSERT_EQ(lines.size(), toldLines.size());
        for (const QLineF& told : toldLines) {
            const QRectF box = QRectF(told.p1() * scale, told.p2() * scale);
            const auto found = std::find_if(lines.begin(), lines.end(), [&box](const PageMark& mark) {
                // Half a unit for the rounding, half a unit for the middle of the pen.
                const QRectF at = mark.Box();
                return std::abs(at.left() - box.left()) < 1.1 && std::abs(at.top() - box.top()) < 1.1 &&
                       std::abs(at.right() - box.right()) < 1.1 && std::abs(at.bottom() - box.bottom()) < 1.1;
            });
            ASSERT_NE(found, lines.end()) << told.x1() << ' ' << told.y1();
            EXPECT_EQ(found->color, QColor(Qt::black));
            EXPECT_NEAR(found->pen, 1, 0.001);
            lines.erase(found);
        }
    }
}

TEST_F(BoardCenterTest, SideNamesAreBoldInTheirOwnColorsAlongTheirSides) {
    const struct {
        const char* name;
        double x, y;
        int angle;
        Color color;
    } told[] = {
        {"Southern", 0.5, 0.8098, 0, Color::Rgb(250, 240, 10)},
        {"Western", 0.1902, 0.5, 2700, Color::Rgb(10, 20, 90)},
        {"Northern", 0.5, 0.1902, 1800, Color::Rgb(230, 250, 255)},
        {"Eastern", 0.8098, 0.5, 900, Color::Rgb(255, 230, 250)},
    };
    for (int i = 0; i < 4; ++i) {
        SetSideText(i, QString::fromLatin1(told[i].name));
        m_SideRec(i).lText = told[i].color;
    }
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        const QList<PageMark> marks = Paint({.scale = scale});
        for (const auto& side : told) {
            ExpectText(marks, {.sText = QString::fromLatin1(side.name),
                               .face = &Face("Arial", true, false),
                               .x = side.x * scale,
                               .y = side.y * scale,
                               .height = double(Nearest(0.019 * scale)),
                               .letter = double(Nearest(0.016 * scale)),
                               .angle = side.angle,
                               .color = ToQt(side.color)});
        }
    }
}

} // namespace
