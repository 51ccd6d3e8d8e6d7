// SPDX-License-Identifier: MIT
#include "windows/editors/HoldFocusBox.h"

#include <QFocusEvent>
#include <QInputMethodEvent>

namespace {

bool IsByTab(const QFocusEvent& event) {
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
}

bool IsByKey(const QFocusEvent& event) { return IsByTab(event) || event.reason() == Qt::ShortcutFocusReason; }

} // namespace

HoldFocusBox::HoldFocusBox(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("txtHoldFocus"));
    setAccessibleName(QStringLiteral("Text"));
    setAttribute(Qt::WA_InputMethodEnabled);
    setFocusPolicy(Qt::TabFocus);
    // A hidden widget can't take the focus, and Enter would press a button.
    setGeometry(0, 0, 1, 1);
}

void HoldFocusBox::SetTyping(bool bTyping, const QRect& place) {
    m_bTyping = bTyping;
    m_place = place.translated(-pos());
    if (hasFocus()) updateMicroFocus();
}

void HoldFocusBox::SetWhat(const QString& sWhat) {
    m_sWhat = sWhat;
    if (m_sWhat.endsWith(u':')) m_sWhat.chop(1);
}

void HoldFocusBox::SetText(const QString& sText) { setAccessibleName(m_sWhat + QStringLiteral(": ") + sText); }

QVariant HoldFocusBox::inputMethodQuery(Qt::InputMethodQuery query) const {
    if (query == Qt::ImEnabled) return m_bTyping;
    if (query == Qt::ImCursorRectangle) return m_place;
    return QWidget::inputMethodQuery(query);
}

void HoldFocusBox::inputMethodEvent(QInputMethodEvent* event) {
    Q_EMIT Composing(event->preeditString());
    if (!event->commitString().isEmpty()) Q_EMIT Committed(event->commitString());
    event->accept();
}

void HoldFocusBox::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    // A dialog that is being shown sends such an event before any widget has the focus.
    if (IsByTab(*event) && hasFocus()) Q_EMIT TabbedInto(event->reason() == Qt::BacktabFocusReason);
}

void HoldFocusBox::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (IsByKey(*event)) Q_EMIT TabbedOutOf();
}
