// SPDX-License-Identifier: MIT
#include "pictures/TellOnce.h"
#include "pictures/C_Image.h"
#include "services/Desktop.h"
#include "support/TestFixture.h"

namespace {

using Fault = TellOnce::Fault;

class TellOnceTest : public TavloraTest {
protected:
    const PictureOwner space{PictureOwner::Kind::Space, 3};
    const PictureOwner other{PictureOwner::Kind::Space, 4};

    int Told(const PictureOwner& owner, Fault fault, const char* path) {
        desktop.boxes.clear();
        TellOnce::About(owner).Tell(fault, QString::fromLatin1(path), QStringLiteral("text"), vbOKOnly);
        return int(desktop.boxes.size());
    }
};

TEST_F(TellOnceTest, APathIsToldOnceForEachPieceAndFault) {
    EXPECT_EQ(Told(space, Fault::Picture, "/a"), 1);
    EXPECT_EQ(Told(space, Fault::Picture, "/a"), 0);
    EXPECT_EQ(Told(space, Fault::Metafile, "/a"), 1);
    EXPECT_EQ(Told(other, Fault::Picture, "/a"), 1);
}

TEST_F(TellOnceTest, OnlyTheLastPathIsRemembered) {
    Told(space, Fault::Picture, "/a");
    EXPECT_EQ(Told(space, Fault::Picture, "/b"), 1);
    EXPECT_EQ(Told(space, Fault::Picture, "/a"), 1);
    TellOnce::About(space).Note(Fault::Picture, QString());
    EXPECT_EQ(Told(space, Fault::Picture, "/a"), 1);
}

TEST_F(TellOnceTest, CopiesOfAnImageShareWhatWasTold) {
    C_Image image;
    image.Init(PathOf(QStringLiteral("gone.png")), QStringLiteral("Space"), 3);
    ASSERT_EQ(desktop.boxes.size(), 1);
    const C_Image copy = image;
    EXPECT_EQ(copy.BadPath(), image.FullPath());
    copy.GetThumbnail(false);
    EXPECT_EQ(desktop.boxes.size(), 1);
    C_Image elsewhere;
    elsewhere.Init(image.FullPath(), QStringLiteral("Space"), 4);
    EXPECT_EQ(desktop.boxes.size(), 2);
}

} // namespace
