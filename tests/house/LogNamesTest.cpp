// SPDX-License-Identifier: MIT
// The log tells by which routines a failure came up, each with its module. A name that no code bears would send whoever
// reads it looking for nothing.
#include "House.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace House;

namespace {

// Modules that are no class and no namespace, and a corner of the board.
const QStringList kModulesOnly{QStringLiteral("main"), QStringLiteral("basCheck"), QStringLiteral("Fate")};
// What is done at an event and has no routine of its own.
const QStringList kHandlersOnly{QStringLiteral("CalledByAnotherStart"), QStringLiteral("MenuTriggered"),
                                QStringLiteral("cmdSideHandle_Click"), QStringLiteral("notify")};

const Sources& Code() {
    static const Sources sources = Read({QStringLiteral("src")});
    return sources;
}

QSet<QString> CapturedIn(const QString& text, const QString& sPattern) {
    const QRegularExpression pattern(sPattern, QRegularExpression::MultilineOption);
    QSet<QString> found;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        found.insert(matches.next().captured(1));
    return found;
}

} // namespace

TEST(LogNames, EachModuleIsAClassOrANamespace) {
    QSet<QString> declared(kModulesOnly.begin(), kModulesOnly.end());
    for (const QString& text : Code())
        declared += CapturedIn(text, QStringLiteral(R"(^(?:class|struct|namespace) (?:\w+::)*(\w+))"));
    QSet<QString> named;
    for (const QString& text : Code())
        named += CapturedIn(text, QStringLiteral(R"re("(\w+)!")re"));
    EXPECT_GT(named.size(), 40);
    EXPECT_EQ(QStringList((named - declared).values()).join(u' ').toStdString(), "");
}

TEST(LogNames, EachRoutineIsOneOfItsFileOrAnEventsName) {
    const QString pattern = QStringLiteral(R"re(\bErr(?:Top|Tail)\([^"()]*(?:"\w+!", )?"(\w+)")re");
    QSet<QString> called(kHandlersOnly.begin(), kHandlersOnly.end());
    for (const QString& text : Code())
        called += CapturedIn(CodeOf(text), QStringLiteral(R"(\b(\w+_\w+)\()"));
    QStringList wrong;
    qsizetype names = 0;
    for (auto file = Code().begin(); file != Code().end(); ++file) {
        const QSet<QString> own = CapturedIn(CodeOf(file.value()), QStringLiteral(R"(\b(\w+)\()"));
        const QSet<QString> named = CapturedIn(file.value(), pattern);
        names += named.size();
        for (const QString& routine : named - own - called)
            wrong.append(file.key() + QStringLiteral(": ") + routine);
    }
    EXPECT_GT(names, 300);
    EXPECT_EQ(wrong.join(u'\n').toStdString(), "");
}
