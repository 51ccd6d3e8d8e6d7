// SPDX-License-Identifier: MIT
#include "app/EditorWindows.h"

#include "editors/frmEditCenter.h"
#include "editors/frmEditCorner.h"
#include "editors/frmEditMoney.h"
#include "editors/frmEditSpace.h"
#include "editors/frmShowNews.h"
#include "editors/frmShowTokens.h"
#include "platform/Desktop.h"

namespace {

bool SayThatItIsToCome(const QString& sWhat) {
    MsgBox(sWhat + QStringLiteral(" is not part of the program yet."), vbInformation);
    return false;
}

} // namespace

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
    if (!m_frmShowNews) m_frmShowNews = new frmShowNews(&m_main);
    bool changed = false;
    m_frmShowNews->ShowForm(iGoodOrBad, changed);
    return changed;
}

bool EditorWindows::EditMoney() {
    if (!m_frmEditMoney) m_frmEditMoney = new frmEditMoney(&m_main);
    return m_frmEditMoney->ShowForm();
}

bool EditorWindows::ShowTokens() {
    if (!m_frmShowTokens) m_frmShowTokens = new frmShowTokens(&m_main);
    bool changed = false;
    m_frmShowTokens->ShowForm(changed);
    return changed;
}

bool EditorWindows::Print() { return SayThatItIsToCome(QStringLiteral("The print console")); }

void EditorWindows::Setup() { SayThatItIsToCome(QStringLiteral("The setup of colours")); }
