// SPDX-License-Identifier: MIT
#include "platform/WebPage.h"

#include "platform/Files.h"

#include <QDesktopServices>
#include <QUrl>

namespace WebPage {

bool Open(const QString& sLocalPath, const QString& sAddress) {
    if (Files::Exists(sLocalPath) && QDesktopServices::openUrl(QUrl::fromLocalFile(sLocalPath))) return true;
    return QDesktopServices::openUrl(QUrl(sAddress));
}

} // namespace WebPage
