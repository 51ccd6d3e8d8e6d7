// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_Corner.h"
#include "document/C_Money.h"
#include "document/C_News.h"
#include "document/C_Space.h"
#include "document/C_Token.h"
#include "platform/Color.h"
#include "services/RecordText.h"

#include <QString>

struct CommonDialog;

/// The one game in memory: a fixed set of records that every part reads and writes directly. A record is
/// created when it is first touched and lives for the whole run; loading a game overwrites its fields.
namespace basTAVL {

constexpr int kSpaces = 28;
constexpr int kSpacesPerSide = 7;
constexpr int kSides = 4;
constexpr int kCorners = 4;
constexpr int kNewsSets = 2;
constexpr int kCards = 12;
constexpr int kMoney = 4;
constexpr int kTokens = 6;
constexpr int kLabelSizes = 8;

/// The records. Raise the subscript error outside the bounds of their tables.
C_Space& g_oSpaces(int iSpace);
C_Corner& g_oCorners(int iCorner);
/// Set 0 is Good News, set 1 Bad News.
C_News& g_oNews(int iGoodOrBad, int iCard);
C_Money& g_oMoney(int iMoney);
C_Token& g_oTokens(int iToken);

/// Kit variant: "2", "2A", "5" or "8".
QString& g_sGameVersion();
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
/// Sizes of printed stickers, in inches.
double& g_dblLabelSizes(int iSize);

/// Every CR LF replaced by one blank.
QString CRLF2Space(const QString& sText);

/// Passes a font from and to the common dialog.
void FontFromDialog(const CommonDialog& objDialog, C_FontInfo& oFont);
void FontToDialog(CommonDialog& objDialog, const C_FontInfo& oFont);

/// For tests: a game whose records nobody has touched yet.
void ResetForTest();

} // namespace basTAVL
