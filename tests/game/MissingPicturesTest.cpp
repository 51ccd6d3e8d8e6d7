// SPDX-License-Identifier: MIT
#include "game/MissingPictures.h"

#include "game/PieceImages.h"
#include "pictures/SeenPictures.h"
#include "pictures/ThumbnailStore.h"
#include "services/ProgramSettings.h"
#include "support/PictureFiles.h"
#include "support/StartUp.h"
#include "support/TestFixture.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

namespace {

using Kind = PictureOwner::Kind;
using Places = MissingPictures::Places;

class MissingPicturesTest : public TavloraTest {
protected:
    MissingPicturesTest() {
        QDir(folder.path()).mkpath(QStringLiteral("games"));
        Settings().sMyGamesDirectory = PathOf(QStringLiteral("games"));
        StartUp::MakeThumbnails();
        game = Game();
    }
    QString Photo(const QString& name, Qt::GlobalColor color = Qt::red, QSize size = QSize(60, 40)) const {
        QDir(folder.path()).mkpath(QFileInfo(name).path());
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        return WriteFile(name, PictureFiles::Encoded(image, "png"));
    }
    /// A space that shows a part of a picture.
    void Show(int space, const QString& path) {
        C_Image& image = game.spaces[size_t(space)].Image;
        image.Let_Index(qint16(space));
        image.Let_SpaceOrCorner(QStringLiteral("Space"));
        image.Let_FullPath(path);
        image.Let_Zoom(7);
        image.Let_XCenter(30);
        image.Let_YCenter(20);
    }
    Places LookAround(const QString& old, const QString& now, QStringList* doubtful = nullptr) const {
        MissingPictures::Search search(game, old, now);
        while (search.Step()) {
        }
        const Places places = search.Found();
        if (doubtful) *doubtful = search.Doubtful();
        return places;
    }
    void Move(const char* from, const char* to) const {
        QDir(folder.path()).mkpath(QFileInfo(QString::fromLatin1(to)).path());
        ASSERT_TRUE(QDir(folder.path()).rename(QString::fromLatin1(from), QString::fromLatin1(to)));
    }
    Game game;
};

TEST_F(MissingPicturesTest, TellsThePiecesInTheirOrder) {
    Show(4, Photo(QStringLiteral("there.png")));
    Show(9, PathOf(QStringLiteral("away.png")));
    game.tokens[2].Image.Let_FullPath(PathOf(QStringLiteral("dog.png")));
    const std::vector<MissingPictures::Missing> missing = MissingPictures::Of(game);
    ASSERT_EQ(missing.size(), 2U);
    EXPECT_EQ(missing[0].piece, (PictureOwner{Kind::Space, 9}));
    EXPECT_EQ(missing[0].sPath, PathOf(QStringLiteral("away.png")));
    EXPECT_EQ(missing[1].piece, (PictureOwner{Kind::Token, 2}));
}

TEST_F(MissingPicturesTest, AFolderThatWasRenamedBringsAllOfItsPicturesWithTheirParts) {
    const QStringList old{Photo(QStringLiteral("Pictures/2024/cat.png")),
                          Photo(QStringLiteral("Pictures/2025/dog.png")), Photo(QStringLiteral("Pictures/cow.png"))};
    for (int i = 0; i < 3; ++i)
        Show(i + 1, old[i]);
    const Game before = game;
    Move("Pictures", "Fotos");
    const Edit edit = MissingPictures::Moved(game, LookAround(old[0], PathOf(QStringLiteral("Fotos/2024/cat.png"))));
    EXPECT_EQ(edit.sName, QStringLiteral("3 Pictures Found Again"));
    for (size_t i = 0; i < 3; ++i) {
        const PictureRef& was = before.spaces[i + 1].Image.Ref();
        const PictureRef& is = edit.after.spaces[i + 1].Image.Ref();
        EXPECT_EQ(is.sPath, QString(was.sPath).replace(QStringLiteral("Pictures"), QStringLiteral("Fotos")));
        EXPECT_EQ(is.iZoom, 7);
        EXPECT_EQ(is.iXCenter, 30);
        EXPECT_EQ(is.iYCenter, 20);
    }
    EXPECT_TRUE(MissingPictures::Of(edit.after).empty());
}

TEST_F(MissingPicturesTest, OthersAreFoundBelowTheFolderOfTheOneWhateverItIsCalledThere) {
    Show(1, PathOf(QStringLiteral("old/cat.png")));
    Show(2, PathOf(QStringLiteral("old/dog.png")));
    Show(3, PathOf(QStringLiteral("old/dog.png")));
    Photo(QStringLiteral("new/deep/er/Dog.PNG"));
    const Places places = LookAround(PathOf(QStringLiteral("old/cat.png")), Photo(QStringLiteral("new/kitten.png")));
    EXPECT_EQ(places.value(PathOf(QStringLiteral("old/cat.png"))), PathOf(QStringLiteral("new/kitten.png")));
    EXPECT_EQ(places.value(PathOf(QStringLiteral("old/dog.png"))), PathOf(QStringLiteral("new/deep/er/Dog.PNG")));
    const Edit edit = MissingPictures::Moved(game, places);
    EXPECT_EQ(edit.sName, QStringLiteral("3 Pictures Found Again"));
    EXPECT_TRUE(MissingPictures::Of(edit.after).empty());
}

TEST_F(MissingPicturesTest, OfTwoOfANameItIsTheOneOfTheSizeAndDateThatThePictureHad) {
    const QString old = Photo(QStringLiteral("old/IMG_0001.png"), Qt::blue);
    SeenPictures::Note({old});
    Show(1, PathOf(QStringLiteral("old/first.png")));
    Show(2, old);
    Photo(QStringLiteral("new/a/IMG_0001.png"), Qt::red, QSize(90, 90));
    Move("old/IMG_0001.png", "new/b/IMG_0001.png");
    const QString found = Photo(QStringLiteral("new/first.png"));
    EXPECT_EQ(LookAround(PathOf(QStringLiteral("old/first.png")), found).value(old),
              PathOf(QStringLiteral("new/b/IMG_0001.png")));
    // The same size, but another day.
    const QString twin = PathOf(QStringLiteral("new/a/IMG_0001.png"));
    QByteArray bytes = ReadFile(PathOf(QStringLiteral("new/b/IMG_0001.png")));
    bytes[bytes.size() - 20] = char(bytes[bytes.size() - 20] + 1);
    WriteFile(QStringLiteral("new/a/IMG_0001.png"), bytes);
    QFile file(twin);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addDays(-9), QFileDevice::FileModificationTime);
    file.close();
    EXPECT_EQ(LookAround(PathOf(QStringLiteral("old/first.png")), found).value(old),
              PathOf(QStringLiteral("new/b/IMG_0001.png")));
}

TEST_F(MissingPicturesTest, OfTwoOfANameItIsTheOneOnWhoseMiddleThePieceIsCentered) {
    Show(1, PathOf(QStringLiteral("old/first.png")));
    // As a game tells it that comes from another computer: of a picture of 90 x 70.
    Show(2, PathOf(QStringLiteral("old/cat.png")));
    game.spaces[2].Image.Let_XCenter(45);
    game.spaces[2].Image.Let_YCenter(35);
    game.spaces[2].Image.Let_Zoom(0);
    Photo(QStringLiteral("new/a/cat.png"), Qt::red, QSize(90, 40));
    Photo(QStringLiteral("new/b/cat.png"), Qt::red, QSize(90, 70));
    Photo(QStringLiteral("new/c/cat.png"), Qt::red, QSize(60, 70));
    EXPECT_EQ(LookAround(PathOf(QStringLiteral("old/first.png")), Photo(QStringLiteral("new/first.png")))
                  .value(PathOf(QStringLiteral("old/cat.png"))),
              PathOf(QStringLiteral("new/b/cat.png")));
}

TEST_F(MissingPicturesTest, TheMiddleOfAnOddSideIsHalfAPixelBesideIt) {
    Show(1, PathOf(QStringLiteral("old/first.png")));
    Show(2, PathOf(QStringLiteral("old/cat.png")));
    // Of 91 x 69: 45.5 and 34.5, halves to even.
    game.spaces[2].Image.Let_XCenter(46);
    game.spaces[2].Image.Let_YCenter(34);
    game.spaces[2].Image.Let_Zoom(0);
    Photo(QStringLiteral("new/a/cat.png"), Qt::red, QSize(91, 65));
    Photo(QStringLiteral("new/b/cat.png"), Qt::red, QSize(91, 69));
    Photo(QStringLiteral("new/c/cat.png"), Qt::red, QSize(94, 69));
    EXPECT_EQ(LookAround(PathOf(QStringLiteral("old/first.png")), Photo(QStringLiteral("new/first.png")))
                  .value(PathOf(QStringLiteral("old/cat.png"))),
              PathOf(QStringLiteral("new/b/cat.png")));
}

TEST_F(MissingPicturesTest, OfTwoOfANameItIsTheOneThatThePieceHasShown) {
    const QString old = Photo(QStringLiteral("old/cat.png"), Qt::blue);
    Show(1, PathOf(QStringLiteral("old/first.png")));
    Show(2, old);
    game.spaces[2].Image.GetThumbnail(false);
    Photo(QStringLiteral("new/a/cat.png"), Qt::red);
    Move("old/cat.png", "new/b/cat.png");
    EXPECT_EQ(LookAround(PathOf(QStringLiteral("old/first.png")), Photo(QStringLiteral("new/first.png"))).value(old),
              PathOf(QStringLiteral("new/b/cat.png")));
}

TEST_F(MissingPicturesTest, OfTwoOfANameNobodyKnowsWhichItStaysMissing) {
    const QString old = PathOf(QStringLiteral("old/cat.png"));
    Show(1, PathOf(QStringLiteral("old/first.png")));
    Show(2, old);
    Photo(QStringLiteral("new/a/cat.png"), Qt::red);
    Photo(QStringLiteral("new/b/cat.png"), Qt::blue);
    QStringList doubtful;
    const QString found = Photo(QStringLiteral("new/first.png"));
    EXPECT_FALSE(LookAround(PathOf(QStringLiteral("old/first.png")), found, &doubtful).contains(old));
    EXPECT_EQ(doubtful, QStringList{QStringLiteral("cat.png")});
    // Two copies of one photo are as good as one.
    Photo(QStringLiteral("new/b/cat.png"), Qt::red);
    EXPECT_TRUE(LookAround(PathOf(QStringLiteral("old/first.png")), found).contains(old));
}

TEST_F(MissingPicturesTest, ALinkIntoItsOwnFolderEnds) {
    Show(1, PathOf(QStringLiteral("old/first.png")));
    Show(2, PathOf(QStringLiteral("old/cat.png")));
    const QString found = Photo(QStringLiteral("new/first.png"));
    QFile::link(PathOf(QStringLiteral("new")), PathOf(QStringLiteral("new/again")));
    EXPECT_EQ(LookAround(PathOf(QStringLiteral("old/first.png")), found).size(), 1);
}

TEST_F(MissingPicturesTest, TheStepCountsThePiecesThatShowAgain) {
    const QString gone = PathOf(QStringLiteral("gone.png"));
    Show(1, gone);
    const Places places{{gone, Photo(QStringLiteral("there.png"))}};
    EXPECT_EQ(MissingPictures::Moved(game, places).sName, QStringLiteral("Picture Found Again"));
    Show(2, gone);
    EXPECT_EQ(MissingPictures::Moved(game, places).sName, QStringLiteral("2 Pictures Found Again"));
}

} // namespace
