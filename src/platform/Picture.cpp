// SPDX-License-Identifier: MIT
#include "platform/Picture.h"

#include "platform/Files.h"

#include <QBuffer>
#include <QImageReader>

Picture LoadPicture(const QString& sPath, QString& sError) {
    std::optional<QByteArray> bytes = Files::ReadAll(sPath, sError);
    if (!bytes) return {};
    QBuffer buffer(&*bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull()) sError = reader.errorString();
    return Picture(std::move(image));
}
