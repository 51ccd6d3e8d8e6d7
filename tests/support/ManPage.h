// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QString>

/// What a program says about its arguments and what its manual page says are told twice, and have to be the same.
namespace ManPage {

/// Every option that a text names, each once, in their order and parted by blanks.
inline std::string OptionsIn(const QString& text) {
    const QRegularExpression option(QStringLiteral("(?<![\\w-])(--[a-z][a-z-]*|-[a-z])\\b"));
    QSet<QString> found;
    for (auto match = option.globalMatch(text); match.hasNext();)
        found.insert(match.next().captured(1));
    QStringList options(found.begin(), found.end());
    options.sort();
    return options.join(u' ').toStdString();
}

/// Those that a page of ours tells.
inline std::string OptionsOf(const char* sName) {
    QFile file(QStringLiteral(TAVLORA_SOURCE_DIR "/packaging/") + QString::fromLatin1(sName));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return OptionsIn(QString::fromUtf8(file.readAll()).replace(QStringLiteral("\\-"), QStringLiteral("-")));
}

} // namespace ManPage
