// SPDX-License-Identifier: MIT
#include "platform/pictures/SavePicture.h"

#include "platform/files/Files.h"

#include <QBuffer>

std::optional<QByteArray> EncodePicture(const Picture& picture, QString& sError) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (picture.Image().save(&buffer, "PNG")) return bytes;
    sError = QStringLiteral("The picture could not be encoded");
    return std::nullopt;
}

bool SavePicture(const Picture& picture, const QString& sPath, QString& sError) {
    const std::optional<QByteArray> bytes = EncodePicture(picture, sError);
    return bytes && Files::WriteWhole(sPath, *bytes, sError);
}
