// SPDX-License-Identifier: MIT
#include "kit/LabelSheet.h"

#include "platform/printing/Printer.h"
#include "render/clsRenderDestination.h"
#include "services/Desktop.h"

namespace LabelSheet {

void Begin(SheetJob& job, clsRenderDestination& sheet) {
    sheet.Init(job.printer, 1.0);
    // Captions are slanted when the sheet before has left its font so.
    job.printer.FontItalic = false;
}

bool Tell(const char* sText) {
    MsgBox(QString::fromLatin1(sText));
    return false;
}

} // namespace LabelSheet
