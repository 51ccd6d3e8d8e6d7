// SPDX-License-Identifier: MIT
#include "windows/print/ChangePrinter.h"

#include "services/Desktop.h"

void ChangePrinter(CommonDialog& dlgCommon, bool bPrintStarted) {
    if (bPrintStarted) {
        MsgBox(QStringLiteral("Sorry, but you can't change printers once you have started the printing process.\r\n"
                              "Please stop and restart the program before changing printers."),
               vbInformation);
        return;
    }
    dlgCommon.bPrinterDefault = true;
    dlgCommon.sError.clear();
    dlgCommon.ShowPrinter();
    if (!dlgCommon.sError.isEmpty()) MsgBox(dlgCommon.sError, vbInformation);
}
