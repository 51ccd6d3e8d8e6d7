// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/TextSelection.h"

#include <QStringList>

#include <optional>
#include <vector>

/// What was typed since an editor was opened, to be taken back and brought again. Letters that are typed one behind
/// the other make one step, up to the end of a word.
class TypedHistory {
public:
    struct State {
        /// Which of the window's texts.
        int iText = 0;
        QStringList sTextLines;
        TextSelection selection;
    };

    void Clear() { *this = TypedHistory(); }
    /// A text has been changed: how it stood before and how it stands now; what was entered decides whether it goes on
    /// with the step before.
    void Note(const State& before, const State& after, const QString& sEntered);
    bool CanUndo() const { return !m_undo.empty(); }
    bool CanRedo() const { return !m_redo.empty(); }
    /// The state to go back to; nothing where there is none. The state given up has to be told, as it was fitted since.
    std::optional<State> Undo(const State& now);
    std::optional<State> Redo(const State& now);
    /// The text of the step that Undo would take back; the one of Redo. 0 where there is none.
    int TextToUndo() const { return m_undo.empty() ? 0 : m_undo.back().iText; }
    int TextToRedo() const { return m_redo.empty() ? 0 : m_redo.back().iText; }

private:
    std::vector<State> m_undo;
    std::vector<State> m_redo;
    /// Where the last letter left the caret.
    std::optional<State> m_amidWord;
};
