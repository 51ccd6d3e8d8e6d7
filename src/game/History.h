// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"

#include <vector>

/// Records of a game, each whole and with its place.
class GameParts {
public:
    /// The records in which two games differ, as the second has them. What is fitted or set by the kit counts,
    /// too, so that a game gets back its very look.
    static GameParts Difference(const Game& from, const Game& to);

    /// Puts them into a game and takes what stood there.
    void Swap(Game& game);

private:
    template <typename Record>
    struct At {
        int place;
        Record record;
    };
    template <typename Record>
    using Records = std::vector<At<Record>>;

    Records<C_Space> m_spaces;
    Records<C_Corner> m_corners;
    Records<C_News> m_news;
    Records<C_Money> m_money;
    Records<C_Token> m_tokens;
    Records<SpecialText> m_titles;
};

/// The edits of a game in their order, and the way back and forth between them. Knows nothing of files and
/// windows. A step keeps only the records that it changed, and texts are shared: a thousand steps are some
/// hundred kilobytes.
class History {
public:
    /// Forgets all steps: another game has come.
    void Begin();

    /// Puts an edit in force and forgets what was undone. One that leaves a family's game as it was is no step,
    /// though what was fitted anew is taken over.
    void Do(Game& game, const Edit& edit);

    bool CanUndo() const { return m_done > 0; }
    bool CanRedo() const { return m_done < m_steps.size(); }
    /// Names of the edits that Undo and Redo would take; empty where there is none.
    QString UndoName() const;
    QString RedoName() const;
    /// The game has to be the one that the edits were put in force on. Nothing where there is no step.
    void Undo(Game& game);
    void Redo(Game& game);

    /// Known by the state of the game: the same again when the steps lead back to it, and never that of another.
    quint64 State() const { return m_done == 0 ? m_firstState : m_steps[m_done - 1].state; }

private:
    struct Step {
        QString sName;
        /// What the step changes to, or once it was taken, what it changed from.
        GameParts other;
        quint64 state;
    };

    std::vector<Step> m_steps;
    /// Steps in force.
    size_t m_done = 0;
    quint64 m_firstState = 0;
    quint64 m_lastState = 0;
};
