// SPDX-License-Identifier: MIT
#include "windows/help/WhatIsThis.h"

#include <QRegularExpression>

namespace {

using WhatIsThis::Row;

const char* Find(const QString& sWindow, const QString& sControl) {
    for (const auto rows : {WhatIsThis::OfMainWindow(), WhatIsThis::OfMenus(), WhatIsThis::OfEditors(),
                            WhatIsThis::OfPicturesAndPrinting()}) {
        for (const Row& row : rows) {
            if (sWindow == QLatin1String(row.sWindow) && sControl == QLatin1String(row.sControl)) return row.sText;
        }
    }
    return nullptr;
}

// "cmdPrint_3" belongs to "cmdPrint_".
QString ArrayOf(const QString& sControl) {
    static const QRegularExpression number(QStringLiteral("_\\d+$"));
    QString array = sControl;
    return array.replace(number, QStringLiteral("_"));
}

} // namespace

QString WhatIsThis::TextOf(const QString& sWindow, const QString& sControl) {
    for (const QString& window : {sWindow, QStringLiteral("*")}) {
        for (const QString& control : {sControl, ArrayOf(sControl)}) {
            if (const char* const text = Find(window, control)) return QString::fromUtf8(text);
        }
    }
    return {};
}
