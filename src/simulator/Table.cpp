// SPDX-License-Identifier: MIT
#include "simulator/Table.h"

#include <algorithm>

namespace Simulator {

Table::Table(const PlaySet& given, const std::vector<int>& kinds)
    : set(given), seats(kinds.size()), bank(given.rules.MoneyFor(int(kinds.size()))) {
    owner.fill(kNobody);
    record.players = Players();
    for (int seat = 0; seat < Players(); ++seat) {
        At(seat).kind = kinds[std::size_t(seat)];
        record.kinds[std::size_t(seat)] = At(seat).kind;
        FromBank(seat, set.rules.startMoney + seat * set.rules.morePerSeat);
    }
}

void Table::FromBank(int seat, int amount) {
    bank -= amount;
    m_out += amount;
    At(seat).money += amount;
    record.mostOut = std::max(record.mostOut, m_out);
}

void Table::ToBank(int seat, int amount) { FromBank(seat, -amount); }

void Table::Give(int from, int to, int amount) {
    At(from).money -= amount;
    At(to).money += amount;
}

bool Table::OwnsGroup(int seat, int group) const {
    const SpaceSet all = set.deeds.Group(group);
    return (At(seat).deeds & all) == all;
}

int Table::StoriesOnGroup(int group) const {
    int sum = 0;
    ForEach(set.deeds.Group(group), [&](int space) { sum += stories[std::size_t(space)]; });
    return sum;
}

void Table::HandOver(int space, int to) {
    int& now = owner[std::size_t(space)];
    if (now != kNobody) At(now).deeds &= ~Only(space);
    now = to;
    if (to == kNobody) return;
    At(to).deeds |= Only(space);
    record.bought |= Only(space);
    const int group = DeedOf(space).group;
    if (OwnsGroup(to, group)) record.wasWhole[std::size_t(group)] = true;
}

int Table::RentOf(int space) const {
    const int seat = owner[std::size_t(space)];
    if (seat == kNobody || Has(mortgaged, space)) return 0;
    return set.deeds.RentOf(space, At(seat).deeds, stories[std::size_t(space)]);
}

int Table::WealthOf(int seat) const {
    int wealth = At(seat).money;
    ForEach(At(seat).deeds, [&](int space) {
        const Deed& deed = DeedOf(space);
        wealth += Has(mortgaged, space) ? deed.price / 2 : deed.price;
        wealth += stories[std::size_t(space)] * deed.story;
    });
    return wealth;
}

int Table::Richest() const {
    int best = kNobody;
    for (int seat = 0; seat < Players(); ++seat) {
        if (seat == broke) continue;
        if (best == kNobody || WealthOf(seat) > WealthOf(best)) best = seat;
    }
    return best;
}

} // namespace Simulator
