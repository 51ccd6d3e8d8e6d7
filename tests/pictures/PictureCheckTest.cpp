// SPDX-License-Identifier: MIT
#include "pictures/PictureCheck.h"

#include "pictures/C_Image.h"
#include "support/PictureFiles.h"
#include "support/StartUp.h"
#include "support/TestFixture.h"

namespace {

using namespace PictureFiles;

class PictureCheckTest : public TavloraTest {};

TEST_F(PictureCheckTest, PicturesOfAllKindsAreTakenWhateverTheirNames) {
    for (const char* format : {"bmp", "png", "jpg"})
        EXPECT_EQ(WhyNoPicture(WriteFile(QStringLiteral("dog.dat"), Encoded(Quarters(40, 40), format))), QString());
}

TEST_F(PictureCheckTest, WhatIsNoneIsRefusedByItsName) {
    EXPECT_EQ(WhyNoPicture(WriteFile(QStringLiteral("letter.jpg"), "Dear Grandma, thank you for the dog.")),
              QStringLiteral("'letter' holds no picture that Tavlora can show. Photos as .jpg or .png are fine."));
    EXPECT_TRUE(WhyNoPicture(WriteFile(QStringLiteral("empty.png"), "")).startsWith(QStringLiteral("'empty' holds")));
    EXPECT_TRUE(WhyNoPicture(PathOf(QStringLiteral("gone.png"))).startsWith(QStringLiteral("'gone' can't be read: ")));
    EXPECT_TRUE(WhyNoPicture(folder.path()).contains(QStringLiteral("' can't be read: ")));
}

TEST_F(PictureCheckTest, AThumbnailIsRefused) {
    StartUp::MakeThumbnails();
    C_Image image;
    image.Init(WriteFile(QStringLiteral("dog.png"), Encoded(Quarters(40, 40), "png")), QStringLiteral("Space"), 5);
    EXPECT_TRUE(WhyNoPicture(image.GetThumbnail(false))
                    .startsWith(QStringLiteral("'Space5' is a small picture that Tavlora makes for itself.")));
}

} // namespace
