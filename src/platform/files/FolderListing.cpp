// SPDX-License-Identifier: MIT
#include "platform/files/FolderListing.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <utility>
#include <vector>

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

// Where no language is set, that of no language knows no numbers: "cat 10" would come before "cat 2".
QLocale Language() { return QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale(); }

// The toolkit's own sorting goes by character codes: Z would come before a.
QStringList Sorted(const QStringList& names) {
    QCollator order(Language());
    order.setCaseSensitivity(Qt::CaseInsensitive);
    order.setNumericMode(true);
    // A key each: comparing two names takes as long as making one, and folders hold thousands.
    std::vector<std::pair<QCollatorSortKey, qsizetype>> keys;
    keys.reserve(size_t(names.size()));
    for (qsizetype i = 0; i < names.size(); ++i)
        keys.emplace_back(order.sortKey(names[i]), i);
    std::stable_sort(keys.begin(), keys.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    QStringList sorted;
    sorted.reserve(names.size());
    for (const auto& [key, i] : keys)
        sorted.append(names[i]);
    return sorted;
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
