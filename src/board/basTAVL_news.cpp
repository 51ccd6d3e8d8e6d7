// SPDX-License-Identifier: MIT
#include "board/basTAVL_news.h"

#include "board/basPositFit.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/paint/ClipScope.h"
#include "platform/paint/Units.h"
#include "platform/text/NewLine.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

namespace basTAVL {
namespace {

constexpr int kBackgroundPen = 1;
constexpr int kTitlePen = 2;
constexpr int kTitleHeight = 24;
// Letters narrower than this would fall back on the font's own width, which is wider by far.
constexpr int kSmallestLetter = 1;
constexpr int kSmallestText = 2;
// Negative: titles are stretched or squeezed to exactly this width.
constexpr int kTitleLimit = -180;
constexpr int kMiddle = kNewsCardWidth / 2;
constexpr int kTitleTop = 10;

constexpr double kPointsPerInch = 72;

void DrawBox(const QRect& box, int penWidth) {
    basDraw::Draw_SetPen(PenStyle::Solid, penWidth, Color::Black());
    basDraw::Draw_SetBrush(Color::White());
    basDraw::Draw_Rect(box.x(), box.y(), box.x() + box.width(), box.y() + box.height());
}

// Those that a box shows any of, with the top of the first: thousands may stand above and below it.
struct SeenLines {
    QStringList lines;
    int top;
};

SeenLines SeenIn(const QRect& box, const QStringList& lines, int height) {
    const int top = CLng((box.height() - double(lines.size()) * height) / 2 + box.y());
    const int above = std::max((box.top() - top) / height, 0);
    const int most = box.height() / height + 2;
    return {lines.mid(above, most), top + above * height};
}

int LargestHeight(const C_FontInfo& font) { return CLng(font.Size * kScreenDotsPerInch / kPointsPerInch); }

int FittedHeight(const C_FontInfo& font, const QStringList& lines) {
    const int fitted = basPosit::Pos_ComputeSize(font.Family, font.Bold, font.Italic, lines, int(lines.size()),
                                                 kNewsTextBox.width(), kNewsTextBox.height());
    return std::max(std::min(fitted, LargestHeight(font)), kSmallestText);
}

} // namespace

QString NewsDeckName(int iGoodOrBad) {
    return iGoodOrBad == 0 ? QStringLiteral("Good News") : QStringLiteral("Bad News");
}

QStringList NewsTextLines(const QString& sText) { return sText.split(kNewLine); }

void NewsDrawBackgroundToScreen(DeviceContext* hDC, int x, int y) try {
    basDraw::Draw_SetHdc(hDC);
    DrawBox({x, y, kNewsCardWidth, kNewsCardHeight}, kBackgroundPen);
    basDraw::Draw_ReleaseObjects();
} catch (...) {
    ErrTail("basTAVL!", "NewsDrawBackgroundToScreen", x, y);
}

void NewsDrawTitleToScreen(DeviceContext* hDC, int x, int y, int iGoodOrBad, const QString& sTitle,
                           const C_FontInfo& oFont) try {
    basDraw::Draw_SetHdc(hDC);
    const QRect frame = kNewsTitleFrame.translated(x, y);
    DrawBox(frame, kTitlePen);
    const QString title = CRLF2Space(sTitle);
    const int width =
        basPosit::Pos_ComputeSetWidth(oFont.Family, oFont.Bold, oFont.Italic, kTitleHeight, title, kTitleLimit);
    basDraw::Draw_SetFont(oFont.Family, kTitleHeight, std::max(width, kSmallestLetter), 0, 0, oFont.Bold, oFont.Italic,
                          false);
    {
        const ClipScope inside(*hDC, frame.adjusted(kTitlePen, kTitlePen, -kTitlePen, -kTitlePen));
        basDraw::Draw_TextArrayShowingSelection({title}, QStringLiteral("C"), x + kMiddle, y + kTitleTop,
                                                Color::Black());
    }
    basDraw::Draw_ReleaseObjects();
} catch (...) {
    ErrTail("basTAVL!", "NewsDrawTitleToScreen", x, y, iGoodOrBad, sTitle);
}

void NewsDrawTextToScreen(DeviceContext* hDC, int x, int y, int iGoodOrBad, const C_News& oNews) try {
    basDraw::Draw_SetHdc(hDC);
    const C_FontInfo& font = oNews.FontBody;
    const QStringList lines = NewsTextLines(oNews.Text());
    const int height = FittedHeight(font, lines);
    basDraw::Draw_SetFont(font.Family, height, CLng(height / 2.0), 0, 0, font.Bold, font.Italic, false);
    const QRect box = kNewsTextBox.translated(x, y);
    const SeenLines seen = SeenIn(box, lines, height);
    {
        // A text that even the smallest letters can't hold would run over the neighbouring cards.
        const ClipScope inside(*hDC, box);
        basDraw::Draw_TextArrayShowingSelection(seen.lines, QStringLiteral("C"), x + kMiddle, seen.top, Color::Black());
    }
    basDraw::Draw_ReleaseObjects();
} catch (...) {
    ErrTail("basTAVL!", "NewsDrawTextToScreen", x, y, iGoodOrBad, oNews.Text());
}

} // namespace basTAVL
