// SPDX-License-Identifier: MIT
#include "windows/print/PageUnderWay.h"

#include "drawing/basDraw.h"
#include "platform/printing/Printer.h"

PageUnderWay::PageUnderWay(QWidget& window, Printer& printer, const std::function<void(bool)>& tellInPrint)
    : m_printer(printer), m_tellInPrint(tellInPrint), m_focus(window.focusWidget()), m_hDC(basDraw::Draw_Hdc()) {
    m_tellInPrint(true);
    window.setEnabled(true);
    if (m_focus) m_focus->setFocus();
}

PageUnderWay::~PageUnderWay() {
    // What a failure has left selected belongs to a page that is gone; the board would be painted with it.
    basDraw::Draw_Abandon(m_hDC);
    m_printer.KillDoc();
    m_tellInPrint(false);
}
