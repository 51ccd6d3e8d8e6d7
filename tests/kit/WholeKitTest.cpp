// SPDX-License-Identifier: MIT
#include "kit/WholeKit.h"

#include "platform/printing/PicturePrinter.h"
#include "support/SheetFixture.h"

namespace {

QStringList Texts(Kit kit, int nPlayers) {
    QStringList texts;
    for (const WholeKit::Pile& pile : WholeKit::Piles(WholeKit::Runs(kit, nPlayers), kit))
        texts.append(pile.Text());
    return texts;
}

QList<int> MoneyFor(int nPlayers) {
    QList<int> copies;
    for (const WholeKit::Run& run : WholeKit::Runs(Kit::Eight, nPlayers)) {
        if (run.sheet->bMoney) copies.append(run.nCopies);
    }
    return copies;
}

using WholeKitTest = SheetTest;

/// Counts the pages that it was given.
class CountingPrinter : public PicturePrinter {
public:
    CountingPrinter() : PicturePrinter(60) {}
    void EndDoc() override {
        PicturePrinter::EndDoc();
        ++nEnded;
        if (nEnded == iFailsAt) error = QStringLiteral("out of paper");
    }
    QString LastError() const override { return error; }

    int nEnded = 0;
    int iFailsAt = 0;
    QString error;
};

bool GoOn(const WholeKit::Progress&) { return true; }
bool NotWhole(SheetJob& job, int) { return job.Lacks(QStringLiteral("The title"), QStringLiteral("no room")); }

} // namespace

TEST_F(WholeKitTest, SixPlayersTakeThePaperThatTheRulesSpeakOf) {
    EXPECT_EQ(
        Texts(Kit::Eight, 6),
        (QStringList{QStringLiteral("3 sheets of white label paper"), QStringLiteral("2 sheets of white card stock"),
                     QStringLiteral("2 sheets of colored card stock"), QStringLiteral("14 sheets of white paper")}));
    EXPECT_EQ(WholeKit::Pages(WholeKit::Runs(Kit::Eight, 6)), 21);
    EXPECT_EQ(MoneyFor(6), (QList<int>{5, 3, 4, 1}));
    const QByteArray rules = ReadFile(QStringLiteral(TAVLORA_DATA_DIR) + QStringLiteral("/GamePlay_US.dat"));
    EXPECT_TRUE(rules.contains("Play money: five sheets of 100s, three of 500s, four of 1000s and one of 5000s. For "
                               "two or three players: three, two, two and one."));
}

TEST_F(WholeKitTest, FewerPlayersTakeLessMoneyAndEachHasWhatHeStartsWith) {
    EXPECT_EQ(MoneyFor(3), (QList<int>{3, 2, 2, 1}));
    EXPECT_EQ(MoneyFor(2), MoneyFor(3));
    EXPECT_EQ(MoneyFor(4), MoneyFor(6));
    EXPECT_EQ(MoneyFor(1), MoneyFor(2));
    EXPECT_EQ(MoneyFor(9), MoneyFor(6));
    constexpr std::array<int, 4> kNotesOfAPlayer{5, 5, 5, 0};
    constexpr int kNotesOfASheet = 10;
    for (int players = Players::kFewest; players <= Players::kMost; ++players) {
        const QList<int> sheets = MoneyFor(players);
        for (size_t note = 0; note < kNotesOfAPlayer.size(); ++note)
            EXPECT_GE(sheets[qsizetype(note)] * kNotesOfASheet, kNotesOfAPlayer[note] * players) << players;
    }
    EXPECT_EQ(Texts(Kit::Eight, 2).last(), QStringLiteral("9 sheets of white paper"));
}

TEST_F(WholeKitTest, OlderKitsTakeTheirOwnStockAndNoLabels) {
    EXPECT_EQ(Texts(Kit::Five, 6).first(), QStringLiteral("2 sheets of white card stock"));
    for (const WholeKit::Run& run : WholeKit::Runs(Kit::Two, 6))
        EXPECT_NE(run.sheet->frame, Frame::Labels) << run.sheet->sName;
    EXPECT_TRUE(Texts(Kit::Two, 6).contains(QStringLiteral("1 sheet of pink card stock")));
}

TEST_F(WholeKitTest, EveryPageIsPaintedOnceAndTold) {
    CountingPrinter printer;
    QStringList told;
    const auto tell = [&](const WholeKit::Progress& progress) {
        const QString page = QStringLiteral("%1 %2").arg(progress.nPagesDone).arg(QLatin1String(progress.sheet.sName));
        if (told.isEmpty() || told.last() != page) told.append(page);
        return true;
    };
    std::vector<WholeKit::Run> runs{{FindSheet(QStringLiteral("good")), 1}, {FindSheet(QStringLiteral("money100")), 2}};
    const WholeKit::Outcome outcome = WholeKit::Print(printer, runs, Kit::Eight, tell);
    EXPECT_TRUE(outcome.IsWhole());
    EXPECT_EQ(outcome.nPages, 3);
    EXPECT_EQ(printer.nEnded, 3);
    EXPECT_EQ(told,
              (QStringList{QStringLiteral("0 good"), QStringLiteral("1 money100"), QStringLiteral("2 money100")}));
}

TEST_F(WholeKitTest, StoppedItEndsAheadOfTheNextPage) {
    CountingPrinter printer;
    const std::vector<WholeKit::Run> runs{{FindSheet(QStringLiteral("money100")), 3},
                                          {FindSheet(QStringLiteral("good")), 1}};
    const WholeKit::Outcome outcome = WholeKit::Print(
        printer, runs, Kit::Eight, [](const WholeKit::Progress& progress) { return progress.nPagesDone == 0; });
    EXPECT_TRUE(outcome.bStopped);
    EXPECT_EQ(outcome.sheet, nullptr);
    EXPECT_EQ(printer.nEnded, 2) << "the page under way is finished";
}

TEST_F(WholeKitTest, ItEndsAtTheFirstSheetThatIsNotWholeOrThatThePrinterDoesNotTake) {
    CountingPrinter printer;
    Sheet bad = *FindSheet(QStringLiteral("good"));
    bad.paint = NotWhole;
    const std::vector<WholeKit::Run> runs{
        {FindSheet(QStringLiteral("bad")), 1}, {&bad, 1}, {FindSheet(QStringLiteral("good")), 1}};
    WholeKit::Outcome outcome = WholeKit::Print(printer, runs, Kit::Eight, GoOn);
    EXPECT_EQ(outcome.sheet, &bad);
    EXPECT_EQ(outcome.lacking, QStringList{QStringLiteral("The title could not be made: no room")});
    EXPECT_EQ(printer.nEnded, 1);
    printer.iFailsAt = 3;
    outcome = WholeKit::Print(printer, {{FindSheet(QStringLiteral("money100")), 4}}, Kit::Eight, GoOn);
    EXPECT_EQ(outcome.lacking, QStringList{QStringLiteral("out of paper")});
    EXPECT_EQ(outcome.nPages, 1);
    EXPECT_EQ(printer.nEnded, 3);
}
