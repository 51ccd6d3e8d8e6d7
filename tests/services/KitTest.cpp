// SPDX-License-Identifier: MIT
#include "services/Kit.h"

#include <gtest/gtest.h>

namespace {

TEST(KitTest, EachKitHasItsWordAndAnyOtherIsUnknown) {
    for (const Kit kit : {Kit::Two, Kit::TwoA, Kit::Five, Kit::Eight})
        EXPECT_EQ(KitOf(VariantOf(kit)), kit);
    EXPECT_EQ(VariantOf(Kit::TwoA), QStringLiteral("2A"));
    for (const char* word : {"", "2a", "7", "8 ", "eight"})
        EXPECT_EQ(KitOf(QString::fromLatin1(word)), Kit::Unknown) << word;
    EXPECT_EQ(VariantOf(Kit::Unknown), QString());
}

TEST(KitTest, KitsDifferAsTheirBoxesDo) {
    const struct {
        Kit kit;
        bool coloured, labels, slim, storeys, beside, ornaments, oval, paints, reads;
    } rows[] = {
        {Kit::Two, true, false, false, false, false, false, false, false, false},
        {Kit::TwoA, true, false, false, false, false, false, false, false, false},
        {Kit::Five, false, false, false, false, false, true, true, true, false},
        {Kit::Eight, false, true, true, true, true, true, true, true, true},
        {Kit::Unknown, false, false, false, false, false, false, false, false, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(qPrintable(VariantOf(row.kit)));
        EXPECT_EQ(OnColouredStock(row.kit), row.coloured);
        EXPECT_EQ(HasDeedSheets(row.kit), !row.coloured);
        EXPECT_EQ(HasLabelSheets(row.kit), row.labels);
        EXPECT_EQ(HasSlimStickers(row.kit), row.slim);
        EXPECT_EQ(HasAddedStoreys(row.kit), row.storeys);
        EXPECT_EQ(LiesBesideTheProgram(row.kit), row.beside);
        EXPECT_EQ(HasColouredOrnaments(row.kit), row.ornaments);
        EXPECT_EQ(HasCurrencyOval(row.kit), row.oval);
        EXPECT_EQ(PaintsFateItself(row.kit), row.paints);
        EXPECT_EQ(ReadsFateItself(row.kit), row.reads);
    }
}

} // namespace
