// SPDX-License-Identifier: MIT
#include "pictures/PictureMiddle.h"

#include "pictures/C_Image.h"
#include "pictures/PaintPicture.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHolder.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

namespace {

class PictureMiddleTest : public TavloraTest {
protected:
    PictureMiddleTest() {
        ForgetPictures();
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::red);
        path = WriteFile(QStringLiteral("p.png"), PictureFiles::Encoded(image, "png"));
    }
    void Paint(const C_Image& image) {
        PictureHolder original;
        PaintZoomed(image.Ref(), image.Told(), form, original, ScaleModeKind::Pixels, QRectF(0, 0, 100, 100),
                    Color::None());
    }
    C_Image Fresh() {
        C_Image image;
        image.Init(path, QStringLiteral("Space"), 4);
        return image;
    }

    QString path;
    ScratchForm form{QSize(100, 100)};
};

TEST_F(PictureMiddleTest, APaintedPictureTellsItsMiddleAndItsRecordStays) {
    const C_Image image = Fresh();
    EXPECT_EQ(image.GetQuotedString(), QStringLiteral("\"p.png\",0,0,0"));
    const PictureRef before = image.Ref();
    Paint(image);
    EXPECT_TRUE(image.Ref() == before);
    EXPECT_EQ(image.XCenter(), 150);
    EXPECT_EQ(image.YCenter(), 100);
    EXPECT_EQ(image.GetQuotedString(), QStringLiteral("\"p.png\",150,100,0"));
}

TEST_F(PictureMiddleTest, LookingIsNoChange) {
    const C_Image taken = Fresh();
    const C_Image shown = taken;
    Paint(shown);
    EXPECT_FALSE(shown.IsDifferentFrom(taken));
    // As a game file brings it back.
    C_Image read;
    read.SetQuotedString(shown.GetQuotedString(), QStringLiteral("Space"), 4);
    EXPECT_TRUE(read == taken);
    C_Image moved = taken;
    moved.Let_XCenter(151);
    EXPECT_TRUE(moved.IsDifferentFrom(taken));
    EXPECT_EQ(moved.YCenter(), 100) << "only the one that was set";
    moved.Let_XCenter(150);
    EXPECT_FALSE(moved.IsDifferentFrom(taken));
}

TEST_F(PictureMiddleTest, ACentreOfItsOwnStands) {
    C_Image image = Fresh();
    image.Let_YCenter(7);
    Paint(image);
    EXPECT_EQ(image.XCenter(), 0);
    EXPECT_EQ(image.YCenter(), 7);
}

TEST_F(PictureMiddleTest, HalvesGoToTheEvenNumber) {
    EXPECT_EQ(PictureMiddle::CenteredIn({}, 21, 23).iXCenter, 10);
    EXPECT_EQ(PictureMiddle::CenteredIn({}, 21, 23).iYCenter, 12);
    EXPECT_EQ(PictureMiddle::CenteredIn({}, 100000, 2).iXCenter, 32767);
}

} // namespace
