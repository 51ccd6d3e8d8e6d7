// SPDX-License-Identifier: MIT
#include "pictures/PictureRef.h"
#include "pictures/C_Image.h"
#include "pictures/PictureOwner.h"
#include "support/TestFixture.h"

namespace {

using Kind = PictureOwner::Kind;

TEST(PictureOwnerTest, KindsAreNamedByTheirWords) {
    for (const Kind kind : {Kind::Space, Kind::Corner, Kind::Money, Kind::Token}) {
        EXPECT_EQ(PictureOwner::KindOf(PictureOwner{kind, 0}.KindName()), kind);
        EXPECT_TRUE((PictureOwner{kind, 0}.IsPiece()));
    }
    EXPECT_EQ((PictureOwner{Kind::Corner, 0}.KindName()), QStringLiteral("Corner"));
    EXPECT_EQ(PictureOwner::KindOf(QString()), Kind::None);
    EXPECT_EQ(PictureOwner::KindOf(QStringLiteral("Balloon")), Kind::Unknown);
    EXPECT_FALSE((PictureOwner{Kind::Unknown, 0}.IsPiece()));
}

TEST(PictureOwnerTest, OnlyTheFourthCornerIsFate) {
    EXPECT_TRUE((PictureOwner{Kind::Corner, 3}.IsFate()));
    EXPECT_FALSE((PictureOwner{Kind::Corner, 2}.IsFate()));
    EXPECT_FALSE((PictureOwner{Kind::Space, 3}.IsFate()));
}

TEST(PictureOwnerTest, SidesComeFirstAndCornersBehindThem) {
    EXPECT_EQ((PictureOwner{Kind::Space, 6}.Orient()), 0);
    EXPECT_EQ((PictureOwner{Kind::Space, 27}.Orient()), 3);
    EXPECT_EQ((PictureOwner{Kind::Corner, 2}.Orient()), 6);
    EXPECT_EQ((PictureOwner{Kind::Token, 5}.Orient()), 0);
}

TEST(PictureRefTest, EachPartIsCompared) {
    const PictureRef ref{QStringLiteral("/a.png"), 3, 10, 20};
    EXPECT_TRUE(ref == (PictureRef{QStringLiteral("/a.png"), 3, 10, 20}));
    EXPECT_FALSE(ref == (PictureRef{QStringLiteral("/b.png"), 3, 10, 20}));
    EXPECT_FALSE(ref == (PictureRef{QStringLiteral("/a.png"), 4, 10, 20}));
    EXPECT_FALSE(ref == (PictureRef{QStringLiteral("/a.png"), 3, 11, 20}));
    EXPECT_FALSE(ref == (PictureRef{QStringLiteral("/a.png"), 3, 10, 21}));
}

} // namespace
