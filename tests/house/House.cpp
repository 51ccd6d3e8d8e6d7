// SPDX-License-Identifier: MIT
#include "House.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace House {
namespace {

// Faults are planted in a copy.
const QString kRoot = qEnvironmentVariable("TAVLORA_SOURCES", QStringLiteral(TAVLORA_SOURCE_DIR)) + u'/';

QString TextOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

Sources Read(const QStringList& folders) {
    Sources sources;
    for (const QString& folder : folders) {
        QDirIterator files(kRoot + folder, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            sources[path.mid(kRoot.size())] = TextOf(path);
        }
    }
    return sources;
}

QStringList IncludesOf(const QString& text) {
    static const QRegularExpression include(QStringLiteral("^#include \"([^\"]+)\""),
                                            QRegularExpression::MultilineOption);
    QStringList found;
    for (auto matches = include.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured(1));
    return found;
}

QString CodeOf(const QString& text) {
    static const QRegularExpression silent(QStringLiteral(R"re(//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*")re"),
                                           QRegularExpression::DotMatchesEverythingOption);
    QString code = text;
    return code.remove(silent);
}

Floors::Floors(const QString& table) {
    for (const QString& row : table.split(u'\n', Qt::SkipEmptyParts)) {
        if (row.startsWith(u'#')) continue;
        const QStringList words = row.simplified().split(u' ');
        m_folders.append(words.first());
        if (words.contains(QStringLiteral("beside"))) m_beside.append(words.first());
    }
}

const Floors& Floors::OfTheHouse() {
    static const Floors floors(TextOf(kRoot + QStringLiteral("src/floors.txt")));
    return floors;
}

int Floors::Of(const QString& path) const {
    for (int floor = 0; floor < m_folders.size(); ++floor) {
        if (path.startsWith(m_folders[floor] + u'/')) return floor;
    }
    return kNone;
}

bool Floors::MayInclude(int from, int target) const {
    if (from == target || target == kNone) return true;
    return target < from && !m_beside.contains(m_folders[target]);
}

QString WithinTop(const QString& path) { return path.mid(path.indexOf(u'/') + 1); }

} // namespace House
