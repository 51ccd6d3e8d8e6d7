// SPDX-License-Identifier: MIT
#include "pieces/StickersUsingBMP.h"

#include "document/basTAVL.h"
#include "drawing/DrawDottedBox.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/paint/Surface.h"
#include "platform/text/Numbers.h"
#include "render/clsRenderDestination.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"

#include <QRect>

namespace {

constexpr double kDashInches = 0.05;

// The wording is that of banknotes; it stands for stickers too.
bool TellNotMade() {
    MsgBox(QStringLiteral("Unable to create Money Image. Money will not be printed."));
    return false;
}

// A file that can't be painted stays for a look at it.
void PaintAndDelete(Surface& surface, const QString& sFile, const QRect& place) {
    MadePicture::Paint(surface, sFile, place);
    MadePicture::Delete(sFile);
}

// In the surface's own dots, whatever scale the destination has.
QRect PlaceOn(const Surface& surface, double dblX, double dblY, double dblWidth, double dblHeight) {
    const double dpi = kTwipsPerInch / surface.TwipsPerPixelX();
    return {CLng(dblX * dpi), CLng(dblY * dpi), CLng(dblWidth * dpi), CLng(dblHeight * dpi)};
}

} // namespace

bool CornerStickerUsingBMP(clsRenderDestination& destination, int iCorner, double dblX, double dblY) try {
    const QString file = MadePicture::PathOf(QStringLiteral("CornerImage%1.bmp").arg(iCorner));
    if (!frmBMP::Instance().GenerateCornerImage(file, iCorner)) return TellNotMade();
    Surface& surface = destination.Destination();
    const double side = basTAVL::g_dblLabelSizes(basTAVL::kCornerSide);
    PaintAndDelete(surface, file, PlaceOn(surface, dblX, dblY, side, side));
    return true;
} catch (...) {
    ErrTail("clsRenderDestination!", "CornerStickerUsingBMP", iCorner, dblX, dblY);
}

bool SpaceStickerUsingBMP(clsRenderDestination& destination, int iSpace, double dblX, double dblY) try {
    const QString file = MadePicture::PathOf(QStringLiteral("SpaceImage.bmp"));
    if (!frmBMP::Instance().GenerateSpaceStickerImage(file, iSpace)) return TellNotMade();
    Surface& surface = destination.Destination();
    const QRect place = PlaceOn(surface, dblX, dblY, basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth),
                                basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight));
    PaintAndDelete(surface, file, place);
    const int lDash = CLng(kDashInches * kTwipsPerInch / surface.TwipsPerPixelX());
    basTAVL::DrawDottedBox(surface, place.x(), place.y(), place.x() + place.width(), place.y() + place.height(), lDash,
                           Color::None());
    return true;
} catch (...) {
    ErrTail("clsRenderDestination!", "SpaceStickerUsingBMP", iSpace, dblX, dblY);
}
