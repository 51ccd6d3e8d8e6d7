// SPDX-License-Identifier: MIT
// What is told of colours, prices, paper and ink: each time of a game that has it, and of one that just hasn't.
#include "check/Checks.h"

#include "CheckFixture.h"

class PriceCheckTest : public CheckTest {
protected:
    /// Space r costs 100 r + 1,000 and brings 10 r + 1 to 10 r + 4; the bank lends 10 r + 6. One field of a row is
    /// another: 1 the price, 2 to 5 the rents, 7 the loan.
    void UseRents(int row, int field, int value) {
        QByteArray rents;
        for (int r = 0; r < basTAVL::kSpaces; ++r) {
            QList<QByteArray> fields = RentRow(r).split(',');
            if (r == row) fields[field] = QByteArray::number(value);
            rents += fields.join(',');
        }
        WriteFile(QStringLiteral("program/Rents.dat"), rents);
        // The file may have changed within the same millisecond.
        basPosit::ResetRentsForTest();
        basPosit::PosInit();
    }
};

TEST_F(CheckTest, AGoodGameHasNothingToTell) {
    options.printableInches = QSizeF(8, 10.5);
    for (const Finding& finding : Findings())
        ADD_FAILURE() << finding.sCheck.toStdString() << ' ' << finding.sText.toStdString();
}

TEST_F(PriceCheckTest, APriceOfNothingIsTold) {
    UseRents(4, 1, 500);
    ExpectNone("prices-odd");
    UseRents(4, 1, 0);
    ExpectOnly("prices-odd", GamePiece::Space(4));
    EXPECT_EQ(Of("prices-odd")[0].sheets, QStringList{QStringLiteral("deeds1")});
}

TEST_F(PriceCheckTest, RentsThatFallAreTold) {
    UseRents(4, 3, 41);
    ExpectNone("prices-odd");
    UseRents(4, 3, 40);
    ExpectOnly("prices-odd", GamePiece::Space(4));
    UseRents(1, 3, 10);
    ExpectOnly("prices-odd", GamePiece::Space(1));
}

TEST_F(PriceCheckTest, TheBankLendsNoMoreThanTheSpaceCosts) {
    UseRents(4, 7, 1400);
    ExpectNone("prices-odd");
    UseRents(4, 7, 1401);
    ExpectOnly("prices-odd", GamePiece::Space(4));
}

// Spaces 4, 5 and 6 are a group, and 5 costs more than 4.
TEST_F(PriceCheckTest, TheDearerSpaceOfAGroupBringsNoLess) {
    UseRents(5, 2, 41);
    ExpectNone("prices-odd");
    UseRents(5, 2, 40);
    ExpectOnly("prices-odd", GamePiece::Space(5));
}

// The grey of 40 has the contrast of 3 with one of 112.
TEST_F(CheckTest, InkTooNearToItsGroundIsTold) {
    basTAVL::g_lPrintBlack() = Color::Rgb(40, 40, 40);
    ExpectNone("colours-near");
    basTAVL::g_lPrintRed() = Color::Rgb(90, 90, 90);
    ExpectOnly("colours-near", GamePiece::Whole());
    basTAVL::g_lPrintRed() = Color::Rgb(255, 255, 255);
    basTAVL::g_lPrintBack() = Color::Rgb(110, 110, 110);
    ExpectOnly("colours-near", GamePiece::Whole());
    basTAVL::g_lPrintBack() = Color::Rgb(114, 114, 114);
    ExpectNone("colours-near");
}

TEST_F(CheckTest, BlackOnADarkNoteOrTokenIsTold) {
    // Black has the contrast of 3 with a grey of 89 or 90.
    game.money[2].BackColor = Color::Rgb(90, 90, 90);
    game.tokens[1].BackColor = Color::Rgb(90, 90, 90);
    ExpectNone("colours-near");
    game.money[2].BackColor = Color::Rgb(88, 88, 88);
    ExpectOnly("colours-near", GamePiece::Money(2));
    // So near to black that the brightness grows evenly, by a thirteenth of the share: a contrast of 1.06.
    game.money[2].BackColor = Color::Rgb(10, 10, 10);
    ExpectOnly("colours-near", GamePiece::Money(2));
    game.money[2].BackColor = Color::White();
    game.tokens[1].BackColor = Color::Rgb(88, 88, 88);
    ExpectOnly("colours-near", GamePiece::Token(1));
    game.tokens[1].SetImagePath(Photo({400, 400}));
    ExpectNone("colours-near");
}

TEST_F(CheckTest, PaperThatIsTooSmallIsTold) {
    ExpectNone("paper-small");
    options.printableInches = QSizeF(8.0, 10.5);
    ExpectNone("paper-small");
    options.printableInches = QSizeF(7.9, 11.0);
    QStringList sheets;
    for (const Finding& finding : Of("paper-small"))
        sheets += finding.sheets;
    EXPECT_EQ(sheets, (QStringList{QStringLiteral("box"), QStringLiteral("west")})) << "all others end well within";
    EXPECT_EQ(
        Of("paper-small")[1].sText,
        QStringLiteral("The sheet West, South & Corner Board Stickers is larger than the paper. The row of corner "
                       "stickers would lose 2 mm."));
    EXPECT_EQ(Of("paper-small")[1].severity, Severity::Should);
}

// Twelve cards of 3 by 1.62 inches on 8 by 10.5.
TEST_F(CheckTest, MuchInkIsTold) {
    basTAVL::g_lNewsColor(1) = Color::Rgb(110, 110, 110);
    ExpectNone("much-ink");
    basTAVL::g_lNewsColor(1) = Color::Rgb(106, 106, 106);
    ExpectOnly("much-ink", GamePiece::Whole());
    EXPECT_TRUE(Of("much-ink")[0].sText.contains(QStringLiteral("40 %"))) << Of("much-ink")[0].sText.toStdString();
    EXPECT_FALSE(Of("much-ink")[0].IsSerious());
}

TEST_F(CheckTest, DarkLabelsAndNotesTakeMuchInk) {
    game.money[0].BackColor = Color::Rgb(120, 120, 120);
    ExpectOnly("much-ink", GamePiece::Whole());
    game.money[0].BackColor = Color::White();
    basTAVL::g_lPrintBack() = Color::Rgb(100, 100, 100);
    EXPECT_EQ(Of("much-ink").size(), 2) << "west and east";
}

TEST_F(CheckTest, TheBandsOfBothRowsOfASheetTakeInk) {
    for (C_Space& space : game.spaces)
        space.SpaceColor = Color::None();
    const auto sheets = [this] {
        QStringList told;
        for (const Finding& finding : Of("much-ink"))
            told += finding.sheets;
        return told;
    };
    // Twelve spaces of 1.65 by 2.8125 inches on 8 by 10.5, of a grey of 0.592: 39 %. There are titles in the east, too.
    basTAVL::g_lPrintBack() = Color::Rgb(104, 104, 104);
    EXPECT_EQ(sheets(), QStringList{QStringLiteral("east")});
    // Five bands of the lower row, of 1.65 by 0.4375 inches: in black they take 2 % more.
    for (const size_t space : {6U, 5U, 4U, 2U, 1U})
        game.spaces[space].SpaceColor = Color::Black();
    EXPECT_EQ(sheets(), (QStringList{QStringLiteral("west"), QStringLiteral("east")}));
}
