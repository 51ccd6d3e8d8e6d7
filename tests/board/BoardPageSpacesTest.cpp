// SPDX-License-Identifier: MIT
#include "board/basPositPaint.h"
#include "support/BoardPage.h"

#include <functional>

using namespace basPosit;
using namespace basTAVL;

namespace {

constexpr int kScales[] = {4800, 4777, 2999};
constexpr double kInner0 = 0.8295;
constexpr double kInner1 = 0.1705;
constexpr double kOuter0 = 0.9751;
constexpr double kBand = 0.0208;
constexpr int kSideAngle[] = {0, 2700, 1800, 900};
const QColor kMagic(224, 255, 224);

struct Box {
    double x1, y1, x2, y2;
};

class BoardSpacesTest : public BoardPageTest {
protected:
    // From so far to so far across the side, counted from the inner edge, and along it over the space.
    static Box Part(int iSpace, double from, double to) {
        const int along = iSpace % kPerSide;
        const double x = iSpace / kPerSide < 2 ? 0.7983 - (along + 1) * kPitch : 0.2017 + along * kPitch;
        switch (iSpace / kPerSide) {
            case 0:
                return {x, kInner0 + from, x + kPitch, kInner0 + to};
            case 1:
                return {kInner1 - to, x, kInner1 - from, x + kPitch};
            case 2:
                return {x, kInner1 - to, x + kPitch, kInner1 - from};
            default:
                return {kInner0 + from, x, kInner0 + to, x + kPitch};
        }
    }
    static Box Whole(int iSpace) { return Part(iSpace, 0, kOuter0 - kInner0); }

    // The middle of a space at some distance from its inner edge.
    static QPointF Across(int iSpace, double distance, int scale) {
        const Box line = Part(iSpace, distance, distance);
        return QPointF((line.x1 + line.x2) / 2, (line.y1 + line.y2) / 2) * scale;
    }
    static QPointF OneLineOn(int iSpace, double height) {
        constexpr double kX[] = {0, -1, 0, 1};
        constexpr double kY[] = {1, 0, -1, 0};
        return {kX[iSpace / kPerSide] * height, kY[iSpace / kPerSide] * height};
    }
    static bool IsLottoSpace(int iSpace) { return iSpace == 10 || iSpace == 24; }
    static double SizeOf(int iSpace) { return 0.010 + 0.0003 * iSpace; }

    static void ExpectSpaceText(const QList<PageMark>& marks, int iSpace, int scale, double size) {
        const double depth = HasPicture(iSpace) ? 0.0593 : 0.1186;
        const double start = HasPicture(iSpace) ? 0.0763 : 0.017;
        const int height = Lower(size * scale * 0.95);
        QPointF at = Across(iSpace, (depth - LinesOf(iSpace) * size) / 2 + start, scale);
        for (int iLine = 0; iLine < LinesOf(iSpace); ++iLine) {
            ExpectText(marks, {.sText = LineOf(iSpace, iLine),
                               .face = &FaceOf(iSpace),
                               .x = at.x(),
                               .y = at.y(),
                               .height = double(height),
                               .letter = double(Nearest(height * 0.5)),
                               .angle = kSideAngle[iSpace / kPerSide]});
            at += OneLineOn(iSpace, height);
        }
    }
};

TEST_F(BoardSpacesTest, SpacesAndTheirBandsAreFilledWithTheirColors) {
    MakeGame();
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        QList<PageMark> areas = Only(Paint({.scale = scale}), PageMark::Kind::Area);
        const double half = Nearest(0.0031 * scale) % 2 == 1 ? 0.5 : 0;
        const auto has = [&](QColor color, int x1, int y1, int x2, int y2) {
            for (const PageMark& area : OfColor(areas, color)) {
                const QRectF box(QPointF(x1 + half, y1 + half), QPointF(x2 - 1 + half, y2 - 1 + half));
                if ((area.Box().topLeft() - box.topLeft()).manhattanLength() < 0.01 &&
                    (area.Box().bottomRight() - box.bottomRight()).manhattanLength() < 0.01)
                    return true;
            }
            return false;
        };
        for (int i = 0; i < kSpaces; ++i) {
            const Box whole = Whole(i);
            EXPECT_TRUE(has(kMagic, Nearest(whole.x1 * scale), Nearest(whole.y1 * scale), Nearest(whole.x2 * scale),
                            Nearest(whole.y2 * scale)))
                << i << " at " << scale;
            const Box band = Part(i, 0, kBand);
            const bool colored = i != 1 && i != 3 && i != 17 && i != 26;
            // One unit further out to the right and below.
            EXPECT_EQ(has(BandColor(i), Nearest(band.x1 * scale), Nearest(band.y1 * scale),
                          Nearest(band.x2 * scale + 1), Nearest(band.y2 * scale + 1)),
                      colored)
                << i << " at " << scale;
        }
    }
}

TEST_F(BoardSpacesTest, CornersAreFilledPolygonsOfTheBoardsPen) {
    const double told[4][5][2] = {
        {{0.9751, 0.9751}, {0.7983, 0.9751}, {0.7983, 0.8087}, {0.8087, 0.7983}, {0.9751, 0.7983}},
        {{0.0249, 0.9751}, {0.0249, 0.7983}, {0.1913, 0.7983}, {0.2017, 0.8087}, {0.2017, 0.9751}},
        {{0.0249, 0.0249}, {0.2017, 0.0249}, {0.2017, 0.1913}, {0.1913, 0.2017}, {0.0249, 0.2017}},
        {{0.9751, 0.0249}, {0.9751, 0.2017}, {0.8087, 0.2017}, {0.7983, 0.1913}, {0.7983, 0.0249}},
    };
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        const QList<PageMark> marks = Paint({.scale = scale});
        const double half = Nearest(0.0031 * scale) % 2 == 1 ? 0.5 : 0;
        QList<PageMark> outlines = Only(marks, PageMark::Kind::Line);
        outlines.removeIf([](const PageMark& mark) { return mark.points.size() < 5; });
        ASSERT_EQ(outlines.size(), 4);
        for (int corner = 0; corner < 4; ++corner) {
            EXPECT_NEAR(outlines[corner].pen, Nearest(0.0031 * scale), 0.001);
            EXPECT_EQ(outlines[corner].color, QColor(Qt::black));
            for (int i = 0; i < 5; ++i) {
                EXPECT_NEAR(outlines[corner].points[i].x(), Nearest(told[corner][i][0] * scale) + half, 0.01) << i;
                EXPECT_NEAR(outlines[corner].points[i].y(), Nearest(told[corner][i][1] * scale) + half, 0.01) << i;
            }
            QList<PageMark> fillings = OfColor(Only(marks, PageMark::Kind::Area), kMagic);
            fillings.removeIf([&](const PageMark& mark) { return mark.points != outlines[corner].points; });
            EXPECT_EQ(fillings.size(), 1) << corner;
        }
    }
}

TEST_F(BoardSpacesTest, CostsStandUnderTheInnerEdgeInTheMiddleOfTheirSpaces) {
    MakeGame();
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        const QList<PageMark> marks = Paint({.scale = scale});
        const int height = Nearest(0.012 * scale);
        for (int i = 0; i < kSpaces; ++i) {
            if (i == 3 || i == 17) continue; // news have no price
            const QPointF at = Across(i, 0.005, scale);
            ExpectText(marks, {.sText = IsLottoSpace(i) ? QStringLiteral("PLAY LOTTO")
                                                        : QStringLiteral("$%1").arg(1000 + 100 * i).insert(2, u','),
                               .face = &Face("Arial", false, false),
                               .x = at.x(),
                               .y = at.y(),
                               .height = double(height),
                               .letter = double(Nearest(height * 0.5)),
                               .angle = kSideAngle[i / kPerSide],
                               .color = CostColor(i)});
        }
    }
}

TEST_F(BoardSpacesTest, TextsOfSpacesStandInTheMiddleOfTheirPartOfTheDepth) {
    MakeGame();
    for (const int scale : kScales) {
        SCOPED_TRACE(scale);
        const QList<PageMark> marks = Paint({.scale = scale});
        for (int i = 0; i < kSpaces; ++i) {
            if (!IsLottoSpace(i)) ExpectSpaceText(marks, i, scale, SizeOf(i));
        }
        for (const int i : {10, 24})
            EXPECT_FALSE(TextsOf(marks).contains(LineOf(i, 0))) << i;
    }
}

TEST_F(BoardSpacesTest, FontsSizeCapsTheTextOfASpace) {
    MakeGame();
    g_oSpaces(5).Font.Size = 7.5F;
    ExpectSpaceText(Paint(), 5, kScale, 0.0075);
}

TEST_F(BoardSpacesTest, CornersShowTheirFirstBlockAlongTheDiagonal) {
    MakeGame();
    const struct {
        double x, y;
        int angle;
        QPointF lineOn;
    } told[] = {
        {0.8867, 0.8867, 450, {1, 1}},
        {0.1133, 0.8867, 3150, {-1, 1}},
        {0.1133, 0.1133, 2250, {-1, -1}},
        {0.84, 0.16, 1350, {1, -1}},
    };
    for (const char* version : {"2", "5"}) {
        Let_g_sGameVersion(QString::fromLatin1(version));
        const QList<PageMark> marks = Paint();
        for (int i = 0; i < 4; ++i) {
            if (i == 3 && g_sGameVersion() == QStringLiteral("5")) {
                EXPECT_FALSE(TextsOf(marks).contains(QStringLiteral("Corner 3a")));
                continue;
            }
            const int height = Lower((0.02 + 0.001 * i) * kScale * 0.95);
            ToldText text{.sText = QStringLiteral("Corner %1a").arg(i),
                          .face = &FaceOf(i + 3),
                          .x = told[i].x * kScale,
                          .y = told[i].y * kScale,
                          .height = double(height),
                          .letter = double(Nearest(height * 0.5)),
                          .angle = told[i].angle};
            ExpectText(marks, text);
            text.sText = QStringLiteral("Corner %1b").arg(i);
            text.x += told[i].lineOn.x() * height * 0.70711;
            text.y += told[i].lineOn.y() * height * 0.70711;
            ExpectText(marks, text);
            EXPECT_FALSE(TextsOf(marks).contains(QStringLiteral("Other %1").arg(i)));
        }
    }
}

// On a board of 4800 units, worked out by hand: the letters' heights are 57, 43 and 38, their widths 19, 13 and 16.
TEST_F(BoardSpacesTest, Edge_LottoSpaceShowsBandCostAndPanelButNeverItsOwnText) {
    MakeGame();
    for (const int i : {10, 24})
        g_oSpaces(i).Image.Let_FullPath(PictureOf(PictureColor(i), QStringLiteral("lotto%1.bmp").arg(i)));
    struct Line {
        const char* text;
        double x;
        char align;
        int height;
        int letter;
        bool bold;
    };
    const struct {
        int angle;
        double y;
        double yAnswers;
        double x[10];
    } sides[] = {
        {2700, 2215, 2583, {679, 593, 550, 507, 421, 383, 345, 307, 269, 231}},
        {900, 2584, 2216, {4121, 4207, 4250, 4293, 4379, 4417, 4455, 4493, 4531, 4569}},
    };
    const QList<PageMark> marks = Paint();
    for (const auto& side : sides) {
        const Line told[] = {
            {"PLACE YOUR BET", side.x[0], 'L', 57, 19, true},
            {"You have one chance to", side.x[1], 'L', 43, 13, false},
            {"roll the same number you", side.x[2], 'L', 43, 13, false},
            {"just rolled to win...", side.x[3], 'L', 43, 13, false},
            {"#2 or #12 pays", side.x[4], 'L', 38, 16, true},
            {"#3 or #11 pays", side.x[5], 'L', 38, 16, true},
            {"#4 or #10 pays", side.x[6], 'L', 38, 16, true},
            {"#5 or #9 pays", side.x[7], 'L', 38, 16, true},
            {"#6 or #8 pays", side.x[8], 'L', 38, 16, true},
            {"#7 pays", side.x[9], 'L', 38, 16, true},
            {"30 to 1", side.x[4], 'R', 38, 16, true},
            {"18 to 1", side.x[5], 'R', 38, 16, true},
            {"8 to 1", side.x[6], 'R', 38, 16, true},
            {"8 to 1", side.x[7], 'R', 38, 16, true},
            {"6 to 1", side.x[8], 'R', 38, 16, true},
            {"5 to 1", side.x[9], 'R', 38, 16, true},
        };
        for (const Line& line : told) {
            ExpectText(marks, {.sText = QString::fromLatin1(line.text),
                               .face = &Face("Arial", line.bold, false),
                               .x = line.x,
                               .y = line.align == 'R' ? side.yAnswers : side.y,
                               .align = line.align,
                               .height = double(line.height),
                               .letter = double(line.letter),
                               .angle = side.angle});
        }
    }
    const QStringList texts = TextsOf(marks);
    EXPECT_EQ(texts.count(QStringLiteral("8 to 1")), 4);
    EXPECT_EQ(texts.count(QStringLiteral("PLACE YOUR BET")), 2);
    EXPECT_EQ(texts.count(QStringLiteral("PLAY LOTTO")), 2);
    for (const int i : {10, 24}) {
        EXPECT_EQ(OfColor(Only(marks, PageMark::Kind::Area), BandColor(i)).size(), 1) << i;
        EXPECT_EQ(OfColor(Only(marks, PageMark::Kind::Text), CostColor(i)).size(), 1) << i;
        EXPECT_FALSE(texts.contains(LineOf(i, 0))) << i;
        EXPECT_TRUE(OfColor(marks, PictureColor(i)).isEmpty()) << i;
    }
    // The same record on any other space shows both.
    EXPECT_TRUE(texts.contains(LineOf(9, 0)));
    EXPECT_FALSE(OfColor(marks, PictureColor(9)).isEmpty());
}

TEST_F(BoardSpacesTest, PicturesOfSpacesStandInTheirBoxes) {
    MakeGame();
    for (const int scale : {4800, 2999}) {
        const QList<PageMark> pictures = Only(Paint({.scale = scale}), PageMark::Kind::Picture);
        for (int i = 0; i < kSpaces; ++i) {
            const QList<PageMark> found = OfColor(pictures, PictureColor(i));
            ASSERT_EQ(found.size(), HasPicture(i) && !IsLottoSpace(i) ? 1 : 0) << i;
            if (found.isEmpty()) continue;
            // A square of 0.0593, so far in from the start of the space and from its inner edge.
            const Box across = Part(i, 0.0239, 0.0239 + 0.0593);
            const bool lying = i / kPerSide % 2 == 0;
            const double x = (across.x1 + (lying ? 0.01295 : 0)) * scale;
            const double y = (across.y1 + (lying ? 0 : 0.01295)) * scale;
            const QRectF box = found.first().Box();
            EXPECT_NEAR(box.left(), x, 1) << i;
            EXPECT_NEAR(box.top(), y, 1) << i;
            EXPECT_NEAR(box.width(), 0.0593 * scale, 1) << i;
            EXPECT_NEAR(box.height(), 0.0593 * scale, 1) << i;
        }
    }
}

TEST_F(BoardSpacesTest, PicturesOfCornersStandInTheirBoxesWhileTheBoardIsOnScreen) {
    MakeGame();
    const double told[3][3] = {{0.8087, 0.8087, 0.0884}, {0.1029, 0.8087, 0.0884}, {0.1029, 0.1029, 0.0884}};
    for (const bool onScreen : {true, false}) {
        const QList<PageMark> pictures = Only(Paint({.onScreen = onScreen}), PageMark::Kind::Picture);
        for (int i = 0; i < 3; ++i) {
            const QList<PageMark> found = OfColor(pictures, PictureColor(kSpaces + i));
            ASSERT_EQ(found.size(), onScreen ? 1 : 0) << i;
            if (found.isEmpty()) continue;
            EXPECT_NEAR(found.first().Box().left(), told[i][0] * kScale, 1) << i;
            EXPECT_NEAR(found.first().Box().top(), told[i][1] * kScale, 1) << i;
            EXPECT_NEAR(found.first().Box().width(), told[i][2] * kScale, 1) << i;
            EXPECT_NEAR(found.first().Box().height(), told[i][2] * kScale, 1) << i;
        }
        EXPECT_EQ(OfColor(pictures, kFateColor).size(), onScreen ? 1 : 0);
        EXPECT_EQ(OfColor(pictures, PictureColor(0)).size(), 1) << "those of spaces are always shown";
    }
}

// Three quarters as wide as high, in the box that the corner's picture fills.
TEST_F(BoardSpacesTest, Edge_FixedCornerShowsTheKitsPictureAndNeverItsText) {
    MakeGame();
    // The other kit first, as the two others give the corner the path of their picture.
    for (const char* version : {"2", "8", "5"}) {
        SCOPED_TRACE(version);
        Let_g_sGameVersion(QString::fromLatin1(version));
        const bool fixed = g_sGameVersion() != QStringLiteral("2");
        const QList<PageMark> marks = Paint();
        EXPECT_EQ(TextsOf(marks).contains(QStringLiteral("Corner 3a")), !fixed);
        EXPECT_EQ(g_oCorners(3).Image.FullPath() == PathOf(QStringLiteral("program/fate.dat")), fixed);
        const QList<PageMark> pictures = Only(marks, PageMark::Kind::Picture);
        EXPECT_TRUE(OfColor(pictures, PictureColor(kSpaces + 3)).isEmpty()) << "the user's own";
        const QList<PageMark> fate = OfColor(pictures, kFateColor);
        ASSERT_EQ(fate.size(), 1);
        const double width = 0.1684 * 0.75;
        EXPECT_NEAR(fate.first().Box().left(), (0.8037 + (0.1684 - width) / 2) * kScale, 1.5);
        EXPECT_NEAR(fate.first().Box().top(), 0.0279 * kScale, 1.5);
        EXPECT_NEAR(fate.first().Box().width(), width * kScale, 1.5);
        EXPECT_NEAR(fate.first().Box().height(), 0.1684 * kScale, 1.5);
    }
}

TEST_F(BoardSpacesTest, Edge_SpaceScrolledOutOfViewIsNotFilledAndNotShowing) {
    MakeGame();
    // A quarter of the board: from its middle to the lower right, and from the upper left to its middle.
    for (const int offset : {-kScale / 2, 0}) {
        SCOPED_TRACE(offset);
        const QList<PageMark> marks = Paint({.offsetX = offset, .offsetY = offset, .width = kScale / 2});
        const QList<PageMark> pictures = Only(marks, PageMark::Kind::Picture);
        const QStringList texts = TextsOf(marks);
        int showing = 0;
        for (int i = 0; i < kSpaces; ++i) {
            const Box whole = Whole(i);
            const bool inView = offset < 0 ? whole.x2 > 0.5 && whole.y2 > 0.5 : whole.x1 < 0.5 && whole.y1 < 0.5;
            const bool colored = i != 1 && i != 3 && i != 17 && i != 26;
            EXPECT_EQ(g_oSpaces(i).IsShowing, inView) << i;
            EXPECT_EQ(!OfColor(pictures, PictureColor(i)).isEmpty(), inView && HasPicture(i) && !IsLottoSpace(i)) << i;
            EXPECT_EQ(texts.contains(LineOf(i, 0)), inView && !IsLottoSpace(i)) << i;
            EXPECT_EQ(!OfColor(marks, BandColor(i)).isEmpty(), inView && colored) << i;
            EXPECT_EQ(!OfColor(marks, CostColor(i)).isEmpty(), i != 3 && i != 17) << "costs are drawn for all: " << i;
            showing += inView;
        }
        EXPECT_EQ(showing, 8);
    }
    Paint();
    for (int i = 0; i < kSpaces; ++i)
        EXPECT_TRUE(g_oSpaces(i).IsShowing) << i;
}

TEST_F(BoardSpacesTest, ASpaceThatOnlyTouchesAnEdgeOfTheViewIsInIt) {
    constexpr int kSpace = 5;
    const Box whole = Whole(kSpace);
    const auto isInView = [this](int offsetX, int offsetY) {
        Paint({.offsetX = offsetX, .offsetY = offsetY});
        return g_oSpaces(kSpace).IsShowing;
    };
    const int left = -Nearest(whole.x2 * kScale);
    EXPECT_TRUE(isInView(left, 0));
    EXPECT_FALSE(isInView(left - 1, 0));
    const int top = -Nearest(whole.y2 * kScale);
    EXPECT_TRUE(isInView(0, top));
    EXPECT_FALSE(isInView(0, top - 1));
    const int right = kScale - Nearest(whole.x1 * kScale);
    EXPECT_TRUE(isInView(right, 0));
    EXPECT_FALSE(isInView(right + 1, 0));
    const int bottom = kScale - Nearest(whole.y1 * kScale);
    EXPECT_TRUE(isInView(0, bottom));
    EXPECT_FALSE(isInView(0, bottom + 1));
}

// Whatever is painted later may hide what is painted before.
TEST_F(BoardSpacesTest, LayersArePaintedInTheirOrder) {
    MakeGame();
    SetSpecialText(2, QStringLiteral("Subtitle"));
    SetSideText(0, QStringLiteral("South"));
    SetSideText(3, QStringLiteral("East"));
    const QList<PageMark> marks = Paint();
    const auto text = [&marks](const char* words) {
        return [&marks, words](qsizetype i) { return marks[i].sText == QLatin1String(words); };
    };
    const auto picture = [&marks](QColor color) {
        return [&marks, color](qsizetype i) {
            return marks[i].kind == PageMark::Kind::Picture && marks[i].color.rgb() == color.rgb();
        };
    };
    const auto area = [&marks](QColor color) {
        return
            [&marks, color](qsizetype i) { return marks[i].kind == PageMark::Kind::Area && marks[i].color == color; };
    };
    const auto outline = [&marks](qsizetype i) {
        return marks[i].kind == PageMark::Kind::Line && marks[i].points.size() > 2;
    };
    const struct {
        const char* what;
        std::function<bool(qsizetype)> is;
    } told[] = {
        {"panel", area({0, 176, 255})},
        {"tokens' box", area({219, 112, 147})},
        {"first label", text("Good")},
        {"last label", text("Tokens")},
        {"title box's cells", area({0, 128, 0})},
        {"subtitle", text("Subtitle")},
        {"corners", outline},
        {"first side", text("South")},
        {"last side", text("East")},
        {"first band", area(BandColor(0))},
        {"last band", area(BandColor(27))},
        {"first cost", text("$1,000")},
        {"last cost", text("$3,700")},
        {"first space's text", text("Space 0a")},
        {"first space's picture", picture(PictureColor(0))},
        {"last space's text", text("Space 27a")},
        {"last space's picture", picture(PictureColor(27))},
        {"first corner's picture", picture(PictureColor(28))},
        {"first corner's text", text("Corner 0a")},
        {"second corner's picture", picture(PictureColor(29))},
        {"second corner's text", text("Corner 1a")},
        {"fate", picture(kFateColor)},
        {"lotto", text("PLACE YOUR BET")},
        {"lotto's end", text("5 to 1")},
    };
    qsizetype at = 0;
    for (const auto& layer : told) {
        while (at < marks.size() && !layer.is(at))
            ++at;
        ASSERT_LT(at, marks.size()) << layer.what << " comes earlier, or not at all";
    }
}

} // namespace
