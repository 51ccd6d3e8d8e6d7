// SPDX-License-Identifier: MIT
#include "pictures/BoardThumbnail.h"

#include "pictures/OwnedPicture.h"
#include "pictures/PaintPicture.h"
#include "pictures/PicturePlaces.h"
#include "pictures/ThumbnailStore.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"

#include <algorithm>

namespace {

using Fault = TellOnce::Fault;

void PaintFitted(Surface& picDest, const Picture& picture, const QRectF& box) {
    const FittedBox fitted = FittedBox::Of(picture, box);
    picDest.PaintPicture(picture, fitted.left, fitted.top, fitted.width, fitted.height, RasterOp::SourceCopy);
}

// Pixels of the rendering that a box takes in place of the thumbnail; 0 where that one has enough of them.
int RenderingSide(const OwnedPicture& image, Surface& picDest, double w, double h) {
    const int thumbSide = ThumbnailStore::LongerSideOf(image.owner.kind);
    const int pixels = picDest.PicturePixels(std::min(w, h));
    if (pixels <= thumbSide) return ThumbnailStore::Instance().IsRefused(image.owner) ? thumbSide : 0;
    // Even, as the diamond is made of halves; no larger than any screen needs.
    constexpr int kLargest = 2048;
    return std::min((pixels + 1) / 2 * 2, kLargest);
}

// Nothing more is said where the picture itself was told to be bad.
void TellBadThumbnail(const OwnedPicture& image, const QString& sFile, const QString& sText) {
    TellOnce& told = image.Told();
    if (told.WasTold(Fault::Picture, image.ref.sPath)) {
        told.Note(Fault::Thumbnail, sFile);
    } else {
        told.Tell(Fault::Thumbnail, sFile, sText, vbExclamation);
    }
}

// False where the thumbnail does, or there is nothing.
bool PaintRendering(const OwnedPicture& image, Surface& picDest, const QRectF& box) {
    const int side = RenderingSide(image, picDest, box.width(), box.height());
    if (side == 0) return false;
    const Picture rendering = ThumbnailMaker::Current().RenderRotated(image, side);
    if (rendering.IsNull()) return false;
    PaintFitted(picDest, rendering, box);
    return true;
}

// One that is missing or bad is told.
void PaintThumbnailFile(const OwnedPicture& image, Surface& picDest, const QString& sFile, const QRectF& box) {
    if (!basCommon::DoesFileExist(sFile)) {
        TellBadThumbnail(image, sFile, MissingPictureText(sFile));
        return;
    }
    QString error;
    const Picture picture = LoadPicture(sFile, error);
    if (picture.IsNull()) {
        TellBadThumbnail(image, sFile, BadPictureText(sFile, error));
        return;
    }
    image.Told().Note(Fault::Thumbnail, QString());
    PaintFitted(picDest, picture, box);
}

} // namespace

void PaintThumbnailOf(const OwnedPicture& image, Surface& picDest, const QRectF& box) {
    if (image.owner.IsFate()) {
        PaintThumbnailFile(image, picDest, PicturePlaces::Fate(), box);
    } else if (!PaintRendering(image, picDest, box) && !ThumbnailStore::Instance().IsRefused(image.owner)) {
        PaintThumbnailFile(image, picDest, ThumbnailStore::PathOf(image.owner), box);
    }
}

void DrawOnBoard(const OwnedPicture& image, Surface& picDest, const QRectF& box) {
    const QString sThumb = ThumbnailStore::Instance().Fetch(image);
    const bool refused = ThumbnailStore::Instance().IsRefused(image.owner);
    if (sThumb.isEmpty() || !(refused || basCommon::DoesFileExist(sThumb))) return;
    if (!image.owner.IsOnBoard()) basErrLog::ErrUnexVal(QStringLiteral("SpaceOrCorner"), image.owner.KindName());
    PaintThumbnailOf(image, picDest, box);
}

bool PrepareForScreen(const OwnedPicture& image, Surface& picDest, double w, double h) {
    const PictureRef& ref = image.ref;
    // Metafiles are played where they are painted; the kit's own corner has no file of the user's.
    if (ref.IsEmpty() || !image.owner.IsPiece() || ref.IsMetafile() || image.owner.IsFate()) return true;
    const bool bThumb = ThumbnailStore::Instance().Prefetch(image);
    const int side = RenderingSide(image, picDest, w, h);
    const bool bRendering = side == 0 || PrefetchPicture(ref.sPath, LongerSideWanted(ref, side));
    return bThumb && bRendering;
}

bool DrawWhatIsReady(const OwnedPicture& image, Surface& picDest, const QRectF& box) {
    if (PrepareForScreen(image, picDest, box.width(), box.height())) {
        DrawOnBoard(image, picDest, box);
        return true;
    }
    const ThumbnailStore& store = ThumbnailStore::Instance();
    if (!store.IsStale(image) && !store.IsRefused(image.owner))
        PaintThumbnailFile(image, picDest, ThumbnailStore::PathOf(image.owner), box);
    return false;
}
