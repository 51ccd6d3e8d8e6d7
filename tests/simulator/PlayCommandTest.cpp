// SPDX-License-Identifier: MIT
#include "simulator/PlayCommand.h"

#include "simulator/PlayArguments.h"
#include "support/ManPage.h"
#include "support/TestFixture.h"

#include <QDir>
#include <QXmlStreamReader>

#include <sstream>

namespace {

class PlayCommandTest : public TavloraTest {
protected:
    int Run(const QStringList& words) {
        std::ostringstream outStream;
        std::ostringstream errStream;
        const int status = PlayCommand(outStream, errStream, false).Run(words);
        out = QString::fromStdString(outStream.str());
        errors = QString::fromStdString(errStream.str());
        return status;
    }
    // A quick run over the shipped data.
    int Play(const QStringList& more) {
        return Run(QStringList{QStringLiteral("--games"), QStringLiteral("60"), QStringLiteral("--data"),
                               QStringLiteral(TAVLORA_DATA_DIR)} +
                   more);
    }

    QString out;
    QString errors;
};

TEST_F(PlayCommandTest, ReportTellsTheSeedAndAllTablesOfBothKits) {
    ASSERT_EQ(Play({QStringLiteral("--seed=17")}), PlayCommand::kDone) << errors.toStdString();
    EXPECT_EQ(errors, QString());
    EXPECT_EQ(out.count(QStringLiteral("60 games for each number of players, seed 17,")), 2);
    for (const char* words :
         {"## Kit \"8\": Rents_US.dat", "## Kit \"5\": older/Rents_US.dat", "### How long a game lasts", "### Who wins",
          "### The groups", "### Lotto and money", "| Players | seat 1 | seat 2 | seat 3 | seat 4 | seat 5 | seat 6 |",
          "| Chestnut Street to Elder Street |", "| Pump House, Power Plant |", "\n| 6 |"})
        EXPECT_TRUE(out.contains(QString::fromLatin1(words))) << words;
    EXPECT_FALSE(out.contains(QStringLiteral(".svg")));
}

TEST_F(PlayCommandTest, SameSeedGivesTheSameReportOnAnyNumberOfThreads) {
    ASSERT_EQ(Play({QStringLiteral("--threads"), QStringLiteral("1")}), 0);
    const QString first = out;
    ASSERT_EQ(Play({QStringLiteral("--threads"), QStringLiteral("5")}), 0);
    EXPECT_EQ(out, first);
    ASSERT_EQ(Play({QStringLiteral("--seed"), QStringLiteral("2")}), 0);
    EXPECT_NE(out, first);
}

TEST_F(PlayCommandTest, OneKitAndOneNumberOfPlayersCanBeAskedFor) {
    ASSERT_EQ(
        Play({QStringLiteral("--variant"), QStringLiteral("2A"), QStringLiteral("--players"), QStringLiteral("3")}), 0);
    EXPECT_TRUE(out.contains(QStringLiteral("## Kit \"2A\": older/Rents_US.dat")));
    EXPECT_FALSE(out.contains(QStringLiteral("Kit \"8\"")));
    EXPECT_TRUE(out.contains(QStringLiteral("\n| 3 |")));
    EXPECT_FALSE(out.contains(QStringLiteral("\n| 4 |")));
}

TEST_F(PlayCommandTest, ReportWithPicturesIsWrittenIntoAFolder) {
    const QString report = PathOf(QStringLiteral("report"));
    ASSERT_EQ(Play({QStringLiteral("--report"), report}), PlayCommand::kDone) << errors.toStdString();
    EXPECT_EQ(out, QString());
    const QString text = QString::fromUtf8(ReadFile(report + QStringLiteral("/economy.md")));
    const QStringList pictures = QDir(report + QStringLiteral("/economy")).entryList(QDir::Files);
    EXPECT_EQ(pictures.size(), 2 * 4);
    for (const QString& picture : pictures) {
        EXPECT_TRUE(text.contains(QStringLiteral("](economy/") + picture + u')')) << picture.toStdString();
        QXmlStreamReader svg(ReadFile(report + QStringLiteral("/economy/") + picture));
        while (!svg.atEnd())
            svg.readNext();
        EXPECT_FALSE(svg.hasError()) << picture.toStdString() << ": " << svg.errorString().toStdString();
    }
}

TEST_F(PlayCommandTest, CardsOfAnotherGameCanBeDrawn) {
    ASSERT_EQ(Play({}), 0);
    const QString first = out;
    ASSERT_EQ(Play({QStringLiteral("--game"), QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam")}), 0)
        << errors.toStdString();
    EXPECT_NE(out, first);
}

TEST_F(PlayCommandTest, WhatCannotBeReadOrWrittenIsTold) {
    EXPECT_EQ(Run({QStringLiteral("--data"), PathOf(QStringLiteral("nowhere"))}), PlayCommand::kFailed);
    EXPECT_TRUE(errors.startsWith(QStringLiteral("tavlora-play: '"))) << errors.toStdString();
    EXPECT_TRUE(errors.contains(QStringLiteral("nowhere/Rents_US.dat' can't be read: "))) << errors.toStdString();
    const QString inTheWay = WriteFile(QStringLiteral("file"), "x");
    EXPECT_EQ(Play({QStringLiteral("--report"), inTheWay}), PlayCommand::kFailed);
    EXPECT_TRUE(errors.startsWith(QStringLiteral("tavlora-play: the report can't be written to '%1': ").arg(inTheWay)))
        << errors.toStdString();
    EXPECT_EQ(ReadFile(inTheWay), "x");
}

TEST_F(PlayCommandTest, WrongUsageIsToldInASentence) {
    const struct {
        QStringList words;
        const char* error;
    } rows[] = {
        {{QStringLiteral("Game.gam")}, "unexpected argument 'Game.gam'"},
        {{QStringLiteral("--fast")}, "unknown option '--fast'"},
        {{QStringLiteral("--players"), QStringLiteral("7")},
         "option '--players' takes a whole number from 2 to 6, not '7'"},
        {{QStringLiteral("--games=many")}, "option '--games' takes a whole number from 1 to 100000000, not 'many'"},
        {{QStringLiteral("--seed")}, "option '--seed' needs a value"},
        {{QStringLiteral("--help=me")}, "option '--help' takes no value"},
        {{QStringLiteral("--variant"), QStringLiteral("9")}, "option '--variant' takes one of 8, 5, 2A, 2, not '9'"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Run(row.words), PlayCommand::kWrongUsage);
        EXPECT_EQ(errors, QStringLiteral("tavlora-play: %1; see --help\n").arg(QString::fromLatin1(row.error)));
    }
}

TEST_F(PlayCommandTest, ManPageTellsEveryArgumentAndNoOther) {
    EXPECT_EQ(ManPage::OptionsOf("tavlora-play.1"), ManPage::OptionsIn(PlayArguments::Usage()));
}

TEST_F(PlayCommandTest, HelpAndVersion) {
    EXPECT_EQ(Run({QStringLiteral("--help")}), 0);
    EXPECT_EQ(out, PlayArguments::Usage());
    EXPECT_EQ(Run({QStringLiteral("--version")}), 0);
    EXPECT_TRUE(out.startsWith(QStringLiteral("tavlora-play 8.")));
}

} // namespace
