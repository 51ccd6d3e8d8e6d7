// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Table.h"

namespace Simulator {

/// One game from the first roll to the winner.
class GamePlay {
public:
    /// The decks are shuffled here. Kinds of players, the first to go first.
    GamePlay(const PlaySet& set, const std::vector<int>& kinds, std::uint64_t seed);

    /// Plays to the end.
    const GameRecord& Run();

    // A turn's parts, each with what the dice showed.

    /// A turn with all its throws.
    void TakeTurn(int seat);
    /// The turn is over unless a double was thrown; or another throw follows anyway; or none whatever was thrown.
    enum class After { TurnIsOver, OnceMore, TurnEnds };
    /// One throw of a turn, behind so many doubles in a row.
    After Throw(int seat, int first, int second, int& doubles);
    /// The token goes ahead by both dice and does what it finds there.
    After MoveBy(int seat, int first, int second);
    After Land(int seat, int rolled);
    void Lotto(int seat, int rolled, int thrown);
    After Fate(int seat, int die);
    After DoNews(int seat, const NewsEffect& card, int rolled);

    Table& OnTable() { return m_table; }

private:
    /// Ahead to a place, with the start's money where it is passed or reached.
    void GoAheadTo(int seat, int place);
    After GoToLoseTurn(int seat);
    After DrawCard(int seat, int deck, int rolled);
    void PayBank(int seat, const NewsEffect& card);
    After GoWhereSent(int seat, const NewsEffect& card, int rolled);
    void PayRent(int seat, int space);
    void PayEach(int seat, int amount);
    void CollectFromEach(int seat, int amount);

    Dice m_dice;
    Table m_table;
    NewsDecks m_decks;
    std::array<int, 2> m_drawn{};
};

} // namespace Simulator
