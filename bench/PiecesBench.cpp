// SPDX-License-Identifier: MIT
// How long each kind of made picture takes, and what all of a kit cost in memory: 42 photographs of twelve
// megapixels on its spaces, corners, notes and tokens.
//   tavlora_bench --benchmark_filter=Piece
// PeakMB of "PiecesOfAKit" is the peak memory of the process so far above what it had before the first picture,
// so run that one alone.
#include "BenchPhotos.h"
#include "PeakMemory.h"

#include "app/GameKit.h"
#include "document/basTAVL.h"
#include "document/GameFile.h"
#include "images/frmBMP.h"
#include "platform/LoadPicture.h"
#include "tools/PrintPieces.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kPhotos = basTAVL::kSpaces + basTAVL::kCorners + basTAVL::kMoney + basTAVL::kTokens;
constexpr QSize kTwelveMegapixels{4000, 3000};

void LoadFamilyWith(const BenchPhotos& photos) {
    GameKit::SetUp(QStringLiteral("tavlora"));
    frmBMP::InstallAsThumbnailMaker();
    QString name = QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam");
    int result = 0;
    GameFile::GameLoad(name, result);
    int photo = 0;
    for (int i = 0; i < basTAVL::kSpaces; ++i)
        basTAVL::g_oSpaces(i).Image.Let_FullPath(photos.Path(photo++));
    for (int i = 0; i < basTAVL::kCorners; ++i)
        basTAVL::g_oCorners(i).Image.Let_FullPath(photos.Path(photo++));
    for (int i = 0; i < basTAVL::kMoney; ++i)
        basTAVL::g_oMoney(i).FaceImage.Let_FullPath(photos.Path(photo++));
    for (int i = 0; i < basTAVL::kTokens; ++i)
        basTAVL::g_oTokens(i).Image.Let_FullPath(photos.Path(photo++));
}

const BenchPhotos& Photos() {
    static const BenchPhotos photos(kPhotos, kTwelveMegapixels);
    return photos;
}

QString WorkFile() { return Photos().Path(0) + QStringLiteral(".bmp"); }

// With the photograph in memory already: what the drawing and the file cost.
void OnePiece(benchmark::State& state, const QString& sName) {
    LoadFamilyWith(Photos());
    for (const PrintPiece& piece : PrintPieces()) {
        if (piece.sName != sName) continue;
        for (auto step : state)
            piece.make(WorkFile());
    }
}

void AllPieces(benchmark::State& state) {
    LoadFamilyWith(Photos());
    ForgetPictures();
    const double before = PeakMegabytes();
    for (auto step : state) {
        ForgetPictures();
        // Each under a name of its own, as their recordings are kept until the sheet is printed.
        for (const PrintPiece& piece : PrintPieces())
            piece.make(WorkFile() + piece.sName);
    }
    state.counters["PeakMB"] = PeakMegabytes() - before;
}

BENCHMARK_CAPTURE(OnePiece, Space, QStringLiteral("BmpOneFullSpace4"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnePiece, Sticker, QStringLiteral("SpaceImage4"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnePiece, Corner, QStringLiteral("CornerImage1"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnePiece, Money, QStringLiteral("MoneyImage2"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnePiece, Token, QStringLiteral("TokenBMP3"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnePiece, Title, QStringLiteral("BmpTitle"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnePiece, Subtitle, QStringLiteral("BmpSubtitle"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnePiece, TitleStretched, QStringLiteral("BmpTitleStretched"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnePiece, SubtitleInLines, QStringLiteral("BmpSubtitleML"))->Unit(benchmark::kMillisecond);
BENCHMARK(AllPieces)->Name("PiecesOfAKit")->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

} // namespace
