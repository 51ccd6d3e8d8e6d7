// SPDX-License-Identifier: MIT
// What is written on a deed: each line at its place, in its font.
#include "kit/DeedCards.h"

#include "board/basPositRents.h"
#include "render/clsRenderDestination.h"
#include "support/SheetMarks.h"

#include <QImage>

namespace {

// The card lies an inch from the top and the left. In dots: a row of the table of rents is 7 tenths of its heading,
// which is 0.18 inch or 108 dots high.
constexpr int kCard = 600;
constexpr int kMiddle = kCard + 750;
constexpr int kHeading = 108;
constexpr int kRow = 76;
constexpr int kLabels = kCard + 300;
constexpr int kValues = kCard + 1200;
const QColor kInk(20, 40, 90);

class DeedTextsTest : public SheetMarksTest {
protected:
    DeedTextsTest() {
        basTAVL::g_lPrintBlack() = Color::Rgb(20, 40, 90);
        basTAVL::g_vCurrencySign() = QStringLiteral("$");
        for (const char* corner : {"ul", "ur", "ll", "lr"}) {
            QImage picture(30, 30, QImage::Format_RGB32);
            picture.fill(Qt::cyan);
            picture.save(PathOf(QStringLiteral("program/deco_%1.dat").arg(QString::fromLatin1(corner))), "PNG");
        }
    }
    /// Every number of a row differs: the price, five rents and the value of the mortgage.
    void UseRents(int iSpace, const QByteArray& numbers) {
        QByteArray text;
        for (int row = 0; row < 28; ++row)
            text += row == iSpace ? QByteArray::number(row) + ',' + numbers + ",\"Name\"\r\n" : RentRow(row);
        WriteFile(QStringLiteral("program/Rents.dat"), text);
        basPosit::ResetRentsForTest();
        basPosit::PosInit();
    }
    void PrintDeed(int iSpace) {
        ASSERT_TRUE(Print([&](SheetJob& job) {
            clsRenderDestination destination;
            destination.Init(job.printer, 1.0);
            QString band;
            if (iSpace == 1 || iSpace == 26) return DeedCardTrans(destination, iSpace, kCard, kCard, true);
            return DeedSideColorBitmap(iSpace / 7, band) && DeedCardProp(destination, iSpace, kCard, kCard, true);
        }));
        marks = ReadPageMarks(pdf, 1, kDotsPerInch);
    }
    void Expect(const char* sText, const KnownFace& face, double x, double y, char align, double height) const {
        ExpectText(marks, {.sText = QString::fromLatin1(sText),
                           .face = &face,
                           .x = x,
                           .y = y,
                           .align = align,
                           .height = height,
                           .heightWithin = height / 50,
                           .color = kInk});
    }
    void ExpectRow(int row, int top, const char* sLabel, const char* sValue, bool italic = false) const {
        const KnownFace& face = Face("Arial", false, italic);
        Expect(sLabel, face, kLabels, top + row * kRow, 'L', kRow);
        Expect(sValue, face, kValues, top + row * kRow, 'R', kRow);
    }

    const KnownFace& bold = Face("Arial", true, false);
    const KnownFace& boldItalic = Face("Arial", true, true);
    const KnownFace& regular = Face("Arial", false, false);
    const KnownFace& heading = Face("Times New Roman", false, false);
};

TEST_F(DeedTextsTest, LinesOfAPropertyHaveTheirPlacesHeightsAndFonts) {
    UseRents(5, "1500,510,2520,3530,4540,5550,6560");
    PrintDeed(5);
    // From 1.375 inch down the card.
    constexpr int kTop = kCard + 825;
    Expect("----  RENT  ----", heading, kMiddle, kTop, 'C', kHeading);
    constexpr int kRows = kTop + kHeading;
    ExpectRow(0, kRows, "Single Property", "$510");
    ExpectRow(1, kRows, "Entire Color Group", "2,520");
    ExpectRow(2, kRows, "One Story Building", "3,530");
    ExpectRow(3, kRows, "Two Story Building", "4,540");
    ExpectRow(4, kRows, "Add a Building Story", "@ 5,550", true);
    Expect("Entire color side doubles all rents.", boldItalic, kMiddle, kRows + 5 * kRow, 'C', kRow);
    Expect("Mortgage Value = $ 6,560", bold, kMiddle, kRows + 6 * kRow, 'C', kRow);
}

TEST_F(DeedTextsTest, RowsWithoutAValueMakeRoomForTheNext) {
    UseRents(5, "1500,510,0,3530,-4,0,6560");
    PrintDeed(5);
    constexpr int kRows = kCard + 825 + kHeading;
    ExpectRow(0, kRows, "Single Property", "$510");
    ExpectRow(1, kRows, "One Story Building", "3,530");
    Expect("Mortgage Value = $ 6,560", bold, kMiddle, kRows + 2 * kRow, 'C', kRow);
    for (const char* left :
         {"Entire Color Group", "Two Story Building", "Add a Building Story", "Entire color side doubles all rents."})
        EXPECT_TRUE(TextsThatRead(QString::fromLatin1(left)).isEmpty()) << left;
}

TEST_F(DeedTextsTest, LinesOfAUtilityHaveTheirPlacesHeightsAndFonts) {
    UseRents(26, "3600,610,2620,0,0,0,6660");
    PrintDeed(26);
    // From 1.3125 inch down the card, which is half a dot short of 788.
    constexpr int kTop = kCard + 788;
    Expect("----  RENT  ----", heading, kMiddle, kTop, 'C', kHeading);
    constexpr int kRows = kTop + kHeading;
    ExpectRow(0, kRows, "One Utility", "$610");
    ExpectRow(1, kRows, "Two Utilities", "2,620");
    Expect("Mortgage Value = $ 6,660", bold, kMiddle, kRows + 2 * kRow, 'C', kRow);
    Expect("UTILITY", bold, kMiddle, kCard + 75, 'C', 75);
    Expect("Value = $3,600", regular, kMiddle, kCard + 225, 'C', 108);
    Expect("DEED", bold, kMiddle, kCard + 1350, 'C', 75);
}

// The box of a property's name lies 0.875 to 1.3125 inch down the card, that of a utility's to 1.275.
TEST_F(DeedTextsTest, NamesStandInTheMiddleOfTheirBoxes) {
    const struct {
        int deed;
        double bottom;
    } rows[] = {{5, 787.5}, {26, 765}};
    for (const auto& row : rows) {
        UseRents(row.deed, "3600,610,2620,0,0,0,6660");
        basTAVL::g_oSpaces(row.deed).SetText(QStringLiteral("Moon"));
        PrintDeed(row.deed);
        const QList<PageMark> names = TextsThatRead(QStringLiteral("Moon"));
        ASSERT_EQ(names.size(), 1) << row.deed;
        const QRectF box = names[0].Box();
        EXPECT_NEAR(box.center().x(), kMiddle, 3) << row.deed;
        EXPECT_NEAR(box.center().y(), kCard + (525 + row.bottom) / 2, 12) << row.deed;
    }
}

TEST_F(DeedTextsTest, RowsOfOlderKitsHaveTheirOwnWords) {
    UseRents(5, "1500,510,2520,3530,4540,5550,6560");
    basTAVL::Let_g_sGameVersion(QStringLiteral("5"));
    PrintDeed(5);
    constexpr int kRows = kCard + 825 + kHeading;
    ExpectRow(0, kRows, "Single Property", "$510");
    ExpectRow(1, kRows, "Two Properties", "2,520");
    ExpectRow(2, kRows, "Entire Color Group", "3,530");
    ExpectRow(3, kRows, "Entire Color Side", "4,540");
    ExpectRow(4, kRows, "Add a Building Story", "@ 5,550", true);
}

} // namespace
