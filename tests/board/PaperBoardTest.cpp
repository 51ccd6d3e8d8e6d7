// SPDX-License-Identifier: MIT
// The board as paper has it: without the doors of a screen, with places for the decks.
#include "board/basPositPaint.h"
#include "board/basTAVL_news.h"
#include "board/BoardPicture.h"
#include "platform/paint/PictureForm.h"
#include "platform/paint/Recording.h"
#include "support/BoardFixture.h"
#include "support/Ink.h"

#include <set>

namespace {

class PaperBoardTest : public BoardTest {
protected:
    PaperBoardTest() { basPosit::PosInit(); }

    static basPosit::DeckPlaces PlacesOf(double inches) {
        return basPosit::DeckPlacesOf({float(3.1 / inches), float(1.72 / inches), false});
    }
    static QImage Painted(bool bSavesInk) {
        const auto board = basPosit::BoardOnPaper(16, {3.1, 1.72}, bSavesInk);
        PictureForm form(QSizeF(16, 16), 50);
        form.PaintDrawing(*board, {board->Whole(), {0, 0, 800, 800}});
        return form.Take().Image();
    }
};

TEST_F(PaperBoardTest, DecksLieInThePanelUnderTheTitlesOnBoardsOfAllSizes) {
    for (const double inches : {8.0, 9.0, 10.0, 12.0, 16.0, 20.0, 40.0}) {
        const basPosit::DeckPlaces places = PlacesOf(inches);
        const basPosit::BoardRect& panel = basPosit::m_CenterRect(basPosit::kPanel);
        for (const basPosit::BoardRect& box : places.box) {
            EXPECT_GT(box.x1, panel.x1) << inches;
            EXPECT_LT(box.x2, panel.x2) << inches;
            EXPECT_LT(box.y2, panel.y2) << inches;
            EXPECT_GT(box.y1, basPosit::m_CenterRect(basPosit::kSubtitleBox).y2) << inches;
            const double w = box.Width() * inches;
            const double h = box.Height() * inches;
            EXPECT_NEAR(places.bTurned ? h : w, 3.1, 1e-3) << inches;
            EXPECT_NEAR(places.bTurned ? w : h, 1.72, 1e-3) << inches;
        }
        EXPECT_LT(places.box[0].x2, places.box[1].x1) << inches;
    }
}

TEST_F(PaperBoardTest, CardsLieTurnedOnSmallBoardsOnly) {
    EXPECT_TRUE(PlacesOf(8).bTurned);
    EXPECT_TRUE(PlacesOf(9.5).bTurned);
    EXPECT_FALSE(PlacesOf(12).bTurned);
    EXPECT_FALSE(PlacesOf(16).bTurned);
}

TEST_F(PaperBoardTest, TheScreensBoxesForMoneyAndTokensAreGone) {
    const QImage paper = Painted(false);
    std::set<QRgb> colors;
    for (int y = 200; y < 650; ++y) {
        for (int x = 200; x < 600; ++x)
            colors.insert(paper.pixel(x, y));
    }
    EXPECT_TRUE(colors.contains(qRgb(0, 176, 255))) << "the panel";
    EXPECT_TRUE(colors.contains(qRgb(128, 128, 192))) << "a deck's place";
    EXPECT_FALSE(colors.contains(qRgb(128, 224, 128))) << "Money";
    EXPECT_FALSE(colors.contains(qRgb(219, 112, 147))) << "Tokens";
}

TEST_F(PaperBoardTest, TheTitleOfADeckStandsInTheMiddleOfItsPlace) {
    for (const int deck : {0, 1})
        basPosit::SetSpecialText(basTAVL::NewsTitleRecord(deck), QStringLiteral("HH HHHH"));
    const QImage paper = Painted(false);
    for (const basPosit::BoardRect& box : PlacesOf(16).box) {
        const QRectF place = QRectF(QPointF(box.x1, box.y1) * 800, QPointF(box.x2, box.y2) * 800);
        const QRect words = DarkBox(paper, place.adjusted(4, 4, -4, -4).toRect(), 60);
        EXPECT_GT(words.height(), place.height() / 4);
        EXPECT_NEAR(QRectF(words).center().x(), place.center().x(), 4);
        EXPECT_NEAR(QRectF(words).center().y(), place.center().y(), 4);
    }
}

TEST_F(PaperBoardTest, TheNextScreenHasThemAgain) {
    Painted(true);
    const QImage screen = basPosit::BoardPicture(800).Image();
    EXPECT_EQ(screen.pixelColor(210, 604), QColor(128, 224, 128));
    EXPECT_EQ(screen.pixelColor(32, 768), QColor(224, 255, 224)) << "a corner's face";
}

TEST_F(PaperBoardTest, SavingInkLeavesGroundsWhiteAndEdgesColoured) {
    const QImage paper = Painted(true);
    EXPECT_EQ(paper.pixelColor(400, 560), QColor(Qt::white)) << "the panel";
    EXPECT_EQ(paper.pixelColor(32, 768), QColor(Qt::white)) << "a corner's face";
    const auto share = [](const QImage& image, QColor color) {
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                found += image.pixelColor(x, y) == color ? 1 : 0;
        }
        return found;
    };
    const QColor red(255, 0, 0);
    EXPECT_GT(share(paper, red), 100);
    EXPECT_LT(share(paper, red), share(Painted(false), red) / 2);
}

} // namespace
