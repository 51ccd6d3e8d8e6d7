// SPDX-License-Identifier: MIT
#include "document/Game.h"

namespace {

// A game saved before any was loaded loads again.
template <typename Records>
void Number(Records& records) {
    qint16 index = 0;
    for (auto& record : records)
        record.Index = index++;
}

} // namespace

Game::Game() {
    Number(spaces);
    Number(corners);
    for (auto& set : news)
        Number(set);
    Number(money);
    Number(tokens);
}

bool operator==(const Game& a, const Game& b) {
    return a.titles == b.titles && a.spaces == b.spaces && a.corners == b.corners && a.news == b.news &&
           a.money == b.money && a.tokens == b.tokens;
}

Game& TheGame() {
    static Game game;
    return game;
}
