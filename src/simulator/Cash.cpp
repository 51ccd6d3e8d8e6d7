// SPDX-License-Identifier: MIT
#include "simulator/Cash.h"

namespace Simulator::Cash {
namespace {

// The deed of least price among those that fit; kNobody where there is none.
template <typename Fits>
int CheapestOf(const Table& table, SpaceSet spaces, const Fits& fits) {
    int best = kNobody;
    ForEach(spaces, [&](int space) {
        if (fits(space) && (best == kNobody || table.DeedOf(space).price < table.DeedOf(best).price)) best = space;
    });
    return best;
}

int ToMortgage(const Table& table, int seat, bool ofWholeGroups) {
    return CheapestOf(table, table.At(seat).deeds & ~table.mortgaged, [&](int space) {
        const int group = table.DeedOf(space).group;
        return table.OwnsGroup(seat, group) == ofWholeGroups && table.StoriesOnGroup(group) == 0;
    });
}

// Stories go as evenly as they came.
int ToSellStoryOf(const Table& table, int seat) {
    for (int height = kMostStories; height > 0; --height) {
        const int space = CheapestOf(table, table.At(seat).deeds,
                                     [&](int candidate) { return table.stories[std::size_t(candidate)] == height; });
        if (space != kNobody) return space;
    }
    return kNobody;
}

void GiveOrPay(Table& table, int seat, int creditor, int amount) {
    if (creditor != kNobody)
        table.Give(seat, creditor, amount);
    else
        table.ToBank(seat, amount);
}

void GoBroke(Table& table, int seat, int creditor) {
    table.broke = seat;
    GiveOrPay(table, seat, creditor, table.At(seat).money);
    ForEach(table.At(seat).deeds, [&](int space) { table.HandOver(space, creditor); });
}

} // namespace

void Mortgage(Table& table, int space) {
    table.mortgaged |= Only(space);
    table.FromBank(table.owner[std::size_t(space)], table.DeedOf(space).mortgage);
}

int CostOfLifting(const Table& table, int space) {
    return table.DeedOf(space).mortgage + table.set.rules.toLiftMortgage;
}

void LiftMortgage(Table& table, int space) {
    table.mortgaged &= ~Only(space);
    table.ToBank(table.owner[std::size_t(space)], CostOfLifting(table, space));
}

void BuyStory(Table& table, int space) {
    ++table.stories[std::size_t(space)];
    table.ToBank(table.owner[std::size_t(space)], table.DeedOf(space).story);
    table.record.spent[std::size_t(space)] += table.DeedOf(space).story;
}

void SellStory(Table& table, int space) {
    --table.stories[std::size_t(space)];
    table.FromBank(table.owner[std::size_t(space)], table.DeedOf(space).story / 2);
    table.record.spent[std::size_t(space)] -= table.DeedOf(space).story / 2;
}

void Raise(Table& table, int seat, int amount) {
    while (table.At(seat).money < amount) {
        int space = ToMortgage(table, seat, false);
        if (space == kNobody) space = ToMortgage(table, seat, true);
        if (space != kNobody) {
            Mortgage(table, space);
            continue;
        }
        space = ToSellStoryOf(table, seat);
        if (space == kNobody) return;
        SellStory(table, space);
    }
}

bool Pay(Table& table, int seat, int creditor, int amount) {
    Raise(table, seat, amount);
    if (table.At(seat).money < amount) {
        GoBroke(table, seat, creditor);
        return false;
    }
    GiveOrPay(table, seat, creditor, amount);
    return true;
}

} // namespace Simulator::Cash
