// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <tuple>

struct Game;

/// A piece of a game that a family can go to and change. A plain value, ordered as the pieces are told of.
struct GamePiece {
    enum class Kind { Game, Titles, Space, Corner, Deck, Card, Money, Token };

    Kind kind = Kind::Game;
    /// 0 Good News, 1 Bad News; of decks and cards only.
    int iDeck = 0;
    int iNumber = 0;

    static GamePiece Whole() { return {}; }
    static GamePiece Titles() { return {Kind::Titles}; }
    static GamePiece Space(int iSpace) { return {Kind::Space, 0, iSpace}; }
    static GamePiece Corner(int iCorner) { return {Kind::Corner, 0, iCorner}; }
    static GamePiece Deck(int iDeck) { return {Kind::Deck, iDeck}; }
    static GamePiece Card(int iDeck, int iCard) { return {Kind::Card, iDeck, iCard}; }
    static GamePiece Money(int iMoney) { return {Kind::Money, 0, iMoney}; }
    static GamePiece Token(int iToken) { return {Kind::Token, 0, iToken}; }

    /// For scripts and settings: "space-4", "card-0-11".
    QString Word() const;
    /// For a family: its own name for the piece where it has one, else its place, "Space 5".
    QString NameIn(const Game& game) const;

    friend bool operator==(const GamePiece&, const GamePiece&) = default;
    friend bool operator<(const GamePiece& a, const GamePiece& b) {
        return std::tie(a.kind, a.iDeck, a.iNumber) < std::tie(b.kind, b.iDeck, b.iNumber);
    }
};
