// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"
#include "pictures/PictureOwner.h"
#include "pictures/PictureRef.h"

#include <QByteArray>

#include <optional>

/// What a family has given a space or a corner: its words, their font, and which part of which picture it shows. What
/// belongs to the place on the board, such as price and colours, isn't in it. A value.
struct PieceContent {
    /// Lines joined with CR LF.
    QString sText;
    /// The words of a corner's second block, which only old games have.
    QString sSecondText;
    C_FontInfo font;
    PictureRef picture;

    friend bool operator==(const PieceContent&, const PieceContent&) = default;
};

/// Copies and swaps of what spaces and corners hold. All that change a game measure texts on the drawing layer's
/// current context.
namespace PieceContents {

/// True for the spaces and corners that a family gives words and pictures.
bool Has(const PictureOwner& piece);
/// Whether the two can be swapped: a space with another space, a corner with another corner.
bool CanSwap(const PictureOwner& one, const PictureOwner& other);
/// "Acorn Lane"; of a piece without words its place: "Space 3".
QString NameOf(const Game& game, const PictureOwner& piece);

// The pieces have to be such that Has is true for.

PieceContent Of(const Game& game, const PictureOwner& piece);
/// Gives a piece what another one, of this game or of any, holds: "Copy Acorn Lane to Birch Road".
Edit Copy(const Game& before, const PieceContent& content, const PictureOwner& to);
/// "Swap Acorn Lane and Birch Road".
Edit Swap(const Game& before, const PictureOwner& one, const PictureOwner& other);

/// For the clipboard, of which other programs and other games take it.
QByteArray Written(const PieceContent& content);
/// Nothing for bytes that Written hasn't written.
std::optional<PieceContent> Read(const QByteArray& bytes);

} // namespace PieceContents
