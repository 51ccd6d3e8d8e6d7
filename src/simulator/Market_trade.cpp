// SPDX-License-Identifier: MIT
#include "simulator/Market.h"

#include <bit>

namespace Simulator::Market {
namespace {

constexpr int kHundred = 100;
// Of the price of a group, in hundredths, when all but one of its deeds are in hand.
constexpr int kNearlyWhole = 15;
// Nobody sits down to a trade for less than this.
constexpr int kWorthTheTalk = 200;

struct Offer {
    int to = kNobody;
    int wanted = kNobody;
    int given = kNobody;
    /// What goes with it to the other side; negative: what comes back.
    int money = 0;
    int gain = 0;
};

int PriceOf(const Table& table, SpaceSet spaces) {
    int sum = 0;
    ForEach(spaces, [&](int space) {
        const int price = table.DeedOf(space).price;
        sum += Has(table.mortgaged, space) ? price / 2 : price;
    });
    return sum;
}

// What deeds are worth to a player of this kind.
int Worth(const Table& table, const PlayerKind& kind, SpaceSet deeds) {
    int sum = PriceOf(table, deeds);
    for (int group = 0; group < kGroups; ++group) {
        const SpaceSet all = table.set.deeds.Group(group);
        const int missing = std::popcount(all & ~deeds);
        if (missing > 1) continue;
        const int share = missing == 0 ? kind.wholeGroup : kNearlyWhole;
        sum += table.set.deeds.PriceOfGroup(group) * share / kHundred;
    }
    return sum;
}

SpaceSet Swapped(SpaceSet deeds, int gone, int come) {
    if (gone != kNobody) deeds &= ~Only(gone);
    if (come != kNobody) deeds |= Only(come);
    return deeds;
}

class Trader {
public:
    Trader(const Table& table, int seat) : m_table(table), m_seat(seat), m_deeds(table.At(seat).deeds) {}

    // Deeds that would complete a group of this player's, or that it and the other could exchange.
    Offer Best() {
        for (int group = 0; group < kGroups; ++group) {
            const SpaceSet all = m_table.set.deeds.Group(group);
            if ((m_deeds & all) == 0 || (m_deeds & all) == all || m_table.StoriesOnGroup(group) > 0) continue;
            ForEach(all & ~m_deeds, [&](int wanted) { AskFor(wanted); });
        }
        return m_best;
    }

private:
    void AskFor(int wanted) {
        const int owner = m_table.owner[std::size_t(wanted)];
        if (owner == kNobody) return;
        const bool completes = std::popcount(m_table.set.deeds.Group(m_table.DeedOf(wanted).group) & ~m_deeds) == 1;
        if (completes) Weigh({owner, wanted});
        ForEach(m_deeds, [&](int given) {
            const int group = m_table.DeedOf(given).group;
            const SpaceSet all = m_table.set.deeds.Group(group);
            if (group == m_table.DeedOf(wanted).group || (m_deeds & all) == all) return;
            if ((m_table.At(owner).deeds & all) != 0) Weigh({owner, wanted, given});
        });
    }

    void Weigh(Offer offer) {
        const PlayerKind& mine = m_table.KindOf(m_seat);
        const PlayerKind& theirs = m_table.KindOf(offer.to);
        const SpaceSet others = m_table.At(offer.to).deeds;
        const SpaceSet after = Swapped(m_deeds, offer.given, offer.wanted);
        const int myGain = Worth(m_table, mine, after) - Worth(m_table, mine, m_deeds);
        int theirGain =
            Worth(m_table, theirs, Swapped(others, offer.wanted, offer.given)) - Worth(m_table, theirs, others);
        const int group = m_table.DeedOf(offer.wanted).group;
        const SpaceSet all = m_table.set.deeds.Group(group);
        // They will pay rent for it.
        if ((after & all) == all)
            theirGain -= m_table.set.deeds.PriceOfGroup(group) * theirs.wholeGroup / (2 * kHundred);
        if (myGain + theirGain < kWorthTheTalk) return;
        offer.money = (myGain - theirGain) / 2 / kSmallestNote * kSmallestNote;
        offer.gain = myGain - offer.money;
        if (CanAfford(offer) && offer.gain > m_best.gain) m_best = offer;
    }

    bool CanAfford(const Offer& offer) const {
        const int left = m_table.At(m_seat).money - offer.money;
        return left >= m_table.KindOf(m_seat).keepsWhenBuying / 2 && m_table.At(offer.to).money + offer.money >= 0;
    }

    const Table& m_table;
    const int m_seat;
    const SpaceSet m_deeds;
    Offer m_best;
};

} // namespace

void TryTrade(Table& table, int seat) {
    const Offer offer = Trader(table, seat).Best();
    if (offer.to == kNobody) return;
    table.Give(seat, offer.to, offer.money);
    table.HandOver(offer.wanted, seat);
    if (offer.given != kNobody) table.HandOver(offer.given, offer.to);
    ++table.record.trades;
    ++table.record.purchases;
}

} // namespace Simulator::Market
