// SPDX-License-Identifier: MIT
#include "tools/PrintDesktop.h"

int PrintDesktop::MsgBox(const QString& sText, int iStyle, const QString& /*sTitle*/) {
    m_tell(sText.simplified());
    const int buttons = iStyle & 0xF;
    return buttons == vbYesNo || buttons == vbYesNoCancel ? vbYes : vbOK;
}
