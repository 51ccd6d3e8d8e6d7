// SPDX-License-Identifier: MIT
// What tavlora-print tells of a game before it is printed.
#include "tools/PrintCommand.h"

#include "pictures/TellOnce.h"
#include "support/FileFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sstream>

namespace {

class CheckCommandTest : public GameFileTest {
protected:
    CheckCommandTest() {
        QDir(folder.path()).mkdir(QStringLiteral("out"));
        Settings().sIniDirectory = PathOf(QStringLiteral("games"));
        Settings().sRelativePictureBase = PathOf(QStringLiteral("games"));
    }
    int Run(const QStringList& words) {
        std::ostringstream outStream;
        std::ostringstream errStream;
        const int status = PrintCommand(outStream, errStream, false).Run(words);
        out = QString::fromStdString(outStream.str());
        errors = QString::fromStdString(errStream.str()).split(u'\n', Qt::SkipEmptyParts);
        return status;
    }
    int Check(const QStringList& lines, const QStringList& options = {}) {
        return Run(QStringList{WriteGame(lines), QStringLiteral("--check")} + options);
    }
    static QStringList WithSmallName() {
        QStringList lines = PlainLines();
        lines[3 + 7] = QStringLiteral("7, \"Tiny\", \"\",0,0,0, \"Arial\",R,2");
        return lines;
    }
    QString out;
    QStringList errors;
};

} // namespace

TEST_F(CheckCommandTest, AGoodGameGivesNoLineAndStatusNought) {
    EXPECT_EQ(Check(PlainLines()), 0);
    EXPECT_EQ(out, QString());
    EXPECT_EQ(errors, QStringList());
    EXPECT_TRUE(QDir(PathOf(QStringLiteral("out"))).isEmpty());
}

TEST_F(CheckCommandTest, AFindingIsALineAndStatusOne) {
    EXPECT_EQ(Check(WithSmallName()), 1);
    EXPECT_TRUE(out.startsWith(QStringLiteral("should: Space \"Tiny\": The letters are too small to read")))
        << out.toStdString();
    EXPECT_EQ(out.count(u'\n'), 1);
    EXPECT_EQ(errors, QStringList());
}

TEST_F(CheckCommandTest, HintsAloneGiveStatusNought) {
    QStringList lines = PlainLines();
    lines[3 + 7] = QStringLiteral("7, \"Twin\", \"\",0,0,0, \"Arial\",R,12");
    lines[3 + 8] = QStringLiteral("8, \"Twin\", \"\",0,0,0, \"Arial\",R,12");
    EXPECT_EQ(Check(lines), 0);
    EXPECT_TRUE(out.startsWith(QStringLiteral("hint: Space \"Twin\": "))) << out.toStdString();
}

TEST_F(CheckCommandTest, ScriptsGetJson) {
    EXPECT_EQ(Check(WithSmallName(), {QStringLiteral("--json")}), 1);
    const QJsonArray array = QJsonDocument::fromJson(out.toUtf8()).array();
    ASSERT_EQ(array.size(), 1);
    EXPECT_EQ(array[0].toObject()[QStringLiteral("check")].toString(), QStringLiteral("text-small"));
    EXPECT_EQ(array[0].toObject()[QStringLiteral("piece")].toString(), QStringLiteral("space-7"));
    EXPECT_EQ(Check(PlainLines(), {QStringLiteral("--json")}), 0);
    EXPECT_EQ(QJsonDocument::fromJson(out.toUtf8()).array(), QJsonArray());
    EXPECT_TRUE(out.startsWith(u'['));
}

TEST_F(CheckCommandTest, A4HoldsAllSheets) {
    EXPECT_EQ(Check(PlainLines(), {QStringLiteral("--paper"), QStringLiteral("a4")}), 0);
    EXPECT_FALSE(out.contains(QStringLiteral("would lose"))) << out.toStdString();
}

TEST_F(CheckCommandTest, WrongUsageGivesStatusTwo) {
    const QString pdf = PathOf(QStringLiteral("out/kit.pdf"));
    EXPECT_EQ(Check(PlainLines(), {QStringLiteral("--json"), QStringLiteral("-o"), pdf}), 2);
    EXPECT_EQ(Run({WriteGame(PlainLines()), QStringLiteral("--json")}), 2);
    EXPECT_EQ(Run({QStringLiteral("--check")}), 2);
    EXPECT_EQ(out, QString());
    EXPECT_FALSE(QFile::exists(pdf));
}

TEST_F(CheckCommandTest, AGameThatCannotBeReadGivesStatusOne) {
    EXPECT_EQ(Run({PathOf(QStringLiteral("games/away.gam")), QStringLiteral("--check")}), 1);
    EXPECT_EQ(out, QString());
    EXPECT_FALSE(errors.isEmpty());
}

TEST_F(CheckCommandTest, APictureThatIsAwayIsToldOnce) {
    QStringList lines = PlainLines();
    lines[3 + 7] = QStringLiteral("7, \"Photo\", \"away.png\",0,0,0");
    const QString board = PathOf(QStringLiteral("out/board.png"));
    EXPECT_EQ(Run({WriteGame(lines), QStringLiteral("--board"), board}), 0);
    const QStringList without = errors;
    TellOnce::ForgetAll();
    EXPECT_FALSE(without.isEmpty());
    EXPECT_EQ(Check(lines, {QStringLiteral("--board"), board}), 0);
    EXPECT_EQ(errors.size(), without.size());
    EXPECT_TRUE(errors.filter(QStringLiteral("must: ")).isEmpty());
    EXPECT_EQ(Check(lines), 1);
    EXPECT_TRUE(out.startsWith(QStringLiteral("must: Space \"Photo\": The picture \"away.png\" isn't where it was")));
}

TEST_F(CheckCommandTest, PrintingWarnsInTheSameWordsOfWhatTheSheetsShow) {
    Check(WithSmallName());
    const QStringList line{QStringLiteral("tavlora-print: ") + out.trimmed()};
    Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
    const QString game = InGames(QStringLiteral("Plain.gam"));
    const QString pdf = PathOf(QStringLiteral("out/kit.pdf"));
    const auto printed = [&](const char* sheet, const QStringList& options = {}) {
        return Run(QStringList{game, QStringLiteral("--sheet"), QString::fromLatin1(sheet), QStringLiteral("-o"), pdf} +
                   options);
    };
    EXPECT_EQ(printed("west"), 0);
    EXPECT_EQ(errors, line);
    EXPECT_EQ(out, QString());
    EXPECT_TRUE(QFile::exists(pdf));
    EXPECT_EQ(printed("good"), 0);
    EXPECT_EQ(errors, QStringList()) << "the cards don't show the name";
    EXPECT_EQ(printed("good", {QStringLiteral("--check")}), 0);
    EXPECT_EQ(errors, line) << "the whole game was to be checked";
}
