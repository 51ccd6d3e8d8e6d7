// SPDX-License-Identifier: MIT
#include "windowing/OpenPath.h"

#include <QDesktopServices>
#include <QUrl>

bool OpenPath(const QString& sPath) { return QDesktopServices::openUrl(QUrl::fromLocalFile(sPath)); }
