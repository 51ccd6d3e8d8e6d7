// SPDX-License-Identifier: MIT
#include "windows/editors/EditWindow.h"

#include "platform/paint/Units.h"
#include "services/basErrLog.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PictureBox.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/TipLabel.h"

#include <QCheckBox>
#include <QEvent>
#include <QPushButton>

namespace {

constexpr int kBelowPointer = 20;

QString TwoLines(const char* first, const char* second) {
    return QString::fromLatin1(first) + QStringLiteral("\r\n") + QString::fromLatin1(second);
}

QPoint Pixels(float X, float Y) { return {int(X / kTwipsPerPixel), int(Y / kTwipsPerPixel)}; }

} // namespace

Likeness::Spot EditWindow::WhereIsMouse(float X, float Y) try {
    return m_likeness.WhereIsMouse(*picDest, X / kTwipsPerPixel, Y / kTwipsPerPixel);
} catch (...) {
    ErrTail(m_wording.sModule, "WhereIsMouse", X, Y);
}

void EditWindow::picDest_MouseDown(int iButton, int iShift, float X, float Y) try {
    if (iButton != PictureBox::kLeftButton) return;
    const Likeness::Spot spot = WhereIsMouse(X, Y);
    SetToolTip(QString());
    txtHoldFocus->setFocus(Qt::MouseFocusReason);
    m_bSelecting = spot.bInText;
    if (spot.bInText) {
        m_bSelecting = !MarkByClick(iShift, spot.iCol, spot.iRow);
    } else {
        m_selection.Clear();
    }
    Redraw();
    if (spot.bInImage) cmdBitmap_Click();
} catch (...) {
    ErrTop(m_wording.sModule, "picDest_MouseDown", iButton, iShift, X, Y);
}

std::optional<QPoint> EditWindow::TextPlaceAt(QPoint at) {
    const Likeness::Spot spot = m_likeness.WhereIsMouse(*picDest, at.x(), at.y());
    return spot.bInText ? std::optional(QPoint(spot.iCol, spot.iRow)) : std::nullopt;
}

void EditWindow::picDest_MouseMove(int iButton, int iShift, float X, float Y) try {
    const Likeness::Spot spot = WhereIsMouse(X, Y);
    if (!m_bSelecting) {
        ShowSpotTip(spot, Pixels(X, Y));
    } else if (iButton == 0) {
        m_bSelecting = false;
        picDest->unsetCursor();
        SetToolTip(QString());
    } else if (m_selection.IsOn() && m_selection.SetEnd(spot.iCol, spot.iRow)) {
        Redraw();
    }
} catch (...) {
    ErrTop(m_wording.sModule, "picDest_MouseMove", iButton, iShift, X, Y);
}

void EditWindow::picDest_MouseUp(int iButton, int, float, float) {
    if (iButton == PictureBox::kLeftButton) m_bSelecting = false;
}

void EditWindow::picDest_MouseLeft() { SetToolTip(QString()); }

void EditWindow::picDest_BackingChanged() try { Redraw(); } catch (...) {
    ErrTop(m_wording.sModule, "picDest_BackingChanged");
}

void EditWindow::ShowSpotTip(const Likeness::Spot& spot, QPoint at) {
    if (spot.bInImage) {
        picDest->setCursor(Qt::UpArrowCursor);
        SetToolTip(TwoLines("Click on Image", m_wording.sImageTip),
                   picDest->mapTo(this, at + QPoint(0, kBelowPointer)));
    } else if (spot.bInText) {
        picDest->setCursor(Qt::IBeamCursor);
        // Beside the text: under the pointer it would hide the letter that is aimed at.
        m_tip->ShowUnder(TwoLines("Click on Text", "to Edit"), picDest->mapTo(this, m_likeness.BelowText()));
    } else {
        picDest->unsetCursor();
        SetToolTip(QString());
    }
}

QString EditWindow::TipOf(const QObject* control) const {
    if (control == cmdOK) return TwoLines("Click to Save", "Your Changes");
    if (control == cmdCancel) return TwoLines("Click to Undo", "Your Changes");
    if (control == cmdChangeFont) return QStringLiteral("Change font and max size");
    if (control == cmdSetAllFonts) return QStringLiteral("Set font for all spaces");
    if (control == cmdBitmap) return TwoLines("Click to Change", "The Image");
    if (control == cmdCropImage) return QStringLiteral("Click to Crop The Image");
    if (control == chkIncludeImage)
        return chkIncludeImage->isChecked() ? TwoLines("Click to", "Remove Image")
                                            : TwoLines("Click to Add", "An Image");
    return {};
}

void EditWindow::SetToolTip(const QString& sText, QPoint at) { m_tip->ShowAt(sText, at); }

void EditWindow::Control_MouseMove(const QWidget& control) { m_tip->ShowBeside(TipOf(&control), control); }

bool EditWindow::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            SetToolTip(QString());
            break;
        case QEvent::MouseMove:
            Control_MouseMove(*static_cast<QWidget*>(watched));
            break;
        case QEvent::Leave:
            SetToolTip(QString());
            break;
        default:
            break;
    }
    return TypingWindow::eventFilter(watched, event);
}
