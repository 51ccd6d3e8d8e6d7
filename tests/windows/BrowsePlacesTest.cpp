// SPDX-License-Identifier: MIT
#include "windows/pictures/BrowsePlaces.h"
#include "platform/files/Folders.h"
#include "support/TestFixture.h"

using namespace BrowsePlaces;

namespace {

class BrowsePlacesTest : public TavloraTest {
protected:
    ~BrowsePlacesTest() override { Folders::PretendVolumes({}); }

    QStringList NamesOf(const QList<Place>& places) {
        QStringList names;
        for (const Place& place : places)
            names.append(place.sName);
        return names;
    }
};

} // namespace

TEST_F(BrowsePlacesTest, MyGamesAndTheVolumesAreOffered) {
    Folders::PretendVolumes({{QStringLiteral("/"), QStringLiteral("debian")},
                             {QStringLiteral("/media/kid/STICK"), QStringLiteral("STICK")}});
    const QStringList names = NamesOf(Places());
    EXPECT_TRUE(names.contains(QStringLiteral("My Games")));
    EXPECT_EQ(names.last(), QStringLiteral("STICK"));
    EXPECT_TRUE(names.contains(QStringLiteral("Computer")));
}

TEST_F(BrowsePlacesTest, TheNearestPlaceAboveAFolderIsItsPlace) {
    const QList<Place> places{{PlaceKind::Volume, QStringLiteral("/"), {}},
                              {PlaceKind::Home, QStringLiteral("/home/kid"), {}},
                              {PlaceKind::Volume, QStringLiteral("/home/kidney"), {}}};
    EXPECT_EQ(PlaceOf(places, QStringLiteral("/home/kid/cats")), 1);
    EXPECT_EQ(PlaceOf(places, QStringLiteral("/home/kidney/")), 2);
    EXPECT_EQ(PlaceOf(places, QStringLiteral("/home")), 0);
    EXPECT_EQ(PlaceOf({}, QStringLiteral("/home")), -1);
}

TEST_F(BrowsePlacesTest, TheChainGoesFromThePlaceToTheFolder) {
    const QStringList chain{QStringLiteral("/home"), QStringLiteral("/home/kid"), QStringLiteral("/home/kid/cats")};
    EXPECT_EQ(ChainTo(QStringLiteral("/home"), QStringLiteral("/home/kid/cats/")), chain);
    EXPECT_EQ(ChainTo(QStringLiteral("/"), QStringLiteral("/a")),
              (QStringList{QStringLiteral("/"), QStringLiteral("/a")}));
    EXPECT_EQ(ChainTo(QStringLiteral("C:\\"), QStringLiteral("C:\\a\\b")),
              (QStringList{QStringLiteral("C:\\"), QStringLiteral("C:\\a"), QStringLiteral("C:\\a\\b")}));
}

TEST_F(BrowsePlacesTest, AFileLiesInTheFolderUpToItsLastSeparator) {
    EXPECT_EQ(FolderOf(QStringLiteral("/home/kid/cat.jpg")), QStringLiteral("/home/kid"));
    EXPECT_EQ(FolderOf(QStringLiteral("/cat.jpg")), QStringLiteral("/"));
    EXPECT_EQ(FolderOf(QStringLiteral("C:\\cat.jpg")), QStringLiteral("C:\\"));
    EXPECT_EQ(FolderOf(QStringLiteral("C:cat.jpg")), QStringLiteral("C:"));
    EXPECT_EQ(FolderOf(QStringLiteral("cat.jpg")), QString());
}

TEST_F(BrowsePlacesTest, TheFiltersFollowTheScreenAndWhetherMetafilesAreAllowed) {
    EXPECT_EQ(UsualFilter(true, 8), QStringLiteral("*.bmp;*.wmf"));
    EXPECT_EQ(UsualFilter(true, 24), QStringLiteral("*.bmp;*.wmf;*.jpg;*.gif"));
    EXPECT_EQ(UsualFilter(false, 4), QStringLiteral("*.bmp;"));
    EXPECT_EQ(UsualFilter(false, 32), QStringLiteral("*.bmp;*.jpg;*.gif"));
    EXPECT_EQ(PatternsOf(QStringLiteral("*.bmp;")), QStringList{QStringLiteral("*.bmp")});
    const QStringList all{QStringLiteral("*.bmp"),  QStringLiteral("*.jpg"),  QStringLiteral("*.jpeg"),
                          QStringLiteral("*.jfif"), QStringLiteral("*.gif"),  QStringLiteral("*.png"),
                          QStringLiteral("*.webp"), QStringLiteral("*.tif"),  QStringLiteral("*.tiff"),
                          QStringLiteral("*.heic"), QStringLiteral("*.heif"), QStringLiteral("*.avif")};
    EXPECT_EQ(PatternsOf(AllPicturesFilter(false, 24)), all);
    EXPECT_EQ(PatternsOf(AllPicturesFilter(true, 24)), all + QStringList{QStringLiteral("*.wmf")});
    EXPECT_EQ(AllPicturesFilter(true, 8), UsualFilter(true, 8));
    EXPECT_TRUE(IsListed(UsualFilter(true, 24), QStringLiteral("/home/us/Dog.JPG")));
    EXPECT_FALSE(IsListed(UsualFilter(true, 24), QStringLiteral("/home/us/jpg.png")));
}

TEST_F(BrowsePlacesTest, DriveLettersAreComparedWithoutCase) {
    EXPECT_TRUE(IsOnGamesDrive(QStringLiteral("c:\\pics\\a.bmp"), QStringLiteral("C:\\Users\\kid\\My Games")));
    EXPECT_FALSE(IsOnGamesDrive(QStringLiteral("D:\\a.bmp"), QStringLiteral("C:\\Users\\kid\\My Games")));
}

TEST_F(BrowsePlacesTest, TheWayToANetworkFolderBeginsAtItsServer) {
    EXPECT_EQ(ChainTo(QString(), QStringLiteral("\\\\castle\\pics\\2026")),
              (QStringList{QStringLiteral("\\\\castle"), QStringLiteral("\\\\castle\\pics"),
                           QStringLiteral("\\\\castle\\pics\\2026")}));
    EXPECT_EQ(FolderAbove(QStringLiteral("\\\\castle\\pics")), QStringLiteral("\\\\castle"));
    EXPECT_EQ(FolderAbove(QStringLiteral("\\\\castle")), QString());
}

TEST_F(BrowsePlacesTest, Edge_ANetworkPathCountsAsAnotherDriveWhateverItsFirstLetter) {
    EXPECT_FALSE(IsOnGamesDrive(QStringLiteral("\\\\castle\\pics\\a.bmp"), QStringLiteral("C:\\Users\\kid\\My Games")));
    EXPECT_FALSE(IsOnGamesDrive(QStringLiteral("\\\\castle\\pics\\a.bmp"), folder.path()));
    // The same without the network.
    EXPECT_TRUE(IsOnGamesDrive(QStringLiteral("C:\\castle\\pics\\a.bmp"), QStringLiteral("C:\\Users\\kid\\My Games")));
    EXPECT_TRUE(IsOnGamesDrive(folder.filePath(QStringLiteral("a.bmp")), folder.path()));
}
