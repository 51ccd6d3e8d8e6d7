// SPDX-License-Identifier: MIT
#include "pack/PackFonts.h"

#include "pack/PackFixture.h"
#include "platform/paint/FontFiles.h"

namespace {

class PackFontsTest : public PackTest {};

TEST_F(PackFontsTest, FamiliesOfEveryKindOfRecordAreFoundOnce) {
    QStringList lines = PlainLines();
    EXPECT_EQ(PackFonts::FamiliesOf(lines), QStringList());
    lines[3].replace(QStringLiteral("Arial"), QStringLiteral("Of Space"));
    lines[4].replace(QStringLiteral("Arial"), QStringLiteral("OF SPACE"));
    lines[5].replace(QStringLiteral("Arial"), QStringLiteral("times new roman"));
    lines[31].replace(QStringLiteral("Arial"), QStringLiteral("Of, Corner"));
    lines[35] = QStringLiteral("0, \"Card\", \"Of Body\",R,12,\"Of Head\",B,14");
    lines[58] = QStringLiteral("11, \"Card\", \"Of Last Card\",R,12");
    lines[63].replace(QStringLiteral("Arial"), QStringLiteral("Of Token"));
    EXPECT_EQ(PackFonts::FamiliesOf(lines),
              (QStringList{QStringLiteral("Of Space"), QStringLiteral("Of, Corner"), QStringLiteral("Of Body"),
                           QStringLiteral("Of Head"), QStringLiteral("Of Last Card"), QStringLiteral("Of Token")}));
    EXPECT_EQ(PackFonts::FamiliesOf(lines.mid(0, 4)), QStringList{QStringLiteral("Of Space")});
}

TEST_F(PackFontsTest, WhatGoesAlongIsPackedWithAListForWhoeverLooks) {
    if (!FontFiles::IsKnown(QStringLiteral("DejaVu Serif"))) GTEST_SKIP() << "DejaVu Serif is not installed";
    QStringList lines = PlainLines();
    lines[3].replace(QStringLiteral("Arial"), QStringLiteral("DejaVu Serif"));
    lines[4].replace(QStringLiteral("Arial"), QStringLiteral("No Such Family"));
    const Packing::Contents contents = Gathered(lines, QStringLiteral("x.gam"));
    ASSERT_EQ(contents.fonts.size(), 2);
    EXPECT_EQ(contents.fonts[0].standing, PackFonts::Use::Standing::GoesAlong);
    ASSERT_FALSE(contents.fonts[0].files.isEmpty());
    EXPECT_EQ(contents.fonts[0].files.last().sEntry, QStringLiteral("Fonts/DejaVuSerif.ttf"));
    EXPECT_GT(contents.FontBytes(), 100'000);
    EXPECT_EQ(contents.fonts[1].standing, PackFonts::Use::Standing::NotHere);
    EXPECT_EQ(PackFonts::ListOf(contents.fonts),
              QByteArray("DejaVu Serif: comes with the game.\r\nNo Such Family: wasn't there when the game was "
                         "packed.\r\n"));
    EXPECT_EQ(Packed(contents), Packed(Gathered(lines, QStringLiteral("x.gam"))));
}

} // namespace
