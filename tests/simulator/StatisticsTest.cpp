// SPDX-License-Identifier: MIT
#include "simulator/Statistics.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Simulator;

namespace {

TEST(SimulatorStatisticsTest, ShareHasTheBoundsOfWilson) {
    // 50 of 100, and 0 of 10, as tables of Wilson's interval have them.
    const Estimate half = ShareOf(50, 100);
    EXPECT_DOUBLE_EQ(half.value, 0.5);
    EXPECT_NEAR(half.low, 0.4038, 0.0001);
    EXPECT_NEAR(half.high, 0.5962, 0.0001);
    EXPECT_NEAR(ShareOf(0, 10).high, 0.2775, 0.0001);
    EXPECT_NEAR(ShareOf(0, 10).low, 0, 1e-9);
    EXPECT_EQ(ShareOf(0, 0).high, 1);
}

TEST(SimulatorStatisticsTest, MeanOfASampleInTwoPartsIsThatOfTheWhole) {
    Sample whole;
    Sample part;
    for (int value = 1; value <= 4; ++value)
        whole.Add(value);
    for (int value = 5; value <= 9; ++value)
        part.Add(value);
    whole.Add(part);
    EXPECT_EQ(whole.Count(), 9);
    EXPECT_DOUBLE_EQ(whole.Mean().value, 5);
    // The variance of 1 to 9 is 60 / 9.
    EXPECT_NEAR(whole.Mean().HalfWidth(), 1.959964 * std::sqrt(60.0 / 9 / 9), 1e-9);
}

TEST(SimulatorStatisticsTest, RatioIsOfTheSumsAndKnowsNoDoubtWhereAllPartsAreAlike) {
    Ratio ratio;
    EXPECT_EQ(ratio.Value().value, 0);
    ratio.Add(100, 50);
    ratio.Add(300, 150);
    EXPECT_DOUBLE_EQ(ratio.Value().value, 0.5);
    EXPECT_NEAR(ratio.Value().HalfWidth(), 0, 1e-12);
    Ratio more;
    more.Add(100, 300);
    ratio.Add(more);
    EXPECT_DOUBLE_EQ(ratio.Value().value, 1);
    // 100 and 50, 300 and 150, 100 and 300 are off by 50, 150 and 200 of 500.
    EXPECT_NEAR(ratio.Value().HalfWidth(), 1.959964 * std::sqrt(2500.0 + 22500 + 40000) / 500, 1e-9);
}

TEST(SimulatorStatisticsTest, QuantilesOfAHistogram) {
    Histogram histogram;
    for (int step = 0; step < 100; ++step)
        histogram.Add(step);
    EXPECT_EQ(histogram.Quantile(0.5).value, 49);
    // 50 in 100, give or take 9.8.
    EXPECT_EQ(histogram.Quantile(0.5).low, 40);
    EXPECT_EQ(histogram.Quantile(0.5).high, 59);
    EXPECT_EQ(histogram.Within(10, 19), 10);
    histogram.Add(Histogram::kSteps + 5);
    histogram.Add(-3);
    EXPECT_EQ(histogram.At(Histogram::kSteps - 1), 1);
    EXPECT_EQ(histogram.At(0), 2);
}

} // namespace
