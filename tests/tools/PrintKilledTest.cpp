// SPDX-License-Identifier: MIT
// tavlora-print is ended, as by a power cut, at every change that it makes on the disk.
#include "support/EndAtOperation.h"
#include "support/PictureFiles.h"
#include "tools/PrintCommandFixture.h"

#include <iostream>

namespace {

class PrintKilledTest : public PrintCommandTest {
protected:
    PrintKilledTest() { QDir(folder.path()).mkdir(QStringLiteral("tmp")); }
    /// The status of a run that ends at a change, counted from 0.
    int RunUntil(int end, const QStringList& words) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), PathOf(QStringLiteral("tmp")));
        environment.insert(QString::fromLatin1(EndAtOperation::kVariable), QString::number(end));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(TAVLORA_BIN_DIR "/ended_print"), words);
        EXPECT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        return program.exitCode();
    }
    QStringList InTmp() const {
        return QDir(PathOf(QStringLiteral("tmp"))).entryList({QStringLiteral("tavlora*")}, QDir::AllEntries);
    }
    QString GameWithPictures() {
        QStringList lines = PlainLines();
        const QImage image = PictureFiles::Quarters(60, 40);
        WriteFile(QStringLiteral("games/Space5.bmp"), PictureFiles::Bmp(image));
        WriteFile(QStringLiteral("games/Token0.bmp"), PictureFiles::Bmp(image.mirrored()));
        WriteFile(QStringLiteral("games/a.png"), PictureFiles::Encoded(image, "PNG"));
        const QStringList names{QStringLiteral("Space5.bmp"), QStringLiteral("Token0.bmp"), QStringLiteral("a.png")};
        for (qsizetype i = 3; i < lines.size(); ++i)
            lines[i].replace(QStringLiteral("\"\", 0, 0, 0"),
                             QStringLiteral("\"%1\", 320, 320, 0").arg(names[i % names.size()]));
        return WriteGame(lines);
    }
    /// The number of ends.
    int EndAtEachChange(const QStringList& words, const QString& made, const QByteArray& start,
                        const QByteArray& last) {
        const QByteArray old = "what was printed before";
        const auto games = Content(QStringLiteral("games"));
        int status = EndAtOperation::kStatus;
        int end = 0;
        for (; status == EndAtOperation::kStatus && !HasFailure(); ++end) {
            WriteFile(QStringLiteral("out/") + made, old);
            status = RunUntil(end, words);
            const QByteArray now = ReadFile(PathOf(QStringLiteral("out/") + made));
            EXPECT_TRUE(now == old || (now.startsWith(start) && now.trimmed().endsWith(last))) << "at change " << end;
            EXPECT_EQ(Content(QStringLiteral("games")), games) << "at change " << end;
        }
        EXPECT_EQ(status, 0);
        EXPECT_NE(ReadFile(PathOf(QStringLiteral("out/") + made)), old);
        EXPECT_EQ(InTmp(), QStringList()) << "what the ended ones have left is cleared away";
        EXPECT_EQ(OutFolder(), QStringList{made});
        std::cout << "[ MATRIX   ] " << end - 1 << " ends\n";
        return end - 1;
    }
};

TEST_F(PrintKilledTest, ASheetIsWholeOrTheOldOneStays) {
    const QString withPictures = GameWithPictures();
    for (const char* sheet : {"box", "west", "deeds1"}) {
        EXPECT_GT(
            EndAtEachChange({withPictures, QStringLiteral("--sheet"), QString::fromLatin1(sheet), QStringLiteral("-o"),
                             PathOf(QStringLiteral("out/sheet.pdf")), QStringLiteral("--data"), kData},
                            QStringLiteral("sheet.pdf"), "%PDF-", "%%EOF"),
            20)
            << sheet;
    }
}

TEST_F(PrintKilledTest, AndSoIsAPictureOfTheBoard) {
    const QString withPictures = GameWithPictures();
    EXPECT_GT(EndAtEachChange({withPictures, QStringLiteral("--board"), PathOf(QStringLiteral("out/board.png")),
                               QStringLiteral("--data"), kData},
                              QStringLiteral("board.png"), "\x89PNG", "IEND\xAE\x42\x60\x82"),
              5);
}

} // namespace
