// SPDX-License-Identifier: MIT
#include "tools/PrintPieces.h"

#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "kit/DeedCards.h"
#include "kit/NewsSheet.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "pieces/TitlePictures.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/SavePicture.h"
#include "services/basPath.h"

namespace {

constexpr int kTitleRecord = 1;
// A title stretched to the box of the board's title label, in inches.
constexpr double kStretchedWidth = 5.6;
constexpr double kStretchedHeight = 1.054;

using Generate = bool (frmBMP::*)(const QString& sFile, int iPiece);

/// Pieces with a number, each written to a file of its name.
struct Series {
    const char* sName;
    int iCount;
    Generate generate;
};

constexpr Series kSeries[] = {
    {"BmpOneFullSpace", basTAVL::kSpaces, &frmBMP::GenerateSpaceFullImage},
    {"SpaceImage", basTAVL::kSpaces, &frmBMP::GenerateSpaceStickerImage},
    {"CornerImage", basTAVL::kCorners, &frmBMP::GenerateCornerImage},
    {"MoneyImage", basTAVL::kMoney, &frmBMP::GenerateMoneyImage},
    {"TokenBMP", basTAVL::kTokens, &frmBMP::GenerateTokenImage},
};

PrintPiece Numbered(const Series& series, int i) {
    const QString name = QString::fromLatin1(series.sName) + QString::number(i);
    return {name, [name, i, generate = series.generate](QString& sFile) {
                sFile = MadePicture::PathOf(name + QStringLiteral(".bmp"));
                return (frmBMP::Instance().*generate)(sFile, i);
            }};
}

bool MakeStretchedTitle(QString& sFile) {
    sFile = MadePicture::PathOf(QStringLiteral("BmpTitleStretched.bmp"));
    return frmBMP::Instance().GenerateStretchedTextImage(
        sFile, kStretchedWidth, kStretchedHeight, basPosit::m_CenterText(kTitleRecord).sText, QStringLiteral("Arial"),
        false, false, basTAVL::g_lPrintBlack(), basTAVL::g_lPrintBack(), true);
}

// The name that a text's file has while its sheet is printed.
struct TitlePiece {
    const char* sName;
    TitlePictures::Title title;
};

constexpr TitlePiece kTitles[] = {
    {"BmpTitle", TitlePictures::kTitle},
    {"BmpSubtitle", TitlePictures::kSubtitle},
    {"BmpSubtitleRed", TitlePictures::kSubtitleRed},
    {"BmpSubtitleML", TitlePictures::kSubtitleLines},
};

void AddTitles(QList<PrintPiece>& pieces) {
    for (const TitlePiece& piece : kTitles)
        pieces.append({QString::fromLatin1(piece.sName), [title = piece.title](QString& sFile) {
                           sFile = TitlePictures::FileOf(title);
                           return TitlePictures::Make(title);
                       }});
    pieces.append({QStringLiteral("BmpTitleStretched"), MakeStretchedTitle});
}

void AddBandsAndHeads(QList<PrintPiece>& pieces) {
    for (int i = 0; i < basPosit::kSidesOfBoard; ++i)
        pieces.append(
            {QStringLiteral("Side%1Image").arg(i), [i](QString& sFile) { return DeedSideColorBitmap(i, sFile); }});
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (BoardFacts::IsProperty(i))
            pieces.append(
                {QStringLiteral("Rent%1Image").arg(i), [i](QString& sFile) { return DeedGroupColorBitmap(i, sFile); }});
    }
    for (int i = 0; i < basTAVL::kNewsSets; ++i)
        pieces.append({QStringLiteral("TempNewsBMP%1").arg(i),
                       [i](QString& sFile) { return NewsHeadBitmap(i, basTAVL::g_oNews(i, 0).FontHead, sFile); }});
}

} // namespace

QList<PrintPiece> PrintPieces() {
    QList<PrintPiece> pieces;
    AddTitles(pieces);
    for (const Series& series : kSeries) {
        for (int i = 0; i < series.iCount; ++i)
            pieces.append(Numbered(series, i));
    }
    AddBandsAndHeads(pieces);
    return pieces;
}

bool WritePiece(const PrintPiece& piece, const QString& sFolder, QString& sError) {
    QString made;
    if (!piece.make(made)) {
        sError = QStringLiteral("the picture '%1' could not be made").arg(piece.sName);
        return false;
    }
    const Picture picture = LoadPicture(made, sError);
    if (picture.IsNull()) return false;
    MadePicture::Delete(made);
    const QString output = basCommon::JoinPath(sFolder, piece.sName + QStringLiteral(".png"));
    if (SavePicture(picture, output, sError)) return true;
    sError = QStringLiteral("'%1' could not be written: %2").arg(output, sError);
    return false;
}
