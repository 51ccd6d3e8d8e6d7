// SPDX-License-Identifier: MIT
#include "simulator/Statistics.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Simulator {
namespace {

// 95 % of the normal distribution lie within so many deviations.
constexpr double kDeviations = 1.959964;

Estimate Around(double value, double deviation) {
    return {value, value - kDeviations * deviation, value + kDeviations * deviation};
}

} // namespace

Estimate ShareOf(std::int64_t hits, std::int64_t all) {
    if (all == 0) return {0, 0, 1};
    const double n = double(all);
    const double share = double(hits) / n;
    const double squared = kDeviations * kDeviations;
    const double middle = (share + squared / (2 * n)) / (1 + squared / n);
    const double half = kDeviations / (1 + squared / n) * std::sqrt(share * (1 - share) / n + squared / (4 * n * n));
    return {share, middle - half, middle + half};
}

void Sample::Add(const Sample& other) {
    m_count += other.m_count;
    m_sum += other.m_sum;
    m_squares += other.m_squares;
}

Estimate Sample::Mean() const {
    if (m_count == 0) return {};
    const double n = double(m_count);
    const double mean = double(m_sum) / n;
    const double variance = std::max(0.0, m_squares / n - mean * mean);
    return Around(mean, std::sqrt(variance / n));
}

void Ratio::Add(double whole, double part) {
    ++m_count;
    m_whole += whole;
    m_part += part;
    m_wholeSquares += whole * whole;
    m_partSquares += part * part;
    m_products += whole * part;
}

void Ratio::Add(const Ratio& other) {
    m_count += other.m_count;
    m_whole += other.m_whole;
    m_part += other.m_part;
    m_wholeSquares += other.m_wholeSquares;
    m_partSquares += other.m_partSquares;
    m_products += other.m_products;
}

Estimate Ratio::Value() const {
    if (m_whole <= 0) return {};
    const double ratio = m_part / m_whole;
    // Of what each part differs from its share by.
    const double squares = m_partSquares - 2 * ratio * m_products + ratio * ratio * m_wholeSquares;
    return Around(ratio, std::sqrt(std::max(0.0, squares)) / m_whole);
}

void Histogram::Add(int step) {
    ++m_steps[std::size_t(std::clamp(step, 0, kSteps - 1))];
    ++m_count;
}

void Histogram::Add(const Histogram& other) {
    for (std::size_t step = 0; step < m_steps.size(); ++step)
        m_steps[step] += other.m_steps[step];
    m_count += other.m_count;
}

std::int64_t Histogram::Within(int first, int last) const {
    return std::accumulate(m_steps.begin() + first, m_steps.begin() + last + 1, std::int64_t(0));
}

int Histogram::StepOfRank(double rank) const {
    std::int64_t seen = 0;
    for (int step = 0; step < kSteps; ++step) {
        seen += At(step);
        if (double(seen) >= rank) return step;
    }
    return kSteps - 1;
}

Estimate Histogram::Quantile(double share) const {
    const double n = double(m_count);
    const double spread = kDeviations * std::sqrt(n * share * (1 - share));
    return {double(StepOfRank(n * share)), double(StepOfRank(std::max(1.0, n * share - spread))),
            double(StepOfRank(std::min(n, n * share + spread)))};
}

} // namespace Simulator
