// SPDX-License-Identifier: MIT
#include "platform/pictures/SavePicture.h"

#include "platform/files/Files.h"

#include <QBuffer>

bool SavePicture(const Picture& picture, const QString& sPath, QString& sError) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.Image().save(&buffer, "PNG")) {
        sError = QStringLiteral("The picture could not be encoded");
        return false;
    }
    return Files::WriteWhole(sPath, bytes, sError);
}
