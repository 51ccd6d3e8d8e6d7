// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"

#include <QStringList>

class BoardView;
class QPoint;
class QRubberBand;
class Session;
struct BoardPlace;
struct Game;

/// The piece that a picture laid onto a place goes to: the place of all notes or tokens stands for the first of them
/// that is free, with the number kNoneFree where none is. Of no kind where nothing takes one.
PictureOwner PieceForPicture(const BoardPlace& place, const Game& game);

/// Pictures that are dragged over the board: the place under them lights up, and takes them when they are dropped.
/// Points are pixels of the board.
class PictureDrop {
public:
    PictureDrop(BoardView& view, Session& session);

    /// False where no picture can be laid.
    bool Move(QPoint at);
    void Leave();
    /// Lays them onto the place, as one edit; what can't be taken is told.
    void Drop(const QStringList& files, QPoint at);

private:
    /// Of no kind where nothing takes a picture.
    PictureOwner PieceUnder(QPoint at);
    void LightUp(const BoardPlace& place);

    BoardView& m_view;
    Session& m_session;
    QRubberBand* m_light;
};
