// SPDX-License-Identifier: MIT
#include "platform/text/Numbers.h"
#include "support/BoardFixture.h"

using namespace basPosit;

namespace {

class GeometryTest : public BoardTest {
protected:
    GeometryTest() { PosInit(); }
    static void ExpectRect(const BoardRect& rect, float x1, float y1, float x2, float y2, const char* what) {
        constexpr float kNear = 1e-6F;
        EXPECT_NEAR(rect.x1, x1, kNear) << what;
        EXPECT_NEAR(rect.y1, y1, kNear) << what;
        EXPECT_NEAR(rect.x2, x2, kNear) << what;
        EXPECT_NEAR(rect.y2, y2, kNear) << what;
    }
    static int WidthOf(const QString& text, int h, int w) {
        basDraw::Draw_SetFont(QStringLiteral("Arial"), h, w, 0, 0, false, false, false);
        const int width = basDraw::Draw_GetWidth(text);
        basDraw::Draw_ReleaseObjects();
        return width;
    }
    const QString arial = QStringLiteral("Arial");
};

TEST_F(GeometryTest, Edge_LastSpaceOfASideLeavesASliverToTheCorner) {
    EXPECT_NEAR(m_SpaceRect(6, SpacePart::Whole).x1, 0.2019F, 1e-6F);
    EXPECT_NEAR(m_SpaceRect(20, SpacePart::Whole).x2, 0.7981F, 1e-6F);
    EXPECT_FLOAT_EQ(m_CornerPoly(1)[4].x, 0.2017F);
    EXPECT_FLOAT_EQ(m_CornerPoly(3)[4].x, 0.7983F);
}

TEST_F(GeometryTest, Edge_ComputeSizeOfNoLinesIsTheHeightAndOfEmptyLinesHalfOfIt) {
    EXPECT_EQ(Pos_ComputeSize(arial, false, false, {}, 0, 100, 81), 81);
    EXPECT_EQ(Pos_ComputeSize(arial, false, false, {QString(), QString()}, 2, 100, 81), 40);
    EXPECT_EQ(Pos_ComputeSize(arial, false, false, {QString()}, 1, 100, 83), 42);
}

TEST_F(GeometryTest, Edge_ComputeSizeIsNeverBelowTwo) {
    EXPECT_EQ(Pos_ComputeSize(arial, false, false, {QString(500, u'W')}, 1, 10, 80), 2);
    EXPECT_EQ(Pos_ComputeSize(arial, false, false, {QStringLiteral("x")}, 1, 100, 1), 2);
    EXPECT_EQ(Pos_ComputeSize(arial, false, false, QStringList(10, QStringLiteral("x")), 10, 100, 5), 2);
}

TEST_F(GeometryTest, Edge_NegativeLimitMayWidenATextAndAPositiveOneNever) {
    const QString text = QStringLiteral("TAVLO");
    const int natural = WidthOf(text, 40, 20);
    const int stretched = Pos_ComputeSetWidth(arial, false, false, 40, text, -2 * natural);
    EXPECT_NEAR(WidthOf(text, 40, stretched), 2 * natural, 4);
    EXPECT_EQ(Pos_ComputeSetWidth(arial, false, false, 40, text, 2 * natural), 20);
    const int squeezed = Pos_ComputeSetWidth(arial, false, false, 40, text, natural / 2);
    EXPECT_LT(squeezed, 20);
    EXPECT_LE(WidthOf(text, 40, squeezed), natural / 2 + 1);
}

TEST_F(GeometryTest, Edge_AtTheInitialScaleEveryCoordinateIsZeroOrOne) {
    EXPECT_EQ(PosX(0.4F), 0);
    EXPECT_EQ(PosX(0.6F), 1);
    // What lies left of the middle or above it is at 0, all else at 1.
    const auto expect = [](float f) {
        EXPECT_EQ(PosX(f), f < 0.5F ? 0 : 1) << f;
        EXPECT_EQ(PosY(f), f < 0.5F ? 0 : 1) << f;
    };
    for (int iSpace = 0; iSpace < 28; ++iSpace) {
        for (const SpacePart part : {SpacePart::Whole, SpacePart::Band}) {
            const BoardRect& rect = m_SpaceRect(iSpace, part);
            for (const float f : {rect.x1, rect.y1, rect.x2, rect.y2})
                expect(f);
        }
    }
    for (int iCorner = 0; iCorner < 4; ++iCorner) {
        for (const auto& point : m_CornerPoly(iCorner)) {
            expect(point.x);
            expect(point.y);
        }
    }
}

TEST_F(GeometryTest, SpacesLieWhereTheTableSays) {
    ExpectRect(m_SpaceRect(0, SpacePart::Whole), 0.7131F, 0.8295F, 0.7983F, 0.9751F, "first of the bottom");
    ExpectRect(m_SpaceRect(7, SpacePart::Whole), 0.0249F, 0.7131F, 0.1705F, 0.7983F, "first of the left");
    ExpectRect(m_SpaceRect(14, SpacePart::Whole), 0.2017F, 0.0249F, 0.2869F, 0.1705F, "first of the top");
    ExpectRect(m_SpaceRect(21, SpacePart::Whole), 0.8295F, 0.2017F, 0.9751F, 0.2869F, "first of the right");
    for (int i = 0; i < 7; ++i) {
        const float high = 0.7983F - 0.0852F * float(i);
        const float low = 0.2017F + 0.0852F * float(i);
        ExpectRect(m_SpaceRect(i, SpacePart::Whole), high - 0.0852F, 0.8295F, high, 0.9751F, "bottom");
        ExpectRect(m_SpaceRect(7 + i, SpacePart::Whole), 0.0249F, high - 0.0852F, 0.1705F, high, "left");
        ExpectRect(m_SpaceRect(14 + i, SpacePart::Whole), low, 0.0249F, low + 0.0852F, 0.1705F, "top");
        ExpectRect(m_SpaceRect(21 + i, SpacePart::Whole), 0.8295F, low, 0.9751F, low + 0.0852F, "right");
    }
    ExpectRect(m_SpaceRect(0, SpacePart::Band), 0.7131F, 0.8295F, 0.7983F, 0.8503F, "band of the bottom");
    ExpectRect(m_SpaceRect(7, SpacePart::Band), 0.1497F, 0.7131F, 0.1705F, 0.7983F, "band of the left");
    ExpectRect(m_SpaceRect(14, SpacePart::Band), 0.2017F, 0.1497F, 0.2869F, 0.1705F, "band of the top");
    ExpectRect(m_SpaceRect(21, SpacePart::Band), 0.8295F, 0.2017F, 0.8503F, 0.2869F, "band of the right");
}

TEST_F(GeometryTest, ImagesOfSpacesLieTowardsTheOuterEdge) {
    const struct {
        int iSpace;
        float x;
        float y;
    } rows[] = {{0, 0.72605F, 0.8534F}, {7, 0.0873F, 0.72605F}, {14, 0.21465F, 0.0873F}, {21, 0.8534F, 0.21465F}};
    for (const auto& row : rows) {
        const C_Image& image = basTAVL::g_oSpaces(row.iSpace).Image;
        EXPECT_NEAR(image.X, row.x, 1e-6F) << row.iSpace;
        EXPECT_NEAR(image.Y, row.y, 1e-6F) << row.iSpace;
        EXPECT_FLOAT_EQ(image.W, 0.0593F);
        EXPECT_FLOAT_EQ(image.H, 0.0593F);
    }
}

TEST_F(GeometryTest, SpacesHaveTheirKindAndColours) {
    const Color none = Color::None();
    const Color white = Color::White();
    const Color black = Color::Black();
    const struct {
        std::vector<int> spaces;
        const char* type;
        Color space;
        Color cost;
    } rows[] = {
        {{0, 2}, "P", Color::Rgb(0, 128, 0), white},
        {{4, 5, 6}, "P", Color::Rgb(192, 0, 96), white},
        {{7, 8, 9}, "P", Color::Rgb(255, 128, 0), white},
        {{11, 12, 13}, "P", Color::Rgb(0, 70, 127), white},
        {{14, 15, 16}, "P", Color::Rgb(255, 255, 0), black},
        {{18, 19, 20}, "P", Color::Rgb(221, 19, 223), white},
        {{21, 22, 23}, "P", Color::Rgb(0, 147, 221), black},
        {{25, 27}, "P", Color::Rgb(255, 0, 0), white},
        {{1, 26}, "U", none, black},
        {{3, 17}, "N    'News", none, black},
        {{10, 24}, "L", black, Color::Rgb(255, 255, 0)},
    };
    int seen = 0;
    for (const auto& row : rows) {
        for (const int i : row.spaces) {
            const C_Space& space = basTAVL::g_oSpaces(i);
            EXPECT_EQ(space.SpaceType, QString::fromLatin1(row.type)) << i;
            EXPECT_EQ(space.SpaceColor, row.space) << i;
            EXPECT_EQ(space.CostColor, row.cost) << i;
            ++seen;
        }
    }
    EXPECT_EQ(seen, 28);
    EXPECT_EQ(basTAVL::g_oSpaces(10).Cost, QStringLiteral("PLAY LOTTO"));
    EXPECT_EQ(basTAVL::g_oSpaces(24).Cost, QStringLiteral("PLAY LOTTO"));
}

TEST_F(GeometryTest, SideBandsLieInsideTheSpaces) {
    const struct {
        float x1, y1, x2, y2, anchorX, anchorY;
        int iGroup;
        Color text;
    } rows[] = {
        {0.2017F, 0.8087F, 0.7983F, 0.8295F, 0.5F, 0.8098F, 7, Color::White()},
        {0.1705F, 0.2017F, 0.1913F, 0.7983F, 0.1902F, 0.5F, 4, Color::Black()},
        {0.2017F, 0.1705F, 0.7983F, 0.1913F, 0.5F, 0.1902F, 2, Color::White()},
        {0.8087F, 0.2017F, 0.8295F, 0.7983F, 0.8098F, 0.5F, 1, Color::White()},
    };
    for (int i = 0; i < 4; ++i) {
        const SideRecord& side = m_SideRec(i);
        ExpectRect(side.rect, rows[i].x1, rows[i].y1, rows[i].x2, rows[i].y2, "side");
        EXPECT_NEAR(side.anchor.x, rows[i].anchorX, 1e-6F) << i;
        EXPECT_NEAR(side.anchor.y, rows[i].anchorY, 1e-6F) << i;
        EXPECT_EQ(side.lFill, m_lPropColor(rows[i].iGroup)) << i;
        EXPECT_EQ(side.lText, rows[i].text) << i;
    }
}

TEST_F(GeometryTest, CornersHaveTheirImagesAndAnchors) {
    const struct {
        float x, y, size, textX, textY;
    } rows[] = {{0.8087F, 0.8087F, 0.0884F, 0.8867F, 0.8867F},
                {0.1029F, 0.8087F, 0.0884F, 0.1133F, 0.8867F},
                {0.1029F, 0.1029F, 0.0884F, 0.1133F, 0.1133F},
                {0.8037F, 0.0279F, 0.1684F, 0.84F, 0.16F}};
    for (int i = 0; i < 4; ++i) {
        const C_Corner& corner = basTAVL::g_oCorners(i);
        EXPECT_FLOAT_EQ(corner.Image.X, rows[i].x) << i;
        EXPECT_FLOAT_EQ(corner.Image.Y, rows[i].y) << i;
        EXPECT_FLOAT_EQ(corner.Image.W, rows[i].size) << i;
        EXPECT_FLOAT_EQ(corner.Image.H, rows[i].size) << i;
        EXPECT_FLOAT_EQ(corner.X, rows[i].textX) << i;
        EXPECT_FLOAT_EQ(corner.Y, rows[i].textY) << i;
    }
}

TEST_F(GeometryTest, CornersAreSquaresWithTheirInnerTipCutOff) {
    const float points[4][5][2] = {
        {{0.9751F, 0.9751F}, {0.7983F, 0.9751F}, {0.7983F, 0.8087F}, {0.8087F, 0.7983F}, {0.9751F, 0.7983F}},
        {{0.0249F, 0.9751F}, {0.0249F, 0.7983F}, {0.1913F, 0.7983F}, {0.2017F, 0.8087F}, {0.2017F, 0.9751F}},
        {{0.0249F, 0.0249F}, {0.2017F, 0.0249F}, {0.2017F, 0.1913F}, {0.1913F, 0.2017F}, {0.0249F, 0.2017F}},
        {{0.9751F, 0.0249F}, {0.9751F, 0.2017F}, {0.8087F, 0.2017F}, {0.7983F, 0.1913F}, {0.7983F, 0.0249F}},
    };
    for (int corner = 0; corner < 4; ++corner) {
        for (int i = 0; i < 5; ++i) {
            EXPECT_FLOAT_EQ(m_CornerPoly(corner)[size_t(i)].x, points[corner][i][0]) << corner << ' ' << i;
            EXPECT_FLOAT_EQ(m_CornerPoly(corner)[size_t(i)].y, points[corner][i][1]) << corner << ' ' << i;
        }
    }
}

TEST_F(GeometryTest, CentreBoxesLieWhereTheTableSays) {
    ExpectRect(m_CenterRect(0), 0.1705F, 0.1705F, 0.8295F, 0.8295F, "panel");
    ExpectRect(m_CenterRect(1), 0.2204F, 0.2473F, 0.7775F, 0.3712F, "title");
    ExpectRect(m_CenterRect(2), 0.3015F, 0.3928F, 0.7006F, 0.4219F, "subtitle");
    ExpectRect(m_CenterRect(3), 0.2287F, 0.6F, 0.4158F, 0.7061F, "good news");
    ExpectRect(m_CenterRect(4), 0.5842F, 0.6F, 0.7713F, 0.7061F, "bad news");
    ExpectRect(m_CenterRect(5), 0.2287F, 0.73F, 0.7713F, 0.78F, "money");
    ExpectRect(m_CenterRect(6), 0.2287F, 0.52F, 0.7713F, 0.57F, "tokens");
}

TEST_F(GeometryTest, SpecialTextsStartWithTheirLook) {
    const float w = 0.7775F - 0.2204F;
    const float h = 0.3712F - 0.2473F;
    const CenterTextLook& word = m_CenterLook(0);
    EXPECT_EQ(word.sFamily, QStringLiteral("Arial"));
    EXPECT_NEAR(word.fFontHeight, 0.333F * h, 1e-6F);
    EXPECT_NEAR(word.anchor.x, 0.2204F + 0.7556F * w, 1e-6F);
    EXPECT_NEAR(word.anchor.y, 0.2473F + 0.333F * h, 1e-6F);
    EXPECT_NEAR(word.fWidthLimit, -0.3545F * w, 1e-6F);
    EXPECT_FALSE(word.bItalic);
    EXPECT_NEAR(m_CenterLook(1).anchor.x, 0.2204F + 0.319F * w, 1e-6F);
    EXPECT_EQ(m_CenterLook(1).sFamily, QStringLiteral("Arial"));
    EXPECT_NEAR(m_CenterLook(1).fFontHeight, 0.333F * h, 1e-6F);
    EXPECT_NEAR(m_CenterLook(1).anchor.y, 0.2473F + 0.333F * h, 1e-6F);
    EXPECT_NEAR(m_CenterLook(1).fWidthLimit, -0.49F * w, 1e-6F);
    EXPECT_FALSE(m_CenterLook(1).bItalic);
    EXPECT_FLOAT_EQ(m_CenterLook(2).anchor.x, 0.5F);
    EXPECT_FLOAT_EQ(m_CenterLook(2).anchor.y, 0.4F);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(m_CenterLook(i).sAlign, QStringLiteral("C")) << i;
    EXPECT_EQ(m_CenterLook(2).sFamily, QStringLiteral("Times New Roman"));
    EXPECT_FLOAT_EQ(m_CenterLook(2).fFontHeight, 0.02F);
    EXPECT_FLOAT_EQ(m_CenterLook(2).fWidthLimit, 0.35919F);
    EXPECT_TRUE(m_CenterLook(2).bItalic);
    for (int i = 3; i < 16; ++i)
        EXPECT_FLOAT_EQ(m_CenterLook(i).fFontHeight, 0.01F) << i;
    EXPECT_FLOAT_EQ(m_CenterLook(16).fFontHeight, 0.0F);
}

TEST_F(GeometryTest, TitleBoxCellsHaveTheirColours) {
    const auto groupOf = [](Color color) {
        for (int i = 0; i < 8; ++i) {
            if (m_lPropColor(i) == color) return i;
        }
        return color.IsNone() ? -1 : -2;
    };
    QList<int> strip, a, b;
    for (int i = 0; i < 32; ++i)
        strip.append(groupOf(m_lStripColor(i)));
    for (int i = 0; i < 5; ++i) {
        a.append(groupOf(m_lColumnColorA(i)));
        b.append(groupOf(m_lColumnColorB(i)));
    }
    EXPECT_EQ(strip, (QList<int>{7, 7, 0,  0, 0, -1, 1, 1, 1,  4, 4,  4, -1, 2,  2, 3,
                                 3, 3, -1, 2, 2, 2,  5, 5, -1, 4, -1, 4, 4,  -1, 3, 3}));
    EXPECT_EQ(a, (QList<int>{4, 4, -1, 0, 0}));
    EXPECT_EQ(b, (QList<int>{0, 0, -1, 1, 1}));
}

TEST_F(GeometryTest, ViewMapsFractionsWithHalvesToEven) {
    PosSetScale(960);
    PosSetOffsetX(-100);
    PosSetOffsetY(7);
    EXPECT_EQ(PosX(0.5F), 380);
    EXPECT_EQ(PosY(0.5F), 487);
    EXPECT_EQ(GetOffsetX(), -100);
    EXPECT_EQ(GetOffsetY(), 7);
    PosSetScale(1);
    PosSetOffsetX(0);
    EXPECT_EQ(PosX(0.5F), 0);
    EXPECT_EQ(PosX(1.5F), 2);
    PosInit();
    EXPECT_FLOAT_EQ(GetScale(), 1.0F);
}

TEST_F(GeometryTest, SidesAreFoundFromSpaces) {
    EXPECT_EQ(PosSide(0), 0);
    EXPECT_EQ(PosSide(6), 0);
    EXPECT_EQ(PosSide(7), 1);
    EXPECT_EQ(PosSide(27), 3);
    EXPECT_EQ(ErrorOf([] { PosSide(28); }), ErrNumber::kAssertion);
    EXPECT_EQ(ErrorOf([] { PosSide(-1); }), ErrNumber::kAssertion);
}

TEST_F(GeometryTest, SecondInitKeepsTextsAndFittedWidthsAndResetsTheRest) {
    SetSpecialText(1, QStringLiteral("Family"));
    SetSideText(2, QStringLiteral("Uptown"));
    basTAVL::g_oSpaces(5).Let_TextAll(QStringLiteral("Elm"));
    const float width = m_CenterText(1).fFontWidth;
    const float sideWidth = m_SideRec(2).fFontWidth;
    m_CenterLook(1).bBold = true;
    m_CenterLook(1).sFamily = QStringLiteral("Georgia");
    m_SideRec(2).lFill = Color::Black();
    basTAVL::g_oSpaces(5).SpaceColor = Color::None();
    PosInit();
    EXPECT_EQ(m_CenterText(1).sText, QStringLiteral("Family"));
    EXPECT_EQ(m_CenterText(1).Lines(), QStringList{QStringLiteral("Family")});
    EXPECT_FLOAT_EQ(m_CenterText(1).fFontWidth, width);
    EXPECT_FALSE(m_CenterLook(1).bBold);
    EXPECT_EQ(m_CenterLook(1).sFamily, QStringLiteral("Arial"));
    EXPECT_EQ(m_SideRec(2).sText, QStringLiteral("Uptown"));
    EXPECT_FLOAT_EQ(m_SideRec(2).fFontWidth, sideWidth);
    EXPECT_EQ(m_SideRec(2).lFill, m_lPropColor(2));
    EXPECT_EQ(basTAVL::g_oSpaces(5).SpaceColor, m_lPropColor(1));
    EXPECT_EQ(basTAVL::g_oSpaces(5).TextAll(), QStringLiteral("Elm"));
}

TEST_F(GeometryTest, ComputeSizeFillsTheBoxAndNeverPassesItsWidth) {
    EXPECT_EQ(Pos_ComputeSize(arial, false, false, {QStringLiteral("i"), QStringLiteral("i")}, 2, 500, 81), 40);
    const QStringList lines{QStringLiteral("Elm"), QStringLiteral("Chestnut Street"), QStringLiteral("x")};
    const int h = Pos_ComputeSize(arial, false, false, lines, 3, 100, 120);
    EXPECT_LT(h, 40);
    EXPECT_GT(h, 2);
    EXPECT_LE(WidthOf(lines[1], h, CLng(h / 2.0)), 100);
    EXPECT_GT(WidthOf(lines[1], h + 2, CLng((h + 2) / 2.0)), 100);
}

// Letters that are all equally wide, half their height: worked out by hand.
TEST_F(GeometryTest, ComputeSizeGivesTheLargestHeightThatFits) {
    const struct {
        QList<int> letters;
        int maxWidth, maxHeight, height;
    } rows[] = {
        // 90 wide; 120 wide, and at 50 just 100; at 27 letters are 14 wide, which is 1 too much.
        {{3}, 100, 60, 60},       {{4}, 100, 60, 50},    {{4}, 55, 60, 26},    {{7}, 100, 60, 28},
        {{5}, 62, 60, 24},        {{3, 4}, 55, 80, 26},  {{4, 3}, 55, 80, 26}, {{1, 1}, 100, 81, 40},
        {{1, 2, 1}, 100, 81, 27}, {{0, 0}, 100, 83, 42}, {{40}, 30, 50, 2},
    };
    for (const auto& row : rows) {
        QStringList lines;
        for (const int count : row.letters)
            lines.append(QString(count, u'm'));
        EXPECT_EQ(Pos_ComputeSize(QStringLiteral("Courier New"), false, false, lines, int(lines.size()), row.maxWidth,
                                  row.maxHeight),
                  row.height)
            << row.letters.first() << " in " << row.maxWidth;
    }
}

// A height of 40 starts with letters 20 wide, so that the text is 100 wide.
TEST_F(GeometryTest, ComputeSetWidthMeetsItsLimit) {
    const struct {
        int limit, width;
    } rows[] = {{100, 20}, {99, 19}, {60, 12}, {1, 0}, {500, 20}, {0, 0}, {-60, 12}, {-57, 11}, {-58, 12}, {-150, 30}};
    for (const auto& row : rows) {
        EXPECT_EQ(
            Pos_ComputeSetWidth(QStringLiteral("Courier New"), false, false, 40, QStringLiteral("mmmmm"), row.limit),
            row.width)
            << row.limit;
    }
}

// At letters 20 wide on average the words are 50, 58, 83, 69 and 78 wide.
TEST_F(GeometryTest, TextsAreMeasuredInTheirTypefaceWeightAndSlant) {
    const struct {
        const char* family;
        bool bold, italic;
        const char* word;
        int width, height;
    } rows[] = {
        {"Arial", false, false, "iiiii", 80, 63},           {"Arial", true, false, "iiiii", 69, 54},
        {"Times New Roman", false, false, "fffff", 48, 38}, {"Times New Roman", false, true, "fffff", 58, 46},
        {"Times New Roman", true, false, "fffff", 51, 41},
    };
    for (const auto& row : rows) {
        const QString family = QString::fromLatin1(row.family);
        const QString word = QString::fromLatin1(row.word);
        EXPECT_EQ(Pos_ComputeSetWidth(family, row.bold, row.italic, 40, word, -200), row.width) << row.width;
        EXPECT_EQ(Pos_ComputeSize(family, row.bold, row.italic, {word}, 1, 80, 100), row.height) << row.width;
    }
}

TEST_F(GeometryTest, ComputeSetWidthOfNoHeightIsZeroAndOfNoWidthIsNatural) {
    EXPECT_EQ(Pos_ComputeSetWidth(arial, false, false, 0, QStringLiteral("x"), 10), 0);
    EXPECT_EQ(Pos_ComputeSetWidth(arial, false, false, 40, QString(), -10), 20);
}

} // namespace
