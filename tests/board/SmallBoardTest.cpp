// SPDX-License-Identifier: MIT
// Boards of any size: what is written in a space stays in it.
#include "board/basPositPaint.h"
#include "document/basTAVL.h"
#include "platform/paint/Surface.h"
#include "services/BoardFacts.h"
#include "support/BoardFixture.h"

#include <utility>

using namespace basPosit;
using namespace basTAVL;

namespace {

class SmallBoardTest : public BoardTest {
protected:
    SmallBoardTest() {
        Let_g_sGameVersion(QStringLiteral("8"));
        PosInit();
    }

    static QImage Paint(int size) {
        ScratchForm picBoard(QSize(size, size));
        PosSethDC(&picBoard.hDC());
        PosSetScale(float(size));
        PosSetWidth(size);
        PosDrawAll();
        PosSethDC(nullptr);
        return picBoard.Image().copy();
    }

    // Where two boards differ.
    static QRect Difference(const QImage& one, const QImage& other) {
        QRect box;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                if (one.pixel(x, y) != other.pixel(x, y)) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }
    // With the lines around it.
    static QRect PixelsOf(const BoardRect& rect, int size) {
        const QRectF exact(rect.x1, rect.y1, rect.x2 - rect.x1, rect.y2 - rect.y1);
        return QRectF(exact.topLeft() * size, exact.size() * size).toAlignedRect().adjusted(-1, -1, 1, 1);
    }
    static bool HasHeight(float textSize, int size) { return int(textSize * float(size) * 0.95F) >= 1; }
};

TEST_F(SmallBoardTest, PlayLottoIsNoLongerThanItsSpaceOnAnyBoard) {
    for (const int size : {541, 600, 630, 875, 880, 946, 960, 1208, 1261, 1920}) {
        for (const int iSpace : BoardFacts::kLottoSpaces) {
            const QImage with = Paint(size);
            const QString words = std::exchange(g_oSpaces(iSpace).Cost, QString());
            const QRect ink = Difference(with, Paint(size));
            g_oSpaces(iSpace).Cost = words;
            const QRect space = PixelsOf(m_SpaceRect(iSpace, SpacePart::Whole), size);
            EXPECT_TRUE(space.contains(ink)) << size << ", space " << iSpace << ": " << ink.top() << " to "
                                             << ink.bottom() << " in " << space.top() << " to " << space.bottom();
            EXPECT_GT(ink.height(), space.height() * 2 / 3) << size << ", space " << iSpace;
        }
    }
}

TEST_F(SmallBoardTest, ANameTooSmallForItsBoardIsLeftOut) {
    constexpr float kSmallest = 0.002F;
    const QString name = QStringLiteral("Grandmother's house by the old riverside");
    for (const int size : {120, 300, 500, 526, 540, 700}) {
        const QImage without = Paint(size);
        g_oSpaces(0).Let_TextAll(name);
        g_oSpaces(0).Let_TextSize(kSmallest);
        const QRect ink = Difference(Paint(size), without);
        EXPECT_EQ(!ink.isEmpty(), HasHeight(kSmallest, size)) << size;
        EXPECT_TRUE(ink.isEmpty() || PixelsOf(m_SpaceRect(0, SpacePart::Whole), size).contains(ink)) << size;
        g_oSpaces(0).Let_TextAll(QString());

        g_oCorners(1).Let_TextAll(0, name);
        g_oCorners(1).Let_TextSize(0, kSmallest);
        EXPECT_EQ(!Difference(Paint(size), without).isEmpty(), HasHeight(kSmallest, size)) << size;
        g_oCorners(1).Let_TextAll(0, QString());
    }
}

TEST_F(SmallBoardTest, TheLottosTableIsLeftOutWhereItHasNoHeight) {
    constexpr int kNeighbours[] = {9, 11, 23, 25};
    for (const int size : {100, 110, 120, 124}) {
        const QImage board = Paint(size);
        for (const int iSpace : kNeighbours) {
            const BoardRect& whole = m_SpaceRect(iSpace, SpacePart::Whole);
            const BoardRect& band = m_SpaceRect(iSpace, SpacePart::Band);
            const bool bWest = band.x1 > (whole.x1 + whole.x2) / 2;
            const int middle = int((whole.y1 + whole.y2) / 2 * float(size));
            const int first = int((bWest ? whole.x1 : band.x2) * float(size)) + 3;
            const int last = int((bWest ? band.x1 : whole.x2) * float(size)) - 3;
            ASSERT_LT(first, last);
            for (int x = first; x <= last; ++x)
                EXPECT_EQ(board.pixel(x, middle), board.pixel(first, middle)) << size << ", space " << iSpace;
        }
    }
}

} // namespace
