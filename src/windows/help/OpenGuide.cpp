// SPDX-License-Identifier: MIT
#include "windows/help/OpenGuide.h"

#include "services/Desktop.h"
#include "services/Guide.h"
#include "windowing/WebPage.h"

void OpenGuide(const QString& sPage, const QString& sAddress) {
    const QString path = Guide::PathOf(sPage);
    if (WebPage::Open(path, sAddress.isEmpty() ? WebPage::AddressOf(path) : sAddress)) return;
    MsgBox(QStringLiteral("No web browser was found on this computer. The instructions are in this file:\r\n\r\n%1"
                          "\r\n\r\nA browser on any other computer shows them too.")
               .arg(path),
           vbInformation);
}
