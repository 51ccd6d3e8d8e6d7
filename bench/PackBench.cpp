// SPDX-License-Identifier: MIT
// A game of 28 photographs of 12 megapixels becoming one file, and becoming a folder again.
#include "BenchPhotos.h"

#include "pack/Packing.h"
#include "pack/Unpacking.h"
#include "platform/files/Files.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kPhotos = 28;
constexpr QSize kTwelveMegapixels(4000, 3000);

/// The packed file, and the game that it is made of.
class PackedPhotos {
public:
    PackedPhotos() : m_photos(kPhotos, kTwelveMegapixels) {
        Packing::Picture picture;
        for (int i = 0; i < kPhotos; ++i) {
            picture.sPath = m_photos.Path(i);
            picture.size = Files::Size(picture.sPath);
            picture.sEntry = QStringLiteral("Pictures/%1.jpg").arg(i);
            m_contents.pictures.append(picture);
        }
        m_contents.sName = QStringLiteral("Photos");
        m_contents.lines = {QStringLiteral("\"TavloraGameBoard\", 8.0.0, Photos.gam")};
    }
    bool Write() const {
        QString error;
        return Packing::Write(
            m_contents, Path(), [](int) { return true; }, error);
    }
    QString Path() const { return m_folder.Path() + QStringLiteral("/Photos.tavlora"); }
    QString Folder() const { return m_folder.Path(); }

private:
    BenchPhotos m_photos;
    TemporaryFolder m_folder;
    Packing::Contents m_contents;
};

void BM_PackPhotos(benchmark::State& state) {
    const PackedPhotos game;
    for (auto _ : state) {
        if (!game.Write()) state.SkipWithError("the game wasn't packed");
    }
}
BENCHMARK(BM_PackPhotos)->Unit(benchmark::kMillisecond);

void BM_UnpackPhotos(benchmark::State& state) {
    const PackedPhotos game;
    if (!game.Write()) state.SkipWithError("the game wasn't packed");
    for (auto _ : state) {
        QString error;
        if (!Unpacking::Unpack(game.Path(), game.Folder(), error)) state.SkipWithError("the game wasn't unpacked");
    }
}
BENCHMARK(BM_UnpackPhotos)->Unit(benchmark::kMillisecond);

} // namespace
