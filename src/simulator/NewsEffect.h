// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace Simulator {

/// What a Good News or Bad News card does to whoever draws it.
struct NewsEffect {
    enum class Kind {
        FromBank,      ///< the bank pays
        ToBank,        ///< the bank is paid
        FromEach,      ///< each other player pays
        ToEach,        ///< each other player is paid
        FromLeft,      ///< the player on the left pays
        PerStory,      ///< the bank is paid for each building story
        PerDeed,       ///< the bank is paid for each deed, up to a limit
        Move,          ///< so many spaces ahead, back where negative
        ToSpace,       ///< ahead to a space, by way of the start where that lies between
        ToStart,       ///< straight to the start
        ToLoseTurn,    ///< straight to the corner where a turn is lost
        AgainNow,      ///< another turn
        MissesNextTurn ///< the next turn is lost
    };
    Kind kind = Kind::FromBank;
    /// Dollars, or spaces to move.
    int amount = 0;
    /// Dollars, for what grows with possessions; 0 where there is no limit.
    int most = 0;
    /// Where to, for ToSpace: 0 to 27.
    int space = 0;

    friend bool operator==(const NewsEffect&, const NewsEffect&) = default;
};

/// Twelve cards in each of the two decks, Good News first.
using NewsDecks = std::array<std::array<NewsEffect, 12>, 2>;

/// What a card's text tells to do, as a player would read it. The names are those of the game's spaces and corners, in
/// one line each. Nothing for a text that tells nothing that can be played.
std::optional<NewsEffect> ReadNewsCard(const QString& text, const QStringList& spaces, const QStringList& corners);

} // namespace Simulator
