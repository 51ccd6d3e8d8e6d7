// SPDX-License-Identifier: MIT
#include "platform/files/Files.h"

#include "platform/files/BinaryFile.h"
#include "support/TestFixture.h"

#ifdef Q_OS_UNIX
#include "support/SmallDisk.h"
#endif

#include <QDir>

class FilesTest : public TavloraTest {};

TEST_F(FilesTest, EachOperationCanBeMadeToFailAndLosesNothing) {
    using Files::Operation;
    const QString path = WriteFile(QStringLiteral("keep.txt"), "old");
    for (const Operation operation : {Operation::OpenWrite, Operation::Write, Operation::Commit}) {
        Files::SetFaultHook([=](Operation at, const QString&) -> std::optional<QString> {
            if (at != operation) return std::nullopt;
            return QStringLiteral("No space left on device");
        });
        QString error;
        EXPECT_FALSE(Files::WriteWhole(path, "new", error));
        EXPECT_EQ(error, QStringLiteral("No space left on device"));
        EXPECT_EQ(ReadFile(path), QByteArray("old"));
    }
    Files::SetFaultHook({});
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("keep.txt")});
}

TEST_F(FilesTest, TheExactNameGoesFirstThenTheOnlyOneThatDiffersInCase) {
    WriteFile(QStringLiteral("Photo.JPG"), "1");
    EXPECT_EQ(Files::InDiskSpelling(PathOf(QStringLiteral("photo.jpg"))), PathOf(QStringLiteral("Photo.JPG")));
    WriteFile(QStringLiteral("PHOTO.jpg"), "2");
    EXPECT_EQ(Files::InDiskSpelling(PathOf(QStringLiteral("photo.jpg"))), PathOf(QStringLiteral("photo.jpg")));
    EXPECT_EQ(Files::InDiskSpelling(PathOf(QStringLiteral("PHOTO.jpg"))), PathOf(QStringLiteral("PHOTO.jpg")));
}

TEST_F(FilesTest, AFolderIsNoFileAndSaysSo) {
    QString error;
    EXPECT_FALSE(Files::Exists(folder.path()));
    EXPECT_FALSE(Files::ReadAll(folder.path(), error));
    EXPECT_FALSE(error.isEmpty());
}

TEST_F(FilesTest, AFileFarLargerThanAnyOfOursIsRefusedUnread) {
    const QString path = WriteFile(QStringLiteral("film.bmp"), "BM");
    // A hole: it takes no room on the disk.
    ASSERT_TRUE(QFile::resize(path, Files::kMostBytes + 1));
    QString error;
    EXPECT_FALSE(Files::ReadAll(path, error));
    EXPECT_FALSE(error.isEmpty());
}

#ifdef Q_OS_UNIX
TEST_F(FilesTest, ADiskThatFillsUpInTheMiddleOfAWriteLeavesTheOldFileAndSaysWhy) {
    const QString path = WriteFile(QStringLiteral("keep.txt"), "old");
    QString error;
    bool written = true;
    {
        const SmallDisk disk(100'000);
        written = Files::WriteWhole(path, QByteArray(300'000, 'x'), error);
    }
    EXPECT_FALSE(written);
    EXPECT_FALSE(error.isEmpty() || error.startsWith(QStringLiteral("Unknown"))) << qPrintable(error);
    EXPECT_EQ(ReadFile(path), QByteArray("old"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("keep.txt")});

    // In little pieces, which are gathered first.
    Files::WholeFile file(path);
    ASSERT_TRUE(file.Open(error));
    {
        const SmallDisk disk(100'000);
        written = true;
        for (int i = 0; i < 1000 && written; ++i)
            written = file.Write(QByteArray(300, 'x'), error);
        written = written && file.Commit(error);
    }
    EXPECT_FALSE(written);
    EXPECT_FALSE(error.isEmpty() || error.startsWith(QStringLiteral("Unknown"))) << qPrintable(error);
    EXPECT_EQ(ReadFile(path), QByteArray("old"));
}
#endif

#ifdef Q_OS_UNIX
TEST_F(FilesTest, ABinaryFileTellsWhyItWasNotWritten) {
    BinaryFile file;
    QString error;
    ASSERT_TRUE(file.OpenNew(PathOf(QStringLiteral("rows.bmp")), error));
    {
        const SmallDisk disk(100'000);
        for (int row = 0; row < 1000; ++row)
            file.PutBytes(QByteArray(300, 'x'));
        EXPECT_FALSE(file.WasWritten(error));
    }
    EXPECT_FALSE(error.isEmpty() || error.startsWith(QStringLiteral("Unknown"))) << qPrintable(error);
}
#endif

TEST_F(FilesTest, AWriteThroughALinkReplacesTheFileAndKeepsTheLink) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("elsewhere")));
    const QString file = WriteFile(QStringLiteral("elsewhere/game.gam"), "old");
    const QString link = PathOf(QStringLiteral("game.gam"));
    ASSERT_TRUE(QFile::link(file, link));
    QString error;
    EXPECT_TRUE(Files::WriteWhole(link, "new", error)) << qPrintable(error);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(ReadFile(file), QByteArray("new"));
    EXPECT_TRUE(Files::Remove(link, error));
    EXPECT_EQ(ReadFile(file), QByteArray("new")) << "only the link is removed";
}

TEST_F(FilesTest, TheTrashIsTheUsersAndNeverTheCurrentFolder) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", PathOf(QStringLiteral("not/yet/there")).toLocal8Bit());
    const QString file = WriteFile(QStringLiteral("photo.bmp"), "x");
    QString error;
    EXPECT_TRUE(Files::MoveToTrash(file, error)) << qPrintable(error);
    EXPECT_FALSE(Files::Exists(file));
    EXPECT_TRUE(Files::Exists(PathOf(QStringLiteral("not/yet/there/Trash/files/photo.bmp"))));
    EXPECT_FALSE(Files::Exists(QStringLiteral("files/photo.bmp")));
    qputenv("XDG_DATA_HOME", before);
}

TEST_F(FilesTest, WithoutATrashAFileStays) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", (WriteFile(QStringLiteral("no folder"), "x") + QStringLiteral("/data")).toLocal8Bit());
    const QString file = WriteFile(QStringLiteral("photo.bmp"), "x");
    QString error;
    EXPECT_FALSE(Files::MoveToTrash(file, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(ReadFile(file), QByteArray("x"));
    qputenv("XDG_DATA_HOME", before);
}

TEST_F(FilesTest, OfAFileThatNeverEndsNoMoreIsReadThanItSays) {
    // Of no length by its own account, and as long as the memory that the process could ever have.
    const QString endless = QStringLiteral("/proc/self/pagemap");
    if (!QFile::exists(endless)) GTEST_SKIP() << "no such file here";
    QString error;
    EXPECT_FALSE(Files::ReadAll(endless, error));
    EXPECT_FALSE(error.isEmpty());
    // What is short in the same way is read.
    EXPECT_TRUE(Files::ReadAll(QStringLiteral("/proc/self/stat"), error)) << qPrintable(error);
    EXPECT_FALSE(Files::ReadAll(QStringLiteral("/dev/zero"), error));
}

TEST_F(FilesTest, FilesInMemoryStandInPlaceOfTheDisk) {
    const QString onDisk = WriteFile(QStringLiteral("real.txt"), "disk");
    const QString path = PathOf(QStringLiteral("new.txt"));
    const QString other = PathOf(QStringLiteral("other.txt"));
    Files::MemoryFiles files;
    Files::UseMemory(&files);
    QString error;
    EXPECT_FALSE(Files::Exists(onDisk));
    EXPECT_FALSE(Files::ReadAll(onDisk, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(Files::StampOf(onDisk), Files::Stamp());

    EXPECT_TRUE(Files::WriteWhole(path, "one", error));
    EXPECT_TRUE(Files::Append(path, " two", error));
    EXPECT_EQ(Files::ReadAll(path, error), QByteArray("one two"));
    EXPECT_EQ(Files::Size(path), 7);
    EXPECT_TRUE(Files::Copy(path, other, error));
    EXPECT_FALSE(Files::Rename(path, other, error));
    EXPECT_TRUE(Files::Remove(path, error));
    EXPECT_TRUE(Files::Rename(other, path, error));
    EXPECT_FALSE(Files::Exists(other));
    EXPECT_TRUE(Files::MoveToTrash(path, error));
    EXPECT_TRUE(files.isEmpty());

    Files::UseMemory(nullptr);
    EXPECT_FALSE(Files::Exists(path));
    EXPECT_EQ(Files::ReadAll(onDisk, error), QByteArray("disk"));
}

TEST_F(FilesTest, CopyThatCanBeHadAgainIsWholeWritableAndReplacesNothing) {
    const QString from = WriteFile(QStringLiteral("from"), "content");
    ASSERT_TRUE(QFile::setPermissions(from, QFile::ReadOwner | QFile::ReadOther));
    QString error;
    EXPECT_TRUE(Files::CopyNew(from, PathOf(QStringLiteral("to")), error));
    EXPECT_EQ(ReadFile(PathOf(QStringLiteral("to"))), QByteArray("content"));
    EXPECT_TRUE(QFile::permissions(PathOf(QStringLiteral("to"))).testFlag(QFile::WriteOwner));
    const QString mine = WriteFile(QStringLiteral("mine"), "mine");
    EXPECT_FALSE(Files::CopyNew(from, mine, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(ReadFile(mine), QByteArray("mine"));
    const QString empty = WriteFile(QStringLiteral("empty"), "");
    EXPECT_FALSE(Files::CopyNew(from, empty, error)) << "somebody may just be filling it";
    EXPECT_EQ(ReadFile(empty), QByteArray());
}
