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
    std::function<void()> then;
};

void Show(const Message& message) {
    MsgBox(message.sText, message.iStyle);
    if (message.then) message.then();
}

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
    for (const Message& message : messages) {
        if (message.then) message.then();
    }
}

} // namespace

void MsgQueue_Init() { Queue().emplace(); }

bool MsgQueue_IsOpen() { return Queue().has_value(); }

void MsgQueue_Post(const QString& sMessage, int iStyle, std::function<void()> then) {
    const Message message{sMessage, iStyle, std::move(then)};
    if (Queue()) {
        Queue()->append(message);
    } else {
        Show(message);
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
        Show(message);
}

} // namespace basMsgQueue
