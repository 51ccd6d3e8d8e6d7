// SPDX-License-Identifier: MIT
#pragma once

class BoardView;
class QWidget;
class Session;
struct BoardPlace;
struct GamePiece;

/// The commands of the menus that are about pictures of the game in hand.
class PictureCommands {
public:
    PictureCommands(QWidget& window, BoardView& view, Session& session);

    /// Lists the pictures that aren't where they were, and helps to find them again: that of a piece first, or for the
    /// whole game any.
    void FindMissing(const GamePiece& first);
    /// Deals the photos of a folder onto the free places of the board.
    void Deal();

    /// Lays what the clipboard holds onto the piece of a place, as a drop there would; what can't be taken is told.
    void Paste(const BoardPlace& place);

private:
    QWidget& m_window;
    BoardView& m_view;
    Session& m_session;
};
