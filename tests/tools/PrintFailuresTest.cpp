// SPDX-License-Identifier: MIT
// A disk that refuses any single operation of a print, or all from there on: a printed file is whole or the one of
// before, nothing is called done that isn't, and no file of the family's changes.
#include "support/PictureFiles.h"
#include "support/RefusedInTurn.h"
#include "tools/PrintCommandFixture.h"

#include <QImage>

#include <algorithm>
#include <iostream>

namespace {

class PrintFailuresTest : public PrintCommandTest {
protected:
    PrintFailuresTest() {
        QStringList lines = PlainLines();
        for (int i = 0; i < 3; ++i) {
            const QString name = QStringLiteral("Space%1.bmp").arg(i);
            WriteFile(QStringLiteral("games/") + name,
                      PictureFiles::Encoded(PictureFiles::Quarters(60 + i, 60), i == 1 ? "png" : "bmp"));
            lines[3 + i] = QStringLiteral("%1, \"t\", \"%2\",0,0,0, \"Arial\",R,12").arg(i).arg(name);
        }
        game = WriteGame(lines);
        theirs = Content(QStringLiteral("games"));
    }
    static bool IsWholePdf(const QByteArray& bytes) {
        return bytes.startsWith("%PDF-") && bytes.trimmed().endsWith("%%EOF");
    }

    QMap<QString, QByteArray> theirs;
};

TEST_F(PrintFailuresTest, ASheetIsWholeOrTheOneOfBefore) {
    ASSERT_EQ(PrintRules(game), 0);
    const QByteArray before = "%PDF-1.4 of last Christmas";
    int status = 0;
    int failed = 0;
    const auto print = [&] {
        WriteFile(QStringLiteral("out/sheet.pdf"), before);
        status = PrintRules(game);
    };
    const int runs = RefusedInTurn::Run(print, [&](const RefusedInTurn::Case& now) {
        const QByteArray after = ReadFile(pdf);
        EXPECT_TRUE(after == before || IsWholePdf(after)) << now.Told() << ": " << after.size() << " bytes";
        if (status == 0) {
            EXPECT_NE(after, before) << "called done: " << now.Told();
        } else {
            ++failed;
            EXPECT_FALSE(errors.isEmpty()) << now.Told();
        }
        EXPECT_EQ(Content(QStringLiteral("games")), theirs) << now.Told();
        EXPECT_EQ(OutFolder(), QStringList{QStringLiteral("sheet.pdf")}) << now.Told();
    });
    std::cout << "[ MATRIX   ] " << runs << " failures injected, " << failed << " prints refused\n";
    EXPECT_GT(runs, 30);
    EXPECT_GT(failed, 0);
}

TEST_F(PrintFailuresTest, ABoardComesThoughNoThumbnailCanBeKept) {
    const QString path = PathOf(QStringLiteral("out/board.png"));
    const QStringList words{game, QStringLiteral("--board"), path, QStringLiteral("--size"), QStringLiteral("300")};
    ASSERT_EQ(Run(words), 0);
    const QImage whole(path);
    int status = 0;
    int withoutThumbnails = 0;
    const auto paint = [&] {
        QFile::remove(path);
        status = Run(words);
    };
    const int runs = RefusedInTurn::Run(paint, [&](const RefusedInTurn::Case& now) {
        // What the program only makes for itself.
        const bool working = std::all_of(now.paths.begin(), now.paths.end(), [](const QString& refused) {
            return refused.endsWith(QStringLiteral(".bmp")) || refused.endsWith(QStringLiteral(".log"));
        });
        if (working && !now.bReadsToo) {
            ++withoutThumbnails;
            EXPECT_EQ(status, 0) << now.Told() << '\n' << errors.join(u'\n').toStdString();
            EXPECT_EQ(QImage(path), whole) << now.Told();
        }
        EXPECT_EQ(status == 0, QFile::exists(path)) << now.Told();
        EXPECT_EQ(Content(QStringLiteral("games")), theirs) << now.Told();
    });
    std::cout << "[ MATRIX   ] " << runs << " failures injected\n";
    EXPECT_GT(runs, 30);
    EXPECT_GT(withoutThumbnails, 5);
}

} // namespace
