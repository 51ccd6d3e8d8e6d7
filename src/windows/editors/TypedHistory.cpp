// SPDX-License-Identifier: MIT
#include "windows/editors/TypedHistory.h"

#include <utility>

namespace {

bool IsLetter(const QString& sEntered) {
    return !sEntered.isEmpty() && sEntered.size() <= 2 && !sEntered.front().isSpace() &&
           sEntered.front().category() != QChar::Other_Control;
}

} // namespace

void TypedHistory::Note(const State& before, const State& after, const QString& sEntered) {
    const bool letter = IsLetter(sEntered);
    const bool goesOn =
        letter && m_amidWord && m_amidWord->iText == before.iText && m_amidWord->selection == before.selection;
    if (!goesOn) m_undo.push_back(before);
    m_redo.clear();
    m_amidWord = letter ? std::optional(after) : std::nullopt;
}

std::optional<TypedHistory::State> TypedHistory::Undo(const State& now) {
    if (m_undo.empty()) return std::nullopt;
    m_amidWord.reset();
    m_redo.push_back(now);
    const State state = m_undo.back();
    m_undo.pop_back();
    return state;
}

std::optional<TypedHistory::State> TypedHistory::Redo(const State& now) {
    if (m_redo.empty()) return std::nullopt;
    m_amidWord.reset();
    m_undo.push_back(now);
    const State state = m_redo.back();
    m_redo.pop_back();
    return state;
}
