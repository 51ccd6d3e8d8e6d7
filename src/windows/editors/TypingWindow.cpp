// SPDX-License-Identifier: MIT
#include "windows/editors/TypingWindow.h"

#include "drawing/basDraw.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/PaperLine.h"
#include "windows/editors/TextMenu.h"
#include "windows/editors/TipLabel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

using basEditTextArray::KeyResult;

TypingWindow::TypingWindow(const char* sModule, const char* sTip, QWidget* parent)
    : QDialog(parent), picDest(new PictureBox(this)), txtHoldFocus(new HoldFocusBox(this)),
      m_tip(new TipLabel(sTip, this)), lblPaper(new PaperLine(this)), m_sModule(sModule) {
    picDest->setObjectName(QStringLiteral("picDest"));
    picDest->ScaleMode = ScaleModeKind::Pixels;
    txtHoldFocus->installEventFilter(this);
    connect(txtHoldFocus, &HoldFocusBox::Committed, this, &TypingWindow::Form_KeyPress);
    connect(txtHoldFocus, &HoldFocusBox::Composing, this, &TypingWindow::HoldFocus_Composing);
    connect(txtHoldFocus, &HoldFocusBox::TabbedInto, this, &TypingWindow::HoldFocus_Tabbed);
    connect(txtHoldFocus, &HoldFocusBox::TabbedOutOf, this, &TypingWindow::HoldFocus_TabbedOut);
}

bool TypingWindow::TakesKey(const QKeyEvent& event) {
    const TypedText::Key key = TypedText::KeyOf(event);
    if (!m_selection.IsOn() || key.kind == TypedText::Key::Kind::None) return false;
    Form_KeyDown(key);
    return true;
}

void TypingWindow::Form_KeyDown(const TypedText::Key& key) try {
    if (key.kind == TypedText::Key::Kind::Undo || key.kind == TypedText::Key::Kind::Redo)
        return Step(key.kind == TypedText::Key::Kind::Undo);
    QStringList sTextLines = GetTextArray();
    const TypedText::Entry before{sTextLines, m_selection, TypedText::Entered(key)};
    const KeyResult result = TypedText::Take(key, sTextLines, m_selection, Room());
    StoreTyped(result, sTextLines, before);
} catch (...) {
    ErrTop(m_sModule, "Form_KeyDown", key.iKeyCode, key.sText);
}

void TypingWindow::Form_KeyPress(const QString& sText) try {
    if (!m_selection.IsOn()) return;
    QStringList sTextLines = GetTextArray();
    const TypedText::Entry before{sTextLines, m_selection, sText};
    const KeyResult result = TypedText::Feed(sTextLines, m_selection, sText, Room());
    StoreTyped(result, sTextLines, before);
} catch (...) {
    ErrTop(m_sModule, "Form_KeyPress", sText);
}

void TypingWindow::StoreTyped(KeyResult result, const QStringList& sTextLines, const TypedText::Entry& before) {
    // What a line had no room for is told though nothing came of it.
    lblPaper->TellLoss({});
    const bool changed = result == KeyResult::TextChanged;
    // A key that did nothing to the text may still have collapsed the selection.
    if (changed || !(m_selection == before.selection)) {
        if (changed) KeepTyped(sTextLines);
        TypedText::KeepWithin(m_selection, GetTextArray());
        if (changed && GetTextArray() != before.sTextLines)
            m_history.Note({0, before.sTextLines, before.selection}, State(), before.sText);
        Redraw();
    }
    if (m_selection.IsOn()) lblPaper->TellLoss(TypedText::Loss(before, sTextLines, GetTextArray(), Room()));
}

void TypingWindow::Step(bool bUndo) {
    const std::optional<TypedHistory::State> state = bUndo ? m_history.Undo(State()) : m_history.Redo(State());
    if (!state) return;
    lblPaper->TellLoss({});
    KeepTyped(state->sTextLines);
    if (m_selection.IsOn()) m_selection = state->selection;
    TypedText::KeepWithin(m_selection, GetTextArray());
    Redraw();
}

void TypingWindow::BeginTyping() {
    m_history.Clear();
    lblPaper->TellLoss({});
}

void TypingWindow::PlaceCaretBehind() {
    const QStringList sTextLines = GetTextArray();
    m_selection.SetCaret(int(sTextLines.last().size()), int(sTextLines.size()) - 1);
}

bool TypingWindow::MarkByClick(int iShift, int iCol, int iRow) {
    const int clicks = picDest->Clicks();
    if (clicks == 1 && iShift == PictureBox::kShift && m_selection.IsOn()) {
        m_selection.SetEnd(iCol, iRow);
        return true;
    }
    m_selection.SetCaret(iCol, iRow);
    if (clicks == 2) TextMotion::MarkWord(GetTextArray(), m_selection);
    if (clicks == 3) TextMotion::MarkLine(GetTextArray(), m_selection);
    return clicks > 1;
}

// On the text, wherever it is opened by the mouse; at the text when it is opened by a key.
void TypingWindow::contextMenuEvent(QContextMenuEvent* event) try {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    QPoint at = picDest->mapToGlobal(picDest->rect().center());
    if (byMouse) {
        const std::optional<QPoint> place = TextPlaceAt(picDest->mapFromGlobal(event->globalPos()));
        if (!place) return;
        if (!m_selection.IsOn() || !m_selection.HasText()) m_selection.SetCaret(place->x(), place->y());
        TakeFocus();
        Redraw();
        at = event->globalPos();
    } else if (!m_selection.IsOn()) {
        return;
    }
    TextMenu::Show(*this, at, {m_history.CanUndo(), m_history.CanRedo(), m_selection.HasText()},
                   [this](TypedText::Key::Kind kind) { Form_KeyDown({.kind = kind}); });
} catch (...) {
    ErrTop(m_sModule, "contextMenuEvent");
}

void TypingWindow::HoldFocus_Tabbed() try {
    PlaceCaretBehind();
    Redraw();
} catch (...) {
    ErrTop(m_sModule, "HoldFocus_Tabbed");
}

// Space and Enter belong to the button that has the focus now.
void TypingWindow::HoldFocus_TabbedOut() try {
    m_selection.Clear();
    Redraw();
} catch (...) {
    ErrTop(m_sModule, "HoldFocus_TabbedOut");
}

void TypingWindow::HoldFocus_Composing(const QString& sText) {
    m_tip->ShowUnder(m_selection.IsOn() ? sText : QString(), picDest->mapTo(this, picDest->rect().center()));
}

void TypingWindow::UsePicDest() { basDraw::Draw_SetHdc(&picDest->hDC()); }

void TypingWindow::TakeFocus() {
    activateWindow();
    txtHoldFocus->setFocus(Qt::OtherFocusReason);
}

void TypingWindow::ShowTyping() {
    txtHoldFocus->SetText(GetTextArray().join(u' '));
    txtHoldFocus->SetTyping(m_selection.IsOn(), {picDest->mapTo(this, QPoint(0, 0)), picDest->size()});
}

// Sees the keys before the control that has the focus: while a caret stands, Space and Enter are text.
bool TypingWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && TakesKey(static_cast<QKeyEvent&>(*event))) return true;
    return QDialog::eventFilter(watched, event);
}

void TypingWindow::keyPressEvent(QKeyEvent* event) {
    if (!TakesKey(*event)) QDialog::keyPressEvent(event);
}
