// SPDX-License-Identifier: MIT
#pragma once

#include "app/BoardPlace.h"

#include <QObject>

#include <functional>
#include <optional>

class BoardView;
class QFrame;
class QKeyEvent;
class QLabel;
class Session;
struct Game;

/// The ways through the board without a mouse. No window is needed for these.
namespace BoardWays {

/// All places in the order of play, from the first corner round the board, and then the boxes in its middle.
const std::vector<BoardPlace>& Places();
/// The next place in the order of play, or the one before; nothing behind the last and ahead of the first.
std::optional<BoardPlace> Next(const BoardPlace& place, bool bBack);
/// The nearest place in a direction, one of Qt's arrow keys; nothing at the board's edge.
std::optional<BoardPlace> Towards(const BoardPlace& place, int iArrow);
/// As one would say it: "Acorn Lane, space 1 of 28, price 600 dollars".
QString Spoken(const BoardPlace& place, const Game& game);

} // namespace BoardWays

/// Walks a visible frame over the board by arrows and Tab, opens what it stands on with Enter, and says what that is,
/// beside the toolbar and to screen readers.
class BoardWalk : public QObject {
    Q_OBJECT

public:
    BoardWalk(QWidget& client, BoardView& view, const Session& session);

    /// What the frame stands on; nowhere while it doesn't show.
    const BoardPlace& At() const { return m_at; }
    /// Says something else until the frame goes on, or the text is empty.
    void Tell(const QString& sText);
    /// Puts the frame, and what it says, where the window's layout leaves them room.
    void LayOut();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool TakesKey(const QKeyEvent& event);
    bool TakesTab(bool bBack);
    bool TakesArrow(int iArrow);
    void StandOn(const BoardPlace& place);
    void Leave();
    void Say();

    BoardView& m_view;
    const Session& m_session;
    BoardPlace m_at;
    QFrame* m_frame;
    QLabel* lblPlace;
};
