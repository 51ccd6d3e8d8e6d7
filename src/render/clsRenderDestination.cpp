// SPDX-License-Identifier: MIT
#include "render/clsRenderDestination.h"

#include "board/basPositTables.h"
#include "drawing/DrawDottedBox.h"
#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/FileRefused.h"

namespace {

constexpr double kProbeSize = 0.25;

constexpr double kLegendLineInches = 0.1;
constexpr double kArrowOfLine = 1.5;
constexpr double kDrawnPartOfArrow = 0.75;
constexpr double kRingInches = 0.01;

} // namespace

void clsRenderDestination::Init(Surface& oDest, double dblScale) try {
    m_oDest = &oDest;
    oDest.FontTransparent = true;
    dblDPI = kScreenDotsPerInch;
    m_dblFontFactor = 1.0;
    if (oDest.IsPrinter()) {
        dblDPI = kTwipsPerInch / oDest.TwipsPerPixelX();
        oDest.ScaleMode = ScaleModeKind::Pixels;
        oDest.FontName = QStringLiteral("Arial");
        // The size of a printer's font needn't be the height that it says; this asks once what it is.
        const double probe = dblDPI * kProbeSize;
        oDest.SetFontSize(probe);
        m_dblFontFactor = probe / (oDest.TextHeight(QStringLiteral("Test")) * kSizeOfHeight);
    }
    dblDPI *= dblScale;
} catch (...) {
    ErrTail("clsRenderDestination!", "Init", oDest, dblScale);
}

int clsRenderDestination::Pixels(double dblInches) const { return CLng(dblInches * dblDPI); }

void clsRenderDestination::SetFont(const QString& sFontName, bool bBold, bool bItalic, double nominalSize) {
    m_oDest->FontName = sFontName;
    m_oDest->FontBold = bBold;
    m_oDest->FontItalic = bItalic;
    // No surface takes a size that isn't above 0.
    const double size = nominalSize * m_dblFontFactor;
    m_oDest->SetFontSize(size > 0 ? size : 1);
}

void clsRenderDestination::CircleRender(double dblX, double dblY, double dblRadius) try {
    m_oDest->DrawWidth = std::max(Pixels(kRingInches), 1);
    m_oDest->Circle(Pixels(dblX + dblRadius), Pixels(dblY + dblRadius), Pixels(dblRadius), Color::Black());
} catch (...) {
    ErrTail("clsRenderDestination!", "CircleRender", dblX, dblY, dblRadius);
}

void clsRenderDestination::Legend(float sngX, float sngY, const QString& sDirection, const QString& sText,
                                  Color lColor) try {
    const int lLine = Pixels(kLegendLineInches);
    const int lFont = CLng(kSizeOfHeight * lLine);
    const int lArrow = CLng(kArrowOfLine * lLine);
    const int lX = Pixels(double(sngX));
    const int lY = Pixels(double(sngY));
    SetFont(QStringLiteral("Arial"), true, m_oDest->FontItalic, lFont);
    const QString direction = sDirection.toUpper();
    if (direction == QStringLiteral("RIGHT")) {
        DrawArrow(lX - lArrow, lY, lArrow, sDirection);
        m_oDest->CurrentX = lX - lArrow;
        m_oDest->CurrentY = lY;
    } else if (direction == QStringLiteral("DOWN")) {
        DrawArrow(lX, lY - lArrow, lArrow, sDirection);
        m_oDest->CurrentX = lX + lArrow;
        m_oDest->CurrentY = lY - lArrow;
    } else {
        DrawArrow(lX, lY, lArrow, sDirection);
        m_oDest->CurrentX = lX + lArrow;
        m_oDest->CurrentY = lY;
    }
    m_oDest->ForeColor = lColor;
    m_oDest->Print(sText);
} catch (...) {
    ErrTail("clsRenderDestination!", "Legend", sngX, sngY, sDirection, sText, lColor);
}

void clsRenderDestination::DrawArrow(int lX, int lY, int lSize, const QString& sDirection) try {
    const QStringList known{QStringLiteral("UP"), QStringLiteral("DOWN"), QStringLiteral("LEFT"),
                            QStringLiteral("RIGHT")};
    const QString direction = sDirection.toUpper();
    if (direction == QStringLiteral("NONE")) return;
    basCommon::Assert(known.contains(direction), QStringLiteral("Unexpected Direction"),
                      QStringLiteral("clsRenderDestination!DrawArrow"));
    const int lDrawn = CLng(kDrawnPartOfArrow * lSize);
    const QString file = sDirection + QStringLiteral("arrow.bmp");
    QString error;
    const Picture arrow = LoadPicture(basCommon::JoinPath(Folders::ProgramDirectory(), file), error);
    if (!arrow.IsNull()) m_oDest->PaintPicture(arrow, lX, lY, lDrawn, lDrawn);
} catch (...) {
    ErrTail("clsRenderDestination!", "DrawArrow", lX, lY, lSize, sDirection);
}

void clsRenderDestination::OutputFromBMP(const QString& sPath, double dblX, double dblY, double dblWidth,
                                         double dblHeight) try {
    if (sPath.isEmpty() || !basCommon::DoesFileExist(sPath)) return;
    QString error;
    const Picture picture = m_oDest->IsPrinter() ? LoadForPaper(sPath, error) : LoadPicture(sPath, error);
    if (picture.IsNull()) ErrRaiseNoPicture(sPath, error);
    m_oDest->PaintPicture(picture, Pixels(dblX), Pixels(dblY), Pixels(dblWidth), Pixels(dblHeight));
} catch (...) {
    ErrTail("clsRenderDestination!", "OutputFromBMP", sPath, dblX, dblY, dblWidth, dblHeight);
}

void clsRenderDestination::MultiLineBox(int iItem, const QString& sFontName, bool bBold, bool bItalic, double dblX,
                                        double dblY, double dblWidth, double dblHeight, Color lForeColor,
                                        Color lBackColor) try {
    const SpecialText& record = basPosit::m_CenterText(iItem);
    if (record.iNLines == 0) return;
    const int lX = Pixels(dblX);
    const int lY = Pixels(dblY);
    basTAVL::DrawDottedBox(*m_oDest, lX, lY, CLng(dblWidth * dblDPI + lX), CLng(dblHeight * dblDPI + lY), 0,
                           lBackColor);
    // The text routine leaves the colour to its caller.
    m_oDest->ForeColor = lForeColor;
    MultiLineTextAutofit(record.Lines(), record.iNLines, sFontName, bBold, bItalic, lX, lY, Pixels(dblWidth),
                         Pixels(dblHeight), lForeColor);
} catch (...) {
    ErrTail("clsRenderDestination!", "MultiLineBox", iItem, sFontName, bBold, bItalic, dblX, dblY, dblWidth, dblHeight,
            lForeColor, lBackColor);
}
