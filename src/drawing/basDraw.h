// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"
#include "platform/paint/DeviceContext.h"

#include <QPoint>
#include <QString>
#include <QStringList>

#include <span>

class Surface;

/// The one layer between the program and the device context: one current context, pen, brush and font, all
/// of them given back by Draw_ReleaseObjects. Coordinates are whole device units. A font set with an
/// escapement (tenths of a degree: 0 normal, 900 upward, 1800 upside down, 2700 downward) makes every text
/// routine lay out its lines along that angle. Alignments are "L", "C" and "R".
namespace basDraw {

/// Stores the context; releases nothing, so whoever changes context without a release leaves its objects
/// selected in the old one.
void Draw_SetHdc(DeviceContext* hDC);

/// Styles as PenStyle, width in device units. The first pen replaced is kept and given back at the release.
void Draw_SetPen(PenStyle lStyle, int lWidth, Color lColor);

/// A colour of none fills nothing. Twice the same colour within one pass makes one brush.
void Draw_SetBrush(Color lColor);

/// Makes a new font at each call. lHeight is the cell height and becomes the pitch of the lines, which is
/// never below 2; lWidth the average character width, 0 for the font's own. Raises when there is no such font.
void Draw_SetFont(const QString& sFamily, int lHeight, int lWidth, int lEscapement, int lOrientation, bool bBold,
                  bool bItalic, bool bUnderline);

/// Gives back what was selected before this layer's first pen, brush, font and colours.
void Draw_ReleaseObjects();

/// The context in force; nothing before the first.
DeviceContext* Draw_Hdc();

/// After a failure amid drawing, when the context may be gone: goes on with another one and gives nothing back. Tests
/// begin so, with none.
void Draw_Abandon(DeviceContext* hDC = nullptr);

void Draw_Line(int x1, int y1, int x2, int y2);
/// Right and bottom edge excluded.
void Draw_Rect(int x1, int y1, int x2, int y2);
void Draw_Polygon(std::span<const QPoint> points);

/// Width of a text unrotated, whatever the font's escapement. Ends the program when it can't be measured.
int Draw_GetWidth(const QString& sText);

/// Writes a line from, about or up to the point at its top.
void Draw_Text(const QString& sText, const QString& sAlign, int x, int y, Color lColor);

/// Writes lines down the text's own axis; (x, y) is the top of the first.
void Draw_TextArray(const QStringList& sTextLines, const QString& sAlign, int x, int y, Color lColor);

/// Selection for Draw_TextArrayShowingSelection, ends in either order; rows of -1 select nothing.
void Draw_SetSelection(int iCol1, int iRow1, int iCol2, int iRow2);

/// As Draw_TextArray, with the selection in reversed colours or, where both its ends meet, a caret in the
/// current pen.
void Draw_TextArrayShowingSelection(const QStringList& sTextLines, const QString& sAlign, int x, int y, Color lColor);

/// The row and column nearest to the point (x, y) in lines drawn at (x0, y0).
void Draw_FindInsertPoint(const QStringList& sTextLines, const QString& sAlign, int x0, int y0, int x, int y, int& iCol,
                          int& iRow);

/// Red and blue exchanged.
Color Draw_ReverseColor(Color lColor);

/// Dots an inch of a drawing object times dblScale, and the factor from a wanted height to its font size.
void Draw_GetDPIandPrinterSizeRatio(Surface& objDest, double& dblDPI, double& dblRatio, double dblScale);

/// The first iNLines lines, centred, as large as the box of pixels takes them. Works through the drawing
/// object's own text, so the same call serves a window and the printer.
void Draw_MultiLineText(Surface& objDest, const QStringList& sTextLines, int iNLines, const QString& sFont, bool bBold,
                        bool bItalic, int x, int y, int w, int h);

} // namespace basDraw
