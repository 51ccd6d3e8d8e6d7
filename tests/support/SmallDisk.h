// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <sys/resource.h>

/// As long as it lives, no file of this process grows beyond so many bytes: a write that would is cut short,
/// and the next one fails, as on a disk that fills up. For systems that know such limits.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before{};
};
