// SPDX-License-Identifier: MIT
#include "pictures/C_Image.h"

#include "drawing/basBMP.h"
#include "drawing/basBMP_metafile.h"
#include "platform/files/Folders.h"
#include "platform/paint/Units.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHolder.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/basPath.h"
#include "services/Desktop.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Fault = TellOnce::Fault;

const QString kNewLine = QStringLiteral("\r\n");
const QString kEmptyArea = QStringLiteral("The area will be left empty.");

// The copy of a line drawing in another colour; null when there can't be one.
Picture Recolored(const QString& sPath, Color lBackColor) {
    const QString temporary = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("TempImage.bmp"));
    if (!basBMP::ChangeMonoBmpBackColor(sPath, temporary, lBackColor)) return {};
    QString error;
    return LoadPicture(temporary, error);
}

double Magnification(int iZoom) {
    constexpr double kStepsPerDoubling = 10;
    return std::pow(2.0, iZoom / kStepsPerDoubling);
}

// The middle of a side of a picture, or the last place that a centre can hold where the side is longer than that.
float MiddleOf(int side) {
    constexpr double kLast = std::numeric_limits<qint16>::max();
    return float(std::min(side / 2.0, kLast));
}

int LongerSide(Surface& surface, double width, double height) {
    return surface.PicturePixels(std::max(std::abs(width), std::abs(height)));
}

} // namespace

QString C_Image::MissingText(const QString& sName) {
    return QStringLiteral("The file named '") + sName + QStringLiteral("' was not found on the disk.") + kNewLine +
           kEmptyArea;
}

QString C_Image::LoadFailureText(const QString& sName, const QString& sSystemText) {
    const QString gap = kNewLine + kNewLine;
    return QStringLiteral("The image named '") + sName + QStringLiteral("' could not be loaded.") + gap +
           QStringLiteral("The following errror was reported:") + gap + sSystemText + gap + kEmptyArea;
}

int C_Image::LongerSideWanted(double boxPixels) const {
    constexpr double kAnyMore = 1 << 16;
    return CLng(std::min(Magnification(m_ref.iZoom) * boxPixels, kAnyMore));
}

ZoomedSource ZoomedSource::Of(int lW, int lH, int iZoom, double fXCenter, double fYCenter) {
    const double dblZoom = Magnification(iZoom);
    // A picture zoomed in without end still shows a pixel.
    const int iSide = std::max(CLng(std::max(lW, lH) / dblZoom), 1);
    return {CLng(fXCenter - iSide / 2.0), CLng(fYCenter - iSide / 2.0), iSide};
}

FittedBox FittedBox::Of(const Picture& picture, double xStart, double yStart, double xEnd, double yEnd) {
    const double width = xEnd - xStart;
    const double height = yEnd - yStart;
    const double rX = width / picture.Width();
    const double rY = height / picture.Height();
    if (rX >= rY) {
        const double fitted = CLng(width * rY / rX);
        return {xStart + CLng((width - fitted) / 2), yStart, fitted, height};
    }
    const double fitted = CLng(height * rX / rY);
    return {xStart, yStart + CLng((height - fitted) / 2), width, fitted};
}

Picture C_Image::LoadOrTell(int longerSideWanted) {
    const auto tell = [this](const QString& sText) {
        Told().Tell(Fault::Picture, m_ref.sPath, sText, vbExclamation);
        return Picture();
    };
    if (!basCommon::DoesFileExist(m_ref.sPath)) return tell(MissingText(m_ref.sPath));
    QString error;
    const Picture picture = LoadPicture(m_ref.sPath, error, longerSideWanted);
    return picture.IsNull() ? tell(LoadFailureText(m_ref.sPath, error)) : picture;
}

void C_Image::PaintPictureCentered(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd,
                                   Color lBackColor) try {
    if (m_ref.sPath.isEmpty()) return;
    const Picture picture = LoadOrTell(LongerSide(picDest, xEnd - xStart, yEnd - yStart));
    if (picture.IsNull()) return;
    const FittedBox box = FittedBox::Of(picture, xStart, yStart, xEnd, yEnd);
    const auto paint = [&](const Picture& source, RasterOp operation) {
        picDest.PaintPicture(source, box.left, box.top, box.width, box.height, operation);
    };
    if (!basBMP::IsMonochromeBMP(m_ref.sPath)) {
        paint(picture, RasterOp::SourceCopy);
    } else if (lBackColor.IsNone()) {
        paint(picture, RasterOp::SourceAnd);
    } else {
        const Picture recolored = Recolored(m_ref.sPath, lBackColor);
        paint(recolored.IsNull() ? picture : recolored, RasterOp::SourceCopy);
    }
} catch (...) {
    ErrTail("C_Image!", "PaintPictureCentered", picDest, xStart, yStart, xEnd, yEnd, lBackColor);
}

bool C_Image::ReloadOrTell(PictureHolder& picOriginal, int longerSideWanted) const {
    QString error;
    picOriginal.Picture = LoadPicture(m_ref.sPath, error, longerSideWanted);
    if (!picOriginal.Picture.IsNull()) return true;
    // The sentence in the middle was never finished, and people search for it as it stands.
    const QString sText = QStringLiteral("Unable to LoadPicture for file named '") + m_ref.sPath + u'\'' + kNewLine +
                          QStringLiteral("Area will be left blank. & vbcrlf & vbcrlf") +
                          QStringLiteral("The following error was reported: ") + error;
    basMsgQueue::MsgQueue_Post(sText, vbOKOnly);
    basErrLog::ErrLogToFile(sText, true);
    return false;
}

void C_Image::PaintPart(Surface& objDest, const Picture& picture, double xStart, double yStart, double xEnd,
                        double yEnd, Color lBackColor) const {
    const ZoomedSource source =
        ZoomedSource::Of(picture.Width(), picture.Height(), m_ref.iZoom, m_ref.iXCenter, m_ref.iYCenter);
    const bool monochrome = basBMP::IsMonochromeBMP(m_ref.sPath);
    // The recoloured copy is made and the drawing itself painted all the same: kept on purpose.
    if (monochrome && !lBackColor.IsNone()) Recolored(m_ref.sPath, lBackColor);
    objDest.PaintPicture(picture, xStart, yStart, xEnd - xStart, yEnd - yStart,
                         QRectF(source.xSrc, source.ySrc, source.iSide, source.iSide),
                         monochrome ? RasterOp::SourceAnd : RasterOp::SourceCopy);
}

bool C_Image::PaintPictureZoomed(Surface& objDest, PictureHolder& picOriginal, ScaleModeKind ScaleMode, double xStart,
                                 double yStart, double xEnd, double yEnd, Color lBackColor) try {
    picOriginal.Picture = Picture();
    const int wanted = LongerSideWanted(LongerSide(objDest, xEnd - xStart, yEnd - yStart));
    if (LoadOrTell(wanted).IsNull() || !ReloadOrTell(picOriginal, wanted)) return false;

    const bool twips = ScaleMode == ScaleModeKind::Twips;
    const double perPixel = twips ? kTwipsPerPixel : 1;
    const int lW = CLng(picOriginal.Width(ScaleMode) / perPixel);
    const int lH = CLng(picOriginal.Height(ScaleMode) / perPixel);
    if (m_ref.iXCenter == 0 && m_ref.iYCenter == 0) {
        Let_XCenter(MiddleOf(lW));
        Let_YCenter(MiddleOf(lH));
    }
    try {
        PaintPart(objDest, picOriginal.Picture, xStart, yStart, xEnd, yEnd, lBackColor);
    } catch (const TavloraError& error) {
        // The log has it; the area stays as far as it came.
        basErrLog::ErrLogToFile(error.Description(), true);
        return false;
    }
    return true;
} catch (...) {
    ErrTail("C_Image!", "PaintPictureZoomed", objDest, picOriginal, ScaleMode, xStart, yStart, xEnd, yEnd, lBackColor);
}

bool C_Image::DrawMetafile(DeviceContext& hDC, int x, int y, int w, int h) try {
    // One that was told before is tried all the same: it may be good by now.
    QString vBadPath = Told().WasTold(Fault::Metafile, m_ref.sPath) ? m_ref.sPath : BadPath();
    const bool played = basBMP::BMP_DrawWMF(hDC, m_ref.sPath, vBadPath, x, y, w, h);
    Told().Note(Fault::Metafile, played ? QString() : m_ref.sPath);
    return played;
} catch (...) {
    ErrTail("C_Image!", "DrawMetafile", hDC, x, y, w, h);
}
