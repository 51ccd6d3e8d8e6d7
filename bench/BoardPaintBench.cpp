// SPDX-License-Identifier: MIT
// The whole board of a full game, painted on a surface as the main window does it.
#include "BenchPhotos.h"

#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "document/basTAVL.h"
#include "document/GameFile.h"
#include "images/frmBMP.h"
#include "platform/Surface.h"

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

void PaintOn(Surface& picBoard, int size) {
    picBoard.Cls();
    basPosit::PosInit();
    basPosit::PosSethDC(&picBoard.hDC());
    basPosit::PosSetPicture(&picBoard);
    basPosit::PosSetScale(float(size));
    basPosit::PosSetWidth(size);
    basPosit::PosDrawAll();
    basPosit::PosSetPicture(nullptr);
    picBoard.hDC().Flush();
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

} // namespace
