// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRectF>
#include <QSize>
#include <QString>

struct GamePiece;

/// What lies under a point of the board. Everything on the board is a door to an editor.
struct BoardPlace {
    /// -1 for none.
    int m_iOverSpace = -1;
    int m_iOverCorner = -1;
    bool m_bOverTitles = false;
    bool m_bOverGoodNews = false;
    bool m_bOverBadNews = false;
    bool m_bOverMoney = false;
    bool m_bOverTokens = false;

    /// Where a piece lies; nowhere for the game as a whole.
    static BoardPlace Of(const GamePiece& piece);
    /// Its box, in fractions of the board; empty for nowhere.
    QRectF Box() const;

    bool IsSomething() const { return *this != BoardPlace{}; }
    /// The two lotto spaces, the two news spaces and the corner of fate belong to the kit.
    bool IsEditable() const;
    friend bool operator==(const BoardPlace&, const BoardPlace&) = default;
};

/// The place at fractions of the board's width and height.
BoardPlace PlaceAt(float fX, float fY);

/// Why the place can't be edited; empty when it can.
QString WhyNotEditable(const BoardPlace& place);

/// One line for the tool tip of the board; empty where nothing is.
QString BoardTipOf(const BoardPlace& place);

/// Two lines for the tip box; empty where they aren't to change.
QString TipBoxTextOf(const BoardPlace& place);

/// Where the tip box goes for a mouse at (X, Y) on a board of this size. All in twips.
QPoint TipBoxPosition(const BoardPlace& place, float X, float Y, QSize boxSize, QSize boardSize);
