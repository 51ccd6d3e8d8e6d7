// SPDX-License-Identifier: MIT
#include "kit/BoxSheet.h"

#include "document/basTAVL.h"
#include "kit/LabelSheet.h"
#include "kit/PieceNames.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "pieces/TitlePictures.h"
#include "platform/printing/Printer.h"
#include "render/clsRenderDestination.h"
#include "services/basErrLog.h"

namespace {

using namespace TitlePictures;

constexpr int kUnchanged = 0;

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
        if (!Make(made.picture)) return LabelSheet::TellTitle(job, made.picture, made.sFailure);
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
        // What an earlier print has left there may be a token of another game.
        if (made) sheet.OutputFromBMP(file, dblX, dblY, kTokenSide, kTokenSide);
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
        if (!PlaceToken(sheet, i)) made = job.LacksPicture(PieceNames::Token(i));
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
    sheet.Init(job.printer, 1.0);
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
    job.Progress(SheetJob::kDone);
    return made;
} catch (...) {
    ErrTail("frmTavlPrint!", "StickerBoxAndTokenSheet");
}

std::vector<LabelSheet::TitleLabel> TitleLabelsOfBox() {
    std::vector<LabelSheet::TitleLabel> labels;
    for (const auto& piece : kBoxPieces)
        labels.push_back({piece.picture, QSizeF(piece.dblWidth, piece.dblHeight), piece.sLegend});
    return labels;
}

template <>
bool PaintSheet<class BoxSheet>(SheetJob& job, int) {
    return StickerBoxAndTokenSheet(job);
}
