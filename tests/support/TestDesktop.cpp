// SPDX-License-Identifier: MIT
#include "support/TestDesktop.h"

#include "support/Spelling.h"

TestDesktop::TestDesktop() : m_before(Desktop::Install(this)) {}
TestDesktop::~TestDesktop() { Desktop::Install(m_before); }

int TestDesktop::MsgBox(const QString& sText, int iStyle, const QString& sTitle) {
    Spelling::ExpectKnown(sText, Spelling::Names::Within);
    boxes.append({sText, iStyle, sTitle});
    if (onBox) onBox();
    if (!answers.isEmpty()) return answers.takeFirst();
    const int buttons = iStyle & 0xF;
    return buttons == vbYesNo || buttons == vbYesNoCancel ? vbYes : vbOK;
}

bool TestDesktop::ShowOpen(CommonDialog& dialog) { return onDialog && onDialog(dialog); }
bool TestDesktop::ShowSave(CommonDialog& dialog) { return onDialog && onDialog(dialog); }
bool TestDesktop::ShowFont(CommonDialog& dialog) { return onDialog && onDialog(dialog); }
bool TestDesktop::ShowPrinter(CommonDialog& dialog) { return onDialog && onDialog(dialog); }

void TestDesktop::EndProgram(int iStatus) {
    ended = true;
    throw ProgramEnded(iStatus);
}

QStringList TestDesktop::Texts() const {
    QStringList texts;
    for (const Box& box : boxes)
        texts.append(box.sText);
    return texts;
}
