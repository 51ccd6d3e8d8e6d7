// SPDX-License-Identifier: MIT
#include "pictures/SeenPictures.h"

#include "services/basPath.h"

#include <algorithm>

namespace SeenPictures {
namespace {

// Some dozens of games; the pictures seen last stand last.
constexpr qsizetype kMostKept = 2000;

struct Seen {
    Files::Stamp stamp;
    QString sFile;
    friend bool operator==(const Seen&, const Seen&) = default;
};

// "1700000000000 123456 /home/anna/Pictures/cat.jpg"
Seen Read(const QString& sLine) {
    const QString date = sLine.section(u' ', 0, 0);
    const QString size = sLine.section(u' ', 1, 1);
    bool dated = false;
    bool sized = false;
    const Files::Stamp stamp{date.toLongLong(&dated), size.toLongLong(&sized)};
    return dated && sized ? Seen{stamp, sLine.section(u' ', 2)} : Seen();
}

QString Written(const Seen& seen) {
    return QStringLiteral("%1 %2 %3").arg(seen.stamp.modifiedMs).arg(seen.stamp.size).arg(seen.sFile);
}

QList<Seen> All() {
    QList<Seen> all;
    QString error;
    if (!Files::Exists(Path())) return all;
    const QString text = QString::fromUtf8(Files::ReadAll(Path(), error).value_or(QByteArray()));
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const Seen seen = Read(line);
        if (!seen.sFile.isEmpty()) all.append(seen);
    }
    return all;
}

} // namespace

QString Path() { return basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral(".tavlora.pictures")); }

void Note(const QStringList& files) {
    const QList<Seen> before = All();
    QList<Seen> after = before;
    for (const QString& file : files) {
        const Seen seen{Files::StampOf(file), file};
        if (seen.stamp == Files::Stamp() || file.contains(u'\n') || after.contains(seen)) continue;
        after.removeIf([&file](const Seen& other) { return other.sFile == file; });
        after.append(seen);
    }
    if (after == before) return;
    QStringList lines;
    for (const Seen& seen : after.mid(std::max<qsizetype>(after.size() - kMostKept, 0)))
        lines.append(Written(seen));
    QString error;
    // It can be had again at any time, so nobody waits for the disk.
    if (Files::Remove(Path(), error)) Files::WriteNew(Path(), lines.join(u'\n').toUtf8(), error);
}

Files::Stamp Of(const QString& sFile) {
    for (const Seen& seen : All()) {
        if (seen.sFile == sFile) return seen.stamp;
    }
    return {};
}

} // namespace SeenPictures
