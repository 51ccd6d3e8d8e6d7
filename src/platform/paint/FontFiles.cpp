// SPDX-License-Identifier: MIT
#include "platform/paint/FontFiles.h"

#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/files/FontPaths.h"
#include "platform/paint/FontFace.h"
#include "platform/paint/FontHead.h"

#include <QFontDatabase>
#include <QSet>

#include <algorithm>

namespace FontFiles {
namespace {

// Larger ones are whole libraries of styles, or no fonts at all.
constexpr qint64 kMostBytes = qint64(64) << 20;
// They stay in memory for the whole run.
constexpr qint64 kMostOfAFolder = qint64(64) << 20;

std::optional<FontHead> HeadOf(const QString& sPath) {
    QString error;
    BinaryFile file;
    if (Files::Size(sPath) > kMostBytes || !file.OpenForReading(sPath, error)) return std::nullopt;
    return FontHead::Read([&file](qint64 place, qint64 count) {
        file.Seek(place);
        return file.Bytes(count);
    });
}

bool Holds(const QStringList& names, const QString& sName) { return names.contains(sName, Qt::CaseInsensitive); }

// Brought by games in this run.
QSet<QString>& Brought() {
    static QSet<QString> paths;
    return paths;
}

bool IsAllKnown(const QStringList& families) { return std::all_of(families.begin(), families.end(), IsKnown); }

} // namespace

QHash<QString, QList<File>> Of(const QStringList& families) {
    QHash<QString, QList<File>> found;
    QHash<QString, QList<File>> ofSeries;
    if (families.isEmpty()) return found;
    for (const QString& path : FontPaths::Installed()) {
        const std::optional<FontHead> head = HeadOf(path);
        if (!head) continue;
        const bool free = head->bInstallable && (head->bFreeLicence || FontPaths::IsOfSystemPackages(path));
        const File file{path, Files::Size(path), free};
        for (const QString& family : families) {
            if (Holds(head->families, family)) found[family].append(file);
            if (Holds(head->series, family)) ofSeries[family].append(file);
        }
    }
    // A series may have dozens of weights; they are needed only where the family itself has no such name.
    for (auto each = ofSeries.constBegin(); each != ofSeries.constEnd(); ++each) {
        if (!found.contains(each.key())) found.insert(each.key(), each.value());
    }
    return found;
}

bool IsKnown(const QString& sFamily) { return QFontDatabase::hasFamily(sFamily); }

void UseFolder(const QString& sFolder) {
    bool any = false;
    QStringList wanted;
    qint64 room = kMostOfAFolder;
    for (const QString& path : FontPaths::In(sFolder)) {
        const std::optional<FontHead> head = HeadOf(path);
        const bool brought = Brought().contains(path);
        // Asked ahead of adding any, as bold and italic of one family come in files of their own.
        if (!head || (!brought && IsAllKnown(head->families)) || Files::Size(path) > room) continue;
        room -= Files::Size(path);
        if (!brought) wanted.append(path);
    }
    for (const QString& path : wanted) {
        any = QFontDatabase::addApplicationFont(path) >= 0 || any;
        Brought().insert(path);
    }
    if (any) FontFace::ForgetAll();
}

} // namespace FontFiles
