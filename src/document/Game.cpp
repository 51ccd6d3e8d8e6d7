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

// Where the kit paints its own picture, the game's is whatever the last paint left there.
bool HaveEqualCorners(const Game& a, const Game& b) {
    for (size_t i = 0; i < a.corners.size(); ++i) {
        C_Corner other = b.corners[i];
        if (i == BoardFacts::kFateCorner && PaintsFateItself(a.kit)) other.Image = a.corners[i].Image;
        if (!(a.corners[i] == other)) return false;
    }
    return true;
}

} // namespace

Game::Game() : kit(KitInUse()) {
    Number(spaces);
    Number(corners);
    for (auto& set : news)
        Number(set);
    Number(money);
    for (C_Money& note : money) {
        note.FaceImage.Let_SpaceOrCorner(QStringLiteral("Money"));
        note.FaceImage.Let_Index(note.Index);
    }
    Number(tokens);
}

bool operator==(const Game& a, const Game& b) {
    return a.kit == b.kit && a.titles == b.titles && a.spaces == b.spaces && HaveEqualCorners(a, b) &&
           a.news == b.news && a.money == b.money && a.tokens == b.tokens;
}

Game& TheGame() {
    static Game game;
    return game;
}
