// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Closes a modal window in which nobody acts, and fails the test: a window that a test doesn't expect would
/// otherwise hang it.
class ModalWatch : public QObject {
public:
    ModalWatch();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QPointer<QWidget> m_seen;
    int m_ticks = 0;
};
