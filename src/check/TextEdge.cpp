// SPDX-License-Identifier: MIT
#include "board/basPositTables.h"
#include "check/Checks.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/paint/Surface.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

// Inches: nobody cuts more exactly, and slanted letters always reach a little over.
constexpr double kTolerance = 1.0 / 32;

double DistanceFromMiddle(QPointF point, QSizeF piece) {
    return std::hypot(point.x() - piece.width() / 2, point.y() - piece.height() / 2);
}

bool LeavesCircle(const QRectF& box, QSizeF piece) {
    const QPointF corners[] = {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()};
    return std::ranges::any_of(
        corners, [&](QPointF corner) { return DistanceFromMiddle(corner, piece) > piece.width() / 2 + kTolerance; });
}

bool LeavesBox(const QRectF& box, QSizeF piece) {
    const QRectF within = QRectF(QPointF(), piece).adjusted(-kTolerance, -kTolerance, kTolerance, kTolerance);
    return !within.contains(box);
}

bool LeavesPiece(const PaperText& text) {
    return std::ranges::any_of(text.written, [&](const WrittenText& line) {
        if (line.box.isEmpty()) return false;
        return text.bRound ? LeavesCircle(line.box, text.inches) : LeavesBox(line.box, text.inches);
    });
}

// On the board, measured as it is painted there, in parts of the board's width.
double WidthOnBoard(const SpecialText& text, const basPosit::CenterTextLook& look) {
    constexpr double kBoard = 10000;
    ScratchForm form(QSize(1, 1));
    basDraw::Draw_SetHdc(&form.hDC());
    basDraw::Draw_SetFont(look.Family(), CLng(kBoard * double(look.fFontHeight)),
                          CLng(kBoard * double(text.fFontWidth)), 0, 0, look.bBold, look.bItalic, false);
    const int width = basDraw::Draw_GetWidth(basTAVL::CRLF2Space(text.sText));
    basDraw::Draw_ReleaseObjects();
    return width / kBoard;
}

struct BoardTitle {
    int iRecord;
    basPosit::CenterBox box;
    const char* sName;
};
constexpr BoardTitle kBoardTitles[] = {{1, basPosit::kTitleBox, "title"}, {2, basPosit::kSubtitleBox, "subtitle"}};

} // namespace

template <>
void RunCheck<class TextEdge>(const CheckedGame& game, Findings& findings) {
    for (const BoardTitle& title : kBoardTitles) {
        const double width = WidthOnBoard(game.game.titles.Text(title.iRecord), basPosit::m_CenterLook(title.iRecord));
        if (width <= double(basPosit::m_CenterRect(title.box).Width())) continue;
        findings.Add(GamePiece::Titles(),
                     QStringLiteral("The %1 runs over its box on the board.").arg(QLatin1String(title.sName)),
                     QStringLiteral("Make it a few letters shorter."));
    }
    for (const PaperText& text : game.Texts()) {
        if (!LeavesPiece(text)) continue;
        findings.Add(text.piece, QStringLiteral("The text runs over its edge, where it will be cut off."),
                     QStringLiteral("Use fewer lines, or a smaller font."));
    }
}
