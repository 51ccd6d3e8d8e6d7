// SPDX-License-Identifier: MIT
#include "document/C_Token.h"

#include "drawing/basBMP.h"
#include "drawing/basDraw.h"
#include "pictures/PaintPicture.h"
#include "platform/paint/ClipScope.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/PictureHolder.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

#include <QRect>

namespace {

// Side of the square inscribed in the token's circle, and what is left beside it, in parts of the width.
constexpr double kInscribed = 0.707;
constexpr double kBeside = 0.293;
constexpr int kCaretWidth = 3;
const QString kCentered = QStringLiteral("C");
// Turns a line height in fractions of the board's width into one of the token's height.
constexpr float kTextOfHeight = 6.329F;
constexpr double kWidthOfLine = 0.5;
constexpr double kRingOfCenter = 0.5;

/// What a token needs of the surface while it draws in its pixels.
class PixelScale {
public:
    explicit PixelScale(Surface& surface) : m_surface(surface), m_before(surface.ScaleMode) {
        surface.ScaleMode = ScaleModeKind::Pixels;
        m_depth = surface.hDC().SaveDC();
    }
    ~PixelScale() {
        m_surface.hDC().RestoreDC(m_depth);
        m_surface.ScaleMode = m_before;
    }
    PixelScale(const PixelScale&) = delete;
    PixelScale& operator=(const PixelScale&) = delete;

private:
    Surface& m_surface;
    ScaleModeKind m_before;
    int m_depth = 0;
};

void CutRound(Surface& picDest, int xStart, int yStart, int xEnd, int yEnd, Color lBackColor) {
    // The ring's width comes from the centre and not from the width, so a box that doesn't start at 0 gets a
    // wider one; nothing but what lies beyond the circle is covered either way.
    const int lRing = CLng(CLng((xStart + xEnd) / 2.0) * kRingOfCenter);
    basDraw::Draw_SetPen(PenStyle::Solid, lRing, lBackColor);
    basDraw::Draw_SetBrush(Color::None());
    const double half = lRing / 2.0;
    picDest.hDC().Ellipse(CLng(xStart - half + 1), CLng(yStart - half + 1), CLng(xEnd + half - 1),
                          CLng(yEnd + half - 1));
}

// The round cut alone would leave hairlines on paper: a printer inks every dot that a picture or a colour touches,
// and white over it only the dots it covers.
ClipScope InCircle(DeviceContext& context, int xStart, int yStart, int xEnd, int yEnd) {
    return {context, QRect(QPoint(xStart, yStart), QPoint(xEnd - 1, yEnd - 1)), ClipShape::Ellipse};
}

void FillCircle(DeviceContext& context, int xStart, int yStart, int xEnd, int yEnd, Color color) {
    const ClipScope round = InCircle(context, xStart, yStart, xEnd, yEnd);
    context.FillRect(xStart, yStart, xEnd, yEnd, color);
}

} // namespace

bool C_Token::PaintImage(Surface& picDest, PictureHolder& picScratch, int xStart, int yStart, int xEnd,
                         int yEnd) const {
    if (!Image.IsWMF()) {
        const ClipScope round = InCircle(picDest.hDC(), xStart, yStart, xEnd, yEnd);
        const QRectF box(QPointF(xStart, yStart), QPointF(xEnd, yEnd));
        return PaintZoomed(Image.Ref(), Image.Told(), picDest, picScratch, ScaleModeKind::Pixels, box, Color::None());
    }
    const int w = xEnd - xStart;
    const int h = yEnd - yStart;
    const QRect inner(CLng(kBeside * w / 2 + xStart), CLng(kBeside * h / 2 + yStart), CLng(kInscribed * w),
                      CLng(kInscribed * h));
    return DrawMetafile(Image.Ref(), Image.Told(), picDest.hDC(), inner);
}

/// How the lines stand in a token's box.
struct C_Token::TextPlace {
    QRect square; ///< Inscribed in the circle.
    int lLine = 0;
    int lTop = 0;
    int lCenter = 0;
    QStringList lines;
};

C_Token::TextPlace C_Token::PlaceOfText(int xStart, int yStart, int xEnd, int yEnd) const {
    const int w = xEnd - xStart;
    const int h = yEnd - yStart;
    const QSize inner(CLng(kInscribed * w), CLng(kInscribed * h));
    const QPoint offset(CLng((w - inner.width()) / 2.0), CLng((h - inner.height()) / 2.0));
    TextPlace place;
    place.square = QRect(QPoint(xStart, yStart) + offset, inner);
    place.lines = LinesShown();
    place.lLine = CLng(double(TextSize() * (float(h) * kTextOfHeight)));
    place.lTop = CLng((inner.height() - int(place.lines.size()) * place.lLine) / 2.0 + place.square.top());
    place.lCenter = CLng((xStart + xEnd) / 2.0);
    return place;
}

void C_Token::UseFont(const TextPlace& place) const {
    basDraw::Draw_SetFont(Font.Family, place.lLine, CLng(place.lLine * kWidthOfLine), 0, 0, Font.Bold, Font.Italic,
                          false);
}

void C_Token::DrawText(int xStart, int yStart, int xEnd, int yEnd, bool bWithSelection,
                       const TextSelection& selection) {
    const TextPlace place = PlaceOfText(xStart, yStart, xEnd, yEnd);
    UseFont(place);
    basDraw::Draw_SetSelection(selection.iColStart, selection.iRowStart, selection.iColEnd, selection.iRowEnd);
    if (bWithSelection) {
        basDraw::Draw_SetPen(PenStyle::Solid, kCaretWidth, Color::Black());
        basDraw::Draw_TextArrayShowingSelection(place.lines, kCentered, place.lCenter, place.lTop, Color::Black());
    } else {
        basDraw::Draw_TextArray(place.lines, kCentered, place.lCenter, place.lTop, Color::Black());
    }
}

bool C_Token::FindInsertPoint(int xStart, int yStart, int xEnd, int yEnd, Surface& picDest, int x, int y, int& iCol,
                              int& iRow) const {
    const PixelScale scale(picDest);
    const TextPlace place = PlaceOfText(xStart, yStart, xEnd, yEnd);
    basDraw::Draw_SetHdc(&picDest.hDC());
    UseFont(place);
    basDraw::Draw_FindInsertPoint(place.lines, kCentered, place.lCenter, place.lTop, x, y, iCol, iRow);
    basDraw::Draw_ReleaseObjects();
    return place.square.contains(x, y);
}

void C_Token::Redraw(int xStart, int yStart, int xEnd, int yEnd, bool bWithSelection, Surface& picDest,
                     PictureHolder& picScratch, const TextSelection& selection, Color lBackColor) try {
    const PixelScale scale(picDest);
    picDest.Cls();
    FillCircle(picDest.hDC(), xStart, yStart, xEnd, yEnd, BackColor);
    basDraw::Draw_SetHdc(&picDest.hDC());
    basBMP::BMP_SetHDC(&picDest.hDC());
    if (!Image.FullPath().isEmpty() && !PaintImage(picDest, picScratch, xStart, yStart, xEnd, yEnd)) Image.GiveUp();
    if (Image.FullPath().isEmpty()) DrawText(xStart, yStart, xEnd, yEnd, bWithSelection, selection);
    CutRound(picDest, xStart, yStart, xEnd, yEnd, lBackColor);
    basDraw::Draw_ReleaseObjects();
} catch (...) {
    ErrTail("C_Token!", "Redraw", xStart, yStart, xEnd, yEnd, bWithSelection, picDest, lBackColor);
}
