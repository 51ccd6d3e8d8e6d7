// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureHead.h"

#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "support/PictureFiles.h"
#include "support/TestFixture.h"

namespace {

class PictureHeadTest : public TavloraTest {
protected:
    // What is read of it ahead is what its decoder finds.
    void ExpectSizeAsDecoded(const QString& sName, const QByteArray& bytes, QSize told) const {
        const QString path = WriteFile(sName, bytes);
        QString error;
        const std::optional<PictureHead> head = ReadPictureHead(path, error);
        ASSERT_TRUE(head) << sName.toStdString() << error.toStdString();
        EXPECT_EQ(head->size, told) << sName.toStdString();
        EXPECT_FALSE(head->bDrawing);
        const Picture picture = LoadPicture(path, error);
        EXPECT_EQ(QSize(picture.Width(), picture.Height()), told) << sName.toStdString() << error.toStdString();
    }
    void ExpectRefused(const QString& sName, const QByteArray& bytes) const {
        QString error;
        EXPECT_FALSE(ReadPictureHead(WriteFile(sName, bytes), error)) << sName.toStdString();
        EXPECT_FALSE(error.isEmpty());
    }
    const QImage quarters = PictureFiles::Quarters(47, 33);
};

} // namespace

TEST_F(PictureHeadTest, TellsTheSizeThatIsDecoded) {
    for (const char* format : {"png", "bmp", "jpg"})
        ExpectSizeAsDecoded(QString::fromLatin1(format), PictureFiles::Encoded(quarters, format), QSize(47, 33));
    const QImage indexed = quarters.convertToFormat(QImage::Format_Indexed8);
    ExpectSizeAsDecoded(QStringLiteral("gif"), PictureFiles::Gif(indexed, -1), QSize(47, 33));
    ExpectSizeAsDecoded(QStringLiteral("any.dat"), PictureFiles::Bmp(quarters, {.topDown = true}), QSize(47, 33));
}

TEST_F(PictureHeadTest, APhotoOnItsSideIsTurned) {
    const QByteArray jpeg = PictureFiles::Encoded(quarters, "jpg");
    for (int orientation = 1; orientation <= 8; ++orientation)
        ExpectSizeAsDecoded(QStringLiteral("%1.jpg").arg(orientation),
                            PictureFiles::WithOrientation(jpeg, orientation, true),
                            orientation >= 5 ? QSize(33, 47) : QSize(47, 33));
}

TEST_F(PictureHeadTest, WhatIsNoPictureIsRefused) {
    ExpectRefused(QStringLiteral("letter.jpg"), "Dear Anna,");
    ExpectRefused(QStringLiteral("empty.png"), QByteArray());
    for (const char* format : {"png", "bmp", "jpg"})
        ExpectRefused(QStringLiteral("head only ") + QString::fromLatin1(format),
                      PictureFiles::Encoded(quarters, format).left(20));
    const QByteArray png = PictureFiles::Encoded(quarters, "png");
    ExpectRefused(QStringLiteral("cut short.png"), png.left(png.size() - 12));
    QString error;
    EXPECT_FALSE(ReadPictureHead(PathOf(QStringLiteral("away.png")), error));
    EXPECT_FALSE(ReadPictureHead(folder.path(), error));
}

// Photographs carry more ahead of their pixels than is read at first.
TEST_F(PictureHeadTest, ALongHeadIsReadToItsEnd) {
    QByteArray jpeg = PictureFiles::Encoded(quarters, "jpg");
    const QByteArray comment = QByteArray("\xFF\xFE\xFF\xFF") + QByteArray(0xFFFD, 'x');
    for (int i = 0; i < 6; ++i)
        jpeg.insert(2, comment);
    ExpectSizeAsDecoded(QStringLiteral("long.jpg"), jpeg, QSize(47, 33));
}
