// SPDX-License-Identifier: MIT
#pragma once

#include "services/basMsgQueue.h"
#include "windowing/HourGlass.h"

#include <utility>

/// The hourglass for the length of a redraw, and no boxes until it is done: whoever answers one would find
/// the drawing layer in the middle of its work.
class Redrawing {
public:
    Redrawing() : m_queues(!basMsgQueue::MsgQueue_IsOpen()) {
        if (m_queues) basMsgQueue::MsgQueue_Init();
    }
    /// A redraw that failed leaves no queue behind that would swallow all further boxes.
    ~Redrawing() {
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
    HourGlass m_hourGlass;
    bool m_queues;
};
