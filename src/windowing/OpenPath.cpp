// SPDX-License-Identifier: MIT
#include "windowing/OpenPath.h"

#include "services/Desktop.h"

#include <QDesktopServices>
#include <QUrl>

bool OpenPath(const QString& sPath) { return QDesktopServices::openUrl(QUrl::fromLocalFile(sPath)); }

void OpenOrTell(const QString& sPath) {
    if (OpenPath(sPath)) return;
    MsgBox(QStringLiteral("Nothing on this computer opens it. It lies here:\r\n\r\n%1").arg(sPath), vbInformation);
}
