// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"
#include "check/PaperTexts.h"
#include "check/PictureFacts.h"
#include "document/Game.h"
#include "pictures/PictureRef.h"

#include <optional>
#include <vector>

/// What is known of the printer that a game will go to.
struct CheckOptions {
    /// What of an upright page can be printed on, in inches; nothing where that isn't known.
    std::optional<QSizeF> printableInches;
};

/// A picture of a piece, and the box that it is printed in.
struct PaperPicture {
    GamePiece piece;
    PictureRef ref;
    QSizeF inches;
    PictureFacts::Fact fact;
};

/// A game that is being checked: the game, and what the checks want to know of it, worked out once for all of them.
/// The corner of fate, the lotto spaces and the news spaces belong to the kit and are left out.
class CheckedGame {
public:
    CheckedGame(const Game& game, PictureFacts& facts, CheckOptions options);

    const Game& game;
    const CheckOptions options;

    /// Most of the spaces have a name or a picture. Before that what is missing is still to come.
    bool IsBegun() const { return m_begun; }

    const std::vector<PaperText>& Texts() const;
    const std::vector<PaperPicture>& Pictures() const;

private:
    PictureFacts& m_facts;
    bool m_begun;
    mutable std::optional<std::vector<PaperText>> m_texts;
    mutable std::optional<std::vector<PaperPicture>> m_pictures;
};
