// SPDX-License-Identifier: MIT
#include "simulator/Deeds.h"

#include "TableFixture.h"

using namespace Simulator;

namespace {

class SimulatorDeedsTest : public TableTest {};

TEST_F(SimulatorDeedsTest, RentsOfTheKitWithStories) {
    const Deeds& deeds = set.deeds;
    EXPECT_EQ(deeds.RentOf(4, Spaces({4}), 0), 100);
    EXPECT_EQ(deeds.RentOf(4, Spaces({4, 5}), 0), 100) << "two of three are no group";
    EXPECT_EQ(deeds.RentOf(4, Spaces({4, 5, 6}), 0), 200);
    EXPECT_EQ(deeds.RentOf(4, Spaces({4, 5, 6}), 1), 400);
    EXPECT_EQ(deeds.RentOf(4, Spaces({4, 5, 6}), 2), 800);
}

TEST_F(SimulatorDeedsTest, WholeColorSideDoublesAllRentsButThoseOfUtilities) {
    const Deeds& deeds = set.deeds;
    const SpaceSet side = Spaces({0, 2, 4, 5, 6});
    EXPECT_EQ(deeds.RentOf(0, side, 0), 400);
    EXPECT_EQ(deeds.RentOf(6, side, 1), 800);
    EXPECT_EQ(deeds.RentOf(6, side, 2), 1600);
    EXPECT_EQ(deeds.RentOf(1, side | Spaces({1}), 0), 100);
    EXPECT_EQ(deeds.RentOf(1, side | Spaces({1, 26}), 0), 200) << "both utilities";
    EXPECT_EQ(deeds.RentOf(7, side | Spaces({7}), 0), 100) << "another side";
}

TEST_F(SimulatorDeedsTest, RentsOfTheOlderKitsGoByTwoGroupAndSide) {
    const Deeds deeds(PlainRents(), Kit::Five);
    EXPECT_FALSE(deeds.HasStories());
    EXPECT_EQ(deeds[4].story, 0);
    EXPECT_EQ(deeds.RentOf(4, Spaces({4}), 0), 100);
    EXPECT_EQ(deeds.RentOf(4, Spaces({4, 6}), 0), 200);
    EXPECT_EQ(deeds.RentOf(4, Spaces({4, 5, 6}), 0), 400);
    EXPECT_EQ(deeds.RentOf(4, Spaces({0, 2, 4, 5, 6}), 0), 800);
    EXPECT_EQ(deeds.RentOf(25, Spaces({25, 27}), 0), 400) << "a group of two is whole with two";
    EXPECT_EQ(deeds.RentOf(26, Spaces({1, 26}), 0), 200);
}

TEST_F(SimulatorDeedsTest, GroupsAndSidesAreThoseOfTheBoard) {
    const Deeds& deeds = set.deeds;
    EXPECT_EQ(deeds.Group(0), Spaces({0, 2}));
    EXPECT_EQ(deeds.Group(7), Spaces({25, 27}));
    EXPECT_EQ(deeds.Group(kUtilities), Spaces({1, 26}));
    EXPECT_EQ(deeds.PriceOfGroup(3), 3000);
    EXPECT_EQ(deeds.Side(3), Spaces({21, 22, 23, 25, 27}));
}

TEST_F(SimulatorDeedsTest, PlacesGoRoundTheBoardCornersAmongThem) {
    EXPECT_TRUE(IsCorner(0));
    EXPECT_EQ(PlaceOfSpace(0), 1);
    EXPECT_EQ(PlaceOfSpace(6), 7);
    EXPECT_EQ(PlaceOfCorner(1), 8);
    EXPECT_EQ(PlaceOfSpace(7), 9);
    EXPECT_EQ(PlaceOfSpace(27), 31);
    for (int space = 0; space < kSpaces; ++space) {
        EXPECT_EQ(SpaceAt(PlaceOfSpace(space)), space);
        EXPECT_FALSE(IsCorner(PlaceOfSpace(space)));
    }
}

} // namespace
