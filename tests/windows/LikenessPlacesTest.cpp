// SPDX-License-Identifier: MIT
// Where everything stands on the large space and the large corner that their editors show.
#include "windows/editors/CornerLikeness.h"
#include "windows/editors/SpaceLikeness.h"

#include "board/basPosit.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/PictureHolder.h"
#include "support/BoardFixture.h"
#include "support/PictureFiles.h"

#include <vector>

namespace {

constexpr int kSpace = 4;
constexpr int kCorner = 1;
const Color kBand = Color::Rgb(1, 100, 200);
const Color kRare = Color::Rgb(200, 1, 100);

class LikenessPlacesTest : public BoardTest {
protected:
    LikenessPlacesTest() {
        basTAVL::Let_g_sGameVersion(QStringLiteral("8"));
        basPosit::PosInit();
        C_Space& record = basTAVL::g_oSpaces(kSpace);
        record.Index = kSpace;
        record.Image.Init(QString(), QStringLiteral("Space"), kSpace);
        record.SpaceColor = kBand;
        record.CostColor = kRare;
        record.Cost = QStringLiteral("HH");
        C_Corner& ofCorner = basTAVL::g_oCorners(kCorner);
        ofCorner.Index = kCorner;
        ofCorner.Image.Init(QString(), QStringLiteral("Corner"), kCorner);
    }

    /// A square picture of the rare colour, which no shrinking changes.
    QString RarePicture() const {
        QImage image(600, 600, QImage::Format_RGB32);
        image.fill(qRgb(kRare.Red(), kRare.Green(), kRare.Blue()));
        return WriteFile(QStringLiteral("rare.png"), PictureFiles::Encoded(image, "png"));
    }
    void LoadSpace(const QString& picture, const QString& text) {
        basDraw::Draw_SetHdc(&context);
        basTAVL::g_oSpaces(kSpace).SetImagePath(picture);
        basTAVL::g_oSpaces(kSpace).SetText(text);
        space.LoadFromGame(TheGame(), kSpace);
    }
    void LoadCorner(const QString& picture, const QString& text) {
        basDraw::Draw_SetHdc(&context);
        basTAVL::g_oCorners(kCorner).Image.Let_FullPath(picture);
        basTAVL::g_oCorners(kCorner).SetText(0, text);
        corner.LoadFromGame(TheGame(), kCorner);
    }
    QImage Draw(Likeness& likeness) {
        ScratchForm picture(likeness.Size());
        likeness.Redraw(picture, picScratch, {});
        return picture.Image();
    }
    static QRect BoxOf(const QImage& image, Color color) {
        QRect box;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == qRgb(color.Red(), color.Green(), color.Blue())) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }
    static Likeness::Spot At(Likeness& likeness, int x, int y) {
        ScratchForm picture(likeness.Size());
        return likeness.WhereIsMouse(picture, x, y);
    }

    /// Of the last pixel ahead, the first inside, the last inside and the first behind: whether it is inside.
    template <typename IsInside>
    static std::vector<bool> Edges(int before, int behind, IsInside isInside) {
        return {isInside(before), isInside(before + 1), isInside(behind - 1), isInside(behind)};
    }
    const std::vector<bool> kBothInside{false, true, true, false};

    SpaceLikeness space;
    CornerLikeness corner;
    PictureHolder picScratch;
};

TEST_F(LikenessPlacesTest, TheBandOfASpaceReachesDownTo59) {
    basTAVL::g_oSpaces(kSpace).Cost.clear();
    LoadSpace(QString(), QString());
    // From (16, 16) to (190, 59) without the pen, which is 3 wide about 16, 189, 16 and 58.
    EXPECT_EQ(BoxOf(Draw(space), kBand), QRect(QPoint(18, 18), QPoint(187, 56)));
    basTAVL::g_oSpaces(kSpace).SpaceColor = Color::None();
    LoadSpace(QString(), QString());
    EXPECT_TRUE(BoxOf(Draw(space), kBand).isEmpty()) << "a space without a colour has no band";
}

TEST_F(LikenessPlacesTest, TheCostStandsInTheMiddleOfTheBandInItsOwnColour) {
    LoadSpace(QString(), QString());
    ScratchForm told(space.Size());
    basDraw::Draw_SetHdc(&told.hDC());
    basDraw::Draw_SetPen(PenStyle::Solid, 3, Color::Black());
    basDraw::Draw_SetBrush(basTAVL::g_lMagicColor());
    basDraw::Draw_Rect(16, 16, 190, 316);
    basDraw::Draw_SetBrush(kBand);
    basDraw::Draw_Rect(16, 16, 190, 59);
    basDraw::Draw_SetFont(QStringLiteral("Arial"), 30, 15, 0, 0, false, false, false);
    basDraw::Draw_Text(QStringLiteral("HH"), QStringLiteral("C"), 103, 21, kRare);
    basDraw::Draw_ReleaseObjects();
    const QImage drawn = Draw(space);
    EXPECT_EQ(drawn, told.Image());
    // By the typeface: two letters of 1479 units where 904 are 15 pixels, and high letters of 1409 where 2288 are 30.
    const QRect ink = BoxOf(drawn, kRare);
    EXPECT_NEAR(ink.width(), 2 * 1479 * 15 / 904 - 5, 3);
    EXPECT_NEAR(ink.height(), 1409 * 30 / 2288, 2);
    EXPECT_NEAR(ink.center().x(), 103, 1);
}

TEST_F(LikenessPlacesTest, ThePictureOfASpaceIs126PixelsSquareAndFoundUpToItsEdges) {
    basTAVL::g_oSpaces(kSpace).Cost.clear();
    LoadSpace(RarePicture(), QString());
    EXPECT_EQ(BoxOf(Draw(space), kRare), QRect(41, 63, 126, 126));
    EXPECT_EQ(Edges(40, 168, [this](int x) { return At(space, x, 100).bInImage; }), kBothInside);
    EXPECT_EQ(Edges(62, 190, [this](int y) { return At(space, 100, y).bInImage; }), kBothInside);
}

TEST_F(LikenessPlacesTest, TheTextOfASpaceWithAPictureStandsFrom189To294) {
    LoadSpace(RarePicture(), QStringLiteral("HH"));
    // Beside the picture, so that it is the text alone that is found.
    EXPECT_EQ(Edges(188, 295, [this](int y) { return At(space, 20, y).bInText; }), kBothInside);
    EXPECT_EQ(Edges(15, 191, [this](int x) { return At(space, x, 240).bInText; }), kBothInside);
    LoadSpace(QString(), QStringLiteral("HH"));
    EXPECT_FALSE(At(space, 20, 62).bInText);
    EXPECT_TRUE(At(space, 20, 63).bInText) << "without a picture it has its room as well";
}

TEST_F(LikenessPlacesTest, ThePictureOfACornerIs90PixelsSquareAndFoundUpToItsEdges) {
    LoadCorner(RarePicture(), QString());
    EXPECT_EQ(BoxOf(Draw(corner), kRare), QRect(147, 90, 90, 90));
    EXPECT_EQ(Edges(146, 238, [this](int x) { return At(corner, x, 120).bInImage; }), kBothInside);
    EXPECT_EQ(Edges(89, 181, [this](int y) { return At(corner, 200, y).bInImage; }), kBothInside);
}

TEST_F(LikenessPlacesTest, TheTextOfACornerHasTheMiddleHalfAnd90Pixels) {
    LoadCorner(QString(), QStringLiteral("HH"));
    EXPECT_EQ(Edges(95, 289, [this](int x) { return At(corner, x, 220).bInText; }), kBothInside);
    EXPECT_EQ(Edges(179, 271, [this](int y) { return At(corner, 120, y).bInText; }), kBothInside);
}

} // namespace
