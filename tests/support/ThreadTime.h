// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <time.h>
#else
#include <ctime>
#endif

/// Milliseconds that a processor has worked for this thread: how long a person waits for it where nobody else wants
/// the machine. What other programs and threads take isn't in it.
inline double ThreadMilliseconds() {
#ifdef Q_OS_UNIX
    timespec worked{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &worked);
    return double(worked.tv_sec) * 1e3 + double(worked.tv_nsec) / 1e6;
#else
    return double(std::clock()) * 1e3 / CLOCKS_PER_SEC;
#endif
}
