// SPDX-License-Identifier: MIT
#pragma once

#include "document/SpecialText.h"

#include <QString>
#include <QStringList>

struct SpecialText;

/// Fitting of texts to the boxes and bands of the board. All of it measures on the drawing layer's current
/// context.
namespace basPosit {

/// The largest font height, at least 2, at which the first iNLines lines fill a box given in device units;
/// lMaxHeight when there is no line, half of it when all are empty. Leaves the font selected.
qint16 Pos_ComputeSize(const QString& sFamily, bool bBold, bool bItalic, const QStringList& sTextLines, int iNLines,
                       int lMaxWidth, int lMaxHeight);

/// The character width, in device units, at which a line of this height meets a limit: a negative limit
/// exactly, by stretching or squeezing; a positive one by squeezing only. Leaves the font selected.
int Pos_ComputeSetWidth(const QString& sFamily, bool bBold, bool bItalic, int lHeight, const QString& sText,
                        int lLimit);

/// Sets the name of a side and the width of its letters. Raises the subscript error outside 0 to 3.
void SetSideText(int iSide, const QString& sText);

/// Fits the letters of a special text, 0 to 16, to its record's limit; an empty one keeps those that it has.
void FitSpecialText(int iIndex, SpecialText& text);

/// Sets a special text, 0 to 16, splits it into lines and fits its letters to the record's limit. The look
/// depends on the text alone, whatever stood there before.
void SetSpecialText(int iIndex, const QString& sText);
/// The same for a record that isn't in force; iIndex says whose limit counts.
void SetSpecialText(SpecialText& record, int iIndex, const QString& sText);

} // namespace basPosit
