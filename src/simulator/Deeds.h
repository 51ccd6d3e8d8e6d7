// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPositRents.h"

#include <array>
#include <cstdint>

/// What the title deeds say, and which of them belong together.
namespace Simulator {

constexpr int kSpaces = BoardFacts::kSpaces;
/// The eight groups of a colour, and the utilities as a ninth.
constexpr int kGroups = 9;
constexpr int kUtilities = 8;
constexpr int kSides = BoardFacts::kSides;
constexpr int kMostStories = 2;

/// A set of spaces, a bit each.
using SpaceSet = std::uint32_t;
constexpr SpaceSet Only(int space) { return SpaceSet(1) << space; }
constexpr bool Has(SpaceSet set, int space) { return (set >> space & 1) != 0; }

/// One deed. Amounts are in dollars.
struct Deed {
    int price = 0;
    /// The lines of the deed from the top.
    std::array<int, 4> rent{};
    /// What one more story costs; 0 where the kit knows no stories.
    int story = 0;
    int mortgage = 0;
    int group = BoardFacts::kNoGroup;
    int side = 0;
};

class Deeds {
public:
    Deeds(const basPosit::RentTable& rents, Kit kit);

    const Deed& operator[](int space) const { return m_deeds[std::size_t(space)]; }
    /// Its spaces.
    SpaceSet Group(int group) const { return m_groups[std::size_t(group)]; }
    int PriceOfGroup(int group) const { return m_groupPrices[std::size_t(group)]; }
    /// The colored properties of a side.
    SpaceSet Side(int side) const { return m_sides[std::size_t(side)]; }
    /// False in the older kits, whose deeds have a line for the color side instead.
    bool HasStories() const { return m_hasStories; }

    /// What a visitor owes the owner of these deeds for one that isn't mortgaged, with so many stories on it.
    int RentOf(int space, SpaceSet owned, int stories) const;

private:
    int RentWithoutStories(int space, int ownedOfGroup, bool wholeSide) const;

    std::array<Deed, kSpaces> m_deeds{};
    std::array<SpaceSet, kGroups> m_groups{};
    std::array<int, kGroups> m_groupPrices{};
    std::array<SpaceSet, kSides> m_sides{};
    bool m_hasStories;
};

} // namespace Simulator
