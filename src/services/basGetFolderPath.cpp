// SPDX-License-Identifier: MIT
#include "services/basGetFolderPath.h"

#include "platform/files/Folders.h"

namespace basGetFolderPath {

QString GetFolderPath(int lFolder, int /*lFlags*/) {
    return lFolder == kPersonalFolder ? TrimNull(Folders::Documents()) : QString();
}

QString TrimNull(const QString& sText) {
    const qsizetype end = sText.indexOf(QChar(0));
    return end < 0 ? sText : sText.left(end);
}

} // namespace basGetFolderPath
