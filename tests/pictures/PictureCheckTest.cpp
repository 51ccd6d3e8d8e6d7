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

TEST_F(PictureCheckTest, WhatIsTooLargeIsRefusedByItsHead) {
    QImage flat(20000, 20000, QImage::Format_Mono);
    flat.fill(0);
    EXPECT_EQ(
        WhyNoPicture(WriteFile(QStringLiteral("wall.png"), Encoded(flat, "png"))),
        QStringLiteral("'wall' can't be shown: the picture claims to be 20000 by 20000 pixels, which is more than "
                       "can be opened."));
}

TEST_F(PictureCheckTest, OneThatBreaksOffFurtherOnIsFoundOutByShowingIt) {
    const QByteArray whole = Encoded(Quarters(400, 400), "jpg");
    const QString half = WriteFile(QStringLiteral("half.jpg"), whole.left(whole.size() / 2));
    EXPECT_EQ(WhyNoPicture(half), QString());
    EXPECT_EQ(WhyNotShown(half), QStringLiteral("'half' can't be shown: the picture file is cut short."));
    EXPECT_EQ(WhyNotShown(WriteFile(QStringLiteral("whole.jpg"), whole)), QString());
}

TEST_F(PictureCheckTest, OtherKindsAreRefusedWithWhatToDo) {
    const auto told = [this](const char* name, const QByteArray& bytes) {
        return WhyNoPicture(WriteFile(QString::fromLatin1(name), bytes));
    };
    EXPECT_EQ(
        told("dog.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>"),
        QStringLiteral("'dog' is an SVG drawing. Please save it as a .png picture in your drawing program and take "
                       "that."));
    EXPECT_EQ(
        told("page.pdf", "%PDF-1.4 and so on"),
        QStringLiteral("'page' is a PDF document. Please save its page as a .jpg or .png picture and take that."));
    const QString raw = QStringLiteral("'IMG_1' is a camera's RAW file. Please save it as a .jpg picture in your photo "
                                       "program and take that.");
    EXPECT_EQ(told("IMG_1.NEF", QByteArray("II*\0\x08\0\0\0", 8)), raw) << "which begins as a TIFF file does";
    EXPECT_EQ(told("IMG_1", QByteArray("II*\0\x10\0\0\0CR\2\0", 12)), raw) << "whatever it is called";
    EXPECT_EQ(told("IMG_1.x", QByteArray("\0\0\0\x18"
                                         "ftypcrx ",
                                         12)),
              raw);
    EXPECT_EQ(told("swim.mov", QByteArray("\0\0\0\x14"
                                          "ftypqt  ",
                                          12)),
              QStringLiteral("'swim' is a film. Please take a photo."));
}

TEST_F(PictureCheckTest, AThumbnailIsRefused) {
    StartUp::MakeThumbnails();
    C_Image image;
    image.Init(WriteFile(QStringLiteral("dog.png"), Encoded(Quarters(40, 40), "png")), QStringLiteral("Space"), 5);
    EXPECT_TRUE(WhyNoPicture(image.GetThumbnail(false))
                    .startsWith(QStringLiteral("'Space5' is a small picture that Tavlora makes for itself.")));
}

} // namespace
