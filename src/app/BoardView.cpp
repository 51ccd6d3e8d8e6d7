// SPDX-License-Identifier: MIT
#include "app/BoardView.h"

#include "app/MainLayout.h"
#include "app/ToolTips.h"
#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "drawing/basBMP.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/Desktop.h"
#include "windowing/HourGlass.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windowing/WidgetLook.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRubberBand>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace {

constexpr int kScrollMax = 32767;
constexpr int kSmallestZoom = 1;
constexpr int kLargestZoom = 4;
// A notch of the wheel in the toolkit's units, and how many of a bar's small steps it scrolls.
constexpr int kWheelNotch = 120;
constexpr int kStepsPerNotch = 3;
constexpr int kStepsPerPage = 10;
constexpr int kPicturesInterval = 40;
// How long a place stays framed.
constexpr int kFrameMs = 2000;

} // namespace

BoardView::BoardView(QWidget& parent, ToolTips& tips, Window window)
    : m_tips(tips), m_window(std::move(window)), picBoard(new PictureBox(&parent)),
      hscrl(MakeBar(parent, "hscrl", Qt::Horizontal)), vscrl(MakeBar(parent, "vscrl", Qt::Vertical)),
      m_frame(new QRubberBand(QRubberBand::Rectangle, picBoard)) {
    picBoard->setObjectName(QStringLiteral("picBoard"));
    picBoard->setFocusPolicy(Qt::StrongFocus);
    picBoard->setAccessibleName(QStringLiteral("Game board"));
    m_tips.Watch(*picBoard);
    connect(picBoard, &PictureBox::MouseDown, this, &BoardView::picBoard_MouseDown);
    connect(picBoard, &PictureBox::MouseMove, this, &BoardView::picBoard_MouseMove);
    connect(picBoard, &PictureBox::BackingChanged, this, &BoardView::picBoard_Paint);
    connect(hscrl, &QScrollBar::valueChanged, this, &BoardView::hscrl_Change);
    connect(vscrl, &QScrollBar::valueChanged, this, &BoardView::vscrl_Change);
    TimerPictures.setObjectName(QStringLiteral("TimerPictures"));
    connect(&TimerPictures, &QTimer::timeout, this, &BoardView::TimerPictures_Timer);
    m_frame->setObjectName(QStringLiteral("frmShownPlace"));
    TimerFrame.setSingleShot(true);
    connect(&TimerFrame, &QTimer::timeout, m_frame, &QRubberBand::hide);
}

QScrollBar* BoardView::MakeBar(QWidget& parent, const char* sName, Qt::Orientation orientation) {
    auto* const bar = new QScrollBar(orientation, &parent);
    bar->setObjectName(QString::fromLatin1(sName));
    bar->setRange(0, kScrollMax);
    bar->hide();
    return bar;
}

void BoardView::LayOut(const MainLayout& layout) {
    picBoard->setGeometry(InPixels(layout.picBoard));
    hscrl->setGeometry(InPixels(layout.hscrl));
    vscrl->setGeometry(InPixels(layout.vscrl));
    for (QScrollBar* bar : {hscrl, vscrl}) {
        bar->setVisible(layout.bScrollBars);
        if (!layout.bScrollBars) continue;
        // So that the bar's slider is as long a part of it as the visible part of the board.
        bar->setPageStep(int(kScrollMax / (m_fZoom - 1.0F)));
        bar->setSingleStep(bar->pageStep() / kStepsPerPage);
    }
    const bool bNoRedraw = std::exchange(m_bNoRedraw, true);
    hscrl_Change();
    vscrl_Change();
    m_bNoRedraw = bNoRedraw;
}

// What was in the middle stays there.
void BoardView::SetZoom(int iZoom) {
    const auto middleOf = [this](const QScrollBar& bar) {
        const double hidden = 1.0 - 1.0 / double(std::max(m_fZoom, 1.0F));
        return double(bar.value()) / kScrollMax * hidden + (1.0 - hidden) / 2;
    };
    const QPointF middle(middleOf(*hscrl), middleOf(*vscrl));
    const bool anew = float(iZoom) != m_fZoom;
    ClearHitState();
    m_tips.HideBox();
    m_fZoom = float(iZoom);
    basPosit::PosSetScale(m_fZoom);
    const bool bNoRedraw = std::exchange(m_bNoRedraw, true);
    if (anew && iZoom > kSmallestZoom) {
        const double hidden = 1.0 - 1.0 / double(iZoom);
        const auto placeOf = [hidden](double at) {
            return int(std::lround((at - (1.0 - hidden) / 2) / hidden * kScrollMax));
        };
        hscrl->setValue(placeOf(middle.x()));
        vscrl->setValue(placeOf(middle.y()));
    }
    m_bNoRedraw = bNoRedraw;
    m_window.layOut();
}

int BoardView::ScrollOffsetOf(const QScrollBar& bar) const {
    return ScrollOffset(bar.value(), bar.maximum(), m_fZoom, picBoard->width() * kTwipsPerPixel, kTwipsPerPixel);
}

void BoardView::hscrl_Change() try {
    if (m_fZoom == 0) m_fZoom = 1.0F;
    basPosit::PosSetOffsetX(ScrollOffsetOf(*hscrl));
    Redraw();
} catch (...) {
    ErrTop("frmTAVL!", "hscrl_Change");
}

void BoardView::vscrl_Change() try {
    if (m_fZoom == 0) m_fZoom = 1.0F;
    basPosit::PosSetOffsetY(ScrollOffsetOf(*vscrl));
    Redraw();
} catch (...) {
    ErrTop("frmTAVL!", "vscrl_Change");
}

void BoardView::ScrollBy(int iSteps, Qt::Orientation orientation, bool bPages) {
    QScrollBar& bar = orientation == Qt::Horizontal ? *hscrl : *vscrl;
    bar.setValue(bar.value() + iSteps * (bPages ? bar.pageStep() : bar.singleStep()));
}

void BoardView::ScrollTo(const BoardPlace& place) {
    if (!(m_fZoom > 1)) return;
    const QPointF middle = place.Box().center();
    const double side = picBoard->width() * double(m_fZoom);
    const double hidden = side - picBoard->width();
    const auto middleTo = [&](QScrollBar& bar, double at) {
        bar.setValue(int(std::lround((at * side - picBoard->width() / 2.0) / hidden * kScrollMax)));
    };
    middleTo(*hscrl, middle.x());
    middleTo(*vscrl, middle.y());
}

QRect BoardView::SeenBox(const BoardPlace& place) const {
    const QRectF box = place.Box();
    const double side = picBoard->width() * double(m_fZoom);
    const QPointF offset(basPosit::GetOffsetX(), basPosit::GetOffsetY());
    return QRectF(box.topLeft() * side, box.size() * side).translated(offset).toAlignedRect();
}

void BoardView::ShowPlace(const BoardPlace& place) {
    m_frame->hide();
    if (place.Box().isEmpty()) return;
    ScrollTo(place);
    m_frame->setGeometry(SeenBox(place));
    m_frame->show();
    TimerFrame.start(kFrameMs);
}

void BoardView::ZoomAtMouse(int iZoom, QPointF position) {
    const int zoom = std::clamp(iZoom, kSmallestZoom, kLargestZoom);
    if (float(zoom) == m_fZoom) return;
    // The place under the mouse stays there.
    const double side = picBoard->width();
    const double fX = (position.x() - basPosit::GetOffsetX()) / side / double(m_fZoom);
    const double fY = (position.y() - basPosit::GetOffsetY()) / side / double(m_fZoom);
    m_bNoRedraw = true;
    SetZoom(zoom);
    if (zoom > kSmallestZoom) {
        const double hidden = picBoard->width() * (zoom - 1.0);
        hscrl->setValue(int(std::lround((fX * picBoard->width() * zoom - position.x()) / hidden * kScrollMax)));
        vscrl->setValue(int(std::lround((fY * picBoard->width() * zoom - position.y()) / hidden * kScrollMax)));
    }
    m_bNoRedraw = false;
    Redraw();
}

bool BoardView::TakesKey(const QKeyEvent& event) {
    if (!(m_fZoom > 1.0F)) return false;
    const Qt::Orientation page = event.modifiers().testFlag(Qt::ControlModifier) ? Qt::Horizontal : Qt::Vertical;
    switch (event.key()) {
        case Qt::Key_Left:
            ScrollBy(-1, Qt::Horizontal, false);
            return true;
        case Qt::Key_Right:
            ScrollBy(1, Qt::Horizontal, false);
            return true;
        case Qt::Key_Up:
            ScrollBy(-1, Qt::Vertical, false);
            return true;
        case Qt::Key_Down:
            ScrollBy(1, Qt::Vertical, false);
            return true;
        case Qt::Key_PageUp:
            ScrollBy(-1, page, true);
            return true;
        case Qt::Key_PageDown:
            ScrollBy(1, page, true);
            return true;
        default:
            return false;
    }
}

void BoardView::Wheel(const QWheelEvent& event) {
    const QPoint angle = event.angleDelta();
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        // Fine wheels turn by parts of a notch.
        m_wheelTurn += angle.y();
        const int notches = m_wheelTurn / kWheelNotch;
        m_wheelTurn -= notches * kWheelNotch;
        if (notches != 0) ZoomAtMouse(int(m_fZoom) + notches, picBoard->mapFrom(picBoard->window(), event.position()));
    } else if (m_fZoom > 1.0F) {
        const bool sideways = event.modifiers().testFlag(Qt::ShiftModifier);
        const QPoint turn = sideways ? QPoint(angle.x() + angle.y(), 0) : angle;
        hscrl->setValue(hscrl->value() - turn.x() * hscrl->singleStep() * kStepsPerNotch / kWheelNotch);
        vscrl->setValue(vscrl->value() - turn.y() * vscrl->singleStep() * kStepsPerNotch / kWheelNotch);
    }
}

void BoardView::Redraw() try {
    // An invisible board needn't be painted: showing it paints it.
    if (m_bNoRedraw || !picBoard->window()->isVisible()) return;
    const HourGlass hourGlass;
    basMsgQueue::MsgQueue_Init();
    try {
        PaintBoard();
    } catch (...) {
        // The queue must not stay open, or every later message would wait in it.
        basMsgQueue::MsgQueue_Display();
        throw;
    }
    basMsgQueue::MsgQueue_Display();
    Q_EMIT Painted();
} catch (...) {
    ErrTail("frmTAVL!", "Redraw");
}

void BoardView::PaintBoard() {
    DeviceContext& hDC = picBoard->hDC();
    const int depth = hDC.SaveDC();
    picBoard->Cls();
    basPosit::PosInit();
    basPosit::PosSethDC(&hDC);
    basBMP::BMP_SetHDC(&hDC);
    basPosit::PosSetScale(float(picBoard->width()) * m_fZoom);
    basPosit::PosSetWidth(picBoard->width());
    const ScaleModeKind mode = std::exchange(picBoard->ScaleMode, ScaleModeKind::Pixels);
    basPosit::PosSetPicture(picBoard, true, basPosit::PicturesShown::Ready);
    basPosit::PosDrawAll();
    picBoard->ScaleMode = mode;
    hDC.RestoreDC(depth);
    picBoard->Refresh();
    AwaitPictures(basPosit::PosPicturesAwaited() > 0);
}

void BoardView::AwaitPictures(bool bAwaited) {
    if (bAwaited) {
        TimerPictures.start(kPicturesInterval);
    } else {
        TimerPictures.stop();
    }
}

void BoardView::TimerPictures_Timer() try {
    // The window on top may be in the middle of its own drawing, or a page is being painted: there is one drawing
    // layer.
    if (m_bNoRedraw || QApplication::activeModalWidget()) return;
    basMsgQueue::MsgQueue_Init();
    DeviceContext& hDC = picBoard->hDC();
    const int depth = hDC.SaveDC();
    const ScaleModeKind mode = std::exchange(picBoard->ScaleMode, ScaleModeKind::Pixels);
    const auto putBack = [&] {
        picBoard->ScaleMode = mode;
        hDC.RestoreDC(depth);
        basMsgQueue::MsgQueue_Display();
    };
    try {
        basPosit::PosSethDC(&hDC);
        const int iAwaited = basPosit::PosDrawAwaited();
        picBoard->Refresh();
        AwaitPictures(iAwaited > 0);
    } catch (...) {
        // Later messages would wait in the queue for ever, and later drawings begin amid this one.
        putBack();
        throw;
    }
    putBack();
} catch (...) {
    TimerPictures.stop();
    ErrTop("frmTAVL!", "TimerPictures_Timer");
}

void BoardView::picBoard_Paint() try { Redraw(); } catch (...) {
    ErrTop("frmTAVL!", "picBoard_Paint");
}

void BoardView::WhatIsMouseOver(float X, float Y) try {
    const float fSide = float(picBoard->width() * kTwipsPerPixel);
    const float fX = (X - float(basPosit::GetOffsetX() * kTwipsPerPixel)) / fSide / m_fZoom;
    const float fY = (Y - float(basPosit::GetOffsetY() * kTwipsPerPixel)) / fSide / m_fZoom;
    const BoardPlace place = PlaceAt(fX, fY);
    m_bOverChanged = place != m_over;
    m_over = place;
    m_bOverSomething = place.IsSomething();
} catch (...) {
    ErrTail("frmTAVL!", "WhatIsMouseOver", X, Y);
}

void BoardView::ClearHitState() {
    m_over = BoardPlace{};
    m_bOverChanged = false;
    m_bOverSomething = false;
}

void BoardView::Open(const BoardPlace& place) {
    const QString refusal = WhyNotEditable(place);
    if (!refusal.isEmpty()) {
        MsgBox(refusal, vbInformation);
    } else {
        m_window.open(place);
    }
}

void BoardView::picBoard_MouseDown(int Button, int Shift, float X, float Y) try {
    WhatIsMouseOver(X, Y);
    // A copy, as the mouse goes on moving while the editor stands.
    Open(BoardPlace(m_over));
} catch (...) {
    ErrTop("frmTAVL!", "picBoard_MouseDown", Button, Shift, X, Y);
}

void BoardView::picBoard_MouseMove(int Button, int Shift, float X, float Y) try {
    const QPointF position{double(X), double(Y)};
    if (position == m_last) return;
    m_last = position;
    WhatIsMouseOver(X, Y);
    ShowTips(X, Y);
    picBoard->setCursor(m_over.IsEditable() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    m_tips.Restart(m_tips.AreTimed() && m_over.IsEditable());
} catch (...) {
    ErrTop("frmTAVL!", "picBoard_MouseMove", Button, Shift, X, Y);
}

void BoardView::ShowTips(float X, float Y) {
    m_sBoardTip = BoardTipOf(m_over);
    WidgetLook::SetToolTip(*picBoard, m_sBoardTip);
    if (!m_bOverSomething) {
        m_tips.HideBox();
        return;
    }
    constexpr int kTwips = kTwipsPerPixel;
    m_tips.SetBoxText(TipBoxTextOf(m_over));
    const QPoint at = TipBoxPosition(m_over, X, Y, m_tips.BoxSize() * kTwips, picBoard->size() * kTwips);
    m_tips.MoveBox(picBoard->pos() + at / kTwips);
}
