// SPDX-License-Identifier: MIT
#include "kit/LabelSheets.h"

#include "document/basTAVL.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "pieces/StickersUsingBMP.h"
#include "pieces/TitlePictures.h"
#include "platform/Desktop.h"
#include "platform/Numbers.h"
#include "platform/Printer.h"
#include "render/clsRenderDestination.h"
#include "services/basErrLog.h"

namespace {

using namespace TitlePictures;

constexpr int kDone = -1;
constexpr int kUnchanged = 0;

bool Tell(const char* sText) {
    MsgBox(QString::fromLatin1(sText));
    return false;
}

// Captions are slanted when the sheet before has left its font so.
void BeginSheet(SheetJob& job, clsRenderDestination& sheet) {
    sheet.Init(job.printer, 1.0);
    job.printer.FontItalic = false;
}

// ---- The box and the tokens.

struct BoxPicture {
    Title picture;
    const char* sFailure;
    int iProgressAfter;
};

constexpr BoxPicture kBoxPictures[] = {
    {kTitle, "Cannot create Title Image", 300},
    // No piece of this sheet shows it, but a failure to make it still ends the sheet.
    {kSubtitle, "Cannot create Subtitle Image", 450},
    {kSubtitleRed, "Cannot create RedSubtitle Image", 575},
    {kSubtitleLines, "Cannot create Multiline Subtitle", 680},
};

struct BoxPiece {
    float sngRow;
    Title picture;
    double dblX;
    double dblWidth;
    double dblHeight;
    const char* sLegend;
    int iProgressBefore;
};

constexpr BoxPiece kBoxPieces[] = {
    {0.25F, kTitle, 0.05, 6.125, 1.125, "Box Top Title", 700},
    {0.25F, kSubtitleLines, 8.25, 1.75, 0.5625, "Short Side Subtitle", 720},
    {1.75F, kSubtitleRed, 0.1, 7.125, 0.49, "Box Top Subtitle", 740},
    {1.75F, kSubtitleLines, 8.25, 1.75, 0.5625, "Short Side Subtitle", 760},
    {2.75F, kTitle, 0.1, 3.6, 0.625, "Box Top Long Side Title", kUnchanged},
    {2.75F, kTitle, 3.85, 3.35, 0.5625, "Box Top Short Side Title", 780},
    {2.75F, kSubtitleLines, 7.375, 2.625, 0.625, "Box Top Long Side Subtitle", 800},
    {3.75F, kTitle, 0.1, 3.6, 0.625, "Box Top Long Side Title", 820},
    {3.75F, kTitle, 3.85, 3.35, 0.5625, "Box Top Short Side Title", 840},
    {3.75F, kSubtitleLines, 7.375, 2.625, 0.625, "Box Top Long Side Subtitle", 860},
};

// Between a piece and the caption under it.
constexpr double kLegendGap = 0.02;

constexpr int kProgressOfTokens = 880;
constexpr int kProgressOfFirstToken = 900;
constexpr int kProgressPerToken = 20;
constexpr float kTokenRow = 5.0F;
constexpr double kTokenLeft = 0.15;
constexpr double kTokenSide = 0.875;
constexpr double kTokenStep = kTokenSide + 0.45;
constexpr int kStickersPerToken = 2;

bool MakeBoxPictures(SheetJob& job) {
    int picture = 0;
    for (const BoxPicture& made : kBoxPictures) {
        job.Piece("Title", ++picture, int(std::size(kBoxPictures)));
        if (!Make(made.picture)) return Tell(made.sFailure);
        job.Progress(made.iProgressAfter);
    }
    return true;
}

void PlaceBoxPiece(clsRenderDestination& sheet, const BoxPiece& piece) {
    sheet.OutputFromBMP(FileOf(piece.picture), piece.dblX, double(piece.sngRow), piece.dblWidth, piece.dblHeight);
    sheet.Legend(float(piece.dblX), float(double(piece.sngRow) + piece.dblHeight + kLegendGap), QStringLiteral("up"),
                 QString::fromLatin1(piece.sLegend), basTAVL::g_lPrintBlack());
}

bool PlaceToken(clsRenderDestination& sheet, int iToken) {
    const QString file = MadePicture::PathOf(QStringLiteral("TokenBMP%1.bmp").arg(iToken));
    const bool made = frmBMP::Instance().GenerateTokenImage(file, iToken);
    for (int sticker = 0; sticker < kStickersPerToken; ++sticker) {
        const double dblX = kTokenStep * iToken + kTokenLeft;
        const double dblY = double(kTokenRow) + kTokenStep * sticker;
        sheet.OutputFromBMP(file, dblX, dblY, kTokenSide, kTokenSide);
        // The ring is there to be cut along, whether or not there is a picture.
        sheet.CircleRender(dblX, dblY, kTokenSide / 2);
    }
    return made;
}

bool PlaceTokens(SheetJob& job, clsRenderDestination& sheet) {
    bool made = true;
    job.Progress(kProgressOfTokens);
    for (int i = 0; i < basTAVL::kTokens; ++i) {
        job.Piece("Token", i + 1, basTAVL::kTokens);
        made = PlaceToken(sheet, i) && made;
        job.Progress(kProgressOfFirstToken + kProgressPerToken * i);
    }
    sheet.Legend(8.0F, kTokenRow + 1, QStringLiteral("left"), QStringLiteral("Game Token Stickers"),
                 basTAVL::g_lPrintBlack());
    return made;
}

} // namespace

bool StickerBoxAndTokenSheet(SheetJob& job) try {
    for (int i = 0; i < basTAVL::kTokens; ++i)
        basTAVL::g_oTokens(i).Image.GetThumbnail(false);
    clsRenderDestination sheet;
    BeginSheet(job, sheet);
    job.Progress(10);
    if (!MakeBoxPictures(job)) return false;
    sheet.Legend(0.155F, 7.875F, QStringLiteral("none"),
                 QStringLiteral("CUT ALONG THE LINES. THEN PEEL AND STICK EACH LABEL TO THE APPROPRIATE GAME BOX "
                                "SPACE OR TOKEN SIDE."),
                 basTAVL::g_lPrintBlack());
    for (const BoxPiece& piece : kBoxPieces) {
        if (piece.iProgressBefore != kUnchanged) job.Progress(piece.iProgressBefore);
        PlaceBoxPiece(sheet, piece);
    }
    const bool made = PlaceTokens(job, sheet);
    for (const BoxPicture& picture : kBoxPictures)
        MadePicture::Delete(FileOf(picture.picture));
    job.Progress(kDone);
    return made;
} catch (...) {
    ErrTail("frmTavlPrint!", "StickerBoxAndTokenSheet");
}

// ---- The board.

namespace {

// Which of g_dblLabelSizes is what, in inches.
constexpr int kSpaceWidth = 1;
constexpr int kSpaceHeight = 2;
constexpr int kStickerHeight = 6;
constexpr int kCornerSide = 7;

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

// Other processors decode the photographs of the sheet while this one draws. A sticker's picture is half as high
// as the sticker.
void PreparePictures(SheetJob& job, clsRenderDestination& sheet, int iSide, bool bCorners) {
    const auto prepare = [&](const C_Image& image, int labelSize) {
        image.PrepareForPaper(job.printer, basTAVL::g_dblLabelSizes(labelSize) / 2 * sheet.DPI());
    };
    for (int iPlace = 0; iPlace < kRows * kColumns; ++iPlace) {
        const int iSpace = GetSpaceFromArrayCoordinates(iSide, iPlace / kColumns, iPlace % kColumns);
        prepare(basTAVL::g_oSpaces(iSpace).Image, kStickerHeight);
    }
    for (size_t iCorner = 0; bCorners && iCorner < std::size(kCornerPieces); ++iCorner)
        prepare(basTAVL::g_oCorners(int(iCorner)).Image, kCornerSide);
}

bool PlaceSpace(clsRenderDestination& sheet, int iSide, int iRow, int iCol) {
    const double dblWidth = basTAVL::g_dblLabelSizes(kSpaceWidth);
    const double dblHeight = basTAVL::g_dblLabelSizes(kSpaceHeight);
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
            made = PlaceSpace(sheet, iSide, iRow, iCol) && made;
            job.Progress(progress += kProgressPerSpace);
        }
    }
    return made;
}

bool PlaceTitles(SheetJob& job, clsRenderDestination& sheet) {
    job.Progress(800);
    if (!Make(kTitle)) return Tell("Cannot create Title Image");
    if (!Make(kSubtitle)) return Tell("Cannot Subtitle Image");
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
        made = CornerStickerUsingBMP(sheet, iCorner++, piece.dblX, piece.dblY) && made;
        sheet.Legend(piece.sngLegendX, piece.sngLegendY, QStringLiteral("left"), QString::fromLatin1(piece.sLegend),
                     basTAVL::g_lPrintBlack());
    }
    return made;
}

} // namespace

bool StickerSpaceSheet(SheetJob& job, int iSide, bool bCorners, bool bTitle) try {
    clsRenderDestination sheet;
    BeginSheet(job, sheet);
    PreparePictures(job, sheet, iSide, bCorners);
    bool made = PlaceSpaces(job, sheet, iSide);
    if (bTitle && !PlaceTitles(job, sheet)) return false;
    if (bCorners) made = PlaceCorners(job, sheet) && made;
    job.Progress(kDone);
    return made;
} catch (...) {
    ErrTail("frmTavlPrint!", "StickerSpaceSheet", iSide, bCorners, bTitle);
}

int GetSpaceFromArrayCoordinates(int iSide, int iRow, int iCol) {
    int iSpace = 0;
    frmBMP::GetSpaceFromArrayCoordinates(iSide, iRow, iCol, iSpace);
    return iSpace;
}

namespace {

double NumberAhead(const QString& sText) {
    if (const std::optional<double> number = ParseNumber(sText)) return *number;
    const QString text = sText.trimmed();
    qsizetype length = 0;
    while (length < text.size() && (text[length].isDigit() || text[length] == u'.'))
        ++length;
    while (length > 0) {
        if (const std::optional<double> number = ParseNumber(text.left(length))) return *number;
        --length; // a second point, or one alone
    }
    return 0;
}

} // namespace

void FactorDimensionString(QString& sDimensions, double& dblWidth, double& dblHeight) {
    sDimensions = sDimensions.toLower();
    const qsizetype x = sDimensions.indexOf(u'x');
    dblWidth = x < 0 ? 0 : NumberAhead(sDimensions.left(x));
    dblHeight = x < 0 ? 0 : NumberAhead(sDimensions.mid(x + 1));
}
