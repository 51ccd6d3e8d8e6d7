// SPDX-License-Identifier: MIT
#pragma once

#include "app/BoardPlace.h"

#include <QObject>
#include <QPointF>
#include <QTimer>

#include <functional>

class PictureBox;
class QKeyEvent;
class QRubberBand;
class QScrollBar;
class QWheelEvent;
class QWidget;
class ToolTips;
struct MainLayout;

/// The board in the main window, whole or zoomed and scrolled: paints it, finds what lies under the mouse, and
/// pastes photographs as they are decoded. Coordinates are twips of picBoard.
class BoardView : public QObject {
    Q_OBJECT

public:
    /// What the view asks of the window around it.
    struct Window {
        /// The zoom has changed, and with it what the board and its scroll bars take.
        std::function<void()> layOut;
        /// A place was clicked.
        std::function<void(const BoardPlace&)> open;
    };

    BoardView(QWidget& parent, ToolTips& tips, Window window);

    PictureBox& Board() { return *picBoard; }
    /// 1.0 shows the board whole.
    float Zoom() const { return m_fZoom; }
    /// 1 to 4.
    void SetZoom(int iZoom);
    /// As at the start, without painting.
    void ForgetZoom() { m_fZoom = 1.0F; }
    /// Puts board and scroll bars where they belong; doesn't paint.
    void LayOut(const MainLayout& layout);

    /// Returns at once while painting is held off, and while the window doesn't show.
    void Redraw();
    void SetNoRedraw(bool bNoRedraw) { m_bNoRedraw = bNoRedraw; }
    bool IsNoRedraw() const { return m_bNoRedraw; }

    void WhatIsMouseOver(float X, float Y);
    const BoardPlace& Over() const { return m_over; }
    /// Of the last hit test: found something different from the one before; found something.
    bool IsOverChanged() const { return m_bOverChanged; }
    bool IsOverSomething() const { return m_bOverSomething; }

    /// As a click on the place.
    void Open(const BoardPlace& place);
    /// Where the place is seen, in pixels of the board; what a zoomed board hides lies outside it.
    QRect SeenBox(const BoardPlace& place) const;
    /// Scrolls a zoomed board so that the place comes to the middle.
    void ScrollTo(const BoardPlace& place);
    /// Scrolls a zoomed board to the place, and frames it for a moment.
    void ShowPlace(const BoardPlace& place);

    /// Scrolls a zoomed board by the keyboard; false for any other key.
    bool TakesKey(const QKeyEvent& event);
    /// Scrolls, or with Ctrl zooms.
    void Wheel(const QWheelEvent& event);

public Q_SLOTS:
    void picBoard_MouseDown(int Button, int Shift, float X, float Y);
    void picBoard_MouseMove(int Button, int Shift, float X, float Y);
    void picBoard_Paint();
    void hscrl_Change();
    void vscrl_Change();
    /// Pastes pictures that have been decoded since the board was painted.
    void TimerPictures_Timer();

Q_SIGNALS:
    /// The board stands there anew, with other places perhaps.
    void Painted();

private:
    QScrollBar* MakeBar(QWidget& parent, const char* sName, Qt::Orientation orientation);
    void PaintBoard();
    void AwaitPictures(bool bAwaited);
    void ClearHitState();
    void ShowTips(float X, float Y);
    int ScrollOffsetOf(const QScrollBar& bar) const;
    void ScrollBy(int iSteps, Qt::Orientation orientation, bool bPages);
    void ZoomAtMouse(int iZoom, QPointF position);

    ToolTips& m_tips;
    Window m_window;
    PictureBox* picBoard;
    QScrollBar* hscrl;
    QScrollBar* vscrl;
    QRubberBand* m_frame;
    QTimer TimerPictures;
    QTimer TimerFrame;

    float m_fZoom = 1.0F;
    /// While true, Redraw returns at once.
    bool m_bNoRedraw = false;
    BoardPlace m_over;
    bool m_bOverChanged = false;
    bool m_bOverSomething = false;
    QString m_sBoardTip;
    QPointF m_last{-1, -1};
    int m_wheelTurn = 0;
};
