// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_Corner.h"
#include "document/C_Money.h"
#include "document/C_News.h"
#include "document/C_Space.h"
#include "document/C_Token.h"
#include "document/SpecialText.h"
#include "services/BoardFacts.h"
#include "services/Kit.h"

#include <array>

namespace basTAVL {

constexpr int kSpaces = BoardFacts::kSpaces;
constexpr int kSpacesPerSide = BoardFacts::kSpacesPerSide;
constexpr int kSides = BoardFacts::kSides;
constexpr int kCorners = BoardFacts::kCorners;
constexpr int kNewsSets = 2;
constexpr int kCards = 12;
constexpr int kMoney = 4;
constexpr int kTokens = 6;

} // namespace basTAVL

/// A whole game: a fixed set of records, to which nothing is added and of which nothing is taken away. A value:
/// a copy stands for itself, and touches neither files nor the game it was taken of.
///
/// Colours of the print, sizes of labels and the board's face belong to the kit and the settings, not to a game.
struct Game {
    /// Empty records that know their numbers, for the kit that the settings say.
    Game();

    std::array<C_Space, basTAVL::kSpaces> spaces;
    std::array<C_Corner, basTAVL::kCorners> corners;
    /// Set 0 is Good News, set 1 Bad News.
    std::array<std::array<C_News, basTAVL::kCards>, basTAVL::kNewsSets> news;
    std::array<C_Money, basTAVL::kMoney> money;
    std::array<C_Token, basTAVL::kTokens> tokens;
    Titles titles;
    /// What the game is laid out and printed for. No game file holds it.
    Kit kit;

    /// Compares the kits, and what a family can change and a game file holds: texts in all their slots, fonts,
    /// pictures with zoom and centre. What the start or a paint works out isn't looked at: places on the board, prices,
    /// colours, sizes fitted to a text.
    friend bool operator==(const Game& a, const Game& b);
};

/// The game in hand, which the board shows and every window edits. There is always one; another takes its place
/// by assignment, so its records stay where they are.
Game& TheGame();
