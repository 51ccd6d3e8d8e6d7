// SPDX-License-Identifier: MIT
#include "windows/editors/EditWindow.h"

#include "platform/PictureBox.h"
#include "services/basErrLog.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/TipLabel.h"

#include <QKeyEvent>
#include <QPlainTextEdit>

using basEditTextArray::KeyResult;

bool EditWindow::TakesKey(const QKeyEvent& event) {
    const TypedText::Key key = TypedText::KeyOf(event);
    if (!m_selection.IsOn() || key.kind == TypedText::Key::Kind::None) return false;
    Form_KeyDown(key);
    return true;
}

void EditWindow::Form_KeyDown(const TypedText::Key& key) try {
    QStringList sTextLines = GetTextArray();
    const KeyResult result = TypedText::Take(key, sTextLines, m_selection);
    StoreTyped(result, sTextLines);
} catch (...) {
    ErrTop(m_wording.sModule, "Form_KeyDown", key.iKeyCode, key.sText);
}

void EditWindow::Form_KeyPress(const QString& sText) try {
    if (!m_selection.IsOn()) return;
    QStringList sTextLines = GetTextArray();
    const KeyResult result = TypedText::Feed(sTextLines, m_selection, sText);
    StoreTyped(result, sTextLines);
} catch (...) {
    ErrTop(m_wording.sModule, "Form_KeyPress", sText);
}

void EditWindow::StoreTyped(KeyResult result, const QStringList& sTextLines) {
    if (result == KeyResult::Nothing) return;
    if (result == KeyResult::TextChanged) FitText(m_likeness.Joined(sTextLines));
    Redraw();
}

void EditWindow::FitText(const QString& sText) {
    UsePicDest();
    m_likeness.SetText(sText);
}

// Whoever comes by the keyboard finds the caret behind the text, as there is no click to place it.
void EditWindow::HoldFocus_Tabbed() try {
    const QStringList sTextLines = GetTextArray();
    m_selection.SetCaret(int(sTextLines.last().size()), int(sTextLines.size()) - 1);
    Redraw();
} catch (...) {
    ErrTop(m_wording.sModule, "HoldFocus_Tabbed");
}

// Space and Enter belong to the button that has the focus now.
void EditWindow::HoldFocus_TabbedOut() try {
    m_selection.Clear();
    Redraw();
} catch (...) {
    ErrTop(m_wording.sModule, "HoldFocus_TabbedOut");
}

void EditWindow::HoldFocus_Composing(const QString& sText) {
    txtToolTip->ShowUnder(m_selection.IsOn() ? sText : QString(), picDest->geometry().center());
}

void EditWindow::txtSpace_Change() try {
    QString text = txtSpace->toPlainText();
    FitText(text.replace(u'\n', QStringLiteral("\r\n")));
    Redraw();
} catch (...) {
    ErrTop(m_wording.sModule, "txtSpace_Change");
}

void EditWindow::keyPressEvent(QKeyEvent* event) {
    if (TakesKey(*event)) {
        event->accept();
    } else {
        QDialog::keyPressEvent(event);
    }
}
