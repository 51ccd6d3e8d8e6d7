// SPDX-License-Identifier: MIT
// A photograph that takes long to be decoded keeps no editor waiting: the window stands, and the picture comes.
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "windowing/PictureBox.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/editors/frmShowTokens.h"
#include "windows/EditTokenFixture.h"

#include <QThread>

#include <atomic>

namespace {

class LargePhotosTest : public EditTokenTest {
protected:
    LargePhotosTest() {
        QImage image(2600, 2000, QImage::Format_Indexed8);
        image.setColorTable({qRgb(255, 0, 0)});
        image.fill(0);
        photo = QDir(folder.path()).filePath(QStringLiteral("large.png"));
        EXPECT_TRUE(image.save(photo));
        ForgetPictures();
        GivePicture(photo);
        // Decoders wait for us; what the window itself reads is its own matter.
        Files::SetFaultHook([this](Files::Operation operation, const QString& path) -> std::optional<QString> {
            const bool held = operation == Files::Operation::Read && path == photo;
            while (held && QThread::currentThread() != qApp->thread() && !released)
                QThread::msleep(1);
            return std::nullopt;
        });
    }
    ~LargePhotosTest() override {
        released = true;
        ForgetPictures();
        Files::SetFaultHook({});
    }
    /// Whether the picture comes to a place of a box once it is decoded, and not before.
    void ExpectLater(PictureBox& box, QPoint at) {
        const auto isRed = [&] { return box.Image().pixelColor(at) == QColor(Qt::red); };
        EXPECT_FALSE(isRed());
        released = true;
        EXPECT_TRUE(QTest::qWaitFor(isRed, 20000));
    }

    QString photo;
    std::atomic<bool> released = false;
};

TEST_F(LargePhotosTest, TheGalleryOfTokensStandsAndThePictureComes) {
    frmShowTokens gallery(session);
    window = &gallery;
    InWindow([&] { ExpectLater(*Find<PictureBox>("picToken_2"), QPoint(60, 60)); });
    bool changed = false;
    gallery.ShowForm(changed);
    EXPECT_FALSE(changed);
    EXPECT_EQ(Token().Image.FullPath(), photo);
}

TEST_F(LargePhotosTest, TheEditorOfATokenToo) {
    Edit([&] { ExpectLater(*Find<PictureBox>("picDest"), QPoint(150, 150)); });
    EXPECT_EQ(Token().Image.FullPath(), photo);
}

TEST_F(LargePhotosTest, TheEditorOfASpaceToo) {
    frmEditSpace space(session);
    basDraw::Draw_SetHdc(&context);
    basTAVL::g_oSpaces(kSpace).SetImagePath(photo);
    EXPECT_FALSE(
        EditWindowTest::Edit(space, kSpace, [&] { ExpectLater(*Find<PictureBox>("picDest"), QPoint(100, 120)); }));
}

} // namespace
