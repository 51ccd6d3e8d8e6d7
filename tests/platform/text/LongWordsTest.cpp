// SPDX-License-Identifier: MIT
#include "platform/text/LongWords.h"

#include <gtest/gtest.h>

namespace {

const QChar kBreak(0x200B);

TEST(LongWordsTest, WordsOfUsualLengthStayAsTheyAre) {
    const QString text = QStringLiteral("Grandma's garden\nand ours");
    EXPECT_EQ(LongWords::MayBreak(text, 9), text);
    EXPECT_EQ(LongWords::MayBreak(QString(), 9), QString());
}

TEST(LongWordsTest, LongerOnesMayBreakBehindEachSoManyLetters) {
    EXPECT_EQ(LongWords::MayBreak(QStringLiteral("abcdefgh ijkl"), 3), QStringLiteral("abc") + kBreak +
                                                                           QStringLiteral("def") + kBreak +
                                                                           QStringLiteral("gh ijk") + kBreak + u'l');
}

TEST(LongWordsTest, NoLetterIsBroken) {
    // Two halves of a pair, an accent of its own, a flag of two letters.
    const QString pair = QStringLiteral("\U0001F3E1");
    const QString accent = QStringLiteral("e\u0301");
    const QString flag = QStringLiteral("\U0001F1E9\U0001F1EA");
    EXPECT_EQ(LongWords::MayBreak(pair + accent + flag, 1), pair + kBreak + accent + kBreak + flag);
}

} // namespace
