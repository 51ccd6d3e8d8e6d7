// SPDX-License-Identifier: MIT
#include "services/BoardFacts.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace BoardFacts;

std::vector<int> AllOf(bool (*isOne)(int)) {
    std::vector<int> spaces;
    for (int iSpace = -1; iSpace <= kSpaces; ++iSpace) {
        if (isOne(iSpace)) spaces.push_back(iSpace);
    }
    return spaces;
}

TEST(BoardFactsTest, MiddleOfEachSideBelongsToTheKit) {
    EXPECT_EQ(AllOf([](int i) { return IsNews(i); }), (std::vector<int>{3, 17}));
    EXPECT_EQ(AllOf([](int i) { return IsLotto(i); }), (std::vector<int>{10, 24}));
    EXPECT_EQ(kNewsSpaces, (std::array<int, 2>{3, 17}));
    EXPECT_EQ(kLottoSpaces, (std::array<int, 2>{10, 24}));
}

TEST(BoardFactsTest, AllOtherSpacesAreForSaleAndTwoOfThemUtilities) {
    EXPECT_EQ(AllOf([](int i) { return IsUtility(i); }), (std::vector<int>{1, 26}));
    EXPECT_EQ(AllOf([](int i) { return IsForSale(i); }).size(), 24U);
    EXPECT_EQ(AllOf([](int i) { return IsProperty(i); }).size(), 22U);
}

TEST(BoardFactsTest, PropertiesOfAGroupStandTogetherInThrees) {
    int count[8] = {};
    int last = 0;
    for (int iSpace = 0; iSpace < kSpaces; ++iSpace) {
        const int iGroup = kTable[size_t(iSpace)].iGroup;
        EXPECT_EQ(iGroup != kNoGroup, IsProperty(iSpace)) << iSpace;
        if (iGroup == kNoGroup) continue;
        EXPECT_GE(iGroup, last) << iSpace;
        last = iGroup;
        ++count[iGroup];
    }
    // A utility stands among those of the first and of the last.
    for (int iGroup = 0; iGroup < 8; ++iGroup)
        EXPECT_EQ(count[iGroup], iGroup == 0 || iGroup == 7 ? 2 : 3) << iGroup;
}

} // namespace
