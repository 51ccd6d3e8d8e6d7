// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QTimer>

/// A small floating text of an editor, in the look of the desktop's tool tips: what can be done at a place,
/// or what an input method is composing. The mouse goes through it.
class TipLabel : public QLabel {
    Q_OBJECT
public:
    TipLabel(const char* sName, QWidget* parent);

    /// Shows the text with its upper left corner there, or as near as the parent has room; an empty text hides
    /// it. In pixels of the parent. A line ends in LF or CR LF.
    void ShowAt(const QString& sText, QPoint place);
    /// The same with the middle of its upper edge there.
    void ShowUnder(const QString& sText, QPoint place);
    /// Shows the text to the left of a control, or above or below where there is no room, once the mouse has rested on
    /// it as long as the desktop's own tips wait.
    void ShowBeside(const QString& sText, const QWidget& control);

private:
    void Take(const QString& sText);

    QTimer m_rest;
    QPoint m_place;
};
