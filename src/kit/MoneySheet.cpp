// SPDX-License-Identifier: MIT
// A sheet of banknotes: ten of one denomination (0 to 3), all from one picture.
#include "kit/MoneySheet.h"

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "kit/PieceNames.h"
#include "kit/SheetJob.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/printing/Printer.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "services/FileRefused.h"

namespace {

constexpr int kNotes = kNotesOnSheet;
constexpr int kColumns = 2;

// In inches: notes lie edge to edge.
constexpr double kNoteWidth = 3.75;
constexpr double kNoteHeight = 2.0;
constexpr double kFirstX = 0.3;
constexpr double kFirstY = 0.125;

} // namespace

CardGrid MoneyGrid() { return {{kFirstX, kFirstY}, {kNoteWidth, kNoteHeight}, kColumns, kNotesOnSheet / kColumns}; }

template <>
std::vector<SheetPhoto> PhotosOfSheet<class MoneySheet>(int iWhich) {
    const C_Money& note = basTAVL::g_oMoney(iWhich);
    std::vector<SheetPhoto> photos;
    if (!note.BackImage.FullPath().isEmpty()) photos.push_back({note.BackImage.FullPath(), kAllPixels});
    const QSizeF oval = C_Money::OvalInches();
    SheetPhoto::Add(photos, note.FaceImage.Ref(), std::max(oval.width(), oval.height()));
    return photos;
}

template <>
bool PrepareSheet<class MoneySheet>(SheetJob& job, int iWhich) {
    // Told here, once, if the user's picture can't be had; the note is then printed without it.
    basTAVL::g_oMoney(iWhich).FaceImage.GetThumbnail(false);
    const QString path = MadePicture::PathOf(QStringLiteral("MoneyImage.bmp"));
    if (!frmBMP::Instance().GenerateMoneyImage(path, iWhich)) {
        MsgBox(QStringLiteral("Unable to create Money Image. Money will not be printed."));
        return job.LacksPicture(PieceNames::Note(iWhich));
    }
    QString error;
    job.prepared = LoadForPaper(path, error);
    if (job.prepared.IsNull()) ErrRaiseNoPicture(path, error);
    for (const SheetPhoto& photo : PhotosOfSheet<class MoneySheet>(iWhich))
        job.Drawn(photo.sPath);
    return true;
}

template <>
bool PaintSheet<class MoneySheet>(SheetJob& job, int iWhich) {
    double dblDPI = 0;
    double dblRatio = 0;
    basDraw::Draw_GetDPIandPrinterSizeRatio(job.printer, dblDPI, dblRatio, 1.0);
    const int lW = CLng(kNoteWidth * dblDPI);
    const int lH = CLng(kNoteHeight * dblDPI);
    for (int i = 0; i < kNotes; ++i) {
        job.Piece("Note", i + 1, kNotes);
        job.Progress(CLng(job.iCopy * 1000.0 / job.nCopies + i * 100.0 / job.nCopies));
        const int iRow = i / kColumns;
        const int lX = CLng((i % kColumns * kNoteWidth + kFirstX) * dblDPI);
        const int lY = CLng((iRow * kNoteHeight + kFirstY) * dblDPI);
        job.printer.PaintPicture(job.prepared, lX, lY, lW, lH);
        basTAVL::g_oMoney(iWhich).DrawMoney(job.printer, dblDPI, lX, lY, false, false, true);
    }
    return true;
}
