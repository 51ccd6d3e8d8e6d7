// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"

class BoardView;
class QWidget;
class Session;

/// The commands of the menus that are about pictures of the game in hand.
class PictureCommands {
public:
    PictureCommands(QWidget& window, BoardView& view, Session& session);

    /// Lists the pictures that aren't where they were, and helps to find them again.
    void FindMissing();
    /// Deals the photos of a folder onto the free places of the board.
    void Deal();

    /// True where the clipboard holds pictures: files, or one without a file.
    static bool CanPaste();
    /// Lays what the clipboard holds onto a piece, as a drop there would; what can't be taken is told. False where it
    /// holds no picture.
    bool Paste(const PictureOwner& piece);

private:
    QWidget& m_window;
    BoardView& m_view;
    Session& m_session;
};
