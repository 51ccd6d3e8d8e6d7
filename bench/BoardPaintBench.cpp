// SPDX-License-Identifier: MIT
// The whole board of a full game, painted on a surface as the main window does it.
#include "BenchPhotos.h"

#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "document/basTAVL.h"
#include "document/GameFile.h"
#include "images/frmBMP.h"
#include "platform/LoadPicture.h"
#include "platform/Surface.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <benchmark/benchmark.h>

namespace {

constexpr int kPictures = 28;
constexpr QSize kTwelveMegapixels{4000, 3000};

// The 26 spaces that show pictures, and two corners.
void LoadFamilyWith(const BenchPhotos& photos) {
    basTAVL::g_sGameVersion() = QStringLiteral("8");
    basTAVL::g_lMagicColor() = Color::Rgb(224, 255, 224);
    frmBMP::InstallAsThumbnailMaker();
    QString name = QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam");
    int result = 0;
    GameFile::GameLoad(name, result);
    int photo = 0;
    for (int iSpace = 0; iSpace < basTAVL::kSpaces; ++iSpace) {
        if (!basPosit::IsLotto(iSpace)) basTAVL::g_oSpaces(iSpace).SetImagePath(photos.Path(photo++));
    }
    for (int iCorner = 0; photo < kPictures; ++iCorner)
        basTAVL::g_oCorners(iCorner).Image.Let_FullPath(photos.Path(photo++));
}

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
    const BenchPhotos photos(kPictures, QSize(1200, 900));
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
    const BenchPhotos photos(kPictures, kTwelveMegapixels);
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
