// SPDX-License-Identifier: MIT
#include "platform/files/FolderListing.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace FolderListing {
namespace {

bool CanBeListed(const QString& sFolder, QString& sError) {
    const QFileInfo info(sFolder);
    if (!info.isDir()) {
        sError = QStringLiteral("There is no such folder");
        return false;
    }
    if (!info.isReadable() || !info.isExecutable()) {
        sError = QStringLiteral("You have no right to look into this folder");
        return false;
    }
    return true;
}

// The toolkit's own sorting goes by character codes: Z would come before a.
QStringList Sorted(QStringList names) {
    QCollator order;
    order.setCaseSensitivity(Qt::CaseInsensitive);
    order.setNumericMode(true);
    std::stable_sort(names.begin(), names.end(), order);
    return names;
}

} // namespace

std::optional<QStringList> Files(const QString& sFolder, const QStringList& patterns, QString& sError) {
    if (!CanBeListed(sFolder, sError)) return std::nullopt;
    return Sorted(QDir(sFolder).entryList(patterns, QDir::Files, QDir::Unsorted));
}

std::optional<QStringList> Folders(const QString& sFolder, QString& sError) {
    if (!CanBeListed(sFolder, sError)) return std::nullopt;
    return Sorted(QDir(sFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted));
}

} // namespace FolderListing
