// SPDX-License-Identifier: MIT
#include "board/basPositTables.h"
#include "check/Checks.h"
#include "check/LinesAnew.h"
#include "check/TextLimits.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/paint/Surface.h"
#include "platform/text/Numbers.h"

namespace {

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
        findings
            .Add(GamePiece::Titles(),
                 QStringLiteral("The %1 runs over its box on the board.").arg(QLatin1String(title.sName)),
                 QStringLiteral("Make it a few letters shorter."))
            .sheets.clear();
    }
    for (const PaperText& text : game.Texts()) {
        if (!TextLimits::LeavesPiece(text)) continue;
        findings
            .Add(text.piece, QStringLiteral("The text runs over its edge, where it will be cut off."),
                 QStringLiteral("Use fewer lines, or a smaller font."))
            .sheets = text.sheets;
    }
}

template <>
std::optional<Edit> MendFinding<class TextEdge>(const Game& game, const Finding& finding, const QString&) {
    return LinesAnew(game, finding.piece);
}
