// SPDX-License-Identifier: MIT
#include "app/StartArguments.h"

#include "AppFixture.h"

#include "app/RecentGames.h"
#include "platform/files/Folders.h"
#include "support/ManPage.h"

namespace {

class StartArgumentsTest : public AppTest {
protected:
    static std::optional<StartArguments> Parse(const QStringList& words, QString* error = nullptr) {
        QString why;
        return StartArguments::Parse(words, error ? *error : why);
    }
    frmTAVL& StartWith(const char* sRequest) {
        return Start(QStringLiteral("tavlora"), QStringLiteral("false"), QString::fromLatin1(sRequest));
    }
    QString NameInHand() const { return window->Commands().InHand().GameName(); }
    // Two games that were worked on, the first of them last.
    void WorkOnTwoGames() {
        WriteGame(QStringLiteral("First.gam"), QStringLiteral("One"));
        WriteGame(QStringLiteral("Second.gam"), QStringLiteral("Two"));
        Start();
        for (const char* name : {"Second.gam", "First.gam"})
            window->Commands().OpenGame(InGames(QString::fromLatin1(name)));
    }
};

} // namespace

TEST_F(StartArgumentsTest, AGameOrARequestIsTaken) {
    EXPECT_EQ(Parse({})->sRequest, QString());
    EXPECT_EQ(Parse({QStringLiteral("My.gam")})->sRequest, Folders::CompletePath(QStringLiteral("My.gam")));
    EXPECT_EQ(Parse({QStringLiteral("--"), QStringLiteral("--new")})->sRequest,
              Folders::CompletePath(QStringLiteral("--new")))
        << "a game of that name";
    EXPECT_EQ(Parse({QStringLiteral("--new")})->sRequest, QStringLiteral("--new"));
    EXPECT_EQ(Parse({QStringLiteral("--recent")})->sRequest, QStringLiteral("--recent"));
    EXPECT_TRUE(Parse({QStringLiteral("--help")})->bHelp);
    EXPECT_TRUE(Parse({QStringLiteral("--version")})->bVersion);
}

TEST_F(StartArgumentsTest, WrongUsageIsToldInASentence) {
    const struct {
        QStringList words;
        const char* error;
    } rows[] = {
        {{QStringLiteral("--old")}, "unknown option '--old'"},
        {{QStringLiteral("a.gam"), QStringLiteral("b.gam")}, "unexpected argument 'b.gam'"},
        {{QStringLiteral("a.gam"), QStringLiteral("--new")}, "unexpected argument '--new'"},
        {{QStringLiteral("--new=b.gam")}, "option '--new' takes no value"},
    };
    for (const auto& row : rows) {
        QString error;
        EXPECT_FALSE(Parse(row.words, &error));
        EXPECT_EQ(error, QString::fromLatin1(row.error));
    }
}

TEST_F(StartArgumentsTest, ManPageTellsEveryArgumentAndNoOther) {
    EXPECT_EQ(ManPage::OptionsOf("tavlora.6"), ManPage::OptionsIn(StartArguments::Usage()));
}

TEST_F(StartArgumentsTest, RecentOpensTheLastGameAndInARunningProgramTheOneBefore) {
    WorkOnTwoGames();
    StartWith(StartArguments::kRecent);
    EXPECT_EQ(NameInHand(), InGames(QStringLiteral("First.gam")));
    window->CalledByAnotherStart(QString::fromLatin1(StartArguments::kRecent));
    EXPECT_EQ(NameInHand(), InGames(QStringLiteral("Second.gam")));
    window->CalledByAnotherStart(QString::fromLatin1(StartArguments::kRecent));
    EXPECT_EQ(NameInHand(), InGames(QStringLiteral("First.gam")));
}

TEST_F(StartArgumentsTest, RecentOfAnEmptyListIsAnOrdinaryStart) {
    StartWith(StartArguments::kRecent);
    const QString name = NameInHand();
    window->CalledByAnotherStart(QString::fromLatin1(StartArguments::kRecent));
    EXPECT_EQ(NameInHand(), name);
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

TEST_F(StartArgumentsTest, NewBeginsANewGameWhateverWasWorkedOn) {
    WorkOnTwoGames();
    StartWith(StartArguments::kNew);
    EXPECT_NE(NameInHand(), InGames(QStringLiteral("First.gam")));
    EXPECT_NE(TextOfSpace4(), QStringLiteral("One"));
    EXPECT_EQ(RecentGames::List().first(), InGames(QStringLiteral("First.gam"))) << "it isn't forgotten";
}
