// SPDX-License-Identifier: MIT
#include "platform/text/Numbers.h"

#include "support/TestFixture.h"

#include <limits>

TEST(Numbers, ClngRoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(CLng(0.5), 0);
    EXPECT_EQ(CLng(1.5), 2);
    EXPECT_EQ(CLng(2.5), 2);
    EXPECT_EQ(CLng(-0.5), 0);
    EXPECT_EQ(CLng(-1.5), -2);
    EXPECT_EQ(CLng(-2.5), -2);
    EXPECT_EQ(CLng(2.4999), 2);
    EXPECT_EQ(CLng(-2.5001), -3);
}

TEST(Numbers, ClngStopsAtTheLimitsOf32Bits) {
    EXPECT_EQ(CLng(1e12), std::numeric_limits<qint32>::max());
    EXPECT_EQ(CLng(-1e12), std::numeric_limits<qint32>::min());
    EXPECT_EQ(CLng(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Numbers, IntRoundsDownBelowZeroToo) {
    EXPECT_EQ(Int(2.9), 2);
    EXPECT_EQ(Int(-2.1), -3);
}

TEST(Numbers, LeftAndMidTakeWhatIsThere) {
    EXPECT_EQ(LeftStr(QStringLiteral("TAVLO"), 2), QStringLiteral("TA"));
    EXPECT_EQ(LeftStr(QStringLiteral("TAVLO"), 9), QStringLiteral("TAVLO"));
    EXPECT_EQ(LeftStr(QStringLiteral("TAVLO"), -1), QString());
    EXPECT_EQ(MidStr(QStringLiteral("TAVLO"), 2, 3), QStringLiteral("AVL"));
    EXPECT_EQ(MidStr(QStringLiteral("TAVLO"), 4), QStringLiteral("LO"));
    EXPECT_EQ(RightStr(QStringLiteral("TAVLO"), 2), QStringLiteral("LO"));
}

TEST(Numbers, ReadsNumbersTheSameOnEveryDesktop) {
    EXPECT_EQ(ParseNumber(QStringLiteral(" 12.5 ")), 12.5);
    EXPECT_EQ(ParseNumber(QStringLiteral("-3")), -3.0);
    EXPECT_EQ(ParseNumber(QStringLiteral("+.5e1")), 5.0);
    EXPECT_EQ(ParseNumber(QStringLiteral("&H0A0A0A")), 657930.0);
    EXPECT_EQ(ParseNumber(QStringLiteral("&hff")), 255.0);
    for (const char* text : {"", "  ", "1,5", "12a", "inf", "nan", "&H", "&HG", "1e", ".", "-", "1 2", "0x10"}) {
        EXPECT_FALSE(IsNumeric(QString::fromLatin1(text))) << text;
    }
}

TEST(Numbers, WritesTheShortestFormOfAFloat) {
    EXPECT_EQ(FloatToText(12.0F), QStringLiteral("12"));
    EXPECT_EQ(FloatToText(10.5F), QStringLiteral("10.5"));
    EXPECT_EQ(FloatToText(0.1F), QStringLiteral("0.1"));
}

TEST(Numbers, PutsACommaAtEachThousand) {
    EXPECT_EQ(WithThousands(0), QStringLiteral("0"));
    EXPECT_EQ(WithThousands(1250), QStringLiteral("1,250"));
    EXPECT_EQ(WithThousands(-1234567), QStringLiteral("-1,234,567"));
    EXPECT_EQ(WithThousands(-123), QStringLiteral("-123"));
}
