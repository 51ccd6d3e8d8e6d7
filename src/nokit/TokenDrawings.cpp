// SPDX-License-Identifier: MIT
#include "nokit/TokenDrawings.h"

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "pictures/PaintPicture.h"
#include "platform/paint/RecordingForm.h"
#include "platform/pictures/PictureHolder.h"
#include "platform/text/Numbers.h"

namespace TokenDrawings {
namespace {

constexpr double kUnitsPerInch = 600;

// A record of its own, as one whose picture is away gives it up.
C_Token TokenOf(int iToken) { return basTAVL::g_oTokens(iToken); }

bool PaintPicture(const C_Token& token, Surface& form, int side) {
    const C_Image& image = token.Image;
    if (image.FullPath().isEmpty()) return false;
    const QRect box(0, 0, side, side);
    if (image.IsWMF()) return DrawMetafile(image.Ref(), image.Told(), form.hDC(), box);
    PictureHolder original;
    return PaintZoomed(image.Ref(), image.Told(), form, original, ScaleModeKind::Pixels, QRectF(box), Color::None());
}

} // namespace

bool ShowsPicture(int iToken) { return !TokenOf(iToken).Image.FullPath().isEmpty(); }

std::shared_ptr<const Recording> Round(int iToken, double dblInches) {
    const int side = CLng(dblInches * kUnitsPerInch);
    RecordingForm form(QSize(side, side), kUnitsPerInch);
    C_Token token = TokenOf(iToken);
    PictureHolder original;
    token.Redraw(0, 0, side, side, false, form, original, {}, Color::White());
    return form.Take();
}

std::shared_ptr<const Recording> Square(int iToken, double dblInches) {
    const int side = CLng(dblInches * kUnitsPerInch);
    RecordingForm form(QSize(side, side), kUnitsPerInch);
    form.ScaleMode = ScaleModeKind::Pixels;
    C_Token token = TokenOf(iToken);
    form.hDC().FillRect(0, 0, side, side, Color::White());
    if (!PaintPicture(token, form, side)) {
        if (!token.Image.FullPath().isEmpty()) token.Image.GiveUp();
        form.hDC().FillRect(0, 0, side, side, token.BackColor);
        basDraw::Draw_SetHdc(&form.hDC());
        token.DrawText(0, 0, side, side, false, {});
        basDraw::Draw_ReleaseObjects();
    }
    return form.Take();
}

} // namespace TokenDrawings
