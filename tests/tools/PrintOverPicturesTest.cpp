// SPDX-License-Identifier: MIT
// What tavlora-print is asked for never takes the place of a picture that the game shows.
#include "support/PictureFiles.h"
#include "tools/PrintCommandFixture.h"

namespace {

class PrintOverPicturesTest : public PrintCommandTest {
protected:
    PrintOverPicturesTest() {
        QStringList lines = PlainLines();
        const QStringList names{QStringLiteral("dog.png"), QStringLiteral("rules.png"), QStringLiteral("board.png"),
                                QStringLiteral("MoneyImage2.png")};
        for (int i = 0; i < int(names.size()); ++i) {
            WriteFile(QStringLiteral("games/") + names[i],
                      PictureFiles::Encoded(PictureFiles::Quarters(40, 40 + i), "png"));
            lines[3 + i] = QStringLiteral("%1, \"t\", \"%2\",0,0,0, \"Arial\",R,12").arg(i).arg(names[i]);
        }
        game = WriteGame(lines);
    }
    void ExpectRefused(const QStringList& words, const QString& sNamed) {
        const QMap<QString, QByteArray> before = Content(QStringLiteral("games"));
        EXPECT_EQ(Run(QStringList{game} + words), 2) << words.join(u' ').toStdString();
        EXPECT_EQ(errors, QStringList{QStringLiteral("tavlora-print: '%1' is a picture of the game and would be "
                                                     "overwritten")
                                          .arg(sNamed)});
        EXPECT_EQ(Content(QStringLiteral("games")), before) << words.join(u' ').toStdString();
    }
    QString Games() const { return PathOf(QStringLiteral("games")); }
};

TEST_F(PrintOverPicturesTest, ASingleFileIsRefused) {
    const QString dog = InGames(QStringLiteral("dog.png"));
    ExpectRefused({QStringLiteral("--board"), dog}, dog);
    ExpectRefused({QStringLiteral("-o"), dog, QStringLiteral("--sheet"), QStringLiteral("rules")}, dog);
    ExpectRefused({QStringLiteral("--pack"), dog}, dog);
    const QString link = PathOf(QStringLiteral("out/link.png"));
    ASSERT_TRUE(QFile::link(dog, link));
    ExpectRefused({QStringLiteral("--board"), link}, link);
}

TEST_F(PrintOverPicturesTest, AFolderThatHoldsOneOfThatNameIsRefused) {
    ExpectRefused({QStringLiteral("--pages"), Games()}, InGames(QStringLiteral("rules.png")));
    ExpectRefused({QStringLiteral("--pieces"), Games()}, InGames(QStringLiteral("MoneyImage2.png")));
    EXPECT_EQ(Run({game, QStringLiteral("--pages"), Games(), QStringLiteral("--sheet"), QStringLiteral("good")}), 0)
        << "of another name: " << errors.join(u'\n').toStdString();
}

TEST_F(PrintOverPicturesTest, PicturesForAServiceAreRefusedToo) {
    const QByteArray before = ReadFile(InGames(QStringLiteral("board.png")));
    EXPECT_EQ(Run({game, QStringLiteral("--service"), Games()}), 1);
    ASSERT_FALSE(errors.isEmpty());
    EXPECT_EQ(errors.last(), QStringLiteral("tavlora-print: '%1' could not be written: 'board.png' is a picture of the "
                                            "game and would be overwritten")
                                 .arg(Games()));
    EXPECT_EQ(ReadFile(InGames(QStringLiteral("board.png"))), before);
}

TEST_F(PrintOverPicturesTest, APictureThatTheGameDoesNotShowIsReplacedAsEver) {
    const QString cat = WriteFile(QStringLiteral("games/cat.png"), "an older board");
    EXPECT_EQ(Run({game, QStringLiteral("--board"), cat}), 0) << errors.join(u'\n').toStdString();
    EXPECT_FALSE(QImage(cat).isNull());
}

} // namespace
