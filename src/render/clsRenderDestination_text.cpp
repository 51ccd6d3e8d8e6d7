// SPDX-License-Identifier: MIT
#include "render/clsRenderDestination.h"

#include "platform/paint/Surface.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basPath.h"

#include <QTextBoundaryFinder>

namespace {

constexpr double kUsablePart = 0.95;

struct Break {
    qsizetype lineEnd;   ///< Where the line ends.
    qsizetype restStart; ///< Where what remains begins.
};

// Where a text that is too wide breaks: at the last blank before the characters reach the width, or hard at
// that place. A break never parts a character from its accents, and a line takes one character at least.
Break FindBreak(Surface& surface, const QString& sText, int lWidth) {
    // By words: measured letter by letter, the rules take longer than all else on their sheet.
    qsizetype blank = -1;
    for (qsizetype next = sText.indexOf(u' '); next >= 0 && surface.TextWidth(sText.left(next)) < lWidth;
         next = sText.indexOf(u' ', next + 1))
        blank = next;
    if (blank >= 0) return {blank, blank + 1};
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, sText);
    qsizetype at = 0;
    while (at < sText.size() && surface.TextWidth(sText.left(at)) < lWidth) {
        characters.setPosition(at);
        const qsizetype next = characters.toNextBoundary();
        at = next > at ? next : at + 1;
    }
    if (at == 0) {
        const qsizetype first = characters.toNextBoundary();
        at = first > 0 ? first : 1;
    }
    return {at, at};
}

} // namespace

double clsRenderDestination::Widest(const QStringList& saLines, int iLineCount) const {
    double widest = 0;
    for (int i = 0; i < iLineCount; ++i)
        widest = std::max(widest, m_oDest->TextWidth(saLines.at(i)));
    return widest;
}

void clsRenderDestination::FitLines(const QStringList& saLines, int iLineCount, const int* vSizeLimit,
                                    const QString& sFontName, bool bBold, bool bItalic, int lX, int lY, int lWidth,
                                    int lHeight) {
    iLineCount = std::min(iLineCount, int(saLines.size()));
    if (iLineCount <= 0) return;
    const int lFitH = CLng(kUsablePart * lHeight);
    const int lFitW = CLng(kUsablePart * lWidth);
    int lLine = lFitH / iLineCount;
    int lFont = CLng(kSizeOfHeight * lLine);
    const auto useFont = [&](int nominal) { SetFont(sFontName, bBold, bItalic, nominal); };
    useFont(lFont);
    const double widest = Widest(saLines, iLineCount);
    if (widest > lFitW) {
        lFont = int(lFont * lFitW / widest);
        lLine = CLng(lFont / kSizeOfHeight);
        useFont(lFont);
    }
    if (vSizeLimit && *vSizeLimit < lFont) {
        lFont = *vSizeLimit;
        lLine = CLng(lFont / kSizeOfHeight);
        useFont(lFont);
    }
    // Centred in the usable height from the box's top and in the full width, so it sits slightly high.
    int lTop = CLng((lFitH - lLine * iLineCount) / 2.0) + lY;
    const int lMid = CLng(lWidth / 2.0) + lX;
    for (int i = 0; i < iLineCount; ++i) {
        m_oDest->CurrentY = lTop;
        m_oDest->CurrentX = lMid - m_oDest->TextWidth(saLines.at(i)) / 2;
        m_oDest->FontTransparent = true;
        m_oDest->Print(saLines.at(i));
        lTop += lLine;
    }
}

void clsRenderDestination::MultiLineTextAutofit(const QStringList& saLines, int iLineCount, const QString& sFontName,
                                                bool bBold, bool bItalic, int lX, int lY, int lWidth, int lHeight,
                                                Color lColor) try {
    FitLines(saLines, iLineCount, nullptr, sFontName, bBold, bItalic, lX, lY, lWidth, lHeight);
} catch (...) {
    ErrTail("clsRenderDestination!", "MultiLineTextAutofit", saLines, iLineCount, sFontName, bBold, bItalic, lX, lY,
            lWidth, lHeight, lColor);
}

void clsRenderDestination::MultiLineTextAutofitWithSize(const QStringList& saLines, int iLineCount, int vSizeLimit,
                                                        const QString& sFontName, bool bBold, bool bItalic, int lX,
                                                        int lY, int lWidth, int lHeight, Color lColor) try {
    FitLines(saLines, iLineCount, &vSizeLimit, sFontName, bBold, bItalic, lX, lY, lWidth, lHeight);
} catch (...) {
    ErrTail("clsRenderDestination!", "MultiLineTextAutofitWithSize", saLines, iLineCount, vSizeLimit, sFontName, bBold,
            bItalic, lX, lY, lWidth, lHeight, lColor);
}

void clsRenderDestination::TextBlock(QString& vText, int lX, int& lY, int lWidth, const QString& sFontName,
                                     int lLineHeight, bool bBold, bool bItalic, const QString& sAlign) try {
    SetFont(sFontName, bBold, bItalic, lLineHeight * kSizeOfHeight);
    if (vText.isEmpty()) {
        lY += lLineHeight;
        return;
    }
    while (!vText.isEmpty()) {
        QString line = vText;
        if (m_oDest->TextWidth(line) <= lWidth) {
            vText.clear();
        } else {
            const Break where = FindBreak(*m_oDest, vText, lWidth);
            line = vText.left(where.lineEnd).trimmed();
            vText = vText.mid(where.restStart).trimmed();
        }
        const double width = m_oDest->TextWidth(line);
        double x = 0;
        if (sAlign == QStringLiteral("L")) {
            x = lX;
        } else if (sAlign == QStringLiteral("C")) {
            x = CLng((lWidth - width) / 2) + lX;
        } else if (sAlign == QStringLiteral("R")) {
            x = lX + lWidth - width;
        } else {
            basCommon::Assert(false, QStringLiteral("Unexpected Case"),
                              QStringLiteral("clsRenderDestination!TextBlock"));
        }
        m_oDest->CurrentX = x;
        m_oDest->CurrentY = lY;
        m_oDest->Print(line);
        lY += lLineHeight;
    }
} catch (...) {
    ErrTail("clsRenderDestination!", "TextBlock", vText, lX, lY, lWidth, sFontName, lLineHeight, bBold, bItalic,
            sAlign);
}
