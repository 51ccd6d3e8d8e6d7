// SPDX-License-Identifier: MIT
#include "drawing/clsBMP.h"
#include "platform/files/Files.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/NewLine.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/WorkFiles.h"

#include <algorithm>
#include <cmath>

namespace {

const QString kGap = kNewLine + kNewLine;
constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kBlack = 0xFF000000;

void Tell(const QString& sText) { basMsgQueue::MsgQueue_Post(sText, vbOKOnly); }

QString InMyGames(const QString& sName) { return basCommon::JoinPath(basCommon::GetMyGamesDirectory(), sName); }

QString CopyOf(const QString& sImagePath) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sImagePath, drive, dir, base, ext);
    return InMyGames(base + QStringLiteral(".8") + ext);
}

QRgb Grey(QRgb color) {
    const int mean = CLng((qRed(color) + qGreen(color) + qBlue(color)) / 3.0);
    return qRgb(mean, mean, mean);
}

Pixels WhiteEllipse(QSize size) {
    Pixels mask(size);
    for (int y = 0; y < mask.Height(); ++y) {
        const EllipseSpan span = EllipseSpan::At(y, mask.Width(), mask.Height());
        const std::span<QRgb> row = mask.WritableRow(y);
        std::fill(row.begin(), row.end(), kBlack);
        std::fill(row.begin() + span.iFirst, row.begin() + span.iStop, kWhite);
    }
    return mask;
}

// Whether it may be replaced: nothing else that bears the name is.
bool IsOval(const QString& sCopy) {
    constexpr int kHeads = basBMP::FileHead::kSize + basBMP::InfoHead::kSize;
    const qint64 size = kHeads + basBMP::RowBytes24(clsBMP::kOval.width()) * clsBMP::kOval.height();
    BinaryFile file;
    QString error;
    if (Files::Size(sCopy) != size || !file.OpenForReading(sCopy, error)) return false;
    const bool bitmap = file.U16() == basBMP::FileHead::kType && file.U32() == size;
    file.Seek(basBMP::FileHead::kSize + int(sizeof(quint32)));
    return bitmap && file.S32() == clsBMP::kOval.width() && file.S32() == clsBMP::kOval.height();
}

} // namespace

EllipseSpan EllipseSpan::At(int y, int lW, int lH) {
    const double a = lW / 2.0;
    const double b = lH / 2.0;
    const double dy = std::abs(b - y);
    const double dx = a * std::sqrt(std::max(1 - dy * dy / (b * b), 0.0));
    return {CLng(a - dx), CLng(a + dx)};
}

Pixels clsBMP::CutElliptical(const Pixels& pixels, bool bGray) {
    Pixels cut = pixels;
    for (int y = 0; y < cut.Height(); ++y) {
        const EllipseSpan span = EllipseSpan::At(y, cut.Width(), cut.Height());
        const std::span<QRgb> row = cut.WritableRow(y);
        const auto first = row.begin() + span.iFirst;
        const auto stop = row.begin() + span.iStop;
        std::fill(row.begin(), first, kWhite);
        std::fill(stop, row.end(), kWhite);
        if (bGray) std::transform(first, stop, first, Grey);
    }
    return cut;
}

Picture clsBMP::GetEllipticalWhite(QSize size) try {
    const QString sMask = InMyGames(QStringLiteral("WhiteEllipse.dat"));
    if (!basCommon::DoesFileExist(sMask)) {
        Let_FullPathToBmpFile(sMask);
        WriteImage(WhiteEllipse(kOval));
    }
    QString error;
    m_oPicture = size == kOval ? LoadPicture(sMask, error) : WhiteEllipse(size).AsPicture();
    return m_oPicture;
} catch (...) {
    ErrTail("clsBMP!", "GetEllipticalWhite", size.width(), size.height());
}

// An old copy that can't be deleted is used all the same.
bool clsBMP::IsCopyUsable(const QString& sCopy, const QString& sImagePath) {
    const Files::Stamp copy = Files::StampOf(sCopy);
    if (copy == Files::Stamp()) return false;
    if (copy.modifiedMs >= Files::StampOf(Files::InDiskSpelling(sImagePath)).modifiedMs) return true;
    QString error;
    if (Files::Remove(sCopy, error)) return false;
    Tell(QStringLiteral("Unable to delete old file named '") + sCopy + QStringLiteral("'.") + kGap +
         QStringLiteral("The following error was reported: ") + error + kGap +
         QStringLiteral("This obsolete version of the file will be used."));
    return true;
}

bool clsBMP::MakeEllipticalCopy(const QString& sCopy, const QString& sImagePath, bool bTold, bool bGray) {
    QString error;
    const ::Picture picture = LoadPicture(sImagePath, error, std::max(kOval.width(), kOval.height()));
    if (picture.IsNull()) {
        if (!bTold) {
            Tell(QStringLiteral("Unable to load picture named '") + sImagePath + QStringLiteral("'.") + kNewLine +
                 error + kNewLine + QStringLiteral("Area will be left blank."));
        }
        return false;
    }
    ScratchForm form(kOval);
    form.PaintPicture(picture, 0, 0, kOval.width(), kOval.height());
    Let_FullPathToBmpFile(sCopy);
    return WriteImage(CutElliptical(Pixels(form.Image()), bGray));
}

Picture clsBMP::GetEllipticalPicture(const QString& sImagePath, const QString& sImageBadPath, bool bGray) try {
    ClearPicture();
    const bool told = sImagePath == sImageBadPath;
    if (!basCommon::DoesFileExist(sImagePath)) {
        if (!told) {
            // There has never been a blank before "does".
            Tell(QStringLiteral("The file named '") + sImagePath + QStringLiteral("'does not exist.") + kNewLine +
                 QStringLiteral("Area will be left empty."));
        }
        return {};
    }
    // A file of the user's that bears the name stays as it is.
    const bool free = !Files::Exists(CopyOf(sImagePath)) || IsOval(CopyOf(sImagePath));
    const QString sCopy = free ? CopyOf(sImagePath) : WorkFiles::PathOf(QStringLiteral("Oval.bmp"));
    const bool usable = free && IsCopyUsable(sCopy, sImagePath);
    if (!usable && !MakeEllipticalCopy(sCopy, sImagePath, told, bGray)) return {};
    QString error;
    m_oPicture = LoadPicture(sCopy, error);
    return m_oPicture;
} catch (...) {
    ErrTail("clsBMP!", "GetEllipticalPicture", sImagePath, sImageBadPath, bGray);
}
