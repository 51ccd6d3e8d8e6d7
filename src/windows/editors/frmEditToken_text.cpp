// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditToken.h"

#include "platform/paint/Units.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windows/editors/HoldFocusBox.h"

#include <QKeyEvent>
#include <QPlainTextEdit>

void frmEditToken::KeepTyped(const QStringList& sTextLines) {
    if (!EnterText(TypedText::Joined(sTextLines))) m_selection.Clear();
}

// True when the token shows the text now; false when it keeps its picture, and everything else as it was.
bool frmEditToken::EnterText(const QString& sText) {
    if (HasImage() && !MayClearImage()) return false;
    SetText(sText);
    return true;
}

bool frmEditToken::MayClearImage() {
    // "test" is how the question has always read.
    if (MsgBox(QStringLiteral("Entering Text will clear the image from the token. Do you wish to use test instead of "
                              "an image?"),
               vbYesNo + vbQuestion, QStringLiteral("Clear Image")) != vbYes)
        return false;
    ShowInclude(kText);
    SetImagePath(QString());
    return true;
}

void frmEditToken::txtToken_Change() try {
    // The box goes back with the text.
    if (!EnterText(TypedText::Joined(txtToken->toPlainText().split(u'\n')))) SetText(m_oToken.TextAll());
    m_selection.Clear();
    Redraw();
} catch (...) {
    ErrTop("frmEditToken!", "txtToken_Change");
}

bool frmEditToken::WhereIsMouse(float X, float Y, int& iCol, int& iRow) try {
    return m_oToken.FindInsertPoint(0, 0, picDest->width(), picDest->height(), *picDest,
                                    CLng(X / double(kTwipsPerPixel)), CLng(Y / double(kTwipsPerPixel)), iCol, iRow);
} catch (...) {
    ErrTail("frmEditToken!", "WhereIsMouse", X, Y);
}

void frmEditToken::picDest_MouseDown(int iButton, int iShift, float X, float Y) try {
    if (iButton != PictureBox::kLeftButton) return;
    int column = 0;
    int row = 0;
    m_bSelecting = WhereIsMouse(X, Y, column, row);
    if (m_bSelecting) {
        m_bSelecting = !MarkByClick(iShift, column, row);
    } else {
        m_selection.Clear();
    }
    txtHoldFocus->setFocus(Qt::MouseFocusReason);
    Redraw();
} catch (...) {
    ErrTop("frmEditToken!", "picDest_MouseDown", iButton, iShift, X, Y);
}

std::optional<QPoint> frmEditToken::TextPlaceAt(QPoint at) {
    int column = 0;
    int row = 0;
    const bool found = WhereIsMouse(float(at.x() * kTwipsPerPixel), float(at.y() * kTwipsPerPixel), column, row);
    return found ? std::optional(QPoint(column, row)) : std::nullopt;
}

void frmEditToken::picDest_MouseMove(int iButton, int iShift, float X, float Y) try {
    int column = 0;
    int row = 0;
    const bool inText = WhereIsMouse(X, Y, column, row);
    if (iButton == 0) {
        m_bSelecting = false;
        picDest->setCursor(inText ? Qt::IBeamCursor : Qt::ArrowCursor);
    } else if (m_bSelecting && m_selection.IsOn() && m_selection.SetEnd(column, row)) {
        Redraw();
    }
} catch (...) {
    ErrTop("frmEditToken!", "picDest_MouseMove", iButton, iShift, X, Y);
}

void frmEditToken::picDest_MouseUp(int iButton, int, float, float) {
    if (iButton == PictureBox::kLeftButton) m_bSelecting = false;
}

void frmEditToken::picDest_BackingChanged() try { Redraw(); } catch (...) {
    ErrTop("frmEditToken!", "picDest_BackingChanged");
}
