// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <utility>

/// Chance that comes out the same on every machine for the same seed.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : m_state(seed) {}

    /// 0 to count - 1, each as likely as the others. The bias of cutting 2^64 into so few parts is far below anything
    /// that a million games could show.
    int Below(int count) { return int((Next() >> 32) * std::uint64_t(count) >> 32); }
    int Die() { return 1 + Below(6); }

    template <typename Value, std::size_t count>
    void Shuffle(std::array<Value, count>& values) {
        for (int left = int(count); left > 1; --left)
            std::swap(values[std::size_t(left - 1)], values[std::size_t(Below(left))]);
    }

private:
    // Steps by the golden ratio and scrambles: neighbouring seeds give unlike rows of numbers.
    std::uint64_t Next() {
        m_state += 0x9E3779B97F4A7C15;
        std::uint64_t bits = m_state;
        bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
        bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
        return bits ^ (bits >> 31);
    }

    std::uint64_t m_state;
};
