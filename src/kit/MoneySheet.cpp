// SPDX-License-Identifier: MIT
#include "kit/MoneySheet.h"

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/Desktop.h"
#include "platform/Numbers.h"
#include "platform/Picture.h"
#include "platform/Printer.h"
#include "services/basErrLog.h"

namespace {

constexpr int kNotes = 10;
constexpr int kColumns = 2;

// In inches: notes lie edge to edge.
constexpr double kNoteWidth = 3.75;
constexpr double kNoteHeight = 2.0;
constexpr double kFirstX = 0.3;
constexpr double kFirstY = 0.125;

} // namespace

bool MakeMoneyImage(int iMoney, QString& sPath) try {
    // Told here, once, if the user's picture can't be had; the note is then printed without it.
    basTAVL::g_oMoney(iMoney).FaceImage.GetThumbnail(false);
    sPath = MadePicture::PathOf(QStringLiteral("MoneyImage.bmp"));
    if (frmBMP::Instance().GenerateMoneyImage(sPath, iMoney)) return true;
    MsgBox(QStringLiteral("Unable to create Money Image. Money will not be printed."));
    return false;
} catch (...) {
    ErrTail("frmTavlPrint!", "MakeMoneyImage", iMoney);
}

void PrintMoneySheet(SheetJob& job, int iMoney, const Picture& picture, int iCopy, int nCopies) try {
    double dblDPI = 0;
    double dblRatio = 0;
    basDraw::Draw_GetDPIandPrinterSizeRatio(job.printer, dblDPI, dblRatio, 1.0);
    const int lW = CLng(kNoteWidth * dblDPI);
    const int lH = CLng(kNoteHeight * dblDPI);
    for (int i = 0; i < kNotes; ++i) {
        job.Piece("Note", i + 1, kNotes);
        job.Progress(CLng(iCopy * 1000.0 / nCopies + i * 100.0 / nCopies));
        const int iRow = i / kColumns;
        const int lX = CLng((i % kColumns * kNoteWidth + kFirstX) * dblDPI);
        const int lY = CLng((iRow * kNoteHeight + kFirstY) * dblDPI);
        job.printer.PaintPicture(picture, lX, lY, lW, lH);
        basTAVL::g_oMoney(iMoney).DrawMoney(job.printer, dblDPI, lX, lY, false, false, true);
    }
} catch (...) {
    ErrTail("frmTavlPrint!", "PrintMoneySheet", iMoney, iCopy, nCopies);
}
