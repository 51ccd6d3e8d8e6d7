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
    /// What of the board's width the row of buttons leaves free, which are its gaps.
    static constexpr int kBesideButtons = 480;
    /// What has to be free beside the board for the side panel, with its handle.
    static constexpr int kLeastSide = 3600;
    static constexpr int kSideHandle = 210;

    /// Whether there is a side panel to show, and whether it is wished.
    enum class Side { None, Shown, Hidden };

    QRect picBoard;
    QRect hscrl;
    QRect vscrl;
    bool bScrollBars = false;
    std::array<QRect, kButtons> cmd;
    /// Empty where they don't show.
    QRect side;
    QRect sideHandle;
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

/// A hidden side panel leaves its field to the board, which then stands in the middle; without room for the panel the
/// board stands at the left.
MainLayout ComputeMainLayout(const MainWindowSize& sizes, float fZoom, MainLayout::Side side = MainLayout::Side::None);

/// A rectangle of the layout in pixels.
QRect InPixels(const QRect& twips);

/// The smallest client area in which the smallest board and its buttons show.
QSize SmallestClient(int lToolBarHeight, int lButtonHeight);

/// The smallest client area that is of use to anybody: no caption of a button, of which the widest is told, is cut. As
/// far as the free area allows.
QSize UsefulClient(QSize smallest, int lWidest, QSize free);

/// Device units by which a zoomed view is shifted: lValue of lMax scrolled, in a picture of lPicture twips.
int ScrollOffset(int lValue, int lMax, float fZoom, int lPicture, int lTwipsPerPixel);

/// Width and height that the window asks for at the start, in twips; nothing asked for on a small screen.
int MainWindowSizeWanted(int lScreenHeight, int lTwipsPerPixel);
