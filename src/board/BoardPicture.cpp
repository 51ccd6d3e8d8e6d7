// SPDX-License-Identifier: MIT
#include "board/BoardPicture.h"

#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "platform/paint/RecordingForm.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/SavePicture.h"
#include "platform/printing/SaveDrawing.h"

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

void PaintOn(Surface& picBoard, int lSize) {
    PosInit();
    const OnSurface onSurface(picBoard);
    PosSetScale(float(lSize));
    PosSetWidth(lSize);
    PosSetOffsetX(0);
    PosSetOffsetY(0);
    PosDrawAll();
}

// As large as the board of a boxed game is drawn on paper.
constexpr double kInches = 10;

std::shared_ptr<const Recording> Drawing() {
    constexpr int kUnits = 960;
    RecordingForm picBoard(QSize(kUnits, kUnits), kUnits / kInches);
    PaintOn(picBoard, kUnits);
    return picBoard.Take();
}

bool EndsIn(const QString& sPath, const char* sEnding) {
    return sPath.endsWith(QLatin1String(sEnding), Qt::CaseInsensitive);
}

} // namespace

Picture BoardPicture(int lSize, double dDevicePixelRatio) {
    ScratchForm picBoard(QSize(lSize, lSize), dDevicePixelRatio);
    PaintOn(picBoard, lSize);
    return Picture(picBoard.Image());
}

bool SaveBoard(const QString& sPath, int lSize, const QString& sTitle, QString& sError) {
    if (EndsIn(sPath, ".pdf")) return SaveAsPdf(*Drawing(), kInches, sTitle, sPath, sError);
    return SavePicture(BoardPicture(lSize), sPath, sError);
}

} // namespace basPosit
