// SPDX-License-Identifier: MIT
#pragma once

#include "check/PaperPictures.h"
#include "check/PaperTexts.h"
#include "document/Game.h"

#include <optional>
#include <vector>

/// What is known of the printer that a game will go to, and how its pictures are looked at.
struct CheckOptions {
    /// What of an upright page can be printed on, in inches; nothing where that isn't known.
    std::optional<QSizeF> printableInches = {};
    PictureFacts::Decoding decoding = PictureFacts::Decoding::Awaited;
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

    const std::vector<PaperText>& Texts() const { return m_texts; }
    const std::vector<PaperPicture>& Pictures() const { return m_pictures; }

    /// Works out a little more of what the checks want to know: the words of a piece, the letters of one text, or one
    /// picture. False when nothing is left; the checks may be run only then.
    bool Gather();

private:
    bool GatherPicture();

    PictureFacts& m_facts;
    bool m_begun;
    int m_part = 0;
    size_t m_lookedAt = 0;
    size_t m_picture = 0;
    std::vector<PaperText> m_texts;
    std::vector<PaperPicture> m_pictures;
};
