// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"

#include <QString>

/// The sheets of peel-and-stick labels of kit "8". Each paints one page that the caller has set lengthwise and
/// doesn't end the document. All places are inches from the printable origin.

/// Titles and side strips of the box, and two round stickers for each token. False after a failure, which has
/// then been told; what was painted before it stays on the page.
bool StickerBoxAndTokenSheet(SheetJob& job);

/// Twelve board spaces: of the west and south sides (iSide 0) or of the east and north ones (above 0). With
/// bCorners the first three corners lie under them, with bTitle the title and subtitle of the board. False when
/// something could not be made, which has then been told; its place stays blank.
bool StickerSpaceSheet(SheetJob& job, int iSide, bool bCorners, bool bTitle);

/// The board space of a place on a sheet of two rows of six; iSide above 0 is the second half of the board.
int GetSpaceFromArrayCoordinates(int iSide, int iRow, int iCol);

/// Reads a size such as "4.78x0.78", in inches. The text is put into lower case. Of a part that isn't a number
/// its leading digits count; a text without an "x" gives 0 for both.
void FactorDimensionString(QString& sDimensions, double& dblWidth, double& dblHeight);
