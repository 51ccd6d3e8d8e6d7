// SPDX-License-Identifier: MIT
#include "check/FindingWords.h"

#include "document/Game.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace FindingWords {

QString LineOf(const Game& game, const Finding& finding) {
    return QStringLiteral("%1: %2: %3 %4")
        .arg(NameOf(finding.severity), finding.piece.NameIn(game), finding.sText, finding.sAdvice)
        .simplified();
}

QByteArray Json(const Game& game, const std::vector<Finding>& findings) {
    QJsonArray array;
    for (const Finding& finding : findings) {
        array.append(QJsonObject{{QStringLiteral("check"), finding.sCheck},
                                 {QStringLiteral("severity"), NameOf(finding.severity)},
                                 {QStringLiteral("piece"), finding.piece.Word()},
                                 {QStringLiteral("name"), finding.piece.NameIn(game)},
                                 {QStringLiteral("text"), finding.sText},
                                 {QStringLiteral("advice"), finding.sAdvice},
                                 {QStringLiteral("sheets"), QJsonArray::fromStringList(finding.sheets)}});
    }
    return QJsonDocument(array).toJson();
}

QString Summary(const std::vector<Finding>& findings) {
    const int serious = SeriousOnes(findings);
    if (serious == 0) return QStringLiteral("Nothing to look at");
    return serious == 1 ? QStringLiteral("1 thing to look at") : QStringLiteral("%1 things to look at").arg(serious);
}

int SeriousOnes(const std::vector<Finding>& findings) {
    return int(std::ranges::count_if(findings, &Finding::IsSerious));
}

} // namespace FindingWords
