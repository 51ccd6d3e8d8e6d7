// SPDX-License-Identifier: MIT
#include "support/ModalWatch.h"

#include "support/ModalActing.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

// Moments at which events run, and no time that passes: a busy machine or long work in a window makes no
// difference to them.
constexpr int kTickMs = 100;
constexpr int kPatienceTicks = 100;

} // namespace

ModalWatch::ModalWatch() {
    if (qApp) startTimer(kTickMs);
}

void ModalWatch::timerEvent(QTimerEvent*) {
    QWidget* const modal = QApplication::activeModalWidget();
    m_ticks = modal && modal == m_seen && !ModalActing::IsIn(modal) ? m_ticks + 1 : 0;
    m_seen = modal;
    if (m_ticks < kPatienceTicks) return;
    m_ticks = 0;
    ADD_FAILURE() << "nobody acted in the window " << modal->objectName().toStdString() << ", \""
                  << modal->windowTitle().toStdString() << '"';
    modal->hide();
}
