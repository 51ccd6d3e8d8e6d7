// SPDX-License-Identifier: MIT
#include "windowing/WebPage.h"

#include "platform/files/Files.h"

#include <QDesktopServices>
#include <QUrl>

namespace WebPage {

QString AddressOf(const QString& sLocalPath) { return QUrl::fromLocalFile(sLocalPath).toString(); }

bool Open(const QString& sLocalPath, const QString& sAddress) {
    if (Files::Exists(sLocalPath) && QDesktopServices::openUrl(QUrl::fromLocalFile(sLocalPath))) return true;
    return QDesktopServices::openUrl(QUrl(sAddress));
}

} // namespace WebPage
