// SPDX-License-Identifier: MIT
#pragma once

#include "support/ModalActing.h"

#include <QApplication>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QtTest/QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <utility>

/// What a person does in the modal windows that a call opens, one step a window: each step waits until a
/// window of the given object name has come up, and closes it in the end. A window that nobody expected is
/// closed and fails the test, so that no test hangs.
class ModalSteps : public QObject {
public:
    using Step = std::function<void(QWidget& window)>;

    ModalSteps() { LookAgain(); }
    ~ModalSteps() override { EXPECT_TRUE(m_steps.empty()) << "a window that was expected never came"; }

    ModalSteps& In(const char* sWindow, Step step) {
        m_steps.push_back({QString::fromLatin1(sWindow), std::move(step)});
        return *this;
    }
    /// In the window that opens next, whichever it is with an empty name; it is hidden when the step has left it open.
    ModalSteps& OnceIn(const char* sWindow, const Step& step) {
        return In(sWindow, [step](QWidget& window) {
            const QPointer<QWidget> open = &window;
            step(window);
            if (open && open->isVisible()) open->hide();
        });
    }

private:
    struct Expected {
        /// Empty for any.
        QString sWindow;
        Step step;

        bool IsIn(const QWidget& window) const { return sWindow.isEmpty() || window.objectName() == sWindow; }
    };

    // Each look is a shot of its own: a step may open another window, in which the next step is due.
    void LookAgain() { QTimer::singleShot(1, this, &ModalSteps::Look); }

    void Look() {
        LookAgain();
        QWidget* const window = QApplication::activeModalWidget();
        if (!window || !window->isVisible() || window == m_acting) {
            m_looks = 0;
        } else if (!m_steps.empty() && m_steps.front().IsIn(*window)) {
            Act(*window);
        } else if (++m_looks > kPatience) {
            ADD_FAILURE() << "nobody acted in the window " << window->objectName().toStdString();
            window->hide();
        }
    }

    void Act(QWidget& window) {
        const ModalActing acting(window);
        const Expected expected = m_steps.front();
        m_steps.pop_front();
        QWidget* const before = std::exchange(m_acting, &window);
        expected.step(window);
        m_acting = before;
        m_looks = 0;
    }

    // Looks and no time: a busy machine, or long work in a window, makes no difference to them.
    static constexpr int kPatience = 3000;
    int m_looks = 0;
    /// The window that a step is under way in.
    QWidget* m_acting = nullptr;
    std::list<Expected> m_steps;
};

/// A control of a window by its object name; the test fails, with a stand-in, when there is none such.
template <typename Control>
Control& Find(QWidget& window, const char* sName) {
    auto* const control = window.findChild<Control*>(QString::fromLatin1(sName));
    if (control) return *control;
    ADD_FAILURE() << "no control named " << sName;
    static Control standIn;
    return standIn;
}

/// A click of the left button in the middle of a control.
inline void Click(QWidget& window, const char* sName) {
    QTest::mouseClick(&Find<QWidget>(window, sName), Qt::LeftButton);
}
