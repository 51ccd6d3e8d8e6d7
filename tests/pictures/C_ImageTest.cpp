// SPDX-License-Identifier: MIT
#include "pictures/C_Image.h"

#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/ProgramSettings.h"
#include "services/TavloraError.h"
#include "support/TestFixture.h"

#include <QDir>

namespace {

class C_ImageTest : public TavloraTest {
protected:
    QString Make(const QString& name) { return WriteFile(name, "picture"); }
    static QString Missing(const QString& path) {
        return QStringLiteral("The file named '") + path +
               QStringLiteral("' is invalid or does not exist.\r\nArea will be left empty.");
    }
    C_Image image;
};

TEST_F(C_ImageTest, Edge_ImageWithoutPathWritesTwoQuotesAndThreeZeros) {
    EXPECT_EQ(image.GetQuotedString(), QStringLiteral("\"\",0,0,0"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(C_ImageTest, InitWithAGoodPictureTellsNothingOfTheBadOneBefore) {
    image.Init(PathOf(QStringLiteral("gone.bmp")), QStringLiteral("Space"), 7);
    EXPECT_EQ(desktop.Texts(), QStringList{Missing(PathOf(QStringLiteral("gone.bmp")))});
    desktop.boxes.clear();
    const QString good = Make(QStringLiteral("good.bmp"));
    image.Init(good, QStringLiteral("Space"), 7);
    EXPECT_EQ(desktop.Texts(), QStringList());
    EXPECT_EQ(image.FullPath(), good);
    EXPECT_EQ(image.BadPath(), QString());
}

TEST_F(C_ImageTest, Edge_ChangedPathClearsZoomAndCentresEvenWhenFileIsMissing) {
    image.Let_FullPath(Make(QStringLiteral("a.bmp")));
    image.Let_Zoom(7);
    image.Let_XCenter(12);
    image.Let_YCenter(13);
    image.Let_FullPath(PathOf(QStringLiteral("gone.bmp")));
    EXPECT_EQ(image.Zoom(), 0);
    EXPECT_EQ(image.XCenter(), 0.0F);
    EXPECT_EQ(image.YCenter(), 0.0F);
    EXPECT_EQ(desktop.Texts(), QStringList{Missing(PathOf(QStringLiteral("gone.bmp")))});
    EXPECT_EQ(desktop.boxes.first().iStyle, vbExclamation);
}

TEST_F(C_ImageTest, Edge_CentreIsRoundedWithHalvesToEven) {
    image.Let_XCenter(10.5F);
    EXPECT_EQ(image.XCenter(), 10.0F);
    image.Let_XCenter(11.5F);
    EXPECT_EQ(image.XCenter(), 12.0F);
    image.Let_YCenter(10.5F);
    EXPECT_EQ(image.YCenter(), 10.0F);
    image.Let_YCenter(11.5F);
    EXPECT_EQ(image.YCenter(), 12.0F);
}

TEST_F(C_ImageTest, Edge_CornerThreeOfKitEightHoldsFateWhateverTheRecordSays) {
    QDir(folder.path()).mkdir(QStringLiteral("program"));
    QDir(folder.path()).mkdir(QStringLiteral("games"));
    Folders::SetProgramDirectory(PathOf(QStringLiteral("program")));
    Settings().sMyGamesDirectory = PathOf(QStringLiteral("games"));
    WriteFile(QStringLiteral("program/fate.dat"), "picture");
    Settings().sGameVersion = QStringLiteral("8");
    image.SetQuotedString(QStringLiteral("\"mine.bmp\",3,4,5"), QStringLiteral("Corner"), 3);
    EXPECT_EQ(image.FullPath(), PathOf(QStringLiteral("program/fate.dat")));
    EXPECT_EQ(image.RelativePath(), QStringLiteral("fate.dat"));
    Settings().sGameVersion = QStringLiteral("5");
    image.SetQuotedString(QStringLiteral("\"\",3,4,5"), QStringLiteral("Corner"), 3);
    EXPECT_EQ(image.FullPath(), QString());
}

// Both folders stand side by side where case counts; as a relative name the picture would be looked for in the wrong
// one.
TEST_F(C_ImageTest, APictureInAFolderOfAnotherSpellingKeepsItsWholePath) {
    for (const char* name : {"games", "Games"})
        QDir(folder.path()).mkdir(QString::fromLatin1(name));
    Settings().sMyGamesDirectory = PathOf(QStringLiteral("games"));
    const QString other = WriteFile(QStringLiteral("Games/cat.bmp"), "picture");
    if (QFileInfo::exists(PathOf(QStringLiteral("games/cat.bmp")))) GTEST_SKIP() << "this disk knows no case";
    image.Let_FullPath(other);
    EXPECT_EQ(image.RelativePath(), other);
    image.Let_FullPath(WriteFile(QStringLiteral("games/cat.bmp"), "picture"));
    EXPECT_EQ(image.RelativePath(), QStringLiteral("cat.bmp"));
}

TEST_F(C_ImageTest, RecordSurvivesWritingAndReading) {
    const QString path = Make(QStringLiteral("Straße \"1\".bmp"));
    image.Let_SpaceOrCorner(QStringLiteral("Space"));
    image.Let_Index(12);
    image.Let_FullPath(path);
    image.Let_XCenter(120);
    image.Let_YCenter(88);
    image.Let_Zoom(15);
    const QString record = image.GetQuotedString();
    EXPECT_EQ(record, QStringLiteral("\"Straße \\q1\\q.bmp\",120,88,15"));
    C_Image read;
    EXPECT_EQ(read.SetQuotedString(record + QStringLiteral(", \"Arial\",R,12"), QStringLiteral("Space"), 12),
              QStringLiteral("\"Arial\",R,12"));
    EXPECT_FALSE(read.IsDifferentFrom(image));
    EXPECT_EQ(read.FullPath(), path);
}

TEST_F(C_ImageTest, PercentSignsInANameStandAsTheyAre) {
    image.Let_FullPath(Make(QStringLiteral("50%2 off %1.bmp")));
    EXPECT_EQ(image.GetQuotedString(), QStringLiteral("\"50%2 off %1.bmp\",0,0,0"));
}

TEST_F(C_ImageTest, FieldsThatAreNoNumbersReadAsZero) {
    EXPECT_EQ(image.SetQuotedString(QStringLiteral("\"\",x,,-"), QStringLiteral("Space"), 1), QString());
    EXPECT_EQ(image.XCenter(), 0.0F);
    EXPECT_EQ(image.Zoom(), 0);
}

TEST_F(C_ImageTest, NumberBeyondSixteenBitsOverflows) {
    try {
        image.SetQuotedString(QStringLiteral("\"\",40000,0,0"), QStringLiteral("Space"), 1);
        FAIL() << "no overflow";
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), ErrNumber::kOverflow);
    }
}

TEST_F(C_ImageTest, RelativePictureIsLookedForInMyGamesThenBesideTheGameThenInTheProgram) {
    for (const char* name : {"games", "beside", "program"})
        QDir(folder.path()).mkdir(QString::fromLatin1(name));
    Settings().sMyGamesDirectory = PathOf(QStringLiteral("games"));
    Settings().sGameDirectory = PathOf(QStringLiteral("beside"));
    Folders::SetProgramDirectory(PathOf(QStringLiteral("program")));
    const QString inProgram = Make(QStringLiteral("program/x.bmp"));
    image.Let_RelativePath(QStringLiteral("x.bmp"));
    EXPECT_EQ(image.FullPath(), inProgram);
    EXPECT_EQ(image.RelativePath(), QStringLiteral("x.bmp"));
    const QString beside = Make(QStringLiteral("beside/x.bmp"));
    image.Let_RelativePath(QStringLiteral("x.bmp"));
    EXPECT_EQ(image.FullPath(), beside);
    EXPECT_EQ(image.RelativePath(), beside);
    const QString inGames = Make(QStringLiteral("games/x.bmp"));
    image.Let_RelativePath(QStringLiteral("  x.bmp "));
    EXPECT_EQ(image.FullPath(), inGames);
    EXPECT_EQ(image.RelativePath(), QStringLiteral("x.bmp"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(C_ImageTest, PicturesCanStartFromAnotherFolderThanThumbnails) {
    QDir(folder.path()).mkdir(QStringLiteral("user"));
    Settings().sRelativePictureBase = PathOf(QStringLiteral("user"));
    const QString path = Make(QStringLiteral("user/x.bmp"));
    image.Init(QString(), QStringLiteral("Space"), 4);
    image.Let_RelativePath(QStringLiteral("x.bmp"));
    EXPECT_EQ(image.FullPath(), path);
    EXPECT_EQ(image.Thumbname(), PathOf(QStringLiteral("Space4.bmp")));
}

TEST_F(C_ImageTest, PathTakesTheSpellingOfTheDiskWhenOnlyCaseDiffers) {
    Make(QStringLiteral("Photo.JPG"));
    image.Let_RelativePath(QStringLiteral("photo.jpg"));
    EXPECT_EQ(image.FullPath(), PathOf(QStringLiteral("Photo.JPG")));
}

TEST_F(C_ImageTest, BackslashesInARelativeNameAreSeparators) {
    QDir(folder.path()).mkdir(QStringLiteral("sub"));
    const QString path = Make(QStringLiteral("sub/x.bmp"));
    image.Let_RelativePath(QStringLiteral("sub\\x.bmp"));
    EXPECT_EQ(image.FullPath(), path);
}

TEST_F(C_ImageTest, NativePathIsCompleteAndStands) {
    const QString path = Make(QStringLiteral("x.bmp"));
    Settings().sMyGamesDirectory = QDir::tempPath();
    image.Let_RelativePath(path);
    EXPECT_EQ(image.FullPath(), path);
}

TEST_F(C_ImageTest, PathsOfOtherMachinesAreToldMissingAndKept) {
    for (const char* name : {"C:\\pix\\x.bmp", "\\\\server\\pix\\x.bmp"}) {
        desktop.boxes.clear();
        image.Let_RelativePath(QString::fromLatin1(name));
        EXPECT_EQ(image.FullPath(), QString::fromLatin1(name));
        EXPECT_EQ(desktop.boxes.size(), 1);
    }
    image.Let_RelativePath(QStringLiteral("C:x.bmp"));
    EXPECT_EQ(image.FullPath(), QStringLiteral("C:\\x.bmp"));
    EXPECT_FALSE(desktop.ended);
}

TEST_F(C_ImageTest, BadPathIsToldOnce) {
    const QString gone = PathOf(QStringLiteral("gone.bmp"));
    image.Init(gone, QStringLiteral("Space"), 1);
    image.Let_FullPath(gone);
    image.SetBadPath(QStringLiteral("again"));
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(image.BadPath(), gone);
}

TEST_F(C_ImageTest, SetBadPathTellsTheReason) {
    image.Let_FullPath(Make(QStringLiteral("odd.bmp")));
    image.SetBadPath(QStringLiteral("no picture"));
    EXPECT_EQ(desktop.Texts(), QStringList{Missing(PathOf(QStringLiteral("odd.bmp"))) +
                                           QStringLiteral("\r\n\r\nThe following error was reported\r\nno picture")});
}

TEST_F(C_ImageTest, SettingAFieldOrCopyingTouchesNoFile) {
    image.Init(Make(QStringLiteral("a.bmp")), QStringLiteral("Space"), 12);
    WriteFile(QStringLiteral("Space12.bmp"), "thumb");
    QStringList touched;
    Files::SetFaultHook([&touched](Files::Operation, const QString& sPath) -> std::optional<QString> {
        touched.append(sPath);
        return {};
    });
    image.Let_Zoom(3);
    image.Let_XCenter(5);
    image.Let_YCenter(5);
    C_Image copy;
    copy.LoadFromObject(image, false);
    image.Let_FullPath(QString());
    image = copy;
    EXPECT_EQ(touched, QStringList());
    EXPECT_EQ(ReadFile(PathOf(QStringLiteral("Space12.bmp"))), "thumb");
    EXPECT_EQ(image.Zoom(), 3);
}

TEST_F(C_ImageTest, ThumbnameAndOrientFollowTheOwner) {
    EXPECT_EQ(image.Thumbname(), QString());
    image.Init(QString(), QStringLiteral("Space"), 20);
    EXPECT_EQ(image.Thumbname(), PathOf(QStringLiteral("Space20.bmp")));
    EXPECT_EQ(image.Orient(), 2);
    image.Init(QString(), QStringLiteral("Corner"), 3);
    EXPECT_EQ(image.Orient(), 7);
    image.Init(QString(), QStringLiteral("Money"), 3);
    EXPECT_EQ(image.Orient(), 0);
    image.Let_SpaceOrCorner(QStringLiteral("Card"));
    EXPECT_THROW(image.Thumbname(), TavloraError);
}

TEST_F(C_ImageTest, CopyIsNotDifferentAndEachComparedMemberCounts) {
    image.Init(Make(QStringLiteral("a.bmp")), QStringLiteral("Space"), 3);
    image.Let_XCenter(4);
    image.Let_YCenter(5);
    image.Let_Zoom(6);
    const auto differs = [&](auto change) {
        C_Image copy;
        copy.LoadFromObject(image, false);
        EXPECT_FALSE(copy.IsDifferentFrom(image));
        change(copy);
        return copy.IsDifferentFrom(image);
    };
    EXPECT_TRUE(differs([](C_Image& copy) { copy.Let_FullPath(QString()); }));
    EXPECT_TRUE(differs([](C_Image& copy) { copy.Let_XCenter(1); }));
    EXPECT_TRUE(differs([](C_Image& copy) { copy.Let_YCenter(1); }));
    EXPECT_TRUE(differs([](C_Image& copy) { copy.Let_Zoom(1); }));
    EXPECT_TRUE(differs([](C_Image& copy) { copy.Let_Index(1); }));
    EXPECT_TRUE(differs([](C_Image& copy) { copy.Let_SpaceOrCorner(QStringLiteral("Corner")); }));
    EXPECT_FALSE(differs([](C_Image& copy) { copy.SetBadPath(QString()); }));
    EXPECT_FALSE(differs([](C_Image& copy) { copy.X = 1; }));
}

TEST_F(C_ImageTest, MetafilesAreToldByTheirEnding) {
    image.Let_FullPath(Make(QStringLiteral("a.WMF")));
    EXPECT_TRUE(image.IsWMF());
    image.Let_FullPath(Make(QStringLiteral("a.wmf.bmp")));
    EXPECT_FALSE(image.IsWMF());
}

} // namespace
