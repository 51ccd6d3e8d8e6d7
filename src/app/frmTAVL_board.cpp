// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/EditorRoutes.h"
#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "document/basTAVL.h"
#include "drawing/basBMP.h"
#include "platform/paint/Units.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/basPath.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"

#include <QApplication>

#include <utility>

namespace {

/// The hourglass while work is under way, whatever way it ends.
class Hourglass {
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

} // namespace

void frmTAVL::Redraw() try {
    // An invisible board needn't be painted: showing it paints it.
    if (m_bNoRedraw || !isVisible()) return;
    const Hourglass hourglass;
    basMsgQueue::MsgQueue_Init();
    try {
        PaintBoard();
    } catch (...) {
        // The queue must not stay open, or every later message would wait in it.
        basMsgQueue::MsgQueue_Display();
        throw;
    }
    basMsgQueue::MsgQueue_Display();
} catch (...) {
    ErrTail("frmTAVL!", "Redraw");
}

void frmTAVL::PaintBoard() try {
    DeviceContext& hDC = picBoard->hDC();
    const int depth = hDC.SaveDC();
    picBoard->Cls();
    basPosit::PosInit();
    basPosit::PosSethDC(&hDC);
    basBMP::BMP_SetHDC(&hDC);
    basPosit::PosSetScale(float(picBoard->width()) * m_fZoom);
    basPosit::PosSetWidth(picBoard->width());
    const ScaleModeKind mode = picBoard->ScaleMode;
    picBoard->ScaleMode = ScaleModeKind::Pixels;
    basPosit::PosSetPicture(picBoard, true, basPosit::PicturesShown::Ready);
    basPosit::PosDrawAll();
    picBoard->ScaleMode = mode;
    hDC.RestoreDC(depth);
    picBoard->Refresh();
    AwaitPictures(basPosit::PosPicturesAwaited() > 0);
} catch (...) {
    ErrTail("frmTAVL!", "PaintBoard");
}

void frmTAVL::AwaitPictures(bool bAwaited) {
    constexpr int kInterval = 40;
    if (bAwaited) {
        TimerPictures.start(kInterval);
    } else {
        TimerPictures.stop();
    }
}

void frmTAVL::TimerPictures_Timer() try {
    // The window on top may be in the middle of its own drawing, and there is one drawing layer.
    if (QApplication::activeModalWidget()) return;
    basMsgQueue::MsgQueue_Init();
    DeviceContext& hDC = picBoard->hDC();
    const int depth = hDC.SaveDC();
    basPosit::PosSethDC(&hDC);
    const ScaleModeKind mode = std::exchange(picBoard->ScaleMode, ScaleModeKind::Pixels);
    const int iAwaited = basPosit::PosDrawAwaited();
    picBoard->ScaleMode = mode;
    hDC.RestoreDC(depth);
    picBoard->Refresh();
    AwaitPictures(iAwaited > 0);
    basMsgQueue::MsgQueue_Display();
} catch (...) {
    TimerPictures.stop();
    ErrTop("frmTAVL!", "TimerPictures_Timer");
}

void frmTAVL::picBoard_Paint() try { Redraw(); } catch (...) {
    ErrTop("frmTAVL!", "picBoard_Paint");
}

void frmTAVL::WhatIsMouseOver(float X, float Y) try {
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

void frmTAVL::ClearHitState() {
    m_over = BoardPlace{};
    m_bOverChanged = false;
    m_bOverSomething = false;
}

void frmTAVL::picBoard_MouseDown(int Button, int Shift, float X, float Y) try {
    WhatIsMouseOver(X, Y);
    const BoardPlace place = m_over;
    const QString refusal = WhyNotEditable(place);
    if (!refusal.isEmpty()) {
        MsgBox(refusal, vbInformation);
    } else if (place.m_iOverSpace >= 0) {
        EditSpaceText(place.m_iOverSpace);
    } else if (place.m_iOverCorner >= 0) {
        EditCornerText(place.m_iOverCorner);
    } else if (place.m_bOverTitles) {
        EditCenterText();
    } else if (place.m_bOverGoodNews) {
        EditNews(0);
    } else if (place.m_bOverBadNews) {
        EditNews(1);
    } else if (place.m_bOverMoney) {
        EditMoney();
    } else if (place.m_bOverTokens) {
        EditToken();
    }
} catch (...) {
    ErrTop("frmTAVL!", "picBoard_MouseDown", Button, Shift, X, Y);
}

void frmTAVL::picBoard_MouseMove(int Button, int Shift, float X, float Y) try {
    const QPointF position{double(X), double(Y)};
    if (position == m_lastOnBoard) return;
    m_lastOnBoard = position;
    WhatIsMouseOver(X, Y);
    if (m_bOverSomething) {
        ShowTips();
        PlaceTipBox(X, Y);
    } else {
        m_tips.HideBox();
        m_sBoardTip.clear();
        WidgetLook::SetToolTip(*picBoard, m_sBoardTip);
    }
    picBoard->setCursor(m_over.IsEditable() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    m_tips.Restart(m_tips.AreTimed() && m_over.IsEditable());
} catch (...) {
    ErrTop("frmTAVL!", "picBoard_MouseMove", Button, Shift, X, Y);
}

void frmTAVL::ShowTips() {
    m_tips.SetBoxText(TipBoxTextOf(m_over));
    m_sBoardTip = BoardTipOf(m_over);
    WidgetLook::SetToolTip(*picBoard, m_sBoardTip);
}

void frmTAVL::PlaceTipBox(float X, float Y) {
    const int twips = kTwipsPerPixel;
    const QPoint at = TipBoxPosition(m_over, X, Y, m_tips.BoxSize() * twips, picBoard->size() * twips);
    m_tips.MoveBox(picBoard->pos() + at / twips);
}

void frmTAVL::ChangedByEditor(bool bChanged, bool bRedraw) try {
    if (!bChanged) return;
    SetSomethingChanged(true);
    if (bRedraw) Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "ChangedByEditor", bChanged, bRedraw);
}

void frmTAVL::EditCenterText() try { ChangedByEditor(EditorRoutes::Current().EditCenter(), true); } catch (...) {
    ErrTail("frmTAVL!", "EditCenterText");
}

void frmTAVL::EditCornerText(int iCorner) try {
    ChangedByEditor(EditorRoutes::Current().EditCorner(iCorner), true);
} catch (...) {
    ErrTail("frmTAVL!", "EditCornerText", iCorner);
}

void frmTAVL::EditSpaceText(int iSpace) try {
    ChangedByEditor(EditorRoutes::Current().EditSpace(iSpace), true);
} catch (...) {
    ErrTail("frmTAVL!", "EditSpaceText", iSpace);
}

void frmTAVL::EditNews(int iGoodOrBad) try {
    ChangedByEditor(EditorRoutes::Current().ShowNews(iGoodOrBad), false);
} catch (...) {
    ErrTail("frmTAVL!", "EditNews", iGoodOrBad);
}

void frmTAVL::EditMoney() try { ChangedByEditor(EditorRoutes::Current().EditMoney(), false); } catch (...) {
    ErrTail("frmTAVL!", "EditMoney");
}

void frmTAVL::EditToken() try {
    ChangedByEditor(EditorRoutes::Current().ShowTokens(), false);
    // The editor may have made thumbnails of a token that it then put back.
    for (int i = 0; i < basTAVL::kTokens; ++i)
        basTAVL::g_oTokens(i).Image.GetThumbnail(false);
} catch (...) {
    ErrTail("frmTAVL!", "EditToken");
}
