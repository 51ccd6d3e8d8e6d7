// SPDX-License-Identifier: MIT
#include "app/StartRequests.h"

#include "services/basErrLog.h"
#include "services/Desktop.h"

#include <QApplication>

StartRequests::StartRequests(std::function<void(const QString&)> open, std::function<bool()> isInPrint)
    : m_open(std::move(open)), m_isInPrint(std::move(isInPrint)) {
    constexpr int kMillisecondsBetweenLooks = 200;
    m_timer.setInterval(kMillisecondsBetweenLooks);
    connect(&m_timer, &QTimer::timeout, this, &StartRequests::TryToOpen);
}

bool StartRequests::HasToWait() const {
    return m_bLoading || m_isInPrint() || QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

void StartRequests::Ask(const QString& sGame) {
    // A start that only wants this one to come to the front takes back no game.
    if (sGame.isEmpty()) return;
    m_sGame = sGame;
    if (m_bLoading) return;
    const bool waits = HasToWait();
    TryToOpen();
    if (waits) SayThatItWaits();
}

void StartRequests::PutBack(const QString& sGame) {
    if (m_sGame.isEmpty()) m_sGame = sGame;
}

void StartRequests::EndLoading() {
    m_bLoading = false;
    TryToOpen();
}

void StartRequests::SayThatItWaits() {
    // One box, however often somebody tries.
    if (m_bTelling) return;
    m_bTelling = true;
    MsgBox(QStringLiteral("The game opens as soon as you have closed the window you are working in."), vbInformation);
    m_bTelling = false;
}

void StartRequests::TryToOpen() try {
    if (m_sGame.isEmpty()) return m_timer.stop();
    if (HasToWait()) return m_timer.start();
    m_timer.stop();
    m_open(Take());
} catch (...) {
    ErrTop("frmTAVL!", "CalledByAnotherStart", m_sGame);
}
