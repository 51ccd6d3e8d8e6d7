// SPDX-License-Identifier: MIT
#include "services/basMsgQueue.h"

#include "services/Desktop.h"

#include <QList>
#include <QStringList>

#include <optional>

namespace basMsgQueue {
namespace {

struct Message {
    QString sText;
    int iStyle;
};

std::optional<QList<Message>>& Queue() {
    static std::optional<QList<Message>> queue;
    return queue;
}

void ShowAsOne(const QList<Message>& messages) {
    QStringList lines;
    int style = vbOKOnly;
    for (const Message& message : messages) {
        lines.append(message.sText.simplified());
        style = message.iStyle;
    }
    MsgList(lines, style);
}

} // namespace

void MsgQueue_Init() { Queue().emplace(); }

bool MsgQueue_IsOpen() { return Queue().has_value(); }

void MsgQueue_Post(const QString& sMessage, int iStyle) {
    if (Queue()) {
        Queue()->append({sMessage, iStyle});
    } else {
        MsgBox(sMessage, iStyle);
    }
}

void MsgQueue_Display() {
    if (!Queue()) return;
    // Closed before the first box, so that what comes up meanwhile is shown and not lost.
    const QList<Message> messages = *std::exchange(Queue(), std::nullopt);
    if (messages.size() > kMaxSingleBoxes) {
        ShowAsOne(messages);
        return;
    }
    for (const Message& message : messages)
        MsgBox(message.sText, message.iStyle);
}

} // namespace basMsgQueue
