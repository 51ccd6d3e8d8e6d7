// SPDX-License-Identifier: MIT
#include "simulator/Deeds.h"

#include <bit>

namespace Simulator {
namespace {

int GroupOf(int space) {
    if (BoardFacts::IsUtility(space)) return kUtilities;
    return BoardFacts::kTable[std::size_t(space)].iGroup;
}

} // namespace

Deeds::Deeds(const basPosit::RentTable& rents, Kit kit) : m_hasStories(HasAddedStoreys(kit)) {
    for (int space = 0; space < kSpaces; ++space) {
        if (!BoardFacts::IsForSale(space)) continue;
        const basPosit::RentRecord& row = rents[std::size_t(space)];
        Deed& deed = m_deeds[std::size_t(space)];
        deed.price = row.Cost;
        deed.rent = {row.RentSingle, row.RentTwo, row.RentStory1, row.RentStory2};
        deed.story = m_hasStories ? row.RentAddStory : 0;
        deed.mortgage = row.Extra;
        deed.group = GroupOf(space);
        deed.side = space / BoardFacts::kSpacesPerSide;
        m_groups[std::size_t(deed.group)] |= Only(space);
        m_groupPrices[std::size_t(deed.group)] += deed.price;
        if (BoardFacts::IsProperty(space)) m_sides[std::size_t(deed.side)] |= Only(space);
    }
}

int Deeds::RentWithoutStories(int space, int ownedOfGroup, bool wholeSide) const {
    const Deed& deed = (*this)[space];
    const bool wholeGroup = ownedOfGroup == std::popcount(Group(deed.group));
    if (deed.group == kUtilities) return deed.rent[wholeGroup ? 1 : 0];
    if (m_hasStories) return deed.rent[wholeGroup ? 1 : 0] * (wholeSide ? 2 : 1);
    if (wholeSide) return deed.rent[3];
    if (wholeGroup) return deed.rent[2];
    return deed.rent[ownedOfGroup >= 2 ? 1 : 0];
}

int Deeds::RentOf(int space, SpaceSet owned, int stories) const {
    const Deed& deed = (*this)[space];
    const bool wholeSide = (owned & Side(deed.side)) == Side(deed.side);
    if (stories > 0) return deed.rent[std::size_t(stories) + 1] * (wholeSide ? 2 : 1);
    return RentWithoutStories(space, std::popcount(owned & Group(deed.group)), wholeSide);
}

} // namespace Simulator
