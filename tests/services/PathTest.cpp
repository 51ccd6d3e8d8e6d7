// SPDX-License-Identifier: MIT
#include "services/basPath.h"

#include "platform/files/Folders.h"
#include "services/basGetFolderPath.h"
#include "services/ProgramSettings.h"
#include "services/TavloraError.h"
#include "support/TestFixture.h"

#include <QDir>

using namespace basCommon;

class PathTest : public TavloraTest {};

TEST_F(PathTest, Edge_ABareFileNameEndsTheProgramWithTheAssertionMessage) {
    EXPECT_THROW(DoesFileExist(QStringLiteral("game.gam")), ProgramEnded);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("Assertion Failure: \r\n\r\nIncomplete path: game.gam in "
                                                     "basCommon!DoesFileExist"));
    EXPECT_EQ(desktop.boxes[0].iStyle, vbCritical);
}

TEST_F(PathTest, Edge_FileNameFactorSplitsAtTheLastBackslashAndTheLastPoint) {
    QString drive, dir, base, ext;
    FileNameFactor(QStringLiteral("C:\\a\\b.c.d"), drive, dir, base, ext);
    EXPECT_EQ(drive, QStringLiteral("C:"));
    EXPECT_EQ(dir, QStringLiteral("\\a\\"));
    EXPECT_EQ(base, QStringLiteral("b.c"));
    EXPECT_EQ(ext, QStringLiteral("d"));
}

TEST_F(PathTest, Edge_GetFullPathPutsNoRootBackBehindADrive) {
    EXPECT_EQ(GetFullPath(QStringLiteral("C:\\x"), QStringLiteral("y"), QStringLiteral("gam")),
              QStringLiteral("C:\\x\\y.gam"));
    EXPECT_EQ(GetFullPath(QStringLiteral("C:\\x"), QStringLiteral("\\y.bmp"), QStringLiteral("gam")),
              QStringLiteral("C:y.bmp"));
}

TEST_F(PathTest, PartsThatAPathHasNotAreLeftAsTheyWere) {
    QString drive = QStringLiteral("Q:"), dir = QStringLiteral("was"), base, ext = QStringLiteral("gam");
    FileNameFactor(QStringLiteral("name"), drive, dir, base, ext);
    EXPECT_EQ(drive, QStringLiteral("Q:"));
    EXPECT_EQ(dir, QStringLiteral("was"));
    EXPECT_EQ(base, QStringLiteral("name"));
    EXPECT_EQ(ext, QStringLiteral("gam"));
}

TEST_F(PathTest, NativePathsAreSplitAtTheirOwnSeparator) {
    QString drive, dir, base, ext;
    FileNameFactor(QStringLiteral("/home/zoe/My Games/a.b.gam"), drive, dir, base, ext);
    EXPECT_EQ(drive, QString());
    EXPECT_EQ(dir, QStringLiteral("/home/zoe/My Games/"));
    EXPECT_EQ(base, QStringLiteral("a.b"));
    EXPECT_EQ(ext, QStringLiteral("gam"));
}

TEST_F(PathTest, FullPathsOfBothFamilies) {
    struct Row {
        const char* base;
        const char* path;
        const char* ext;
        const char* full;
    };
    const Row rows[] = {
        {"/games", "photo.jpg", "bmp", "/games/photo.jpg"},
        {"/games", "pics\\photo", ".bmp", "/games/pics/photo.bmp"},
        {"/games/", "/else/photo.jpg", "bmp", "/else/photo.jpg"},
        {"/games", "photo", "", "/games/photo"},
        {"/games", "\\photo.jpg", "", "/photo.jpg"},
        {"C:\\x", "D:\\y.bmp", "bmp", "D:\\y.bmp"},
        {"C:\\x\\", "y", "..bmp", "C:\\x\\y.bmp"},
        {"\\\\server\\share\\x", "\\y.bmp", "", "\\\\servery.bmp"},
        {"C:\\x", "\\\\server\\y.bmp", "", "\\\\server\\y.bmp"},
        {" C:\\x ", " y ", " gam ", "C:\\x\\y.gam"},
        {"", "y", "gam", "y.gam"},
        {"C:\\x", "", "gam", ""},
        {"C:\\x.y", "z", "gam", "C:\\x.y\\z.gam"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(
            GetFullPath(QString::fromLatin1(row.base), QString::fromLatin1(row.path), QString::fromLatin1(row.ext)),
            QString::fromLatin1(row.full))
            << row.base << " + " << row.path;
    }
}

TEST_F(PathTest, ANameWithoutAFolderIsResolvedInMyGames) {
    WriteFile(QStringLiteral("Family.gam"), "x");
    QString path = QStringLiteral("Family.gam");
    EXPECT_TRUE(ResolveFullPath(path));
    EXPECT_EQ(path, PathOf(QStringLiteral("Family.gam")));
    path = QStringLiteral("lost\\folder\\family.gam");
    EXPECT_TRUE(ResolveFullPath(path)) << "the relative folder is dropped, the disk's spelling taken";
    EXPECT_EQ(path, PathOf(QStringLiteral("Family.gam")));
    path = QStringLiteral("none.gam");
    EXPECT_FALSE(ResolveFullPath(path));
}

TEST_F(PathTest, ACompletePathStaysAsItIs) {
    QString path = QStringLiteral("C:\\games\\x.gam");
    EXPECT_FALSE(ResolveFullPath(path));
    EXPECT_EQ(path, QStringLiteral("C:\\games\\x.gam"));
    path = WriteFile(QStringLiteral("a.gam"), "x");
    const QString before = path;
    EXPECT_TRUE(ResolveFullPath(path));
    EXPECT_EQ(path, before);
}

TEST_F(PathTest, ForceDirToExistMakesEveryLevel) {
    const QString deep = PathOf(QStringLiteral("a/b/c"));
    ForceDirToExist(deep + QStringLiteral("//"));
    EXPECT_TRUE(DoesDirExist(deep));
    EXPECT_TRUE(DoesDirExist(deep + u'/'));
    EXPECT_FALSE(DoesDirExist(deep + QStringLiteral("/d")));
}

TEST_F(PathTest, ForceDirToExistRefusesAPathWithoutARoot) {
    for (const char* path : {"games\\x", "C:games", "games"}) {
        try {
            ForceDirToExist(QString::fromLatin1(path));
            FAIL() << path;
        } catch (const TavloraError& error) {
            EXPECT_EQ(error.Number(), 0x80040000U) << path;
            EXPECT_EQ(error.Description(), QStringLiteral("Path has illegal format"));
        }
    }
}

TEST_F(PathTest, MyGamesIsMadeInTheDocumentsFolder) {
    qputenv("HOME", folder.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    Settings().sMyGamesDirectory.clear();
    const QString directory = GetMyGamesDirectory();
    EXPECT_EQ(directory, Folders::Documents() + QStringLiteral("/My Games"));
    EXPECT_TRUE(QDir(directory).exists());
}

TEST_F(PathTest, OldSystemsKeepGamesBesideTheProgram) {
    Folders::PretendSystem(Folders::SystemVersion{3, 51, 0, 1});
    Settings().sMyGamesDirectory.clear();
    EXPECT_EQ(GetMyGamesDirectory(), Folders::ProgramDirectory());
    Folders::PretendSystem(std::nullopt);
}

// The number of a kernel says nothing about folders: an old network storage has kernel 3 and a documents folder.
TEST_F(PathTest, OldKernelElsewhereKeepsGamesInTheDocumentsFolder) {
    qputenv("HOME", folder.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    Folders::PretendSystem(Folders::SystemVersion{3, 10, 0, 3});
    Settings().sMyGamesDirectory.clear();
    EXPECT_EQ(GetMyGamesDirectory(), Folders::Documents() + QStringLiteral("/My Games"));
    Folders::PretendSystem(std::nullopt);
}

TEST_F(PathTest, FolderThatCantBeMadeIsToldWithItsReason) {
    const QString taken = WriteFile(QStringLiteral("Documents"), "a file");
    try {
        ForceDirToExist(taken + QStringLiteral("/My Games"));
        FAIL();
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), ErrNumber::kPathNotFound);
        EXPECT_EQ(error.Description(), QStringLiteral("The folder '%1' can't be made: a file of that name is in its "
                                                      "place.")
                                           .arg(taken));
    }
}

TEST_F(PathTest, TrimNullEndsAtTheFirstNull) {
    EXPECT_EQ(basGetFolderPath::TrimNull(QStringLiteral("ab\0cd") + QChar(0)), QStringLiteral("ab"));
    EXPECT_EQ(basGetFolderPath::TrimNull(QStringLiteral("ab")), QStringLiteral("ab"));
    EXPECT_EQ(basGetFolderPath::GetFolderPath(99, 0), QString());
}
