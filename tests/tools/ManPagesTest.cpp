// SPDX-License-Identifier: MIT
#include "support/ManPage.h"
#include "tools/PrintArguments.h"

#include <gtest/gtest.h>

TEST(ManPageOfTavloraPrint, TellsEveryArgumentAndNoOther) {
    EXPECT_EQ(ManPage::OptionsOf("tavlora-print.1"), ManPage::OptionsIn(PrintArguments::Usage()));
}

TEST(ManPageOfTavloraPrint, OptionsAreFoundInWhateverLetters) {
    EXPECT_EQ(ManPage::OptionsIn(QStringLiteral(".BI --size \" N\"\n.B -o\nwell-known --a-b, x--y")),
              "--a-b --size -o");
}
