// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <utility>

/// The game that starts of the program ask for, this one and later ones: only the last request counts. It waits while
/// the program is being loaded, and while the user is at work in another window.
class StartRequests : public QObject {
    Q_OBJECT

public:
    /// How the main window opens a game, and whether it is printing.
    StartRequests(std::function<void(const QString&)> open, std::function<bool()> isInPrint);

    /// Opens the game as soon as that may be, and says so if it has to wait. An empty text asks for nothing.
    void Ask(const QString& sGame);
    /// The game asked for so far; from here on nothing is.
    QString Take() { return std::exchange(m_sGame, {}); }
    /// Asks for what was taken, unless there is a later request.
    void PutBack(const QString& sGame);

    bool IsLoading() const { return m_bLoading; }
    /// The window stands: what is asked for is opened from now on.
    void EndLoading();

private Q_SLOTS:
    void TryToOpen();

private:
    bool HasToWait() const;
    void SayThatItWaits();

    std::function<void(const QString&)> m_open;
    std::function<bool()> m_isInPrint;
    QString m_sGame;
    bool m_bLoading = true;
    bool m_bTelling = false;
    QTimer m_timer;
};
