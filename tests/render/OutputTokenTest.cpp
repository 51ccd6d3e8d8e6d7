// SPDX-License-Identifier: MIT
#include "render/OutputToken.h"

#include "platform/files/Files.h"
#include "render/clsRenderDestination.h"
#include "support/SheetFixture.h"

namespace {

const QColor kFace(255, 245, 0);

class OutputTokenTest : public SheetTest {
protected:
    OutputTokenTest() {
        C_Token& token = basTAVL::g_oTokens(2);
        token.Init(2);
        token.BackColor = Color::Rgb(255, 245, 0);
        token.SetText(QStringLiteral("Grandma"));
    }
    QString Photo(QColor color) const {
        QImage photo(600, 600, QImage::Format_RGB32);
        photo.fill(color);
        EXPECT_TRUE(photo.save(PathOf(QStringLiteral("photo.png"))));
        return PathOf(QStringLiteral("photo.png"));
    }
    // On a pale page, so that what the token leaves alone can be told from its own white.
    bool PrintToken() {
        return Print([](SheetJob& job) {
            clsRenderDestination destination;
            destination.Init(job.printer, 1.0);
            job.printer.Line(0, 0, 2400, 2400, Color::Rgb(220, 240, 255), LineForm::FilledBox);
            OutputToken(destination, 2, 1.5, 0.75, 1.0);
            return true;
        });
    }
};

TEST_F(OutputTokenTest, ATokenWithTextIsARoundFaceOnThePage) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    ASSERT_TRUE(PrintToken());
    ExpectBox(reader.ColorBox(1, {1.3, 0.5, 1.5, 1.5}, kFace), {1.5, 0.75, 1, 1}, QStringLiteral("face"));
    EXPECT_EQ(reader.ColorAt(1, 1.55, 0.8), QColor(220, 240, 255)) << "beyond the circle";
    const QRectF text = reader.BoxOf(1, QStringLiteral("Grandma"));
    EXPECT_NEAR(text.center().x(), 2.0, kCaptionWithin);
    EXPECT_NEAR(text.center().y(), 1.25, kCaptionWithin);
    EXPECT_GT(text.left(), 1.5 + 0.146 - kCaptionWithin) << "within the square inside the circle";
    EXPECT_LT(text.right(), 2.5 - 0.146 + kCaptionWithin);
}

TEST_F(OutputTokenTest, ATokenWithAPictureIsRoundToo) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    basTAVL::g_oTokens(2).Image.Init(Photo(Qt::blue), QStringLiteral("Token"), 2);
    ASSERT_TRUE(PrintToken());
    ExpectBox(reader.ColorBox(1, {1.3, 0.5, 1.5, 1.5}, Qt::blue), {1.5, 0.75, 1, 1}, QStringLiteral("face"));
    EXPECT_EQ(reader.ColorAt(1, 1.55, 0.8), QColor(220, 240, 255)) << "beyond the circle";
    EXPECT_TRUE(reader.Text(1).simplified().isEmpty());
}

TEST_F(OutputTokenTest, APictureThatIsAwayIsToldAndTheTextStandsInItsPlaceWhileTheGameKeepsIt) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    C_Image& image = basTAVL::g_oTokens(2).Image;
    image.Init(Photo(Qt::blue), QStringLiteral("Token"), 2);
    image.Let_Zoom(7);
    image.Let_XCenter(3);
    const C_Image before = image;
    ASSERT_TRUE(QFile::remove(PathOf(QStringLiteral("photo.png"))));
    ForgetPictures();
    ASSERT_TRUE(PrintToken());
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_FALSE(reader.BoxOf(1, QStringLiteral("Grandma")).isEmpty());
    EXPECT_EQ(image, before);
    Photo(Qt::blue);
    ASSERT_TRUE(PrintToken());
    EXPECT_TRUE(reader.Text(1).simplified().isEmpty()) << "it is back";
}

} // namespace
