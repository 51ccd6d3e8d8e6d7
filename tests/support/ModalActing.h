// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QWidget;

/// While one exists somebody acts in the window, however long that takes.
class ModalActing {
public:
    explicit ModalActing(const QWidget& window) { UnderWay().append(&window); }
    ~ModalActing() { UnderWay().removeLast(); }
    ModalActing(const ModalActing&) = delete;
    ModalActing& operator=(const ModalActing&) = delete;

    static bool IsIn(const QWidget* window) { return UnderWay().contains(window); }

private:
    static QList<const QWidget*>& UnderWay() {
        static QList<const QWidget*> windows;
        return windows;
    }
};
