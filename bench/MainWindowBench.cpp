// SPDX-License-Identifier: MIT
// What a person does in the main window, on a game that is full of photographs: how long it takes until the board
// shows it, and for how long the window doesn't answer meanwhile.
//   tavlora_bench --benchmark_filter=Window
#include "BenchGame.h"
#include "BenchPhotos.h"

#include "app/EditorWindows.h"
#include "app/frmTAVL.h"
#include "board/basPositPaint.h"
#include "game/DealtPhotos.h"
#include "game/Session.h"
#include "pieces/frmBMP.h"
#include "services/basCommon.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace {

constexpr QSize kTwelveMegapixels{4000, 3000};
constexpr int kSpace = 4;

/// The main window with the sample game whose pieces have no pictures yet.
class OpenWindow {
public:
    OpenWindow() : m_window(m_doors) {
        basCommon::InitIniPath();
        basCommon::WriteIniString(QStringLiteral("ShowSplash"), QStringLiteral("False"));
        frmBMP::InstallAsThumbnailMaker();
        m_window.Form_Load();
        m_window.resize(1366, 768);
        m_window.show();
        m_window.EndStart();
        QString blank = QStringLiteral(TAVLORA_DATA_DIR "/Blank_US.gam");
        InHand().Load(blank);
        Serve();
    }

    /// Leaves nothing behind that the next one would take up.
    ~OpenWindow() { InHand().SetSomethingChanged(false); }
    OpenWindow(const OpenWindow&) = delete;
    OpenWindow& operator=(const OpenWindow&) = delete;

    Session& InHand() { return m_window.Commands().InHand(); }
    /// As the window's own commands do.
    void Do(const Edit& edit) {
        InHand().Do(edit);
        m_window.View().Redraw();
    }
    void Undo() {
        InHand().Undo();
        m_window.View().Redraw();
    }
    void Redo() {
        InHand().Redo();
        m_window.View().Redraw();
    }
    static void Serve() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
    /// A photograph for each free place.
    Edit Deal(const BenchPhotos& files) {
        std::vector<DealtPhotos::Photo> photos;
        photos.reserve(kPicturesOfAGame);
        for (int i = 0; i < kPicturesOfAGame; ++i)
            photos.push_back({files.Path(i)});
        const auto places = DealtPhotos::FreePlaces(InHand().InHand(), true);
        return DealtPhotos::Deal(InHand().InHand(), photos, places, false);
    }
    /// Runs the event loop until the board shows all. Gives the longest time, in ms since the start of the clock, that
    /// a timer of 5 ms went without a tick.
    double WaitForAll(const QElapsedTimer& clock) {
        qint64 longest = 0;
        qint64 last = 0;
        QEventLoop loop;
        QTimer ticks;
        QObject::connect(&ticks, &QTimer::timeout, [&] {
            longest = std::max(longest, clock.nsecsElapsed() - last);
            last = clock.nsecsElapsed();
            if (basPosit::PosPicturesAwaited() == 0) loop.quit();
        });
        constexpr int kTick = 5;
        ticks.start(kTick);
        loop.exec();
        return double(longest) / 1e6;
    }

private:
    EditorWindows m_doors;
    frmTAVL m_window;
};

// From the command on: the board stands at once, and the photographs come.
void BM_WindowDealPhotos(benchmark::State& state) {
    OpenWindow window;
    double gap = 0;
    for (auto _ : state) {
        state.PauseTiming();
        window.Undo();
        OpenWindow::Serve();
        // Nobody has seen these yet.
        const BenchPhotos photos(kPicturesOfAGame, kTwelveMegapixels);
        const Edit deal = window.Deal(photos);
        QElapsedTimer clock;
        clock.start();
        state.ResumeTiming();
        window.Do(deal);
        gap = std::max(gap, window.WaitForAll(clock));
    }
    state.counters["largest gap ms"] = gap;
}
BENCHMARK(BM_WindowDealPhotos)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime()->Iterations(3);

// The board of 28 photographs is painted again as a step is taken back: of a text, and of all the photographs.
void BM_WindowUndo(benchmark::State& state) {
    const BenchPhotos photos(kPicturesOfAGame, kTwelveMegapixels);
    OpenWindow window;
    QElapsedTimer clock;
    clock.start();
    window.Do(window.Deal(photos));
    window.WaitForAll(clock);
    if (state.range(0) == 0) {
        C_Space space = window.InHand().InHand().spaces[kSpace];
        space.SetText(QStringLiteral("Grandma"));
        window.Do(Edits::OfSpace(window.InHand().InHand(), kSpace, space));
    }
    state.SetLabel(state.range(0) == 0 ? "of a name" : "of 28 photographs, and again");
    for (auto _ : state) {
        window.Undo();
        OpenWindow::Serve();
        if (state.range(0) == 0) state.PauseTiming();
        window.Redo();
        OpenWindow::Serve();
        if (state.range(0) == 0) state.ResumeTiming();
    }
}
BENCHMARK(BM_WindowUndo)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
