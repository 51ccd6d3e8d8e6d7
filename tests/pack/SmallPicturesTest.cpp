// SPDX-License-Identifier: MIT
#include "pack/SmallPictures.h"

#include "pack/PackFixture.h"
#include "pack/PackReader.h"

namespace {

class SmallPicturesTest : public PackTest {
protected:
    QString WritePhoto(const QString& name, int width, int height, const char* format = "JPEG") const {
        // Grain, so that it doesn't shrink to nothing.
        QImage photo = PictureFiles::Quarters(width, height).convertToFormat(QImage::Format_RGB32);
        for (int y = 0; y < height; ++y) {
            auto* const row = reinterpret_cast<QRgb*>(photo.scanLine(y));
            for (int x = 0; x < width; ++x)
                row[x] ^= QRgb((x * 31 + y * 17) & 0x3F);
        }
        return WriteFile(name, PictureFiles::Encoded(photo, format));
    }
};

GamePictures::Named User(PictureOwner::Kind kind, int zoom) {
    return {0, {kind, 0}, {QStringLiteral("x"), qint16(zoom), 0, 0}};
}

TEST_F(SmallPicturesTest, ThePieceAndItsZoomSayHowManyPixelsAreNeeded) {
    using Kind = PictureOwner::Kind;
    EXPECT_EQ(SmallPictures::SideNeeded({User(Kind::Token, 0)}), 300);
    EXPECT_EQ(SmallPictures::SideNeeded({User(Kind::Space, 0)}), 450);
    EXPECT_EQ(SmallPictures::SideNeeded({User(Kind::Space, 10)}), 900) << "a square of half the side is shown";
    EXPECT_EQ(SmallPictures::SideNeeded({User(Kind::Token, 0), User(Kind::Corner, 0), User(Kind::Space, 0)}), 638);
}

TEST_F(SmallPicturesTest, APhotoGoesInSmallerAndItsPieceShowsTheSamePart) {
    const QString photo = WritePhoto(QStringLiteral("photo.png"), 1800, 1200, "PNG");
    QStringList lines = PlainLines();
    lines[3] = QStringLiteral("0, \"t\", \"%1\",1200,400,10, \"Arial\",R,12").arg(photo);
    Packing::Contents contents = Gathered(lines, QStringLiteral("x.gam"));
    const qint64 before = contents.PictureBytes();
    ASSERT_TRUE(SmallPictures::Make(contents, {}));
    EXPECT_LT(contents.PictureBytes(), before / 3);
    EXPECT_EQ(contents.lines[3], QStringLiteral("0, \"t\", \"Pictures/photo.jpg\",600,200,10, \"Arial\",R,12"));
    QString error;
    const std::optional<PackReader> reader = PackReader::Open(Packed(contents), error);
    ASSERT_TRUE(reader) << error.toStdString();
    const QImage small = QImage::fromData(reader->Read(QStringLiteral("Pictures/photo.jpg")).value_or(QByteArray()));
    EXPECT_EQ(small.size(), QSize(900, 600));
    EXPECT_EQ(Packed(contents), Packed(contents));
}

TEST_F(SmallPicturesTest, WhatIsSmallEnoughOrNoPhotoGoesInAsItIs) {
    QImage clear(1000, 1000, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    const QImage mono = QImage(2000, 2000, QImage::Format_Mono);
    const QStringList photos{WritePhoto(QStringLiteral("small.jpg"), 400, 300),
                             WriteFile(QStringLiteral("mono.bmp"), PictureFiles::MonochromeBmp(mono)),
                             WriteFile(QStringLiteral("broken.jpg"), "no picture"),
                             WriteFile(QStringLiteral("clear.png"), PictureFiles::Encoded(clear, "PNG"))};
    QMap<int, QString> pictures;
    for (int i = 0; i < photos.size(); ++i)
        pictures[3 + i] = photos[i];
    Packing::Contents contents = Gathered(LinesWith(pictures), QStringLiteral("x.gam"));
    ASSERT_TRUE(SmallPictures::Make(contents, {}));
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(contents.pictures[i].smaller) << photos[i].toStdString();
    EXPECT_EQ(contents.pictures[3].sEntry, QStringLiteral("Pictures/clear.png")) << "what is transparent stays so";
}

TEST_F(SmallPicturesTest, TwoNamesThatBecomeOneStayApart) {
    const QMap<int, QString> pictures{{3, WritePhoto(QStringLiteral("a.png"), 1800, 1200, "PNG")},
                                      {4, WritePhoto(QStringLiteral("a.jpg"), 1800, 1201)}};
    Packing::Contents contents = Gathered(LinesWith(pictures), QStringLiteral("x.gam"));
    ASSERT_TRUE(SmallPictures::Make(contents, {}));
    EXPECT_NE(contents.pictures[0].sEntry, contents.pictures[1].sEntry);
    EXPECT_TRUE(contents.pictures[0].smaller && contents.pictures[1].smaller);
}

TEST_F(SmallPicturesTest, ItTellsHowFarItIsInThousandths) {
    QMap<int, QString> pictures;
    for (int i = 0; i < 4; ++i)
        pictures[3 + i] = WritePicture(QStringLiteral("%1.png").arg(i), i);
    Packing::Contents contents = Gathered(LinesWith(pictures), QStringLiteral("x.gam"));
    QList<int> told;
    EXPECT_TRUE(SmallPictures::Make(contents, [&told](int iThousandths) { return told.append(iThousandths), true; }));
    EXPECT_EQ(told, (QList<int>{0, 250, 500, 750}));
}

TEST_F(SmallPicturesTest, ItCanBeStopped) {
    Packing::Contents contents =
        Gathered(LinesWith({{3, WritePhoto(QStringLiteral("a.jpg"), 1800, 1200)}}), QStringLiteral("x.gam"));
    EXPECT_FALSE(SmallPictures::Make(contents, [](int) { return false; }));
    EXPECT_FALSE(contents.pictures[0].smaller);
}

} // namespace
