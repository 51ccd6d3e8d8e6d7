// SPDX-License-Identifier: MIT
#include "platform/pictures/LoadPicture.h"

#include "platform/files/Files.h"
#include "platform/paint/Recording.h"
#include "platform/pictures/PictureCache.h"
#include "platform/pictures/PictureDecoder.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <turbojpeg.h>

#include <QColorSpace>
#include <QElapsedTimer>
#include <QFile>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>

namespace {

using namespace PictureFiles;

class PictureTest : public TavloraTest {
protected:
    PictureTest() { ForgetPictures(); }

    Picture Load(const QString& sName, const QByteArray& bytes, int wanted = kAllPixels) {
        return LoadPicture(WriteFile(sName, bytes), error, wanted);
    }
    static QString Shipped(const QString& sName) {
        return QStringLiteral(TAVLORA_SOURCE_DIR "/tests/data/pictures/") + sName;
    }

    QString error;
};

bool IsNear(QRgb a, QRgb b, int tolerance = 64) {
    return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

// The middle of each quarter: top left, top right, bottom left, bottom right.
void ExpectQuarters(const QImage& image, std::array<QRgb, 4> colors, const char* tag) {
    ASSERT_FALSE(image.isNull()) << tag;
    const int w = image.width();
    const int h = image.height();
    EXPECT_TRUE(IsNear(image.pixel(w / 4, h / 4), colors[0])) << tag << ": top left";
    EXPECT_TRUE(IsNear(image.pixel(w * 3 / 4, h / 4), colors[1])) << tag << ": top right";
    EXPECT_TRUE(IsNear(image.pixel(w / 4, h * 3 / 4), colors[2])) << tag << ": bottom left";
    EXPECT_TRUE(IsNear(image.pixel(w * 3 / 4, h * 3 / 4), colors[3])) << tag << ": bottom right";
}

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kGreen = 0xFF00FF00;
constexpr QRgb kBlue = 0xFF0000FF;
constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr std::array<QRgb, 4> kUpright{kRed, kGreen, kBlue, kWhite};

QImage IndexedQuarters(int width, int height) {
    QImage indexed(width, height, QImage::Format_Indexed8);
    indexed.setColorTable({kRed, kGreen, kBlue, kWhite});
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            indexed.setPixel(x, y, (x < width / 2 ? 0 : 1) + (y < height / 2 ? 0 : 2));
    }
    return indexed;
}

struct BmpCase {
    const char* tag;
    int bits;
    bool topDown;
};

TEST_F(PictureTest, ReadsBitmapsOfAllDepthsAndBothRowOrders) {
    for (const BmpCase& test : {BmpCase{"4 bit", 4, false}, BmpCase{"8 bit", 8, false}, BmpCase{"16 bit", 16, false},
                                BmpCase{"24 bit", 24, false}, BmpCase{"32 bit", 32, false},
                                BmpCase{"24 bit top down", 24, true}, BmpCase{"8 bit top down", 8, true}}) {
        const QByteArray bytes = Bmp(IndexedQuarters(47, 33), {.bits = test.bits, .topDown = test.topDown});
        const Picture picture = Load(QString::fromLatin1(test.tag) + QStringLiteral(".bmp"), bytes);
        EXPECT_EQ(picture.Image().size(), QSize(47, 33)) << test.tag;
        ExpectQuarters(picture.Image(), kUpright, test.tag);
    }
}

TEST_F(PictureTest, ReadsAOneBitBitmapAndARunLengthPackedOne) {
    const Picture mono = Load(QStringLiteral("m.bmp"), MonochromeBmp(Quarters(33, 9)));
    EXPECT_EQ(mono.Image().pixel(2, 2), qRgb(0, 0, 0));
    EXPECT_EQ(mono.Image().pixel(32, 8), kWhite);
    ExpectQuarters(Load(QStringLiteral("r.bmp"), RunLengthBmp(IndexedQuarters(47, 33))).Image(), kUpright,
                   "run length");
}

TEST_F(PictureTest, ReadsEveryFormatWhateverItsName) {
    const QImage quarters = Quarters(47, 33);
    for (const char* format : {"bmp", "jpg", "png", "webp", "tiff"}) {
        const Picture picture =
            Load(QStringLiteral("picture-%1.dat").arg(QLatin1String(format)), Encoded(quarters, format));
        EXPECT_EQ(picture.Width(), 47) << format << ' ' << qPrintable(error);
        ExpectQuarters(picture.Image(), kUpright, format);
    }
    ExpectQuarters(Load(QStringLiteral("gif.bmp"), Gif(IndexedQuarters(47, 33), -1)).Image(), kUpright, "gif");
    ExpectQuarters(LoadPicture(Shipped(QStringLiteral("quarters.avif")), error).Image(), kUpright, "avif");
    ExpectQuarters(LoadPicture(Shipped(QStringLiteral("quarters.heic")), error).Image(), kUpright, "heic");
}

TEST_F(PictureTest, TurnsAPhoneContainerOnceEvenWhenItCarriesTheCameraTagAsWell) {
    const Picture picture = LoadPicture(Shipped(QStringLiteral("quarters_turned.heic")), error);
    EXPECT_EQ(picture.Image().size(), QSize(32, 48));
    ExpectQuarters(picture.Image(), {kBlue, kRed, kWhite, kGreen}, "turned a quarter to the right");
}

TEST_F(PictureTest, ShowsAllEightCameraOrientationsUpright) {
    const QImage quarters = Quarters(64, 48);
    // What the camera stored for an upright scene, by tag.
    const QTransform right = QTransform().rotate(90);
    const QTransform left = QTransform().rotate(-90);
    const std::array<QImage, 8> stored{quarters,
                                       quarters.mirrored(true, false),
                                       quarters.mirrored(true, true),
                                       quarters.mirrored(false, true),
                                       quarters.transformed(right).mirrored(true, false),
                                       quarters.transformed(left),
                                       quarters.transformed(right).mirrored(false, true),
                                       quarters.transformed(right)};
    for (int tag = 1; tag <= 8; ++tag) {
        for (const bool littleEndian : {false, true}) {
            const QByteArray jpeg = WithOrientation(Encoded(stored[size_t(tag - 1)], "jpg", 100), tag, littleEndian);
            const Picture picture = Load(QStringLiteral("o%1%2.jpg").arg(tag).arg(littleEndian), jpeg);
            EXPECT_EQ(picture.Image().size(), QSize(64, 48)) << tag;
            EXPECT_EQ(picture.Width(), 64) << tag;
            ExpectQuarters(picture.Image(), kUpright, qPrintable(QString::number(tag)));
        }
    }
}

TEST_F(PictureTest, IgnoresAnOrientationThatIsNone) {
    for (const int tag : {0, 9, 255}) {
        const QByteArray jpeg = WithOrientation(Encoded(Quarters(64, 48), "jpg"), tag, true);
        ExpectQuarters(Load(QStringLiteral("n%1.jpg").arg(tag), jpeg).Image(), kUpright, "no such orientation");
    }
}

// Red, green, blue and white quarters in four inks.
QByteArray FourInkJpeg() {
    const QImage quarters = Quarters(64, 64);
    QByteArray inks;
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            const QRgb color = quarters.pixel(x, y);
            inks.append(char(qRed(color))).append(char(qGreen(color))).append(char(qBlue(color))).append(char(255));
        }
    }
    const std::unique_ptr<void, int (*)(void*)> handle(tjInitCompress(), &tjDestroy);
    unsigned char* out = nullptr;
    unsigned long size = 0;
    tjCompress2(handle.get(), reinterpret_cast<const unsigned char*>(inks.constData()), 64, 0, 64, TJPF_CMYK, &out,
                &size, TJSAMP_444, 95, 0);
    const QByteArray jpeg(reinterpret_cast<const char*>(out), qsizetype(size));
    tjFree(out);
    return jpeg;
}

TEST_F(PictureTest, ReadsGreyProgressiveAndFourInkPhotographs) {
    const QImage grey = Quarters(64, 48).convertToFormat(QImage::Format_Grayscale8);
    const Picture fromGrey = Load(QStringLiteral("grey.jpg"), Encoded(grey, "jpg"));
    EXPECT_TRUE(IsNear(fromGrey.Image().pixel(4, 4), grey.pixel(4, 4)));
    ExpectQuarters(Load(QStringLiteral("ink.jpg"), FourInkJpeg()).Image(), kUpright, "four inks");

    const QByteArray baseline = Encoded(Quarters(64, 64), "jpg");
    const std::unique_ptr<void, int (*)(void*)> handle(tjInitTransform(), &tjDestroy);
    unsigned char* out = nullptr;
    unsigned long size = 0;
    tjtransform progressive = {};
    progressive.options = TJXOPT_PROGRESSIVE;
    ASSERT_EQ(tjTransform(handle.get(), reinterpret_cast<const unsigned char*>(baseline.constData()),
                          static_cast<unsigned long>(baseline.size()), 1, &out, &size, &progressive, 0),
              0);
    const QByteArray bytes(reinterpret_cast<const char*>(out), qsizetype(size));
    tjFree(out);
    ASSERT_TRUE(bytes.contains("\xFF\xC2")) << "not progressive";
    ExpectQuarters(Load(QStringLiteral("progressive.jpg"), bytes).Image(), kUpright, "progressive");
}

TEST_F(PictureTest, KeepsTheTransparencyOfGifAndPng) {
    const Picture gif = Load(QStringLiteral("t.gif"), Gif(IndexedQuarters(8, 8), 3));
    ASSERT_TRUE(gif.Image().hasAlphaChannel());
    EXPECT_EQ(qAlpha(gif.Image().pixel(6, 6)), 0);
    EXPECT_EQ(gif.Image().pixel(1, 1), kRed);
    QImage glass(4, 4, QImage::Format_ARGB32);
    glass.fill(qRgba(0, 0, 255, 128));
    EXPECT_EQ(qAlpha(Load(QStringLiteral("t.png"), Encoded(glass, "png")).Image().pixel(1, 1)), 128);
}

TEST_F(PictureTest, DecodesFewerPixelsWhenTheDrawnSizeIsToldAndKeepsTheSizeOfTheFile) {
    const QByteArray jpeg = WithOrientation(Encoded(Quarters(1600, 1200), "jpg"), 6, true);
    const Picture picture = Load(QStringLiteral("large.jpg"), jpeg, 128);
    EXPECT_EQ(picture.Image().size(), QSize(150, 200));
    EXPECT_EQ(QSize(picture.Width(), picture.Height()), QSize(1200, 1600));
    EXPECT_EQ(picture.PartOfImage(QRectF(0, 0, 1200, 1600)), QRectF(0, 0, 150, 200));
    ExpectQuarters(picture.Image(), {kBlue, kRed, kWhite, kGreen}, "reduced and turned");
    const Picture png = Load(QStringLiteral("large.png"), Encoded(Quarters(1600, 1200), "png"), 128);
    EXPECT_EQ(png.Image().size(), QSize(200, 150));
    ExpectQuarters(png.Image(), kUpright, "reduced after decoding");
}

TEST_F(PictureTest, NeverGivesFewerPixelsThanWanted) {
    EXPECT_EQ(PictureDecoder::ReductionFor(4000, 500), 8);
    EXPECT_EQ(PictureDecoder::ReductionFor(4000, 501), 4);
    EXPECT_EQ(PictureDecoder::ReductionFor(4000, 5000), 1);
    EXPECT_EQ(PictureDecoder::ReductionFor(100000, 100), 8);
    EXPECT_EQ(PictureDecoder::ReductionFor(4000, kAllPixels), 1);
}

TEST_F(PictureTest, TellsForWhichSizesTheSameReductionComesOut) {
    for (const int longer : {4000, 3001, 999, 7}) {
        for (int wanted = 1; wanted <= longer + 1; ++wanted) {
            const int reduction = PictureDecoder::ReductionFor(longer, wanted);
            const PictureDecoder::SizesAlike alike = PictureDecoder::SizesOfReduction(longer, reduction);
            ASSERT_TRUE(alike.iFrom <= wanted && wanted <= alike.iTo) << longer << ' ' << wanted;
            EXPECT_TRUE(alike.iFrom == 1 || PictureDecoder::ReductionFor(longer, alike.iFrom - 1) != reduction);
            EXPECT_TRUE(reduction == 1 || PictureDecoder::ReductionFor(longer, alike.iTo + 1) != reduction);
        }
    }
}

TEST_F(PictureTest, AJpegIsDecodedOnceForAllSizesThatComeOutTheSame) {
    const QString path = WriteFile(QStringLiteral("a.jpg"), Encoded(Quarters(1600, 1200), "jpg"));
    const Picture small = LoadPicture(path, error, 100);
    EXPECT_EQ(small.Image().width(), 200);
    EXPECT_EQ(LoadPicture(path, error, 170).Image().constBits(), small.Image().constBits());
    EXPECT_TRUE(PrefetchPicture(path, 170)) << "nothing to wait for";
    EXPECT_EQ(LoadPicture(path, error, 300).Image().width(), 400);
    EXPECT_EQ(LoadPicture(path, error).Image().width(), 1600);
    WriteFile(QStringLiteral("a.jpg"), Encoded(Quarters(800, 600), "jpg"));
    EXPECT_EQ(LoadPicture(path, error, 170).Width(), 800);
}

TEST_F(PictureTest, ReadsAPhotographOf48Megapixels) {
    QImage image(8000, 6000, QImage::Format_Grayscale8);
    image.fill(77);
    const Picture picture = Load(QStringLiteral("48mp.jpg"), Encoded(image, "jpg", 60));
    EXPECT_EQ(picture.Image().size(), QSize(8000, 6000)) << qPrintable(error);
}

TEST_F(PictureTest, RefusesWhatIsCutShort) {
    const QImage quarters = Quarters(200, 160);
    for (const char* format : {"bmp", "jpg", "png", "webp", "tiff"}) {
        const QByteArray whole = Encoded(quarters, format);
        const Picture picture =
            Load(QStringLiteral("half-%1").arg(QLatin1String(format)), whole.left(whole.size() / 2));
        EXPECT_TRUE(picture.IsNull()) << format;
        EXPECT_FALSE(error.isEmpty()) << format;
    }
    const Picture gif = Load(QStringLiteral("half.gif"), Gif(IndexedQuarters(64, 64), -1).left(400));
    EXPECT_TRUE(gif.IsNull());
    QFile heic(Shipped(QStringLiteral("quarters.heic")));
    ASSERT_TRUE(heic.open(QIODevice::ReadOnly));
    EXPECT_TRUE(Load(QStringLiteral("half.heic"), heic.readAll().left(700)).IsNull());
}

TEST_F(PictureTest, ForgivesAPhotographThatOnlyLacksItsEndMark) {
    QByteArray jpeg = Encoded(Quarters(64, 48), "jpg");
    ASSERT_TRUE(jpeg.endsWith("\xFF\xD9"));
    jpeg.chop(2);
    ExpectQuarters(Load(QStringLiteral("noend.jpg"), jpeg).Image(), kUpright, "no end mark");
}

TEST_F(PictureTest, RefusesPicturesThatClaimToBeGigantic) {
    QByteArray jpeg = Encoded(Quarters(64, 64), "jpg");
    const qsizetype frame = jpeg.indexOf("\xFF\xC0");
    ASSERT_GT(frame, 0);
    for (int i = 5; i <= 8; ++i)
        jpeg[frame + i] = char(i % 2 == 1 ? 0xFD : 0xE8); // 65000 by 65000
    EXPECT_TRUE(Load(QStringLiteral("huge.jpg"), jpeg).IsNull());
    EXPECT_TRUE(error.contains(QStringLiteral("65000"))) << qPrintable(error);

    QByteArray bmp = Bmp(Quarters(8, 8));
    for (const int offset : {20, 24})
        bmp[offset] = char(0x7F);
    EXPECT_TRUE(Load(QStringLiteral("huge.bmp"), bmp).IsNull());

    QImage flat(20000, 20000, QImage::Format_Mono);
    flat.fill(0);
    EXPECT_TRUE(Load(QStringLiteral("bomb.png"), Encoded(flat, "png")).IsNull());
    EXPECT_FALSE(error.isEmpty());
}

TEST_F(PictureTest, RefusesWhatIsNoPictureWithASentence) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("hello"), QByteArray("BM"), QByteArray("\xFF\xD8\xFF"),
                                    QByteArray("GIF89a"), QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>")}) {
        error.clear();
        EXPECT_TRUE(Load(QStringLiteral("none%1.jpg").arg(bytes.size()), bytes).IsNull()) << bytes.constData();
        EXPECT_FALSE(error.isEmpty()) << bytes.constData();
    }
    EXPECT_TRUE(LoadPicture(PathOf(QStringLiteral("missing.bmp")), error).IsNull());
    EXPECT_FALSE(error.isEmpty());
}

TEST_F(PictureTest, BringsTheColoursOfACameraProfileToTheScreen) {
    QImage wide(32, 32, QImage::Format_RGB32);
    wide.fill(qRgb(200, 60, 60));
    wide.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
    for (const char* format : {"jpg", "png"}) {
        const Picture picture = Load(QStringLiteral("p3.") + QString::fromLatin1(format), Encoded(wide, format, 100));
        EXPECT_GT(qRed(picture.Image().pixel(16, 16)), 210) << format;
        EXPECT_LT(qGreen(picture.Image().pixel(16, 16)), 50) << format;
    }
}

TEST_F(PictureTest, KeepsWhatItDecodedUntilTheFileChanges) {
    const QString path = WriteFile(QStringLiteral("a.png"), Encoded(Quarters(8, 8), "png"));
    const Picture first = LoadPicture(path, error);
    EXPECT_EQ(LoadPicture(path, error).Image().constBits(), first.Image().constBits());
    WriteFile(QStringLiteral("a.png"), Encoded(Quarters(10, 8), "png"));
    EXPECT_EQ(LoadPicture(path, error).Width(), 10);
}

TEST_F(PictureTest, BoundsTheMemoryOfWhatIsKept) {
    QImage image(2000, 1500, QImage::Format_RGB32);
    image.fill(Qt::gray);
    const QByteArray bytes = Bmp(image);
    for (int i = 0; i < 12; ++i)
        EXPECT_FALSE(Load(QStringLiteral("%1.bmp").arg(i), bytes).IsNull());
    EXPECT_LE(PictureCache::Instance().Bytes(), PictureCache::kMaxBytes);
    EXPECT_GT(PictureCache::Instance().Bytes(), PictureCache::kMaxBytes / 2);
}

TEST_F(PictureTest, RecordingsAreKeptWhileOtherThreadsLoadPictures) {
    const QString path = WriteFile(QStringLiteral("a.png"), Encoded(Quarters(8, 8), "png"));
    const auto recording = std::make_shared<Recording>(QSize(8, 8), 96);
    std::atomic<bool> done = false;
    std::thread loader([&path, &done] {
        QString failure;
        while (!done)
            LoadPicture(path, failure);
    });
    for (int i = 0; i < 20'000; ++i)
        KeepRecording(PathOf(QStringLiteral("%1.bmp").arg(i % 97)), recording);
    KeepRecording(path, recording);
    done = true;
    loader.join();
    EXPECT_EQ(LoadPicture(path, error).Recording(), recording);
}

TEST_F(PictureTest, ADecoderThatFailsUnexpectedlyKeepsNobodyWaiting) {
    const PictureCache::Key key{QStringLiteral("/nowhere.bmp"), {1, 2}, kAllPixels};
    PictureCache& cache = PictureCache::Instance();
    EXPECT_THROW(
        cache.Get(key, [](const PictureCache::Key&) -> PictureCache::Entry { throw std::runtime_error("broken"); }),
        std::runtime_error);
    EXPECT_TRUE(cache.Reserve(key)) << "whoever comes next would wait for ever";
    cache.Fulfil(key, {});
}

TEST_F(PictureTest, PrefetchedPicturesAreDecodedOnceAndAreThoseOfTheFile) {
    QStringList paths;
    for (int i = 0; i < 20; ++i)
        paths.append(WriteFile(QStringLiteral("f%1.jpg").arg(i), Encoded(Quarters(400 + i, 300), "jpg")));
    int reads = 0;
    std::mutex guard;
    Files::SetFaultHook([&](Files::Operation operation, const QString&) -> std::optional<QString> {
        const std::scoped_lock lock(guard);
        reads += operation == Files::Operation::OpenRead ? 1 : 0;
        return std::nullopt;
    });
    for (const QString& path : paths)
        PrefetchPicture(path, 100);
    for (int i = 0; i < paths.size(); ++i) {
        const Picture picture = LoadPicture(paths[i], error, 100);
        EXPECT_EQ(picture.Width(), 400 + i);
        ExpectQuarters(picture.Image(), kUpright, "prefetched");
    }
    EXPECT_EQ(reads, 20);
    Files::SetFaultHook({});
}

} // namespace
