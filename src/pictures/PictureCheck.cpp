// SPDX-License-Identifier: MIT
#include "pictures/PictureCheck.h"

#include "pictures/ThumbnailFile.h"
#include "platform/files/BinaryFile.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureFormat.h"
#include "platform/pictures/PictureHead.h"
#include "services/basPath.h"

#include <QStringList>

namespace {

// The bytes of a camera's sensor, before they became a picture.
const QStringList kSensorEndings =
    QStringLiteral("cr2 cr3 nef nrw arw sr2 dng raf orf rw2 pef srw x3f erf kdc mrw 3fr iiq").split(u' ');

// Pictures of a kind that can't be taken, and what to do; empty for all others.
QString NoPhoto(const QByteArray& start, const QString& sExt) {
    const QByteArray text = start.trimmed().toLower();
    if (start.startsWith("%PDF"))
        return QStringLiteral(" is a PDF document. Please save its page as a .jpg or .png picture and take that.");
    if (text.startsWith("<svg") || (text.startsWith("<?xml") && sExt == QStringLiteral("svg")))
        return QStringLiteral(" is an SVG drawing. Please save it as a .png picture in your drawing program and take "
                              "that.");
    if (kSensorEndings.contains(sExt) || start.mid(8, 2) == "CR" || start.mid(4, 7) == "ftypcrx")
        return QStringLiteral(" is a camera's RAW file. Please save it as a .jpg picture in your photo program and "
                              "take that.");
    const QByteArray brand = start.mid(4, 4) == "ftyp" ? start.mid(8, 3) : QByteArray();
    if (brand == "iso" || brand == "mp4" || brand == "qt " || brand == "M4V" || brand == "3gp")
        return QStringLiteral(" is a film. Please take a photo.");
    return {};
}

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
    if (const QString other = NoPhoto(start, EndingOf(sFile)); !other.isEmpty()) return name + other;
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
