// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Table.h"

/// What is owed, and what happens when it can't be paid.
namespace Simulator::Cash {

/// Pays a debt to a player or to the bank (kNobody), selling stories and mortgaging deeds where the money in hand isn't
/// enough. False: the player is broke and the game over, and what was left is with whom it was owed to.
bool Pay(Table& table, int seat, int creditor, int amount);

/// Sells stories and mortgages deeds, dearest things last, until so much is in hand or there is nothing left.
void Raise(Table& table, int seat, int amount);

void Mortgage(Table& table, int space);
/// Turns a deed up again, for its mortgage value and the fee.
void LiftMortgage(Table& table, int space);
int CostOfLifting(const Table& table, int space);

void BuyStory(Table& table, int space);
/// For half of what it costs.
void SellStory(Table& table, int space);

} // namespace Simulator::Cash
