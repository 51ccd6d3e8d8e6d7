// SPDX-License-Identifier: MIT
#include "platform/files/TextFile.h"

#include "support/TestFixture.h"

class TextFileTest : public TavloraTest {};

TEST_F(TextFileTest, EveryByteSurvivesReadingAndWriting) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.append(char(byte));
    EXPECT_EQ(TextFile::Encode(TextFile::Decode(bytes)), bytes);
}

TEST_F(TextFileTest, NamesOfThe8BitCodePageStayInIt) {
    const QString name = QString::fromUtf8("Zoë’s Café – 5 €");
    EXPECT_EQ(TextFile::Encode(name), QByteArray("Zo\xEB\x92s Caf\xE9 \x96 5 \x80"));
    EXPECT_EQ(TextFile::Decode(TextFile::Encode(name)), name);
}

TEST_F(TextFileTest, OtherNamesMakeTheFileUtf8WithItsMark) {
    for (const char* text : {"Łódź", "قلعة", "🎲 Dice", "東京"}) {
        const QString name = QString::fromUtf8(text);
        const QByteArray bytes = TextFile::Encode(name);
        EXPECT_TRUE(bytes.startsWith("\xEF\xBB\xBF")) << text;
        EXPECT_EQ(TextFile::Decode(bytes), name) << text;
    }
}

TEST_F(TextFileTest, BytesThatWouldBeTakenForUtf8AreWrittenAsUtf8) {
    // "Ã©" in the 8-bit code page has the very bytes of "é" in UTF-8.
    const QString odd = QString::fromUtf8("Ã©");
    EXPECT_EQ(TextFile::Decode(TextFile::Encode(odd)), odd);
    EXPECT_EQ(TextFile::Decode("\xC3\xA9"), QString::fromUtf8("é"));
}

TEST_F(TextFileTest, LinesEndWithOrWithoutCarriageReturn) {
    EXPECT_EQ(TextFile::SplitLines(QStringLiteral("a\r\nb\nc")), QStringList({"a", "b", "c"}));
    EXPECT_EQ(TextFile::SplitLines(QStringLiteral("a\r\n\r\n")), QStringList({"a", ""}));
    EXPECT_EQ(TextFile::SplitLines(QString()), QStringList());
    EXPECT_EQ(TextFile::JoinLines({"a", "b"}), QStringLiteral("a\r\nb\r\n"));
}

TEST_F(TextFileTest, AFailedWriteLeavesTheOldFile) {
    const QString path = WriteFile(QStringLiteral("game.gam"), "old\r\n");
    QString error;
    const QString missing = PathOf(QStringLiteral("no such folder/x.gam"));
    EXPECT_FALSE(TextFile::WriteLines(missing, {QStringLiteral("new")}, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_TRUE(TextFile::WriteLines(path, {QStringLiteral("new")}, error));
    EXPECT_EQ(ReadFile(path), QByteArray("new\r\n"));
}
