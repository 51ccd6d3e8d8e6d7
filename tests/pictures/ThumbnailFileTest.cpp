// SPDX-License-Identifier: MIT
#include "pictures/ThumbnailFile.h"

#include "pictures/C_Image.h"
#include "pictures/ThumbnailStore.h"
#include "platform/files/Files.h"
#include "support/PictureFiles.h"
#include "support/StartUp.h"
#include "support/TestFixture.h"

#include <QDateTime>
#include <QFile>
#include <QtEndian>

namespace {

using namespace PictureFiles;

constexpr QSize kSide(100, 100);

class ThumbnailFileTest : public TavloraTest {
protected:
    ThumbnailFileTest() { StartUp::MakeThumbnails(); }

    QByteArray Thumbnail(const QString& sKind = QStringLiteral("Space")) {
        C_Image image;
        image.Init(WriteFile(QStringLiteral("q.png"), Encoded(Quarters(80, 80), "png")), sKind, 2);
        const QByteArray bytes = ReadFile(image.GetThumbnail(false));
        QFile::remove(image.Thumbname());
        return bytes;
    }
    bool IsOurs(const QByteArray& bytes, int ageInSeconds = 0) {
        const QString path = WriteFile(QStringLiteral("Space9.bmp"), bytes);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_TRUE(
            file.setFileTime(QDateTime::currentDateTime().addSecs(-ageInSeconds), QFileDevice::FileModificationTime));
        file.close();
        const bool ours = !ThumbnailFile::IsOfTheUser(path, kSide);
        QString error;
        EXPECT_EQ(ThumbnailFile::Remove(path, kSide, error), ours);
        EXPECT_EQ(Files::Exists(path), !ours);
        EXPECT_EQ(error.isEmpty(), ours);
        return ours;
    }
};

TEST_F(ThumbnailFileTest, OursAreKnownByTheSizeThatTheyClaim) {
    const QByteArray thumb = Thumbnail();
    ASSERT_EQ(thumb.size(), 30054);
    EXPECT_TRUE(IsOurs(thumb));
    EXPECT_FALSE(IsOurs(Thumbnail(QStringLiteral("Token")))) << "of another piece's size";
    for (const int position : {0, 2, 3, 10, 18, 22, 28, 34, 38}) {
        QByteArray other = thumb;
        other[position] = char(other[position] + 1);
        EXPECT_FALSE(IsOurs(other)) << position;
    }
    EXPECT_FALSE(IsOurs(thumb + "x")) << "longer than any of ours";
}

TEST_F(ThumbnailFileTest, WhatACrashCutShortIsOursButNothingThatMayBeOnItsWay) {
    const QByteArray thumb = Thumbnail();
    EXPECT_TRUE(IsOurs(thumb.left(16384)));
    EXPECT_TRUE(IsOurs(thumb.left(53)));
    EXPECT_TRUE(IsOurs(QByteArray(), 120));
    EXPECT_FALSE(IsOurs(QByteArray(), 5)) << "somebody may be copying a picture";
}

TEST_F(ThumbnailFileTest, BitmapsOfOthersAreTheirs) {
    for (const char* format : {"bmp", "png", "jpg"})
        EXPECT_FALSE(IsOurs(Encoded(Quarters(100, 100), format))) << format;
    EXPECT_FALSE(IsOurs(QByteArray(200, 'x')));
}

TEST_F(ThumbnailFileTest, WhatCantBeReadStays) {
    const QString path = WriteFile(QStringLiteral("Space9.bmp"), Thumbnail());
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Read) return QStringLiteral("Input/output error");
        return {};
    });
    QString error;
    EXPECT_FALSE(ThumbnailFile::Remove(path, kSide, error));
    EXPECT_TRUE(Files::Exists(path));
}

TEST_F(ThumbnailFileTest, NothingThereIsNobodys) {
    QString error;
    EXPECT_TRUE(ThumbnailFile::Remove(PathOf(QStringLiteral("Space9.bmp")), kSide, error));
    EXPECT_FALSE(ThumbnailFile::IsOfTheUser(PathOf(QStringLiteral("Space9.bmp")), kSide));
}

TEST_F(ThumbnailFileTest, NamesOfThumbnailsAreKnownInAnyCase) {
    for (const char* name : {"Space0.bmp", "SPACE27.BMP", "corner3.Bmp", "Money2.bmp", "token5.bmp", "Space999.bmp"})
        EXPECT_TRUE(ThumbnailFile::HasNameOfOne(PathOf(QString::fromLatin1(name)))) << name;
    for (const char* name : {"Space.bmp", "Space1.png", "Spaces1.bmp", "MySpace1.bmp", "Space1a.bmp", "Space 1.bmp",
                             "Space-1.bmp", "Space1.bmp.jpg", "1.bmp", ""})
        EXPECT_FALSE(ThumbnailFile::HasNameOfOne(PathOf(QString::fromLatin1(name)))) << name;
}

TEST_F(ThumbnailFileTest, EveryKindOfPieceHasItsSize) {
    const struct {
        const char* kind;
        quint32 width;
        quint32 height;
    } rows[] = {{"Space", 100, 100}, {"Corner", 100, 100}, {"Money", 164, 190}, {"Token", 200, 200}};
    for (const auto& row : rows) {
        const QByteArray thumb = Thumbnail(QString::fromLatin1(row.kind));
        ASSERT_GT(thumb.size(), 54) << row.kind;
        EXPECT_EQ(qFromLittleEndian<quint32>(thumb.constData() + 18), row.width) << row.kind;
        EXPECT_EQ(qFromLittleEndian<quint32>(thumb.constData() + 22), row.height) << row.kind;
    }
}

TEST_F(ThumbnailFileTest, AThumbnailHasItsNameAndItsHeads) {
    const QByteArray thumb = Thumbnail(QStringLiteral("Token"));
    EXPECT_TRUE(ThumbnailFile::IsThumbnail(WriteFile(QStringLiteral("token4.BMP"), thumb)));
    EXPECT_FALSE(ThumbnailFile::IsThumbnail(WriteFile(QStringLiteral("dog.bmp"), thumb)));
    EXPECT_FALSE(ThumbnailFile::IsThumbnail(WriteFile(QStringLiteral("Space4.bmp"), thumb)));
    EXPECT_FALSE(
        ThumbnailFile::IsThumbnail(WriteFile(QStringLiteral("Corner1.bmp"), Encoded(Quarters(100, 100), "bmp"))));
}

} // namespace
