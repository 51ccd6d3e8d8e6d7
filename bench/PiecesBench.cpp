// SPDX-License-Identifier: MIT
// How long each kind of made picture takes, and what all of a kit cost in memory: 38 photographs of twelve
// megapixels on its spaces, corners, notes and tokens.
//   tavlora_bench --benchmark_filter=Piece
// PeakMB of "PiecesOfAKit" is the peak memory of the process so far above what it had before the first picture,
// so run that one alone.
#include "BenchGame.h"
#include "BenchPhotos.h"
#include "PeakMemory.h"

#include "document/basTAVL.h"
#include "platform/pictures/LoadPicture.h"
#include "tools/PrintPieces.h"

#include <benchmark/benchmark.h>

namespace {

constexpr QSize kTwelveMegapixels{4000, 3000};
constexpr int kPhotos = kPicturesOfAGame + basTAVL::kMoney + basTAVL::kTokens;

const BenchPhotos& Photos() {
    static const BenchPhotos photos(kPhotos, kTwelveMegapixels);
    return photos;
}

void LoadKit() {
    LoadFamilyWith(Photos());
    int photo = kPicturesOfAGame;
    for (int i = 0; i < basTAVL::kMoney; ++i)
        basTAVL::g_oMoney(i).FaceImage.Let_FullPath(Photos().Path(photo++));
    for (int i = 0; i < basTAVL::kTokens; ++i)
        basTAVL::g_oTokens(i).Image.Let_FullPath(Photos().Path(photo++));
}

// With the photograph in memory already: what the drawing and the file cost.
void OnePiece(benchmark::State& state, const QString& sName) {
    LoadKit();
    for (const PrintPiece& piece : PrintPieces()) {
        if (piece.sName != sName) continue;
        QString file;
        for (auto step : state)
            piece.make(file);
    }
}

void AllPieces(benchmark::State& state) {
    LoadKit();
    ForgetPictures();
    const double before = PeakMegabytes();
    for (auto step : state) {
        ForgetPictures();
        QString file;
        for (const PrintPiece& piece : PrintPieces())
            piece.make(file);
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
