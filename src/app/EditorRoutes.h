// SPDX-License-Identifier: MIT
#pragma once

class frmTAVL;

/// The main window's doors to the editors and the other windows that it opens. Each shows its window modally over
/// the main window. Those of editors hand what was done to the main window's session, and tell whether the game has
/// changed.
class EditorRoutes {
public:
    virtual ~EditorRoutes() = default;
    virtual bool EditSpace(frmTAVL& main, int iSpace) = 0;
    virtual bool EditCorner(frmTAVL& main, int iCorner) = 0;
    virtual bool EditCenter(frmTAVL& main) = 0;
    /// 0 Good News, 1 Bad News.
    virtual bool ShowNews(frmTAVL& main, int iGoodOrBad) = 0;
    virtual bool EditMoney(frmTAVL& main) = 0;
    virtual bool ShowTokens(frmTAVL& main) = 0;
    /// Tells whether anything was printed, now or earlier in this run.
    virtual bool Print(frmTAVL& main) = 0;
    virtual bool PrintEverything(frmTAVL& main) = 0;
    virtual void CheckPrinter(frmTAVL& main) = 0;
    virtual void Setup(frmTAVL& main) = 0;
};
