// SPDX-License-Identifier: MIT
#pragma once

#include "app/BoardPlace.h"
#include "pictures/PictureOwner.h"

#include <QObject>
#include <QPoint>

class BoardView;
class BoardWalk;
class QKeyEvent;
class QMouseEvent;
class QRubberBand;
class Session;

/// What spaces and corners hold goes to other places of the board: copied by the clipboard, which other games take it
/// from, too, or swapped by dragging one onto another. A press that may become a drag opens its editor only when the
/// button is released.
class PieceMoves : public QObject {
    Q_OBJECT

public:
    PieceMoves(BoardView& view, BoardWalk& walk, Session& session);

    /// Where the frame stands, or else what is under the mouse; nowhere where there is neither.
    BoardPlace PlaceInHand();

    /// The piece in hand goes to the clipboard: its words for any
    /// program, and all of it for games.
    void Copy();
    /// The piece in the clipboard is given to the one in hand. False where the clipboard holds no piece; it may hold
    /// something else that can be pasted.
    bool Paste();
    /// Waits for the place that the piece is to be swapped with: the next one that is clicked, or entered by the frame.
    void SwapWith();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class State {
        None,
        Pressed,  ///< On a piece that can be dragged; not moved far enough yet.
        Dragging, ///< With the left button down.
        Choosing, ///< The other one of a swap, by click or key.
        Over,     ///< Ended by Escape with the button still down.
    };

    // Of no kind where there is none that a family fills.
    PictureOwner PieceInHand();
    PictureOwner PieceAt(QPoint at);
    bool TellNoPiece(const PictureOwner& piece) const;

    bool TakesMouse(const QMouseEvent& event);
    bool TakesPress(const QMouseEvent& event);
    bool TakesMove(const QMouseEvent& event);
    bool TakesRelease(const QMouseEvent& event);
    bool TakesKey(const QKeyEvent& event);
    void ShowFrom();
    void LightUp(const PictureOwner& piece);
    void SwapOnto(const PictureOwner& piece);
    void End(State state = State::None);

    BoardView& m_view;
    BoardWalk& m_walk;
    Session& m_session;
    QRubberBand* m_from;
    QRubberBand* m_light;
    State m_state = State::None;
    PictureOwner m_piece;
    QPoint m_pressedAt;
    /// By the screen's own clock.
    quint64 m_pressedWhen = 0;
    /// The mouse is over the board, there.
    bool m_bOver = false;
    QPoint m_mouse;
    /// A press that became no drag is on its way to the board.
    bool m_bHandingOn = false;
};
