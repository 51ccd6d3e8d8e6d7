// SPDX-License-Identifier: MIT
#include "platform/text/TextColumns.h"

#include <QList>

#include <gtest/gtest.h>

using namespace TextColumns;

namespace {

// Columns 0 a 1 e-acute (two units) 3 house (two units) 5 b 6.
const QString kLine = QStringLiteral("ae\u0301\U0001F3E0b");

TEST(TextColumns, PlacesLieBetweenWholeCharacters) {
    QList<int> before;
    QList<int> behind;
    for (int column = 0; column <= kLine.size(); ++column) {
        before.append(AtOrBefore(kLine, column));
        behind.append(AtOrBehind(kLine, column));
    }
    EXPECT_EQ(before, (QList<int>{0, 1, 1, 3, 3, 5, 6}));
    EXPECT_EQ(behind, (QList<int>{0, 1, 3, 3, 5, 5, 6}));
}

TEST(TextColumns, StepsGoFromPlaceToPlace) {
    EXPECT_EQ(Behind(kLine, 0), 1);
    EXPECT_EQ(Behind(kLine, 1), 3);
    EXPECT_EQ(Behind(kLine, 3), 5);
    EXPECT_EQ(Behind(kLine, 6), 6);
    EXPECT_EQ(Before(kLine, 6), 5);
    EXPECT_EQ(Before(kLine, 5), 3);
    EXPECT_EQ(Before(kLine, 3), 1);
    EXPECT_EQ(Before(kLine, 0), 0);
    EXPECT_EQ(Before(kLine, 8), 7) << "beyond the end by units";
}

TEST(TextColumns, LongLinesAreWalkedInAnyPlace) {
    const QString line = QString(999, u'i') + kLine + QString(999, u'i');
    EXPECT_EQ(Behind(line, 1000), 1002);
    EXPECT_EQ(Before(line, 1004), 1002);
    EXPECT_EQ(AtOrBefore(line, 1003), 1002);
}

TEST(TextColumns, CutsKeepCharactersWhole) {
    EXPECT_EQ(LeftCharacters(kLine, 6), kLine);
    EXPECT_EQ(LeftCharacters(kLine, 4), kLine.left(3));
    EXPECT_EQ(LeftCharacters(kLine, 2), kLine.left(1));
    const QString letterWithManyMarks = u'a' + QString(50, QChar(0x0301));
    EXPECT_EQ(LeftCharacters(letterWithManyMarks, 40).size(), 40);
}

} // namespace
