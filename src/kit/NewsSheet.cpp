// SPDX-License-Identifier: MIT
#include "kit/NewsSheet.h"

#include "board/basPositTables.h"
#include "board/basTAVL_news.h"
#include "document/basTAVL.h"
#include "drawing/DrawDottedBox.h"
#include "kit/SheetJob.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/paint/RecordingForm.h"
#include "platform/printing/Printer.h"
#include "render/PiecePlace.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"

namespace {

constexpr int kColumns = 2;
constexpr int kBadNews = 1;

// In inches: cards lie edge to edge, the first one this far from both edges of the sheet.
constexpr double kFirst = 0.275;
constexpr double kCardWidth = 3.0;
constexpr double kCardHeight = 1.62;
constexpr double kDashInches = 0.05;
constexpr double kPenInches = 1.0 / 32;

constexpr InchBox kFrame{0.0625, 0.0675, 2.875, 0.375};
// The head's picture keeps clear of the frame by the width of its line.
constexpr InchBox kHead{0.125, kFrame.top + kPenInches, 2.75, kFrame.height - 2 * kPenInches};
constexpr InchBox kText{0.125, 0.52, 2.75, 1.0};

// Inches of nominal size for each point that the user chose.
constexpr double kInchesPerPoint = 0.0118;

void DrawFrame(Surface& surface, const PiecePlace& place, bool bFilled) {
    const QRect box = place.Box(kFrame);
    const auto draw = [&](LineForm form) {
        surface.Line(box.x(), box.y(), box.x() + box.width(), box.y() + box.height(), basTAVL::g_lPrintBlack(), form);
    };
    if (bFilled) draw(LineForm::FilledBox);
    draw(LineForm::Box);
}

void PrintText(clsRenderDestination& destination, const PiecePlace& place, const C_News& news) {
    if (news.Text().isEmpty()) return;
    const QStringList lines = basTAVL::NewsTextLines(news.Text());
    const QRect box = place.Box(kText);
    const C_FontInfo& font = news.FontBody;
    // The text routine leaves the colour to its caller.
    destination.Destination().ForeColor = basTAVL::g_lPrintBlack();
    destination.MultiLineTextAutofitWithSize(
        lines, int(lines.size()), place.Length(double(font.Size) * kInchesPerPoint), font.Family, font.Bold,
        font.Italic, box.x(), box.y(), box.width(), box.height(), basTAVL::g_lPrintBlack());
}

} // namespace

template <>
bool PaintSheet<class NewsSheet>(SheetJob& job, int iWhich) {
    clsRenderDestination destination;
    destination.Init(job.printer, 1.0);
    bool whole = true;
    for (int i = 0; i < basTAVL::kCards; ++i) {
        job.Piece("Card", i + 1, basTAVL::kCards);
        job.Progress(CLng(i * 1000.0 / basTAVL::kCards));
        const int iRow = i / kColumns;
        const int lX = CLng((i % kColumns * kCardWidth + kFirst) * destination.DPI());
        const int lY = CLng((iRow * kCardHeight + kFirst) * destination.DPI());
        const bool printed = NewsRender(destination, lX, lY, iWhich, i);
        if (!printed) {
            whole = job.LacksPicture(
                (iWhich == kBadNews ? QStringLiteral("Bad News card %1") : QStringLiteral("Good News card %1"))
                    .arg(i + 1));
        }
    }
    return whole;
}

bool NewsRender(clsRenderDestination& destination, int lX, int lY, int iDeck, int iCard) try {
    const C_News& news = basTAVL::g_oNews(iDeck, iCard);
    Surface& surface = destination.Destination();
    const PiecePlace place(destination, lX, lY);
    basTAVL::DrawDottedBox(surface, lX, lY, place.X(kCardWidth), place.Y(kCardHeight), place.Length(kDashInches),
                           basTAVL::g_lNewsColor(iDeck));
    surface.DrawWidth = place.Length(kPenInches);

    QString file;
    const bool bad = iDeck == kBadNews;
    if (!NewsHeadBitmap(iDeck, news.FontHead, file)) {
        MsgBox(bad ? QStringLiteral("Cannot create bad news card bitmap.")
                   : QStringLiteral("Cannot create good news card bitmap."));
        return false;
    }
    DrawFrame(surface, place, bad);
    MadePicture::Paint(surface, file, place.Box(kHead));
    PrintText(destination, place, news);
    MadePicture::Delete(file);
    return true;
} catch (...) {
    ErrTail("clsRenderDestination!", "NewsRender", lX, lY, iDeck, iCard);
}

bool NewsHeadBitmap(int iDeck, const C_FontInfo& oFont, QString& sPath) {
    sPath = MadePicture::PathOf(QStringLiteral("TempNewsBMP%1.temp").arg(iDeck));
    Color ink = basTAVL::g_lPrintBlack();
    Color ground = Color::White();
    if (iDeck == kBadNews) std::swap(ink, ground);
    const QString& title = basPosit::m_CenterText(basTAVL::NewsTitleRecord(iDeck)).sText;
    return frmBMP::Instance().GenerateSingleLineImage(sPath, kFrame.width, kFrame.height, title, oFont.Family,
                                                      oFont.Bold, oFont.Italic, ink, ground);
}

PrintedText NewsTextOnPaper(const C_News& news) {
    RecordingPage page((NewsCardInches() * RecordingPage::kDotsPerInch).toSize());
    clsRenderDestination destination;
    destination.Init(page, 1.0);
    PrintText(destination, PiecePlace(destination, 0, 0), news);
    return PrintedText::AsMade(page.Take());
}

PrintedText NewsHeadOnPaper(const QString& sTitle, const C_FontInfo& oFont) {
    PrintedText head =
        frmBMP::RecordSingleLine(kFrame.width, kFrame.height, sTitle, oFont.Family, oFont.Bold, oFont.Italic);
    head.inches = QSizeF(kHead.width, kHead.height);
    return head;
}

CardGrid NewsGrid() { return {{kFirst, kFirst}, NewsCardInches(), kColumns, basTAVL::kCards / kColumns}; }

QSizeF NewsCardInches() { return {kCardWidth, kCardHeight}; }
