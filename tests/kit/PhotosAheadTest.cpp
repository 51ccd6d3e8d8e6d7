// SPDX-License-Identifier: MIT
#include "kit/PhotosAhead.h"

#include "document/basTAVL.h"
#include "kit/Sheets.h"
#include "pieces/frmBMP.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureCache.h"
#include "platform/printing/PicturePrinter.h"
#include "support/BoardFixture.h"
#include "support/PictureFiles.h"

namespace {

class PhotosAheadTest : public BoardTest {
protected:
    PhotosAheadTest() {
        frmBMP::InstallAsThumbnailMaker();
        ForgetPictures();
        for (const int space : {0, 1, 2}) {
            QImage photo(600, 400, QImage::Format_RGB32);
            photo.fill(qRgb(200, 10 * space, 60));
            paths.append(PathOf(QStringLiteral("photo%1.png").arg(space)));
            EXPECT_TRUE(photo.save(paths.last()));
        }
    }
    QStringList paths;
};

} // namespace

TEST_F(PhotosAheadTest, SheetsTellWhichPhotographsTheyShow) {
    const Sheet& west = *FindSheet(QStringLiteral("west"));
    const Sheet& east = *FindSheet(QStringLiteral("east"));
    const size_t before = west.Photos().size() + east.Photos().size();
    basTAVL::g_oSpaces(0).SetImagePath(paths[0]);
    basTAVL::g_oCorners(1).Image.Let_FullPath(paths[1]);
    EXPECT_EQ(west.Photos().size() + east.Photos().size(), before + 2);
    EXPECT_EQ(west.Photos().back().sPath, paths[1]) << "corners stand on this sheet, behind the spaces";
    EXPECT_TRUE(FindSheet(QStringLiteral("rules"))->Photos().empty());
}

TEST_F(PhotosAheadTest, APhotographIsLetGoWhenNoPieceToComeShowsIt) {
    PhotosAhead ahead({{{paths[0], 300}, {paths[1], 300}, {paths[0], 300}}, {{paths[1], 300}}});
    QString error;
    for (const QString& path : {paths[0], paths[1]})
        EXPECT_FALSE(LoadPicture(path, error, 300).IsNull());
    const qint64 both = PictureCache::Instance().Bytes();
    ahead.Drawn(paths[0]);
    EXPECT_EQ(PictureCache::Instance().Bytes(), both) << "it comes once more";
    ahead.Drawn(paths[0]);
    EXPECT_LT(PictureCache::Instance().Bytes(), both);
    ahead.Drawn(QStringLiteral("nobody's.png"));
    const qint64 one = PictureCache::Instance().Bytes();
    ahead.Drawn(paths[1]);
    EXPECT_EQ(PictureCache::Instance().Bytes(), one) << "the next sheet shows it";
    ahead.SheetDone();
    EXPECT_EQ(PictureCache::Instance().Bytes(), one);
    ahead.Drawn(paths[1]);
    EXPECT_EQ(ahead.Wanted(), 0U);
    EXPECT_LT(PictureCache::Instance().Bytes(), one);
}

TEST_F(PhotosAheadTest, WhatASheetLeavesOutIsLetGoWithItAndSoIsAllElse) {
    PhotosAhead ahead({{{paths[0], 300}}});
    QString error;
    for (const QString& path : {paths[0], paths[2]})
        EXPECT_FALSE(LoadPicture(path, error, 300).IsNull());
    ahead.SheetDone();
    EXPECT_EQ(ahead.Wanted(), 0U);
    EXPECT_EQ(PictureCache::Instance().Bytes(), 0);
}
