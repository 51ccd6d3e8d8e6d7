// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/AwaitedPictures.h"
#include "services/basMsgQueue.h"
#include "windowing/HourGlass.h"

#include <QTimer>
#include <QWidget>

#include <utility>

/// The hourglass for the length of a redraw, and no boxes until it is done: whoever answers one would find
/// the drawing layer in the middle of its work. What is large and not decoded yet is left out, and the window draws
/// again a little later.
class Redrawing {
public:
    template <typename Window>
    Redrawing(Window& window, void (Window::*again)())
        : m_again(window.template findChild<QTimer*>(kTimerName, Qt::FindDirectChildrenOnly)),
          m_queues(!basMsgQueue::MsgQueue_IsOpen()) {
        if (!m_again) {
            m_again = new QTimer(&window);
            m_again->setObjectName(kTimerName);
            m_again->setSingleShot(true);
            QObject::connect(m_again, &QTimer::timeout, &window, [&window, again] {
                if (window.isVisible()) (window.*again)();
            });
        }
        if (m_queues) basMsgQueue::MsgQueue_Init();
    }
    /// A redraw that failed leaves no queue behind that would swallow all further boxes.
    ~Redrawing() {
        constexpr int kUntilNextLook = 50;
        if (m_awaited.Any()) m_again->start(kUntilNextLook);
        try {
            ShowMessages();
        } catch (...) {
            // What failed is on its way up already.
        }
    }
    Redrawing(const Redrawing&) = delete;
    Redrawing& operator=(const Redrawing&) = delete;
    /// Shows the boxes that waited, unless a redraw around this one will.
    void ShowMessages() {
        if (std::exchange(m_queues, false)) basMsgQueue::MsgQueue_Display();
    }

private:
    inline static const QString kTimerName = QStringLiteral("timAwaited");

    HourGlass m_hourGlass;
    AwaitedPictures m_awaited;
    QTimer* m_again;
    bool m_queues;
};
