// SPDX-License-Identifier: MIT
// How long the whole board takes to paint on a surface that already exists, as the main window does it.
#include "app/services/basCommon.h"
#include "board/basDraw.h"
#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "document/GameFile.h"
#include "document/GameSession.h"
#include "document/basTAVL.h"
#include "platform/Folders.h"
#include "platform/ProgramSettings.h"
#include "platform/Surface.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

void LoadFamily() {
    basTAVL::g_sGameVersion() = QStringLiteral("8");
    basTAVL::g_lMagicColor() = Color::Rgb(224, 255, 224);
    GameSession session;
    basDraw::Draw_SetHdc(&session.MeasuringDevice());
    basPosit::PosInit();
    QString game = Folders::ProgramDirectory() + QStringLiteral("/Family_US.gam");
    int result = 0;
    GameFile::GameLoad(game, result);
    basDraw::Draw_SetHdc(nullptr);
}

void PaintOn(Surface& picBoard, int size) {
    picBoard.Cls();
    basPosit::PosInit();
    basPosit::PosSethDC(&picBoard.hDC());
    basPosit::PosSetPicture(&picBoard);
    basPosit::PosSetScale(float(size));
    basPosit::PosSetWidth(size);
    basPosit::PosDrawAll();
    basPosit::PosSetPicture(nullptr);
    basPosit::PosSethDC(nullptr);
    picBoard.hDC().Flush();
}

void RepeatedPaint(benchmark::State& state) {
    const int size = int(state.range(0));
    ScratchForm picBoard(QSize(size, size));
    PaintOn(picBoard, size);
    for (auto _ : state)
        PaintOn(picBoard, size);
}
BENCHMARK(RepeatedPaint)->Arg(960)->Arg(3840)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    Settings().sMyGamesDirectory = folder.path();
    Settings().sProgramDirectory = QStringLiteral(TAVLORA_DATA_DIR);
    LoadFamily();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
