// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Columns of a line of text. A column counts the UTF-16 units ahead of it; the places where a caret may
/// stand or a line be cut are those between characters as a person sees them, never within a surrogate pair
/// or between a letter and its combining marks.
namespace TextColumns {

/// The place at or before a column, and the one at or behind it. Columns beyond the line stay as they are.
int AtOrBefore(const QString& sLine, int iCol);
int AtOrBehind(const QString& sLine, int iCol);

/// The next place to the left and to the right of a column; column 0 and the line's end give themselves.
/// From beyond the line's end it is one unit to the left.
int Before(const QString& sLine, int iCol);
int Behind(const QString& sLine, int iCol);

/// As many whole characters as so many units hold. A first character that is longer is cut all the same, as
/// far as surrogate pairs allow.
QString LeftCharacters(const QString& sLine, int iUnits);

} // namespace TextColumns
