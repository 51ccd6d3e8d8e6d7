// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/FontFace.h"

#include <QList>
#include <QString>

class Font;

/// A line with words that run from the right, such as Hebrew or Arabic: where its columns lie. All places are device
/// units from the line's left end.
namespace TwoWayLine {

/// False for a line that runs from the left all through, whose places are the widths of what stands ahead.
bool Is(const QString& sLine);

/// The letters of a line in a font, with places in device units.
QList<FontFace::Letter> Letters(const Font& font, const QString& sLine);

/// Where a caret ahead of the column stands.
int CaretAt(const Font& font, const QString& sLine, int iCol);

/// The column whose caret is nearest to a place.
int ColumnAt(const Font& font, const QString& sLine, int iPlace);

struct Stretch {
    int iLeft;
    int iRight;
};
/// What a text from a column up to another covers: more than one stretch where it runs both ways.
QList<Stretch> Covered(const Font& font, const QString& sLine, int iCol, int iColEnd);

} // namespace TwoWayLine
