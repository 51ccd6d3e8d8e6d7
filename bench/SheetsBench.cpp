// SPDX-License-Identifier: MIT
// Sheets of a game full of photographs, from the files on the disk to a finished PDF file.
#include "BenchGame.h"
#include "BenchPhotos.h"

#include "kit/Sheets.h"
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/printing/Printer.h"
#include "services/basPath.h"

#include <benchmark/benchmark.h>

namespace {

constexpr QSize kTwelveMegapixels{4000, 3000};

const BenchPhotos& Photos() {
    static const BenchPhotos photos(kPicturesOfAGame, kTwelveMegapixels);
    return photos;
}

bool Print(PdfPrinter& printer, const Sheet& sheet) {
    sheet.LayOn(printer, Kit::Eight);
    SheetJob job{printer};
    if (!sheet.Prepare(job) || !sheet.Print(job)) return false;
    printer.EndDoc();
    return true;
}

// Nothing is decoded yet when a sheet begins, as in a run of its own.
void PrintAll(benchmark::State& state, std::span<const Sheet> sheets) {
    const QString path = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Bench.pdf"));
    for (auto _ : state) {
        state.PauseTiming();
        LoadFamilyWith(Photos());
        ForgetPictures();
        state.ResumeTiming();
        PdfPrinter printer(path, QStringLiteral("Bench"));
        bool printed = true;
        for (const Sheet& sheet : sheets)
            printed = printed && Print(printer, sheet);
        QString error;
        if (!printed || !printer.Close(error)) return state.SkipWithError("the sheet wasn't printed");
    }
    state.counters["kB"] = double(Files::Size(path)) / 1000;
}

void BM_Sheet(benchmark::State& state) {
    const Sheet& sheet = Sheets()[size_t(state.range(0))];
    state.SetLabel(sheet.sName);
    PrintAll(state, {&sheet, 1});
}
BENCHMARK(BM_Sheet)->DenseRange(0, int(Sheets().size()) - 1)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_WholeKit(benchmark::State& state) { PrintAll(state, Sheets()); }
BENCHMARK(BM_WholeKit)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
