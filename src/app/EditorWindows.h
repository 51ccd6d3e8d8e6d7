// SPDX-License-Identifier: MIT
#pragma once

#include "app/EditorRoutes.h"

class frmEditCenter;
class frmEditCorner;
class frmEditMoney;
class frmEditSpace;
class frmPrintTest;
class frmShowNews;
class frmShowTokens;
class frmTAVL;

/// The windows behind the main window's doors. Each is made when it is first opened and serves the whole
/// run.
class EditorWindows : public EditorRoutes {
public:
    explicit EditorWindows(frmTAVL& main) : m_main(main) {}

    bool EditSpace(int iSpace) override;
    bool EditCorner(int iCorner) override;
    bool EditCenter() override;
    bool ShowNews(int iGoodOrBad) override;
    bool EditMoney() override;
    bool ShowTokens() override;
    bool Print() override;
    void Setup() override;

private:
    /// A window that lets many records be changed has let one be changed: autosaved at once, so that a crash
    /// loses that one at most.
    void ChangedMeanwhile();
    /// All that the window now open has changed was autosaved as it changed.
    bool m_bToldAll = false;

    /// Owns the windows.
    frmTAVL& m_main;
    frmEditSpace* m_frmEditSpace = nullptr;
    frmEditCorner* m_frmEditCorner = nullptr;
    frmEditCenter* m_frmEditCenter = nullptr;
    frmEditMoney* m_frmEditMoney = nullptr;
    frmShowNews* m_frmShowNews = nullptr;
    frmShowTokens* m_frmShowTokens = nullptr;
    /// The door to the print console.
    frmPrintTest* m_frmPrintTest = nullptr;
};
