// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <QTimer>

class QLabel;
class QWidget;

/// What the main window says of the thing under the mouse: the desktop's own tip of the board or the toolbar,
/// which goes by itself after some seconds, and a box of two lines that says the same and stays out of sight.
class ToolTips : public QObject {
    Q_OBJECT

public:
    explicit ToolTips(QWidget& parent);

    /// Takes a widget whose tip is to go when its time is over.
    void Watch(QWidget& widget) { m_widgets.append(&widget); }

    /// An empty text leaves the box's lines as they are.
    void SetBoxText(const QString& sText);
    /// In the pixels of the parent.
    QSize BoxSize() const;
    void MoveBox(QPoint at);
    void HideBox();

    /// Gives what shows its time anew, or with false all the time there is.
    void Restart(bool bTimed);
    /// Interval of the time under way; 0 without one.
    int TimerInterval() const { return Timer1.isActive() ? Timer1.interval() : 0; }

    /// Whether tips of the board go by themselves; so at the start.
    bool AreTimed() const { return m_bTimed; }
    void Toggle() { m_bTimed = !m_bTimed; }

public Q_SLOTS:
    void Timer1_Timer();
    void txtToolTip_MouseMove() { HideBox(); }

private:
    QLabel* txtToolTip;
    QTimer Timer1;
    QList<QWidget*> m_widgets;
    bool m_bTimed = true;
};
