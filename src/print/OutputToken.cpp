// SPDX-License-Identifier: MIT
#include "print/OutputToken.h"

#include "app/services/basErrLog.h"
#include "board/basDraw.h"
#include "document/basTAVL.h"
#include "platform/Picture.h"
#include "platform/PictureHolder.h"
#include "platform/PictureMask.h"
#include "platform/Surface.h"
#include "print/PiecePlace.h"

namespace {

void FillCircle(Surface& surface, const QRect& box, Color color) {
    basDraw::Draw_SetHdc(&surface.hDC());
    basDraw::Draw_SetPen(PenStyle::Null, 1, color);
    basDraw::Draw_SetBrush(color);
    surface.hDC().Ellipse(box.left(), box.top(), box.left() + box.width(), box.top() + box.height());
    basDraw::Draw_ReleaseObjects();
}

// The face as the editor shows it, with nothing beyond the circle. On paper no ring may cover what lies there.
Picture RoundFace(C_Token& token, int lSide) {
    ScratchForm face(QSize(lSide, lSide));
    PictureHolder original;
    token.Redraw(0, 0, lSide, lSide, false, face, original, {}, Color::White());
    ScratchForm mask(QSize(lSide, lSide));
    mask.SetBackColor(Color::Black());
    FillCircle(mask, QRect(0, 0, lSide, lSide), Color::White());
    return ThroughMask(Picture(face.Image()), Picture(mask.Image()));
}

} // namespace

void OutputToken(clsRenderDestination& destination, int iToken, double dblX, double dblY, double dblSize) try {
    C_Token& token = basTAVL::g_oTokens(iToken);
    Surface& surface = destination.Destination();
    const PiecePlace page(destination, 0, 0);
    const QRect box = page.Box({dblX, dblY, dblSize, dblSize});
    if (!token.Image.FullPath().isEmpty()) {
        const Picture face = RoundFace(token, std::max(surface.PicturePixels(box.width()), 1));
        // A picture that couldn't be had is given up, and the token has text.
        if (!token.Image.FullPath().isEmpty()) {
            surface.PaintPicture(face, box.left(), box.top(), box.width(), box.height());
            return;
        }
    }
    FillCircle(surface, box, token.BackColor);
    basDraw::Draw_SetHdc(&surface.hDC());
    token.DrawText(box.left(), box.top(), box.left() + box.width(), box.top() + box.height(), false, {});
    basDraw::Draw_ReleaseObjects();
} catch (...) {
    ErrTail("frmTavlPrint!", "OutputToken", iToken, dblX, dblY, dblSize);
}
