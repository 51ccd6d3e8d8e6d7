// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"

#include <QStringList>

class BoardView;
class QMimeData;
class QPoint;
class QRubberBand;
class Session;
struct BoardPlace;

/// Pictures that are dragged over the board: the place under them lights up, and takes them when they are dropped.
/// Points are pixels of the board.
class PictureDrop {
public:
    PictureDrop(BoardView& view, Session& session);

    /// True for files that may be pictures, and for a picture without a file, as from a page of the web.
    static bool Holds(const QMimeData& dragged);
    /// False where no picture can be laid.
    bool Move(QPoint at);
    void Leave();
    /// Lays them onto the place, as one edit; what can't be taken is told.
    void Drop(const QStringList& files, QPoint at);

    /// Paths of the files that are dropped. A picture without one is kept in the games folder first; empty after a
    /// message where that fails.
    QStringList FilesOf(const QMimeData& dropped) const;

private:
    /// Of no kind where nothing takes a picture.
    PictureOwner PieceUnder(QPoint at);
    void LightUp(const BoardPlace& place);
    QString Keep(const QString& sFile) const;

    BoardView& m_view;
    Session& m_session;
    QRubberBand* m_light;
};
