// SPDX-License-Identifier: MIT
// A picture whose file is missing is marked on the board of the screen, and on no other.
#include "board/basPositPaint.h"

#include "board/BoardPicture.h"
#include "platform/paint/Recording.h"
#include "platform/paint/Surface.h"
#include "support/BoardFixture.h"
#include "support/MissingMarkPixels.h"
#include "support/StartUp.h"

#include <QFile>
#include <QPainter>

using namespace basPosit;
using namespace basTAVL;

namespace {

constexpr int kSize = 960;
constexpr int kSpace = 4;
constexpr int kCorner = 1;

class MissingOnBoardTest : public BoardTest {
protected:
    MissingOnBoardTest() {
        Let_g_sGameVersion(QStringLiteral("8"));
        g_lMagicColor() = Color::Rgb(224, 255, 224);
        StartUp::MakeThumbnails();
        PosInit();
        g_oSpaces(kSpace).Image.Init(QString(), QStringLiteral("Space"), kSpace);
        g_oCorners(kCorner).Image.Init(QString(), QStringLiteral("Corner"), kCorner);
    }
    /// As the main window paints it.
    static QImage OnScreen() {
        ScratchForm picBoard(QSize(kSize, kSize));
        PosInit();
        PosSethDC(&picBoard.hDC());
        PosSetPicture(&picBoard, true, PicturesShown::Ready);
        PosSetScale(float(kSize));
        PosSetWidth(kSize);
        PosDrawAll();
        PosSetPicture(nullptr);
        PosSethDC(nullptr);
        return picBoard.Image().copy();
    }
    static bool IsMarked(const QImage& board, const BoardRect& part) {
        const QRectF pixels(double(part.x1) * kSize, double(part.y1) * kSize, double(part.Width()) * kSize,
                            double(part.Height()) * kSize);
        return PixelsOfMissingMark(board, pixels.toRect()) > kFewPixelsOfMark;
    }
    static BoardRect CornerBox() {
        const auto& points = m_CornerPoly(kCorner);
        BoardRect box{1, 1, 0, 0};
        for (const auto& point : points) {
            box.x1 = std::min(box.x1, point.x);
            box.y1 = std::min(box.y1, point.y);
            box.x2 = std::max(box.x2, point.x);
            box.y2 = std::max(box.y2, point.y);
        }
        return box;
    }
    QString Gone() const { return PathOf(QStringLiteral("gone.png")); }
};

TEST_F(MissingOnBoardTest, ASpaceWhosePictureIsAwayShowsACrossedPicture) {
    const BoardRect space = m_SpaceRect(kSpace, SpacePart::Whole);
    EXPECT_FALSE(IsMarked(OnScreen(), space)) << "it has none";
    g_oSpaces(kSpace).SetImagePath(Gone());
    EXPECT_TRUE(IsMarked(OnScreen(), space));
    QImage back(40, 40, QImage::Format_RGB32);
    back.fill(Qt::red);
    ASSERT_TRUE(back.save(Gone(), "PNG"));
    EXPECT_FALSE(IsMarked(OnScreen(), space)) << "it has come back";
}

TEST_F(MissingOnBoardTest, ACornerWhosePictureIsAwayShowsACrossedPicture) {
    EXPECT_FALSE(IsMarked(OnScreen(), CornerBox())) << "it has none";
    g_oCorners(kCorner).Image.Let_FullPath(Gone());
    EXPECT_TRUE(IsMarked(OnScreen(), CornerBox()));
}

TEST_F(MissingOnBoardTest, NeitherPaperNorAPictureOfTheBoardShowsIt) {
    g_oSpaces(kSpace).SetImagePath(Gone());
    g_oCorners(kCorner).Image.Let_FullPath(Gone());
    EXPECT_LT(PixelsOfMissingMark(BoardPicture(kSize).Image()), kFewPixelsOfMark);
    const std::shared_ptr<const Recording> paper = BoardOnPaper(10, QSizeF(2, 3), false);
    QImage page(kSize, kSize, QImage::Format_RGB32);
    page.fill(Qt::white);
    {
        QPainter painter(&page);
        paper->Play(painter, QRectF(page.rect()));
    }
    EXPECT_LT(PixelsOfMissingMark(page), kFewPixelsOfMark);
}

} // namespace
