// SPDX-License-Identifier: MIT
#include "nokit/BoardPages.h"
#include "nokit/NoKitSheets.h"
#include "nokit/PageCanvas.h"

#include <gtest/gtest.h>

namespace {

// Where a board could be glued, and where its foot stands.
QRectF RoomOn(QSizeF paperInches) {
    const QSizeF printable = PrintableOf(paperInches);
    constexpr double kBorder = PageCanvas::kBorder;
    return {kBorder - 1e-9, kBorder - 1e-9, printable.width() - 2 * kBorder + 2e-9, printable.height() - kBorder};
}

TEST(BoardGridTest, BoardsOfAllSizesFitOnAllPapersInAllWays) {
    for (const PaperSize paper : {PaperSize::Letter, PaperSize::A4, PaperSize::Tabloid, PaperSize::A3}) {
        for (const BoardWay way : {BoardWay::Pages, BoardWay::Quarters}) {
            for (const double inches : {8.0, 9.7, 16.0, 19.366, 20.0, 31.0, 40.0}) {
                NoKitChoices choices;
                choices.paper = paper;
                choices.way = way;
                choices.dblWantedInches = inches;
                const BoardGrid grid = GridOf(choices, {{inches / 2 - 0.2, 1, 0.4, 0.2}, {2, inches / 3, 0.7, 0.3}});
                for (size_t column = 0; column < grid.columns.size(); ++column) {
                    for (size_t row = 0; row < grid.rows.size(); ++row) {
                        const QRectF place = grid.PlaceOf(column, row);
                        EXPECT_TRUE(RoomOn(grid.paperInches).contains(place)) << inches << ' ' << int(paper);
                        EXPECT_EQ(place.size(), grid.ShownBy(column, row).size());
                    }
                }
                EXPECT_DOUBLE_EQ(grid.columns.front().from, 0);
                EXPECT_DOUBLE_EQ(grid.columns.back().shownTo, inches);
                EXPECT_DOUBLE_EQ(grid.rows.back().shownTo, inches);
            }
        }
    }
}

TEST(BoardGridTest, QuartersMeetInTheMiddleWithoutGlue) {
    NoKitChoices choices;
    choices.way = BoardWay::Quarters;
    const BoardGrid grid = GridOf(choices, {});
    int cuts = 0;
    for (const BoardJoins::Strip& strip : grid.columns) {
        if (strip.to != 8) continue;
        EXPECT_DOUBLE_EQ(strip.shownTo, 8);
        ++cuts;
    }
    EXPECT_EQ(cuts, 1);
}

TEST(BoardGridTest, PagesLieAsNeedsTheFewest) {
    NoKitChoices choices;
    EXPECT_EQ(GridOf(choices, {}).Pages(), 6U);
    choices.dblWantedInches = 19.366;
    const BoardGrid kit = GridOf(choices, {});
    EXPECT_EQ(kit.Pages(), 6U);
    EXPECT_GT(kit.paperInches.width(), kit.paperInches.height()) << "lengthwise: upright it takes nine";
    choices.paper = PaperSize::A3;
    EXPECT_EQ(GridOf(choices, {}).Pages(), 4U);
}

TEST(BoardGridTest, PagesAreNamedByColumnAndRow) {
    EXPECT_EQ(BoardGrid::NameOf(0, 0), QStringLiteral("A1"));
    EXPECT_EQ(BoardGrid::NameOf(2, 1), QStringLiteral("C2"));
}

TEST(NoKitChoicesTest, LengthsAreReadInInchesAndMetres) {
    EXPECT_EQ(NoKitChoices::WantedInchesOf(QStringLiteral("16in")), 16.0);
    EXPECT_EQ(NoKitChoices::WantedInchesOf(QStringLiteral("16.5")), 16.5);
    EXPECT_NEAR(NoKitChoices::WantedInchesOf(QStringLiteral("40cm")).value_or(0), 15.748, 0.001);
    EXPECT_NEAR(NoKitChoices::WantedInchesOf(QStringLiteral("508mm")).value_or(0), 20, 1e-9);
    EXPECT_EQ(NoKitChoices::WantedInchesOf(QStringLiteral("kit")), NoKitChoices::kAsTheKit);
    for (const char* wrong : {"", "in", "7.9in", "40.1", "1017mm", "sixteen", "16 ft", "-16", "0", "nan", "1e9"})
        EXPECT_EQ(NoKitChoices::WantedInchesOf(QString::fromLatin1(wrong)), std::nullopt) << wrong;
}

} // namespace
