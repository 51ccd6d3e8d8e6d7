// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

#include <array>

/// Where the parts of the main window lie. All lengths are twips.
struct MainLayout {
    static constexpr int kButtons = 5;
    static constexpr int kGap = 120;
    static constexpr int kScrollBar = 240;
    static constexpr int kSmallestBoard = 1800;

    QRect picBoard;
    QRect hscrl;
    QRect vscrl;
    bool bScrollBars = false;
    std::array<QRect, kButtons> cmd;
};

/// What the layout has to fit into.
struct MainWindowSize {
    /// The whole window with its frame, title and menus.
    QSize window;
    /// What lies below the menus.
    QSize client;
    int lToolBarHeight = 0;
    int lButtonHeight = 0;
};

MainLayout ComputeMainLayout(const MainWindowSize& sizes, float fZoom);

/// A rectangle of the layout in pixels.
QRect InPixels(const QRect& twips);

/// The smallest client area in which the smallest board and its buttons show.
QSize SmallestClient(int lToolBarHeight, int lButtonHeight);

/// Device units by which a zoomed view is shifted: lValue of lMax scrolled, in a picture of lPicture twips.
int ScrollOffset(int lValue, int lMax, float fZoom, int lPicture, int lTwipsPerPixel);

/// Width and height that the window asks for at the start, in twips; nothing asked for on a small screen.
int MainWindowSizeWanted(int lScreenHeight, int lTwipsPerPixel);
