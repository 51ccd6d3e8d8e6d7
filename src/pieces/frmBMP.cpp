// SPDX-License-Identifier: MIT
#include "pieces/frmBMP.h"

#include "document/basTAVL.h"
#include "drawing/basBMP.h"
#include "drawing/clsBMP.h"
#include "pictures/PaintPicture.h"
#include "pictures/ThumbnailFile.h"
#include "pieces/frmBMP_turning.h"
#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/paint/Surface.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/FileRefused.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

constexpr int kFirstCornerOrient = 4;

// A line drawing's paper takes the colour of the board.
void ReplaceWhite(Pixels& pixels, QRgb by) {
    for (int y = 0; y < pixels.Height(); ++y) {
        const std::span<QRgb> row = pixels.WritableRow(y);
        std::replace(row.begin(), row.end(), qRgb(255, 255, 255), by);
    }
}

bool IsThereOrTold(const OwnedPicture& oImage) {
    const QString& path = oImage.ref.sPath;
    if (basCommon::DoesFileExist(path)) return true;
    oImage.Told().Tell(TellOnce::Fault::Picture, path, InvalidPictureText(path), vbExclamation);
    return false;
}

QRgb AsRgb(Color color) { return qRgb(color.Red(), color.Green(), color.Blue()); }

} // namespace

frmBMP& frmBMP::Instance() {
    static frmBMP form;
    return form;
}

void frmBMP::InstallAsThumbnailMaker() {
    ThumbnailMaker::Install([]() -> ThumbnailMaker& { return Instance(); });
}

Pixels frmBMP::Drawn(const OwnedPicture& oImage, QSize size, Color backColor) {
    ScratchForm form(size);
    form.SetBackColor(backColor);
    if (oImage.ref.IsMetafile()) {
        DrawMetafile(oImage.ref, oImage.Told(), form.hDC(), QRect(QPoint(), size));
        return Pixels(form.Image());
    }
    PaintZoomed(oImage.ref, oImage.Told(), form, picOriginal, ScaleModeKind::Pixels, QRectF(QPointF(), size),
                Color::None());
    picOriginal.Picture = Picture();
    return Pixels(form.Image());
}

Pixels frmBMP::DrawnSquare(const OwnedPicture& oImage, int lSide) {
    Pixels square = Drawn(oImage, QSize(lSide, lSide), basTAVL::g_lMagicColor());
    if (basBMP::IsMonochromeBMP(oImage.ref.sPath)) ReplaceWhite(square, AsRgb(basTAVL::g_lMagicColor()));
    return square;
}

Pixels frmBMP::Rotated(const OwnedPicture& oImage, int lSide) {
    const int orient = oImage.owner.Orient();
    const Pixels square = DrawnSquare(oImage, lSide);
    return orient < kFirstCornerOrient
               ? Turning::ForSide(square, orient)
               : Turning::ForCorner(square, orient - kFirstCornerOrient, basTAVL::g_lMagicColor());
}

void frmBMP::CreateThumbRotatedTo90(const OwnedPicture& oImage) try {
    if (!IsThereOrTold(oImage)) return;
    const Pixels square = DrawnSquare(oImage, ThumbnailStore::LongerSideOf(oImage.owner.kind));
    WriteThumb(ThumbnailStore::PathOf(oImage.owner), Turning::ForSide(square, oImage.owner.Orient()));
} catch (...) {
    ErrTail("frmBMP!", "CreateThumbRotatedTo90", oImage);
}

void frmBMP::CreateThumbRotatedTo45(const OwnedPicture& oImage) try {
    if (!IsThereOrTold(oImage)) return;
    const Pixels square = DrawnSquare(oImage, ThumbnailStore::LongerSideOf(oImage.owner.kind));
    WriteThumb(ThumbnailStore::PathOf(oImage.owner),
               Turning::ForCorner(square, oImage.owner.Orient() - kFirstCornerOrient, basTAVL::g_lMagicColor()));
} catch (...) {
    ErrTail("frmBMP!", "CreateThumbRotatedTo45", oImage);
}

void frmBMP::CreateThumbElliptical(const OwnedPicture& oImage, bool bGray) try {
    if (!IsThereOrTold(oImage)) return;
    const PictureOwner& owner = oImage.owner;
    const bool money = owner.kind == PictureOwner::Kind::Money;
    const Color back = money ? basTAVL::g_oMoney(owner.iNumber).BackColor : basTAVL::g_lMagicColor();
    const Pixels drawn = Drawn(oImage, ThumbnailStore::SizeOf(owner.kind), back);
    WriteThumb(ThumbnailStore::PathOf(oImage.owner), clsBMP::CutElliptical(drawn, bGray));
} catch (...) {
    ErrTail("frmBMP!", "CreateThumbElliptical", bGray);
}

Picture frmBMP::RenderRotated(const OwnedPicture& oImage, int lSide) {
    const Files::Stamp stamp = Files::StampOf(Files::InDiskSpelling(oImage.ref.sPath));
    if (stamp == Files::Stamp()) return {};
    const auto kept = std::find_if(m_renderings.begin(), m_renderings.end(), [&](const Rendering& rendering) {
        return rendering.picture == oImage.ref && rendering.stamp == stamp &&
               rendering.iOrient == oImage.owner.Orient() && rendering.beyond == basTAVL::g_lMagicColor() &&
               rendering.pixels.Width() == lSide;
    });
    if (kept != m_renderings.end()) {
        m_renderings.splice(m_renderings.begin(), m_renderings, kept);
    } else {
        m_renderings.push_front(
            {oImage.ref, stamp, oImage.owner.Orient(), basTAVL::g_lMagicColor(), Rotated(oImage, lSide)});
        DropOldRenderings();
    }
    return m_renderings.front().pixels.AsPicture();
}

// Room for the 32 pictures of a board as large as a screen; at least the newest stays.
void frmBMP::DropOldRenderings() {
    constexpr qint64 kMaxBytes = qint64(48) << 20;
    qint64 bytes = 0;
    for (auto rendering = m_renderings.begin(); rendering != m_renderings.end();) {
        bytes += rendering->pixels.SizeInBytes();
        const bool drops = bytes > kMaxBytes && rendering != m_renderings.begin();
        rendering = drops ? m_renderings.erase(rendering) : std::next(rendering);
    }
}

// What the user keeps under the name of a thumbnail stays, as where the disk refuses the file.
void frmBMP::DeleteThumb(const QString& sThumb, QSize size) {
    QString error;
    if (!ThumbnailFile::Remove(sThumb, size, error)) ErrRaiseRefused(sThumb, error);
}

void frmBMP::WriteFileHead(BinaryFile& file, int lWidth, int lHeight) {
    basBMP::WriteFileHead(file, ThumbnailFile::FileHeadOf({lWidth, lHeight}));
}

void frmBMP::WriteInfoHead(BinaryFile& file, int lWidth, int lHeight) {
    basBMP::BitmapInfo info;
    info.bmiHeader = ThumbnailFile::InfoHeadOf({lWidth, lHeight});
    basBMP::WriteInfoHead(file, info);
}

// Not through a file beside it and a rename: it can be made anew at any time, and a whole board of them
// shall not wait for the disk.
void frmBMP::WriteThumb(const QString& sThumb, const Pixels& pixels) {
    DeleteThumb(sThumb, QSize(pixels.Width(), pixels.Height()));
    BinaryFile file;
    QString error;
    if (!file.OpenNew(sThumb, error)) ErrRaiseRefused(sThumb, error);
    WriteFileHead(file, pixels.Width(), pixels.Height());
    WriteInfoHead(file, pixels.Width(), pixels.Height());
    QByteArray row(basBMP::RowBytes24(pixels.Width()), '\0');
    for (int y = pixels.Height() - 1; y >= 0; --y) {
        basBMP::PackRow24(pixels.Row(y), row);
        file.PutBytes(row);
    }
    if (!file.WasWritten(error)) ErrRaiseRefused(sThumb, error);
}

void frmBMP::GetSpaceFromArrayCoordinates(int iBlock, int iRow, int iCol, int& iSpace) {
    // The middle of each side, 3 and 10 of a half, has no sticker.
    constexpr std::array<std::array<int, 6>, 2> kSpaces{{{13, 12, 11, 9, 8, 7}, {6, 5, 4, 2, 1, 0}}};
    constexpr int kSecondHalf = 14;
    iSpace = iCol >= 0 && iCol < 6 ? kSpaces[iRow == 0 ? 0 : 1][size_t(iCol)] : 0;
    if (iBlock > 0) iSpace += kSecondHalf;
}
