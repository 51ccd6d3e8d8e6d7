// SPDX-License-Identifier: MIT
#include "board/basPosit.h"
#include "check/PaperHint.h"
#include "drawing/basDraw.h"
#include "game/Session.h"
#include "platform/paint/Units.h"
#include "platform/text/NewLine.h"
#include "services/basErrLog.h"
#include "windowing/Clipboard.h"
#include "windowing/PictureBox.h"
#include "windows/editors/frmEditCenter.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/PaperLine.h"
#include "windows/editors/TextMenu.h"
#include "windows/editors/TipLabel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

using basEditTextArray::KeyResult;

// Sees the keys before the control that has the focus: while a caret stands, those that edit belong to the
// text.
bool frmEditCenter::eventFilter(QObject* watched, QEvent* event) try {
    if (event->type() == QEvent::KeyPress) return HandleKey(static_cast<QKeyEvent&>(*event));
    return QDialog::eventFilter(watched, event);
} catch (...) {
    ErrTop("frmEditCenter!", "Form_KeyDown", int(event->type()));
    return true;
}

bool frmEditCenter::HandleKey(const QKeyEvent& event) {
    if (focusWidget() == txtHoldFocus && (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab))
        return HandleTab(event.key() == Qt::Key_Backtab);
    const TypedText::Key key = TypedText::KeyOf(event);
    if (!m_selection.IsOn() || m_iTextArea == kNoArea || key.kind == TypedText::Key::Kind::None) return false;
    Form_Key(key);
    return true;
}

void frmEditCenter::Form_Key(const TypedText::Key& key) {
    switch (key.kind) {
        case TypedText::Key::Kind::Press:
            return Form_KeyPress(key.sText);
        case TypedText::Key::Kind::Paste:
            return Form_KeyPress(Clipboard::Text());
        case TypedText::Key::Kind::Undo:
        case TypedText::Key::Kind::Redo:
            return Step(key.kind == TypedText::Key::Kind::Undo);
        default:
            return Form_KeyDown(key);
    }
}

// The Tab key goes through the texts, so that they are reached without a mouse, and on to the buttons.
bool frmEditCenter::HandleTab(bool bBack) {
    const int area = m_iTextArea + (bBack ? -1 : 1);
    const bool toText = area >= 1 && area <= kAreas;
    EditBehindText(toText ? area : kNoArea);
    return toText;
}

void frmEditCenter::EditBehindText(int iArea) {
    m_iTextArea = iArea;
    if (iArea == kNoArea) {
        EditArea(kNoArea, -1, -1);
    } else {
        const QStringList lines = LinesUnderEdit();
        EditArea(iArea, int(lines.last().size()), int(lines.size()) - 1);
    }
    Redraw(0);
}

// Backwards it comes to the last text first.
void frmEditCenter::HoldFocus_TabbedInto(bool bBack) try { EditBehindText(bBack ? kAreas : kGameName); } catch (...) {
    ErrTop("frmEditCenter!", "HoldFocus_TabbedInto", bBack);
}

// Space and Enter belong to the button that has the focus now.
void frmEditCenter::HoldFocus_TabbedOutOf() try { EditBehindText(kNoArea); } catch (...) {
    ErrTop("frmEditCenter!", "HoldFocus_TabbedOutOf");
}

void frmEditCenter::HoldFocus_Composing(const QString& sText) {
    const QRect area = m_area[size_t(m_iTextArea)];
    txtToolTip->ShowUnder(m_iTextArea == kNoArea ? QString() : sText, {area.center().x(), area.bottom()});
}

QStringList frmEditCenter::LinesUnderEdit() const {
    basErrLog::ErrAssert(m_iTextArea >= 1 && m_iTextArea <= kAreas, QStringLiteral("Unexpected m_iTextArea"));
    const SpecialText& record = m_titles.Text(m_iTextArea);
    if (m_iTextArea == kGameName) return {record.sText};
    const QStringList lines = record.Lines();
    return lines.isEmpty() ? QStringList{QString()} : lines;
}

void frmEditCenter::Form_KeyDown(const TypedText::Key& key) {
    const TypedText::Entry before{LinesUnderEdit(), m_selection, {}};
    QStringList lines = before.sTextLines;
    const KeyResult result = TypedText::Take(key, lines, m_selection);
    StoreTyped(result, lines, before);
}

void frmEditCenter::Form_KeyPress(const QString& sCharacters) try {
    if (!m_selection.IsOn() || m_iTextArea == kNoArea) return;
    const QString text = WhatMayBeTyped(sCharacters);
    if (sCharacters.isEmpty() || !text.isEmpty()) {
        const TypedText::Entry before{LinesUnderEdit(), m_selection, text};
        QStringList lines = before.sTextLines;
        const KeyResult result = TypedText::Feed(lines, m_selection, text);
        StoreTyped(result, lines, before);
    }
    if (TypedText::Letters(text).size() < TypedText::Letters(sCharacters).size())
        lblPaper->TellLoss(
            QStringLiteral("A title of %1 lines takes no more letters.").arg(basEditTextArray::kMaxLines));
} catch (...) {
    ErrTop("frmEditCenter!", "Form_KeyPress", sCharacters);
}

// The game's name is one line. A text of ten lines takes no more characters, not even on a line that has room; kept
// on purpose.
QString frmEditCenter::WhatMayBeTyped(const QString& sCharacters) const {
    QString text = sCharacters;
    text.replace(kNewLine, QStringLiteral("\r")).replace(u'\n', u'\r');
    text.replace(QChar::LineSeparator, u'\r').replace(QChar::ParagraphSeparator, u'\r');
    if (text == QChar(basEditTextArray::vbKeyBack)) return text;
    if (m_iTextArea == kGameName) return text.remove(u'\r');
    const int room = basEditTextArray::kMaxLines - std::max(int(m_titles.Text(m_iTextArea).iNLines), 1);
    if (room <= 0) return {};
    return text.section(u'\r', 0, room - 1) + (text.count(u'\r') >= room ? QStringLiteral("\r") : QString());
}

void frmEditCenter::StoreTyped(KeyResult result, const QStringList& sTextLines, const TypedText::Entry& before) {
    lblPaper->TellLoss({});
    // A key that did nothing to the text may still have collapsed the selection.
    if (result != KeyResult::Nothing || !(m_selection == before.selection)) {
        if (result == KeyResult::TextChanged) KeepLines(sTextLines);
        TypedText::KeepWithin(m_selection, LinesUnderEdit());
        txtHoldFocus->SetText(LinesUnderEdit().join(u' '));
        if (LinesUnderEdit() != before.sTextLines)
            m_history.Note({m_iTextArea, before.sTextLines, before.selection}, State(m_iTextArea), before.sText);
        Redraw(m_iTextArea);
    }
    lblPaper->TellLoss(TypedText::Loss(before, sTextLines, LinesUnderEdit()));
}

void frmEditCenter::KeepLines(const QStringList& sTextLines) {
    basDraw::Draw_SetHdc(&picForm->hDC());
    basPosit::SetSpecialText(m_titles.Text(m_iTextArea), m_iTextArea, TypedText::Joined(sTextLines));
}

void frmEditCenter::TellOnPaper() {
    basDraw::Draw_SetHdc(&picForm->hDC());
    Game game = m_session.InHand();
    game.titles = m_titles;
    lblPaper->Tell(m_iTextArea == kNoArea ? QString() : PaperHintOfTitle(game, m_iTextArea));
}

TypedHistory::State frmEditCenter::State(int iArea) {
    const int shown = std::exchange(m_iTextArea, iArea);
    const QStringList lines = LinesUnderEdit();
    m_iTextArea = shown;
    return {iArea, lines, m_selection};
}

// The caret goes to the text that changes, which may be another one.
void frmEditCenter::Step(bool bUndo) {
    const int area = bUndo ? m_history.TextToUndo() : m_history.TextToRedo();
    if (area == kNoArea) return;
    const auto state = bUndo ? m_history.Undo(State(area)) : m_history.Redo(State(area));
    EditBehindText(area);
    KeepLines(state->sTextLines);
    m_selection = state->selection;
    TypedText::KeepWithin(m_selection, LinesUnderEdit());
    Redraw(0);
}

bool frmEditCenter::MarkByClick(int iShift, int iArea, int iCol, int iRow) {
    const int clicks = picForm->Clicks();
    const bool sameText = iArea != kNoArea && iArea == m_iTextArea && m_selection.IsOn();
    if (clicks == 1 && iShift == PictureBox::kShift && sameText) {
        m_selection.SetEnd(iCol, iRow);
        return true;
    }
    EditArea(iArea, iCol, iRow);
    if (iArea == kNoArea) return false;
    if (clicks == 2) TextMotion::MarkWord(LinesUnderEdit(), m_selection);
    if (clicks == 3) TextMotion::MarkLine(LinesUnderEdit(), m_selection);
    return clicks > 1;
}

void frmEditCenter::contextMenuEvent(QContextMenuEvent* event) try {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QPoint at = byMouse ? picForm->mapFromGlobal(event->globalPos()) : m_area[size_t(m_iTextArea)].center();
    if (byMouse) EditAt(at);
    if (m_iTextArea == kNoArea) return;
    TextMenu::Show(*this, picForm->mapToGlobal(at), {m_history.CanUndo(), m_history.CanRedo(), m_selection.HasText()},
                   [this](TypedText::Key::Kind kind) { Form_Key({.kind = kind}); });
} catch (...) {
    ErrTop("frmEditCenter!", "contextMenuEvent");
}

// What is marked stays marked, so that it can be copied.
void frmEditCenter::EditAt(QPoint at) {
    const Spot spot = WhereIsMouse(float(at.x() * kTwipsPerPixel), float(at.y() * kTwipsPerPixel));
    const auto found = std::find(spot.bInArea.begin(), spot.bInArea.end(), true);
    const int area = found == spot.bInArea.end() ? kNoArea : int(found - spot.bInArea.begin());
    if (area != m_iTextArea || !m_selection.HasText()) EditArea(area, spot.iCol, spot.iRow);
    txtHoldFocus->setFocus();
    Redraw(0);
}
