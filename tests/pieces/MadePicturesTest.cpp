// SPDX-License-Identifier: MIT
// The files of made pictures as other programs read them, and the photographs in them on paper.
#include "drawing/clsBMP.h"
#include "pictures/PaintPicture.h"
#include "pieces/frmBMP.h"
#include "platform/paint/PaintImage.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureCache.h"
#include "platform/printing/Printer.h"
#include "render/clsRenderDestination.h"
#include "services/basCommon.h"
#include "support/GameFixture.h"
#include "support/Ink.h"
#include "support/PdfReader.h"
#include "support/PictureFiles.h"
#include "support/StartUp.h"

#include <QProcess>
#include <QStandardPaths>

namespace {

class MadePicturesTest : public GameTest {
protected:
    MadePicturesTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
        basCommon::InitIniPath();
        StartUp::SetUpKit();
    }
    ~MadePicturesTest() override { basCommon::ResetForTest(); }

    static bool Has(const char* tool) { return !QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty(); }
    // What a program says of a file on either of its outputs.
    static QString Told(const char* tool, const QStringList& words) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QString::fromLatin1(tool), words);
        return process.waitForFinished() && process.exitCode() == 0 ? QString::fromLatin1(process.readAll())
                                                                    : QString();
    }

    // Quarters in many colours: a photograph, as printing goes.
    QString Photo(const QString& sName, int width, int height) const {
        QImage image(width, height, QImage::Format_RGB32);
        for (int y = 0; y < height; ++y) {
            auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < width; ++x)
                row[x] = qRgb(255 * x / width, 255 * y / height, (x ^ y) & 0xFF);
        }
        return WriteFile(sName, PictureFiles::Encoded(image, "jpeg"));
    }
    void Print(double dblWidth, double dblHeight, int dpi = PdfPrinter::kDefaultDpi) const {
        PdfPrinter printer(pdf, QStringLiteral("piece"), QPageSize::Letter, dpi);
        clsRenderDestination destination;
        destination.Init(printer, 1.0);
        destination.OutputFromBMP(file, 1, 1, dblWidth, dblHeight);
        QString error;
        EXPECT_TRUE(printer.Close(error)) << qPrintable(error);
    }
    void PrintSticker(int dpi = PdfPrinter::kDefaultDpi) const {
        EXPECT_TRUE(frmBMP::Instance().GenerateSpaceStickerImage(file, kSpace));
        Print(basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth), basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight), dpi);
    }
    QList<PdfReader::StoredImage> PicturesInPdf() const { return PdfReader(pdf).Images(1); }
    QString TextInPdf() const { return PdfReader(pdf).Text(1).simplified(); }
    static void HavePicture(const QString& sPath) {
        basTAVL::g_oSpaces(kSpace).SetText(QStringLiteral("Oak Street"));
        basTAVL::g_oSpaces(kSpace).Image.Init(sPath, QStringLiteral("Space"), kSpace);
    }

    static constexpr int kSpace = 5;
    const QString file = PathOf(QStringLiteral("piece.bmp"));
    const QString pdf = PathOf(QStringLiteral("piece.pdf"));
};

struct MadePicture {
    const char* tag;
    std::function<bool(const QString& sFile)> make;
    const char* size;
};

// The eight routines, and both depths of the files that hold a text.
QList<MadePicture> AllKinds() {
    frmBMP& form = frmBMP::Instance();
    const QString arial = QStringLiteral("Arial");
    const Color ink = Color::Black();
    const Color paper = Color::Rgb(255, 255, 0);
    const auto text = [=](int bits, const QString& sFile) {
        clsBMP bmp;
        bmp.SetFontInfo(arial, 30, false, false);
        bmp.Let_BitsPerPixel(bits);
        bmp.Let_FullPathToBmpFile(sFile);
        return bmp.CreateFileHoldingText(QStringLiteral("Our Town"), ink, paper);
    };
    return {
        {"corner", [&form](const QString& sFile) { return form.GenerateCornerImage(sFile, 1); }, "612x612x24"},
        {"money", [&form](const QString& sFile) { return form.GenerateMoneyImage(sFile, 2); }, "720x384x24"},
        {"whole space", [&form](const QString& sFile) { return form.GenerateSpaceFullImage(sFile, 4); }, "475x810x24"},
        {"sticker", [&form](const QString& sFile) { return form.GenerateSpaceStickerImage(sFile, 4); }, "392x612x24"},
        {"token", [&form](const QString& sFile) { return form.GenerateTokenImage(sFile, 3); }, "266x266x24"},
        {"single line",
         [=, &form](const QString& sFile) {
             return form.GenerateSingleLineImage(sFile, 7.375, 0.49, QStringLiteral("Our Town"), arial, true, true, ink,
                                                 paper);
         },
         "2212x147x24"},
        {"stretched text",
         [=, &form](const QString& sFile) {
             return form.GenerateStretchedTextImage(sFile, 4.01, 0.5, QStringLiteral("Our Town"), arial, false, false,
                                                    ink, paper, true);
         },
         "1155x144x24"},
        {"text",
         [=, &form](const QString& sFile) {
             return form.GenerateTextImage(sFile, 1.75, 0.571, QStringLiteral("Our\r\nTown"), arial, true, true, 0.2,
                                           ink, paper);
         },
         "504x164x24"},
        {"text of 1 bit", [=](const QString& sFile) { return text(1, sFile); }, "x30x1"},
        {"text of 24 bits", [=](const QString& sFile) { return text(24, sFile); }, "x30x24"},
    };
}

} // namespace

TEST_F(MadePicturesTest, EveryKindOpensInAReaderThatIsNotOurs) {
    if (!Has("bmptopnm")) GTEST_SKIP() << "netpbm is not installed";
    for (const MadePicture& kind : AllKinds()) {
        ASSERT_TRUE(kind.make(file)) << kind.tag;
        const QString told = Told("bmptopnm", {file}).section(u'\n', 0, 0);
        EXPECT_TRUE(told.startsWith(QStringLiteral("bmptopnm: Windows"))) << kind.tag << ' ' << told.toStdString();
        EXPECT_TRUE(told.endsWith(QString::fromLatin1(kind.size))) << kind.tag << ' ' << told.toStdString();
    }
}

TEST_F(MadePicturesTest, ImageMagickAgreesOnTheSize) {
    if (!Has("identify")) GTEST_SKIP() << "ImageMagick is not installed";
    for (const MadePicture& kind : AllKinds()) {
        ASSERT_TRUE(kind.make(file)) << kind.tag;
        const QString told = Told("identify", {QStringLiteral("-format"), QStringLiteral("%m %wx%h "), file});
        const QString size = QString::fromLatin1(kind.size).section(u'x', 0, 1);
        EXPECT_TRUE(told.startsWith(QStringLiteral("BMP"))) << kind.tag << ' ' << told.toStdString();
        EXPECT_TRUE(told.contains(size + u' ')) << kind.tag << ' ' << told.toStdString();
    }
}

TEST_F(MadePicturesTest, AStickersTextIsTextAndItsPhotoHas300DotsAnInch) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    for (const QSize size : {QSize(4000, 3000), QSize(1200, 1200), QSize(700, 900)}) {
        HavePicture(Photo(QStringLiteral("%1.jpg").arg(size.width()), size.width(), size.height()));
        PrintSticker();
        const QList<PdfReader::StoredImage> pictures = PicturesInPdf();
        ASSERT_EQ(pictures.size(), 1);
        EXPECT_NEAR(pictures[0].dblDpiX, 300, 2) << size.width();
        EXPECT_NEAR(pictures[0].dblDpiY, 300, 2) << size.width();
        EXPECT_EQ(TextInPdf(), QStringLiteral("Oak Street"));
    }
}

TEST_F(MadePicturesTest, ASmallPhotoKeepsAllThePixelsItHas) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    HavePicture(Photo(QStringLiteral("small.jpg"), 120, 90));
    PrintSticker();
    ASSERT_EQ(PicturesInPdf().size(), 1);
    EXPECT_EQ(PicturesInPdf()[0].iWidth, 120);
    EXPECT_EQ(PicturesInPdf()[0].iHeight, 90);
}

TEST_F(MadePicturesTest, AZoomedPhotoIsCutBeforeItIsBroughtTo300DotsAnInch) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    HavePicture(Photo(QStringLiteral("large.jpg"), 3000, 3000));
    basTAVL::g_oSpaces(kSpace).Image.Let_Zoom(20);
    PrintSticker();
    ASSERT_EQ(PicturesInPdf().size(), 1);
    const double side = basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight) / 2;
    EXPECT_NEAR(PicturesInPdf()[0].iWidth, side * 300, 2);
    EXPECT_NEAR(PicturesInPdf()[0].dblDpiX, 300, 2);
}

TEST_F(MadePicturesTest, ACoarsePageHasItsPhotosAtTheSame300DotsAnInch) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    HavePicture(Photo(QStringLiteral("large.jpg"), 2000, 2000));
    PrintSticker(150);
    ASSERT_EQ(PicturesInPdf().size(), 1);
    EXPECT_NEAR(PicturesInPdf()[0].dblDpiX, 300, 3);
}

TEST_F(MadePicturesTest, ANotesPicturesHave300DotsAnInchThoughItsFileHas192) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    C_Money& money = basTAVL::g_oMoney(1);
    money.BackImage.Init(QStringLiteral(TAVLORA_DATA_DIR) + QStringLiteral("/BLNK500.dat"), QString(), 0);
    money.FaceImage.Init(Photo(QStringLiteral("face.jpg"), 1600, 1200), QStringLiteral("Money"), 1);
    money.Let_Text(0, QStringLiteral("In Gran"));
    money.Let_Text(1, QStringLiteral("we trust"));
    ASSERT_TRUE(frmBMP::Instance().GenerateMoneyImage(file, 1));
    Print(3.75, 2.0);
    const QList<PdfReader::StoredImage> pictures = PicturesInPdf();
    ASSERT_EQ(pictures.size(), 3) << "the blank, the face and the oval that the face shows in";
    for (const PdfReader::StoredImage& picture : pictures)
        EXPECT_NEAR(picture.dblDpiX, 300, 3) << picture.iWidth;
    EXPECT_EQ(TextInPdf(), QStringLiteral("In Gran we trust"));
}

// What is kept of 28 photographs until their sheet is printed would otherwise fill the memory.
TEST_F(MadePicturesTest, ARecordingKeepsNoMoreOfAPhotoThanItsPieceShowsOnPaper) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    HavePicture(Photo(QStringLiteral("large.jpg"), 4000, 4000));
    ASSERT_TRUE(frmBMP::Instance().GenerateSpaceStickerImage(file, kSpace));
    Print(3 * basTAVL::g_dblLabelSizes(basTAVL::kStickerWidth), 3 * basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight));
    ASSERT_EQ(PicturesInPdf().size(), 1);
    EXPECT_NEAR(PicturesInPdf()[0].iWidth, basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight) / 2 * 300, 2);
}

// Its pixels and its drawing want it in two sizes that differ a little, and some zoom puts a step between any two.
TEST_F(MadePicturesTest, APhotoIsDecodedOnceForAPieceAtWhateverZoom) {
    HavePicture(Photo(QStringLiteral("large.jpg"), 2000, 1500));
    C_Image& image = basTAVL::g_oSpaces(kSpace).Image;
    const PictureCache& cache = PictureCache::Instance();
    for (qint16 zoom = 0; zoom < 12; ++zoom) {
        image.Let_Zoom(zoom);
        ForgetPictures();
        ASSERT_TRUE(frmBMP::Instance().GenerateSpaceStickerImage(file, kSpace));
        const qint64 kept = cache.Bytes();
        ForgetPictures();
        QString error;
        const double side = basTAVL::g_dblLabelSizes(basTAVL::kStickerHeight) / 2 * kPaperDotsPerInch;
        EXPECT_FALSE(LoadPicture(image.FullPath(), error, LongerSideWanted(image.Ref(), side)).IsNull());
        EXPECT_EQ(kept, cache.Bytes()) << zoom;
    }
}

TEST_F(MadePicturesTest, PaperTakesTheDrawingOfAFileWithoutItsPixelsUntilTheFileIsAnother) {
    HavePicture(Photo(QStringLiteral("small.jpg"), 120, 90));
    ASSERT_TRUE(frmBMP::Instance().GenerateSpaceStickerImage(file, kSpace));
    QString error;
    const Picture drawn = LoadForPaper(file, error);
    EXPECT_FALSE(drawn.IsNull());
    EXPECT_TRUE(drawn.Image().isNull());
    EXPECT_EQ(drawn.Recording(), LoadPicture(file, error).Recording());
    WriteFile(QStringLiteral("piece.bmp"), PictureFiles::Encoded(PictureFiles::Quarters(30, 20), "bmp"));
    const Picture other = LoadForPaper(file, error);
    EXPECT_FALSE(other.Recording());
    EXPECT_EQ(other.Image().size(), QSize(30, 20));
}

TEST_F(MadePicturesTest, TheGroundOfAStickerReachesItsEdges) {
    ASSERT_TRUE(frmBMP::Instance().GenerateSpaceStickerImage(file, 5));
    const QImage sticker(file);
    const QColor ground(0xB6, 0xDD, 0xC7);
    const int right = sticker.width() - 1;
    const int bottom = sticker.height() - 1;
    for (const QPoint corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
        EXPECT_EQ(sticker.pixelColor(corner), ground) << corner.x() << ' ' << corner.y();
}

TEST_F(MadePicturesTest, LinesOfATextAreAsHighAsItsSize) {
    ASSERT_TRUE(frmBMP::Instance().GenerateTextImage(file, 4.0, 1.0, QStringLiteral("H"), QStringLiteral("Arial"),
                                                     false, false, 0.2, Color::Black(), Color::White()));
    const QImage text(file);
    // A line of 0.2 inch is 1.149 times as high as its letters' square, of which an H takes 0.716.
    const double inches = double(DarkBox(text, text.rect()).height()) / text.height();
    EXPECT_NEAR(inches, 0.2 / 1.149 * 0.716, 0.006);
}
