// SPDX-License-Identifier: MIT
#include "game/History.h"

#include <algorithm>
#include <utility>

namespace {

template <typename Record>
bool Differ(const Record& one, const Record& other) {
    return !(one == other) || one.IsDifferentFrom(other);
}

bool Differ(const SpecialText& one, const SpecialText& other) {
    return !(one == other) || one.fFontWidth != other.fFontWidth;
}

template <typename Table, typename Records>
void Collect(const Table& from, const Table& to, int first, Records& records) {
    for (size_t i = 0; i < to.size(); ++i) {
        if (Differ(from[i], to[i])) records.push_back({first + int(i), to[i]});
    }
}

template <typename Table, typename Records>
void SwapInto(Table& table, Records& records) {
    for (auto& at : records)
        std::swap(table[size_t(at.place)], at.record);
}

} // namespace

GameParts GameParts::Difference(const Game& from, const Game& to) {
    GameParts parts;
    Collect(from.spaces, to.spaces, 0, parts.m_spaces);
    Collect(from.corners, to.corners, 0, parts.m_corners);
    for (size_t set = 0; set < to.news.size(); ++set)
        Collect(from.news[set], to.news[set], int(set) * basTAVL::kCards, parts.m_news);
    Collect(from.money, to.money, 0, parts.m_money);
    Collect(from.tokens, to.tokens, 0, parts.m_tokens);
    for (int i = Titles::kFirst; i <= Titles::kLast; ++i) {
        if (Differ(from.titles.Text(i), to.titles.Text(i))) parts.m_titles.push_back({i, to.titles.Text(i)});
    }
    return parts;
}

void GameParts::Swap(Game& game) {
    SwapInto(game.spaces, m_spaces);
    SwapInto(game.corners, m_corners);
    for (auto& at : m_news) {
        auto& deck = game.news[size_t(at.place / basTAVL::kCards)];
        std::swap(deck[size_t(at.place % basTAVL::kCards)], at.record);
    }
    SwapInto(game.money, m_money);
    SwapInto(game.tokens, m_tokens);
    for (auto& at : m_titles)
        std::swap(game.titles.Text(at.place), at.record);
}

void History::Begin() {
    m_steps.clear();
    m_done = 0;
    m_firstState = ++m_lastState;
}

void History::Do(Game& game, const Edit& edit) {
    const bool step = !(game == edit.after);
    GameParts parts = GameParts::Difference(game, edit.after);
    parts.Swap(game);
    if (!step) return;
    m_steps.erase(m_steps.begin() + std::ptrdiff_t(m_done), m_steps.end());
    m_steps.push_back({edit.sName, std::move(parts), ++m_lastState});
    ++m_done;
}

QString History::UndoName() const { return CanUndo() ? m_steps[m_done - 1].sName : QString(); }
QString History::RedoName() const { return CanRedo() ? m_steps[m_done].sName : QString(); }

void History::Undo(Game& game) {
    if (!CanUndo()) return;
    m_steps[--m_done].other.Swap(game);
}

void History::Redo(Game& game) {
    if (!CanRedo()) return;
    m_steps[m_done++].other.Swap(game);
}
