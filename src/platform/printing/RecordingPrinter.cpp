// SPDX-License-Identifier: MIT
#include "platform/printing/RecordingPrinter.h"

RecordingPage& RecordingPrinter::Page() {
    if (!m_page) m_page = std::make_unique<RecordingPage>(SizeInPixels());
    return *m_page;
}

std::shared_ptr<const Recording> RecordingPrinter::Take() {
    std::shared_ptr<const Recording> taken = Page().Take();
    m_page.reset();
    return taken;
}
