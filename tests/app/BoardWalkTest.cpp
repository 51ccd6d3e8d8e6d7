// SPDX-License-Identifier: MIT
// The board without a mouse: ways through its places, the frame, what it says, and what opens.
#include "MainWindowFixture.h"

#include "app/BoardWalk.h"
#include "check/GamePiece.h"

#include <QFrame>

namespace {

BoardPlace Space(int space) { return BoardPlace::Of(GamePiece::Space(space)); }
BoardPlace Corner(int corner) { return BoardPlace::Of(GamePiece::Corner(corner)); }

class BoardWalkTest : public MainWindowTest {
protected:
    BoardWalkTest() {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        window->View().Board().setFocus();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    QString Says() const { return Find<QLabel>("lblPlace").text(); }
    QFrame& Frame() const { return Find<QFrame>("frmWalk"); }
};

TEST_F(BoardWalkTest, TheOrderOfPlayGoesOnceThroughEveryPlace) {
    const auto& places = BoardWays::Places();
    ASSERT_EQ(places.size(), 37);
    EXPECT_EQ(places[0], Corner(0));
    EXPECT_EQ(places[1], Space(0));
    EXPECT_EQ(places[8], Corner(1));
    EXPECT_EQ(places[31], Space(27));
    for (size_t i = 0; i < places.size(); ++i)
        EXPECT_EQ(std::count(places.begin(), places.end(), places[i]), 1) << i;
    // Neighbours in the order of play touch on the board.
    for (size_t i = 0; i + 1 < 32; ++i)
        EXPECT_TRUE(places[i].Box().adjusted(-0.01, -0.01, 0.01, 0.01).intersects(places[i + 1].Box())) << i;
    EXPECT_FALSE(BoardWays::Next(places.back(), false));
    EXPECT_FALSE(BoardWays::Next(places.front(), true));
}

TEST_F(BoardWalkTest, ArrowsGoToTheNeighbour) {
    EXPECT_EQ(BoardWays::Towards(Corner(0), Qt::Key_Left), Space(0));
    EXPECT_EQ(BoardWays::Towards(Space(6), Qt::Key_Left), Corner(1));
    EXPECT_EQ(BoardWays::Towards(Corner(1), Qt::Key_Up), Space(7));
    EXPECT_EQ(BoardWays::Towards(Corner(0), Qt::Key_Up), Space(27));
    EXPECT_FALSE(BoardWays::Towards(Corner(0), Qt::Key_Down));
    for (const BoardPlace& place : BoardWays::Places()) {
        bool leads = false;
        for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
            leads = leads || BoardWays::Towards(place, arrow).has_value();
        EXPECT_TRUE(leads);
    }
}

TEST_F(BoardWalkTest, ArrowsReachEveryPlace) {
    std::vector<BoardPlace> reached = {Corner(0)};
    for (size_t i = 0; i < reached.size(); ++i) {
        for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
            const auto next = BoardWays::Towards(reached[i], arrow);
            if (next && std::find(reached.begin(), reached.end(), *next) == reached.end()) reached.push_back(*next);
        }
    }
    EXPECT_EQ(reached.size(), BoardWays::Places().size());
}

TEST_F(BoardWalkTest, PlacesAreSpokenAsAFamilyWould) {
    Edit(QStringLiteral("Fish\r\nMarket"));
    const Game& game = window->Commands().InHand().InHand();
    EXPECT_EQ(BoardWays::Spoken(Space(4), game), QStringLiteral("Fish Market, space 5 of 28, price 1000 dollars"));
    EXPECT_EQ(BoardWays::Spoken(Corner(1), game), QStringLiteral("Lose Turn, corner 2 of 4"));
    EXPECT_FALSE(BoardWays::Spoken(Space(10), game).contains(QStringLiteral("price"))) << "lotto has none";
    for (const BoardPlace& place : BoardWays::Places())
        EXPECT_FALSE(BoardWays::Spoken(place, game).isEmpty());
}

TEST_F(BoardWalkTest, AFrameWalksAndSaysWhereItStands) {
    EXPECT_FALSE(Frame().isVisible());
    Press(Qt::Key_Left);
    EXPECT_TRUE(Frame().isVisible());
    Press(Qt::Key_Left);
    EXPECT_EQ(Frame().geometry(), window->View().SeenBox(Space(0)));
    EXPECT_TRUE(Says().endsWith(QStringLiteral("space 1 of 28, price 600 dollars"))) << Says().toStdString();
    EXPECT_EQ(window->View().Board().accessibleName(), QStringLiteral("Game board: ") + Says());
    Press(Qt::Key_Tab);
    EXPECT_EQ(Frame().geometry(), window->View().SeenBox(Space(1)));
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Frame().geometry(), window->View().SeenBox(Space(0)));
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Frame().isVisible());
    EXPECT_EQ(Says(), QString());
}

TEST_F(BoardWalkTest, TheDarkFrameFillsTheLightOneButForTwoPixelsOnEachSide) {
    Press(Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(Find<QFrame>("frmWalkInner").geometry(), Frame().rect().adjusted(2, 2, -2, -2));
}

TEST_F(BoardWalkTest, EnterOpensWhatTheFrameStandsOn) {
    const QStringList places = {QStringLiteral("corner 0"), QStringLiteral("space 0"), QStringLiteral("space 1")};
    for (const QString& place : places) {
        Press(Qt::Key_Tab);
        Press(Qt::Key_Return);
        EXPECT_EQ(routes.Take(), Strings{place});
    }
    for (int i = 3; i < 37; ++i) {
        Press(Qt::Key_Tab);
        Press(Qt::Key_Space);
    }
    const QStringList opened = routes.Take();
    EXPECT_EQ(opened.size(), 34 - 5) << "all but what belongs to the kit";
    EXPECT_EQ(desktop.Texts().size(), 5) << "which is told";
    EXPECT_EQ(opened.mid(opened.size() - 5),
              (Strings{QStringLiteral("titles"), QStringLiteral("tokens"), QStringLiteral("news 0"),
                       QStringLiteral("news 1"), QStringLiteral("money")}));
}

TEST_F(BoardWalkTest, TabLeavesTheBoardBehindItsLastPlace) {
    for (int i = 0; i < 37; ++i)
        Press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &window->View().Board());
    Press(Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), &window->View().Board());
    EXPECT_FALSE(Frame().isVisible());
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Frame().geometry(), window->View().SeenBox(BoardWays::Places().back()));
}

TEST_F(BoardWalkTest, TheFrameFollowsZoomAndScrolling) {
    Press(Qt::Key_Tab);
    ChooseMenu("mnuZoom_3");
    EXPECT_EQ(Frame().geometry(), window->View().SeenBox(Corner(0)));
    Press(Qt::Key_Tab);
    const QRect board(QPoint(0, 0), window->View().Board().size());
    EXPECT_TRUE(board.contains(Frame().geometry().center())) << "it is scrolled into sight";
    EXPECT_EQ(Frame().geometry(), window->View().SeenBox(Space(0)));
}

TEST_F(BoardWalkTest, AClickTakesTheFrameAway) {
    Press(Qt::Key_Tab);
    ClickBoard(MiddleOf(4).x(), MiddleOf(4).y());
    EXPECT_FALSE(Frame().isVisible());
}

TEST_F(BoardWalkTest, ZoomKeepsTheMiddleAndIsMarkedInTheMenu) {
    EXPECT_TRUE(Find<QAction>("mnuZoom_0").isChecked());
    ChooseMenu("mnuZoom_2");
    EXPECT_TRUE(Find<QAction>("mnuZoom_2").isChecked());
    EXPECT_FALSE(Find<QAction>("mnuZoom_0").isChecked());
    const int half = Find<QScrollBar>("hscrl").maximum() / 2;
    EXPECT_NEAR(Find<QScrollBar>("hscrl").value(), half, 2);
    EXPECT_NEAR(Find<QScrollBar>("vscrl").value(), half, 2);
    window->View().ScrollTo(Space(10));
    const QPoint before = window->View().SeenBox(Space(10)).center();
    ChooseMenu("mnuZoom_3");
    EXPECT_NEAR(window->View().SeenBox(Space(10)).center().y(), before.y(), 3) << "what was in the middle stays there";
}

TEST_F(BoardWalkTest, AToolBarButtonTakesASecondClickAtTheSamePlace) {
    ClickToolBar(4);
    const QStringList first = routes.Take();
    EXPECT_EQ(first.size(), 1);
    ClickToolBar(4);
    EXPECT_EQ(routes.Take(), first);
}

} // namespace
