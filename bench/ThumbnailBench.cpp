// SPDX-License-Identifier: MIT
// How fast the pictures of a board become thumbnails.
//   TAVLORA_BENCH_PHOTOS=FOLDER tavlora_bench --benchmark_filter=Thumbnail
// Each run starts with nothing kept in memory. PeakMB is the peak memory of the process so far above what it
// had before the first picture.
#include "PeakMemory.h"

#include "pictures/C_Image.h"
#include "pictures/ThumbnailStore.h"
#include "pieces/frmBMP.h"
#include "platform/pictures/LoadPicture.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <vector>

namespace {

constexpr int kSpaces = 28;

QStringList& Photos() {
    static QStringList photos;
    return photos;
}

double IdleMegabytes() {
    static const double megabytes = PeakMegabytes();
    return megabytes;
}

void OneThumbnail(benchmark::State& state, const QString& sPhoto) {
    frmBMP::InstallAsThumbnailMaker();
    IdleMegabytes();
    C_Image image;
    image.Init(sPhoto, QStringLiteral("Space"), 3);
    for (auto step : state) {
        state.PauseTiming();
        ForgetPictures();
        ThumbnailStore::Instance().ForgetAll();
        state.ResumeTiming();
        benchmark::DoNotOptimize(image.GetThumbnail(false));
    }
    state.counters["PeakMB"] = PeakMegabytes() - IdleMegabytes();
}

void WholeBoard(benchmark::State& state) {
    frmBMP::InstallAsThumbnailMaker();
    IdleMegabytes();
    std::vector<C_Image> images(kSpaces);
    for (int i = 0; i < kSpaces; ++i)
        images[size_t(i)].Init(Photos()[i % Photos().size()], QStringLiteral("Space"), qint16(i));
    for (auto step : state) {
        state.PauseTiming();
        ForgetPictures();
        ThumbnailStore::Instance().ForgetAll();
        state.ResumeTiming();
        for (const C_Image& image : images)
            ThumbnailStore::Instance().Prefetch(image.Owned());
        for (const C_Image& image : images)
            benchmark::DoNotOptimize(image.GetThumbnail(false));
    }
    state.counters["PeakMB"] = PeakMegabytes() - IdleMegabytes();
}

} // namespace

namespace {

// Only where photographs are given; they are no part of the project.
const bool kRegistered = [] {
    const QDir folder(qEnvironmentVariable("TAVLORA_BENCH_PHOTOS"));
    if (folder.path().isEmpty() || folder.path() == QStringLiteral(".")) return false;
    for (const QString& name : folder.entryList({QStringLiteral("*.jpg")}, QDir::Files, QDir::Name))
        Photos().append(folder.absoluteFilePath(name));
    constexpr int kSingles = 5;
    for (const QString& photo : Photos().mid(0, kSingles)) {
        const std::string name = "Thumbnail/" + photo.section(u'/', -1).toStdString();
        benchmark::RegisterBenchmark(name.c_str(), [photo](benchmark::State& state) {
            OneThumbnail(state, photo);
        })->Unit(benchmark::kMillisecond);
    }
    if (!Photos().isEmpty())
        benchmark::RegisterBenchmark("ThumbnailsOfABoard", WholeBoard)->Unit(benchmark::kMillisecond)->UseRealTime();
    return !Photos().isEmpty();
}();

} // namespace
