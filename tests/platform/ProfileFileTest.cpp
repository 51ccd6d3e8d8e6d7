// SPDX-License-Identifier: MIT
#include "platform/ProfileFile.h"

#include "platform/Files.h"
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
