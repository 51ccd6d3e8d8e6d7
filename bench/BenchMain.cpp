// SPDX-License-Identifier: MIT
#include "BenchHost.h"

#include <benchmark/benchmark.h>

#include <QApplication>

int main(int argc, char** argv) {
    Console::UseNoDisplay();
    const QApplication application(argc, argv);
    const BenchHost host;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
