// SPDX-License-Identifier: MIT
#include "app/EditorWindows.h"

#include "app/frmTAVL.h"
#include "app/GameKit.h"
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

bool EditorWindows::EditSpace(int iSpace) {
    if (!m_frmEditSpace) m_frmEditSpace = new frmEditSpace(&m_main);
    bool changed = false;
    m_frmEditSpace->ShowForm(iSpace, changed);
    return changed;
}

bool EditorWindows::EditCorner(int iCorner) {
    if (!m_frmEditCorner) m_frmEditCorner = new frmEditCorner(&m_main);
    bool changed = false;
    m_frmEditCorner->ShowForm(iCorner, changed);
    return changed;
}

bool EditorWindows::EditCenter() {
    if (!m_frmEditCenter) m_frmEditCenter = new frmEditCenter(&m_main);
    bool changed = false;
    m_frmEditCenter->ShowForm(changed);
    return changed;
}

bool EditorWindows::ShowNews(int iGoodOrBad) {
    if (!m_frmShowNews) {
        m_frmShowNews = new frmShowNews(&m_main);
        m_frmShowNews->TellChange = std::bind_front(&EditorWindows::ChangedMeanwhile, this);
    }
    bool changed = false;
    m_bToldAll = false;
    m_frmShowNews->ShowForm(iGoodOrBad, changed);
    return changed && !m_bToldAll;
}

void EditorWindows::ChangedMeanwhile() {
    m_bToldAll = false;
    m_main.Commands().SetSomethingChanged(true);
    m_bToldAll = true;
}

bool EditorWindows::EditMoney() {
    if (!m_frmEditMoney) m_frmEditMoney = new frmEditMoney(&m_main);
    return m_frmEditMoney->ShowForm();
}

bool EditorWindows::ShowTokens() {
    if (!m_frmShowTokens) {
        m_frmShowTokens = new frmShowTokens(&m_main);
        m_frmShowTokens->TellChange = std::bind_front(&EditorWindows::ChangedMeanwhile, this);
    }
    bool changed = false;
    m_bToldAll = false;
    m_frmShowTokens->ShowForm(changed);
    return changed && !m_bToldAll;
}

bool EditorWindows::Print() {
    if (!m_frmPrintTest) {
        m_frmPrintTest = new frmPrintTest(&m_main);
        m_frmPrintTest->Console().TellInPrint = std::bind_front(&frmTAVL::SetInPrint, &m_main);
    }
    return m_frmPrintTest->ShowForm(m_main.m_bPrintedSomething);
}

void EditorWindows::Setup() {
    // A new one each time, so that it shows what holds and not what was given up.
    if (frmColor(&m_main).ShowForm()) GameKit::SetPrintBlack(Settings().sProgramName);
}
