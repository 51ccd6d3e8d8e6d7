// SPDX-License-Identifier: MIT
#include "board/basPositPaint.h"

#include "board/BoardPicture.h"
#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "support/BoardFixture.h"
#include "support/PaintedBoard.h"
#include "support/StartUp.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

using namespace basPosit;
using namespace basTAVL;

namespace {

constexpr int kSize = 960;
const Color kMagic = Color::Rgb(224, 255, 224);

class PaintTest : public BoardTest {
protected:
    PaintTest() {
        Let_g_sGameVersion(QStringLiteral("8"));
        g_lMagicColor() = kMagic;
        StartUp::MakeThumbnails();
        PosInit();
    }

    static PaintedBoard Paint(int size = kSize, double ratio = 1.0) {
        return PaintedBoard(BoardPicture(size, ratio).Image());
    }
    // The view of a board of so many units, scrolled by these.
    static PaintedBoard PaintScrolled(int scale, int offsetX, int offsetY) {
        ScratchForm picBoard(QSize(kSize, kSize));
        PosInit();
        PosSethDC(&picBoard.hDC());
        PosSetScale(float(scale));
        PosSetWidth(kSize);
        PosSetOffsetX(offsetX);
        PosSetOffsetY(offsetY);
        PosDrawAll();
        PosSethDC(nullptr);
        PosSetOffsetX(0);
        PosSetOffsetY(0);
        return PaintedBoard(picBoard.Image());
    }
    static C_Space& SetSpace(int iSpace, const QString& text, float size = 0.014F) {
        C_Space& space = g_oSpaces(iSpace);
        space.Index = qint16(iSpace);
        space.Image.Let_SpaceOrCorner(QStringLiteral("Space"));
        space.Image.Let_Index(qint16(iSpace));
        space.Font.Load(QStringLiteral("Arial"), false, false, 48);
        space.Let_TextAll(text);
        space.Let_TextSize(size);
        return space;
    }
    static C_Corner& SetCorner(int iCorner, const QString& text, float size = 0.02F) {
        C_Corner& corner = g_oCorners(iCorner);
        corner.Index = qint16(iCorner);
        corner.Image.Let_SpaceOrCorner(QStringLiteral("Corner"));
        corner.Image.Let_Index(qint16(iCorner));
        corner.Font.Load(QStringLiteral("Arial"), false, false, 48);
        corner.Let_TextAll(0, text);
        corner.Let_TextSize(0, size);
        return corner;
    }
    // The part of a space that holds its text: outside the band, inside the pens.
    static BoardRect TextPart(int iSpace) {
        BoardRect part = m_SpaceRect(iSpace, SpacePart::Whole);
        const BoardRect band = m_SpaceRect(iSpace, SpacePart::Band);
        switch (iSpace / 7) {
            case 0:
                part.y1 = band.y2;
                break;
            case 1:
                part.x2 = band.x1;
                break;
            case 2:
                part.y2 = band.y1;
                break;
            default:
                part.x1 = band.x2;
        }
        return Shrunk(part, 0.004F);
    }
    static BoardRect Shrunk(BoardRect rect, float by) {
        return {rect.x1 + by, rect.y1 + by, rect.x2 - by, rect.y2 - by};
    }
    static BoardRect Band(int iSpace) { return Shrunk(m_SpaceRect(iSpace, SpacePart::Band), 0.0025F); }
    QString RedPicture(const QString& name = QStringLiteral("red"), int side = 40) const {
        QImage red(side, side, QImage::Format_RGB32);
        red.fill(Qt::red);
        const QString path = PathOf(name + QStringLiteral(".bmp"));
        EXPECT_TRUE(red.save(path, "BMP"));
        return path;
    }
};

// Space 0 of each side lies elsewhere and reads another way; what a person sees is the same.
const QString kWord = QStringLiteral("HHHHH");

TEST_F(PaintTest, Edge_SpaceWithImageHasItsTextInTheOuterHalfAtTheSameSize) {
    for (int iSpace : {1, 8, 15, 26}) {
        SetSpace(iSpace, kWord);
        const QRect before = Paint().InkBox(TextPart(iSpace), kMagic);
        // A path alone moves the text, even when the picture can't be shown.
        SetSpace(iSpace, kWord).Image.Let_FullPath(PathOf(QStringLiteral("gone.bmp")));
        const QRect after = Paint().InkBox(TextPart(iSpace), kMagic);
        ASSERT_FALSE(before.isEmpty());
        EXPECT_EQ(after.size(), before.size()) << iSpace;
        const int outward = CLng(0.02965 * kSize);
        const QPoint direction[] = {{0, 1}, {-1, 0}, {0, -1}, {1, 0}};
        const QPoint moved = after.topLeft() - before.topLeft();
        EXPECT_LE((moved - direction[iSpace / 7] * outward).manhattanLength(), 1) << iSpace;
    }
}

TEST_F(PaintTest, HiddenSpaceDoesNotTouchTheContext) {
    SetSpace(0, kWord);
    // Zoomed four times, the upper left quarter of the board.
    PaintScrolled(4 * kSize, 0, 0);
    ASSERT_FALSE(g_oSpaces(0).IsShowing);
    basDraw::Draw_Abandon();
    EXPECT_NO_THROW(PosDrawSpaceText(0)) << "there is none";
    const PaintedBoard lowerRight = PaintScrolled(4 * kSize, -3 * kSize, -3 * kSize);
    EXPECT_EQ(lowerRight.ColorAt(4 * 0.76 - 3, 4 * 0.86 - 3), kMagic);
}

TEST_F(PaintTest, Edge_EmptyCostDrawsNothingAndDoesNotFail) {
    for (int iSpace : {3, 17}) {
        ASSERT_TRUE(g_oSpaces(iSpace).Cost.isEmpty());
        EXPECT_TRUE(Paint().InkBox(TextPart(iSpace), kMagic).isEmpty()) << iSpace;
        EXPECT_EQ(Paint().CommonColor(Band(iSpace)), kMagic) << iSpace;
        EXPECT_TRUE(Paint().InkBox(Band(iSpace), kMagic).isEmpty()) << iSpace;
    }
    // A property whose price is taken away.
    const int iSpace = 7;
    ASSERT_FALSE(Paint().InkBox(Band(iSpace), g_oSpaces(iSpace).SpaceColor).isEmpty());
    ScratchForm picBoard(QSize(kSize, kSize));
    PosSethDC(&picBoard.hDC());
    g_oSpaces(iSpace).Cost.clear();
    PosSetScale(float(kSize));
    PosSetWidth(kSize);
    PosDrawAll();
    PosSethDC(nullptr);
    EXPECT_TRUE(PaintedBoard(picBoard.Image()).InkBox(Band(iSpace), g_oSpaces(iSpace).SpaceColor).isEmpty());
}

TEST_F(PaintTest, Edge_SpaceTextWithoutLinesStopsAfterSelectingTheFont) {
    SetSpace(5, kWord).Let_NLines(0);
    g_oSpaces(5).Font.Bold = true;
    g_oSpaces(5).IsShowing = true;
    ScratchForm picBoard(QSize(kSize, kSize));
    PosSethDC(&picBoard.hDC());
    PosSetScale(float(kSize));
    const PaintedBoard before(picBoard.Image());
    const int made = picBoard.hDC().Created().fonts;
    PosDrawSpaceText(5);
    EXPECT_EQ(picBoard.hDC().Created().fonts, made + 1);
    EXPECT_TRUE(picBoard.hDC().CurrentFont()->Request().bBold);
    EXPECT_EQ(picBoard.hDC().CurrentFont()->Request().lHeight, Int(0.014F * kSize * 0.95));
    EXPECT_TRUE(PaintedBoard(picBoard.Image()).SameAs(before, {0, 0, 1, 1}));
    basDraw::Draw_ReleaseObjects();
    PosSethDC(nullptr);
}

TEST_F(PaintTest, PictureStandsInItsBoxOnEachSide) {
    for (int iSpace : {1, 8, 15, 26}) {
        SetSpace(iSpace, QString()).Image.Let_FullPath(RedPicture());
        const C_Image& image = g_oSpaces(iSpace).Image;
        for (int size : {kSize, 3 * kSize}) {
            const BoardRect around{image.X - 0.002F, image.Y - 0.002F, image.X + image.W + 0.002F,
                                   image.Y + image.H + 0.002F};
            const QRect box = Paint(size).InkBox(around, kMagic);
            const QRect expected(CLng(image.X * float(size)), CLng(image.Y * float(size)), CLng(image.W * float(size)),
                                 CLng(image.H * float(size)));
            EXPECT_EQ(box, expected) << iSpace << " at " << size;
        }
    }
}

TEST_F(PaintTest, PictureThatComesBackAfterNoneMayBeToldToBeBadAgain) {
    const QString bad = WriteFile(QStringLiteral("games/bad.jpg"), "picture");
    C_Image& space = SetSpace(5, QString()).Image;
    C_Image& corner = SetCorner(0, QString(), 0.04F).Image;
    const C_Image noSpace = space;
    const C_Image noCorner = corner;
    const auto boxesOfAPaint = [&] {
        desktop.boxes.clear();
        Paint();
        return desktop.Texts().filter(bad).size();
    };
    const auto boxesOfBadPictures = [&] {
        space.Let_FullPath(bad);
        corner.Let_FullPath(bad);
        return boxesOfAPaint();
    };
    EXPECT_EQ(boxesOfBadPictures(), 2);
    EXPECT_EQ(boxesOfBadPictures(), 0);
    // As an undone edit gives them back, without a word to whoever remembers what was told.
    space = noSpace;
    corner = noCorner;
    EXPECT_EQ(boxesOfAPaint(), 0);
    EXPECT_EQ(boxesOfBadPictures(), 2);
}

TEST_F(PaintTest, CornerTextStandsAboveItsPicture) {
    SetCorner(0, QStringLiteral("HHHHHH"), 0.04F).Image.Let_FullPath(RedPicture());
    const C_Image& image = g_oCorners(0).Image;
    const BoardRect box{image.X, image.Y, image.X + image.W, image.Y + image.H};
    const PaintedBoard board = Paint();
    EXPECT_EQ(board.ColorAt(image.X + image.W / 2, image.Y + image.W / 3), Color::Rgb(255, 0, 0));
    EXPECT_TRUE(board.Has(box, Color::Black()));
    EXPECT_EQ(board.ColorAt(image.X + 0.004, image.Y + 0.004), kMagic) << "outside the diamond";
}

TEST_F(PaintTest, BoardStandsAtOnceAndPicturesComeAsTheyAreDecoded) {
    // Large enough that the last can't be there when the paint comes to it.
    constexpr int kSide = 2400;
    SetCorner(0, kWord).Image.Let_FullPath(RedPicture(QStringLiteral("corner"), kSide));
    for (int iSpace : {4, 12, 20})
        SetSpace(iSpace, kWord).Image.Let_FullPath(RedPicture(QString::number(iSpace), kSide));
    for (int size : {kSize, 3 * kSize}) {
        ForgetPictures();
        for (int iSpace : {4, 12, 20})
            QFile::remove(g_oSpaces(iSpace).Image.Thumbname());
        QFile::remove(g_oCorners(0).Image.Thumbname());
        ScratchForm picBoard(QSize(size, size));
        PosInit();
        PosSethDC(&picBoard.hDC());
        PosSetPicture(&picBoard, true, PicturesShown::Ready);
        PosSetScale(float(size));
        PosSetWidth(size);
        PosDrawAll();
        EXPECT_GE(PosPicturesAwaited(), 1);
        const BoardRect corner{0.81F, 0.81F, 0.97F, 0.97F};
        EXPECT_TRUE(PaintedBoard(picBoard.Image()).InkBox(corner, kMagic).isEmpty()) << "its text waits with it";
        QElapsedTimer waited;
        waited.start();
        while (PosDrawAwaited() > 0 && waited.elapsed() < 20000)
            QThread::msleep(5);
        EXPECT_EQ(PosPicturesAwaited(), 0);
        PosSetPicture(nullptr);
        PosSethDC(nullptr);
        EXPECT_TRUE(PaintedBoard(picBoard.Image()).SameAs(Paint(size), {0, 0, 1, 1})) << size;
    }
}

struct Place {
    const char* what;
    float x;
    float y;
    Color color;
};

TEST_F(PaintTest, EveryFieldHasItsColor) {
    const Place places[] = {
        {"outside the board", 0.01F, 0.01F, Color::White()},
        {"panel", 0.5F, 0.46F, Color::Rgb(0, 176, 255)},
        {"title box", 0.5F, 0.27F, kMagic},
        {"subtitle", 0.31F, 0.407F, kMagic},
        {"good news", 0.235F, 0.69F, Color::Rgb(128, 128, 192)},
        {"bad news", 0.765F, 0.69F, Color::Rgb(128, 128, 192)},
        {"money", 0.25F, 0.755F, Color::Rgb(128, 224, 128)},
        {"tokens", 0.25F, 0.545F, Color::Rgb(219, 112, 147)},
        {"south", 0.21F, 0.82F, Color::Rgb(255, 0, 0)},
        {"west", 0.18F, 0.21F, Color::Rgb(255, 255, 0)},
        {"north", 0.21F, 0.18F, Color::Rgb(255, 128, 0)},
        {"east", 0.82F, 0.21F, Color::Rgb(192, 0, 96)},
        {"corner 0", 0.96F, 0.96F, kMagic},
        {"corner 1", 0.04F, 0.96F, kMagic},
        {"corner 2", 0.04F, 0.04F, kMagic},
        {"corner 3", 0.96F, 0.04F, kMagic},
        {"tip of corner 0, cut off", 0.8F, 0.8F, Color::Rgb(0, 176, 255)},
    };
    for (int size : {kSize, 4 * kSize}) {
        const PaintedBoard board = Paint(size);
        for (const Place& place : places)
            EXPECT_EQ(board.ColorAt(place.x, place.y), place.color) << place.what << " at " << size;
    }
}

TEST_F(PaintTest, EverySpaceHasItsFaceItsBandAndItsCost) {
    const PaintedBoard board = Paint();
    for (int iSpace = 0; iSpace < kSpaces; ++iSpace) {
        const C_Space& space = g_oSpaces(iSpace);
        EXPECT_EQ(board.CommonColor(TextPart(iSpace)), kMagic) << iSpace;
        const Color band = space.SpaceColor.IsNone() ? kMagic : space.SpaceColor;
        EXPECT_EQ(board.CommonColor(Band(iSpace)), band) << iSpace;
        if (!space.Cost.isEmpty()) {
            EXPECT_TRUE(board.Has(Band(iSpace), space.CostColor)) << iSpace;
        }
    }
}

// From left to right: the cells of the upper strip, each met in its middle.
TEST_F(PaintTest, TitleBoxIsASmallBoardOfColoredCells) {
    const PaintedBoard board = Paint();
    const BoardRect box = m_CenterRect(1);
    for (int i = 0; i < kStripCells; ++i) {
        const Color color = m_lStripColor(i).IsNone() ? kMagic : m_lStripColor(i);
        const float along = (0.0288F * (float(i) + 0.5F) + 0.0392F) * box.Width();
        const float deep = 0.15F * box.Height();
        EXPECT_EQ(board.ColorAt(box.x1 + along, box.y1 + deep), color) << i;
        EXPECT_EQ(board.ColorAt(box.x2 - along, box.y2 - deep), color) << i << ", turned by half a turn";
    }
    for (int i = 0; i < kColumnCells; ++i) {
        const float down = box.y1 + (0.1295F * (float(i) + 0.5F) + 0.1762F) * box.Height();
        const float deep = 0.034F * box.Width();
        const Color left = m_lColumnColorA(i).IsNone() ? kMagic : m_lColumnColorA(i);
        const Color right = m_lColumnColorB(i).IsNone() ? kMagic : m_lColumnColorB(i);
        EXPECT_EQ(board.ColorAt(box.x1 + deep, down), left) << i;
        EXPECT_EQ(board.ColorAt(box.x2 - deep, down), right) << i;
    }
}

// The hollow of the L shows where a word stands up: the letter's foot lies towards the board's edge on
// every side.
TEST_F(PaintTest, TextsAreReadFromTheBoardsEdge) {
    const int spaces[] = {1, 8, 15, 26};
    for (int iSpace : spaces)
        SetSpace(iSpace, QStringLiteral("L"), 0.05F);
    const PaintedBoard board = Paint();
    for (int iSide = 0; iSide < kSides; ++iSide) {
        const QRect box = board.InkBox(TextPart(spaces[iSide]), kMagic);
        ASSERT_FALSE(box.isEmpty()) << iSide;
        const QPoint head[] = {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
        const QPoint hollow[] = {box.topRight(), box.bottomRight(), box.bottomLeft(), box.topLeft()};
        const QPoint fromHead[] = {{1, 1}, {-1, 1}, {-1, -1}, {1, -1}};
        const QPoint fromHollow[] = {{-1, 1}, {-1, -1}, {1, -1}, {1, 1}};
        EXPECT_NE(board.PixelAt(head[iSide] + fromHead[iSide]), kMagic) << iSide;
        EXPECT_EQ(board.PixelAt(hollow[iSide] + 3 * fromHollow[iSide]), kMagic) << iSide;
    }
}

TEST_F(PaintTest, CornerTextsRunAlongTheDiagonalOutsideTheTip) {
    for (int iCorner = 0; iCorner < 3; ++iCorner)
        SetCorner(iCorner, kWord);
    const PaintedBoard board = Paint();
    const BoardRect corners[] = {
        {0.81F, 0.81F, 0.972F, 0.972F}, {0.03F, 0.81F, 0.19F, 0.972F}, {0.03F, 0.03F, 0.19F, 0.19F}};
    for (int iCorner = 0; iCorner < 3; ++iCorner) {
        const QRect box = board.InkBox(corners[iCorner], kMagic);
        // Five letters a half as wide as they are high, turned by an eighth: as wide as they are high.
        EXPECT_NEAR(box.width(), box.height(), 3) << iCorner;
        const C_Corner& corner = g_oCorners(iCorner);
        const QPointF outward = QPointF(box.center()) - QPointF(corner.X * kSize, corner.Y * kSize);
        const QPointF direction[] = {{1, 1}, {-1, 1}, {-1, -1}};
        EXPECT_GT(QPointF::dotProduct(outward, direction[iCorner]), 5) << iCorner;
    }
}

TEST_F(PaintTest, SecondBlockOfACornerHasItsOwnTypeface) {
    SetCorner(1, kWord).Let_TextAll(1, kWord);
    ScratchForm picBoard(QSize(kSize, kSize));
    PosSethDC(&picBoard.hDC());
    PosSetScale(float(kSize));
    PosDrawCornerText(1, 1);
    EXPECT_EQ(picBoard.hDC().CurrentFont()->Request().sFamily, QStringLiteral("Times New Roman"));
    EXPECT_TRUE(picBoard.hDC().CurrentFont()->Request().bItalic);
    EXPECT_FALSE(picBoard.hDC().CurrentFont()->Request().bBold);
    basDraw::Draw_ReleaseObjects();
    PosSethDC(nullptr);
}

TEST_F(PaintTest, TitlesStandWhereTheyBelong) {
    SetSpecialText(0, QStringLiteral("TAVLO"));
    SetSpecialText(1, QStringLiteral("A\r\nB"));
    SetSpecialText(2, QStringLiteral("Our own game"));
    const PaintedBoard board = Paint();
    const BoardRect box = m_CenterRect(1);
    const auto inkBetween = [&](float from, float to) {
        return board.InkBox({box.x1 + from * box.Width(), box.y1 + 0.2F * box.Height(), box.x1 + to * box.Width(),
                             box.y1 + 0.8F * box.Height()},
                            kMagic);
    };
    EXPECT_NEAR(inkBetween(0.57F, 0.94F).width(), 0.3545 * box.Width() * kSize, 14);
    EXPECT_NEAR(inkBetween(0.05F, 0.565F).width(), 0.49 * box.Width() * kSize, 20);
    const QRect subtitle = board.InkBox(Shrunk(m_CenterRect(2), 0.003F), kMagic);
    EXPECT_NEAR(subtitle.center().x(), 0.5 * kSize, 3);
    EXPECT_GT(subtitle.width(), 60);
}

TEST_F(PaintTest, LayoutIsTheSameAtEveryScale) {
    for (int iSpace = 0; iSpace < kSpaces; ++iSpace)
        SetSpace(iSpace, QStringLiteral("HOME\r\nSTREET"), 0.02F);
    const PaintedBoard small = Paint(kSize);
    const PaintedBoard large = Paint(4 * kSize);
    for (int iSpace = 0; iSpace < kSpaces; ++iSpace) {
        if (iSpace == 10 || iSpace == 24) continue;
        const QRect one = small.InkBox(TextPart(iSpace), kMagic);
        const QRect four = large.InkBox(TextPart(iSpace), kMagic);
        ASSERT_FALSE(one.isEmpty()) << iSpace;
        // Whole pixels at the small scale are four at the large; letters come in whole heights.
        EXPECT_NEAR(four.width(), 4 * one.width(), 0.08 * four.width() + 6) << iSpace;
        EXPECT_NEAR(four.height(), 4 * one.height(), 0.08 * four.height() + 6) << iSpace;
        EXPECT_NEAR(four.center().x(), 4 * one.center().x(), 8) << iSpace;
        EXPECT_NEAR(four.center().y(), 4 * one.center().y(), 8) << iSpace;
    }
}

TEST_F(PaintTest, PensGrowWithTheBoard) {
    // Across the outer edge of corner 1, where nothing else stands.
    for (int size : {320, kSize, 4 * kSize}) {
        const double edge = (CLng(0.0249F * float(size)) + 0.5) / size;
        EXPECT_EQ(Paint(size).RunOfColor(edge, 0.9, Color::Black()), CLng(0.0031F * float(size))) << size;
    }
}

TEST_F(PaintTest, DenseScreenIsAsSharpAsAPlainOne) {
    for (int iSpace = 0; iSpace < kSpaces; ++iSpace)
        SetSpace(iSpace, QStringLiteral("HILL\r\nHILL"), 0.03F);
    const PaintedBoard plain = Paint(kSize);
    const PaintedBoard dense = Paint(kSize, 2.0);
    EXPECT_EQ(dense.Image().size(), QSize(2 * kSize, 2 * kSize));
    for (int iSpace : {1, 5, 15, 19}) {
        // Pixels of neither colour at each edge met: a picture blown up would have twice as many.
        const double at1 = plain.EdgeWidth(TextPart(iSpace), kMagic);
        const double at2 = dense.EdgeWidth(TextPart(iSpace), kMagic);
        EXPECT_GT(at1, 0) << iSpace;
        EXPECT_LE(at2, at1 * 1.15) << iSpace;
    }
    EXPECT_EQ(dense.RunOfColor(0.0249F, 0.9F, Color::Black()), 2 * plain.RunOfColor(0.0249F, 0.9F, Color::Black()));
}

// The band's end falls on a half at this size: 4251.5 goes to the even 4252, and one further, 4252.5, as well.
TEST_F(PaintTest, EndOfABandIsRoundedWithItsOneUnitFurther) {
    PosSetScale(5000);
    const float end = m_SpaceRect(0, SpacePart::Band).y2;
    ASSERT_EQ(5000.0F * end, 4251.5F);
    EXPECT_EQ(PosY(end), 4252);
    EXPECT_EQ(PosY(end, 1), 4252);
    PosSetOffsetY(-1);
    EXPECT_EQ(PosY(end), 4250);
    EXPECT_EQ(PosY(end, 1), 4252);
    PosSetOffsetY(0);
    PosSetScale(1000);
    EXPECT_EQ(PosX(0.5F, 1), 501);
}

TEST_F(PaintTest, AllObjectsAreGivenBack) {
    ScratchForm picBoard(QSize(200, 200));
    const PenHandle pen = picBoard.hDC().CurrentPen();
    const FontHandle font = picBoard.hDC().CurrentFont();
    const BrushHandle brush = picBoard.hDC().CurrentBrush();
    PosSethDC(&picBoard.hDC());
    PosSetScale(200);
    PosSetWidth(200);
    PosDrawAll();
    PosSethDC(nullptr);
    EXPECT_EQ(picBoard.hDC().CurrentPen(), pen);
    EXPECT_EQ(picBoard.hDC().CurrentFont(), font);
    EXPECT_EQ(picBoard.hDC().CurrentBrush(), brush);
}

TEST_F(PaintTest, WrongPlacesAreReported) {
    SetSpace(4, kWord);
    EXPECT_EQ(ErrorOf([] { DrawLotto(4); }), 0x80040003U);
    EXPECT_EQ(ErrorOf([] { PosDrawCornerText(0, 4); }), 0x80040003U);
    EXPECT_EQ(ErrorOf([] { EscapementOfSide(4, QStringLiteral("Unexpected side")); }), 0x80040003U);
    EXPECT_EQ(ErrorOf([] { PosDrawSpaceText(28); }), 9U);
}

// Nobody must have the smallest picture fail: the window may be made tiny.
// Letters take 0.95 of their 0.014: 0.8 of a pixel of 60, which isn't drawn, and 1.06 of 80.
TEST_F(PaintTest, TinyBoardIsPaintedToo) {
    const auto paint = [](int size, const QString& sWord) {
        for (int iSpace = 0; iSpace < kSpaces; ++iSpace)
            SetSpace(iSpace, sWord);
        return Paint(size);
    };
    for (int size : {1, 2, 17, 60}) {
        const PaintedBoard board = paint(size, kWord);
        EXPECT_EQ(board.Image().size(), QSize(size, size));
        EXPECT_EQ(board.Image(), paint(size, QString()).Image()) << size;
    }
    EXPECT_NE(paint(80, kWord).Image(), paint(80, QString()).Image());
    const PaintedBoard board = paint(60, kWord);
    for (int iSpace = 0; iSpace < kSpaces; ++iSpace)
        EXPECT_EQ(board.CommonColor(TextPart(iSpace)), kMagic) << iSpace;
}

} // namespace
