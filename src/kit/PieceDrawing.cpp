// SPDX-License-Identifier: MIT
#include "kit/PieceDrawing.h"

#include "document/basTAVL.h"
#include "drawing/DrawingAside.h"
#include "kit/DeedCards.h"
#include "kit/NewsSheet.h"
#include "kit/PieceNames.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/paint/RecordingForm.h"
#include "platform/pictures/LoadPicture.h"
#include "render/clsRenderDestination.h"
#include "services/BoardFacts.h"

namespace PieceDrawing {
namespace {

using Generate = bool (frmBMP::*)(const QString& sFile, int iPiece);

// What is made as a picture keeps how it was drawn.
std::optional<PrintedText> Made(Generate generate, int iPiece) {
    const QString file = MadePicture::PathOf(QStringLiteral("PieceAlone.bmp"));
    if (!(frmBMP::Instance().*generate)(file, iPiece)) return std::nullopt;
    QString error;
    const Picture picture = LoadPicture(file, error);
    MadePicture::Delete(file);
    if (!picture.Recording()) return std::nullopt;
    return PrintedText::AsMade(picture.Recording());
}

std::optional<PrintedText> Painted(QSizeF inches, const std::function<bool(clsRenderDestination&)>& paint) {
    RecordingPage page((inches * RecordingPage::kDotsPerInch).toSize());
    clsRenderDestination destination;
    destination.Init(page, 1.0);
    if (!paint(destination)) return std::nullopt;
    return PrintedText::AsMade(page.Take());
}

std::optional<PrintedText> Deed(int iSpace) {
    QString band;
    if (!DeedSideColorBitmap(iSpace / BoardFacts::kSpacesPerSide, band)) return std::nullopt;
    const auto paint = [iSpace](clsRenderDestination& destination) {
        return BoardFacts::IsUtility(iSpace) ? DeedCardTrans(destination, iSpace, 0, 0, true)
                                             : DeedCardProp(destination, iSpace, 0, 0, true);
    };
    const std::optional<PrintedText> deed = Painted(DeedGrid().card, paint);
    MadePicture::Delete(band);
    return deed;
}

std::optional<PrintedText> Card(int iNumber) {
    const int deck = iNumber / basTAVL::kCards;
    const int card = iNumber % basTAVL::kCards;
    return Painted(NewsCardInches(), [deck, card](clsRenderDestination& destination) {
        return NewsRender(destination, 0, 0, deck, card);
    });
}

QString WordOf(const char* sKind, int iNumber) { return QLatin1String(sKind) + QStringLiteral("-%1").arg(iNumber); }

struct Entry {
    Piece piece;
    std::function<std::optional<PrintedText>()> draw;
};

Entry MadeEntry(const char* sKind, int i, const QString& sName, Generate generate) {
    return {{WordOf(sKind, i), sName}, [generate, i] { return Made(generate, i); }};
}

void AddBoard(QList<Entry>& entries) {
    for (int i = 0; i < basTAVL::kSpaces; ++i)
        entries.append(MadeEntry("space", i, PieceNames::Space(i), &frmBMP::GenerateSpaceFullImage));
    for (int i = 0; i < basTAVL::kCorners; ++i)
        entries.append(MadeEntry("corner", i, PieceNames::Corner(i), &frmBMP::GenerateCornerImage));
    for (int i = 0; i < basTAVL::kTokens; ++i)
        entries.append(MadeEntry("token", i, PieceNames::Token(i), &frmBMP::GenerateTokenImage));
}

void AddCards(QList<Entry>& entries) {
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (BoardFacts::IsForSale(i))
            entries.append({{WordOf("deed", i), PieceNames::Deed(i)}, [i] { return Deed(i); }});
    }
    for (int i = 0; i < basTAVL::kNewsSets * basTAVL::kCards; ++i) {
        const int deck = i / basTAVL::kCards;
        const int card = i % basTAVL::kCards;
        const QString name = deck == 0 ? QStringLiteral("Good News card %1") : QStringLiteral("Bad News card %1");
        entries.append(
            {{QStringLiteral("card-%1-%2").arg(deck).arg(card), name.arg(card + 1)}, [i] { return Card(i); }});
    }
    constexpr const char* kNotes[] = {"The $100 note", "The $500 note", "The $1,000 note", "The $5,000 note"};
    for (int i = 0; i < basTAVL::kMoney; ++i)
        entries.append(MadeEntry("note", i, QString::fromLatin1(kNotes[i]), &frmBMP::GenerateMoneyImage));
}

QList<Entry> Entries() {
    QList<Entry> entries;
    AddBoard(entries);
    AddCards(entries);
    return entries;
}

} // namespace

QList<Piece> All() {
    QList<Piece> all;
    for (const Entry& entry : Entries())
        all.append(entry.piece);
    return all;
}

std::optional<PrintedText> Draw(const QString& sWord) {
    // Whoever asks may be in the middle of a drawing.
    const DrawingAside aside;
    for (const Entry& entry : Entries()) {
        if (entry.piece.sWord == sWord) return entry.draw();
    }
    return std::nullopt;
}

} // namespace PieceDrawing
