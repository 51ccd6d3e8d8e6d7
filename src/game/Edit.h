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

/// Edits of single pieces. Each takes the game as it stands, a piece's number and the piece as it is to be, and finds
/// its name by what differs. They raise the subscript error for numbers that there are not.
namespace Edits {

Edit OfSpace(const Game& before, int iSpace, const C_Space& space);
Edit OfCorner(const Game& before, int iCorner, const C_Corner& corner);
/// The game's name and its two subtitles.
Edit OfTitles(const Game& before, const Titles& titles);
/// A card and its deck, 0 Good News, 1 Bad News. Cards of a deck share their fonts: when the card's differ, all
/// others take them, too.
Edit OfCard(const Game& before, int iGoodOrBad, int iCard, const C_News& card, const SpecialText& head);
Edit OfMoney(const Game& before, const std::array<C_Money, basTAVL::kMoney>& money);
Edit OfToken(const Game& before, int iToken, const C_Token& token);

// "Set All Fonts". The texts of spaces, corners and tokens are fitted to the font, measured on the drawing layer's
// current context.

constexpr int kNoSpace = -1;
constexpr int kNoCorner = -1;

/// One font for every space but one and for the corners but one. The fourth corner is left alone: its face belongs
/// to the kit.
Edit OfBoardFont(const Game& before, const C_FontInfo& font, int iSpace, int iCorner);
/// The fonts of a card for all cards of both decks.
Edit OfNewsFonts(const Game& before, const C_News& card);
/// One font for all tokens.
Edit OfTokenFont(const Game& before, const C_FontInfo& font);

} // namespace Edits
