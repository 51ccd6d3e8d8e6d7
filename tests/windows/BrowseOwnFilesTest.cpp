// SPDX-License-Identifier: MIT
// The program's own working files beside the user's pictures.
#include "BrowseFixture.h"

#include "pictures/C_Image.h"
#include "support/StartUp.h"

namespace {

class BrowseOwnFilesTest : public BrowseTest {
protected:
    BrowseOwnFilesTest() { StartUp::MakeThumbnails(); }

    QByteArray Thumbnail(const QString& sKind, qint16 iIndex) {
        C_Image image;
        image.Init(Picture(QStringLiteral("dog.bmp")), sKind, iIndex);
        return ReadFile(image.GetThumbnail(false));
    }
};

TEST_F(BrowseOwnFilesTest, ThumbnailsAreNotOfferedAndPicturesThatBearTheirNamesAre) {
    const QByteArray thumb = Thumbnail(QStringLiteral("Space"), 5);
    Thumbnail(QStringLiteral("Token"), 1);
    Picture(QStringLiteral("corner3.bmp"), 100);
    Picture(QStringLiteral("Space12.bmp"), 100);
    WriteFile(QStringLiteral("stick/Space5.bmp"), thumb);
    Picture(QStringLiteral("stick/Money0.bmp"), 100);
    Browse(
        QString(),
        [](QWidget& window) {
            EXPECT_EQ(FilesIn(window), (QStringList{QStringLiteral("corner3.bmp"), QStringLiteral("dog.bmp"),
                                                    QStringLiteral("Space12.bmp")}));
            ChoosePlace(window, QStringLiteral("STICK"));
            EXPECT_EQ(FilesIn(window), QStringList{QStringLiteral("Money0.bmp")});
            Click(window, "cmdCancel");
        },
        true, folder.path());
}

TEST_F(BrowseOwnFilesTest, ACopyNeverTakesTheNameOfAThumbnail) {
    for (const char* name : {"Space5.bmp", "CORNER3.BMP", "token0.bmp"}) {
        const QString file = QString::fromLatin1(name);
        const QString from = Picture(QStringLiteral("stick/") + file);
        const QString copy = Browse(QString(), [&](QWidget& window) {
            ChoosePlace(window, QStringLiteral("STICK"));
            ClickFile(window, file);
            Click(window, "cmdOK");
        });
        QString numbered = file;
        numbered.insert(file.size() - 4, QStringLiteral("(1)"));
        EXPECT_EQ(copy, PathOf(numbered));
        EXPECT_EQ(ReadFile(copy), ReadFile(from));
        EXPECT_FALSE(Files::Exists(PathOf(file)));
        EXPECT_TRUE(desktop.boxes.last().sText.endsWith(numbered));
    }
}

} // namespace
