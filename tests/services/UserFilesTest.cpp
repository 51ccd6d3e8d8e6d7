// SPDX-License-Identifier: MIT
#include "services/UserFiles.h"

#include "platform/files/Files.h"
#include "services/basErrLog.h"
#include "support/TestFixture.h"

#include <QDir>

namespace {

class UserFilesTest : public TavloraTest {
protected:
    UserFilesTest() : m_before(qgetenv("XDG_DATA_HOME")) { basErrLog::ErrInit(0); }
    ~UserFilesTest() override { qputenv("XDG_DATA_HOME", m_before); }
    // As in the home of a service, which has none.
    void TakeTheTrashAway() {
        qputenv("XDG_DATA_HOME", (WriteFile(QStringLiteral("no folder"), "x") + QStringLiteral("/data")).toLocal8Bit());
    }
    QString Log() const { return QString::fromUtf8(ReadFile(basErrLog::ErrLogPath())); }

private:
    QByteArray m_before;
};

TEST_F(UserFilesTest, AFileGoesToTheTrashAndTheLogSaysSo) {
    const QString file = WriteFile(QStringLiteral("letter.bmp"), "Dear Anna,");
    UserFiles::ThrowAway(file);
    EXPECT_FALSE(Files::Exists(file));
    EXPECT_FALSE(Files::IsDirectory(PathOf(QStringLiteral("Removed"))));
    EXPECT_TRUE(Log().contains(QStringLiteral("letter.bmp' was moved to the trash.")));
}

TEST_F(UserFilesTest, WithoutATrashItIsKeptInMyGamesUnderAFreeName) {
    TakeTheTrashAway();
    for (const char* text : {"one", "two"}) {
        UserFiles::ThrowAway(WriteFile(QStringLiteral("letter.bmp"), text));
        EXPECT_FALSE(Files::Exists(PathOf(QStringLiteral("letter.bmp"))));
    }
    EXPECT_EQ(ReadFile(PathOf(QStringLiteral("Removed/letter.bmp"))), QByteArray("one"));
    EXPECT_EQ(ReadFile(PathOf(QStringLiteral("Removed/letter(1).bmp"))), QByteArray("two"));
    EXPECT_TRUE(
        Log().contains(QStringLiteral("letter.bmp' was moved to '") + PathOf(QStringLiteral("Removed/letter(1).bmp"))));
}

TEST_F(UserFilesTest, WhatCanBeMovedNowhereStays) {
    TakeTheTrashAway();
    const QString file = WriteFile(QStringLiteral("letter.bmp"), "Dear Anna,");
    WriteFile(QStringLiteral("Removed"), "a file in the way");
    UserFiles::ThrowAway(file);
    EXPECT_EQ(ReadFile(file), QByteArray("Dear Anna,"));
    EXPECT_TRUE(Log().contains(QStringLiteral("letter.bmp' stays where it is: ")));
}

} // namespace
