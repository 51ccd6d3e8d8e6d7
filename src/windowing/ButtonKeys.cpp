// SPDX-License-Identifier: MIT
#include "windowing/ButtonKeys.h"

#include <QKeyEvent>
#include <QPushButton>

namespace {

// Without a default button the toolkit lets Enter do nothing even on the button that has the focus.
class EnterPresses : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.isAutoRepeat() || (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)) return false;
        static_cast<QPushButton*>(watched)->click();
        return true;
    }
};

} // namespace

void LetEnterPressWithFocusOnly(QPushButton& button) {
    button.setAutoDefault(false);
    button.installEventFilter(new EnterPresses(&button));
}
