// SPDX-License-Identifier: MIT
// The question before a sheet is printed: what it lists, and that nobody is asked twice, amid a page or for nothing.
#include "ConsoleFixture.h"

#include "pictures/TellOnce.h"
#include "support/PictureFiles.h"
#include "windows/check/FindingTree.h"
#include "windows/check/GameChecker.h"
#include "windows/check/PrintQuestion.h"

namespace {

constexpr int kWest = 1;
constexpr int kEast = 3;
constexpr int kRules = 11;
constexpr int kDeeds1 = 12;

class PrintQuestionTest : public ConsoleTest {
protected:
    PrintQuestionTest() {
        TellOnce::ForgetAll();
        Game& game = TheGame();
        for (int i = 0; i < basTAVL::kSpaces; ++i)
            game.spaces[size_t(i)].SetText(QStringLiteral("Place %1").arg(i + 1));
        for (C_Corner& corner : game.corners)
            corner.SetText(0, QStringLiteral("Edge %1").arg(corner.Index + 1));
        for (auto& deck : game.news) {
            for (C_News& card : deck)
                card.Let_Text(QStringLiteral("Pay the bank."));
        }
        for (C_Money& note : game.money)
            note.Let_Text(0, QStringLiteral("Bank"));
        for (C_Token& token : game.tokens)
            token.SetText(QStringLiteral("Tim"));
        basPosit::SetSpecialText(4, QStringLiteral("Good News"));
        basPosit::SetSpecialText(5, QStringLiteral("Bad News"));
        console->MayPrint = [this](QDialog&, const QStringList& sheets) {
            last = question.Ask(sheets, console.get());
            return last == PrintQuestion::Answer::PrintAnyway;
        };
    }
    static void EmptySpace(int iSpace) { TheGame().spaces[size_t(iSpace)].SetText(QString()); }
    /// Prints a sheet, and answers the question, which has to come, by this button.
    void PrintAnswering(int iSheet, const char* sButton, bool bPaper) {
        ModalSteps person;
        person.In("frmBeforePrint", [this, sButton](QWidget& window) {
            const auto& tree = Find<FindingTree>(window, "tvwFindings");
            asked.clear();
            for (const Finding& finding : tree.Shown())
                asked.append(finding.piece.Word());
            words = Find<QLabel>(window, "lblQuestion").text();
            Click(window, sButton);
        });
        if (bPaper) person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_2"); });
        ClickSheet(iSheet);
    }

    GameChecker checker{session};
    PrintQuestion question{checker};
    PrintQuestion::Answer last = PrintQuestion::Answer::Cancel;
    QStringList asked;
    QString words;
};

} // namespace

TEST_F(PrintQuestionTest, AGameWithoutFindingsIsNeverAsked) {
    for (const int sheet : {kWest, kEast, kRules})
        Print(sheet);
    EXPECT_EQ(printer.ended.size(), 3);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(PrintQuestionTest, ASheetIsAskedAboutWhatItShows) {
    EmptySpace(4);
    EmptySpace(20);
    PrintAnswering(kWest, "cmdPrintAnyway", true);
    EXPECT_EQ(asked, QStringList{QStringLiteral("space-4")});
    EXPECT_EQ(words, QStringLiteral("1 thing to look at before this sheet is printed:"));
    EXPECT_EQ(printer.ended.size(), 1);
    Print(kRules);
    EXPECT_EQ(printer.ended.size(), 2) << "the rules show neither";
    PrintAnswering(kEast, "cmdPrintAnyway", true);
    EXPECT_EQ(asked, QStringList{QStringLiteral("space-20")});
}

TEST_F(PrintQuestionTest, WhatWasAcceptedIsAskedAgainInTheNextPrintingOnly) {
    EmptySpace(4);
    PrintAnswering(kWest, "cmdPrintAnyway", true);
    Print(kWest);
    Print(kDeeds1);
    EXPECT_EQ(printer.ended.size(), 3);
    question.Begin();
    PrintAnswering(kWest, "cmdPrintAnyway", true);
    EXPECT_EQ(printer.ended.size(), 4);
}

TEST_F(PrintQuestionTest, CancelPrintsNothingAndAsksAgain) {
    EmptySpace(4);
    for (int time = 0; time < 2; ++time)
        PrintAnswering(kWest, "cmdCancel", false);
    EXPECT_EQ(last, PrintQuestion::Answer::Cancel);
    EXPECT_FALSE(question.TakeMeant());
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_FALSE(Hourglass());
    EXPECT_TRUE(pages.isEmpty()) << "no page was begun";
}

TEST_F(PrintQuestionTest, ShowMeLeavesTheSheetAndSaysWhatIsMeant) {
    EmptySpace(4);
    PrintAnswering(kWest, "cmdShowMe", false);
    EXPECT_EQ(last, PrintQuestion::Answer::ShowMe);
    const std::optional<Finding> meant = question.TakeMeant();
    ASSERT_TRUE(meant);
    EXPECT_EQ(meant->piece, GamePiece::Space(4));
    EXPECT_FALSE(question.TakeMeant()) << "once";
    EXPECT_TRUE(printer.ended.isEmpty());
}

TEST_F(PrintQuestionTest, PicturesThatAreAwayRaiseNoBoxAmidThePage) {
    for (const int space : {4, 5, 6})
        TheGame().spaces[size_t(space)].Image.Init(PathOf(QStringLiteral("away%1.png").arg(space)),
                                                   QStringLiteral("Space"), qint16(space));
    TheGame().corners[1].Image.Init(WriteFile(QStringLiteral("bad.png"), "Dear Anna,"), QStringLiteral("Corner"), 1);
    desktop.boxes.clear();
    PrintAnswering(kWest, "cmdPrintAnyway", true);
    EXPECT_EQ(asked.size(), 4);
    EXPECT_EQ(printer.ended.size(), 1);
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

TEST_F(PrintQuestionTest, APictureThatBreaksOffIsAskedAboutThoughItsHeadIsWhole) {
    const QByteArray whole = PictureFiles::Encoded(PictureFiles::Quarters(400, 400), "jpg");
    TheGame().spaces[4].Image.Init(WriteFile(QStringLiteral("half.jpg"), whole.left(whole.size() / 2)),
                                   QStringLiteral("Space"), 4);
    PrintAnswering(kWest, "cmdPrintAnyway", true);
    EXPECT_EQ(asked, QStringList{QStringLiteral("space-4")});
    EXPECT_EQ(printer.ended.size(), 1);
    EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
}

TEST_F(PrintQuestionTest, WithoutAKitItIsAskedAsWell) {
    TheGame().spaces[20].Image.Init(PathOf(QStringLiteral("away.png")), QStringLiteral("Space"), 20);
    desktop.boxes.clear();
    ModalSteps person;
    person.In("PrintWithoutKit", [](QWidget& window) {
        Click(window, "cmdMake");
        EXPECT_TRUE(Find<QLabel>(window, "lblPage").text().isEmpty()) << "nothing is made";
        EXPECT_TRUE(Find<QWidget>(window, "cmdMake").isEnabled());
        Click(window, "cmdClose");
    });
    person.In("frmBeforePrint", [this](QWidget& window) {
        for (const Finding& finding : Find<FindingTree>(window, "tvwFindings").Shown())
            asked.append(finding.piece.Word() + u' ' + finding.sCheck);
        words = Find<QLabel>(window, "lblQuestion").text();
        Click(window, "cmdCancel");
    });
    Click(*console, "cmdNoKit");
    EXPECT_TRUE(asked.contains(QStringLiteral("space-20 picture-missing"))) << asked.join(u'\n').toStdString();
    EXPECT_TRUE(words.endsWith(QStringLiteral("before these sheets are printed:"))) << words.toStdString();
    EXPECT_EQ(last, PrintQuestion::Answer::Cancel);
    EXPECT_TRUE(pages.isEmpty()) << "no page was begun";
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(PrintQuestionTest, WhatSomebodyHasCalledNoProblemIsntAsked) {
    EmptySpace(4);
    for (const Finding& finding : std::vector<Finding>(checker.Look())) {
        if (finding.IsSerious()) checker.CallNoProblem(finding);
    }
    Print(kWest);
    EXPECT_EQ(printer.ended.size(), 1);
}
