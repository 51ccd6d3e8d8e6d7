// SPDX-License-Identifier: MIT
#include "pictures/ThumbnailStore.h"

#include "pictures/BoardThumbnail.h"
#include "pictures/C_Image.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHolder.h"
#include "services/basErrLog.h"
#include "support/PictureFiles.h"
#include "support/StartUp.h"
#include "support/TestFixture.h"

#include <QDateTime>
#include <QFile>

namespace {

using namespace PictureFiles;

constexpr QRgb kBoard = 0xFFE0FFE0;
constexpr QRgb kWhite = 0xFFFFFFFF;

class ThumbnailStoreTest : public TavloraTest {
protected:
    ThumbnailStoreTest() {
        ForgetPictures();
        StartUp::MakeThumbnails();
        form.SetBackColor(Color::Rgb(0xE0, 0xFF, 0xE0));
        basErrLog::ErrInit(0);
    }

    QString Photo(const QString& sName, QColor color = Qt::red) {
        QImage image(300, 300, QImage::Format_RGB32);
        image.fill(color);
        return WriteFile(sName, Encoded(image, "png"));
    }
    // A bitmap as anybody's camera or paint program writes it.
    static QByteArray UsersPicture() { return Encoded(Quarters(100, 100), "bmp"); }
    QString QuartersPhoto() { return WriteFile(QStringLiteral("q.png"), Encoded(Quarters(300, 300), "png")); }
    static void Touch(const QString& sPath, int seconds) {
        QFile file(sPath);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(seconds), QFileDevice::FileModificationTime));
    }
    // What the file of the image's thumbnail shows at its middle.
    static QRgb MiddleOfThumb(const C_Image& image) {
        QString error;
        ForgetPictures();
        const QImage thumb = LoadPicture(image.GetThumbnail(false), error).Image();
        return thumb.pixel(thumb.width() / 2, thumb.height() / 2);
    }
    // Makes the given file's operations fail.
    static void Refuse(const QString& sPath, std::initializer_list<Files::Operation> operations) {
        Files::SetFaultHook([sPath, refused = QList<Files::Operation>(operations)](
                                Files::Operation operation, const QString& sAsked) -> std::optional<QString> {
            if (sAsked == sPath && refused.contains(operation)) return QStringLiteral("Permission denied");
            return {};
        });
    }

    ScratchForm form{QSize(100, 100)};
};

TEST_F(ThumbnailStoreTest, ThumbnailIsMadeWhenMissingOrOlderThanThePicture) {
    C_Image image;
    const QString path = Photo(QStringLiteral("p.png"));
    Touch(path, -20);
    image.Init(path, QStringLiteral("Space"), 4);
    const QString thumb = image.GetThumbnail(false);
    EXPECT_EQ(thumb, PathOf(QStringLiteral("Space4.bmp")));
    EXPECT_EQ(Files::Size(thumb), 30054);

    const Files::Stamp made = Files::StampOf(thumb);
    image.GetThumbnail(false);
    EXPECT_EQ(Files::StampOf(thumb), made) << "a younger thumbnail stands";
    Touch(thumb, -30);
    image.GetThumbnail(false);
    EXPECT_GE(Files::StampOf(thumb).modifiedMs, made.modifiedMs) << "an older one is made anew";
    WriteFile(QStringLiteral("Space4.bmp"), "cut short");
    image.GetThumbnail(false);
    EXPECT_EQ(Files::Size(thumb), 30054) << "so is one that was damaged since";
}

TEST_F(ThumbnailStoreTest, APictureReplacedByAnOlderOneIsSeenAtTheNextPaint) {
    C_Image image;
    const QString path = Photo(QStringLiteral("p.png"), Qt::red);
    image.Init(path, QStringLiteral("Space"), 4);
    EXPECT_EQ(MiddleOfThumb(image), qRgb(255, 0, 0));
    Photo(QStringLiteral("p.png"), Qt::blue);
    Touch(path, -2 * 365 * 24 * 3600);
    EXPECT_EQ(MiddleOfThumb(image), qRgb(0, 0, 255));
}

TEST_F(ThumbnailStoreTest, ThumbnailOfAnotherPictureIsNeverTakenOver) {
    C_Image first;
    first.Init(QuartersPhoto(), QStringLiteral("Space"), 0);
    first.GetThumbnail(false);
    C_Image second;
    second.Init(Photo(QStringLiteral("p.png")), QStringLiteral("Space"), 0);
    QString error;
    EXPECT_EQ(LoadPicture(second.GetThumbnail(false), error).Image().pixel(80, 80), qRgb(255, 0, 0));
    EXPECT_EQ(LoadPicture(first.GetThumbnail(false), error).Image().pixel(80, 80), kWhite);
}

TEST_F(ThumbnailStoreTest, WhatAnotherRunLeftIsNeverTakenOver) {
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png"), Qt::red), QStringLiteral("Corner"), 1);
    image.GetThumbnail(false);
    Photo(QStringLiteral("o.png"), Qt::blue);
    C_Image other;
    other.Init(PathOf(QStringLiteral("o.png")), QStringLiteral("Corner"), 1);
    ThumbnailStore::Instance().ForgetAll();
    EXPECT_EQ(MiddleOfThumb(other), qRgb(0, 0, 255));
}

struct OwnedPicture {
    const char* sKind;
    qint16 iIndex;
};

class PutBackTest : public ThumbnailStoreTest, public testing::WithParamInterface<OwnedPicture> {};

TEST_P(PutBackTest, AnOldValueBringsItsThumbnailBack) {
    C_Image image;
    image.Init(Photo(QStringLiteral("old.png"), Qt::red), QString::fromLatin1(GetParam().sKind), GetParam().iIndex);
    const QByteArray before = ReadFile(image.GetThumbnail(false));
    ASSERT_FALSE(before.isEmpty());
    const C_Image old = image;

    image.Let_FullPath(Photo(QStringLiteral("new.png"), Qt::blue));
    EXPECT_EQ(ReadFile(image.Thumbname()), before) << "a value is changed, no file";
    image = old;
    EXPECT_EQ(ReadFile(image.GetThumbnail(false)), before);

    image.Let_FullPath(PathOf(QStringLiteral("new.png")));
    EXPECT_NE(ReadFile(image.GetThumbnail(false)), before);
    image = old;
    EXPECT_EQ(ReadFile(image.GetThumbnail(false)), before);

    image.Let_Zoom(-10);
    EXPECT_NE(ReadFile(image.GetThumbnail(false)), before);
    image = old;
    EXPECT_EQ(ReadFile(image.GetThumbnail(false)), before);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Pieces, PutBackTest,
                         testing::Values(OwnedPicture{"Space", 12}, OwnedPicture{"Corner", 2}, OwnedPicture{"Money", 3},
                                         OwnedPicture{"Token", 5}),
                         [](const auto& each) { return std::string(each.param.sKind); });

TEST_F(ThumbnailStoreTest, PicturesWhoseThumbnailsTheDiskRefusesAreShownWithoutThemAndWithoutABox) {
    C_Image image;
    image.Init(QuartersPhoto(), QStringLiteral("Space"), 7);
    int attempts = 0;
    Files::SetFaultHook([&attempts](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation != Files::Operation::OpenWrite || !sPath.endsWith(QStringLiteral("Space7.bmp"))) return {};
        ++attempts;
        return QStringLiteral("Permission denied");
    });
    for (int paint = 0; paint < 3; ++paint) {
        form.Cls();
        image.DrawBitmapToScreen(form, 0, 0, 60, 60);
        EXPECT_EQ(form.Image().pixel(5, 5), qRgb(0, 0, 255)) << "turned to the left side";
        EXPECT_EQ(form.Image().pixel(70, 70), kBoard);
    }
    form.Cls();
    while (!DrawWhatIsReady(image.Owned(), form, QRectF(0, 0, 60, 60))) {
    }
    EXPECT_EQ(form.Image().pixel(5, 5), qRgb(0, 0, 255));
    EXPECT_EQ(attempts, 1) << "the disk isn't asked again at each paint";
    EXPECT_FALSE(Files::Exists(PathOf(QStringLiteral("Space7.bmp"))));
    EXPECT_TRUE(desktop.boxes.isEmpty());

    Files::SetFaultHook({});
    image.Let_Zoom(10);
    EXPECT_TRUE(Files::Exists(image.GetThumbnail(false))) << "another part of the picture is another attempt";
}

TEST_F(ThumbnailStoreTest, ThumbnailOfAnotherGameThatCantBeReplacedIsNeverShown) {
    C_Image former;
    former.Init(Photo(QStringLiteral("p.png")), QStringLiteral("Space"), 7);
    const QString thumb = former.GetThumbnail(false);
    Refuse(thumb, {Files::Operation::OpenWrite, Files::Operation::Remove});
    C_Image image;
    image.Init(QuartersPhoto(), QStringLiteral("Space"), 7);
    image.DrawBitmapToScreen(form, 0, 0, 60, 60);
    EXPECT_EQ(form.Image().pixel(5, 5), qRgb(0, 0, 255));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(ThumbnailStoreTest, TheThumbnailGoesWithItsPicture) {
    ThumbnailStore& store = ThumbnailStore::Instance();
    const PictureOwner owner{PictureOwner::Kind::Token, 2};
    const QByteArray theirs = UsersPicture();
    WriteFile(QStringLiteral("Token2.bmp"), theirs);
    store.DropUnused(owner);
    EXPECT_EQ(ReadFile(ThumbnailStore::PathOf(owner)), theirs);
    QFile::remove(ThumbnailStore::PathOf(owner));
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png")), QStringLiteral("Token"), 2);
    image.GetThumbnail(false);
    store.DropUnused(owner);
    EXPECT_FALSE(Files::Exists(ThumbnailStore::PathOf(owner)));
    EXPECT_TRUE(store.IsStale(image.Owned()));
}

class NamedLikeAThumbnailTest : public ThumbnailStoreTest, public testing::WithParamInterface<OwnedPicture> {
protected:
    static PictureOwner Owner() {
        return {PictureOwner::KindOf(QString::fromLatin1(GetParam().sKind)), GetParam().iIndex};
    }
    static QString NameOfThumb() {
        return QString::fromLatin1(GetParam().sKind) + QString::number(GetParam().iIndex) + QStringLiteral(".bmp");
    }
    // Makes the piece's thumbnail, and makes it again in every way there is.
    void UseThePiece(const QString& sPicture) {
        C_Image image;
        image.Init(sPicture, QString::fromLatin1(GetParam().sKind), GetParam().iIndex);
        image.GetThumbnail(false);
        if (Owner().IsOnBoard()) image.DrawBitmapToScreen(form, 0, 0, 60, 60);
        image.Let_Zoom(10);
        image.GetThumbnail(false);
        PictureHolder holder;
        image.PaintPictureZoomed(form, holder, ScaleModeKind::Pixels, 0, 0, 60, 60, Color::None());
        ThumbnailStore::Instance().DropUnused(Owner());
    }
};

TEST_P(NamedLikeAThumbnailTest, APictureOfTheUsersStaysAsItIs) {
    const QByteArray theirs = UsersPicture();
    for (const QString& name : {NameOfThumb(), NameOfThumb().toLower(), NameOfThumb().toUpper()}) {
        const QString path = WriteFile(name, theirs);
        UseThePiece(Photo(QStringLiteral("p.png")));
        EXPECT_EQ(ReadFile(path), theirs) << name.toStdString();
        ThumbnailStore::Instance().Delete(Owner());
        EXPECT_EQ(ReadFile(path), theirs) << name.toStdString();
        // As the piece's own picture.
        UseThePiece(path);
        EXPECT_EQ(ReadFile(path), theirs) << name.toStdString();
        QFile::remove(path);
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_P(NamedLikeAThumbnailTest, AThumbnailOfAnotherRunIsReplacedAndTheOneChosenForItsOwnPieceStays) {
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png"), Qt::red), QString::fromLatin1(GetParam().sKind), GetParam().iIndex);
    const QByteArray red = ReadFile(image.GetThumbnail(false));
    ThumbnailStore::Instance().ForgetAll();
    Photo(QStringLiteral("p.png"), Qt::blue);
    EXPECT_NE(ReadFile(image.GetThumbnail(false)), red);
    const QByteArray blue = ReadFile(image.Thumbname());
    UseThePiece(image.Thumbname());
    EXPECT_NE(ReadFile(image.Thumbname()), red);
    EXPECT_EQ(ReadFile(image.Thumbname()), blue);
}

INSTANTIATE_TEST_SUITE_P(Pieces, NamedLikeAThumbnailTest,
                         testing::Values(OwnedPicture{"Space", 12}, OwnedPicture{"Corner", 2}, OwnedPicture{"Money", 3},
                                         OwnedPicture{"Token", 5}),
                         [](const auto& each) { return std::string(each.param.sKind); });

TEST_F(ThumbnailStoreTest, APictureOfTheUsersInPlaceOfAThumbnailIsNeverShownForIt) {
    C_Image image;
    image.Init(QuartersPhoto(), QStringLiteral("Space"), 7);
    image.GetThumbnail(false);
    Touch(WriteFile(QStringLiteral("Space7.bmp"), UsersPicture()), 5);
    image.DrawBitmapToScreen(form, 0, 0, 60, 60);
    EXPECT_EQ(form.Image().pixel(5, 5), qRgb(0, 0, 255)) << "turned to the left side, from memory";
    EXPECT_EQ(ReadFile(image.Thumbname()), UsersPicture());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(ThumbnailStoreTest, ThumbnailThatCantBeDeletedIsToldOnce) {
    C_Image image;
    image.Init(Photo(QStringLiteral("p.png")), QStringLiteral("Token"), 2);
    const QString thumb = image.GetThumbnail(false);
    Refuse(thumb, {Files::Operation::Remove});
    ThumbnailStore::Instance().Delete(image.Owner());
    ThumbnailStore::Instance().Delete(image.Owner());
    EXPECT_EQ(desktop.Texts(),
              QStringList{QStringLiteral("Unable to delete the file named: ") + thumb +
                          QStringLiteral("\r\n\r\nThis could cause the space or corner to be displayed incorrectly."
                                         "\r\n\r\nThe following error was reported:\r\nPermission denied")});
    EXPECT_EQ(desktop.boxes.first().iStyle, vbExclamation);
    EXPECT_TRUE(ThumbnailStore::Instance().IsStale(image.Owned()));

    Files::SetFaultHook({});
    ThumbnailStore::Instance().Delete(image.Owner());
    EXPECT_FALSE(Files::Exists(thumb));
    Refuse(thumb, {Files::Operation::Remove});
    ThumbnailStore::Instance().Delete(image.Owner());
    EXPECT_EQ(desktop.boxes.size(), 2) << "what was deleted since is told anew";
}

TEST_F(ThumbnailStoreTest, PreparedThumbnailsAreThoseThatWouldBeMadeAnyway) {
    std::vector<C_Image> images(8);
    for (int i = 0; i < 8; ++i) {
        const QByteArray jpeg = Encoded(Quarters(800, 600 + i), "jpg");
        images[size_t(i)].Init(WriteFile(QStringLiteral("p%1.jpg").arg(i), jpeg), QStringLiteral("Space"), qint16(i));
    }
    for (const C_Image& image : images)
        ThumbnailStore::Instance().Prefetch(image.Owned());
    images[0].Let_Zoom(10); // changed meanwhile: what was begun no longer fits and isn't used
    for (C_Image& image : images)
        EXPECT_EQ(Files::Size(image.GetThumbnail(false)), 30054);
    QString error;
    const QImage zoomed = LoadPicture(images[0].Thumbname(), error).Image();
    EXPECT_NE(zoomed.pixel(50, 2), kBoard);
    const QImage plain = LoadPicture(images[1].Thumbname(), error).Image();
    EXPECT_EQ(plain.pixel(50, 2), kBoard);
}

} // namespace
