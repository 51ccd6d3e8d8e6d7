// SPDX-License-Identifier: MIT
#include "platform/files/ProfileFile.h"

#include "platform/files/Files.h"
#include "support/TestFixture.h"

class ProfileFileTest : public TavloraTest {
protected:
    const QString sSection = QStringLiteral("tavlora");
};

TEST_F(ProfileFileTest, AValueComesBackAsItWasWritten) {
    const QString path = PathOf(QStringLiteral("tavlora.ini"));
    for (const char* text : {"C:\\new\\quiz\\x.gam", "a=b;c", "Łódź", "4.78x0.78", "\"quoted\""}) {
        ASSERT_TRUE(ProfileFile::Write(path, sSection, QStringLiteral("GameName"), QString::fromUtf8(text)));
        EXPECT_EQ(ProfileFile::Read(path, sSection, QStringLiteral("GAMENAME")), QString::fromUtf8(text));
    }
}

TEST_F(ProfileFileTest, KeepsUnknownKeysAndComments) {
    const QString path =
        WriteFile(QStringLiteral("tavlora.ini"), "[tavlora]\r\n; mine\r\nOther=1\r\nGameName=x\r\n[else]\r\nA=2\r\n");
    ASSERT_TRUE(ProfileFile::Write(path, sSection, QStringLiteral("GameName"), QStringLiteral("y")));
    const QByteArray bytes = ReadFile(path);
    EXPECT_TRUE(bytes.contains("; mine")) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("Other=1")) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("GameName=y")) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("[else]")) << bytes.toStdString();
}

TEST_F(ProfileFileTest, AMissingFileSectionOrKeyReadsAsEmpty) {
    EXPECT_EQ(ProfileFile::Read(PathOf(QStringLiteral("none.ini")), sSection, QStringLiteral("A")), QString());
    const QString path = WriteFile(QStringLiteral("tavlora.ini"), "[other]\r\nA=1\r\n");
    EXPECT_EQ(ProfileFile::Read(path, sSection, QStringLiteral("A")), QString());
    EXPECT_EQ(ProfileFile::Read(path, QStringLiteral("other"), QStringLiteral("B")), QString());
}

TEST_F(ProfileFileTest, ALongValueIsReadUpTo2048Characters) {
    const QString path = PathOf(QStringLiteral("tavlora.ini"));
    ASSERT_TRUE(ProfileFile::Write(path, sSection, QStringLiteral("A"), QString(3000, u'x')));
    EXPECT_EQ(ProfileFile::Read(path, sSection, QStringLiteral("A")).size(), 2048);
}

TEST_F(ProfileFileTest, AValueCannotSmuggleInASection) {
    const QString path = PathOf(QStringLiteral("tavlora.ini"));
    ASSERT_TRUE(ProfileFile::Write(path, sSection, QStringLiteral("A"), QStringLiteral("x\r\n[evil]\r\nB=1")));
    EXPECT_EQ(ProfileFile::Read(path, QStringLiteral("evil"), QStringLiteral("B")), QString());
}

TEST_F(ProfileFileTest, SettingsThatCannotBeReadAreNotReplacedByTheOneThatIsWritten) {
    const QByteArray old = "[tavlora]\r\nGameName=C:\\mine.gam\r\n";
    const QString path = WriteFile(QStringLiteral("tavlora.ini"), old);
    Files::SetFaultHook([](Files::Operation operation, const QString&) -> std::optional<QString> {
        if (operation == Files::Operation::Read) return QStringLiteral("Input/output error");
        return std::nullopt;
    });
    EXPECT_FALSE(ProfileFile::Write(path, sSection, QStringLiteral("ShowSplash"), QStringLiteral("False")));
    Files::SetFaultHook({});
    EXPECT_EQ(ReadFile(path), old);
}

TEST_F(ProfileFileTest, WritesThatWaitForEachOtherAreOneAndAreReadBackAtOnce) {
    const QString path = PathOf(QStringLiteral("a.ini"));
    const QString other = PathOf(QStringLiteral("b.ini"));
    ASSERT_TRUE(ProfileFile::Write(path, sSection, QStringLiteral("before"), QStringLiteral("0")));
    int commits = 0;
    Files::SetFaultHook([&](Files::Operation operation, const QString&) {
        commits += operation == Files::Operation::Commit ? 1 : 0;
        return std::optional<QString>();
    });
    {
        const ProfileFile::Together together;
        for (const char* key : {"one", "two", "three"})
            EXPECT_TRUE(ProfileFile::Write(path, sSection, QString::fromLatin1(key), QString::fromLatin1(key)));
        EXPECT_EQ(commits, 0);
        EXPECT_EQ(ProfileFile::Read(path, sSection, QStringLiteral("two")), QStringLiteral("two"));
        EXPECT_EQ(ProfileFile::Read(path, sSection, QStringLiteral("before")), QStringLiteral("0"));
        EXPECT_EQ(ProfileFile::Read(other, sSection, QStringLiteral("two")), QString());
    }
    EXPECT_EQ(commits, 1);
    {
        const ProfileFile::Together together;
        ProfileFile::Write(path, sSection, QStringLiteral("four"), QStringLiteral("4"));
        ProfileFile::Write(other, sSection, QStringLiteral("five"), QStringLiteral("5"));
    }
    Files::SetFaultHook({});
    EXPECT_EQ(commits, 3) << "one more for each file";
    for (const char* key : {"one", "two", "three"})
        EXPECT_EQ(ProfileFile::Read(path, sSection, QString::fromLatin1(key)), QString::fromLatin1(key));
    EXPECT_EQ(ProfileFile::Read(path, sSection, QStringLiteral("four")), QStringLiteral("4"));
    EXPECT_EQ(ProfileFile::Read(other, sSection, QStringLiteral("five")), QStringLiteral("5"));
}
