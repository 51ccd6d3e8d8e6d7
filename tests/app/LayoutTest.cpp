// SPDX-License-Identifier: MIT
// What can be computed without a window: layout, scrolling, the places of the board.
#include "support/BoardFixture.h"

#include "app/BoardPlace.h"
#include "app/MainLayout.h"
#include "app/ToolBarTable.h"

namespace {

constexpr int kSide = 960 * 15;

TEST(MainLayoutTest, FormulaDecidesWhereTheDesktopLeavesRoom) {
    const MainLayout layout = ComputeMainLayout({QSize(kSide, kSide), QSize(kSide, kSide), 390, 300}, 1.0F);
    EXPECT_EQ(layout.picBoard, QRect(120, 390, 13200, 13200));
    EXPECT_FALSE(layout.bScrollBars);
    // Five buttons of (13200 - 480) / 5.
    EXPECT_EQ(layout.cmd[0], QRect(120, 390 + 13200 + 120, 2544, 300));
    EXPECT_EQ(layout.cmd[4].left(), (2544 + 120) * 4 + 120);
}

TEST(MainLayoutTest, NarrowWindowIsFilledByItsWidth) {
    EXPECT_EQ(ComputeMainLayout({QSize(6000, 20000), QSize(6000, 20000), 390, 300}, 1.0F).picBoard.width(), 5760);
}

TEST(MainLayoutTest, ScrollBarsTakeTheirWidthFromTheBoard) {
    const MainLayout layout = ComputeMainLayout({QSize(kSide, kSide), QSize(kSide, kSide), 390, 300}, 2.0F);
    EXPECT_TRUE(layout.bScrollBars);
    EXPECT_EQ(layout.picBoard.width(), 12960);
    EXPECT_EQ(layout.hscrl, QRect(120, 390 + 12960, 12960, 240));
    EXPECT_EQ(layout.vscrl, QRect(120 + 12960, 390, 240, 12960));
}

constexpr int kBoard = 13200;

MainLayout LaidOutWithFree(int pixels, MainLayout::Side side) {
    const QSize size(kBoard + 2 * MainLayout::kGap + pixels * 15, kSide);
    return ComputeMainLayout({size, size, 390, 300}, 1.0F, side);
}

TEST(MainLayoutTest, SidePanelTakesWhatIsFreeFrom240PixelsOn) {
    const MainLayout layout = LaidOutWithFree(240, MainLayout::Side::Shown);
    EXPECT_EQ(layout.picBoard, QRect(120, 390, kBoard, kBoard)) << "the board stays";
    EXPECT_EQ(layout.cmd[0].left(), 120);
    EXPECT_EQ(layout.sideHandle, QRect(120 + kBoard + 120, 390, 210, kBoard + 120 + 300));
    EXPECT_EQ(layout.side, QRect(120 + kBoard + 120 + 210, 390, 240 * 15 - 210, kBoard + 120 + 300));
    const MainLayout narrow = LaidOutWithFree(239, MainLayout::Side::Shown);
    EXPECT_TRUE(narrow.side.isEmpty());
    EXPECT_TRUE(narrow.sideHandle.isEmpty());
    EXPECT_EQ(narrow.picBoard, layout.picBoard);
}

TEST(MainLayoutTest, HiddenSidePanelLeavesTheBoardInTheMiddle) {
    const MainLayout layout = LaidOutWithFree(400, MainLayout::Side::Hidden);
    EXPECT_TRUE(layout.side.isEmpty());
    const int right = layout.sideHandle.left();
    EXPECT_EQ(right + layout.sideHandle.width(), kBoard + 240 + 6000) << "the handle stays at the edge";
    const int left = layout.picBoard.left();
    EXPECT_NEAR(left, right - left - kBoard, 15);
    EXPECT_EQ(left % 15, 0) << "whole pixels";
    EXPECT_EQ(layout.cmd[0].left(), left);
    EXPECT_EQ(LaidOutWithFree(200, MainLayout::Side::Hidden).picBoard.left(), 120);
    EXPECT_EQ(LaidOutWithFree(400, MainLayout::Side::None).picBoard.left(), 120) << "there is no panel to hide";
}

TEST(MainLayoutTest, OffsetIsTheScrolledPartOfWhatIsHidden) {
    EXPECT_EQ(ScrollOffset(100, 100, 2.0F, 6000, 15), -400);
    EXPECT_EQ(ScrollOffset(50, 100, 3.0F, 6000, 15), -400);
    EXPECT_EQ(ScrollOffset(0, 100, 4.0F, 6000, 15), 0);
    EXPECT_EQ(ScrollOffset(100, 100, 1.0F, 6000, 15), 0);
}

TEST(MainLayoutTest, EveryRealScreenAsksForTheLargeWindow) {
    EXPECT_EQ(MainWindowSizeWanted(1080 * 15, 15), 960 * 15);
    EXPECT_EQ(MainWindowSizeWanted(601 * 15, 15), 960 * 15);
    EXPECT_EQ(MainWindowSizeWanted(600 * 15, 15), 0);
    EXPECT_EQ(MainWindowSizeWanted(1000, 1), 800) << "the bare number, where a twip is a pixel";
}

TEST(MainLayoutTest, NoWindowIsSmallerThanIsOfUseUnlessTheScreenIs) {
    // A board of 1800 twips, a gap of 120 on each of its sides, the toolbar and the buttons.
    const QSize smallest(2040, 2805);
    EXPECT_EQ(SmallestClient(390, 375), smallest);
    const QSize useful = UsefulClient(smallest, 1200, QSize(20000, 20000));
    EXPECT_EQ(useful, QSize(2040 + 4680, 2805 + 4680));
    const MainLayout layout = ComputeMainLayout({useful + QSize(0, 600), useful, 390, 375}, 1.0F);
    EXPECT_GE(layout.cmd[0].width(), 1200);
    EXPECT_EQ(UsefulClient(smallest, 1200, QSize(5000, 4000)), QSize(5000, 4000));
    EXPECT_EQ(UsefulClient(smallest, 1200, QSize(100, 100)), smallest);
}

TEST(ToolBarTableTest, ButtonsAreHitBetweenTheirEdgesOnly) {
    EXPECT_EQ(ToolBarTable::ButtonAt(2, 2), 0);
    EXPECT_EQ(ToolBarTable::ButtonAt(24, 23), 0);
    EXPECT_EQ(ToolBarTable::ButtonAt(25, 12), 1);
    EXPECT_EQ(ToolBarTable::ButtonAt(1, 12), -1);
    EXPECT_EQ(ToolBarTable::ButtonAt(71, 12), -1);
    EXPECT_EQ(ToolBarTable::ButtonAt(10, 1), -1);
    EXPECT_EQ(ToolBarTable::ButtonAt(10, 24), -1);
    EXPECT_EQ(ToolBarTable::ButtonAt(297, 12), 11);
    EXPECT_EQ(ToolBarTable::ButtonAt(310, 12), -1) << "the exit face";
}

class BoardPlaceTest : public BoardTest {
protected:
    BoardPlaceTest() { basPosit::PosInit(); }
};

TEST_F(BoardPlaceTest, EverySpaceIsFoundAllOverItsRectangle) {
    for (int space = 0; space < 28; ++space) {
        const basPosit::BoardRect rect = basPosit::m_SpaceRect(space, basPosit::SpacePart::Whole);
        constexpr float kInside = 0.001F;
        for (const float x : {rect.x1 + kInside, rect.x2 - kInside}) {
            for (const float y : {rect.y1 + kInside, rect.y2 - kInside})
                EXPECT_EQ(PlaceAt(x, y).m_iOverSpace, space) << x << ' ' << y;
        }
    }
}

TEST_F(BoardPlaceTest, BoundsOfTheCentresBoxesBelongToThem) {
    const basPosit::BoardRect& money = basPosit::m_CenterRect(5);
    EXPECT_TRUE(PlaceAt(money.x1, money.y1).m_bOverMoney);
    EXPECT_TRUE(PlaceAt(money.x2, money.y2).m_bOverMoney);
    EXPECT_FALSE(PlaceAt(money.x1, money.y1 - 0.001F).IsSomething());
}

TEST_F(BoardPlaceTest, TipBoxKeepsToTheBoard) {
    const QSize box(1500, 400);
    const QSize board(12000, 12000);
    BoardPlace left;
    left.m_iOverSpace = 9;
    EXPECT_EQ(TipBoxPosition(left, 1000, 2000, box, board), QPoint(1120, 2420));
    BoardPlace right;
    right.m_iOverSpace = 22;
    EXPECT_EQ(TipBoxPosition(right, 11000, 2000, box, board), QPoint(9500, 2420));
    EXPECT_EQ(TipBoxPosition(right, 13000, 2000, box, board).x(), 10500);
    BoardPlace bottom;
    bottom.m_iOverSpace = 3;
    EXPECT_EQ(TipBoxPosition(bottom, 5000, 11000, box, board), QPoint(5120, 11760));
}

} // namespace
