// SPDX-License-Identifier: MIT
#include "platform/pictures/OtherKinds.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>

namespace {

// The bytes of a camera's sensor, before they became a picture. Most begin as a TIFF file does.
const QStringList kSensorEndings =
    QStringLiteral("cr2 cr3 nef nrw arw sr2 dng raf orf rw2 pef srw x3f erf kdc mrw 3fr iiq").split(u' ');

bool IsFilm(const QByteArray& start) {
    const QByteArray brand = start.mid(4, 4) == "ftyp" ? start.mid(8, 3) : QByteArray();
    return brand == "iso" || brand == "mp4" || brand == "qt " || brand == "M4V" || brand == "3gp";
}

} // namespace

QString OtherKindOf(QByteArrayView start, const QString& sEnding) {
    constexpr int kEnoughToTell = 64;
    const QByteArray bytes = start.first(std::min<qsizetype>(start.size(), kEnoughToTell)).toByteArray();
    const QByteArray text = bytes.trimmed().toLower();
    if (bytes.startsWith("%PDF"))
        return QStringLiteral("a PDF document. Please save its page as a .jpg or .png picture and take that");
    if (text.startsWith("<svg") || (text.startsWith("<?xml") && sEnding == QStringLiteral("svg")))
        return QStringLiteral("an SVG drawing. Please save it as a .png picture in your drawing program and take that");
    if (kSensorEndings.contains(sEnding) || bytes.mid(8, 2) == "CR" || bytes.mid(4, 7) == "ftypcrx")
        return QStringLiteral("a camera's RAW file. Please save it as a .jpg picture in your photo program and take "
                              "that");
    if (IsFilm(bytes)) return QStringLiteral("a film. Please take a photo");
    return {};
}
