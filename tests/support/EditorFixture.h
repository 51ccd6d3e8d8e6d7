// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPosit.h"
#include "game/Session.h"
#include "support/BoardFixture.h"
#include "support/ModalSteps.h"

#include <QDialog>
#include <QTest>

#include <functional>

/// Windows that edit the game: real events on controls found by their names.
class EditorTest : public BoardTest {
protected:
    EditorTest() { basPosit::PosInit(); }

    Session session;

    /// Acts in the modal window that opens next.
    void WhenModal(const std::function<void(QDialog&)>& act) {
        m_steps.OnceIn("", [act](QWidget& window) { act(dynamic_cast<QDialog&>(window)); });
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

private:
    ModalSteps m_steps;
};
