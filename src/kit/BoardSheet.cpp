// SPDX-License-Identifier: MIT
#include "kit/BoardSheet.h"

#include "document/basTAVL.h"
#include "kit/LabelSheet.h"
#include "kit/PieceNames.h"
#include "pictures/PaintPicture.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "pieces/StickersUsingBMP.h"
#include "pieces/TitlePictures.h"
#include "platform/printing/Printer.h"
#include "render/clsRenderDestination.h"
#include "services/basErrLog.h"

namespace {

using namespace TitlePictures;

constexpr int kRows = 2;
constexpr int kColumns = 6;
// Half of the columns hang on the left edge and half on the right one.
constexpr int kLeftColumns = 3;
constexpr double kLeftEdge = 0.02;
constexpr double kRightEdge = 9.98;
constexpr double kRowGap = 0.05;

constexpr int kProgressOfSpaces = 50;
constexpr int kProgressPerSpace = 50;

/// A title picture of the board and the caption under it.
struct TitlePiece {
    Title picture;
    double dblX;
    double dblY;
    double dblWidth;
    double dblHeight;
    float sngLegendY;
    const char* sLegend;
    int iProgressBefore;
};

constexpr TitlePiece kTitlePieces[] = {
    {kTitle, 0.05, 5.85, 5.6, 1.054, 6.924F, "Game Board Title", 900},
    {kSubtitle, 0.05, 7.1, 7.275, 0.49, 7.61F, "Game Board Subtitle", 950},
};

/// A corner; its caption stands in a column at the right.
struct CornerPiece {
    double dblX;
    double dblY;
    float sngLegendX;
    float sngLegendY;
    const char* sLegend;
    int iProgressBefore;
};

// By number of the corner. The fourth has no sticker.
constexpr CornerPiece kCornerPieces[] = {
    {0.05, 5.85, 7.5F, 6.5F, "'Start' Board Corner", 700},
    {2.55, 5.85, 7.5F, 7.0F, "'Lose A Turn' Board Corner", 800},
    {5.075, 5.85, 7.5F, 7.5F, "'Free Space' Board Corner", 900},
};

// What the sheet shows alone is decoded ahead as well.
std::vector<SheetPhoto> PhotosOf(int iSide, bool bCorners) {
    std::vector<SheetPhoto> photos;
    // A sticker's picture is half as high as the sticker.
    for (int iPlace = 0; iPlace < kRows * kColumns; ++iPlace) {
        const int iSpace = GetSpaceFromArrayCoordinates(iSide, iPlace / kColumns, iPlace % kColumns);
        SheetPhoto::Add(photos, basTAVL::g_oSpaces(iSpace).Image.Ref(),
                        basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight) / 2);
    }
    for (size_t iCorner = 0; bCorners && iCorner < std::size(kCornerPieces); ++iCorner)
        SheetPhoto::Add(photos, basTAVL::g_oCorners(int(iCorner)).Image.Ref(),
                        basTAVL::g_dblLabelSizes(basTAVL::kCornerSide) / 2);
    return photos;
}

bool PlaceSpace(clsRenderDestination& sheet, int iSide, int iRow, int iCol) {
    const double dblWidth = basTAVL::g_dblLabelSizes(basTAVL::kFullWidth);
    const double dblHeight = basTAVL::g_dblLabelSizes(basTAVL::kFullHeight);
    const double dblX = iCol < kLeftColumns ? iCol * dblWidth + kLeftEdge : kRightEdge - (kColumns - iCol) * dblWidth;
    const QString file = MadePicture::PathOf(QStringLiteral("BmpOneFullSpace.bmp"));
    if (!frmBMP::Instance().GenerateSpaceFullImage(file, GetSpaceFromArrayCoordinates(iSide, iRow, iCol))) return false;
    sheet.OutputFromBMP(file, dblX, (dblHeight + kRowGap) * iRow, dblWidth, dblHeight);
    return true;
}

bool PlaceSpaces(SheetJob& job, clsRenderDestination& sheet, int iSide) {
    bool made = true;
    int progress = kProgressOfSpaces;
    job.Progress(progress);
    for (int iRow = 0; iRow < kRows; ++iRow) {
        for (int iCol = 0; iCol < kColumns; ++iCol) {
            job.Piece("Space", iRow * kColumns + iCol + 1, kRows * kColumns);
            const int iSpace = GetSpaceFromArrayCoordinates(iSide, iRow, iCol);
            if (!PlaceSpace(sheet, iSide, iRow, iCol)) made = job.LacksPicture(PieceNames::Space(iSpace));
            job.Drawn(basTAVL::g_oSpaces(iSpace).Image.FullPath());
            job.Progress(progress += kProgressPerSpace);
        }
    }
    return made;
}

bool PlaceTitles(SheetJob& job, clsRenderDestination& sheet) {
    job.Progress(800);
    if (!Make(kTitle)) return LabelSheet::TellTitle(job, kTitle, "Cannot create Title Image");
    if (!Make(kSubtitle)) return LabelSheet::TellTitle(job, kSubtitle, "Cannot Subtitle Image");
    int title = 0;
    for (const TitlePiece& piece : kTitlePieces) {
        job.Piece("Title", ++title, int(std::size(kTitlePieces)));
        job.Progress(piece.iProgressBefore);
        sheet.OutputFromBMP(FileOf(piece.picture), piece.dblX, piece.dblY, piece.dblWidth, piece.dblHeight);
        sheet.Legend(float(piece.dblX), piece.sngLegendY, QStringLiteral("up"), QString::fromLatin1(piece.sLegend),
                     basTAVL::g_lPrintBlack());
    }
    for (const TitlePiece& piece : kTitlePieces)
        MadePicture::Delete(FileOf(piece.picture));
    return true;
}

bool PlaceCorners(SheetJob& job, clsRenderDestination& sheet) {
    bool made = true;
    int iCorner = 0;
    for (const CornerPiece& piece : kCornerPieces) {
        job.Piece("Corner", iCorner + 1, int(std::size(kCornerPieces)));
        job.Progress(piece.iProgressBefore);
        if (!CornerStickerUsingBMP(sheet, iCorner, piece.dblX, piece.dblY))
            made = job.LacksPicture(PieceNames::Corner(iCorner));
        job.Drawn(basTAVL::g_oCorners(iCorner).Image.FullPath());
        ++iCorner;
        sheet.Legend(piece.sngLegendX, piece.sngLegendY, QStringLiteral("left"), QString::fromLatin1(piece.sLegend),
                     basTAVL::g_lPrintBlack());
    }
    return made;
}

} // namespace

bool StickerSpaceSheet(SheetJob& job, int iSide, bool bCorners, bool bTitle) try {
    clsRenderDestination sheet;
    sheet.Init(job.printer, 1.0);
    bool made = PlaceSpaces(job, sheet, iSide);
    if (bTitle && !PlaceTitles(job, sheet)) return false;
    if (bCorners) made = PlaceCorners(job, sheet) && made;
    job.Progress(SheetJob::kDone);
    return made;
} catch (...) {
    ErrTail("frmTavlPrint!", "StickerSpaceSheet", iSide, bCorners, bTitle);
}

int GetSpaceFromArrayCoordinates(int iSide, int iRow, int iCol) {
    int iSpace = 0;
    frmBMP::GetSpaceFromArrayCoordinates(iSide, iRow, iCol, iSpace);
    return iSpace;
}

std::vector<LabelSheet::TitleLabel> TitleLabelsOfBoard() {
    std::vector<LabelSheet::TitleLabel> labels;
    for (const auto& piece : kTitlePieces)
        labels.push_back({piece.picture, QSizeF(piece.dblWidth, piece.dblHeight), piece.sLegend});
    return labels;
}

template <>
bool PaintSheet<class BoardSheet>(SheetJob& job, int iWhich) {
    const bool east = iWhich > 0;
    return StickerSpaceSheet(job, iWhich, !east, east);
}

template <>
std::vector<SheetPhoto> PhotosOfSheet<class BoardSheet>(int iWhich) {
    return PhotosOf(iWhich, iWhich == 0);
}
