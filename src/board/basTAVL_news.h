// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

class C_FontInfo;
class C_News;
class DeviceContext;

/// A Good News or Bad News card as windows show it. The same routines serve the window with all cards of a
/// deck and the one that edits a card, so both show the same. They draw in device units on any context, with
/// the card's top left corner in (x, y).
namespace basTAVL {

constexpr int kNewsCardWidth = 240;
constexpr int kNewsCardHeight = 140;
/// The parts of a card, from its corner.
constexpr QRect kNewsTitleFrame(8, 8, 224, 28);
constexpr QRect kNewsTextBox(8, 48, 224, 80);

/// "Good News" or "Bad News".
QString NewsDeckName(int iGoodOrBad);

/// The special text with the title that all cards of a deck show.
constexpr int NewsTitleRecord(int iGoodOrBad) { return 4 + iGoodOrBad; }

/// The lines of a card; an empty text is one empty line.
QStringList NewsTextLines(const QString& sText);

void NewsDrawBackgroundToScreen(DeviceContext* hDC, int x, int y);

/// The title, stretched or squeezed to one width. The caller sees to it that no text is selected.
void NewsDrawTitleToScreen(DeviceContext* hDC, int x, int y, int iGoodOrBad, const QString& sTitle,
                           const C_FontInfo& oFont);

/// The card's text, as large as its box takes it, at most at the size of its font and never below 2.
void NewsDrawTextToScreen(DeviceContext* hDC, int x, int y, int iGoodOrBad, const C_News& oNews);

} // namespace basTAVL
