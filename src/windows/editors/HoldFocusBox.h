// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QWidget>

/// One visible pixel that holds the keyboard focus of a window in which text is typed onto a picture. Keys
/// pass through it to the window; what an input method or a dead key composes comes out whole.
class HoldFocusBox : public QWidget {
    Q_OBJECT
public:
    explicit HoldFocusBox(QWidget* parent);

    /// Whether text can be typed now, and where it will appear, so that the input method's own window stands
    /// beside it. In the pixels of the parent.
    void SetTyping(bool bTyping, const QRect& place);

    /// For screen readers, which text is typed here: "Space 1 of 28"; and what it says by now.
    void SetWhat(const QString& sWhat);
    void SetText(const QString& sText);

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    /// Composed text is ready.
    void Committed(const QString& sText);
    /// Text under composition; empty when it is done.
    void Composing(const QString& sText);
    /// The focus came from another control by the Tab key, or backwards by Shift and Tab.
    void TabbedInto(bool bBack);
    /// It went to another control by a key, be it Tab or the letter of a button.
    void TabbedOutOf();

protected:
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QString m_sWhat;
    bool m_bTyping = false;
    QRect m_place;
};
