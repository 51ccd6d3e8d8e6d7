// SPDX-License-Identifier: MIT
// The page that tells what the program promises names tests. A test that was renamed or taken away leaves no promise
// behind that nobody keeps.
#include "House.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QString TextOf(const QString& sPath) {
    QFile file(QStringLiteral(TAVLORA_SOURCE_DIR "/") + sPath);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << sPath.toStdString();
    return QString::fromUtf8(file.readAll());
}

// "Suite.Name" of each, and "Suite.*".
QSet<QString> Tests() {
    static const QRegularExpression head(QStringLiteral(R"(^(?:TEST|TEST_F|TEST_P)\((\w+),\s*(\w+)\))"),
                                         QRegularExpression::MultilineOption);
    QSet<QString> tests;
    for (const QString& text : House::Read({QStringLiteral("tests")})) {
        for (const QRegularExpressionMatch& match : head.globalMatch(text)) {
            tests.insert(match.captured(1) + u'.' + match.captured(2));
            tests.insert(match.captured(1) + QStringLiteral(".*"));
        }
    }
    return tests;
}

QStringList NamedIn(const QString& page) {
    static const QRegularExpression name(QStringLiteral(R"(`(\w+\.(?:\w+|\*))`)"));
    QStringList names;
    for (const QRegularExpressionMatch& match : name.globalMatch(page))
        names.append(match.captured(1));
    return names;
}

} // namespace

TEST(House, TrustNamesTestsThatThereAre) {
    const QSet<QString> tests = Tests();
    const QStringList names = NamedIn(TextOf(QStringLiteral("docs/trust.md")));
    EXPECT_GT(names.size(), 40);
    for (const QString& name : names)
        EXPECT_TRUE(tests.contains(name)) << name.toStdString();
}
