// SPDX-License-Identifier: MIT
#include "board/basPositPaint.h"

#include "app/services/basErrLog.h"
#include "app/services/basPath.h"
#include "board/basPosit.h"
#include "document/basTAVL.h"
#include "platform/Folders.h"
#include "platform/Numbers.h"
#include "platform/Surface.h"

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

void Paste(C_Image& image) {
    if (image.FullPath().isEmpty()) {
        image.Let_BadPath(QString());
        return;
    }
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
    if (!IsFixedCorner(iCorner)) {
        Paste(image);
        return;
    }
    image.Let_FullPath(basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("fate.dat")));
} catch (...) {
    ErrTail("basPosit!", "PosDrawCornerBMP", iCorner);
}

} // namespace basPosit
