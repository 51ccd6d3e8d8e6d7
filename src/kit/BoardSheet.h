// SPDX-License-Identifier: MIT
#pragma once

#include "kit/LabelSheet.h"
#include "kit/SheetJob.h"

#include <vector>

/// The sheets of peel-and-stick labels of kit "8" that turn a blank board into the user's. All places are inches from
/// the printable origin.

/// Twelve board spaces: of the west and south sides (iSide 0) or of the east and north ones (above 0). With
/// bCorners the first three corners lie under them, with bTitle the title and subtitle of the board. Paints one page
/// that the caller has set lengthwise and doesn't end the document. False when something could not be made, which has
/// then been told; its place stays blank.
bool StickerSpaceSheet(SheetJob& job, int iSide, bool bCorners, bool bTitle);

/// The board space of a place on a sheet of two rows of six; iSide above 0 is the second half of the board.
int GetSpaceFromArrayCoordinates(int iSide, int iRow, int iCol);

/// The labels with titles that lie on it.
std::vector<LabelSheet::TitleLabel> TitleLabelsOfBoard();
