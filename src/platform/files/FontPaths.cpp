// SPDX-License-Identifier: MIT
#include "platform/files/FontPaths.h"

#include <QDirIterator>
#include <QStandardPaths>

namespace FontPaths {
namespace {

void Append(QStringList& paths, const QString& sFolder, QDirIterator::IteratorFlags how) {
    static const QStringList patterns{QStringLiteral("*.ttf"), QStringLiteral("*.otf"), QStringLiteral("*.ttc"),
                                      QStringLiteral("*.otc")};
    QDirIterator files(sFolder, patterns, QDir::Files, how);
    while (files.hasNext())
        paths.append(files.next());
}

} // namespace

QStringList Installed() {
    QStringList paths;
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::FontsLocation))
        Append(paths, folder, QDirIterator::Subdirectories);
    paths.removeDuplicates();
    paths.sort();
    return paths;
}

QStringList In(const QString& sFolder) {
    QStringList paths;
    Append(paths, sFolder, QDirIterator::NoIteratorFlags);
    paths.sort();
    return paths;
}

bool IsOfSystemPackages(const QString& sPath) { return sPath.startsWith(QStringLiteral("/usr/share/fonts/")); }

} // namespace FontPaths
