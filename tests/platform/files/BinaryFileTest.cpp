// SPDX-License-Identifier: MIT
#include "platform/files/BinaryFile.h"

#include "platform/files/Files.h"
#include "support/TestFixture.h"

#include <QDir>

namespace {

class BinaryFileTest : public TavloraTest {
protected:
    // Whether the disk tells names apart that differ in case only.
    bool TellsCaseApart() {
        WriteFile(QStringLiteral("probe"), "x");
        return !Files::Exists(PathOf(QStringLiteral("PROBE")));
    }
    QString error;
};

TEST_F(BinaryFileTest, WhatIsWrittenBearsExactlyTheNameGiven) {
    if (!TellsCaseApart()) GTEST_SKIP() << "this disk knows one spelling only";
    for (const char* users : {"token1.bmp", "TOKEN1.BMP", "tOkEn1.bMp"}) {
        const QString theirs = WriteFile(QString::fromLatin1(users), "a photograph of a dog");
        for (const bool anew : {true, false}) {
            BinaryFile file;
            const QString ours = PathOf(QStringLiteral("Token1.bmp"));
            ASSERT_TRUE(anew ? file.OpenNew(ours, error) : file.OpenForWriting(ours, error));
            file.PutBytes("BM");
            EXPECT_TRUE(file.WasWritten(error));
            file.Close();
            EXPECT_EQ(ReadFile(theirs), QByteArray("a photograph of a dog")) << users;
            EXPECT_EQ(ReadFile(ours), QByteArray("BM")) << users;
            QFile::remove(ours);
        }
        QFile::remove(theirs);
    }
}

TEST_F(BinaryFileTest, AFileIsFoundForReadingInTheSpellingOfTheDisk) {
    WriteFile(QStringLiteral("Art.BMP"), "BM");
    BinaryFile file;
    ASSERT_TRUE(file.OpenForReading(PathOf(QStringLiteral("art.bmp")), error));
    EXPECT_EQ(file.U16(), 0x4D42);
    EXPECT_TRUE(file.WasRead(error));
    EXPECT_EQ(file.U32(), 0U) << "behind the end";
    EXPECT_TRUE(file.WasRead(error)) << "the end is no error";
}

TEST_F(BinaryFileTest, WhatTheDiskCannotReadIsNoZero) {
    const QString path = WriteFile(QStringLiteral("art.bmp"), "BM and more");
    BinaryFile file;
    ASSERT_TRUE(file.OpenForReading(path, error));
    EXPECT_EQ(file.U16(), 0x4D42);
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Read) return QStringLiteral("Input/output error");
        return {};
    });
    EXPECT_EQ(file.U32(), 0U);
    EXPECT_FALSE(file.WasRead(error));
    EXPECT_EQ(error, QStringLiteral("Input/output error"));
    Files::SetFaultHook({});
    EXPECT_EQ(file.U32(), 0U) << "nothing is left behind an error";
    ASSERT_TRUE(file.OpenForReading(path, error));
    EXPECT_TRUE(file.WasRead(error));
}

TEST_F(BinaryFileTest, DevicesAndFoldersAreNeverOpened) {
    BinaryFile file;
    EXPECT_FALSE(file.OpenForReading(folder.path(), error));
    const QString device = QStringLiteral("/dev/zero");
    if (!QFile::exists(device)) GTEST_SKIP() << "no such device here";
    EXPECT_FALSE(file.OpenForReading(device, error));
    EXPECT_EQ(error, QStringLiteral("It is no regular file"));
    EXPECT_FALSE(file.OpenForWriting(device, error));
}

} // namespace
