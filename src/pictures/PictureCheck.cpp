// SPDX-License-Identifier: MIT
#include "pictures/PictureCheck.h"

#include "pictures/ThumbnailFile.h"
#include "platform/files/BinaryFile.h"
#include "platform/pictures/PictureFormat.h"
#include "services/basPath.h"

QString WhyNoPicture(const QString& sFile) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sFile, drive, dir, base, ext);
    const QString name = u'\'' + base + u'\'';
    BinaryFile file;
    QString error;
    constexpr int kEnoughToTell = 64;
    const bool opened = file.OpenForReading(sFile, error);
    const QByteArray start = opened ? file.Bytes(kEnoughToTell) : QByteArray();
    if (!opened || !file.WasRead(error)) return name + QStringLiteral(" can't be read: ") + error + u'.';
    if (ThumbnailFile::IsThumbnail(sFile)) {
        return name + QStringLiteral(" is a small picture that Tavlora makes for itself. Please take the photo that it "
                                     "was made of.");
    }
    if (PictureFormatOf(start) != PictureFormat::Unknown) return {};
    return name + QStringLiteral(" holds no picture that Tavlora can show. Photos as .jpg or .png are fine.");
}
