// SPDX-License-Identifier: MIT
#pragma once

#include "kit/CardGrid.h"
#include "kit/SheetJob.h"
#include "pieces/PrintedText.h"

#include <QString>

class C_Space;
class clsRenderDestination;

/// The title deeds of the users' properties: squares of 2.5 inches with dashed cut lines, twelve to a sheet.
/// Cards and their parts are placed by the pixel of the card's top left. Where a picture for a card can't be
/// made, a box says so, the card ends there and the routine gives false.

/// Prints sheet 1 or 2 on a page that the caller has set upright, without ending the document. False when a
/// card isn't whole; the reason has then been told.
bool PrintDeeds(SheetJob& job, int iSheet);

/// Of both sheets.
CardGrid DeedGrid();
/// Which space's deed lies at a place of sheet 1 or 2, by its number row by row.
int SpaceOfDeed(int iSheet, int iCard);

/// The deed of a property; the picture of its side's band must have been made. bColor is handed on by whoever prints
/// and changes nothing: colours are printed always.
bool DeedCardProp(clsRenderDestination& destination, int iDeed, int lX, int lY, bool bColor);

/// The deed of a utility, with its corners decorated. Raises for an ornament that can't be had.
bool DeedCardTrans(clsRenderDestination& destination, int iDeed, int lX, int lY, bool bColor);

/// The rents and the mortgage value, from sngTop inches below the card's top.
void DeedTextRent(clsRenderDestination& destination, int iDeed, int lX, int lY, float sngTop);

/// The name of the space, in up to two lines unless it has line breaks of its own.
bool DeedTextTitle(clsRenderDestination& destination, int iDeed, int lX, int lY);

/// The name of a space of whatever game as its deed bears it.
PrintedText DeedTitleOnPaper(int iDeed, const C_Space& space);

/// The price of a utility, and what the card is.
void DeedTextValue(clsRenderDestination& destination, int iDeed, int lX, int lY);

/// The other look of a property's head: the name stands in the lower band, where the price is otherwise.
bool DeedTextInColor(clsRenderDestination& destination, int iDeed, int lX, int lY);

/// Writes the picture of a property's price band; its file is named in sPath. False when that fails.
bool DeedGroupColorBitmap(int iDeed, QString& sPath);

/// Writes the picture of the band with the name of a side (0 to 3).
bool DeedSideColorBitmap(int iSide, QString& sPath);
