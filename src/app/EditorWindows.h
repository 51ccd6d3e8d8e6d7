// SPDX-License-Identifier: MIT
#pragma once

#include "app/EditorRoutes.h"

#include <QPointer>

class frmEditCenter;
class frmEditCorner;
class frmEditMoney;
class frmEditSpace;
class frmPrintTest;
class frmShowNews;
class frmShowTokens;
class frmTAVL;

/// The windows behind the main window's doors. Each is made when it is first opened and serves the whole
/// run; the main window owns it.
class EditorWindows : public EditorRoutes {
public:
    bool EditSpace(frmTAVL& main, int iSpace) override;
    bool EditCorner(frmTAVL& main, int iCorner) override;
    bool EditCenter(frmTAVL& main) override;
    bool ShowNews(frmTAVL& main, int iGoodOrBad) override;
    bool EditMoney(frmTAVL& main) override;
    bool ShowTokens(frmTAVL& main) override;
    bool Print(frmTAVL& main) override;
    bool PrintEverything(frmTAVL& main) override;
    void CheckPrinter(frmTAVL& main) override;
    void Setup(frmTAVL& main) override;

private:
    frmPrintTest& PrintDoor(frmTAVL& main);

    QPointer<frmEditSpace> m_frmEditSpace;
    QPointer<frmEditCorner> m_frmEditCorner;
    QPointer<frmEditCenter> m_frmEditCenter;
    QPointer<frmEditMoney> m_frmEditMoney;
    QPointer<frmShowNews> m_frmShowNews;
    QPointer<frmShowTokens> m_frmShowTokens;
    /// The door to the print console.
    QPointer<frmPrintTest> m_frmPrintTest;
};
