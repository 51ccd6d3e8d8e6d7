// SPDX-License-Identifier: MIT
#include "windows/editors/Likeness.h"

#include "document/basTAVL.h"
#include "drawing/basBMP.h"
#include "drawing/basDraw.h"
#include "pictures/C_Image.h"
#include "pictures/MissingMark.h"
#include "pictures/PaintPicture.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/PictureHolder.h"
#include "platform/text/Numbers.h"

namespace {

// Wide enough for a caret that nobody has to look for: it is drawn with the outline's pen.
constexpr int kPenWidth = 3;
const QString kCentred = QStringLiteral("C");

// Points the drawing layer at a surface and gives everything back at the end, on failures too.
class DrawingOn {
public:
    explicit DrawingOn(Surface& surface) : m_context(surface.hDC()), m_depth(m_context.SaveDC()) {
        basDraw::Draw_SetHdc(&m_context);
    }
    ~DrawingOn() {
        basDraw::Draw_ReleaseObjects();
        m_context.RestoreDC(m_depth);
    }
    DrawingOn(const DrawingOn&) = delete;
    DrawingOn& operator=(const DrawingOn&) = delete;

private:
    DeviceContext& m_context;
    int m_depth;
};

bool IsBetween(int value, int first, int last) { return value >= first && value <= last; }

} // namespace

bool Likeness::HasImage() { return !Image().FullPath().isEmpty(); }

QStringList Likeness::GetTextArray() const {
    const QStringList lines = LinesInUse();
    return lines.isEmpty() ? QStringList{QString()} : lines;
}

QPoint Likeness::BelowText() {
    const TextBox box = TextPlace();
    return {box.iCentre, box.iTop + box.iHeight};
}

int Likeness::TopOfText() {
    const TextBox box = TextPlace();
    return CLng((box.iHeight - double(LinesInUse().size()) * LineHeight()) / 2 + box.iTop);
}

void Likeness::UseTextFont() {
    const int h = LineHeight();
    const C_FontInfo& font = Font();
    basDraw::Draw_SetFont(font.Family, h, CLng(h * 0.5), 0, 0, font.Bold, font.Italic, false);
}

Likeness::Spot Likeness::WhereIsMouse(Surface& picDest, double X, double Y) {
    const int x = CLng(X);
    const int y = CLng(Y);
    const TextBox box = TextPlace();
    // A QRect's own right and bottom lie one pixel inside the edge that counts here.
    const QRect image = ImagePlace();
    Spot spot;
    spot.bInImage = HasImage() && IsBetween(x, image.x(), image.x() + image.width()) &&
                    IsBetween(y, image.y(), image.y() + image.height());
    spot.bInText = IsBetween(x, box.iLeft, box.iRight) && IsBetween(y, box.iTop, box.iTop + box.iHeight);
    if (LinesInUse().isEmpty()) return spot;
    const DrawingOn drawing(picDest);
    UseTextFont();
    basDraw::Draw_FindInsertPoint(GetTextArray(), kCentred, box.iCentre, TopOfText(), x, y, spot.iCol, spot.iRow);
    return spot;
}

void Likeness::DrawText(const TextSelection& selection) {
    UseTextFont();
    basDraw::Draw_SetSelection(selection.m_iCol, selection.m_iRow, selection.m_iColEnd, selection.m_iRowEnd);
    basDraw::Draw_TextArrayShowingSelection(GetTextArray(), kCentred, TextPlace().iCentre, TopOfText(), Color::Black());
}

void Likeness::DrawImage(Surface& picDest, PictureHolder& picScratch) {
    if (!HasImage()) return;
    const C_Image& image = Image();
    const QRect box = ImagePlace();
    if (IsMissing(image.Ref())) PaintMissingMark(picDest, QRectF(box));
    if (image.IsWMF()) {
        DrawMetafile(image.Ref(), image.Told(), picDest.hDC(), box);
        return;
    }
    PaintZoomed(image.Ref(), image.Told(), picDest, picScratch, ScaleModeKind::Pixels, QRectF(box),
                basTAVL::g_lMagicColor());
}

void Likeness::Redraw(Surface& picDest, PictureHolder& picScratch, const TextSelection& selection) {
    const DrawingOn drawing(picDest);
    picDest.Cls();
    basDraw::Draw_SetPen(PenStyle::Solid, kPenWidth, Color::Black());
    basDraw::Draw_SetBrush(basTAVL::g_lMagicColor());
    DrawOutline();
    DrawText(selection);
    basBMP::BMP_SetHDC(&picDest.hDC());
    DrawImage(picDest, picScratch);
}
