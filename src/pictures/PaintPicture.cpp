// SPDX-License-Identifier: MIT
#include "pictures/PaintPicture.h"

#include "drawing/basBMP.h"
#include "drawing/basBMP_metafile.h"
#include "pictures/AwaitedPictures.h"
#include "pictures/PictureMiddle.h"
#include "pictures/TellOnce.h"
#include "platform/files/Folders.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHolder.h"
#include "platform/text/NewLine.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/WorkFiles.h"

#include <QRect>

#include <algorithm>
#include <cmath>

namespace {

using Fault = TellOnce::Fault;

const QString kEmptyArea = QStringLiteral("The area will be left empty.");

// The copy of a line drawing in another colour; null when there can't be one.
Picture Recolored(const QString& sPath, Color lBackColor) {
    const QString temporary = WorkFiles::PathOf(QStringLiteral("TempImage.bmp"));
    if (!basBMP::ChangeMonoBmpBackColor(sPath, temporary, lBackColor)) return {};
    QString error;
    return LoadPicture(temporary, error);
}

double Magnification(int iZoom) {
    constexpr double kStepsPerDoubling = 10;
    return std::pow(2.0, iZoom / kStepsPerDoubling);
}

int LongerSide(Surface& surface, const QRectF& box) {
    return surface.PicturePixels(std::max(std::abs(box.width()), std::abs(box.height())));
}

// The picture; null, after one box per bad path, when there is none.
Picture LoadOrTell(const PictureRef& ref, TellOnce& told, int longerSideWanted) {
    const auto tell = [&](const QString& sText) {
        told.Tell(Fault::Picture, ref.sPath, sText, vbExclamation);
        return Picture();
    };
    if (!basCommon::DoesFileExist(ref.sPath)) return tell(MissingPictureText(ref.sPath));
    QString error;
    const Picture picture = LoadPicture(ref.sPath, error, longerSideWanted);
    return picture.IsNull() ? tell(BadPictureText(ref.sPath, error)) : picture;
}

bool ReloadOrTell(const QString& sPath, PictureHolder& picOriginal, int longerSideWanted) {
    QString error;
    picOriginal.Picture = LoadPicture(sPath, error, longerSideWanted);
    if (!picOriginal.Picture.IsNull()) return true;
    // The sentence in the middle was never finished, and people search for it as it stands.
    const QString sText = QStringLiteral("Unable to LoadPicture for file named '") + sPath + u'\'' + kNewLine +
                          QStringLiteral("Area will be left blank. & vbcrlf & vbcrlf") +
                          QStringLiteral("The following error was reported: ") + error;
    basMsgQueue::MsgQueue_Post(sText, vbOKOnly);
    basErrLog::ErrLogToFile(sText, true);
    return false;
}

void PaintPart(const PictureRef& ref, Surface& objDest, const Picture& picture, const QRectF& box, Color lBackColor) {
    const ZoomedSource source =
        ZoomedSource::Of(picture.Width(), picture.Height(), ref.iZoom, ref.iXCenter, ref.iYCenter);
    const bool monochrome = basBMP::IsMonochromeBMP(ref.sPath);
    // The recoloured copy is made and the drawing itself painted all the same: kept on purpose.
    if (monochrome && !lBackColor.IsNone()) Recolored(ref.sPath, lBackColor);
    objDest.PaintPicture(picture, box.left(), box.top(), box.width(), box.height(),
                         QRectF(source.xSrc, source.ySrc, source.iSide, source.iSide),
                         monochrome ? RasterOp::SourceAnd : RasterOp::SourceCopy);
}

} // namespace

QString InvalidPictureText(const QString& sName) {
    return QStringLiteral("The file named '") + sName + QStringLiteral("' is invalid or does not exist.") + kNewLine +
           QStringLiteral("Area will be left empty.");
}

QString MissingPictureText(const QString& sName) {
    return QStringLiteral("The file named '") + sName + QStringLiteral("' was not found on the disk.") + kNewLine +
           kEmptyArea;
}

QString BadPictureText(const QString& sName, const QString& sSystemText) {
    const QString gap = kNewLine + kNewLine;
    return QStringLiteral("The image named '") + sName + QStringLiteral("' could not be loaded.") + gap +
           QStringLiteral("The following errror was reported:") + gap + sSystemText + gap + kEmptyArea;
}

int LongerSideWanted(const PictureRef& ref, double boxPixels) {
    constexpr double kAnyMore = 1 << 16;
    return CLng(std::min(Magnification(ref.iZoom) * boxPixels, kAnyMore));
}

int ZoomedSource::SideOf(int lW, int lH, int iZoom) {
    // A picture zoomed in without end still shows a pixel.
    return std::max(CLng(std::max(lW, lH) / Magnification(iZoom)), 1);
}

ZoomedSource ZoomedSource::Of(int lW, int lH, int iZoom, double fXCenter, double fYCenter) {
    const int iSide = SideOf(lW, lH, iZoom);
    return {CLng(fXCenter - iSide / 2.0), CLng(fYCenter - iSide / 2.0), iSide};
}

FittedBox FittedBox::Of(const Picture& picture, const QRectF& box) {
    const double rX = box.width() / picture.Width();
    const double rY = box.height() / picture.Height();
    if (rX >= rY) {
        const double fitted = CLng(box.width() * rY / rX);
        return {box.left() + CLng((box.width() - fitted) / 2), box.top(), fitted, box.height()};
    }
    const double fitted = CLng(box.height() * rX / rY);
    return {box.left(), box.top() + CLng((box.height() - fitted) / 2), box.width(), fitted};
}

void PaintCentered(const PictureRef& ref, TellOnce& told, Surface& picDest, const QRectF& box, Color lBackColor) {
    if (ref.IsEmpty()) return;
    const Picture picture = LoadOrTell(ref, told, LongerSide(picDest, box));
    if (picture.IsNull()) return;
    const FittedBox fitted = FittedBox::Of(picture, box);
    const auto paint = [&](const Picture& source, RasterOp operation) {
        picDest.PaintPicture(source, fitted.left, fitted.top, fitted.width, fitted.height, operation);
    };
    if (!basBMP::IsMonochromeBMP(ref.sPath)) {
        paint(picture, RasterOp::SourceCopy);
    } else if (lBackColor.IsNone()) {
        paint(picture, RasterOp::SourceAnd);
    } else {
        const Picture recolored = Recolored(ref.sPath, lBackColor);
        paint(recolored.IsNull() ? picture : recolored, RasterOp::SourceCopy);
    }
}

bool PaintZoomed(const PictureRef& ref, TellOnce& told, Surface& objDest, PictureHolder& picOriginal,
                 ScaleModeKind ScaleMode, const QRectF& box, Color lBackColor) {
    picOriginal.Picture = Picture();
    const int wanted = LongerSideWanted(ref, LongerSide(objDest, box));
    if (AwaitedPictures::LeavesOut(ref.sPath, wanted)) return false;
    if (LoadOrTell(ref, told, wanted).IsNull() || !ReloadOrTell(ref.sPath, picOriginal, wanted)) return false;

    const double perPixel = ScaleMode == ScaleModeKind::Twips ? kTwipsPerPixel : 1;
    const int lW = CLng(picOriginal.Width(ScaleMode) / perPixel);
    const int lH = CLng(picOriginal.Height(ScaleMode) / perPixel);
    PictureMiddle::NoteShown(ref.sPath, lW, lH);
    try {
        PaintPart(PictureMiddle::CenteredIn(ref, lW, lH), objDest, picOriginal.Picture, box, lBackColor);
    } catch (const TavloraError& error) {
        // The log has it; the area stays as far as it came.
        basErrLog::ErrLogToFile(error.Description(), true);
        return false;
    }
    return true;
}

bool DrawMetafile(const PictureRef& ref, TellOnce& told, DeviceContext& hDC, const QRect& box) {
    // One that was told before is tried all the same: it may be good by now.
    QString vBadPath = told.LastTold(told.WasTold(Fault::Metafile, ref.sPath) ? Fault::Metafile : Fault::Picture);
    const bool played = basBMP::BMP_DrawWMF(hDC, ref.sPath, vBadPath, box.x(), box.y(), box.width(), box.height());
    told.Note(Fault::Metafile, played ? QString() : ref.sPath);
    return played;
}

void PrefetchForPaper(const PictureRef& ref, Surface& oPrinter, double side) {
    if (ref.IsEmpty() || ref.IsMetafile()) return;
    PrefetchPicture(ref.sPath, LongerSideWanted(ref, oPrinter.PicturePixels(side)));
}
