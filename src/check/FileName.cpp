// SPDX-License-Identifier: MIT
#include "check/FileName.h"

#include "services/basPath.h"

QString FileNameOf(const QString& sPath) {
    QString drive;
    QString folder;
    QString base;
    QString ending;
    basCommon::FileNameFactor(sPath, drive, folder, base, ending);
    const QString name = ending.isEmpty() ? base : base + u'.' + ending;
    return u'"' + name + u'"';
}
