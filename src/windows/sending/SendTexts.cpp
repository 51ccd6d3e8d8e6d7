// SPDX-License-Identifier: MIT
#include "windows/sending/SendTexts.h"

#include <algorithm>
#include <cmath>

namespace SendTexts {
namespace {

using Standing = PackFonts::Use::Standing;

const QString kNewLine = QStringLiteral("\n");

QString FileName(const QString& sPath) {
    return sPath.mid(std::max(sPath.lastIndexOf(u'/'), sPath.lastIndexOf(u'\\')) + 1);
}

QString Count(qsizetype count, const char* sOne, const char* sMany) {
    return count == 1 ? QString::fromLatin1(sOne) : QString::number(count) + u' ' + QString::fromLatin1(sMany);
}

QStringList Families(const Packing::Contents& contents, Standing standing) {
    QStringList families;
    for (const PackFonts::Use& use : contents.fonts) {
        if (use.standing == standing) families.append(u'\'' + use.sFamily + u'\'');
    }
    return families;
}

// The first few; who wants to know all finds them in the tip.
QString Few(const QStringList& names) {
    constexpr qsizetype kMost = 4;
    QString few = names.mid(0, kMost).join(QStringLiteral(", "));
    if (names.size() > kMost) few += QStringLiteral(" and %1 more").arg(names.size() - kMost);
    return few;
}

QString Fonts(const QStringList& families) {
    return (families.size() == 1 ? QStringLiteral("the font ") : QStringLiteral("the fonts ")) + Few(families);
}

} // namespace

QString Size(qint64 bytes) {
    constexpr double kKilo = 1024;
    constexpr double kMega = kKilo * kKilo;
    constexpr double kFewMegas = 10;
    if (double(bytes) < kMega) return QStringLiteral("%1 KB").arg(std::max(1L, std::lround(double(bytes) / kKilo)));
    const double megas = double(bytes) / kMega;
    return QStringLiteral("%1 MB").arg(megas, 0, 'f', megas < kFewMegas ? 1 : 0);
}

QString GoesIn(const Packing::Contents& contents) {
    QStringList parts{QStringLiteral("its texts")};
    if (!contents.pictures.isEmpty()) parts.append(Count(contents.pictures.size(), "one picture", "pictures"));
    const QStringList fonts = Families(contents, Standing::GoesAlong);
    if (!fonts.isEmpty()) parts.append(Fonts(fonts));
    parts.append(QStringLiteral("a picture of the board"));
    const QString last = parts.takeLast();
    return QStringLiteral("The game '%1' goes into one file, with %2 and %3.")
        .arg(contents.sName, parts.join(QStringLiteral(", ")), last);
}

QString StaysBehind(const Packing::Contents& contents) {
    QStringList lines;
    QStringList missing;
    for (const QString& path : contents.missing)
        missing.append(FileName(path));
    if (!missing.isEmpty())
        lines.append(QStringLiteral("%1 missing, and your friend will see empty places: %2.")
                         .arg(Count(missing.size(), "One picture is", "pictures are"), Few(missing)));
    const QStringList bound = Families(contents, Standing::StaysBehind);
    if (!bound.isEmpty())
        lines.append(
            QStringLiteral("Your friend needs %1, too: nobody may pass it on but its maker.").arg(Fonts(bound)));
    const QStringList gone = Families(contents, Standing::NotHere);
    if (!gone.isEmpty())
        lines.append(QStringLiteral("The game names %1, which this computer hasn't got.").arg(Fonts(gone)));
    return lines.join(kNewLine);
}

QString MissingPaths(const Packing::Contents& contents) { return contents.missing.join(kNewLine); }

} // namespace SendTexts
