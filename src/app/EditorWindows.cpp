// SPDX-License-Identifier: MIT
#include "app/EditorWindows.h"

#include "app/frmTAVL.h"
#include "kit/GameKit.h"
#include "services/ProgramSettings.h"
#include "windows/editors/frmEditCenter.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditMoney.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/editors/frmShowNews.h"
#include "windows/editors/frmShowTokens.h"
#include "windows/print/frmColor.h"
#include "windows/print/frmPrintTest.h"
#include "windows/print/frmTavlPrint.h"

bool EditorWindows::EditSpace(frmTAVL& main, int iSpace) {
    if (!m_frmEditSpace) m_frmEditSpace = new frmEditSpace(main.Commands().InHand(), &main);
    bool changed = false;
    m_frmEditSpace->ShowForm(iSpace, changed);
    return changed;
}

bool EditorWindows::EditCorner(frmTAVL& main, int iCorner) {
    if (!m_frmEditCorner) m_frmEditCorner = new frmEditCorner(main.Commands().InHand(), &main);
    bool changed = false;
    m_frmEditCorner->ShowForm(iCorner, changed);
    return changed;
}

bool EditorWindows::EditCenter(frmTAVL& main) {
    if (!m_frmEditCenter) m_frmEditCenter = new frmEditCenter(main.Commands().InHand(), &main);
    bool changed = false;
    m_frmEditCenter->ShowForm(changed);
    return changed;
}

bool EditorWindows::ShowNews(frmTAVL& main, int iGoodOrBad) {
    if (!m_frmShowNews) m_frmShowNews = new frmShowNews(main.Commands().InHand(), &main);
    bool changed = false;
    m_frmShowNews->ShowForm(iGoodOrBad, changed);
    return changed;
}

bool EditorWindows::EditMoney(frmTAVL& main) {
    if (!m_frmEditMoney) m_frmEditMoney = new frmEditMoney(main.Commands().InHand(), &main);
    return m_frmEditMoney->ShowForm();
}

bool EditorWindows::ShowTokens(frmTAVL& main) {
    if (!m_frmShowTokens) m_frmShowTokens = new frmShowTokens(main.Commands().InHand(), &main);
    bool changed = false;
    m_frmShowTokens->ShowForm(changed);
    return changed;
}

frmPrintTest& EditorWindows::PrintDoor(frmTAVL& main) {
    if (!m_frmPrintTest) {
        m_frmPrintTest = new frmPrintTest(&main);
        frmTavlPrint& console = m_frmPrintTest->Console();
        console.TellInPrint = std::bind_front(&frmTAVL::SetInPrint, &main);
        console.MayPrint = [&main, &console](QDialog& window, const QStringList& sheets) {
            const PrintQuestion::Answer answer = main.Check().BeforePrinting(sheets, &window);
            if (answer == PrintQuestion::Answer::ShowMe) {
                // What is shown lies behind them.
                window.reject();
                console.reject();
            }
            return answer == PrintQuestion::Answer::PrintAnyway;
        };
    }
    return *m_frmPrintTest;
}

bool EditorWindows::Print(frmTAVL& main) { return PrintDoor(main).ShowForm(main.HasPrintedSomething()); }

bool EditorWindows::PrintEverything(frmTAVL& main) {
    return PrintDoor(main).Console().ShowEverything(main.HasPrintedSomething());
}

void EditorWindows::CheckPrinter(frmTAVL& main) { PrintDoor(main).Console().ShowCheckPrinter(); }

void EditorWindows::Setup(frmTAVL& main) {
    // A new one each time, so that it shows what holds and not what was given up.
    if (frmColor(&main).ShowForm()) GameKit::SetPrintBlack(Settings().sProgramName);
}
