// SPDX-License-Identifier: MIT
// Takes any bytes for a metafile and follows its orders into a small picture with little work to spend, as painting
// takes what time there is. One input in a thousand is played as the program does it: straight onto a picture, at the
// size that its floods ask for, and turned, as onto a destination that can't be read back.
#include "platform/pictures/Metafile.h"

#include "platform/pictures/metafile/MetafilePlayer.h"
#include "platform/pictures/metafile/MetafileSurvey.h"

#include <QGuiApplication>
#include <QPainter>

#include <numeric>

namespace {

constexpr unsigned kInputsToAPlaying = 1024;
constexpr qsizetype kHead = 18;
constexpr qsizetype kPlaceableHead = 22;
constexpr qint64 kWork = 400'000;

QImage Paper(int width, int height) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

void PlayAsTheProgramDoes(const Metafile& metafile) {
    QImage picture = Paper(64, 48);
    QPainter painter(&picture);
    metafile.Play(painter, QRectF(3, 2, 55, 41));
    painter.translate(32, 24);
    painter.rotate(30);
    metafile.Play(painter, QRectF(0, 0, 20, 10));
}

void FollowOrders(QByteArrayView orders) {
    const MetafileSurvey survey = MetafileSurvey::Of(orders);
    QImage picture = Paper(20, 15);
    MetafileBudget budget(kWork);
    MetafileCanvas canvas(picture, 96, budget);
    canvas.SetSmooth(survey.floodFills == 0);
    MetafilePlayer(canvas, QRectF(2, 2, 16, 11)).Play(orders);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    QString error;
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const std::optional<Metafile> metafile = Metafile::FromBytes(bytes, error);
    if (!metafile) return 0;
    if (std::accumulate(data, data + size, 0U) % kInputsToAPlaying == 0) {
        PlayAsTheProgramDoes(*metafile);
    } else {
        FollowOrders(QByteArrayView(bytes).sliced(kHead + (metafile->IsPlaceable() ? kPlaceableHead : 0)));
    }
    return 0;
}
