// SPDX-License-Identifier: MIT
#pragma once

#include "document/Game.h"

#include <QString>

/// One change of a game: what it is called, and the game as it is to be afterwards.
struct Edit {
    /// As a person would name it, so that it can stand behind "Undo": "Picture of Acorn Lane".
    QString sName;
    Game after;
};

/// Edits of single pieces. Each takes the game as it stands and the piece as it is to be, by its own number, and
/// finds its name by what differs.
namespace Edits {

Edit OfSpace(const Game& before, const C_Space& space);
Edit OfCorner(const Game& before, const C_Corner& corner);
/// The game's name and its two subtitles.
Edit OfTitles(const Game& before, const Titles& titles);
/// A card and its deck, 0 Good News, 1 Bad News. Cards of a deck share their fonts: when the card's differ, all
/// others take them, too.
Edit OfCard(const Game& before, int iGoodOrBad, const C_News& card, const SpecialText& head);
Edit OfMoney(const Game& before, const std::array<C_Money, basTAVL::kMoney>& money);
Edit OfToken(const Game& before, const C_Token& token);

/// A change of the fonts of many pieces at once.
Edit OfAllFonts(const Game& after);

} // namespace Edits
