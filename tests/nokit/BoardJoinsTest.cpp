// SPDX-License-Identifier: MIT
#include "nokit/BoardJoins.h"

#include <cmath>

#include <gtest/gtest.h>

using namespace BoardJoins;

namespace {

constexpr double kOverlap = 10 / 25.4;

// The pages lie side by side without a gap, each shows no more than it can, and each but the last is glued under.
void ExpectWhole(const std::vector<Strip>& strips, const Axis& axis) {
    ASSERT_FALSE(strips.empty());
    EXPECT_DOUBLE_EQ(strips.front().from, axis.from);
    EXPECT_DOUBLE_EQ(strips.back().to, axis.to);
    EXPECT_DOUBLE_EQ(strips.back().shownTo, axis.to);
    for (size_t i = 0; i < strips.size(); ++i) {
        EXPECT_LE(strips[i].Shown(), axis.most + 1e-6) << i;
        if (i + 1 == strips.size()) break;
        EXPECT_DOUBLE_EQ(strips[i].to, strips[i + 1].from);
        EXPECT_DOUBLE_EQ(strips[i].shownTo, strips[i].to + axis.overlap);
    }
}

TEST(BoardJoinsTest, WhatAPageHoldsIsNotCut) {
    const Axis axis{0, 7.5, 7.52, kOverlap};
    const std::vector<Strip> strips = Strips(axis, {{1, 3}});
    EXPECT_EQ(strips.size(), 1U);
    ExpectWhole(strips, axis);
}

TEST(BoardJoinsTest, PagesAreAsFewAsThereCanBe) {
    const struct {
        double length;
        size_t pages;
    } rows[] = {{8, 2}, {7.52 * 2 - kOverlap, 2}, {7.52 * 2 - kOverlap + 0.01, 3}, {16, 3}, {40, 6}};
    for (const auto& row : rows) {
        const Axis axis{0, row.length, 7.52, kOverlap};
        const std::vector<Strip> strips = Strips(axis, {});
        EXPECT_EQ(strips.size(), row.pages) << row.length;
        ExpectWhole(strips, axis);
    }
}

TEST(BoardJoinsTest, PagesShowEquallyMuchWhereNoWordIsInTheWay) {
    const std::vector<Strip> strips = Strips({0, 16, 7.52, kOverlap}, {});
    ASSERT_EQ(strips.size(), 3U);
    for (const Strip& strip : strips)
        EXPECT_NEAR(strip.Shown(), (16 + 2 * kOverlap) / 3, 1e-6);
}

TEST(BoardJoinsTest, ACutGoesToTheNearerEndOfAWord) {
    const Axis axis{0, 12, 7.52, kOverlap};
    const double even = (12 - kOverlap) / 2;
    const std::vector<Strip> strips = Strips(axis, {{even - 0.1, even + 0.4}});
    ASSERT_EQ(strips.size(), 2U);
    EXPECT_NEAR(strips[0].to, even - 0.1, 0.5 / 25.4);
    EXPECT_LE(strips[0].to, even - 0.1);
    ExpectWhole(strips, axis);
}

TEST(BoardJoinsTest, ACutKeepsToItsReachAndCutsTheFewestWords) {
    const Axis axis{0, 12, 7.52, kOverlap};
    const double even = (12 - kOverlap) / 2;
    // Nothing within reach is free: a single word is cut where two would be.
    const std::vector<Span> words = {{2, 9}, {even - 0.3, even + 0.3}};
    const std::vector<Strip> strips = Strips(axis, words);
    ASSERT_EQ(strips.size(), 2U);
    EXPECT_EQ(WordsCut(strips[0].to, words), 1);
    EXPECT_LE(std::abs(strips[0].to - even), Reach());
    ExpectWhole(strips, axis);
}

TEST(BoardJoinsTest, ACutThatOnlySmallPagesForceCostsAPage) {
    // Two pages would just do, but then the cut could lie in the word only.
    const double length = 2 * 7.52 - kOverlap;
    const double even = (length - kOverlap) / 2;
    const std::vector<Span> words = {{even - 0.2, even + 0.2}};
    const Axis axis{0, length, 7.52, kOverlap};
    const std::vector<Strip> strips = Strips(axis, words);
    ASSERT_EQ(strips.size(), 3U);
    for (size_t i = 0; i + 1 < strips.size(); ++i)
        EXPECT_EQ(WordsCut(strips[i].to, words), 0);
    ExpectWhole(strips, axis);
}

TEST(BoardJoinsTest, AHalfOfABoardIsCutByItsOwnWords) {
    const Axis axis{8, 16, 7.52, kOverlap};
    const double even = 8 + (8 - kOverlap) / 2;
    const std::vector<Strip> strips = Strips(axis, {{even - 0.2, even + 0.1}});
    ASSERT_EQ(strips.size(), 2U);
    EXPECT_GE(strips[0].to, even + 0.1);
    ExpectWhole(strips, axis);
}

TEST(BoardJoinsTest, AWordEndsWhereTheNextBegins) {
    const std::vector<Span> words = {{1, 2}, {2, 3}};
    EXPECT_EQ(WordsCut(2, words), 0);
    EXPECT_EQ(WordsCut(1.5, words), 1);
}

} // namespace
