// SPDX-License-Identifier: MIT
#pragma once

#include "kit/CardGrid.h"
#include "pieces/PrintedText.h"

#include <QString>

class C_FontInfo;
class C_News;
class clsRenderDestination;

/// A card of a deck (0 Good News, 1 Bad News), 3 by 1.62 inches, with its top left in the given pixel. Where its head
/// can't be made a box says so, the card ends there and the answer is false.
bool NewsRender(clsRenderDestination& destination, int lX, int lY, int iDeck, int iCard);

/// Writes the picture of a deck's title: white on black for Bad News. Its file is named in sPath. False when
/// that fails.
bool NewsHeadBitmap(int iDeck, const C_FontInfo& oFont, QString& sPath);

/// What a card of whatever game says, as it is printed; nothing for a card without a text.
PrintedText NewsTextOnPaper(const C_News& news);
/// The title of a deck as its cards bear it.
PrintedText NewsHeadOnPaper(const QString& sTitle, const C_FontInfo& oFont);
/// Of both decks.
CardGrid NewsGrid();
/// A card's width and height, in inches.
QSizeF NewsCardInches();
