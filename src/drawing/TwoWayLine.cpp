// SPDX-License-Identifier: MIT
#include "drawing/TwoWayLine.h"

#include "platform/paint/DeviceContext.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace TwoWayLine {

QList<FontFace::Letter> Letters(const Font& font, const QString& sLine) {
    QList<FontFace::Letter> letters = font.Face().Letters(sLine);
    const double unit = font.Em() / FontFace::kUnitsPerEm * font.Stretch();
    for (FontFace::Letter& letter : letters) {
        letter.dblAhead *= unit;
        letter.dblBehind *= unit;
    }
    return letters;
}

bool Is(const QString& sLine) {
    return std::any_of(sLine.begin(), sLine.end(), [](QChar unit) {
        switch (unit.direction()) {
            case QChar::DirR:
            case QChar::DirAL:
            case QChar::DirRLE:
            case QChar::DirRLO:
            case QChar::DirRLI:
                return true;
            default:
                // Scripts beyond the first plane that run from the right.
                return unit.isHighSurrogate() && (unit.unicode() == 0xD802 || unit.unicode() == 0xD83A);
        }
    });
}

int CaretAt(const Font& font, const QString& sLine, int iCol) {
    const QList<FontFace::Letter> letters = Letters(font, sLine);
    if (letters.isEmpty()) return 0;
    for (const FontFace::Letter& letter : letters) {
        if (iCol < letter.iTo) return CLng(letter.dblAhead);
    }
    return CLng(letters.last().dblBehind);
}

int ColumnAt(const Font& font, const QString& sLine, int iPlace) {
    int column = 0;
    double nearest = -1;
    for (const FontFace::Letter& letter : Letters(font, sLine)) {
        const auto [left, right] = std::minmax(letter.dblAhead, letter.dblBehind);
        const double away = std::max({left - iPlace, iPlace - right, 0.0});
        if (nearest >= 0 && away >= nearest) continue;
        nearest = away;
        const bool ahead = std::abs(iPlace - letter.dblAhead) <= std::abs(iPlace - letter.dblBehind);
        column = ahead ? letter.iFrom : letter.iTo;
    }
    return column;
}

QList<Stretch> Covered(const Font& font, const QString& sLine, int iCol, int iColEnd) {
    QList<Stretch> stretches;
    for (const FontFace::Letter& letter : Letters(font, sLine)) {
        if (letter.iFrom < iCol || letter.iTo > iColEnd) continue;
        const auto [left, right] = std::minmax(letter.dblAhead, letter.dblBehind);
        stretches.append({CLng(left), CLng(right)});
    }
    std::sort(stretches.begin(), stretches.end(), [](Stretch a, Stretch b) { return a.iLeft < b.iLeft; });
    QList<Stretch> joined;
    for (const Stretch& stretch : stretches) {
        if (!joined.isEmpty() && stretch.iLeft <= joined.last().iRight) {
            joined.last().iRight = std::max(joined.last().iRight, stretch.iRight);
        } else {
            joined.append(stretch);
        }
    }
    return joined;
}

} // namespace TwoWayLine
