// SPDX-License-Identifier: MIT
#include "support/FontMaker.h"

#include <QFile>
#include <QtEndian>

namespace FontMaker {
namespace {

QByteArray Wide(const QString& text) {
    QByteArray bytes;
    for (const QChar c : text)
        bytes.append(char(c.unicode() >> 8U)).append(char(c.unicode() & 0xFFU));
    return bytes;
}

// In both the encodings that names come in.
void Replace(QByteArray& font, const QString& old, const QString& with) {
    font.replace(Wide(old), Wide(with));
    font.replace(old.toLatin1(), with.toLatin1());
}

qsizetype PlaceOf(const QByteArray& font, const char* table) {
    constexpr qsizetype kHead = 12;
    const qsizetype entry = font.indexOf(table, kHead);
    return entry < 0 ? -1 : qsizetype(qFromBigEndian<quint32>(font.constData() + entry + 8));
}

} // namespace

QByteArray Font(int bits, bool bWithLicence) {
    QFile file(QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray font = file.readAll();
    Replace(font, QStringLiteral("DejaVu Serif"), kFamily);
    Replace(font, QStringLiteral("DejaVuSerif"), QStringLiteral("QuillLetter"));
    if (!bWithLicence) {
        Replace(font, QStringLiteral("Bitstream"), QStringLiteral("Rollsteam"));
        Replace(font, QStringLiteral("dejavu.sourceforge"), QStringLiteral("xxxxxx.sourceforge"));
    }
    const qsizetype os2 = PlaceOf(font, "OS/2");
    if (os2 < 0) return {};
    qToBigEndian(quint16(bits), font.data() + os2 + 8);
    return font;
}

} // namespace FontMaker
