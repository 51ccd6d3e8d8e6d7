// SPDX-License-Identifier: MIT
#include "windows/check/GameChecker.h"

#include "game/Session.h"
#include "services/basErrLog.h"
#include "windows/check/NoProblems.h"

namespace {

// After the last key or click, so that edits in a row are looked at once.
constexpr int kPauseMs = 100;

} // namespace

GameChecker::GameChecker(Session& session, QObject* parent) : QObject(parent), m_session(session) {
    TimerLook.setSingleShot(true);
    TimerLook.setInterval(kPauseMs);
    connect(&TimerLook, &QTimer::timeout, this, &GameChecker::TimerLook_Timer);
    const auto start = qOverload<>(&QTimer::start);
    connect(&session, &Session::Edited, &TimerLook, start);
    connect(&session, &Session::Changed, &TimerLook, start);
}

const std::vector<Finding>& GameChecker::Look() {
    TimerLook.stop();
    const std::vector<Finding> all = CheckGame(m_session.InHand(), m_facts);
    m_found.clear();
    for (const Finding& finding : all) {
        if (!NoProblems::Holds(m_session.GameName(), finding)) m_found.push_back(finding);
    }
    m_putAside = int(all.size() - m_found.size());
    Q_EMIT Looked();
    return m_found;
}

void GameChecker::CallNoProblem(const Finding& finding) {
    NoProblems::Add(m_session.GameName(), finding);
    Look();
}

void GameChecker::TellAllAgain() {
    NoProblems::ForgetAll(m_session.GameName());
    Look();
}

void GameChecker::TimerLook_Timer() try {
    if (!m_isBusy()) Look();
} catch (...) {
    ErrTop("GameChecker!", "TimerLook_Timer");
}
