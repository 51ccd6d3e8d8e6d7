// SPDX-License-Identifier: MIT
#include "drawing/basDraw.h"

#include "platform/paint/Surface.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

namespace basDraw {
namespace {

// A line's height times this is its nominal font size; and the part of a box that text may fill.
constexpr double kSizeOfHeight = 0.625;
constexpr double kUsablePart = 0.95;
// Printers are asked for the height of a font of a quarter of their dots an inch.
constexpr double kProbeSize = 0.25;

// A size that isn't above 0 becomes 1, as no drawing object takes it.
void UseFontSize(Surface& objDest, double size) { objDest.SetFontSize(size > 0 ? size : 1); }

double Widest(Surface& objDest, const QStringList& sTextLines, int iNLines) {
    double widest = 0;
    for (int i = 0; i < iNLines; ++i)
        widest = std::max(widest, objDest.TextWidth(sTextLines.at(i)));
    return widest;
}

} // namespace

void Draw_GetDPIandPrinterSizeRatio(Surface& objDest, double& dblDPI, double& dblRatio, double dblScale) try {
    if (objDest.IsPrinter()) {
        dblDPI = kTwipsPerInch / objDest.TwipsPerPixelX();
        objDest.ScaleMode = ScaleModeKind::Pixels;
        objDest.FontName = QStringLiteral("Arial");
        const double probe = dblDPI * kProbeSize;
        objDest.SetFontSize(probe);
        dblRatio = probe / (objDest.TextHeight(QStringLiteral("Test")) * kSizeOfHeight);
    } else {
        dblDPI = kScreenDotsPerInch;
        dblRatio = 1.0;
    }
    dblDPI *= dblScale;
} catch (...) {
    ErrTail("basDraw!", "Draw_GetDPIandPrinterSizeRatio", objDest, dblDPI, dblRatio, dblScale);
}

void Draw_MultiLineText(Surface& objDest, const QStringList& sTextLines, int iNLines, const QString& sFont, bool bBold,
                        bool bItalic, int x, int y, int w, int h) try {
    iNLines = std::min(iNLines, int(sTextLines.size()));
    if (iNLines <= 0) return;
    double dblDPI = 0;
    double dblRatio = 0;
    Draw_GetDPIandPrinterSizeRatio(objDest, dblDPI, dblRatio, 1.0);
    const int hAvail = CLng(h * kUsablePart);
    const int wAvail = CLng(w * kUsablePart);
    int pitch = Int(double(hAvail) / iNLines);
    int size = CLng(pitch * kSizeOfHeight);
    objDest.FontName = sFont;
    objDest.FontBold = bBold;
    objDest.FontItalic = bItalic;
    UseFontSize(objDest, size * dblRatio);
    const double widest = Widest(objDest, sTextLines, iNLines);
    if (widest > wAvail) {
        size = Int(size * wAvail / widest);
        pitch = CLng(size / kSizeOfHeight);
        UseFontSize(objDest, size * dblRatio);
    }
    // Vertically centred in the usable height from the box's top, horizontally in the full width: that the
    // block sits slightly high is how boxes have always looked.
    int top = CLng((hAvail - iNLines * pitch) / 2.0 + y);
    const int middle = CLng(w / 2.0 + x);
    for (int i = 0; i < iNLines; ++i) {
        objDest.CurrentY = top;
        objDest.CurrentX = middle - objDest.TextWidth(sTextLines.at(i)) / 2;
        objDest.FontTransparent = true;
        objDest.Print(sTextLines.at(i));
        top += pitch;
    }
} catch (...) {
    ErrTail("basDraw!", "Draw_MultiLineText", objDest, sTextLines, iNLines, sFont, bBold, bItalic, x, y, w, h);
}

} // namespace basDraw
