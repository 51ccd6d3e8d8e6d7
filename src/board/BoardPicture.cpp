// SPDX-License-Identifier: MIT
#include "board/BoardPicture.h"

#include "board/basPosit.h"
#include "board/basPositPaint.h"
#include "document/basTAVL.h"
#include "platform/paint/RecordingForm.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/SavePicture.h"
#include "platform/printing/SaveDrawing.h"
#include "platform/text/Numbers.h"

namespace basPosit {
namespace {

// The drawing layer and the board hold on to a surface only as long as it lives, even if painting fails. A window that
// shows the board goes on where it was scrolled to.
class OnSurface {
public:
    explicit OnSurface(Surface& picBoard) : m_iOffsetX(GetOffsetX()), m_iOffsetY(GetOffsetY()) {
        PosSethDC(&picBoard.hDC());
        PosSetPicture(&picBoard);
    }
    ~OnSurface() {
        PosSetPicture(nullptr);
        PosSethDC(nullptr);
        PosSetOffsetX(m_iOffsetX);
        PosSetOffsetY(m_iOffsetY);
    }
    OnSurface(const OnSurface&) = delete;
    OnSurface& operator=(const OnSurface&) = delete;

private:
    const int m_iOffsetX;
    const int m_iOffsetY;
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

// In force while it lives. What is turned for the board is filled beyond the picture with the board's face.
class ForPaper {
public:
    explicit ForPaper(const PaperLook& look) : m_face(basTAVL::g_lMagicColor()) {
        PosSetPaper(look);
        if (look.bSavesInk) basTAVL::g_lMagicColor() = Color::White();
    }
    ~ForPaper() {
        PosSetPaper(std::nullopt);
        basTAVL::g_lMagicColor() = m_face;
    }
    ForPaper(const ForPaper&) = delete;
    ForPaper& operator=(const ForPaper&) = delete;

private:
    Color m_face;
};

// While the board's own face is in force: thumbnails are files, which the screen shows later.
void MakeThumbnails() {
    for (int i = 0; i < kSpacesOnBoard; ++i)
        basTAVL::g_oSpaces(i).Image.GetThumbnail(false);
    for (int i = 0; i < kCornersOnBoard; ++i)
        basTAVL::g_oCorners(i).Image.GetThumbnail(false);
}

} // namespace

std::shared_ptr<const Recording> BoardOnPaper(double dblInches, QSizeF cardInches, bool bSavesInk) {
    constexpr double kUnitsPerInch = 600;
    const int units = CLng(dblInches * kUnitsPerInch);
    if (bSavesInk) MakeThumbnails();
    const ForPaper forPaper({float(cardInches.width() / dblInches), float(cardInches.height() / dblInches), bSavesInk});
    RecordingForm picBoard(QSize(units, units), kUnitsPerInch);
    PaintOn(picBoard, units);
    return picBoard.Take();
}

Picture BoardPicture(int lSize, double dDevicePixelRatio) {
    ScratchForm picBoard(QSize(lSize, lSize), dDevicePixelRatio);
    PaintOn(picBoard, lSize);
    return Picture(picBoard.Image());
}

bool SaveBoard(const QString& sPath, int lSize, const QString& sTitle, QString& sError) {
    if (EndsIn(sPath, ".pdf") || EndsIn(sPath, ".svg"))
        return SaveDrawing(*Drawing(), QSizeF(kInches, kInches), 0, sTitle, sPath, sError);
    return SavePicture(BoardPicture(lSize), sPath, sError);
}

} // namespace basPosit
