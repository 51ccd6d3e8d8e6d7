// SPDX-License-Identifier: MIT
// A file that is named as a picture may be as large as a disk.
#include "platform/pictures/PictureFile.h"

#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHead.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

#include <QFile>
#include <QImage>
#include <QRandomGenerator>

#include <numeric>

namespace {

constexpr qint64 kMegabyte = qint64(1) << 20;

class PictureFileTest : public TavloraTest {
protected:
    PictureFileTest() { ForgetPictures(); }
    ~PictureFileTest() override {
        Files::SetFaultHook({});
        ForgetPictures();
    }
    /// Such bytes and nothing behind them up to the size, which takes no room on the disk.
    QString WriteHuge(const QByteArray& start, qint64 size) const {
        const QString path = WriteFile(QStringLiteral("huge"), start);
        EXPECT_TRUE(QFile::resize(path, size));
        return path;
    }
    /// How many bytes the program asks the disk for meanwhile.
    template <typename Step>
    static int Reads(const Step& step) {
        int reads = 0;
        Files::SetFaultHook([&](Files::Operation operation, const QString&) -> std::optional<QString> {
            reads += operation == Files::Operation::Read;
            return std::nullopt;
        });
        step();
        Files::SetFaultHook({});
        return reads;
    }
    /// What no format makes much smaller.
    static QImage Noise(int side) {
        QImage image(side, side, QImage::Format_RGB32);
        QRandomGenerator random(4);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x)
                image.setPixel(x, y, random.generate() | 0xFF000000);
        }
        return image;
    }
    QString error;
};

TEST_F(PictureFileTest, KindsThatAreDecodedFromMemoryHaveASizeThatNoPictureReaches) {
    const struct {
        const char* tag;
        QByteArray start;
        int megabytes;
    } rows[] = {{"photo", PictureFiles::Encoded(PictureFiles::Quarters(8, 8), "JPEG"), 96},
                {"telephone's photo",
                 QByteArray("\0\0\0\x18"
                            "ftypheic\0\0\0\0mif1heic",
                            24),
                 64},
                {"animation", QByteArray("GIF89a\x08\0\x08\0\0\0\0", 13), 32},
                {"drawing", QByteArray("\x01\0\x09\0\0\x03", 6), 16}};
    for (const auto& row : rows) {
        const QString path = WriteHuge(row.start, row.megabytes * kMegabyte + 1);
        EXPECT_TRUE(LoadPicture(path, error).IsNull()) << row.tag;
        const QString told = QStringLiteral("The picture file is larger than %1 MB, which is more than can be opened");
        EXPECT_EQ(error, told.arg(row.megabytes)) << row.tag;
        PictureFile file;
        ASSERT_TRUE(file.Open(path, error));
        EXPECT_FALSE(file.Whole(error)) << row.tag;
        EXPECT_TRUE(QFile::resize(path, row.megabytes * kMegabyte));
        PictureFile largest;
        ASSERT_TRUE(largest.Open(path, error));
        EXPECT_EQ(largest.Whole(error).value_or(QByteArray()).size(), row.megabytes * kMegabyte) << row.tag;
    }
}

TEST_F(PictureFileTest, OfOtherKindsOnlyWhatThePictureNeedsIsRead) {
    const QImage image = PictureFiles::Quarters(40, 30);
    for (const char* format : {"BMP", "PNG", "TIFF"}) {
        const QByteArray bytes = PictureFiles::Encoded(image, format);
        // A PNG is told to be whole by its end.
        const QByteArray end = qstrcmp(format, "PNG") == 0 ? bytes.last(12) : QByteArray();
        const QString path = WriteHuge(bytes, qint64(900) * kMegabyte);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() - end.size()));
        file.write(end);
        file.close();
        const int reads = Reads([&] {
            EXPECT_TRUE(ReadPictureHead(path, error)) << format << error.toStdString();
            const Picture picture = LoadPicture(path, error);
            EXPECT_EQ(picture.Image().convertToFormat(QImage::Format_RGB32),
                      image.convertToFormat(QImage::Format_RGB32))
                << format << error.toStdString();
        });
        EXPECT_LT(reads, 200) << format;
        ForgetPictures();
    }
    const QString text = WriteHuge("Dear diary", qint64(900) * kMegabyte);
    const int reads = Reads([&] {
        EXPECT_TRUE(LoadPicture(text, error).IsNull());
        EXPECT_FALSE(ReadPictureHead(text, error));
    });
    EXPECT_LT(reads, 10);
}

TEST_F(PictureFileTest, GivesTheBytesOfTheFileWhereverOneGoes) {
    QByteArray bytes(int(kMegabyte), '\0');
    std::iota(bytes.begin(), bytes.end(), char(0));
    PictureFile file;
    ASSERT_TRUE(file.Open(WriteFile(QStringLiteral("bytes"), bytes), error));
    EXPECT_EQ(file.size(), bytes.size());
    for (const qint64 at : {qint64(0), qint64(700'001), qint64(3), kMegabyte - 5, kMegabyte}) {
        ASSERT_TRUE(file.seek(at));
        EXPECT_EQ(file.read(10), bytes.mid(at, 10)) << at;
        EXPECT_EQ(file.read(10), bytes.mid(at + 10, 10)) << at;
    }
    EXPECT_EQ(file.Whole(error), bytes);
    ASSERT_TRUE(file.seek(4));
    EXPECT_EQ(file.read(4), bytes.mid(4, 4));
}

TEST_F(PictureFileTest, ADiskThatCannotBeReadIsToldAsSuchAndNotThePicture) {
    for (const char* format : {"BMP", "PNG", "TIFF", "JPEG"}) {
        // Larger than what is read ahead.
        const QString path = WriteFile(QStringLiteral("a"), PictureFiles::Encoded(Noise(700), format));
        const int all = Reads([&] { EXPECT_FALSE(LoadPicture(path, error).IsNull()) << format; });
        ASSERT_GT(all, 1) << format;
        for (int failing = 0; failing < all; failing += qMax(1, all / 20)) {
            ForgetPictures();
            int reads = 0;
            Files::SetFaultHook([&](Files::Operation operation, const QString&) -> std::optional<QString> {
                if (operation != Files::Operation::Read || reads++ != failing) return std::nullopt;
                return QStringLiteral("Input/output error");
            });
            EXPECT_TRUE(LoadPicture(path, error).IsNull()) << format << ' ' << failing;
            EXPECT_EQ(error, QStringLiteral("Input/output error")) << format << ' ' << failing;
            Files::SetFaultHook({});
        }
        ForgetPictures();
    }
}

} // namespace
