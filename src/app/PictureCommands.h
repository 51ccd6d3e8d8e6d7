// SPDX-License-Identifier: MIT
#pragma once

class BoardView;
class QWidget;
class Session;

/// The commands of the menus that are about pictures of the game in hand.
class PictureCommands {
public:
    PictureCommands(QWidget& window, BoardView& view, Session& session);

    /// Lists the pictures that aren't where they were, and helps to find them again.
    void FindMissing();

private:
    QWidget& m_window;
    BoardView& m_view;
    Session& m_session;
};
