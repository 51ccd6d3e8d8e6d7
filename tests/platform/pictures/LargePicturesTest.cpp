// SPDX-License-Identifier: MIT
// Pictures that unfold to more than a small machine has to spare.
#include "platform/paint/Resample.h"
#include "platform/pictures/JpegMarkers.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureCache.h"
#include "platform/pictures/PictureFormat.h"
#include "platform/pictures/PictureHead.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <QBuffer>
#include <QImageWriter>

#include <algorithm>

namespace {

class LargePicturesTest : public TavloraTest {
protected:
    LargePicturesTest() { ForgetPictures(); }
    ~LargePicturesTest() override { ForgetPictures(); }

    static QByteArray ProgressiveJpeg(const QImage& image) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpeg");
        writer.setProgressiveScanWrite(true);
        writer.write(image);
        return bytes;
    }
    /// The file claims other measures than it has.
    static QByteArray Claiming(QByteArray jpeg, char frame, quint16 side) {
        const qsizetype at = jpeg.indexOf(QByteArray("\xFF") + frame);
        for (const qsizetype offset : {5, 7}) {
            jpeg[at + offset] = char(side >> 8);
            jpeg[at + offset + 1] = char(side & 0xFF);
        }
        return jpeg;
    }
    QString TooLarge(int side) const {
        return QStringLiteral("The picture claims to be %1 by %1 pixels, which is more than can be opened").arg(side);
    }
    static Picture OfMegabytes(int megabytes) {
        QImage image(1024, megabytes * 256, QImage::Format_RGB32);
        image.fill(Qt::red);
        return Picture(image);
    }

    QString error;
};

TEST_F(LargePicturesTest, ASmallFileThatUnfoldsToHalfAGigabyteIsRefused) {
    constexpr int kSide = 11500;
    QImage image(kSide, kSide, QImage::Format_Mono);
    image.fill(0);
    const QString path = WriteFile(QStringLiteral("trap.png"), PictureFiles::Encoded(image, "png"));
    EXPECT_TRUE(LoadPicture(path, error).IsNull());
    EXPECT_EQ(error, TooLarge(kSide));
    EXPECT_FALSE(ReadPictureHead(path, error));
}

TEST_F(LargePicturesTest, AJpegOfEightyMegapixelsIsDecodedToHalfItsSizeAndKeepsItsMeasures) {
    constexpr int kSide = 9000;
    QImage image(kSide, kSide, QImage::Format_Grayscale8);
    image.fill(90);
    const QString path = WriteFile(QStringLiteral("large.jpg"), PictureFiles::Encoded(image, "jpeg", 50));
    const Picture picture = LoadPicture(path, error);
    EXPECT_EQ(picture.Width(), kSide);
    EXPECT_EQ(picture.Image().width(), kSide / 2);
    EXPECT_LE(picture.Image().sizeInBytes(), kMaxPictureBytes);
    EXPECT_TRUE(ReadPictureHead(path, error));
}

// Its reader averages it row by row, which has to come out as averaging the whole does.
TEST_F(LargePicturesTest, ALargePngIsWantedSmallAndShowsTheSameWithAllItsMeasures) {
    constexpr QSize kLarge(5000, 4000);
    QImage image = PictureFiles::Quarters(kLarge.width(), kLarge.height()).convertToFormat(QImage::Format_RGB32);
    for (int x = 0; x < kLarge.width(); ++x)
        image.setPixel(x, x % kLarge.height(), qRgb(x & 0xFF, 0, 0));
    const QString path = WriteFile(QStringLiteral("large.png"), PictureFiles::Encoded(image, "png"));
    const Picture small = LoadPicture(path, error, 300);
    EXPECT_EQ(QSize(small.Width(), small.Height()), kLarge);
    EXPECT_EQ(small.Image().size(), kLarge / 8);
    const QImage averaged = Resample(image, QRectF(image.rect()), kLarge / 8);
    int worst = 0;
    for (int y = 0; y < averaged.height(); ++y) {
        for (int x = 0; x < averaged.width(); ++x) {
            const QRgb one = averaged.pixel(x, y);
            const QRgb other = small.Image().pixel(x, y);
            worst = std::max({worst, std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                              std::abs(qBlue(one) - qBlue(other))});
        }
    }
    EXPECT_LE(worst, 1);
    EXPECT_EQ(LoadPicture(path, error).Image().size(), kLarge);
}

// Their decoder holds all of it, however small the picture is wanted.
TEST_F(LargePicturesTest, AJpegInPassesMayClaimNoMoreThanOtherPictures) {
    const QByteArray small = ProgressiveJpeg(PictureFiles::Quarters(64, 64));
    constexpr char kProgressive = '\xC2';
    const QString path = WriteFile(QStringLiteral("passes.jpg"), Claiming(small, kProgressive, 9000));
    EXPECT_TRUE(LoadPicture(path, error, 100).IsNull());
    EXPECT_EQ(error, TooLarge(9000));
    const QString good = WriteFile(QStringLiteral("good.jpg"), small);
    EXPECT_FALSE(LoadPicture(good, error).IsNull());
}

TEST_F(LargePicturesTest, PassesAreToldByTheFrameAndByTheFirstScan) {
    EXPECT_TRUE(ReadJpegMarkers(ProgressiveJpeg(PictureFiles::Quarters(64, 64))).inPasses);
    QByteArray plain = PictureFiles::Encoded(PictureFiles::Quarters(64, 64), "jpeg");
    EXPECT_FALSE(ReadJpegMarkers(plain).inPasses);
    const qsizetype scan = plain.indexOf("\xFF\xDA");
    plain[scan + 4] = 1;
    EXPECT_TRUE(ReadJpegMarkers(plain).inPasses) << "a colour a pass";
}

TEST_F(LargePicturesTest, WhatIsTooLargeToBeKeptWaitsForWhoHadItAnnounced) {
    PictureCache& cache = PictureCache::Instance();
    const auto never = [](const PictureCache::Key&) -> PictureCache::Entry {
        ADD_FAILURE() << "decoded once more";
        return {};
    };
    const PictureCache::Key first{QStringLiteral("/first.png"), {1, 1}, kAllPixels};
    const PictureCache::Key second{QStringLiteral("/second.png"), {1, 1}, kAllPixels};
    ASSERT_TRUE(cache.Reserve(first));
    cache.Fulfil(first, {OfMegabytes(60), QString()});
    EXPECT_TRUE(cache.Holds(first));
    EXPECT_EQ(cache.Bytes(), 0) << "nothing else is forgotten for its sake";
    for (int paint = 0; paint < 2; ++paint)
        EXPECT_FALSE(cache.Get(first, never).picture.IsNull());
    EXPECT_EQ(cache.Get(second, [](const PictureCache::Key&) { return PictureCache::Entry{}; }).sError, QString());
    EXPECT_FALSE(cache.Holds(first)) << "taken, and another was wanted";
}

TEST_F(LargePicturesTest, OnlyOneThatIsTooLargeToBeKeptWaits) {
    PictureCache& cache = PictureCache::Instance();
    const PictureCache::Key first{QStringLiteral("/first.png"), {1, 1}, kAllPixels};
    const PictureCache::Key second{QStringLiteral("/second.png"), {1, 1}, kAllPixels};
    for (const PictureCache::Key& key : {first, second}) {
        ASSERT_TRUE(cache.Reserve(key));
        cache.Fulfil(key, {OfMegabytes(60), QString()});
    }
    EXPECT_FALSE(cache.Holds(first));
    EXPECT_TRUE(cache.Holds(second));
}

} // namespace
