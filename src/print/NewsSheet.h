// SPDX-License-Identifier: MIT
#pragma once

#include "print/SheetJob.h"

class clsRenderDestination;

/// Prints the twelve cards of a deck (0 Good News, 1 Bad News) on a page that the caller has set upright,
/// without ending the document. False when a card isn't whole; the reason has then been told.
bool PrintNewsSheet(SheetJob& job, int iDeck);

/// A card, 3 by 1.62 inches, with its top left in the given pixel. Where its head can't be made a box says so,
/// the card ends there and the answer is false.
bool NewsRender(clsRenderDestination& destination, int lX, int lY, int iDeck, int iCard);
