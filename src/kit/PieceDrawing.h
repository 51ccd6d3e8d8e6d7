// SPDX-License-Identifier: MIT
#pragma once

#include "pieces/PrintedText.h"

#include <QList>
#include <QString>

#include <optional>

/// Single pieces of the kit in use, each as a drawing of the size that it is printed at.
namespace PieceDrawing {

struct Piece {
    /// On the command line: "space-4", "card-1-11", "deed-0"; numbers count from 0.
    QString sWord;
    /// For a family: by its own name for the piece where it has one.
    QString sName;
};

/// Spaces, corners, tokens, deeds, cards and notes of the game in memory, in this order.
QList<Piece> All();

/// Nothing for a word that no piece has, and for a piece that can't be made, which has then been told.
std::optional<PrintedText> Draw(const QString& sWord);

} // namespace PieceDrawing
