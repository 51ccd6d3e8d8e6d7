// SPDX-License-Identifier: MIT
#include "kit/RulesSheet.h"

#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "platform/Printer.h"
#include "services/basErrLog.h"

namespace {

QString SpaceName(int iSpace) { return basTAVL::CRLF2Space(basTAVL::g_oSpaces(iSpace).TextAll()); }
QString CornerName(int iCorner) { return basTAVL::CRLF2Space(basTAVL::g_oCorners(iCorner).TextAll(0)); }

} // namespace

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

bool PrintRulesSheet(SheetJob& job) try {
    // The sheet before this one may have left its own.
    job.printer.ForeColor = basTAVL::g_lPrintBlack();
    clsRenderDestination destination;
    destination.Init(job.printer, 1.0);
    return destination.InstructionSheet(NamesOfGame());
} catch (...) {
    ErrTail("frmTavlPrint!", "PrintRulesSheet");
}
