// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

/// What a sample of games tells about all games, each figure with the bounds that hold it in 19 of 20 samples.
namespace Simulator {

struct Estimate {
    double value = 0;
    double low = 0;
    double high = 0;

    double HalfWidth() const { return (high - low) / 2; }
};

/// A share, from 0 to 1: Wilson's interval. 0 with bounds of 0 and 1 where nothing was counted.
Estimate ShareOf(std::int64_t hits, std::int64_t all);

/// Sums that give a mean and its bounds.
class Sample {
public:
    void Add(std::int64_t value) {
        ++m_count;
        m_sum += value;
        m_squares += double(value) * double(value);
    }
    void Add(const Sample& other);

    std::int64_t Count() const { return m_count; }
    std::int64_t Sum() const { return m_sum; }
    Estimate Mean() const;

private:
    std::int64_t m_count = 0;
    std::int64_t m_sum = 0;
    // Whole numbers, of which a double holds the sums of any number of games exactly enough: and they come out the same
    // in whichever order they are added, up to 2^53.
    double m_squares = 0;
};

/// Pairs of which the second is a share of the first on average, as what comes back is of what was bet.
class Ratio {
public:
    void Add(double whole, double part);
    void Add(const Ratio& other);
    /// Sum of the parts over sum of the wholes; 0 where nothing was added.
    Estimate Value() const;
    double Whole() const { return m_whole; }

private:
    double m_count = 0;
    double m_whole = 0;
    double m_part = 0;
    double m_wholeSquares = 0;
    double m_partSquares = 0;
    double m_products = 0;
};

/// Counts of values by equal steps from 0; the last step holds all that is beyond.
class Histogram {
public:
    static constexpr int kSteps = 400;

    void Add(int step);
    void Add(const Histogram& other);

    std::int64_t Count() const { return m_count; }
    std::int64_t At(int step) const { return m_steps[std::size_t(step)]; }
    /// How many lie in steps from first to last, both counted.
    std::int64_t Within(int first, int last) const;
    /// The step that this share of all, from 0 to 1, lies in or below, with bounds.
    Estimate Quantile(double share) const;

private:
    int StepOfRank(double rank) const;

    std::array<std::int64_t, kSteps> m_steps{};
    std::int64_t m_count = 0;
};

} // namespace Simulator
