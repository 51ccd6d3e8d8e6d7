// SPDX-License-Identifier: MIT
// However much somebody put into a game file, no field of it grows past what a window lets one type.
#include "document/GameBounds.h"

#include "document/GameText.h"

#include <gtest/gtest.h>

namespace {

using GameBounds::kMostLetters;

struct Bounded {
    explicit Bounded(const QByteArray& whole) : bytes(GameBounds::Within(whole, GameLines::kAll, cut)) {}
    bool cut = true;
    QByteArray bytes;
};

// Makes the whole longer than what passes unread.
const QByteArray kLongEnough = QByteArray(kMostLetters, 'z');

TEST(GameBounds, WhatIsWithinThemStaysToTheByte) {
    const QByteArray most = QByteArray(kMostLetters - 1, 'a');
    for (const QByteArray& bytes : {QByteArray(), QByteArray("1, \"a\""), '"' + most + "\", " + most + "\r\n,,\n\r\n",
                                    "1, \"Rain, rain\\q\", \"" + most + "\" stray, x\n" + most}) {
        const Bounded bounded(bytes);
        EXPECT_FALSE(bounded.cut);
        EXPECT_EQ(bounded.bytes, bytes);
    }
}

TEST(GameBounds, AQuotedFieldKeepsItsFirstLettersAndItsNeighbours) {
    const QByteArray most(kMostLetters, 'a');
    const Bounded bounded("1,  \"" + most + "bc, de\", \"next\", 5\r\n\"other\"\r\n");
    EXPECT_TRUE(bounded.cut);
    EXPECT_EQ(bounded.bytes, "1,  \"" + most + "\", \"next\", 5\r\n\"other\"\r\n");
}

TEST(GameBounds, ABareFieldAndBlanksAreCutToo) {
    const Bounded bare(kLongEnough + "more, 2\n3");
    EXPECT_TRUE(bare.cut);
    EXPECT_EQ(bare.bytes, kLongEnough + ", 2\n3");
    const Bounded blanks(QByteArray(5'000'000, ' ') + "\"a\", 2\n");
    EXPECT_TRUE(blanks.cut);
    EXPECT_LE(blanks.bytes.size(), 4 * kMostLetters + 10);
    EXPECT_TRUE(blanks.bytes.endsWith("\"a\", 2\n"));
}

TEST(GameBounds, AnEmptyFieldAtTheStartOfALineIsAField) {
    const Bounded bounded("," + kLongEnough + "more,2\n");
    EXPECT_TRUE(bounded.cut);
    EXPECT_EQ(bounded.bytes, "," + kLongEnough + ",2\n");
}

TEST(GameBounds, AFieldWithoutAClosingQuoteEndsWithItsLine) {
    const Bounded bounded("\"" + kLongEnough + kLongEnough + "\r\n7\r\n");
    EXPECT_TRUE(bounded.cut);
    EXPECT_EQ(bounded.bytes, "\"" + kLongEnough + "\r\n7\r\n");
}

TEST(GameBounds, LettersCountAndNotTheirBytes) {
    const QByteArray letter = QString::fromUtf8("字").toUtf8();
    const Bounded whole('"' + letter.repeated(kMostLetters) + '"');
    EXPECT_FALSE(whole.cut);
    const Bounded bounded('"' + letter.repeated(kMostLetters + 1) + '"');
    EXPECT_TRUE(bounded.cut);
    EXPECT_EQ(bounded.bytes, '"' + letter.repeated(kMostLetters) + '"');
    const Bounded noLetters('"' + QByteArray(9'000'000, '\x91') + '"');
    EXPECT_TRUE(noLetters.cut);
    EXPECT_LE(noLetters.bytes.size(), 4 * kMostLetters + 2);
}

TEST(GameBounds, ALineOfNothingButFieldsIsCut) {
    const Bounded bounded(QByteArray("a,").repeated(10'000'000) + "\r\n7\r\n");
    EXPECT_TRUE(bounded.cut);
    EXPECT_LE(bounded.bytes.size(), 20 * kMostLetters + 10);
    EXPECT_TRUE(bounded.bytes.endsWith("\r\n7\r\n"));
}

// They were never read: nothing of the game is lost with them.
TEST(GameBounds, LinesBehindTheLastOfAGameGoWithoutAWord) {
    const Bounded bounded(QByteArray("1\n").repeated(30'000'000));
    EXPECT_FALSE(bounded.cut);
    EXPECT_EQ(bounded.bytes, QByteArray("1\n").repeated(GameLines::kAll));
}

} // namespace
