// SPDX-License-Identifier: MIT
#include "app/MainLayout.h"

#include "platform/paint/Units.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace {

// What the window's height holds beside the board: title and menus, the row of buttons, and air.
constexpr int kAboveBoard = 480;
constexpr int kBelowBoard = 600;
constexpr int kAir = 120;

int BoardSide(const MainWindowSize& sizes) {
    const int lTall = sizes.window.height() - kAboveBoard - kBelowBoard - kAir;
    const int lWide = sizes.window.width() - MainLayout::kGap * 2;
    // The formula knows the window's size only; what the desktop's menus and buttons really take comes on top.
    const int tallest = sizes.client.height() - sizes.lToolBarHeight - sizes.lButtonHeight - MainLayout::kGap * 2;
    const int widest = sizes.client.width() - MainLayout::kGap * 2;
    return std::max(std::min({lTall, lWide, tallest, widest}), MainLayout::kSmallestBoard);
}

// Puts the side panel or its handle beside a board of this side, and answers where the board's left edge is.
int PlaceSide(MainLayout& layout, const MainWindowSize& sizes, int lSize, MainLayout::Side side) {
    const int left = lSize + MainLayout::kGap * 2;
    const int free = sizes.client.width() - left;
    if (side == MainLayout::Side::None || free < MainLayout::kLeastSide) return MainLayout::kGap;
    const int top = sizes.lToolBarHeight;
    const int height = lSize + MainLayout::kGap + sizes.lButtonHeight;
    if (side == MainLayout::Side::Shown) {
        layout.sideHandle = QRect(left, top, MainLayout::kSideHandle, height);
        layout.side = QRect(left + MainLayout::kSideHandle, top, free - MainLayout::kSideHandle, height);
        return MainLayout::kGap;
    }
    const int room = sizes.client.width() - MainLayout::kSideHandle;
    layout.sideHandle = QRect(room, top, MainLayout::kSideHandle, height);
    return (room - lSize) / 2 / kTwipsPerPixel * kTwipsPerPixel;
}

} // namespace

MainLayout ComputeMainLayout(const MainWindowSize& sizes, float fZoom, MainLayout::Side side) {
    MainLayout layout;
    const int lSize = BoardSide(sizes);
    const QPoint at(PlaceSide(layout, sizes, lSize, side), sizes.lToolBarHeight);
    layout.bScrollBars = fZoom > 1.0F;
    const int lBoard = layout.bScrollBars ? lSize - MainLayout::kScrollBar : lSize;
    layout.picBoard = QRect(at, QSize(lBoard, lBoard));
    layout.hscrl = QRect(at.x(), at.y() + lBoard, lBoard, MainLayout::kScrollBar);
    layout.vscrl = QRect(at.x() + lBoard, at.y(), MainLayout::kScrollBar, lBoard);
    const int lWidth = CLng((lSize - MainLayout::kBesideButtons) / double(MainLayout::kButtons));
    for (int i = 0; i < MainLayout::kButtons; ++i) {
        layout.cmd[size_t(i)] = QRect((lWidth + MainLayout::kGap) * i + at.x(), at.y() + lSize + MainLayout::kGap,
                                      lWidth, sizes.lButtonHeight);
    }
    return layout;
}

QRect InPixels(const QRect& twips) {
    return QRect(twips.left() / kTwipsPerPixel, twips.top() / kTwipsPerPixel, twips.width() / kTwipsPerPixel,
                 twips.height() / kTwipsPerPixel);
}

QSize SmallestClient(int lToolBarHeight, int lButtonHeight) {
    return QSize(MainLayout::kSmallestBoard + MainLayout::kGap * 2,
                 lToolBarHeight + MainLayout::kSmallestBoard + MainLayout::kGap * 2 + lButtonHeight);
}

QSize UsefulClient(QSize smallest, int lWidest, QSize free) {
    const int board = lWidest * MainLayout::kButtons + MainLayout::kBesideButtons;
    const int more = std::max(board - MainLayout::kSmallestBoard, 0);
    return (smallest + QSize(more, more)).boundedTo(free).expandedTo(smallest);
}

int ScrollOffset(int lValue, int lMax, float fZoom, int lPicture, int lTwipsPerPixel) {
    if (!(fZoom > 1.0F) || lMax <= 0) return 0;
    const double fHidden = 1.0 - 1.0 / double(fZoom);
    const double fPart = lValue * fHidden / lMax;
    return CLng(-fPart * double(fZoom) * lPicture / lTwipsPerPixel);
}

int MainWindowSizeWanted(int lScreenHeight, int lTwipsPerPixel) {
    constexpr int kSmallScreen = 600;
    constexpr int kSide = 960;
    constexpr int kSmallSide = 800;
    constexpr int kPixelsOfSmallScreen = 1024;
    if (lScreenHeight <= kSmallScreen * lTwipsPerPixel) return 0;
    // Twips against pixels: kept on purpose, so every real screen gets the large window.
    const int side = lScreenHeight < kPixelsOfSmallScreen ? kSmallSide : kSide;
    return side * lTwipsPerPixel;
}
