// SPDX-License-Identifier: MIT
#include "windows/check/NoProblems.h"

#include "services/basCommon.h"

#include <QCryptographicHash>
#include <QStringList>

namespace NoProblems {
namespace {

// Neither a path nor a sentence may stand in a key or make a settings file long.
QString ShortOf(const QString& sText) {
    constexpr int kDigits = 12;
    return QString::fromLatin1(
        QCryptographicHash::hash(sText.toUtf8(), QCryptographicHash::Sha1).toHex().left(kDigits));
}

QString KeyOf(const QString& sGame) { return QStringLiteral("NoProblem_") + ShortOf(sGame); }

QStringList Kept(const QString& sGame) { return basCommon::GetIniString(KeyOf(sGame)).split(u' ', Qt::SkipEmptyParts); }

} // namespace

bool Holds(const QString& sGame, const Finding& finding) { return Kept(sGame).contains(ShortOf(finding.Key())); }

void Add(const QString& sGame, const Finding& finding) {
    QStringList kept = Kept(sGame);
    const QString added = ShortOf(finding.Key());
    if (kept.contains(added)) return;
    kept.append(added);
    basCommon::WriteIniString(KeyOf(sGame), kept.join(u' '));
}

void ForgetAll(const QString& sGame) { basCommon::WriteIniString(KeyOf(sGame), QString()); }

} // namespace NoProblems
