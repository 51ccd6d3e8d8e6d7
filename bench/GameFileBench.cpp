// SPDX-License-Identifier: MIT
#include "document/GameText.h"
#include "game/GameFile.h"
#include "platform/files/TextFile.h"
#include "services/basCommon.h"

#include <benchmark/benchmark.h>

namespace {

const QString kFamily = QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam");

void LoadFamily(benchmark::State& state) {
    QString name = kFamily;
    int result = 0;
    GameFile::GameLoad(name, result);
    if (result != 0) state.SkipWithError("the sample game didn't load");
}

void BM_LoadGame(benchmark::State& state) {
    for (auto _ : state)
        LoadFamily(state);
}
BENCHMARK(BM_LoadGame)->Unit(benchmark::kMillisecond);

// Everything of a save but the disk.
void BM_ComposeGame(benchmark::State& state) {
    LoadFamily(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(TextFile::Encode(TextFile::JoinLines(ComposeLines(TheGame(), QString()))));
}
BENCHMARK(BM_ComposeGame)->Unit(benchmark::kMillisecond);

// A save as the user waits for it, with the flush to the disk.
void BM_SaveGame(benchmark::State& state) {
    LoadFamily(state);
    const QString path = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Bench.gam"));
    for (auto _ : state) {
        bool result = false;
        GameFile::GameSave(path, result);
        if (!result) state.SkipWithError("the game wasn't saved");
    }
}
BENCHMARK(BM_SaveGame)->Unit(benchmark::kMillisecond);

} // namespace
