// SPDX-License-Identifier: MIT
#include "services/RecordText.h"

#include <gtest/gtest.h>

namespace {

QString RoundTrip(const QString& text) {
    QString line = basTAVL::Quote(text);
    return basTAVL::GetQuotedField(line);
}

QString Take(const QString& line, QString& rest) {
    rest = line;
    return basTAVL::GetQuotedField(rest);
}

TEST(RecordTextTest, Edge_QuotesAndLineBreaksSurviveWritingAndReading) {
    const QString text = QStringLiteral("He said \"go\",\r\n\r\nand \"\" went\r\n");
    EXPECT_EQ(RoundTrip(text), text);
}

TEST(RecordTextTest, Edge_PathWithBackslashAndQReadsBackWithADoubleQuote) {
    EXPECT_EQ(basTAVL::Quote(QStringLiteral("C:\\quiz\\x.bmp")), QStringLiteral("\"C:\\\\quiz\\\\x.bmp\""));
    EXPECT_EQ(RoundTrip(QStringLiteral("C:\\quiz\\x.bmp")), QStringLiteral("C:\"uiz\\x.bmp"));
}

TEST(RecordTextTest, Edge_TwoBackslashesAreWrittenAsFourAndReadAsOne) {
    EXPECT_EQ(basTAVL::Quote(QStringLiteral("a\\\\b")), QStringLiteral("\"a\\\\\\\\b\""));
    EXPECT_EQ(RoundTrip(QStringLiteral("a\\\\b")), QStringLiteral("a\\b"));
}

TEST(RecordTextTest, PathWithBackslashAndNReadsBackWithALineBreak) {
    EXPECT_EQ(RoundTrip(QStringLiteral("C:\\new")), QStringLiteral("C:\r\new"));
}

TEST(RecordTextTest, SingleBackslashAheadOfAnotherLetterSurvives) {
    EXPECT_EQ(RoundTrip(QStringLiteral("and\\or \\")), QStringLiteral("and\\or \\"));
}

TEST(RecordTextTest, HalfALineBreakBecomesAWholeOneSoThatTheRecordStaysOneLine) {
    EXPECT_EQ(RoundTrip(QStringLiteral("a\nb\rc")), QStringLiteral("a\r\nb\r\nc"));
}

TEST(RecordTextTest, BareFieldsAreTrimmedAndNotUnescaped) {
    QString rest;
    EXPECT_EQ(Take(QStringLiteral("  a\\nb , next "), rest), QStringLiteral("a\\nb"));
    EXPECT_EQ(rest, QStringLiteral("next"));
    EXPECT_EQ(Take(QStringLiteral(" last "), rest), QStringLiteral("last"));
    EXPECT_EQ(rest, QString());
    EXPECT_EQ(Take(QStringLiteral("   "), rest), QString());
    EXPECT_EQ(Take(QStringLiteral(",x"), rest), QString());
    EXPECT_EQ(rest, QStringLiteral("x"));
}

TEST(RecordTextTest, StrayTextBehindAQuotedFieldGoesWithItsComma) {
    QString rest;
    EXPECT_EQ(Take(QStringLiteral("\"a\" stray , b"), rest), QStringLiteral("a"));
    EXPECT_EQ(rest, QStringLiteral("b"));
    EXPECT_EQ(Take(QStringLiteral("\"a\" stray "), rest), QStringLiteral("a"));
    EXPECT_EQ(rest, QStringLiteral("stray"));
}

TEST(RecordTextTest, TextsOfAllScriptsSurvive) {
    for (const char* text : {"Zażółć gęślą jaźń", "شارع الزيتون", "Rue 🏠👨‍👩‍👧 42", "ﬁ ß é € “”"})
        EXPECT_EQ(RoundTrip(QString::fromUtf8(text)), QString::fromUtf8(text));
}

} // namespace
