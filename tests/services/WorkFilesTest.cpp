// SPDX-License-Identifier: MIT
#include "services/WorkFiles.h"

#include "platform/files/Files.h"
#include "services/ProgramSettings.h"
#include "services/TavloraError.h"
#include "support/TestFixture.h"

#include <QDir>
#include <QFile>

namespace {

class WorkFilesTest : public TavloraTest {};

TEST_F(WorkFilesTest, LieInAFolderOfTheirOwnThatOnlyTheUserEnters) {
    const QString path = WorkFiles::PathOf(QStringLiteral("TempImage.bmp"));
    const QFileInfo own(QFileInfo(path).path());
    EXPECT_EQ(QFileInfo(path).fileName(), QStringLiteral("TempImage.bmp"));
    EXPECT_TRUE(own.isDir());
    EXPECT_NE(own.filePath(), folder.path());
    EXPECT_FALSE(own.permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther | QFile::WriteOther));
    EXPECT_EQ(WorkFiles::PathOf(QStringLiteral("TempImage.bmp")), path) << "the same for the whole run";
}

TEST_F(WorkFilesTest, AFolderThatWasClearedAwayIsMadeAnew) {
    const QString path = WorkFiles::PathOf(QStringLiteral("a"));
    ASSERT_TRUE(QDir(QFileInfo(path).path()).removeRecursively());
    const QString again = WorkFiles::PathOf(QStringLiteral("a"));
    EXPECT_TRUE(QFileInfo(again).dir().exists());
}

TEST_F(WorkFilesTest, LieBesideTheGamesWhereTheSystemHasNoRoom) {
    qputenv("TMPDIR", PathOf(QStringLiteral("gone")).toLocal8Bit());
    const QString beside = WorkFiles::PathOf(QStringLiteral("a"));
    EXPECT_EQ(QFileInfo(QFileInfo(beside).path()).path(), folder.path());
    Settings().sWorkDirectory.clear();
    Settings().sMyGamesDirectory = PathOf(QStringLiteral("gone too"));
    EXPECT_THROW(WorkFiles::PathOf(QStringLiteral("a")), TavloraError);
    qunsetenv("TMPDIR");
}

} // namespace
