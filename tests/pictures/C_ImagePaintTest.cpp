// SPDX-License-Identifier: MIT
#include "pictures/BoardThumbnail.h"
#include "pictures/C_Image.h"
#include "pictures/PaintPicture.h"
#include "pictures/ThumbnailStore.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHolder.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/TavloraError.h"
#include "services/WorkFiles.h"
#include "support/PictureFiles.h"
#include "support/StartUp.h"
#include "support/TestFixture.h"

#include <QDateTime>
#include <QFile>
#include <QPainter>
#include <QRectF>

namespace {

using namespace PictureFiles;

constexpr QRgb kBoard = 0xFFE0FFE0;
constexpr QRgb kBlack = 0xFF000000;

class C_ImagePaintTest : public TavloraTest {
protected:
    C_ImagePaintTest() {
        ForgetPictures();
        StartUp::MakeThumbnails();
        form.SetBackColor(Color::Rgb(0xE0, 0xFF, 0xE0));
    }

    QString Photo(const QString& sName, int width, int height) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        return WriteFile(sName, Encoded(image, "png"));
    }
    /// 300 by 200: blue, but for the square from (75, 25) to (225, 175), which is white with a red frame 6 wide.
    QString FramedHalf(const QString& sName) {
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QPainter painter(&image);
        painter.fillRect(75, 25, 150, 150, Qt::red);
        painter.fillRect(81, 31, 138, 138, Qt::white);
        painter.end();
        return WriteFile(sName, Encoded(image, "png"));
    }
    QString LineDrawing(const QString& sName) {
        QImage art(200, 200, QImage::Format_RGB32);
        art.fill(Qt::white);
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 100; ++x)
                art.setPixel(x, y, kBlack);
        }
        return WriteFile(sName, MonochromeBmp(art));
    }
    bool Zoomed(C_Image& image, double side = 100, Color back = Color::None()) {
        return image.PaintPictureZoomed(form, original, ScaleModeKind::Pixels, 0, 0, side, side, back);
    }

    ScratchForm form{QSize(100, 100)};
    PictureHolder original;
};

TEST_F(C_ImagePaintTest, ImageWithoutPathPaintsNothingWithoutABox) {
    basErrLog::ErrInit(0);
    C_Image image;
    image.PaintPictureCentered(form, 0, 0, 100, 100, Color::None());
    image.Let_SpaceOrCorner(QStringLiteral("Space"));
    image.DrawBitmapToScreen(form, 0, 0, 100, 100);
    EXPECT_EQ(image.GetThumbnail(false), QString());
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(form.Image().pixel(50, 50), kBoard);
}

TEST_F(C_ImagePaintTest, Edge_PaintingTheSameMissingFileTwiceShowsOneBox) {
    C_Image image;
    const QString path = Photo(QStringLiteral("gone.png"), 20, 20);
    image.Let_FullPath(path);
    QFile::remove(path);
    image.PaintPictureCentered(form, 0, 0, 100, 100, Color::None());
    image.PaintPictureCentered(form, 0, 0, 100, 100, Color::None());
    EXPECT_FALSE(Zoomed(image));
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("The file named '") + path +
                          QStringLiteral("' was not found on the disk.\r\nThe area will be left empty.")});
    EXPECT_EQ(form.Image().pixel(50, 50), kBoard);
}

// The first look at the file only proves it; the second one brings what is painted.
TEST_F(C_ImagePaintTest, APictureThatGoesAwayWhileItIsPaintedIsToldInTheOldWordsAndLogged) {
    basErrLog::ErrInit(60000);
    C_Image image;
    const QString path = Photo(QStringLiteral("p.png"), 300, 200);
    image.Init(path, QStringLiteral("Space"), 4);
    int reads = 0;
    Files::SetFaultHook([&](Files::Operation operation, const QString& at) -> std::optional<QString> {
        if (operation != Files::Operation::OpenRead || at != path) return std::nullopt;
        if (reads++ > 0) return QStringLiteral("The cable was pulled");
        // As of another minute, so that it has to be read once more.
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
        return std::nullopt;
    });
    EXPECT_FALSE(Zoomed(image));
    const QString told = QStringLiteral("Unable to LoadPicture for file named '") + path +
                         QStringLiteral("'\r\nArea will be left blank. & vbcrlf & vbcrlfThe following error was "
                                        "reported: The cable was pulled");
    EXPECT_EQ(desktop.Texts(), QStringList{told});
    EXPECT_TRUE(QString::fromUtf8(ReadFile(PathOf(QStringLiteral("tavlora.log")))).contains(told));
    EXPECT_EQ(form.Image().pixel(50, 50), kBoard);
}

TEST_F(C_ImagePaintTest, Edge_FirstZoomedPaintCentresAndDropsTheThumbnail) {
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png"), 300, 200), QStringLiteral("Space"), 4);
    WriteFile(QStringLiteral("Space4.bmp"), "old");
    EXPECT_TRUE(Zoomed(image));
    EXPECT_EQ(image.XCenter(), 150);
    EXPECT_EQ(image.YCenter(), 100);
    EXPECT_FALSE(Files::Exists(image.Thumbname()));
}

TEST_F(C_ImagePaintTest, Edge_ZoomTenShowsHalfTheSideAndZoomZeroAll) {
    const ZoomedSource half = ZoomedSource::Of(300, 200, 10, 150, 100);
    EXPECT_EQ(half.iSide, 150);
    EXPECT_EQ(half.xSrc, 75);
    EXPECT_EQ(half.ySrc, 25);
    const ZoomedSource whole = ZoomedSource::Of(300, 200, 0, 150, 100);
    EXPECT_EQ(whole.iSide, 300);
    EXPECT_EQ(whole.ySrc, -50);
    // A third of the square lies beyond the picture, in even bars above and below.
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png"), 300, 200), QStringLiteral("Space"), 4);
    EXPECT_TRUE(Zoomed(image));
    EXPECT_EQ(form.Image().pixel(50, 15), kBoard);
    EXPECT_EQ(form.Image().pixel(50, 18), qRgb(255, 0, 0));
    EXPECT_EQ(form.Image().pixel(50, 81), qRgb(255, 0, 0));
    EXPECT_EQ(form.Image().pixel(50, 85), kBoard);

    // At zoom 10 a frame just inside the half shows all around, and nothing of what lies outside.
    C_Image framed;
    framed.Init(FramedHalf(QStringLiteral("framed.png")), QStringLiteral("Space"), 5);
    framed.Let_Zoom(10);
    framed.Let_XCenter(150);
    framed.Let_YCenter(100);
    EXPECT_TRUE(Zoomed(framed));
    const QImage shown = form.Image();
    for (const QPoint corner : {QPoint(1, 1), QPoint(98, 1), QPoint(1, 98), QPoint(98, 98)})
        EXPECT_EQ(shown.pixel(corner), qRgb(255, 0, 0)) << corner.x() << ' ' << corner.y();
    for (const QPoint inside : {QPoint(6, 6), QPoint(93, 6), QPoint(6, 93), QPoint(93, 93)})
        EXPECT_EQ(shown.pixel(inside), qRgb(255, 255, 255)) << inside.x() << ' ' << inside.y();
}

TEST_F(C_ImagePaintTest, Edge_WhiteOfALineDrawingShowsWhatIsBeneath) {
    C_Image image;
    image.Let_FullPath(LineDrawing(QStringLiteral("art.bmp")));
    image.PaintPictureCentered(form, 0, 0, 100, 100, Color::None());
    EXPECT_EQ(form.Image().pixel(20, 50), kBlack);
    EXPECT_EQ(form.Image().pixel(80, 50), kBoard);
}

TEST_F(C_ImagePaintTest, LineDrawingTakesAPaperColourWithRedAndBlueExchanged) {
    C_Image image;
    image.Let_FullPath(LineDrawing(QStringLiteral("art.bmp")));
    image.PaintPictureCentered(form, 0, 0, 100, 100, Color::Rgb(10, 20, 30));
    EXPECT_EQ(form.Image().pixel(20, 50), kBlack);
    EXPECT_EQ(form.Image().pixel(80, 50), qRgb(30, 20, 10));
    EXPECT_TRUE(Files::Exists(WorkFiles::PathOf(QStringLiteral("TempImage.bmp"))));
    EXPECT_FALSE(Files::Exists(PathOf(QStringLiteral("TempImage.bmp"))));
}

TEST_F(C_ImagePaintTest, ALineDrawingThatCannotBeRecoloredIsLoggedAndNotTakenAsPainted) {
    basErrLog::ErrInit(60000);
    C_Image image;
    image.Let_FullPath(LineDrawing(QStringLiteral("art.bmp")));
    Files::SetFaultHook([](Files::Operation operation, const QString& at) -> std::optional<QString> {
        const bool hit = operation == Files::Operation::OpenWrite && at.endsWith(QStringLiteral("TempImage.bmp"));
        return hit ? std::optional(QStringLiteral("The disk is full")) : std::nullopt;
    });
    EXPECT_FALSE(Zoomed(image, 100, Color::Rgb(10, 20, 30)));
    Files::SetFaultHook({});
    EXPECT_TRUE(QString::fromUtf8(ReadFile(PathOf(QStringLiteral("tavlora.log"))))
                    .contains(QStringLiteral("The disk is full")));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_TRUE(Zoomed(image, 100, Color::Rgb(10, 20, 30)));
}

TEST_F(C_ImagePaintTest, APictureWiderThanACentreReachesIsPaintedAllTheSame) {
    C_Image image;
    image.Let_FullPath(Photo(QStringLiteral("wide.png"), 70000, 4));
    EXPECT_TRUE(Zoomed(image));
    EXPECT_EQ(image.XCenter(), 32767);
    EXPECT_EQ(image.YCenter(), 2);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(C_ImagePaintTest, ZoomedLineDrawingStaysTransparentWhateverThePaperColour) {
    C_Image image;
    image.Let_FullPath(LineDrawing(QStringLiteral("art.bmp")));
    EXPECT_TRUE(Zoomed(image, 100, Color::Rgb(10, 20, 30)));
    EXPECT_EQ(form.Image().pixel(80, 50), kBoard);
}

TEST_F(C_ImagePaintTest, FitsTheWholePictureCentred) {
    C_Image image;
    image.Let_FullPath(Photo(QStringLiteral("wide.png"), 400, 100));
    image.PaintPictureCentered(form, 10, 0, 90, 100, Color::None());
    EXPECT_EQ(form.Image().pixel(50, 39), kBoard);
    EXPECT_EQ(form.Image().pixel(50, 40), qRgb(255, 0, 0));
    EXPECT_EQ(form.Image().pixel(50, 59), qRgb(255, 0, 0));
    EXPECT_EQ(form.Image().pixel(50, 60), kBoard);
    EXPECT_EQ(form.Image().pixel(9, 50), kBoard);
    EXPECT_EQ(form.Image().pixel(10, 50), qRgb(255, 0, 0));
}

TEST_F(C_ImagePaintTest, PictureThatCannotBeReadIsToldOnceWithTheReason) {
    C_Image image;
    image.Let_FullPath(WriteFile(QStringLiteral("broken.jpg"), "no photograph"));
    EXPECT_FALSE(Zoomed(image));
    EXPECT_FALSE(Zoomed(image));
    image.PaintPictureCentered(form, 0, 0, 100, 100, Color::None());
    ASSERT_EQ(desktop.boxes.size(), 1);
    const QString text = desktop.Texts().first();
    EXPECT_TRUE(
        text.startsWith(QStringLiteral("The image named '") + image.FullPath() +
                        QStringLiteral("' could not be loaded.\r\n\r\nThe following errror was reported:\r\n\r\n")));
    EXPECT_TRUE(text.endsWith(QStringLiteral("\r\n\r\nThe area will be left empty.")));
}

TEST_F(C_ImagePaintTest, BoxesWaitWhileTheBoardIsPainted) {
    C_Image image;
    image.Let_FullPath(WriteFile(QStringLiteral("broken.jpg"), "no photograph"));
    basMsgQueue::MsgQueue_Init();
    EXPECT_FALSE(Zoomed(image));
    EXPECT_TRUE(desktop.boxes.isEmpty());
    basMsgQueue::MsgQueue_Display();
    EXPECT_EQ(desktop.boxes.size(), 1);
}

TEST_F(C_ImagePaintTest, SizeIsTheSameInTwipsAndInPixels) {
    C_Image image;
    image.Let_FullPath(Photo(QStringLiteral("p.png"), 300, 200));
    EXPECT_TRUE(image.PaintPictureZoomed(form, original, ScaleModeKind::Twips, 0, 0, 100, 100, Color::None()));
    EXPECT_EQ(image.XCenter(), 150);
    EXPECT_EQ(original.Width(ScaleModeKind::Twips), 4500);
    EXPECT_EQ(original.Width(ScaleModeKind::Pixels), 300);
}

TEST_F(C_ImagePaintTest, MissingPictureAtTheThumbnailIsToldOnceAndThenSilent) {
    C_Image image;
    const QString path = Photo(QStringLiteral("p.png"), 30, 20);
    image.Init(path, QStringLiteral("Space"), 4);
    QFile::remove(path);
    EXPECT_EQ(image.GetThumbnail(false), path);
    EXPECT_EQ(image.GetThumbnail(false), QString());
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("The file named '") + path +
                                           QStringLiteral("' was not found.\r\nThe image will not be drawn.")});
}

TEST_F(C_ImagePaintTest, ThumbnailOfAnUnknownKindRaises) {
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png"), 30, 20), QStringLiteral("Balloon"), 1);
    EXPECT_THROW(image.GetThumbnail(false), TavloraError);
}

TEST_F(C_ImagePaintTest, TokensAndMoneyNeverLieOnTheBoard) {
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png"), 30, 20), QStringLiteral("Token"), 1);
    EXPECT_THROW(image.DrawBitmapToScreen(form, 0, 0, 50, 50), TavloraError);
}

TEST_F(C_ImagePaintTest, BoardShowsTheThumbnailAndAFinerRenderingWhereItIsLarge) {
    C_Image image;
    image.Init(WriteFile(QStringLiteral("q.png"), Encoded(Quarters(1000, 1000), "png")), QStringLiteral("Space"), 7);
    image.DrawBitmapToScreen(form, 0, 0, 60, 60);
    EXPECT_EQ(form.Image().pixel(5, 5), qRgb(0, 0, 255)) << "turned to the left side";
    ScratchForm large(QSize(400, 400));
    image.DrawBitmapToScreen(large, 0, 0, 400, 400);
    EXPECT_EQ(large.Image().pixel(198, 10), qRgb(0, 0, 255));
    EXPECT_EQ(large.Image().pixel(201, 10), qRgb(255, 0, 0)) << "the edge of an enlarged thumbnail would be blurred";
}

// Renders nothing but keeps how large it was wanted.
class SideNoting : public ThumbnailMaker {
public:
    void CreateThumbRotatedTo90(const OwnedPicture&) override {}
    void CreateThumbRotatedTo45(const OwnedPicture&) override {}
    void CreateThumbElliptical(const OwnedPicture&, bool) override {}
    Picture RenderRotated(const OwnedPicture&, int lSide) override {
        sides.append(lSide);
        return Picture(QImage(1, 1, QImage::Format_RGB32));
    }
    static SideNoting& Instance() {
        static SideNoting maker;
        return maker;
    }
    QList<int> sides;
};

TEST_F(C_ImagePaintTest, AFinerRenderingIsEvenAndNoLargerThanAnyScreenNeeds) {
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png"), 30, 20), QStringLiteral("Space"), 7);
    const ThumbnailMaker::Creator before =
        ThumbnailMaker::Install([]() -> ThumbnailMaker& { return SideNoting::Instance(); });
    SideNoting::Instance().sides.clear();
    for (const int side : {101, 102, 2047, 2048, 2049, 5000})
        PaintThumbnailOf(image.Owned(), form, QRectF(0, 0, side, side));
    ThumbnailMaker::Install(before);
    EXPECT_EQ(SideNoting::Instance().sides, (QList<int>{102, 102, 2048, 2048, 2048, 2048}));
}

TEST_F(C_ImagePaintTest, FateIsPaintedFromTheKit) {
    Folders::SetProgramDirectory(folder.path());
    const QString fate = Photo(QStringLiteral("fate.dat"), 40, 40);
    C_Image image;
    image.Init(WriteFile(QStringLiteral("q.png"), Encoded(Quarters(40, 40), "png")), QStringLiteral("Corner"), 3);
    image.DrawBitmapToScreen(form, 0, 0, 60, 60);
    EXPECT_EQ(form.Image().pixel(2, 2), qRgb(255, 0, 0));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(C_ImagePaintTest, BrokenThumbnailIsToldOnceAndNotThePicture) {
    // The corner whose thumbnail is a file of the kit.
    Folders::SetProgramDirectory(folder.path());
    WriteFile(QStringLiteral("fate.dat"), "BM");
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png"), 30, 20), QStringLiteral("Corner"), 3);
    image.DrawBitmapToScreen(form, 0, 0, 50, 50);
    image.DrawBitmapToScreen(form, 0, 0, 50, 50);
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(image.BadPath(), QString());
}

} // namespace
