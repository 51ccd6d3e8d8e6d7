// SPDX-License-Identifier: MIT
#include "windows/editors/CornerLikeness.h"
#include "windows/editors/SpaceLikeness.h"

#include "board/basPosit.h"
#include "board/BoardPicture.h"
#include "pieces/frmBMP.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/PictureHolder.h"
#include "support/BoardFixture.h"

#include <QImage>
#include <QTransform>

namespace {

constexpr int kSpace = 4; // on the bottom side, where text isn't turned
constexpr int kCorner = 1;
constexpr int kBoard = 2000;

struct Ink {
    QRect box;
    int rows = 0; ///< Stretches of rows with ink: lines of text whose letters don't overlap.
};

class LikenessTest : public BoardTest {
protected:
    LikenessTest() {
        basTAVL::Let_g_sGameVersion(QStringLiteral("8"));
        basPosit::PosInit();
        basTAVL::g_oSpaces(kSpace).Index = kSpace;
        basTAVL::g_oSpaces(kSpace).Font.Size = 48;
        basTAVL::g_oCorners(kCorner).Index = kCorner;
        basTAVL::g_oCorners(kCorner).Font.Size = 48;
    }

    static Ink InkIn(const QImage& image, QRect area) {
        Ink ink;
        bool before = false;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            bool here = false;
            for (int x = area.left(); x <= area.right(); ++x) {
                if (qGray(image.pixel(x, y)) > 90) continue;
                here = true;
                ink.box |= QRect(x, y, 1, 1);
            }
            if (here && !before) ++ink.rows;
            before = here;
        }
        return ink;
    }
    QImage Draw(Likeness& likeness, const TextSelection& selection = {}) {
        ScratchForm picture(likeness.Size());
        likeness.Redraw(picture, picScratch, selection);
        return picture.Image();
    }
    QImage DrawSpace(const QString& text) {
        basDraw::Draw_SetHdc(&context);
        basTAVL::g_oSpaces(kSpace).SetText(text);
        space.LoadFromGame(TheGame(), kSpace);
        return Draw(space);
    }
    QImage DrawCorner(const QString& text) {
        basDraw::Draw_SetHdc(&context);
        basTAVL::g_oCorners(kCorner).SetText(0, text);
        corner.LoadFromGame(TheGame(), kCorner);
        return Draw(corner);
    }

    SpaceLikeness space;
    CornerLikeness corner;
    PictureHolder picScratch;
};

constexpr QRect kSpaceText(20, 64, 166, 248);

TEST_F(LikenessTest, ASpaceReadsAsItDoesOnTheBoard) {
    for (const QString& text : {QStringLiteral("EEE\r\nHHHHH"), QStringLiteral("HHHHHHHHHHHHHHHH"),
                                QStringLiteral("E\r\nEE\r\nEEE\r\nEEEE\r\nEEEEE\r\nEEEEEEE")}) {
        const Ink edited = InkIn(DrawSpace(text), kSpaceText);
        const QImage board = basPosit::BoardPicture(kBoard).Image();
        // Space 4 lies between 0.3723 and 0.4575 of the width, below its band and above the outer pen.
        const Ink painted = InkIn(board, QRect(QPoint(750, 1705), QPoint(909, 1942)));
        EXPECT_EQ(edited.rows, painted.rows) << text.toStdString();
        // The board draws at 0.95 of the line height that it keeps free.
        EXPECT_NEAR(edited.box.width() * 0.95, painted.box.width(), 4 + 0.02 * painted.box.width())
            << text.toStdString();
    }
}

TEST_F(LikenessTest, ACornerReadsAsItDoesOnTheBoard) {
    constexpr int kLargeBoard = 2700; // twice as many pixels as the likeness has
    // Corner 1 is at the lower left, where text runs down to the right.
    constexpr QRect kCornerOnBoard(68, 2152, 480, 480);
    for (const QString& text :
         {QStringLiteral("HHH\r\nEEE"), QStringLiteral("EEEEEEEE"), QStringLiteral("EEE\r\nEEEE\r\nEE\r\nEEE")}) {
        const Ink edited = InkIn(DrawCorner(text), QRect(QPoint(110, 180), QPoint(274, 262)));
        const QImage board = basPosit::BoardPicture(kLargeBoard).Image();
        const QImage turned =
            board.copy(kCornerOnBoard).transformed(QTransform().rotate(-45), Qt::SmoothTransformation);
        const QPoint middle = turned.rect().center();
        const Ink painted = InkIn(turned, QRect(middle + QPoint(-164, -20), middle + QPoint(164, 140)));
        EXPECT_EQ(edited.rows, painted.rows) << text.toStdString();
        EXPECT_NEAR(edited.box.width() * 2 * 0.95, painted.box.width(), 6 + 0.02 * painted.box.width())
            << text.toStdString();
    }
}

// Stickers have letters of their own width, so it is the lines that must be the same.
TEST_F(LikenessTest, AStickerHasTheLinesThatItsEditorShows) {
    basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth) = 1.36;
    basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight) = 2.125;
    basTAVL::g_dblLabelSizes(basTAVL::kCornerSide) = 2.125;
    frmBMP maker;
    const QString file = PathOf(QStringLiteral("sticker.bmp"));
    for (const QString& text : {QStringLiteral("EEE\r\nHHHHH"), QStringLiteral("HHHHHHHHHHHHHHHH"),
                                QStringLiteral("E\r\nEE\r\nEEE\r\nEEEE\r\nEEEEE\r\nEEEEEEE")}) {
        const Ink edited = InkIn(DrawSpace(text), kSpaceText);
        ASSERT_TRUE(maker.GenerateSpaceStickerImage(file, kSpace));
        const QImage ofSpace(file);
        const Ink made = InkIn(ofSpace, ofSpace.rect());
        EXPECT_EQ(made.rows, edited.rows) << text.toStdString();
        EXPECT_TRUE(ofSpace.rect().adjusted(1, 1, -1, -1).contains(made.box)) << text.toStdString();

        const Ink editedCorner = InkIn(DrawCorner(text), QRect(QPoint(110, 174), QPoint(274, 262)));
        ASSERT_TRUE(maker.GenerateCornerImage(file, kCorner));
        const QImage ofCorner(file);
        const Ink madeCorner = InkIn(ofCorner, ofCorner.rect());
        EXPECT_EQ(madeCorner.rows, editedCorner.rows) << text.toStdString();
        EXPECT_TRUE(ofCorner.rect().adjusted(1, 1, -1, -1).contains(madeCorner.box)) << text.toStdString();
    }
}

TEST_F(LikenessTest, TextStaysInsideTheOutlines) {
    const QStringList names{QStringLiteral("W"), QString(12, u'W'),
                            QStringList(10, QStringLiteral("Ag")).join(QStringLiteral("\r\n"))};
    for (const QString& name : names) {
        const QImage drawn = DrawSpace(name);
        const Ink outline = InkIn(drawn, drawn.rect());
        EXPECT_GE(outline.box.left(), 14) << name.toStdString();
        EXPECT_LE(outline.box.right(), 192) << name.toStdString();
        const Ink text = InkIn(drawn, kSpaceText);
        EXPECT_GT(text.box.left(), 22) << name.toStdString();
        EXPECT_LT(text.box.right(), 184) << name.toStdString();
        // Within the outline, which comes near at the lower edge.
        const Ink cornerText = InkIn(DrawCorner(name), QRect(QPoint(100, 174), QPoint(284, 262)));
        EXPECT_GT(cornerText.box.left(), 102) << name.toStdString();
        EXPECT_LT(cornerText.box.right(), 282) << name.toStdString();
        EXPECT_GE(cornerText.box.top(), 178) << name.toStdString();
    }
}

TEST_F(LikenessTest, TheCaretIsAnUprightBarThatNobodyHasToLookFor) {
    const QImage plain = DrawSpace(QStringLiteral("Elm\r\nStreet"));
    TextSelection caret;
    caret.SetCaret(0, 1);
    QImage with = Draw(space, caret);
    QRect bar;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != plain.pixel(x, y)) bar |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_GE(bar.width(), 3);
    EXPECT_LE(bar.width(), 5);
    EXPECT_GE(bar.height(), 40);
    EXPECT_NEAR(bar.center().x(), InkIn(plain, QRect(20, 168, 166, 60)).box.left() - 1, 4);
}

TEST_F(LikenessTest, ASelectionShowsInReversedColours) {
    DrawSpace(QStringLiteral("Elm\r\nStreet"));
    TextSelection selection{0, 0, 6, 1};
    const Ink reversed = InkIn(Draw(space, selection), kSpaceText);
    EXPECT_EQ(reversed.rows, 1) << "one block";
    EXPECT_NEAR(reversed.box.height(), 2 * 2000 * space.oSpace.TextSize(), 3);
}

TEST_F(LikenessTest, TheMouseFindsTextAndItsPlaces) {
    DrawSpace(QStringLiteral("Elm\r\nStreet"));
    ScratchForm picture(space.Size());
    Likeness::Spot spot = space.WhereIsMouse(picture, 189.6, 63);
    EXPECT_TRUE(spot.bInText) << "rounded to 190, the edge included";
    spot = space.WhereIsMouse(picture, 190.6, 63);
    EXPECT_FALSE(spot.bInText);
    EXPECT_TRUE(space.WhereIsMouse(picture, 16, 273).bInText);
    EXPECT_FALSE(space.WhereIsMouse(picture, 16, 274).bInText);
    EXPECT_FALSE(space.WhereIsMouse(picture, 100, 100).bInImage) << "no picture, no image";
    spot = space.WhereIsMouse(picture, 20, 130);
    EXPECT_EQ(QPoint(spot.iCol, spot.iRow), QPoint(0, 0));
    spot = space.WhereIsMouse(picture, 186, 190);
    EXPECT_EQ(QPoint(spot.iCol, spot.iRow), QPoint(6, 1));
}

TEST_F(LikenessTest, ASpaceNeverFilledIsOneEmptyLine) {
    basTAVL::g_oSpaces(9).SetText(TextLines::kUseExisting);
    space.LoadFromGame(TheGame(), 9);
    EXPECT_EQ(space.GetTextArray(), QStringList{QString()});
    ScratchForm picture(space.Size());
    const Likeness::Spot spot = space.WhereIsMouse(picture, 103, 168);
    EXPECT_TRUE(spot.bInText);
    EXPECT_EQ(QPoint(spot.iCol, spot.iRow), QPoint(0, 0));
    TextSelection caret;
    caret.SetCaret(0, 0);
    EXPECT_GT(InkIn(Draw(space, caret), QRect(90, 150, 26, 60)).box.height(), 15);
}

TEST_F(LikenessTest, AFamilyThatIsMissingIsShownWithTheNearestOne) {
    basTAVL::g_oSpaces(kSpace).Font.Family = QStringLiteral("Old Family Font");
    const Ink ink = InkIn(DrawSpace(QStringLiteral("Elm")), kSpaceText);
    EXPECT_GT(ink.box.width(), 20);
    EXPECT_EQ(space.oSpace.Font.Family, QStringLiteral("Old Family Font"));
}

TEST_F(LikenessTest, TheLikenessOfACornerHasItsCutTipOnTop) {
    const QImage drawn = DrawCorner(QString());
    const QRgb face = basTAVL::g_lMagicColor() == Color::Rgb(224, 255, 224) ? qRgb(224, 255, 224) : 0;
    EXPECT_EQ(drawn.pixel(192, 20), face);
    EXPECT_EQ(drawn.pixel(192, 350), face);
    EXPECT_EQ(drawn.pixel(30, 180), face);
    EXPECT_EQ(drawn.pixel(30, 30), qRgb(255, 255, 255));
    EXPECT_LT(qGray(drawn.pixel(192, 12)), 50) << "the cut";
}

TEST_F(LikenessTest, JoinedLinesAreCutOnASpaceOnly) {
    const QStringList lines{QString(39, u'i') + QStringLiteral("\U0001F3E0x"), QStringLiteral("end")};
    EXPECT_EQ(space.Joined(lines), QString(39, u'i') + QStringLiteral("\r\nend")) << "no half of a pair";
    EXPECT_EQ(corner.Joined(lines), lines.join(QStringLiteral("\r\n")));
}

} // namespace
