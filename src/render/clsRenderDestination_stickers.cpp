// SPDX-License-Identifier: MIT
#include "render/clsRenderDestination.h"

#include "document/basTAVL.h"
#include "pictures/PaintPicture.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/PictureHolder.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

namespace {

constexpr double kMarginInches = 0.02;
// Turn a line height in fractions of the board's width into the nominal size in inches that gives a text the
// same proportion on its sticker as on the board.
constexpr double kSpaceTextInches = 15.91435;
constexpr double kCornerTextInches = 9.7656;
// A corner's content stays this much smaller than its sticker.
constexpr double kCornerInset = 0.1;

double CornerContent() { return basTAVL::g_dblLabelSizes(basTAVL::kCornerSide) - kCornerInset; }

} // namespace

void clsRenderDestination::StickerImage(const C_Image& oImage, int lLeft, int lTop, int lSide) {
    if (oImage.FullPath().isEmpty()) return;
    const QRect box(lLeft, lTop, lSide, lSide);
    if (oImage.IsWMF()) {
        DrawMetafile(oImage.Ref(), oImage.Told(), m_oDest->hDC(), box);
        return;
    }
    PictureHolder original;
    PaintZoomed(oImage.Ref(), oImage.Told(), *m_oDest, original, ScaleModeKind::Pixels, QRectF(box), Color::None());
}

void clsRenderDestination::StickerText(const QStringList& saLines, const C_FontInfo& oFont, double dblSizeLimit,
                                       double dblWidth, double dblHeight, double dblX, double dblY,
                                       bool bIncludeImage) {
    const double w = dblWidth * dblDPI;
    const double h = dblHeight * dblDPI;
    const int lX = Pixels(dblX);
    const int lY = Pixels(dblY);
    const int lMargin = Pixels(kMarginInches);
    const int lTop = bIncludeImage ? CLng(h / 2 + lY + lMargin) : lY;
    const int lHeight = bIncludeImage ? CLng(h / 2 - lMargin) : CLng(h - lMargin);
    const QStringList lines = saLines.isEmpty() ? QStringList{QString()} : saLines;
    // The text routine leaves the colour to its caller.
    m_oDest->ForeColor = basTAVL::g_lPrintBlack();
    MultiLineTextAutofitWithSize(lines, int(lines.size()), CLng(dblSizeLimit * dblDPI), oFont.Family, oFont.Bold,
                                 oFont.Italic, lX + lMargin, lTop, CLng(w - 2 * lMargin), lHeight,
                                 basTAVL::g_lPrintBlack());
}

double clsRenderDestination::SpaceStickerImageInches() { return basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight) / 2; }

double clsRenderDestination::CornerStickerImageInches() { return CornerContent() / 2; }

void clsRenderDestination::SpaceStickerImageV6(int iSpace, double dblX, double dblY) try {
    const double w = basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth) * dblDPI;
    const int lSide = Pixels(SpaceStickerImageInches());
    StickerImage(basTAVL::g_oSpaces(iSpace).Image, CLng((w - lSide) / 2 + Pixels(dblX)), Pixels(dblY), lSide);
} catch (...) {
    ErrTail("clsRenderDestination!", "SpaceStickerImageV6", iSpace, dblX, dblY);
}

void clsRenderDestination::CornerStickerImageV6(int iCorner, double dblX, double dblY) try {
    const double g = CornerContent() * dblDPI;
    StickerImage(basTAVL::g_oCorners(iCorner).Image, CLng(g / 4 + Pixels(dblX)), Pixels(dblY),
                 Pixels(CornerStickerImageInches()));
} catch (...) {
    ErrTail("clsRenderDestination!", "CornerStickerImageV6", iCorner, dblX, dblY);
}

void clsRenderDestination::SpaceStickerText(int iSpace, double dblX, double dblY, bool bIncludeImage) try {
    SpaceStickerText(basTAVL::g_oSpaces(iSpace), dblX, dblY, bIncludeImage);
} catch (...) {
    ErrTail("clsRenderDestination!", "SpaceStickerText", iSpace, dblX, dblY, bIncludeImage);
}

void clsRenderDestination::SpaceStickerText(const C_Space& space, double dblX, double dblY, bool bIncludeImage) {
    StickerText(space.TextArray(), space.Font, double(space.TextSize()) * kSpaceTextInches,
                basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth), basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight),
                dblX, dblY, bIncludeImage);
}

void clsRenderDestination::CornerStickerText(int iCorner, double dblX, double dblY, bool bIncludeImage) try {
    CornerStickerText(basTAVL::g_oCorners(iCorner), dblX, dblY, bIncludeImage);
} catch (...) {
    ErrTail("clsRenderDestination!", "CornerStickerText", iCorner, dblX, dblY, bIncludeImage);
}

void clsRenderDestination::CornerStickerText(const C_Corner& corner, double dblX, double dblY, bool bIncludeImage) {
    StickerText(corner.TextArray(0), corner.Font, double(corner.TextSize(0)) * kCornerTextInches, CornerContent(),
                CornerContent(), dblX, dblY, bIncludeImage);
}
