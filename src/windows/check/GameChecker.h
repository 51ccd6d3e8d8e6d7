// SPDX-License-Identifier: MIT
#pragma once

#include "check/Checks.h"

#include <QObject>
#include <QTimer>

#include <functional>

class Session;

/// Looks the game in hand over again a moment after each edit, in slices so short that nobody who types waits for it.
class GameChecker : public QObject {
    Q_OBJECT

public:
    explicit GameChecker(Session& session, QObject* parent = nullptr);
    /// While this says so, edits aren't looked at.
    void SetBusy(std::function<bool()> isBusy) { m_isBusy = std::move(isBusy); }

    /// Looks now. What somebody has called no problem in this game is left out.
    const std::vector<Finding>& Look();
    const std::vector<Finding>& Found() const { return m_found; }
    /// Those that were left out.
    int PutAside() const { return m_putAside; }

    /// From now on, and in later runs, this isn't told of this game any more.
    void CallNoProblem(const Finding& finding);
    /// All that was called no problem in this game is told again.
    void TellAllAgain();

    /// Whether a click mends it.
    bool CanMend(const Finding& finding);
    /// Mends it, with a picture for kinds that want one, as an edit that can be undone. False when nothing was done.
    bool MendNow(const Finding& finding, const QString& sPicture);

    /// Whoever prints now has been told of the pictures that are missing or bad; no box tells of them once more.
    void NotePicturesAway();

    const Session& InHand() const { return m_session; }

Q_SIGNALS:
    /// Looked again.
    void Looked();

private:
    void TimerLook_Timer();
    void TimerSlice_Timer();
    void LookSoon();
    void Stop();
    std::optional<Edit> MendOf(const Finding& finding, const QString& sPicture);
    void Tell(const std::vector<Finding>& all);

    Session& m_session;
    PictureFacts m_facts;
    std::vector<Finding> m_found;
    int m_putAside = 0;
    std::function<bool()> m_isBusy = [] { return false; };
    std::unique_ptr<CheckRun> m_run;
    QTimer TimerLook;
    QTimer TimerSlice;
};
