// SPDX-License-Identifier: MIT
#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "drawing/clsBMP.h"
#include "drawing/DrawDottedBox.h"
#include "platform/files/Files.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "render/clsRenderDestination.h"
#include "services/basErrLog.h"
#include "services/FileRefused.h"
#include "services/WorkFiles.h"

namespace {

// The three items whose file stays on the disk, for the next use to write over.
bool KeepsItsFile(int iItem) { return iItem >= 1 && iItem <= 3; }

QString TempFileOf(int iItem) {
    const QString sName = KeepsItsFile(iItem) ? QStringLiteral("TempBMP") : QStringLiteral("TempTextBMP");
    return WorkFiles::PathOf(sName + QString::number(iItem) + QStringLiteral(".temp"));
}

} // namespace

// The text always goes by way of a picture, which the box stretches in both directions: fitting is done by
// scaling and not by the choice of a font. What is printed is the drawing behind that picture, so it is text
// all the same.
void clsRenderDestination::SingleLine(int iItem, const QString& sFontName, bool bBold, bool bItalic, double dblX,
                                      double dblY, double dblWidth, double dblHeight, double dblFontHeight,
                                      double dblMargin, Color lForeColor, Color lBackColor) try {
    const int lX = Pixels(dblX);
    const int lY = Pixels(dblY);
    const int lW = Pixels(dblWidth);
    const int lH = Pixels(dblHeight);
    const int lMargin = Pixels(dblMargin);
    basTAVL::DrawDottedBox(*m_oDest, lX, lY, lX + lW, lY + lH, 0, lBackColor);

    const QString sText = basTAVL::CRLF2Space(basPosit::m_CenterText(iItem).sText);
    const int lFont = CLng(kSizeOfHeight * Pixels(dblFontHeight));
    SetFont(sFontName, bBold, bItalic, lFont);
    m_oDest->ForeColor = lForeColor;

    clsBMP bmp;
    bmp.Init(&Destination());
    bmp.Let_BitsPerPixel(24);
    bmp.SetFontInfo(sFontName, lFont, bBold, bItalic);
    bmp.Let_FullPathToBmpFile(TempFileOf(iItem));
    if (!bmp.CreateFileHoldingText(sText, lForeColor, lBackColor)) return;
    QString error;
    const Picture picture = LoadPicture(bmp.FullPathToBmpFile(), error);
    if (picture.IsNull()) ErrRaiseNoPicture(bmp.FullPathToBmpFile(), error);
    m_oDest->PaintPicture(picture, lX + lMargin, lY + lMargin, lW - 2 * lMargin, lH - 2 * lMargin,
                          RasterOp::SourceCopy);
    // A temporary file that stays is no reason to stop a print.
    if (!KeepsItsFile(iItem) && !Files::Remove(bmp.FullPathToBmpFile(), error)) basErrLog::ErrLogToFile(error, true);
} catch (...) {
    ErrTail("clsRenderDestination!", "SingleLine", iItem, sFontName, bBold, bItalic, dblX, dblY, dblWidth, dblHeight,
            dblFontHeight, dblMargin, lForeColor, lBackColor);
}
