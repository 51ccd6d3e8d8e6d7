// SPDX-License-Identifier: MIT
// What a game that somebody made large costs the program that opens and paints it, as a process of its own.
#include "platform/files/TextFile.h"
#include "tools/PrintCommandFixture.h"

#ifdef Q_OS_LINUX
namespace {

class PrintMemoryTest : public PrintCommandTest {
protected:
    /// Paints the board of a game that begins so and goes on with the same, with no more than so much memory to be
    /// had; gives the program's status, or -1 where it crashed.
    int Paint(int mostMegabytes, const QByteArray& start, const QByteArray& piece = "x", int megabytes = 0) {
        QFile large(InGames(QStringLiteral("Large.gam")));
        EXPECT_TRUE(large.open(QIODevice::WriteOnly));
        large.write(start);
        const QByteArray megabyte = piece.repeated((1 << 20) / int(piece.size()));
        for (int i = 0; i < megabytes; ++i)
            large.write(megabyte);
        large.close();
        QProcess program;
        program.start(QStringLiteral("sh"),
                      {QStringLiteral("-c"), QStringLiteral("ulimit -d \"$0\" && exec \"$@\""),
                       QString::number(mostMegabytes * 1024), QStringLiteral(TAVLORA_BIN_DIR "/tavlora-print"),
                       large.fileName(), QStringLiteral("--board"), PathOf(QStringLiteral("out/board.png")),
                       QStringLiteral("--data"), kData});
        EXPECT_TRUE(program.waitForFinished(60'000));
        errors = QString::fromUtf8(program.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    bool IsTold(const char* words) const { return errors.join(u'\n').contains(QString::fromLatin1(words)); }
};

TEST_F(PrintMemoryTest, ALargeGameTakesLessThanThreeHundredMegabytes) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the checks need more of their own";
#endif
    constexpr int kMost = 300;
    constexpr int kTooLittle = 60;
    constexpr int kSixty = 60;
    const QByteArray header = "\"TavloraGameBoard\", 8.0.0, \r\n";
    for (const char* piece : {"x", "\"\\n\",", "\r\n", "\"a\", "}) {
        EXPECT_EQ(Paint(kMost, header, piece, kSixty), 1) << piece;
        EXPECT_TRUE(IsTold("The problem occurred while getting")) << piece << errors.join(u'\n').toStdString();
    }
    const QByteArray plain = TextFile::JoinLines(PlainLines()).toUtf8();
    const qsizetype inTitle = plain.indexOf("\"Our\"") + 1;
    ASSERT_GT(inTitle, 1);
    EXPECT_EQ(Paint(kMost, plain.left(inTitle) + QByteArray(10 << 20, 'x') + plain.mid(inTitle)), 0)
        << errors.join(u'\n').toStdString();
    Paint(kTooLittle, header, "x", kSixty);
    EXPECT_FALSE(IsTold("The problem occurred while getting")) << "memory is bounded at all";
}

} // namespace
#endif
