// SPDX-License-Identifier: MIT
// Plays any bytes as a metafile: straight onto a picture, and turned, as onto a destination that can't be
// read back.
#include "platform/pictures/Metafile.h"

#include <QGuiApplication>
#include <QPainter>

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
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    metafile->Play(painter, QRectF(3, 2, 55, 41));
    painter.translate(32, 24);
    painter.rotate(30);
    metafile->Play(painter, QRectF(0, 0, 20, 10));
    return 0;
}
