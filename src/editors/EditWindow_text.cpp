// SPDX-License-Identifier: MIT
#include "editors/EditWindow.h"

#include "app/services/basErrLog.h"
#include "editors/HoldFocusBox.h"
#include "platform/PictureBox.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

using basEditTextArray::KeyResult;

bool EditWindow::TakesKey(const QKeyEvent& event) {
    if (!m_selection.IsOn()) return false;
    const TypedText::Key key = TypedText::KeyOf(event);
    switch (key.kind) {
        case TypedText::Key::Kind::None:
            return false;
        case TypedText::Key::Kind::Down:
            Form_KeyDown(key.iKeyCode);
            break;
        case TypedText::Key::Kind::Press:
            Form_KeyPress(key.sText);
            break;
        case TypedText::Key::Kind::Copy:
            CopySelection();
            break;
        case TypedText::Key::Kind::Cut:
            CutSelection();
            break;
        case TypedText::Key::Kind::Paste:
            PasteClipboard();
            break;
    }
    return true;
}

void EditWindow::Form_KeyDown(int iKeyCode) try {
    if (!m_selection.IsOn()) return;
    QStringList sTextLines = GetTextArray();
    const KeyResult result = TypedText::Apply(sTextLines, m_selection, iKeyCode);
    StoreTyped(result, sTextLines);
} catch (...) {
    ErrTop(m_wording.sModule, "Form_KeyDown", iKeyCode);
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

void EditWindow::CopySelection() {
    if (m_selection.HasText()) QGuiApplication::clipboard()->setText(TypedText::Selected(GetTextArray(), m_selection));
}

void EditWindow::CutSelection() try {
    CopySelection();
    QStringList sTextLines = GetTextArray();
    const KeyResult result = TypedText::Remove(sTextLines, m_selection);
    StoreTyped(result, sTextLines);
} catch (...) {
    ErrTop(m_wording.sModule, "CutSelection");
}

void EditWindow::PasteClipboard() {
    const QString sText = QGuiApplication::clipboard()->text();
    if (!sText.isEmpty()) Form_KeyPress(sText);
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
    if (m_selection.IsOn()) SetToolTip(sText, picDest->geometry().center());
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
