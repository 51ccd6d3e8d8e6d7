// SPDX-License-Identifier: MIT
// A thousand edits of a game of 28 photographs, with all that undoing them keeps in memory.
#include "BenchGame.h"
#include "BenchPhotos.h"
#include "PeakMemory.h"

#include "game/Edit.h"
#include "game/History.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kSteps = 1000;

// Names, photographs and fonts by turns: a font changes every record of the board.
Edit StepOf(const Game& game, const BenchPhotos& photos, int iStep) {
    const int place = iStep % basTAVL::kSpaces;
    C_Space space = game.spaces[size_t(place)];
    switch (iStep % 4) {
        case 0:
            space.SetImagePath(photos.Path(iStep / 4 % kPicturesOfAGame));
            return Edits::OfSpace(game, place, space);
        case 1: {
            C_FontInfo font = space.Font;
            font.Bold = !font.Bold;
            return Edits::OfBoardFont(game, font, Edits::kNoSpace, Edits::kNoCorner);
        }
        default:
            space.SetText(QStringLiteral("Space %1").arg(iStep));
            return Edits::OfSpace(game, place, space);
    }
}

void BM_ThousandSteps(benchmark::State& state) {
    const BenchPhotos photos(kPicturesOfAGame, QSize(64, 48));
    LoadFamilyWith(photos);
    Game game = TheGame();
    for (auto _ : state) {
        History history;
        history.Begin();
        // What an edit takes for a moment isn't what a step keeps.
        for (int i = 0; i < 8; ++i)
            history.Do(game, StepOf(game, photos, i));
        history.Begin();
        const double before = PeakMegabytes();
        for (int i = 0; i < kSteps; ++i)
            history.Do(game, StepOf(game, photos, i));
        state.counters["MB kept"] = PeakMegabytes() - before;
        if (!history.CanUndo()) state.SkipWithError("nothing was kept");
    }
}
BENCHMARK(BM_ThousandSteps)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
