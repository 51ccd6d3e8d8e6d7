// SPDX-License-Identifier: MIT
#include "tools/PrintPieces.h"

#include "app/services/basPath.h"
#include "board/basPositTables.h"
#include "board/basTAVL_news.h"
#include "document/basTAVL.h"
#include "images/frmBMP.h"
#include "platform/Files.h"
#include "platform/LoadPicture.h"
#include "platform/SavePicture.h"

namespace {

constexpr int kTitleRecord = 1;
constexpr int kSubtitleRecord = 2;

/// A text of the kit in the size, font and colours that its sheet asks for. Inches.
struct TextPiece {
    const char* sName;
    int iRecord;
    double dblWidth;
    double dblHeight;
    const char* sFamily;
    bool bBoldItalic;
    Color& (*backColor)();
};

constexpr TextPiece kLines[] = {
    {"BmpTitle", kTitleRecord, 0, 1.436, "Arial", false, basTAVL::g_lPrintBack},
    {"BmpSubtitle", kSubtitleRecord, 7.375, 0.49, "Times New Roman", true, basTAVL::g_lPrintBack},
    {"BmpSubtitleRed", kSubtitleRecord, 7.375, 0.49, "Times New Roman", true, basTAVL::g_lPrintRed},
};
constexpr TextPiece kStretched = {"BmpTitleStretched", kTitleRecord, 6.2, 1.436, "Arial", false, basTAVL::g_lPrintBack};
constexpr TextPiece kBlock = {"BmpSubtitleML",     kSubtitleRecord, 1.75, 0.571, "Times New Roman", true,
                              basTAVL::g_lPrintRed};
constexpr double kBlockLine = 0.2;

constexpr double kBandWidth = 2.5;
constexpr double kBandHeight = 0.125;
constexpr double kBandLine = 0.1;
constexpr double kHeadWidth = 2.875;
constexpr double kHeadHeight = 0.375;

QString Text(const TextPiece& piece) { return basPosit::m_CenterText(piece.iRecord).sText; }
QString Family(const TextPiece& piece) { return QString::fromLatin1(piece.sFamily); }

bool MakeLine(const TextPiece& piece, const QString& sFile) {
    return frmBMP::Instance().GenerateSingleLineImage(sFile, piece.dblWidth, piece.dblHeight, Text(piece),
                                                      Family(piece), piece.bBoldItalic, piece.bBoldItalic,
                                                      basTAVL::g_lPrintBlack(), piece.backColor());
}

bool MakeStretched(const QString& sFile) {
    return frmBMP::Instance().GenerateStretchedTextImage(
        sFile, kStretched.dblWidth, kStretched.dblHeight, Text(kStretched), Family(kStretched), kStretched.bBoldItalic,
        kStretched.bBoldItalic, basTAVL::g_lPrintBlack(), kStretched.backColor(), true);
}

bool MakeBlock(const QString& sFile) {
    const QString lines = basPosit::m_CenterText(kBlock.iRecord).Lines().join(QStringLiteral("\r\n"));
    return frmBMP::Instance().GenerateTextImage(sFile, kBlock.dblWidth, kBlock.dblHeight, lines, Family(kBlock),
                                                kBlock.bBoldItalic, kBlock.bBoldItalic, kBlockLine,
                                                basTAVL::g_lPrintBlack(), kBlock.backColor());
}

bool MakeBand(int side, const QString& sFile) {
    const basPosit::SideRecord& record = basPosit::m_SideRec(side);
    return frmBMP::Instance().GenerateTextImage(sFile, kBandWidth, kBandHeight, record.sText, QStringLiteral("Arial"),
                                                true, false, kBandLine, record.lText, record.lFill);
}

// Good News in black on white, Bad News the other way round.
bool MakeHead(int deck, const QString& sFile) {
    const C_FontInfo& font = basTAVL::g_oNews(deck, 0).FontHead;
    const Color ink = basTAVL::g_lPrintBlack();
    return frmBMP::Instance().GenerateSingleLineImage(
        sFile, kHeadWidth, kHeadHeight, basPosit::m_CenterText(basTAVL::NewsTitleRecord(deck)).sText, font.Family,
        font.Bold, font.Italic, deck == 0 ? ink : Color::White(), deck == 0 ? Color::White() : ink);
}

using MakeNumbered = bool (*)(int number, const QString& sFile);

struct NumberedPiece {
    const char* sName; ///< %1 stands for the number.
    int iCount;
    MakeNumbered make;
};

constexpr NumberedPiece kNumbered[] = {
    {"BmpOneFullSpace%1", basTAVL::kSpaces,
     [](int i, const QString& sFile) { return frmBMP::Instance().GenerateSpaceFullImage(sFile, i); }},
    {"SpaceImage%1", basTAVL::kSpaces,
     [](int i, const QString& sFile) { return frmBMP::Instance().GenerateSpaceStickerImage(sFile, i); }},
    {"CornerImage%1", basTAVL::kCorners,
     [](int i, const QString& sFile) { return frmBMP::Instance().GenerateCornerImage(sFile, i); }},
    {"MoneyImage%1", basTAVL::kMoney,
     [](int i, const QString& sFile) { return frmBMP::Instance().GenerateMoneyImage(sFile, i); }},
    {"TokenBMP%1", basTAVL::kTokens,
     [](int i, const QString& sFile) { return frmBMP::Instance().GenerateTokenImage(sFile, i); }},
    {"Side%1Image", basPosit::kSidesOfBoard, MakeBand},
    {"TempNewsBMP%1", basTAVL::kNewsSets, MakeHead},
};

} // namespace

QList<PrintPiece> PrintPieces() {
    QList<PrintPiece> pieces;
    for (const TextPiece& line : kLines)
        pieces.append(
            {QString::fromLatin1(line.sName), [&line](const QString& sFile) { return MakeLine(line, sFile); }});
    pieces.append({QString::fromLatin1(kStretched.sName), MakeStretched});
    pieces.append({QString::fromLatin1(kBlock.sName), MakeBlock});
    for (const NumberedPiece& piece : kNumbered) {
        for (int i = 0; i < piece.iCount; ++i)
            pieces.append({QString::fromLatin1(piece.sName).arg(i),
                           [&piece, i](const QString& sFile) { return piece.make(i, sFile); }});
    }
    return pieces;
}

bool WritePiece(const PrintPiece& piece, const QString& sWork, const QString& sFolder, QString& sError) {
    if (!piece.make(sWork)) {
        sError = QStringLiteral("the picture '%1' could not be made").arg(piece.sName);
        return false;
    }
    const Picture picture = LoadPicture(sWork, sError);
    if (picture.IsNull()) return false;
    const QString output = basCommon::JoinPath(sFolder, piece.sName + QStringLiteral(".png"));
    const bool written = SavePicture(picture, output, sError);
    if (!written) sError = QStringLiteral("'%1' could not be written: %2").arg(output, sError);
    QString ignored; // it goes with the folder it lies in
    Files::Remove(sWork, ignored);
    return written;
}
