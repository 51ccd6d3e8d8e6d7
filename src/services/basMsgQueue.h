// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Messages that came up while the board was being painted, kept until it is painted, so that no box ever
/// interrupts a paint.
namespace basMsgQueue {

/// More messages than this come as one box, a line each.
constexpr int kMaxSingleBoxes = 3;

/// Starts collecting anew.
void MsgQueue_Init();

/// True between MsgQueue_Init and MsgQueue_Display.
bool MsgQueue_IsOpen();

/// Keeps a message while the queue is open; shows it at once otherwise. What it announces is done when the box was
/// answered, and not ahead of it.
void MsgQueue_Post(const QString& sMessage, int iStyle, std::function<void()> then = {});

/// Shows what was kept, in order, and closes the queue.
void MsgQueue_Display();

} // namespace basMsgQueue
