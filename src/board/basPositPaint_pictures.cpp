// SPDX-License-Identifier: MIT
#include "board/basPositPaint.h"

#include "app/services/basErrLog.h"
#include "app/services/basPath.h"
#include "board/basPosit.h"
#include "document/basTAVL.h"
#include "platform/Folders.h"
#include "platform/Numbers.h"
#include "platform/Surface.h"

#include <QRect>

namespace basPosit {
namespace {

struct Destination {
    Surface* picBoard = nullptr;
    bool bOnScreen = false;
};

Destination& Module() {
    static Destination destination;
    return destination;
}

// An image's box in device units: the place moves with the view, the size only grows with it.
QRect BoxOf(const C_Image& image) {
    return {PosX(image.X), PosY(image.Y), CLng(PosLength(image.W)), CLng(PosLength(image.H))};
}

// The thumbnails are made for their side of the board, so nothing is turned here.
void Paste(C_Image& image) {
    if (image.FullPath().isEmpty()) {
        // A picture that comes to stand here later may be told to be bad again.
        image.Let_BadPath(QString());
        return;
    }
    if (!Module().picBoard) return;
    const QRect box = BoxOf(image);
    image.DrawBitmapToScreen(*Module().picBoard, box.x(), box.y(), box.width(), box.height());
}

void PasteFate(C_Image& image) {
    image.Let_FullPath(basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("fate.dat")));
    if (!Module().picBoard) return;
    const QRect box = BoxOf(image);
    image.PaintPictureCentered(*Module().picBoard, box.x(), box.y(), box.x() + box.width(), box.y() + box.height(),
                               Color::None());
}

} // namespace

void PosSetPicture(Surface* picBoard, bool bOnScreen) { Module() = {picBoard, bOnScreen}; }

void PosDrawSpaceBMP(int iSpace) try {
    C_Space& space = basTAVL::g_oSpaces(iSpace);
    if (!space.IsShowing || IsLotto(iSpace)) return;
    Paste(space.Image);
} catch (...) {
    ErrTail("basPosit!", "PosDrawSpaceBMP", iSpace);
}

void PosDrawCornerBMP(int iCorner) try {
    if (!Module().bOnScreen) return;
    C_Image& image = basTAVL::g_oCorners(iCorner).Image;
    if (IsFixedCorner(iCorner)) {
        PasteFate(image);
    } else {
        Paste(image);
    }
} catch (...) {
    ErrTail("basPosit!", "PosDrawCornerBMP", iCorner);
}

} // namespace basPosit
