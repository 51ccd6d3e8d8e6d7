// SPDX-License-Identifier: MIT
// The panel beside the board: its coming and going, its tabs, and the guide in it.
#include "MainWindowFixture.h"

#include "windows/photos/PhotoTab.h"
#include "windows/side/GuideTab.h"

#include <QCommandLinkButton>
#include <QTabBar>
#include <QToolButton>

namespace {

class SidePanelTest : public MainWindowTest {
protected:
    SidePanelTest() { Widen(); }
    void Widen() const {
        window->resize(1300, 700);
        QApplication::processEvents();
    }
    SidePanel& Panel() const { return Find<SidePanel>("SidePanel"); }
    QToolButton& Handle() const { return Find<QToolButton>("cmdSideHandle"); }
    QCommandLinkButton& StepButton(int step) const {
        return Find<QCommandLinkButton>(qPrintable(QStringLiteral("cmdStep_%1").arg(step)));
    }
    void Click(QAbstractButton& button) const { QTest::mouseClick(&button, Qt::LeftButton); }
    QRect BoardAt() const { return window->View().Board().geometry(); }
    bool IsMarked() const { return Find<QAction>("mnuView_21").isChecked(); }
};

TEST_F(SidePanelTest, StandsBesideTheBoardWhereThereIsRoom) {
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_EQ(BoardAt().left(), 8);
    EXPECT_GT(Panel().x(), BoardAt().right());
    window->resize(BoardAt().width() + 16 + 239, window->height());
    QApplication::processEvents();
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_FALSE(Handle().isVisible());
    EXPECT_EQ(BoardAt().left(), 8);
    window->resize(window->width() + 1, window->height());
    QApplication::processEvents();
    EXPECT_TRUE(Panel().isVisible()) << "with 240 pixels to spare";
}

TEST_F(SidePanelTest, HandleAndMenuHideItAndTheBoardMovesToTheMiddle) {
    EXPECT_EQ(Handle().toolTip(), QStringLiteral("Hide the side panel"));
    Click(Handle());
    EXPECT_EQ(Handle().toolTip(), QStringLiteral("Show the side panel"));
    EXPECT_EQ(Handle().accessibleName(), QStringLiteral("Show the side panel"));
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_FALSE(IsMarked());
    const int left = BoardAt().left();
    EXPECT_NEAR(left, Handle().x() - BoardAt().right(), 2);
    EXPECT_EQ(Find<QPushButton>("cmd_0").x(), left);
    ChooseMenu("mnuView_21");
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_TRUE(IsMarked());
    EXPECT_EQ(BoardAt().left(), 8);
}

TEST_F(SidePanelTest, BoardInTheMiddleIsClickedWhereItLies) {
    Click(Handle());
    ClickBoard(MiddleOf(4).x(), MiddleOf(4).y());
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 4")});
}

TEST_F(SidePanelTest, StaysAsItWasAtTheNextStart) {
    Click(Handle());
    Start();
    Widen();
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_TRUE(Handle().isVisible());
}

TEST_F(SidePanelTest, AnotherTabIsOneCallAndComesToTheFrontAgain) {
    Panel().AddTab("Other", QStringLiteral("Other"), new QLabel(QStringLiteral("Here")));
    QTest::mouseClick(Panel().tabBar(), Qt::LeftButton, {}, Panel().tabBar()->tabRect(3).center());
    EXPECT_EQ(Panel().currentIndex(), 3);
    EXPECT_TRUE(Find<QLabel>("Other").isVisible());
    EXPECT_EQ(Ini("SideTab"), QStringLiteral("Other"));
    EXPECT_TRUE(Panel().ShowTab(GuideTab::kName));
    Panel().ReadSettings();
    EXPECT_EQ(Panel().currentIndex(), 3);
    EXPECT_FALSE(Panel().ShowTab("Nowhere"));
}

TEST_F(SidePanelTest, AStepOpensItsPlace) {
    bool dealing = false;
    WithModal("frmDealPhotos", [&dealing](QWidget& deal) {
        dealing = true;
        deal.close();
    });
    const Strings opened = {QStringLiteral("titles"), QString(), QStringLiteral("space 0"), QStringLiteral("news 0"),
                            QStringLiteral("print")};
    for (int i = 0; i < FirstSteps::kSteps; ++i) {
        Click(StepButton(i));
        EXPECT_EQ(routes.Take().join(u','), opened[i]);
    }
    EXPECT_TRUE(dealing) << "the photos are dealt in a window of their own";
}

TEST_F(SidePanelTest, AStepIsTickedWhileItIsDone) {
    Session& session = window->Commands().InHand();
    EXPECT_FALSE(StepButton(0).description().startsWith(QStringLiteral("Done")));
    const QImage unticked = StepButton(0).icon().pixmap(16).toImage();
    Titles titles = session.InHand().titles;
    titles.Text(1).sText = QStringLiteral("OURS");
    session.Do(Edits::OfTitles(session.InHand(), titles));
    EXPECT_EQ(StepButton(0).description(), QStringLiteral("Done."));
    EXPECT_NE(StepButton(0).icon().pixmap(16).toImage(), unticked) << "ticked";
    session.Undo();
    EXPECT_FALSE(StepButton(0).description().startsWith(QStringLiteral("Done")));
    EXPECT_EQ(StepButton(2).description(), QStringLiteral("Click a space and type its name."));
    Edit(QStringLiteral("Our street"));
    EXPECT_EQ(StepButton(2).description(), QStringLiteral("1 of 24 names are yours."));
}

TEST_F(SidePanelTest, AStepTellsHowManyPiecesAreTheFamilysOwn) {
    Session& session = window->Commands().InHand();
    EXPECT_EQ(StepButton(1).description(), QStringLiteral("Give the spaces pictures of your own."));
    EXPECT_EQ(StepButton(3).description(), QStringLiteral("What happened to your family?"));
    Game game = session.InHand();
    for (C_Space& space : game.spaces)
        space.Image.Let_FullPath(PathOf(QStringLiteral("us.jpg")));
    for (int i = 0; i < 12; ++i) {
        game.news[0][size_t(i)].Let_Text(QStringLiteral("Ours"));
        game.news[1][size_t(i)].Let_Text(i == 0 ? QStringLiteral("Ours") : game.news[1][size_t(i)].Text());
    }
    session.Do({QStringLiteral("All of it"), game});
    // Four of the 28 spaces belong to the kit.
    EXPECT_EQ(StepButton(1).description(), QStringLiteral("Done: 24 of 24 spaces show yours."));
    EXPECT_EQ(StepButton(3).description(), QStringLiteral("Done: 13 of 24 cards are yours."));
}

TEST_F(SidePanelTest, GuideGoesForEverAndTheMenuBringsItBack) {
    Panel().SetTabShown(CheckList::kName, false);
    Panel().SetTabShown(PhotoTab::kName, false);
    Click(Find<QPushButton>("cmdGuideAway"));
    EXPECT_FALSE(Panel().isVisible()) << "nothing else stands in it";
    EXPECT_FALSE(Handle().isVisible());
    Start();
    Widen();
    EXPECT_FALSE(Panel().IsTabShown(GuideTab::kName));
    EXPECT_FALSE(StepButton(0).isVisible());
    ChooseMenu("mnuHelp_21");
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_TRUE(StepButton(0).isVisible());
}

TEST_F(SidePanelTest, WheelOverThePanelLeavesTheBoardAlone) {
    QWheelEvent event(QPointF(5, 200), Panel().mapToGlobal(QPointF(5, 200)), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Panel(), &event);
    EXPECT_EQ(window->View().Zoom(), 1.0F);
}

} // namespace
