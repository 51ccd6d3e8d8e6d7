// SPDX-License-Identifier: MIT
#include "pictures/PictureCheck.h"

#include "pictures/ThumbnailFile.h"
#include "platform/files/BinaryFile.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/OtherKinds.h"
#include "platform/pictures/PictureFormat.h"
#include "platform/pictures/PictureHead.h"
#include "services/basPath.h"

namespace {

QString NameOf(const QString& sFile) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sFile, drive, dir, base, ext);
    return u'\'' + base + u'\'';
}

QString EndingOf(const QString& sFile) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sFile, drive, dir, base, ext);
    return ext.toLower();
}

// The library's sentence stands behind ours.
QString CannotBeShown(const QString& sName, const QString& sError) {
    return sName + QStringLiteral(" can't be shown: ") + sError.left(1).toLower() + sError.mid(1) + u'.';
}

} // namespace

QString WhyNoPicture(const QString& sFile) {
    const QString name = NameOf(sFile);
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
    if (const QString other = OtherKindOf(start, EndingOf(sFile)); !other.isEmpty())
        return name + QStringLiteral(" is ") + other + u'.';
    if (PictureFormatOf(start) == PictureFormat::Unknown)
        return name + QStringLiteral(" holds no picture that Tavlora can show. Photos as .jpg or .png are fine.");
    return ReadPictureHead(sFile, error) ? QString() : CannotBeShown(name, error);
}

QString WhyNotShown(const QString& sFile) {
    QString why = WhyNoPicture(sFile);
    if (!why.isEmpty()) return why;
    constexpr int kSmall = 100;
    QString error;
    return LoadPicture(sFile, error, kSmall).IsNull() ? CannotBeShown(NameOf(sFile), error) : QString();
}
