// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

/// Whether what has to come by itself comes, with events running meanwhile: it may take as long as the busiest machine
/// needs. That something is quick is shown by other means.
template <typename Condition>
bool Comes(const Condition& condition) {
    constexpr int kMostMilliseconds = 120'000;
    return QTest::qWaitFor(condition, kMostMilliseconds);
}
