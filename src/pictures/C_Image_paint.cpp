// SPDX-License-Identifier: MIT
#include "pictures/BoardThumbnail.h"
#include "pictures/C_Image.h"
#include "pictures/PaintPicture.h"
#include "pictures/ThumbnailStore.h"
#include "platform/paint/Surface.h"
#include "services/basErrLog.h"

namespace {

QRectF Box(double xStart, double yStart, double xEnd, double yEnd) {
    return {QPointF(xStart, yStart), QPointF(xEnd, yEnd)};
}

} // namespace

void C_Image::PaintPictureCentered(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd,
                                   Color lBackColor) const try {
    PaintCentered(m_picture.ref, Told(), picDest, Box(xStart, yStart, xEnd, yEnd), lBackColor);
} catch (...) {
    ErrTail("C_Image!", "PaintPictureCentered", picDest, xStart, yStart, xEnd, yEnd, lBackColor);
}

bool C_Image::PaintPictureZoomed(Surface& objDest, PictureHolder& picOriginal, ScaleModeKind ScaleMode, double xStart,
                                 double yStart, double xEnd, double yEnd, Color lBackColor) const try {
    const bool wasCentered = IsCentered();
    const bool painted = PaintZoomed(m_picture.ref, Told(), objDest, picOriginal, ScaleMode,
                                     Box(xStart, yStart, xEnd, yEnd), lBackColor);
    // What lies there shows another part than the middle that was found just now.
    if (!wasCentered && IsCentered()) KillThumb();
    return painted;
} catch (...) {
    ErrTail("C_Image!", "PaintPictureZoomed", objDest, picOriginal, ScaleMode, xStart, yStart, xEnd, yEnd, lBackColor);
}

QString C_Image::Thumbname() const try {
    return Owner().kind == PictureOwner::Kind::None ? QString() : ThumbnailStore::PathOf(Owner());
} catch (...) {
    ErrTail("C_Image!", "Thumbname");
}

void C_Image::KillThumb() const {
    if (!ThumbnailStore::ShowsItsOwn(m_picture)) ThumbnailStore::Instance().Delete(Owner());
}

QString C_Image::GetThumbnail(bool bGrayOnly) const try {
    return ThumbnailStore::Instance().Fetch(m_picture);
} catch (...) {
    ErrTail("C_Image!", "GetThumbnail", bGrayOnly);
}

void C_Image::DrawBitmapToScreen(Surface& picDest, double x, double y, double w, double h) const try {
    DrawOnBoard(m_picture, picDest, QRectF(x, y, w, h));
} catch (...) {
    ErrTail("C_Image!", "DrawBitmapToScreen", picDest, x, y, w, h);
}

void C_Image::PaintThumbnail(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd) const try {
    PaintThumbnailOf(m_picture, picDest, Box(xStart, yStart, xEnd, yEnd));
} catch (...) {
    ErrTail("C_Image!", "PaintThumbnail", picDest, xStart, yStart, xEnd, yEnd);
}
