// SPDX-License-Identifier: MIT
#include "board/basPositFit.h"

#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

namespace basPosit {
namespace {

constexpr int kMinHeight = 2;

// Widths are worked out on boards of these many units.
constexpr int kReference = 500;
constexpr int kSubtitleReference = 2500;
constexpr int kSubtitle = 2;
constexpr double kSubtitleLimitFactor = 1.2;

// Nine tenths of a side band's length on the reference board.
constexpr int kSideLimit = 268;
constexpr float kSideHeight = 0.019F;
constexpr double kSideWidthOfHeight = 0.9;

struct Face {
    QString sFamily;
    bool bBold;
    bool bItalic;
    void Select(int lHeight, int lWidth) const {
        basDraw::Draw_SetFont(sFamily, lHeight, lWidth, 0, 0, bBold, bItalic, false);
    }
};

// Index and width of the widest line; the first of equally wide ones.
struct Widest {
    int iLine = 0;
    int lWidth = 0;
};

Widest WidestOf(const QStringList& lines, int iNLines) {
    Widest widest;
    for (int i = 0; i < iNLines; ++i) {
        const int lWidth = basDraw::Draw_GetWidth(lines.at(i));
        if (lWidth > widest.lWidth) widest = {i, lWidth};
    }
    return widest;
}

// Product and quotient in single precision, as the fitted sizes have always been.
int Scaled(int value, int limit, int measured) { return Int(float(value) * float(limit) / float(measured)); }

} // namespace

qint16 Pos_ComputeSize(const QString& sFamily, bool bBold, bool bItalic, const QStringList& sTextLines, int iNLines,
                       int lMaxWidth, int lMaxHeight) try {
    if (iNLines == 0) return basTAVL::CInt(lMaxHeight);
    const Face face{sFamily, bBold, bItalic};
    int h = std::max(lMaxHeight / iNLines, kMinHeight);
    face.Select(h, CLng(h * 0.5));
    const Widest widest = WidestOf(sTextLines, iNLines);
    if (widest.lWidth == 0) {
        h = CLng(lMaxHeight / 2.0);
    } else if (widest.lWidth > lMaxWidth) {
        h = Scaled(h, lMaxWidth, widest.lWidth);
    }
    h = std::max(h, kMinHeight);
    for (;; --h) {
        face.Select(h, CLng(h / 2.0));
        if (h <= kMinHeight || basDraw::Draw_GetWidth(sTextLines.at(widest.iLine)) <= lMaxWidth) break;
    }
    return basTAVL::CInt(h);
} catch (...) {
    ErrTail("basPosit!", "Pos_ComputeSize", sFamily, bBold, bItalic, sTextLines, iNLines, lMaxWidth, lMaxHeight);
}

int Pos_ComputeSetWidth(const QString& sFamily, bool bBold, bool bItalic, int lHeight, const QString& sText,
                        int lLimit) try {
    if (lHeight == 0) return 0;
    const Face face{sFamily, bBold, bItalic};
    int w = CLng(lHeight * 0.5);
    face.Select(lHeight, w);
    const int measured = basDraw::Draw_GetWidth(sText);
    if (lLimit < 1) {
        if (measured > 0) w = CLng(-float(w) * float(lLimit) / float(measured));
    } else if (measured > lLimit) {
        w = Scaled(w, lLimit, measured);
    }
    face.Select(lHeight, w);
    basDraw::Draw_GetWidth(sText);
    return w;
} catch (...) {
    ErrTail("basPosit!", "Pos_ComputeSetWidth", sFamily, bBold, bItalic, lHeight, sText, lLimit);
}

void SetSideText(int iSide, const QString& sText) try {
    SideRecord& side = m_SideRec(iSide);
    side.sText = sText;
    side.fFontHeight = kSideHeight;
    int h = CLng(double(kSideHeight) * kReference);
    int w = CLng(h * kSideWidthOfHeight);
    Face{QStringLiteral("Arial"), true, false}.Select(h, w);
    const int measured = basDraw::Draw_GetWidth(sText);
    if (measured > kSideLimit) {
        // A long name gets narrower letters, not lower ones: the height only serves to find the width.
        h = Scaled(h, kSideLimit, measured);
        w = Int(h * 0.5);
    }
    side.fFontWidth = float(w) / float(kReference);
    basDraw::Draw_ReleaseObjects();
} catch (...) {
    ErrTail("basPosit!", "SetSideText", iSide, sText);
}

void FitSpecialText(int iIndex, SpecialText& text) {
    const CenterTextLook& look = m_CenterLook(iIndex);
    if (text.sText.isEmpty()) return;
    const bool bSubtitle = iIndex == kSubtitle;
    const int reference = bSubtitle ? kSubtitleReference : kReference;
    const int h = CLng(reference * double(look.fFontHeight));
    int w = CLng(h * 0.5);
    if (look.fWidthLimit != 0) {
        int limit = CLng(std::abs(reference * double(look.fWidthLimit)));
        if (bSubtitle) limit = CLng(limit * kSubtitleLimitFactor);
        Face{look.Family(), look.bBold, look.bItalic}.Select(h, w);
        // As the board shows it: the whole text on one line.
        const int measured = basDraw::Draw_GetWidth(basTAVL::CRLF2Space(text.sText));
        if (measured > 0 && (look.fWidthLimit < 0 || measured > limit)) w = Scaled(w, limit, measured);
        basDraw::Draw_ReleaseObjects();
    }
    text.fFontWidth = float(w) / float(reference);
}

void SetSpecialText(int iIndex, const QString& sText) try {
    SetSpecialText(m_CenterText(iIndex), iIndex, sText);
} catch (...) {
    ErrTail("basPosit!", "SetSpecialText", iIndex, sText);
}

void SetSpecialText(SpecialText& record, int iIndex, const QString& sText) {
    record.SetText(sText);
    FitSpecialText(iIndex, record);
}

} // namespace basPosit
