// SPDX-License-Identifier: MIT
// The rules, with what the game calls itself, its news spaces and its corners.
#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "kit/SheetJob.h"
#include "platform/printing/Printer.h"
#include "render/clsRenderDestination.h"

namespace {

QString SpaceName(int iSpace) { return basTAVL::CRLF2Space(basTAVL::g_oSpaces(iSpace).TextAll()); }
QString CornerName(int iCorner) { return basTAVL::CRLF2Space(basTAVL::g_oCorners(iCorner).TextAll(0)); }

// The texts of the game in memory, each on one line.
InstructionNames NamesOfGame() {
    // The game's own word follows the title directly, as on the board.
    const QString title = basPosit::m_CenterText(1).sText + basPosit::m_CenterText(0).sText;
    return {basTAVL::CRLF2Space(title),
            SpaceName(BoardFacts::kNewsSpaces[0]),
            SpaceName(BoardFacts::kNewsSpaces[1]),
            CornerName(0),
            CornerName(1),
            CornerName(2),
            CornerName(3)};
}

} // namespace

template <>
bool PaintSheet<class RulesSheet>(SheetJob& job, int) {
    // Blocks of text leave the colour to their caller.
    job.printer.ForeColor = basTAVL::g_lPrintBlack();
    clsRenderDestination destination;
    destination.Init(job.printer, 1.0);
    QString why;
    return destination.InstructionSheet(NamesOfGame(), why) || job.Lacks(QStringLiteral("The rules"), why);
}
