// SPDX-License-Identifier: MIT
// The short-lived files beside those that are saved: never in anybody's way, never left for long.
#include "platform/files/Console.h"
#include "platform/files/Files.h"
#include "platform/files/Temporaries.h"
#include "support/OrdinaryUser.h"
#include "support/TestFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

class SaveFileTest : public TavloraTest {
protected:
    QStringList Names() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
#ifdef Q_OS_UNIX
    /// What a program leaves that is killed in the middle of a save.
    void BeKilledAmidASave() const {
        const pid_t child = fork();
        if (child == 0) {
            QString error;
            Files::WholeFile file(PathOf(QStringLiteral("Work.gam")));
            const bool written = file.Open(error) && file.Write("half", error);
            std::_Exit(written ? 0 : 1);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
#endif
};

// The name of a file may have 255 bytes on nearly every disk; 85 Chinese letters are as long.
TEST_F(SaveFileTest, LongestNameThatTheDiskTakesIsSaved) {
    const QString longest = PathOf(QString(251, u'x') + QStringLiteral(".gam"));
    QString error;
    for (const char* content : {"first", "second"}) {
        EXPECT_TRUE(Files::WriteWhole(longest, content, error)) << error.toStdString();
        EXPECT_EQ(ReadFile(longest), QByteArray(content));
    }
    EXPECT_EQ(Names().size(), 1);
}

TEST_F(SaveFileTest, NameThatTheDiskDoesNotTakeIsRefusedBeforeAnythingIsWritten) {
    Files::WholeFile file(PathOf(QString(252, u'x') + QStringLiteral(".gam")));
    QString error;
    EXPECT_FALSE(file.Open(error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(SaveFileTest, RightsOfTheOldFileStayAndAFileThatMayNotBeChangedStands) {
    const QString path = WriteFile(QStringLiteral("Work.gam"), "old");
    const auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser | QFile::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(path, rights));
    QString error;
    EXPECT_TRUE(Files::WriteWhole(path, "new", error));
    EXPECT_EQ(QFile::permissions(path), rights);
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser));
    const OrdinaryUser user({folder.path(), path});
    ASSERT_TRUE(user.IsIt());
    EXPECT_FALSE(Files::WriteWhole(path, "newer", error));
    EXPECT_EQ(ReadFile(path), QByteArray("new"));
}

#ifdef Q_OS_UNIX
TEST_F(SaveFileTest, WhatAKilledProgramLeftIsClearedAwayAndNothingElse) {
    BeKilledAmidASave();
    ASSERT_EQ(Names().size(), 1);
    const QString left = Names().constFirst();
    EXPECT_TRUE(left.startsWith(u'.')) << left.toStdString();
    // Of another computer, of a person, and of the toolkit, whose names a person may give too.
    QString foreign = left;
    foreign.replace(9, 8, QStringLiteral("01234567"));
    QStringList others = {foreign,
                          left + u'0',
                          left.left(left.size() - 1),
                          QStringLiteral(".tavlora-mine"),
                          QStringLiteral("Work.gam.backup"),
                          QStringLiteral("Work.gam.aBcDeF")};
    for (const QString& name : others)
        WriteFile(name, "mine");
    Temporaries::ClearLeftovers(folder.path());
    others.sort();
    QStringList names = Names();
    names.sort();
    EXPECT_EQ(names, others);
}

TEST_F(SaveFileTest, FirstSaveInAFolderClearsItUp) {
    BeKilledAmidASave();
    QString error;
    EXPECT_TRUE(Files::WriteWhole(PathOf(QStringLiteral("Work.gam")), "whole", error));
    EXPECT_EQ(Names(), QStringList{QStringLiteral("Work.gam")});
}

TEST_F(SaveFileTest, WhatALivingProgramIsWritingStays) {
    Files::WholeFile file(PathOf(QStringLiteral("Work.gam")));
    QString error;
    ASSERT_TRUE(file.Open(error) && file.Write("whole", error));
    ASSERT_EQ(Names().size(), 1);
    Temporaries::ClearLeftovers(folder.path());
    EXPECT_EQ(Names().size(), 1);
    EXPECT_TRUE(file.Commit(error)) << error.toStdString();
    EXPECT_EQ(ReadFile(PathOf(QStringLiteral("Work.gam"))), QByteArray("whole"));
}

TEST_F(SaveFileTest, FolderOfAKilledRunGoesWithTheNextOne) {
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", folder.path().toLocal8Bit());
    const TemporaryFolder living;
    const pid_t child = fork();
    if (child == 0) {
        const TemporaryFolder killed;
        QFile(killed.Path() + QStringLiteral("/page.bmp")).open(QIODevice::WriteOnly);
        std::_Exit(killed.Path().isEmpty() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Names().size(), 2);
    {
        const TemporaryFolder next;
        EXPECT_EQ(Names().size(), 2);
        EXPECT_TRUE(QDir(living.Path()).exists());
        EXPECT_TRUE(QDir(next.Path()).exists());
    }
    EXPECT_EQ(Names(), QStringList{QFileInfo(living.Path()).fileName()});
    qputenv("TMPDIR", before);
}
#endif

} // namespace
