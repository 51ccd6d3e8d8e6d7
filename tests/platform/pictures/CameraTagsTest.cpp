// SPDX-License-Identifier: MIT
#include "platform/pictures/CameraTags.h"

#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHead.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QImageWriter>
#include <QtEndian>

namespace {

template <typename T>
QByteArray Little(T value) {
    QByteArray bytes(sizeof(T), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}
template <typename T>
QByteArray Big(T value) {
    QByteArray bytes(sizeof(T), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// Notes with an orientation and a date on which the photo was taken.
QByteArray Notes(int orientation, const char* taken) {
    QByteArray notes = "II*" + QByteArray(1, '\0') + Little<quint32>(8);
    notes += Little<quint16>(2);
    notes += Little<quint16>(0x0112) + Little<quint16>(3) + Little<quint32>(1) + Little<quint32>(quint32(orientation));
    notes += Little<quint16>(0x8769) + Little<quint16>(4) + Little<quint32>(1) + Little<quint32>(38);
    notes += Little<quint32>(0);
    notes += Little<quint16>(1);
    notes += Little<quint16>(0x9003) + Little<quint16>(2) + Little<quint32>(20) + Little<quint32>(56);
    notes += Little<quint32>(0);
    return notes + QByteArray(taken) + QByteArray(1, '\0');
}

quint32 PngCheck(const QByteArray& bytes) {
    quint32 check = 0xFFFFFFFF;
    for (const char byte : bytes) {
        check ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            check = check & 1 ? check >> 1 ^ 0xEDB88320 : check >> 1;
    }
    return ~check;
}

QByteArray PngWith(const QByteArray& png, const QByteArray& notes) {
    constexpr int kBehindHead = 33;
    const QByteArray chunk = "eXIf" + notes;
    return png.left(kBehindHead) + Big<quint32>(quint32(notes.size())) + chunk + Big<quint32>(PngCheck(chunk)) +
           png.mid(kBehindHead);
}

QByteArray WebPWith(const QByteArray& webp, const QByteArray& notes, QSize size) {
    constexpr int kHead = 12;
    const auto threeBytes = [](int value) { return Little<quint32>(quint32(value)).left(3); };
    QByteArray padded = notes;
    if (padded.size() % 2) padded += '\0';
    const QByteArray extended = "VP8X" + Little<quint32>(10) + Little<quint32>(0x08) + threeBytes(size.width() - 1) +
                                threeBytes(size.height() - 1);
    const QByteArray body =
        "WEBP" + extended + webp.mid(kHead) + "EXIF" + Little<quint32>(quint32(notes.size())) + padded;
    return "RIFF" + Little<quint32>(quint32(body.size())) + body;
}

/// A red half above a blue one, 40 wide and 20 high.
QImage RedAboveBlue() {
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 10; y < 20; ++y)
        for (int x = 0; x < 40; ++x)
            image.setPixel(x, y, qRgb(0, 0, 255));
    return image;
}

class CameraTagsTest : public TavloraTest {
protected:
    /// Orientation 6 means a quarter turn to the right: red comes to stand at the right.
    void ExpectTurned(const QString& path) {
        QString error;
        const Picture picture = LoadPicture(path, error);
        ASSERT_FALSE(picture.IsNull()) << error.toStdString();
        EXPECT_EQ(picture.Image().size(), QSize(20, 40));
        EXPECT_GT(qRed(picture.Image().pixel(15, 20)), 200);
        EXPECT_GT(qBlue(picture.Image().pixel(4, 20)), 200);
        const std::optional<PictureHead> head = ReadPictureHead(path, error);
        ASSERT_TRUE(head);
        EXPECT_EQ(head->size, QSize(20, 40));
    }
};

TEST_F(CameraTagsTest, PngStandsUpright) {
    const QByteArray png = PictureFiles::Encoded(RedAboveBlue(), "png");
    ExpectTurned(WriteFile(QStringLiteral("a.png"), PngWith(png, Notes(6, "2023:07:14 10:22:33"))));
}

TEST_F(CameraTagsTest, WebPStandsUpright) {
    const QByteArray webp = PictureFiles::Encoded(RedAboveBlue(), "webp");
    ExpectTurned(WriteFile(QStringLiteral("a.webp"), WebPWith(webp, Notes(6, "2023:07:14 10:22:33"), QSize(40, 20))));
}

TEST_F(CameraTagsTest, TiffStandsUpright) {
    QBuffer buffer;
    QImageWriter writer(&buffer, "tiff");
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(writer.write(RedAboveBlue()));
    ExpectTurned(WriteFile(QStringLiteral("a.tif"), buffer.data()));
}

TEST_F(CameraTagsTest, TheDateIsTheCamerasWhereThereIsOne) {
    const qint64 taken = QDateTime::fromString(QStringLiteral("2023-07-14T10:22:33"), Qt::ISODate).toMSecsSinceEpoch();
    const QByteArray notes = Notes(1, "2023:07:14 10:22:33");
    EXPECT_EQ(ReadCameraTags(notes).takenMs, taken);
    const QByteArray png = PictureFiles::Encoded(RedAboveBlue(), "png");
    EXPECT_EQ(DateTaken(WriteFile(QStringLiteral("a.png"), PngWith(png, notes))), taken);
    const QByteArray jpeg = PictureFiles::Encoded(RedAboveBlue(), "jpg");
    const QByteArray segment = "Exif" + QByteArray(2, '\0') + notes;
    const QByteArray head = QByteArray("\xFF\xE1", 2) + Big<quint16>(quint16(segment.size() + 2)) + segment;
    EXPECT_EQ(DateTaken(WriteFile(QStringLiteral("a.jpg"), jpeg.left(2) + head + jpeg.mid(2))), taken);
    const QString plain = WriteFile(QStringLiteral("b.jpg"), jpeg);
    EXPECT_EQ(DateTaken(plain), QFileInfo(plain).lastModified().toMSecsSinceEpoch());
}

TEST_F(CameraTagsTest, NonsenseSaysNothingAndIsNeverReadBeyondItsEnd) {
    const QByteArray notes = Notes(6, "2023:07:14 10:22:33");
    for (qsizetype length = 0; length < notes.size(); ++length) {
        const CameraTags tags = ReadCameraTags(notes.left(length));
        EXPECT_TRUE(tags.orientation == 1 || tags.orientation == 6);
        EXPECT_LE(tags.takenMs, QDateTime::currentMSecsSinceEpoch());
    }
    EXPECT_EQ(ReadCameraTags(Notes(99, "yesterday at noon...")).orientation, 1);
    EXPECT_EQ(ReadCameraTags(Notes(99, "yesterday at noon...")).takenMs, -1);
    QBuffer endless;
    endless.setData("RIFF\xFF\xFF\xFF\xFFWEBPEXIF\xFF\xFF\xFF\xFF");
    ASSERT_TRUE(endless.open(QIODevice::ReadOnly));
    EXPECT_EQ(ReadCameraTagsOfChunks(endless).orientation, 1);
}

} // namespace
