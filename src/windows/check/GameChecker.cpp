// SPDX-License-Identifier: MIT
#include "windows/check/GameChecker.h"

#include "board/basPosit.h"
#include "drawing/DrawingAside.h"
#include "game/Session.h"
#include "services/basErrLog.h"
#include "windowing/HourGlass.h"
#include "windows/check/NoProblems.h"

#include <QElapsedTimer>

namespace {

// After the first edit, so that those which come with it are looked at together.
constexpr int kPauseMs = 100;
// Until what is being decoded is looked for again.
constexpr int kDecodingMs = 400;
// Less than a picture of the screen stands.
constexpr int kSliceMs = 4;

} // namespace

GameChecker::GameChecker(Session& session, QObject* parent) : QObject(parent), m_session(session) {
    TimerLook.setSingleShot(true);
    TimerLook.setInterval(kPauseMs);
    connect(&TimerLook, &QTimer::timeout, this, &GameChecker::TimerLook_Timer);
    connect(&TimerSlice, &QTimer::timeout, this, &GameChecker::TimerSlice_Timer);
    // Not put off by the next edit: whoever never pauses is told all the same.
    connect(&session, &Session::Edited, this, &GameChecker::LookSoon);
    connect(&session, &Session::Changed, this, &GameChecker::LookSoon);
}

void GameChecker::LookSoon() {
    if (!TimerLook.isActive()) TimerLook.start();
}

const std::vector<Finding>& GameChecker::Look() {
    const HourGlass working;
    Stop();
    Tell(CheckGame(m_session.InHand(), m_facts));
    return m_found;
}

void GameChecker::Stop() {
    TimerLook.stop();
    TimerSlice.stop();
    m_run.reset();
}

void GameChecker::Tell(const std::vector<Finding>& all) {
    m_found.clear();
    for (const Finding& finding : all) {
        if (!NoProblems::Holds(m_session.GameName(), finding)) m_found.push_back(finding);
    }
    m_putAside = int(all.size() - m_found.size());
    Q_EMIT Looked();
}

void GameChecker::CallNoProblem(const Finding& finding) {
    NoProblems::Add(m_session.GameName(), finding);
    Look();
}

void GameChecker::TellAllAgain() {
    NoProblems::ForgetAll(m_session.GameName());
    Look();
}

// Some mend by fitting texts, and somebody may be in the middle of a drawing.
std::optional<Edit> GameChecker::MendOf(const Finding& finding, const QString& sPicture) {
    const DrawingAside aside;
    basPosit::PosSethDC(&m_session.MeasuringDevice());
    return Mend(m_session.InHand(), finding, sPicture);
}

bool GameChecker::CanMend(const Finding& finding) {
    switch (MendingOf(finding)) {
        case Mending::ByPicture:
        case Mending::BySearch:
            return true;
        case Mending::ByClick:
            return MendOf(finding, QString()).has_value();
        default:
            return false;
    }
}

bool GameChecker::MendNow(const Finding& finding, const QString& sPicture) {
    const std::optional<Edit> edit = MendOf(finding, sPicture);
    if (!edit) return false;
    m_session.Do(*edit);
    Look();
    return true;
}

void GameChecker::NotePicturesAway() {
    const auto note = [this](const C_Image& image) {
        const QString path = image.FullPath();
        if (!path.isEmpty() && !m_facts.Of(path).head) image.Told().Note(TellOnce::Fault::Picture, path);
    };
    const Game& game = m_session.InHand();
    for (const C_Space& space : game.spaces)
        note(space.Image);
    for (const C_Corner& corner : game.corners)
        note(corner.Image);
    for (const C_Money& money : game.money)
        note(money.FaceImage);
    for (const C_Token& token : game.tokens)
        note(token.Image);
}

void GameChecker::TimerLook_Timer() try {
    // A look under way is ended first: where it takes longer than the pause, edits that go on coming would put it off.
    if (m_isBusy() || m_run) return TimerLook.start();
    m_run = std::make_unique<CheckRun>(m_session.InHand(), m_facts,
                                       CheckOptions{.decoding = PictureFacts::Decoding::Aside});
    TimerSlice.start(0);
} catch (...) {
    Stop();
    ErrTop("GameChecker!", "TimerLook_Timer");
}

void GameChecker::TimerSlice_Timer() try {
    if (m_isBusy()) {
        Stop();
        return TimerLook.start();
    }
    QElapsedTimer since;
    since.start();
    while (m_run->Step()) {
        if (since.elapsed() >= kSliceMs) return;
    }
    if (!m_run->HasDecodedAll()) QTimer::singleShot(kDecodingMs, this, &GameChecker::LookSoon);
    const std::vector<Finding> all = m_run->Take();
    TimerSlice.stop();
    m_run.reset();
    Tell(all);
} catch (...) {
    Stop();
    ErrTop("GameChecker!", "TimerSlice_Timer");
}
