// SPDX-License-Identifier: MIT
#pragma once

#include "pack/Packing.h"

class BoardView;
class QWidget;
class Session;

/// What goes out of the game in hand to others.
class GameSharing {
public:
    GameSharing(QWidget& window, BoardView& view, const Session& session)
        : m_window(window), m_view(view), m_session(session) {}

    /// As one file with its pictures, by a window that tells what goes in.
    void Send();
    /// The board as a picture for a message, a web page or the copy shop.
    void SaveBoardPicture();
    void CopyBoardPicture();
    /// Of a piece, which is chosen in a window.
    void SavePiecePicture();

private:
    QString GameTitle() const;
    Packing::Contents Contents();
    /// Paints the board for others, and puts the view back after that.
    QByteArray BoardAsPng(int lSize);

    QWidget& m_window;
    BoardView& m_view;
    const Session& m_session;
};
