// SPDX-License-Identifier: MIT
// The table of checks and what holds for all of them.
#include "check/Checks.h"

#include "CheckFixture.h"
#include "support/ReadsOfThisThread.h"

#include "check/FindingWords.h"
#include "drawing/DrawingAside.h"
#include "game/GameFile.h"
#include "game/Session.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

namespace {

// Everything that can be wrong with a game at once.
void Spoil(Game& game) {
    game.spaces[0].SetText(QString(40, u'i'));
    game.spaces[1].SetText(QStringLiteral("?\uF8F0"));
    game.spaces[2].SetText(QString());
    game.spaces[4].Font.Family = QStringLiteral("No Such Font");
    game.spaces[5].Font.Size = 1;
    game.spaces[5].Image.Init(QStringLiteral("/nowhere/photo.png"), QStringLiteral("Space"), 5);
    game.spaces[6].SetText(game.spaces[7].TextAll());
    game.corners[0].SetText(0, QString());
    game.tokens[2].BackColor = Color::Black();
    basPosit::SetSpecialText(game.titles.Text(1), 1, QString(39, u'M'));
}

} // namespace

TEST(Checks, EveryRowHasAWordOfItsOwn) {
    static const QRegularExpression word(QStringLiteral("^[a-z]+(-[a-z]+)*$"));
    QSet<QString> names;
    for (const Check& check : Checks()) {
        EXPECT_TRUE(word.match(QString::fromLatin1(check.sName)).hasMatch()) << check.sName;
        names.insert(QString::fromLatin1(check.sName));
    }
    EXPECT_EQ(size_t(names.size()), Checks().size());
}

TEST_F(CheckTest, AFindingOfAKindThatThereIsNotIsRefused) {
    Finding finding;
    finding.sCheck = QStringLiteral("board-too-good");
    try {
        MendingOf(finding);
        ADD_FAILURE() << "taken for one of a kind";
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Description(), QStringLiteral("Assertion Failure: Every finding is of a kind"));
    }
}

TEST_F(CheckTest, FindingsComeByPieceAndTheSameTwice) {
    Spoil(game);
    const std::vector<Finding> once = Findings();
    EXPECT_GE(once.size(), 9);
    EXPECT_EQ(once, Findings());
    for (size_t i = 1; i < once.size(); ++i)
        EXPECT_FALSE(once[i].piece < once[i - 1].piece) << i;
    PictureFacts others;
    EXPECT_EQ(once, CheckGame(game, others));
}

TEST_F(CheckTest, FindingsAreSentences) {
    Spoil(game);
    options.printableInches = QSizeF(4, 6);
    for (const Finding& finding : Findings()) {
        EXPECT_TRUE(finding.sText.endsWith(u'.') || finding.sText.endsWith(u'?')) << finding.sText.toStdString();
        EXPECT_TRUE(finding.sAdvice.endsWith(u'.')) << finding.sAdvice.toStdString();
        EXPECT_FALSE(finding.sText.contains(QStringLiteral("/nowhere"))) << "no path";
        EXPECT_FALSE(FindingWords::LineOf(game, finding).contains(u'\n'));
    }
}

TEST_F(CheckTest, CheckingChangesNothing) {
    Spoil(game);
    desktop.boxes.clear();
    const Game before = game;
    basDraw::Draw_SetHdc(&context);
    basDraw::Draw_SetFont(QStringLiteral("Arial"), 20, 10, 0, 0, true, false, false);
    const int width = basDraw::Draw_GetWidth(QStringLiteral("Acorn Lane"));
    Findings();
    EXPECT_EQ(basDraw::Draw_GetWidth(QStringLiteral("Acorn Lane")), width) << "the font is still selected";
    basDraw::Draw_ReleaseObjects();
    EXPECT_TRUE(game == before);
    EXPECT_EQ(LeftBehind(), QStringList());
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(CheckTest, AKeyTellsWhichFindingItIs) {
    Spoil(game);
    QSet<QString> keys;
    for (const Finding& finding : Findings())
        keys.insert(finding.Key());
    EXPECT_EQ(size_t(keys.size()), Findings().size());
    game.spaces[2].SetText(QStringLiteral("Ours"));
    game.spaces[2].SetText(QString());
    for (const Finding& finding : Findings())
        EXPECT_TRUE(keys.contains(finding.Key())) << finding.Key().toStdString();
}

TEST_F(CheckTest, AGameWithoutPicturesReadsNoFile) {
    const ReadsOfThisThread reads;
    CheckRun run(game, facts);
    int looks = 0;
    while (run.Step())
        ++looks;
    EXPECT_EQ(reads.Count(), 0);
    EXPECT_LT(looks, 300) << "and each piece, text and check has its turn once";
}

TEST_F(CheckTest, OtherKitsAreCheckedByWhatTheyPrint) {
    game.spaces[4].Font.Size = 1;
    EXPECT_EQ(Of("text-small").size(), 1);
    game.kit = Kit::Two;
    ExpectNone("text-small");
}

TEST_F(CheckTest, TheSummaryCountsWhatIsSeriousInPlainWords) {
    std::vector<Finding> findings(3);
    EXPECT_EQ(FindingWords::Summary({}), QStringLiteral("Nothing to look at"));
    EXPECT_EQ(FindingWords::Summary(findings), QStringLiteral("Nothing to look at")) << "hints only";
    findings[1].severity = Severity::Should;
    EXPECT_EQ(FindingWords::Summary(findings), QStringLiteral("1 thing to look at"));
    findings[2].severity = Severity::Must;
    EXPECT_EQ(FindingWords::Summary(findings), QStringLiteral("2 things to look at"));
}

TEST_F(CheckTest, APieceIsCalledByTheFamilysNameOrByItsPlace) {
    game.spaces[4].SetText(QStringLiteral("Oak\r\nStreet"));
    game.spaces[5].SetText(QString());
    game.corners[1].SetText(0, QStringLiteral("Rest"));
    game.corners[2].SetText(0, QString());
    game.corners[2].SetText(1, QString());
    game.tokens[0].SetText(QStringLiteral("Mum"));
    game.tokens[5].SetText(QString());
    const struct {
        GamePiece piece;
        const char* name;
    } rows[] = {{GamePiece::Whole(), "The whole game"},
                {GamePiece::Titles(), "Title and subtitles"},
                {GamePiece::Space(4), "Space \"Oak Street\""},
                {GamePiece::Space(5), "Space 6"},
                {GamePiece::Corner(1), "Corner \"Rest\""},
                {GamePiece::Corner(2), "Corner 3"},
                {GamePiece::Deck(0), "Title of the Good News cards"},
                {GamePiece::Deck(1), "Title of the Bad News cards"},
                {GamePiece::Card(0, 0), "Good News card 1"},
                {GamePiece::Card(1, 11), "Bad News card 12"},
                {GamePiece::Money(0), "$100 note"},
                {GamePiece::Money(3), "$5,000 note"},
                {GamePiece::Token(0), "Token \"Mum\""},
                {GamePiece::Token(5), "Token 6"}};
    for (const auto& row : rows)
        EXPECT_EQ(row.piece.NameIn(game), QString::fromLatin1(row.name));
}

TEST_F(CheckTest, FindingsForScriptsAreJson) {
    Spoil(game);
    const std::vector<Finding> findings = Findings();
    const QJsonArray array = QJsonDocument::fromJson(FindingWords::Json(game, findings)).array();
    ASSERT_EQ(size_t(array.size()), findings.size());
    for (size_t i = 0; i < findings.size(); ++i) {
        const QJsonObject object = array[qsizetype(i)].toObject();
        EXPECT_EQ(object[QStringLiteral("check")].toString(), findings[i].sCheck);
        EXPECT_EQ(object[QStringLiteral("text")].toString(), findings[i].sText);
        EXPECT_EQ(object[QStringLiteral("piece")].toString(), findings[i].piece.Word());
        EXPECT_EQ(object[QStringLiteral("severity")].toString(), NameOf(findings[i].severity));
    }
}

TEST_F(CheckTest, PiecesAreCalledByTheirNames) {
    game.spaces[6].SetText(QStringLiteral("Under\r\nthe Sink"));
    game.spaces[7].SetText(QString());
    EXPECT_EQ(GamePiece::Space(6).NameIn(game), QStringLiteral("Space \"Under the Sink\""));
    EXPECT_EQ(GamePiece::Space(7).NameIn(game), QStringLiteral("Space 8"));
    EXPECT_EQ(GamePiece::Card(1, 11).NameIn(game), QStringLiteral("Bad News card 12"));
    EXPECT_EQ(GamePiece::Money(3).NameIn(game), QStringLiteral("$5,000 note"));
    EXPECT_EQ(GamePiece::Token(0).NameIn(game), QStringLiteral("Token \"Tim 1\""));
}

/// The games that are shipped.
class SampleCheckTest : public SheetTest, public testing::WithParamInterface<const char*> {
protected:
    SampleCheckTest() { Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR)); }
    Session session;
};

TEST_P(SampleCheckTest, HasNothingToMend) {
    QString path = QStringLiteral(TAVLORA_DATA_DIR) + u'/' + QString::fromLatin1(GetParam());
    int result = 99;
    basPosit::PosSethDC(&session.MeasuringDevice());
    basPosit::PosInit();
    GameFile::GameLoad(path, result);
    ASSERT_EQ(result, 0);
    PictureFacts facts;
    // What is still to be filled in is no more than a hint.
    const bool isEmpty = path.endsWith(QStringLiteral("/Blank_US.gam"));
    for (const Finding& finding : CheckGame(TheGame(), facts, {QSizeF(8, 10.5)})) {
        if (isEmpty && !finding.IsSerious()) continue;
        ADD_FAILURE() << FindingWords::LineOf(TheGame(), finding).toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Shipped, SampleCheckTest,
                         testing::Values("Blank_US.gam", "Family_US.gam", "Generic_US.gam", "Person_US.gam",
                                         "Town_US.gam", "Class_US.gam", "Holiday_US.gam", "Default_US.dat"));
