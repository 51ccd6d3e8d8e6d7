// SPDX-License-Identifier: MIT
#include "kit/DeedCards.h"

#include "board/basPositRents.h"
#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "drawing/DrawDottedBox.h"
#include "kit/DeedCards_layout.h"
#include "kit/PieceNames.h"
#include "pieces/MadePicture.h"
#include "platform/files/Folders.h"
#include "platform/printing/Printer.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"

using namespace DeedLayout;

namespace {

constexpr int kCards = 12;
constexpr int kColumns = 3;
constexpr int kSpaceOnSheet[2][kCards] = {
    {2, 1, 0, 6, 5, 4, 9, 8, 7, 13, 12, 11},
    {16, 15, 14, 20, 19, 18, 23, 22, 21, 27, 26, 25},
};
constexpr int kSidesOnSheet = 2;

// Of the first card on the sheet, in inches; cards lie edge to edge.
constexpr double kFirstX = 0.25;
constexpr double kFirstY = 0.375;

constexpr double kDashInches = 0.05;
// Rents start here, in inches below the card's top.
constexpr float kRentsOfProperty = 1.375F;
constexpr float kRentsOfUtility = 1.3125F;

// Outer edge of the frame of a utility. Its line lies inside, so that it keeps clear of the captions above and
// below it.
constexpr double kFrameStart = 0.25;
constexpr double kFrameLine = kFrameStart + kPenInches / 2;
constexpr InchBox kFrame{kFrameLine, kFrameLine, kCardSide - 2 * kFrameLine, kCardSide - 2 * kFrameLine};
struct Ornament {
    const char* sName;
    InchBox box;
};
constexpr Ornament kOrnaments[] = {
    {"_ul", {0.0625, 0.0625, 0.5, 0.5}},
    {"_ur", {1.9375, 0.0625, 0.5, 0.5}},
    {"_ll", {0.0625, 1.9375, 0.5, 0.5}},
    {"_lr", {1.9375, 1.9375, 0.5, 0.5}},
};

constexpr int kProgressBefore = 40;

// The wide pen has to be chosen after this: the cut line leaves one of a dot.
void CutLine(Surface& surface, const PiecePlace& place) {
    basTAVL::DrawDottedBox(surface, place.X(0), place.Y(0), place.X(kCardSide), place.Y(kCardSide),
                           place.Length(kDashInches), Color::White());
    surface.DrawWidth = place.Length(kPenInches);
}

QString OrnamentFile(const char* sName) {
    const QString folder = Folders::ProgramDirectory();
    const QString name = QString::fromLatin1(sName);
    const QString plain = basCommon::JoinPath(folder, QStringLiteral("deco2") + name + QStringLiteral(".bmp"));
    if (!HasColouredOrnaments(TheGame().kit)) return plain;
    const QString colored = basCommon::JoinPath(folder, QStringLiteral("deco") + name + QStringLiteral(".dat"));
    return basCommon::DoesFileExist(colored) ? colored : plain;
}

bool MakeSideBands(SheetJob& job, int iFirstSide, QStringList& made) {
    for (int side = iFirstSide; side < iFirstSide + kSidesOnSheet; ++side) {
        QString path;
        if (!DeedSideColorBitmap(side, path)) {
            TellNoDeeds();
            return job.LacksPicture(QStringLiteral("The band of side %1").arg(side + 1));
        }
        made.append(path);
    }
    return true;
}

bool PrintCards(SheetJob& job, clsRenderDestination& destination, int iSheet) {
    bool whole = true;
    for (int p = 0; p < kCards; ++p) {
        job.Piece("Deed", p + 1, kCards);
        job.Progress(CLng(p * 1000.0 / kCards + kProgressBefore));
        const int iRow = p / kColumns;
        const int lX = CLng((p % kColumns * kCardSide + kFirstX) * destination.DPI());
        const int lY = CLng((iRow * kCardSide + kFirstY) * destination.DPI());
        const int space = kSpaceOnSheet[iSheet - 1][p];
        const bool printed = BoardFacts::IsUtility(space) ? DeedCardTrans(destination, space, lX, lY, true)
                                                          : DeedCardProp(destination, space, lX, lY, true);
        if (!printed) whole = job.LacksPicture(PieceNames::Deed(space));
    }
    return whole;
}

} // namespace

bool PrintDeeds(SheetJob& job, int iSheet) try {
    basErrLog::ErrAssert(iSheet == 1 || iSheet == 2, QStringLiteral("There are two sheets of deeds"));
    clsRenderDestination destination;
    destination.Init(job.printer, 1.0);
    QStringList bands;
    if (!MakeSideBands(job, (iSheet - 1) * kSidesOnSheet, bands)) return false;
    const bool whole = PrintCards(job, destination, iSheet);
    for (const QString& band : bands)
        MadePicture::Delete(band);
    job.Progress(SheetJob::kDone);
    return whole;
} catch (...) {
    ErrTail("frmTavlPrint!", "PrintDeeds", iSheet);
}

CardGrid DeedGrid() { return {{kFirstX, kFirstY}, {kCardSide, kCardSide}, kColumns, kCards / kColumns}; }

int SpaceOfDeed(int iSheet, int iCard) { return kSpaceOnSheet[iSheet - 1][iCard]; }

template <>
bool PaintSheet<class DeedSheet>(SheetJob& job, int iWhich) {
    return PrintDeeds(job, iWhich);
}

bool DeedCardProp(clsRenderDestination& destination, int iDeed, int lX, int lY, bool bColor) try {
    Surface& surface = destination.Destination();
    const PiecePlace place(destination, lX, lY);
    CutLine(surface, place);
    PaintBand(surface, place, SideFile(iDeed / basTAVL::kSpacesPerSide), kSideBand);
    QString price;
    if (!DeedGroupColorBitmap(iDeed, price)) {
        TellNoDeeds();
        return false;
    }
    PaintBand(surface, place, price, kPriceBand);
    DeedTextRent(destination, iDeed, lX, lY, kRentsOfProperty);
    const bool whole = DeedTextTitle(destination, iDeed, lX, lY);
    MadePicture::Delete(price);
    return whole;
} catch (...) {
    ErrTail("clsRenderDestination!", "DeedCardProp", iDeed, lX, lY, bColor);
}

bool DeedCardTrans(clsRenderDestination& destination, int iDeed, int lX, int lY, bool bColor) try {
    Surface& surface = destination.Destination();
    const PiecePlace place(destination, lX, lY);
    CutLine(surface, place);
    for (const Ornament& ornament : kOrnaments)
        MadePicture::Paint(surface, OrnamentFile(ornament.sName), place.Box(ornament.box));
    DrawFrame(surface, place.Box(kFrame));
    DeedTextRent(destination, iDeed, lX, lY, kRentsOfUtility);
    DeedTextValue(destination, iDeed, lX, lY);
    return DeedTextTitle(destination, iDeed, lX, lY);
} catch (...) {
    ErrTail("clsRenderDestination!", "DeedCardTrans", iDeed, lX, lY, bColor);
}
