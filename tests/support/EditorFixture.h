// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPosit.h"
#include "game/Session.h"
#include "support/BoardFixture.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>

/// Windows that edit the game: real events on controls found by their names.
class EditorTest : public BoardTest {
protected:
    EditorTest() { basPosit::PosInit(); }

    Session session;

    /// Acts in the modal window that opens next, as soon as it is open; a window that the actions have left
    /// open is hidden then, so that no test hangs.
    static void WhenModal(const std::function<void(QDialog&)>& act) {
        QTimer::singleShot(0, qApp, [act] {
            const QPointer<QDialog> form = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(form) << "no modal window has opened";
            act(*form);
            if (form && form->isVisible()) form->hide();
        });
    }

    template <typename Control>
    static Control& Find(QWidget& form, const char* sName) {
        auto* const control = form.findChild<Control*>(QString::fromLatin1(sName));
        if (!control) qFatal("There is no control named %s", sName);
        return *control;
    }

    static void Click(QWidget& form, const char* sName) {
        QTest::mouseClick(&Find<QWidget>(form, sName), Qt::LeftButton);
    }
};
