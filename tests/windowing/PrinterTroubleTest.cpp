// SPDX-License-Identifier: MIT
#include "windowing/PrinterTrouble.h"

#include <gtest/gtest.h>

using PrinterTrouble::Sentence;

TEST(PrinterTrouble, IsToldInASentence) {
    EXPECT_EQ(Sentence(true, false, {QStringLiteral("none")}), QString());
    EXPECT_EQ(Sentence(true, false, {}), QString());
    EXPECT_EQ(Sentence(true, false, {QStringLiteral("media-empty-error")}), QStringLiteral("It is out of paper."));
    EXPECT_EQ(Sentence(true, true, {QStringLiteral("offline-report")}),
              QStringLiteral("It is switched off or not connected."));
    EXPECT_EQ(Sentence(true, false, {QStringLiteral("toner-low-report")}), QString()) << "that still prints";
    EXPECT_EQ(Sentence(true, true, {QStringLiteral("none")}),
              QStringLiteral("It has stopped. Its own display, or the printers of your desktop, may tell why."));
    EXPECT_EQ(Sentence(false, false, {}), QStringLiteral("It is no longer set up on this computer."));
}

TEST(PrinterTrouble, APrinterThatNobodyKnowsIsTold) {
    EXPECT_EQ(PrinterTrouble::Of(QStringLiteral("No such printer")),
              QStringLiteral("It is no longer set up on this computer."));
}
