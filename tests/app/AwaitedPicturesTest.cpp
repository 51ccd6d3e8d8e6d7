// SPDX-License-Identifier: MIT
// Photographs that the board has to wait for: it stands at once, and they come as they are decoded.
#include "MainWindowFixture.h"
#include "support/PictureFiles.h"
#include "support/Waiting.h"

#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "services/basMsgQueue.h"

#include <QThread>

namespace {

constexpr int kSpace = 4;
const QColor kPurple(200, 0, 200);
constexpr int kEnough = 100;
constexpr int kLongerThanDecoding = 400;
const QString kCause = QStringLiteral("The photo is upside down");

} // namespace

class AwaitedPicturesTest : public MainWindowTest {
protected:
    AwaitedPicturesTest() {
        QImage image(2400, 2400, QImage::Format_RGB32);
        image.fill(kPurple);
        m_photo = WriteFile(QStringLiteral("games/photo.bmp"), PictureFiles::Encoded(image, "BMP"));
        ForgetPictures();
    }
    ~AwaitedPicturesTest() override { ForgetPictures(); }

    /// Clicks the space, whose editor hands back the photograph.
    void ChoosePhoto() {
        routes.onEdit = [this] {
            basTAVL::g_oSpaces(kSpace).SetImagePath(m_photo);
            return true;
        };
        const QPointF middle = MiddleOf(kSpace);
        ClickBoard(middle.x(), middle.y());
        ASSERT_EQ(routes.Take(), Strings{QStringLiteral("space %1").arg(kSpace)});
    }

    /// The same until the board stands ahead of the photograph: on a busy machine that may be decoded first.
    void ChooseAwaitedPhoto() {
        for (int tries = 0; tries < kTries; ++tries) {
            ForgetPictures();
            ChoosePhoto();
            if (PurplePixels() == 0) return;
        }
        FAIL() << "the board waits for the photograph";
    }

    static constexpr int kTries = 50;

    /// Pixels of the photograph's colour on the space, as the window shows it.
    int PurplePixels() const {
        const QImage seen = window->View().Board().grab().toImage();
        const basPosit::BoardRect& rect = basPosit::m_SpaceRect(kSpace, basPosit::SpacePart::Whole);
        const QPoint first = PointOnBoard(double(std::min(rect.x1, rect.x2)), double(std::min(rect.y1, rect.y2)));
        const QPoint last = PointOnBoard(double(std::max(rect.x1, rect.x2)), double(std::max(rect.y1, rect.y2)));
        int count = 0;
        for (int y = first.y(); y <= last.y(); ++y) {
            for (int x = first.x(); x <= last.x(); ++x)
                count += seen.pixelColor(x, y) == kPurple ? 1 : 0;
        }
        return count;
    }

    QString m_photo;
};

TEST_F(AwaitedPicturesTest, PictureComesByItselfBehindTheBoard) {
    ASSERT_NO_FATAL_FAILURE(ChooseAwaitedPhoto());
    EXPECT_TRUE(Comes([this] { return PurplePixels() > kEnough; }));
    // What came later is part of the board as if it had been there at once.
    const QImage filledIn = window->View().Board().Image();
    window->View().Redraw();
    // On a busy machine even what is ready may come after the board.
    EXPECT_TRUE(Comes([&] { return window->View().Board().Image() == filledIn; }));
}

TEST_F(AwaitedPicturesTest, PictureWaitsWhileAnotherWindowStandsOnTop) {
    ASSERT_NO_FATAL_FAILURE(ChooseAwaitedPhoto());
    WithModal("frmAbout", [this](QWidget&) {
        QTest::qWait(kLongerThanDecoding);
        EXPECT_EQ(PurplePixels(), 0) << "the window on top may be drawing";
    });
    ChooseMenu("mnuView_9");
    EXPECT_TRUE(Comes([this] { return PurplePixels() > kEnough; }));
}

TEST_F(AwaitedPicturesTest, PictureThatCannotBeReadIsToldOnceAndTheRestOfTheBoardStays) {
    WriteFile(QStringLiteral("games/photo.bmp"), QByteArray("BM no picture"));
    ChoosePhoto();
    EXPECT_TRUE(Comes([this] { return !desktop.boxes.isEmpty(); }));
    QTest::qWait(kLongerThanDecoding);
    Strings told = desktop.Texts();
    window->View().Redraw();
    QTest::qWait(kLongerThanDecoding);
    EXPECT_EQ(desktop.Texts(), told);
    EXPECT_EQ(told.removeDuplicates(), 0);
    EXPECT_EQ(PurplePixels(), 0);
    EXPECT_EQ(SeenAt(0.5, 0.45), Color::FromValue(0xFFB000));
}

TEST_F(AwaitedPicturesTest, FailureWhileOneIsPastedLeavesNoQueueOpen) {
    bool told = false;
    // A photograph that is there at once is pasted without any question to the disk.
    for (int tries = 0; tries < 2 && !told; ++tries) {
        ASSERT_NO_FATAL_FAILURE(ChooseAwaitedPhoto());
        int failed = 0;
        Files::SetFaultHook([&failed, this](Files::Operation, const QString& sPath) -> std::optional<QString> {
            // What the decoder asks for isn't the window's, and a look at the photograph itself ends no paste.
            if (sPath == m_photo) return std::nullopt;
            if (QThread::currentThread() == qApp->thread() && basMsgQueue::MsgQueue_IsOpen() && ++failed == 1)
                ErrRaise(1234, kCause);
            return std::nullopt;
        });
        EXPECT_TRUE(Comes([this] { return !desktop.boxes.isEmpty() || PurplePixels() > kEnough; }));
        Files::SetFaultHook({});
        told = !desktop.boxes.isEmpty();
    }
    ASSERT_TRUE(told);
    EXPECT_TRUE(desktop.boxes.first().sText.contains(kCause));
    EXPECT_FALSE(basMsgQueue::MsgQueue_IsOpen());
    window->View().Redraw();
    EXPECT_TRUE(Comes([this] { return PurplePixels() > kEnough; }));
    EXPECT_EQ(SeenAt(0.5, 0.45), Color::FromValue(0xFFB000));
}
