// SPDX-License-Identifier: MIT
#include "render/OutputToken.h"

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/PictureHolder.h"
#include "render/PiecePlace.h"
#include "services/basErrLog.h"

namespace {

void FillCircle(Surface& surface, const QRect& box, Color color) {
    basDraw::Draw_SetHdc(&surface.hDC());
    basDraw::Draw_SetPen(PenStyle::Null, 1, color);
    basDraw::Draw_SetBrush(color);
    surface.hDC().Ellipse(box.left(), box.top(), box.left() + box.width(), box.top() + box.height());
    basDraw::Draw_ReleaseObjects();
}

} // namespace

void OutputToken(clsRenderDestination& destination, int iToken, double dblX, double dblY, double dblSize) try {
    C_Token token = basTAVL::g_oTokens(iToken);
    Surface& surface = destination.Destination();
    const PiecePlace page(destination, 0, 0);
    const QRect box = page.Box({dblX, dblY, dblSize, dblSize});
    const int lRight = box.left() + box.width();
    const int lBottom = box.top() + box.height();
    // No ring, as the editor's, may cover what lies beyond the circle on paper.
    FillCircle(surface, box, token.BackColor);
    if (!token.Image.FullPath().isEmpty()) {
        PictureHolder original;
        if (token.PaintImage(surface, original, box.left(), box.top(), lRight, lBottom)) return;
        // One that is away, as on a stick, is passed over for this print, and the text stands in its place.
        token.Image.GiveUp();
    }
    basDraw::Draw_SetHdc(&surface.hDC());
    token.DrawText(box.left(), box.top(), lRight, lBottom, false, {});
    basDraw::Draw_ReleaseObjects();
} catch (...) {
    ErrTail("clsRenderDestination!", "OutputToken", iToken, dblX, dblY, dblSize);
}
