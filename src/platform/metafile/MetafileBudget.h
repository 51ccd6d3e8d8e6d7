// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Work that one playing may still do, in units of about a nanosecond. What is asked for beyond it isn't
/// done, and playing ends there: no file, however made, keeps the program busy.
class MetafileBudget {
public:
    static constexpr qint64 kWhole = 400'000'000;

    explicit MetafileBudget(qint64 units = kWhole) : m_left(units) {}
    bool Spend(qint64 units) {
        m_left -= qBound<qint64>(0, units, kWhole + 1);
        return m_left >= 0;
    }
    bool IsSpent() const { return m_left < 0; }

private:
    qint64 m_left;
};
