// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Table.h"

/// Buying, bidding, building and trading, as each kind of player goes about it.
namespace Simulator::Market {

/// A player stands on a space that nobody owns: buys it, or it is auctioned.
void OfferSpace(Table& table, int seat, int space);

/// All players bid, beginning with this one; the highest pays a step more than the second would have.
void Auction(Table& table, int space, int first);
/// The most that a player bids for a deed; below the smallest note: nothing.
int MostBid(const Table& table, int seat, int space);

/// Lifts mortgages and builds while there is money to spare. At the start of a turn.
void Improve(Table& table, int seat);

/// One deed against another or against money, if both sides gain by their own reckoning.
void TryTrade(Table& table, int seat);

} // namespace Simulator::Market
