// SPDX-License-Identifier: MIT
#include "simulator/Market.h"

#include "simulator/Cash.h"

#include <algorithm>

namespace Simulator::Market {
namespace {

constexpr int kHundred = 100;

int DownToNotes(int amount) { return amount - amount % kSmallestNote; }

// The other deeds of the group are all in this hand.
bool WouldCompleteGroup(const Table& table, int seat, int space) {
    const SpaceSet others = table.set.deeds.Group(table.DeedOf(space).group) & ~Only(space);
    return (table.At(seat).deeds & others) == others;
}

bool WouldCompleteAnyGroup(const Table& table, int space) {
    for (int seat = 0; seat < table.Players(); ++seat) {
        if (WouldCompleteGroup(table, seat, space)) return true;
    }
    return false;
}

int KeptWhenBuying(const Table& table, int seat, int space) {
    const int keeps = table.KindOf(seat).keepsWhenBuying;
    return WouldCompleteGroup(table, seat, space) ? keeps / 3 : keeps;
}

void Buy(Table& table, int seat, int space, int amount) {
    table.ToBank(seat, amount);
    table.HandOver(space, seat);
    table.record.spent[std::size_t(space)] += amount;
    ++table.record.purchases;
}

} // namespace

void OfferSpace(Table& table, int seat, int space) {
    const int price = table.DeedOf(space).price;
    if (table.At(seat).money - price >= KeptWhenBuying(table, seat, space))
        Buy(table, seat, space, price);
    else
        Auction(table, space, seat);
}

int MostBid(const Table& table, int seat, int space) {
    const PlayerKind& kind = table.KindOf(seat);
    const int share = WouldCompleteAnyGroup(table, space) ? kind.bidsForGroup : kind.bids;
    const int worth = table.DeedOf(space).price * share / kHundred;
    return DownToNotes(std::min(worth, table.At(seat).money - KeptWhenBuying(table, seat, space)));
}

void Auction(Table& table, int space, int first) {
    int winner = kNobody;
    int most = 0;
    int second = 0;
    for (int turn = 0; turn < table.Players(); ++turn) {
        const int seat = (first + turn) % table.Players();
        const int bid = MostBid(table, seat, space);
        if (bid > most) {
            second = most;
            most = bid;
            winner = seat;
        } else {
            second = std::max(second, bid);
        }
    }
    if (winner != kNobody) Buy(table, winner, space, std::min(most, second + kSmallestNote));
}

namespace {

int ToLift(const Table& table, int seat) {
    int best = kNobody;
    ForEach(table.At(seat).deeds & table.mortgaged, [&](int space) {
        const bool inWhole = table.OwnsGroup(seat, table.DeedOf(space).group);
        const bool bestInWhole = best != kNobody && table.OwnsGroup(seat, table.DeedOf(best).group);
        if (best == kNobody || (inWhole && !bestInWhole)) best = space;
    });
    return best;
}

bool MayBuild(const Table& table, int seat, int space) {
    const int group = table.DeedOf(space).group;
    const SpaceSet all = table.set.deeds.Group(group);
    if (group == kUtilities || !table.OwnsGroup(seat, group) || (table.mortgaged & all) != 0) return false;
    const int height = table.stories[std::size_t(space)];
    bool isLowest = height < kMostStories;
    ForEach(all, [&](int other) { isLowest = isLowest && table.stories[std::size_t(other)] >= height; });
    return isLowest;
}

// The space where a story brings most rent for its price.
int ToBuildOn(const Table& table, int seat) {
    int best = kNobody;
    double most = 0;
    ForEach(table.At(seat).deeds, [&](int space) {
        if (!MayBuild(table, seat, space)) return;
        const int height = table.stories[std::size_t(space)];
        const SpaceSet owned = table.At(seat).deeds;
        const int more =
            table.set.deeds.RentOf(space, owned, height + 1) - table.set.deeds.RentOf(space, owned, height);
        const double gain = double(more) / table.DeedOf(space).story;
        if (gain > most) {
            most = gain;
            best = space;
        }
    });
    return best;
}

bool CanSpend(const Table& table, int seat, int amount) {
    return table.At(seat).money - amount >= table.KindOf(seat).keepsWhenBuilding;
}

} // namespace

void Improve(Table& table, int seat) {
    for (int space = ToLift(table, seat); space != kNobody; space = ToLift(table, seat)) {
        if (!CanSpend(table, seat, Cash::CostOfLifting(table, space))) break;
        Cash::LiftMortgage(table, space);
    }
    if (!table.set.deeds.HasStories()) return;
    bool built = false;
    for (int space = ToBuildOn(table, seat); space != kNobody; space = ToBuildOn(table, seat)) {
        if (!CanSpend(table, seat, table.DeedOf(space).story)) break;
        Cash::BuyStory(table, space);
        built = true;
    }
    if (built) ++table.record.purchases;
}

} // namespace Simulator::Market
