// SPDX-License-Identifier: MIT
#include "windows/print/PrinterWatch.h"

#include "platform/printing/Printer.h"
#include "services/basErrLog.h"

#include <utility>

PrinterWatch::PrinterWatch(QObject* parent) : QObject(parent) {
    m_timer.setInterval(kLookEveryMs);
    connect(&m_timer, &QTimer::timeout, this, &PrinterWatch::Look);
}

void PrinterWatch::PageSent(const Printer& printer) {
    if (printer.DeviceName().isEmpty()) return;
    m_printer = &printer;
    m_looks = 0;
    if (!m_timer.isActive()) m_agreed = 0;
    m_timer.start();
}

void PrinterWatch::Look() try {
    if (!m_printer) return;
    const QString trouble = m_printer->Trouble();
    m_agreed = trouble == std::exchange(m_last, trouble) ? m_agreed + 1 : 1;
    if (trouble.isEmpty()) {
        if (++m_looks >= kLooks) m_timer.stop();
        return;
    }
    if (m_agreed < kLooksThatAgree || !MayTell()) return;
    m_timer.stop();
    m_last.clear();
    Tell(trouble);
} catch (...) {
    ErrTop("PrinterWatch!", "Look");
}
