// SPDX-License-Identifier: MIT
// A photograph that takes long to be decoded keeps no editor waiting: the window stands, and the picture comes.
#include "pieces/frmBMP.h"
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "support/ModalSteps.h"
#include "support/Waiting.h"
#include "windowing/PictureBox.h"
#include "windows/editors/frmEditMoney.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/editors/frmShowTokens.h"
#include "windows/EditTokenFixture.h"
#include "windows/pictures/frmImagePosition.h"

#include <QThread>

#include <atomic>

namespace {

class LargePhotosTest : public EditTokenTest {
protected:
    LargePhotosTest() {
        frmBMP::InstallAsThumbnailMaker();
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
        EXPECT_TRUE(Comes(isRed));
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

TEST_F(LargePhotosTest, TheEditorOfMoneyToo) {
    basTAVL::g_oMoney(0).FaceImage.Init(photo, QStringLiteral("Money"), 0);
    frmEditMoney money(session);
    window = &money;
    InWindow([&] {
        auto* const note = Find<PictureBox>("picNote");
        ExpectLater(*note, note->rect().center());
    });
    EXPECT_FALSE(money.ShowForm());
}

// It shows every pixel at once, so it opens when they are there.
TEST_F(LargePhotosTest, TheCroppingWindowOpensWhenThePictureIsThereAndTheProgramGoesOnMeanwhile) {
    constexpr int kEnough = 5;
    int ticks = 0;
    bool shownEarly = false;
    bool busy = false;
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, [&] {
        if (released) return;
        shownEarly = shownEarly || QApplication::activeModalWidget();
        busy = QApplication::overrideCursor();
        released = ++ticks >= kEnough;
    });
    clock.start(10);
    C_Image image;
    image.Init(photo, QString(), 0);
    ModalSteps steps;
    steps.OnceIn("frmImagePosition", [&](QWidget& cropping) {
        auto& preview = ::Find<PictureBox>(cropping, "picZoomed");
        EXPECT_TRUE(Comes([&] { return preview.Image().pixelColor(preview.rect().center()) == QColor(Qt::red); }));
    });
    frmImagePosition crop;
    crop.ShowForm(image, 1.0, false);
    EXPECT_EQ(ticks, kEnough) << "the program stood still";
    EXPECT_FALSE(shownEarly);
    EXPECT_TRUE(busy);
    EXPECT_FALSE(QApplication::overrideCursor());
}

} // namespace
