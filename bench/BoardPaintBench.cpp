// SPDX-License-Identifier: MIT
// The whole board of a full game, painted on a surface as the main window does it.
#include "BenchGame.h"
#include "BenchPhotos.h"

#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <benchmark/benchmark.h>

namespace {

constexpr QSize kTwelveMegapixels{4000, 3000};

void PaintOn(Surface& picBoard, int size, basPosit::PicturesShown shown = basPosit::PicturesShown::All) {
    picBoard.Cls();
    basPosit::PosInit();
    basPosit::PosSethDC(&picBoard.hDC());
    basPosit::PosSetPicture(&picBoard, true, shown);
    basPosit::PosSetScale(float(size));
    basPosit::PosSetWidth(size);
    basPosit::PosDrawAll();
    picBoard.hDC().Flush();
}

// Runs the event loop until all pictures stand; the longest time, in ms, that a timer of 10 ms went without a
// tick, the painting ahead of the loop included.
double FillIn(ScratchForm& picBoard, const QElapsedTimer& sinceStart) {
    qint64 longest = 0;
    qint64 last = 0;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        longest = std::max(longest, sinceStart.nsecsElapsed() - last);
        last = sinceStart.nsecsElapsed();
    });
    QTimer pictures;
    QEventLoop loop;
    QObject::connect(&pictures, &QTimer::timeout, [&] {
        const int awaited = basPosit::PosDrawAwaited();
        picBoard.hDC().Flush();
        if (awaited == 0) loop.quit();
    });
    ticks.start(10);
    pictures.start(40);
    loop.exec();
    return double(longest) / 1e6;
}

// Every shape, text and picture again, as at each change of the game.
void BM_PaintBoardAgain(benchmark::State& state) {
    const int size = int(state.range(0));
    const BenchPhotos photos(kPicturesOfAGame, QSize(1200, 900));
    LoadFamilyWith(photos);
    ScratchForm picBoard(QSize(size, size));
    PaintOn(picBoard, size);
    for (auto _ : state)
        PaintOn(picBoard, size);
}
BENCHMARK(BM_PaintBoardAgain)->Arg(960)->Arg(3840)->Unit(benchmark::kMillisecond);

// From the load on, with photographs that nobody has seen yet: the board stands at once, pictures come as they
// are decoded, and the program goes on answering. A timer of 10 ms tells for how long it didn't.
void BM_FirstPaint(benchmark::State& state) {
    constexpr int kSize = 960;
    const BenchPhotos photos(kPicturesOfAGame, kTwelveMegapixels);
    double board = 0;
    double gap = 0;
    for (auto _ : state) {
        LoadFamilyWith(photos);
        ForgetPictures();
        ScratchForm picBoard(QSize(kSize, kSize));
        QElapsedTimer sinceStart;
        sinceStart.start();
        PaintOn(picBoard, kSize, basPosit::PicturesShown::Ready);
        board = std::max(board, double(sinceStart.nsecsElapsed()) / 1e6);
        gap = std::max(gap, FillIn(picBoard, sinceStart));
    }
    state.counters["ms to board"] = board;
    state.counters["largest gap ms"] = gap;
}
BENCHMARK(BM_FirstPaint)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
