// SPDX-License-Identifier: MIT
#pragma once

#include "document/Game.h"
#include "document/LabelSizes.h"
#include "platform/paint/Color.h"
#include "services/RecordText.h"

#include <QString>

struct CommonDialog;

/// The records of the game in hand by their old names, and what the start sets beside them.
namespace basTAVL {

/// The records of the game in hand. Raise the subscript error outside the bounds of their tables.
C_Space& g_oSpaces(int iSpace);
C_Corner& g_oCorners(int iCorner);
/// Set 0 is Good News, set 1 Bad News.
C_News& g_oNews(int iGoodOrBad, int iCard);
C_Money& g_oMoney(int iMoney);
C_Token& g_oTokens(int iToken);

/// Kit variant: "2", "2A", "5" or "8", or whatever else the settings say.
const QString& g_sGameVersion();
/// From now on the program, and the game in hand, are for this kit.
void Let_g_sGameVersion(const QString& sVariant);
QString& g_vCurrencySign();
/// Background of the cards of a set.
Color& g_lNewsColor(int iGoodOrBad);
/// Sheet colours of the print.
Color& g_lPrintYellow();
Color& g_lPrintRed();
Color& g_lPrintBlack();
Color& g_lPrintBack();
/// The board's face; thumbnails are filled with it outside their picture.
Color& g_lMagicColor();
/// Sizes of printed stickers, in inches; see LabelSize.
double& g_dblLabelSizes(int iSize);

/// Every CR LF replaced by one blank.
QString CRLF2Space(const QString& sText);

/// Passes a font from and to the common dialog.
void FontFromDialog(const CommonDialog& objDialog, C_FontInfo& oFont);
void FontToDialog(CommonDialog& objDialog, const C_FontInfo& oFont);

/// For tests: a new game in hand, and nothing set by a start.
void ResetForTest();

} // namespace basTAVL
