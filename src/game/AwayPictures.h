// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

struct Game;

/// Pictures of a game whose files can't be found just now, as those on a stick that was pulled. They stay with their
/// pieces, and are there again by themselves when their folder is.
class AwayPictures {
public:
    /// Looks for all pictures of the game. One that a game file names without its folder is found at any of the places
    /// where it may lie, and keeps its part. True when one is there that wasn't at the last look.
    bool Look(Game& game);
    /// Whether one wasn't found at the last look.
    bool IsAny() const { return !m_away.isEmpty(); }

private:
    QSet<QString> m_away;
};
