// SPDX-License-Identifier: MIT
#pragma once

#include "game/Session.h"
#include "platform/files/Console.h"

/// What the benchmarks run in: a folder of their own as My Games directory, the data of the build, and a
/// board that is set up.
class BenchHost {
public:
    BenchHost();

private:
    TemporaryFolder m_folder;
    Session m_session;
};
