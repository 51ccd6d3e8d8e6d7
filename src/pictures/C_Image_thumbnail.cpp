// SPDX-License-Identifier: MIT
#include "pictures/C_Image.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/BoardFacts.h"
#include "services/Desktop.h"

#include <QHash>

#include <cmath>

namespace {

using Fault = TellOnce::Fault;

const QString kNewLine = QStringLiteral("\r\n");
constexpr int kThumbSide = 100;

ThumbnailMaker::Creator& Creator() {
    static ThumbnailMaker::Creator creator = nullptr;
    return creator;
}

ThumbnailMaker& Maker() {
    basErrLog::ErrAssert(Creator() != nullptr, QStringLiteral("Nobody makes thumbnails"));
    return Creator()();
}

// What each thumbnail made in this run was made of, by its path. Two images can belong to one owner, as an
// editor's copy does, and an owner can change hands: the file's date alone doesn't prove it theirs. One that
// the disk refused isn't tried again; its picture is painted without a file.
struct Origin {
    QString sPath;
    QString sPart;
    bool bOnDisk = false;
};

QHash<QString, Origin>& MadeOf() {
    static QHash<QString, Origin> origins;
    return origins;
}

} // namespace

ThumbnailMaker::Creator ThumbnailMaker::Install(ThumbnailMaker::Creator creator) {
    return std::exchange(::Creator(), creator);
}

int C_Image::LongerThumbSide() const {
    constexpr int kTokenSide = 200;
    constexpr int kMoneyHeight = 190;
    if (m_owner.kind == PictureOwner::Kind::Token) return kTokenSide;
    return m_owner.kind == PictureOwner::Kind::Money ? kMoneyHeight : kThumbSide;
}

QString C_Image::PartShown() const {
    return QStringLiteral("%1 %2 %3").arg(m_ref.iZoom).arg(m_ref.iXCenter).arg(m_ref.iYCenter);
}

bool C_Image::NeedsThumbnail() const {
    const QString sThumb = Thumbname();
    const auto origin = MadeOf().constFind(sThumb);
    if (origin != MadeOf().constEnd()) {
        if (origin->sPath != m_ref.sPath || origin->sPart != PartShown()) return true;
        if (!origin->bOnDisk) return false;
    }
    const Files::Stamp picture = Files::StampOf(Files::InDiskSpelling(m_ref.sPath));
    const Files::Stamp thumbnail = Files::StampOf(sThumb);
    return thumbnail == Files::Stamp() || thumbnail.modifiedMs < picture.modifiedMs;
}

bool C_Image::IsThumbnailRefused() const {
    const auto origin = MadeOf().constFind(Thumbname());
    return origin != MadeOf().constEnd() && !origin->bOnDisk;
}

void C_Image::DistrustThumbnail(const QString& sThumb) { MadeOf().insert(sThumb, Origin()); }

bool C_Image::MakeThumbnail() try {
    if (m_owner.kind == PictureOwner::Kind::Space) {
        Maker().CreateThumbRotatedTo90(*this);
    } else if (m_owner.kind == PictureOwner::Kind::Corner) {
        Maker().CreateThumbRotatedTo45(*this);
    } else {
        Maker().CreateThumbElliptical(*this, false);
    }
    return true;
} catch (const TavloraError& error) {
    if (error.Number() != ErrNumber::kFileAccess) throw;
    // A folder that takes no file mustn't keep the board from being painted; the log has the reason.
    basErrLog::ErrDismiss(error.Description());
    return false;
}

QString C_Image::GetThumbnail(bool bGrayOnly) try {
    if (m_ref.sPath.isEmpty()) return {};
    if (!basCommon::DoesFileExist(m_ref.sPath)) {
        if (BadPath().compare(m_ref.sPath, Qt::CaseInsensitive) == 0) return {};
        Told().Tell(Fault::Picture, m_ref.sPath,
                    QStringLiteral("The file named '") + m_ref.sPath + QStringLiteral("' was not found.") + kNewLine +
                        QStringLiteral("The image will not be drawn."),
                    vbOKOnly);
        return m_ref.sPath;
    }
    const QString sThumb = Thumbname();
    if (!m_owner.IsPiece()) basErrLog::ErrUnexVal(QStringLiteral("SpaceOrCorner"), SpaceOrCorner());
    if (!NeedsThumbnail()) return sThumb;
    const bool bOnDisk = MakeThumbnail();
    // Making it may have centred the picture: the part is that of afterwards.
    MadeOf().insert(sThumb, {m_ref.sPath, PartShown(), bOnDisk});
    return sThumb;
} catch (...) {
    ErrTail("C_Image!", "GetThumbnail", bGrayOnly);
}

void C_Image::PrepareThumbnail() const try {
    if (m_ref.sPath.isEmpty() || !m_owner.IsPiece() || IsWMF() || !NeedsThumbnail()) return;
    PrefetchPicture(m_ref.sPath, LongerSideWanted(LongerThumbSide()));
} catch (...) {
    ErrTail("C_Image!", "PrepareThumbnail");
}

void C_Image::PrepareForPaper(Surface& oPrinter, double side) const try {
    if (m_ref.sPath.isEmpty() || IsWMF()) return;
    PrefetchPicture(m_ref.sPath, LongerSideWanted(oPrinter.PicturePixels(side)));
} catch (...) {
    ErrTail("C_Image!", "PrepareForPaper", oPrinter, side);
}

void C_Image::DrawBitmapToScreen(Surface& picDest, double x, double y, double w, double h) try {
    if (m_ref.sPath.isEmpty()) return;
    const QString sThumb = GetThumbnail(false);
    if (sThumb.isEmpty() || !(IsThumbnailRefused() || basCommon::DoesFileExist(sThumb))) return;
    if (m_owner.kind == PictureOwner::Kind::Space || m_owner.kind == PictureOwner::Kind::Corner) {
        PaintThumbnail(picDest, x, y, x + w, y + h);
    } else if (m_owner.kind == PictureOwner::Kind::Token || m_owner.kind == PictureOwner::Kind::Money) {
        basErrLog::ErrUnexVal(QStringLiteral("SpaceOrCorner"), SpaceOrCorner());
    }
} catch (...) {
    ErrTail("C_Image!", "DrawBitmapToScreen", picDest, x, y, w, h);
}

// Where the thumbnail's pixels are too few: zoomed in, on a dense screen, in a large picture of the board.
int C_Image::RenderingSide(Surface& picDest, double w, double h) const {
    const int pixels = picDest.PicturePixels(std::min(w, h));
    if (pixels <= kThumbSide) return IsThumbnailRefused() ? kThumbSide : 0;
    // Even, as the diamond is made of halves; no larger than any screen needs.
    constexpr int kLargest = 2048;
    return std::min((pixels + 1) / 2 * 2, kLargest);
}

bool C_Image::PaintRendering(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd) {
    const int side = RenderingSide(picDest, xEnd - xStart, yEnd - yStart);
    if (side == 0) return false;
    const Picture rendering = Maker().RenderRotated(*this, side);
    if (rendering.IsNull()) return false;
    const FittedBox box = FittedBox::Of(rendering, xStart, yStart, xEnd, yEnd);
    picDest.PaintPicture(rendering, box.left, box.top, box.width, box.height, RasterOp::SourceCopy);
    return true;
}

void C_Image::PaintThumbnail(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd) try {
    const bool fate = m_owner.IsFate();
    const QString sFile =
        fate ? basCommon::JoinPath(Folders::ProgramDirectory(), QString::fromLatin1(BoardFacts::kFatePicture))
             : Thumbname();
    if (!fate && (PaintRendering(picDest, xStart, yStart, xEnd, yEnd) || IsThumbnailRefused())) return;
    if (!basCommon::DoesFileExist(sFile)) {
        TellBadThumbnail(sFile, MissingText(sFile));
        return;
    }
    PaintThumbnailFile(picDest, sFile, xStart, yStart, xEnd, yEnd);
} catch (...) {
    ErrTail("C_Image!", "PaintThumbnail", picDest, xStart, yStart, xEnd, yEnd);
}

// Nothing more is said where the picture itself was told to be bad.
void C_Image::TellBadThumbnail(const QString& sFile, const QString& sText) const {
    if (BadPath() == m_ref.sPath) {
        Told().Note(Fault::Thumbnail, sFile);
    } else {
        Told().Tell(Fault::Thumbnail, sFile, sText, vbExclamation);
    }
}

void C_Image::PaintThumbnailFile(Surface& picDest, const QString& sFile, double xStart, double yStart, double xEnd,
                                 double yEnd) {
    QString error;
    const Picture picture = LoadPicture(sFile, error);
    if (picture.IsNull()) {
        TellBadThumbnail(sFile, LoadFailureText(sFile, error));
        return;
    }
    Told().Note(Fault::Thumbnail, QString());
    const FittedBox box = FittedBox::Of(picture, xStart, yStart, xEnd, yEnd);
    picDest.PaintPicture(picture, box.left, box.top, box.width, box.height, RasterOp::SourceCopy);
}

bool C_Image::PrepareForScreen(Surface& picDest, double w, double h) const try {
    // Metafiles are played where they are painted; the kit's own corner has no file of the user's.
    if (m_ref.sPath.isEmpty() || !m_owner.IsPiece() || IsWMF() || m_owner.IsFate()) return true;
    const bool bThumb = !NeedsThumbnail() || PrefetchPicture(m_ref.sPath, LongerSideWanted(LongerThumbSide()));
    const int side = RenderingSide(picDest, w, h);
    const bool bRendering = side == 0 || PrefetchPicture(m_ref.sPath, LongerSideWanted(side));
    return bThumb && bRendering;
} catch (...) {
    ErrTail("C_Image!", "PrepareForScreen", picDest, w, h);
}

bool C_Image::DrawWhatIsReady(Surface& picDest, double x, double y, double w, double h) try {
    if (PrepareForScreen(picDest, w, h)) {
        DrawBitmapToScreen(picDest, x, y, w, h);
        return true;
    }
    if (!NeedsThumbnail() && !IsThumbnailRefused()) PaintThumbnailFile(picDest, Thumbname(), x, y, x + w, y + h);
    return false;
} catch (...) {
    ErrTail("C_Image!", "DrawWhatIsReady", picDest, x, y, w, h);
}
