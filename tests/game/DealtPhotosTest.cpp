// SPDX-License-Identifier: MIT
#include "game/DealtPhotos.h"

#include "game/PieceImages.h"
#include "services/BoardFacts.h"
#include "support/BoardFixture.h"
#include "support/PictureFiles.h"

#include <algorithm>

namespace {

using DealtPhotos::Order;
using DealtPhotos::Photo;
using Kind = PictureOwner::Kind;

TEST(DealtPhotosNameTest, WhatACameraHasNamedHasNoName) {
    for (const char* name :
         {"IMG_2041.JPG", "img_2041.heic", "DSC01234.jpg", "DSCN0001.JPG", "P1000234.jpg", "PXL_20230714_102233123.jpg",
          "20230714_102233.jpg", "WhatsApp Image 2023-07-14 at 10.22.33.jpeg", "IMG-20230714-WA0001.jpg",
          "Screenshot 2024-01-01 10-11-12.png", "image (3).png", "3f2a9c01be77.png", "1.jpg", "unnamed.png"})
        EXPECT_EQ(DealtPhotos::NameOf(QStringLiteral("/photos/") + QString::fromLatin1(name)).toStdString(), "")
            << name;
}

TEST(DealtPhotosNameTest, WhatAPersonHasNamedIsTakenInWords) {
    const auto name = [](const char* file) { return DealtPhotos::NameOf(QString::fromUtf8(file)).toStdString(); };
    EXPECT_EQ(name("/p/grandmas_garden.jpg"), "Grandmas Garden");
    EXPECT_EQ(name("/p/grandmas-garden (2).jpg"), "Grandmas Garden");
    EXPECT_EQ(name("/p/Omas Küche.png"), "Omas Küche");
    EXPECT_EQ(name("/p/Café McDonald.png"), "Café McDonald");
    EXPECT_EQ(name("/p/summer_2023.jpg"), "Summer 2023");
    EXPECT_EQ(name("/p/20230714 beach.jpg"), "Beach");
    EXPECT_EQ(name("/p/élan.jpg"), "Élan");
    EXPECT_EQ(name("/p/a.very.long.name.of.a.photo.that.goes.on.and.on.for.ever.jpg").size(), 40U);
}

TEST(DealtPhotosSortTest, ByNameNumbersCountAsNumbers) {
    std::vector<Photo> photos{
        {QStringLiteral("/p/cat 10.jpg"), 1}, {QStringLiteral("/p/Cat 2.jpg"), 3}, {QStringLiteral("/p/ant.jpg"), 2}};
    DealtPhotos::Sort(photos, Order::Name, 1);
    EXPECT_EQ(photos[0].sFile, QStringLiteral("/p/ant.jpg"));
    EXPECT_EQ(photos[1].sFile, QStringLiteral("/p/Cat 2.jpg"));
    DealtPhotos::Sort(photos, Order::DateTaken, 1);
    EXPECT_EQ(photos[0].sFile, QStringLiteral("/p/cat 10.jpg"));
    EXPECT_EQ(photos[2].sFile, QStringLiteral("/p/Cat 2.jpg"));
}

TEST(DealtPhotosSortTest, OneSeedShufflesInOneWayAndLosesNone) {
    std::vector<Photo> photos;
    for (int i = 0; i < 60; ++i)
        photos.push_back({QStringLiteral("/p/%1.jpg").arg(i)});
    std::vector<Photo> first = photos;
    std::vector<Photo> again(photos.rbegin(), photos.rend());
    std::vector<Photo> other = photos;
    DealtPhotos::Sort(first, Order::Shuffled, 1);
    DealtPhotos::Sort(again, Order::Shuffled, 1);
    DealtPhotos::Sort(other, Order::Shuffled, 2);
    const auto names = [](const std::vector<Photo>& list) {
        QStringList files;
        for (const Photo& photo : list)
            files.append(photo.sFile);
        return files;
    };
    EXPECT_EQ(names(first), names(again));
    EXPECT_NE(names(first), names(other));
    QStringList sorted = names(first);
    QStringList all = names(photos);
    sorted.sort();
    all.sort();
    EXPECT_EQ(sorted, all);
}

class DealtPhotosTest : public BoardTest {
protected:
    DealtPhotosTest() {
        for (C_Space& space : TheGame().spaces)
            space.SetImagePath(QString());
        for (C_Corner& corner : TheGame().corners)
            corner.Image.Let_FullPath(QString());
    }
    std::vector<Photo> Photos(int count) const {
        std::vector<Photo> photos;
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::green);
        const QByteArray bytes = PictureFiles::Encoded(image, "png");
        for (int i = 0; i < count; ++i)
            photos.push_back({WriteFile(QStringLiteral("nice_place_%1.png").arg(i), bytes)});
        return photos;
    }
};

TEST_F(DealtPhotosTest, FreePlacesAreThoseThatTakeAPictureInTheOrderOfPlay) {
    TheGame().spaces[1].Image.Let_FullPath(Photos(1).front().sFile);
    const std::vector<PictureOwner> places = DealtPhotos::FreePlaces(TheGame(), false);
    int expected = 0;
    for (int i = 0; i < 28; ++i)
        expected += i != 1 && !BoardFacts::IsLotto(i) && !BoardFacts::IsNews(i);
    EXPECT_EQ(int(places.size()), expected);
    EXPECT_EQ(std::count(places.begin(), places.end(), PictureOwner{Kind::Space, 1}), 0);
    EXPECT_TRUE(std::is_sorted(places.begin(), places.end(),
                               [](const auto& a, const auto& b) { return a.iNumber < b.iNumber; }));
    const std::vector<PictureOwner> all = DealtPhotos::FreePlaces(TheGame(), true);
    EXPECT_EQ(all.size(), places.size() + 3) << "the fourth corner belongs to the kit";
    EXPECT_EQ(all.front(), (PictureOwner{Kind::Corner, 0}));
    // A side's corner stands ahead of its spaces.
    const auto second = std::find(all.begin(), all.end(), PictureOwner{Kind::Corner, 1});
    ASSERT_NE(second, all.end());
    EXPECT_LT((second - 1)->iNumber, 7);
    EXPECT_GE((second + 1)->iNumber, 7);
}

TEST_F(DealtPhotosTest, AFolderOf60GoesOntoTheBoardAsOneEditAndThePiecesLeftOverAreCounted) {
    std::vector<Photo> photos = Photos(60);
    photos[1].bLeftOut = true;
    const std::vector<PictureOwner> places = DealtPhotos::FreePlaces(TheGame(), false);
    const std::vector<int> dealt = DealtPhotos::Dealt(photos, int(places.size()));
    EXPECT_EQ(dealt[0], 0);
    EXPECT_EQ(dealt[1], -1);
    EXPECT_EQ(dealt[2], 1);
    EXPECT_EQ(size_t(std::count(dealt.begin(), dealt.end(), -1)), 60 - places.size());
    const Edit edit = DealtPhotos::Deal(TheGame(), photos, places, false);
    EXPECT_EQ(edit.sName, QStringLiteral("%1 Dealt Photos").arg(places.size()));
    EXPECT_EQ(PieceImages::Of(edit.after, places[1]).FullPath(), photos[2].sFile);
    EXPECT_TRUE(DealtPhotos::FreePlaces(edit.after, false).empty());
    for (size_t i = 0; i < 28; ++i)
        EXPECT_EQ(edit.after.spaces[i].TextAll(), TheGame().spaces[i].TextAll()) << "names stay";
}

TEST_F(DealtPhotosTest, APhotoFillsItsPlace) {
    const std::vector<PictureOwner> places = DealtPhotos::FreePlaces(TheGame(), false);
    const Edit edit = DealtPhotos::Deal(TheGame(), Photos(1), places, false);
    // Of 60 by 40 pixels a square of 40 shows at most: 60 / 2^(6/10) is 39.6.
    EXPECT_EQ(PieceImages::Of(edit.after, places[0]).Zoom(), 6);
    EXPECT_FALSE(PieceImages::Of(edit.after, places[0]).Ref().IsCentered());
}

TEST_F(DealtPhotosTest, NamesOfFilesBecomeNamesOfSpacesInLines) {
    const std::vector<PictureOwner> places = DealtPhotos::FreePlaces(TheGame(), true);
    const QString cornerText = TheGame().corners[0].TextAll(0);
    const Edit edit = DealtPhotos::Deal(TheGame(), Photos(3), places, true);
    EXPECT_EQ(edit.after.corners[0].TextAll(0), cornerText) << "corners keep their words";
    EXPECT_EQ(edit.after.spaces[size_t(places[1].iNumber)].TextAll(), QStringLiteral("Nice Place\r\n1"));
}

} // namespace
