// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Work that one playing may still do, in units of about a nanosecond. What costs more than is left isn't done,
/// so no file, however made, keeps the program busy.
class MetafileBudget {
public:
    static constexpr qint64 kWhole = 150'000'000;
    /// What a flood takes for each pixel of the picture that it runs through.
    static constexpr qint64 kFloodedPixel = 20;

    explicit MetafileBudget(qint64 units = kWhole) : m_left(units) {}
    /// False, and nothing taken, for more than is left.
    bool Spend(qint64 units) {
        if (units > m_left) return false;
        m_left -= units;
        return true;
    }
    /// For what has to be done to go on at all: ends playing where it costs more than is left.
    void Require(qint64 units) { m_left = units > m_left ? 0 : m_left - units; }

private:
    qint64 m_left;
};
