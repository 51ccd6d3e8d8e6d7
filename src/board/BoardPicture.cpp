// SPDX-License-Identifier: MIT
#include "board/BoardPicture.h"

#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "platform/paint/Surface.h"

namespace basPosit {
namespace {

// The drawing layer and the board hold on to a surface only as long as it lives, even if painting fails.
class OnSurface {
public:
    explicit OnSurface(Surface& picBoard) {
        PosSethDC(&picBoard.hDC());
        PosSetPicture(&picBoard);
    }
    ~OnSurface() {
        PosSetPicture(nullptr);
        PosSethDC(nullptr);
    }
    OnSurface(const OnSurface&) = delete;
    OnSurface& operator=(const OnSurface&) = delete;
};

} // namespace

Picture BoardPicture(int lSize, double dDevicePixelRatio) {
    ScratchForm picBoard(QSize(lSize, lSize), dDevicePixelRatio);
    PosInit();
    const OnSurface onSurface(picBoard);
    PosSetScale(float(lSize));
    PosSetWidth(lSize);
    PosSetOffsetX(0);
    PosSetOffsetY(0);
    PosDrawAll();
    return Picture(picBoard.Image());
}

} // namespace basPosit
