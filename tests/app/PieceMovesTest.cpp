// SPDX-License-Identifier: MIT
// Spaces and corners on the main window's board: copied and pasted, dragged onto one another, swapped by the keyboard.
#include "MainWindowFixture.h"

#include "game/PieceContent.h"

#include <QClipboard>
#include <QFrame>
#include <QGuiApplication>
#include <QMimeData>
#include <QRubberBand>

namespace {

constexpr QPointF kStart{0.89, 0.89};
constexpr QPointF kLoseTurn{0.11, 0.89};
constexpr QPointF kFate{0.89, 0.11};
constexpr int kNews = 3;

/// Notes when the presses on a widget were, by the screen's clock.
class PressWatch : public QObject {
public:
    QList<quint64> when;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) when.append(static_cast<QMouseEvent&>(*event).timestamp());
        return false;
    }
};

class PieceMovesTest : public MainWindowTest {
protected:
    PieceMovesTest() {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        Board().setFocus();
        Name(0, QStringLiteral("Acorn\r\nLane"));
        Name(11, QStringLiteral("Birch Road"));
        QGuiApplication::clipboard()->clear();
    }

    PictureBox& Board() const { return window->View().Board(); }
    Session& InHand() const { return window->Commands().InHand(); }
    static const C_Space& Space(int iSpace) { return TheGame().spaces[size_t(iSpace)]; }
    static QString Words(int iSpace) { return basTAVL::CRLF2Space(Space(iSpace).TextAll()); }
    void Name(int iSpace, const QString& words) const {
        C_Space space = Space(iSpace);
        space.SetText(words);
        InHand().Do(Edits::OfSpace(InHand().InHand(), iSpace, space));
    }

    QPoint At(QPointF place) const { return PointOnBoard(place.x(), place.y()); }
    void PressAt(QPointF place) const { QTest::mousePress(&Board(), Qt::LeftButton, {}, At(place)); }
    void ReleaseAt(QPointF place) const { QTest::mouseRelease(&Board(), Qt::LeftButton, {}, At(place)); }
    void MoveTo(QPoint at, Qt::MouseButtons buttons) const {
        QMouseEvent move(QEvent::MouseMove, at, Board().mapToGlobal(at), Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(&Board(), &move);
    }
    void DragTo(QPointF place) const { MoveTo(At(place), Qt::LeftButton); }
    void PointAt(QPointF place) const { MoveTo(At(place), Qt::NoButton); }
    void Drag(QPointF from, QPointF to) const {
        PressAt(from);
        DragTo(to);
        ReleaseAt(to);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    bool Lit() const { return Find<QRubberBand>("shpSwapTo").isVisible(); }
    bool Held() const { return Find<QRubberBand>("shpSwapFrom").isVisible(); }
    QString Says() const { return Find<QLabel>("lblPlace").text(); }
};

TEST_F(PieceMovesTest, AClickOpensItsEditorAsBeforeAndOnce) {
    PressAt(MiddleOf(0));
    EXPECT_EQ(routes.Take(), Strings()) << "it may become a drag";
    ReleaseAt(MiddleOf(0));
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 0")});
    ClickBoard(kLoseTurn.x(), kLoseTurn.y());
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("corner 1")});
    QTest::mousePress(&Board(), Qt::RightButton, {}, At(MiddleOf(0)));
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 0")}) << "any other button opens when it goes down";
    QTest::mouseRelease(&Board(), Qt::RightButton, {}, At(MiddleOf(0)));
    const QPointF money = MiddleOfBox(basPosit::kMoneyBox);
    PressAt(money);
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("money")}) << "nothing to drag";
    ReleaseAt(money);
}

TEST_F(PieceMovesTest, APressThatWasHeldBackKeepsItsTimeForWhoeverLooksForDoubleClicks) {
    PressWatch watch;
    Board().installEventFilter(&watch);
    QMouseEvent press(QEvent::MouseButtonPress, At(MiddleOf(0)), Board().mapToGlobal(At(MiddleOf(0))), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    press.setTimestamp(4711);
    QApplication::sendEvent(&Board(), &press);
    ReleaseAt(MiddleOf(0));
    EXPECT_EQ(watch.when, (QList<quint64>{4711, 4711}));
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 0")});
}

TEST_F(PieceMovesTest, AHandThatShakesStillClicks) {
    const QPoint at = At(MiddleOf(0));
    PressAt(MiddleOf(0));
    MoveTo(at + QPoint(QApplication::startDragDistance() - 1, 0), Qt::LeftButton);
    EXPECT_FALSE(Held());
    QTest::mouseRelease(&Board(), Qt::LeftButton, {}, at + QPoint(QApplication::startDragDistance() - 1, 0));
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 0")});
}

TEST_F(PieceMovesTest, ASpaceDraggedOntoAnotherSwapsWithItInOneStep) {
    const QString cost = Space(0).Cost;
    const Game before = TheGame();
    PressAt(MiddleOf(0));
    MoveTo(At(MiddleOf(0)) + QPoint(QApplication::startDragDistance(), 0), Qt::LeftButton);
    EXPECT_TRUE(Held());
    EXPECT_FALSE(Lit()) << "it is still over itself";
    DragTo(MiddleOf(11));
    EXPECT_TRUE(Lit());
    const QRect lit = Find<QRubberBand>("shpSwapTo").geometry();
    EXPECT_TRUE(lit.contains(At(MiddleOf(11)))) << "the place under the mouse";
    EXPECT_FALSE(lit.contains(At(MiddleOf(12))));
    ReleaseAt(MiddleOf(11));
    EXPECT_FALSE(Lit());
    EXPECT_FALSE(Held());
    EXPECT_EQ(Words(0), QStringLiteral("Birch Road"));
    EXPECT_EQ(Words(11), QStringLiteral("Acorn Lane"));
    EXPECT_EQ(Space(0).Cost, cost);
    EXPECT_EQ(routes.Take(), Strings()) << "no editor opens";
    EXPECT_EQ(InHand().UndoName(), QStringLiteral("Swap Acorn Lane and Birch Road"));
    ChooseMenu("mnuEdit_0");
    EXPECT_EQ(TheGame(), before);
}

TEST_F(PieceMovesTest, OnlySpacesWithSpacesAndCornersWithCorners) {
    const Game before = TheGame();
    for (const QPointF& to : {kLoseTurn, MiddleOf(kNews), MiddleOfBox(basPosit::kTitleBox), MiddleOf(0)}) {
        PressAt(MiddleOf(0));
        DragTo(MiddleOf(1));
        EXPECT_TRUE(Lit());
        DragTo(to);
        EXPECT_FALSE(Lit());
        ReleaseAt(to);
        EXPECT_EQ(TheGame(), before);
    }
    Drag(kStart, kFate);
    EXPECT_EQ(TheGame(), before) << "the corner of fate belongs to the kit";
    EXPECT_EQ(routes.Take(), Strings());
    Drag(kStart, kLoseTurn);
    EXPECT_EQ(TheGame().corners[0].TextAll(0), before.corners[1].TextAll(0));
    EXPECT_EQ(TheGame().corners[1].TextAll(0), before.corners[0].TextAll(0));
}

TEST_F(PieceMovesTest, WhatBelongsToTheKitIsNotDragged) {
    PressAt(MiddleOf(kNews));
    ASSERT_EQ(desktop.boxes.size(), 1) << "it is told at once, as always";
    DragTo(MiddleOf(11));
    EXPECT_FALSE(Held());
    ReleaseAt(MiddleOf(11));
    EXPECT_EQ(Words(11), QStringLiteral("Birch Road"));
}

TEST_F(PieceMovesTest, EscapeAndAnotherButtonEndADragWithoutHarm) {
    const Game before = TheGame();
    PressAt(MiddleOf(0));
    DragTo(MiddleOf(11));
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Held());
    EXPECT_FALSE(Lit());
    DragTo(MiddleOf(12));
    EXPECT_FALSE(Lit());
    ReleaseAt(MiddleOf(12));
    PressAt(MiddleOf(0));
    DragTo(MiddleOf(11));
    QMouseEvent right(QEvent::MouseButtonPress, At(MiddleOf(11)), Board().mapToGlobal(At(MiddleOf(11))),
                      Qt::RightButton, Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
    QApplication::sendEvent(&Board(), &right);
    EXPECT_FALSE(Held());
    ReleaseAt(MiddleOf(11));
    EXPECT_EQ(TheGame(), before);
    EXPECT_EQ(routes.Take(), Strings());
    ClickBoard(MiddleOf(0).x(), MiddleOf(0).y());
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 0")}) << "and all is as before";
}

TEST_F(PieceMovesTest, ADragWhoseEndWasMissedIsOver) {
    PressAt(MiddleOf(0));
    DragTo(MiddleOf(11));
    PointAt(MiddleOf(12));
    EXPECT_FALSE(Held());
    EXPECT_FALSE(Lit());
}

TEST_F(PieceMovesTest, AMagnifiedBoardLightsUpWhatIsUnderTheMouse) {
    window->mnuZoom_Click(1);
    const QRect seen = window->View().SeenBox(PlaceAt(float(MiddleOf(14).x()), float(MiddleOf(14).y())));
    const QRect other = window->View().SeenBox(PlaceAt(float(MiddleOf(15).x()), float(MiddleOf(15).y())));
    Find<QScrollBar>("vscrl").setValue(0);
    const QRect from = window->View().SeenBox(PlaceAt(float(MiddleOf(16).x()), float(MiddleOf(16).y())));
    const QRect to = window->View().SeenBox(PlaceAt(float(MiddleOf(15).x()), float(MiddleOf(15).y())));
    ASSERT_NE(seen.width(), 0);
    ASSERT_EQ(other.size(), to.size());
    QTest::mousePress(&Board(), Qt::LeftButton, {}, from.center());
    MoveTo(to.center(), Qt::LeftButton);
    EXPECT_EQ(Find<QRubberBand>("shpSwapTo").geometry(), to);
    EXPECT_EQ(Find<QRubberBand>("shpSwapFrom").geometry(), from);
    Press(Qt::Key_Escape);
    QTest::mouseRelease(&Board(), Qt::LeftButton, {}, to.center());
}

TEST_F(PieceMovesTest, WhatIsUnderTheMouseIsCopiedAndPasted) {
    PointAt(MiddleOf(0));
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Says(), QStringLiteral("Copied: Acorn Lane"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Acorn\nLane")) << "for any program";
    PointAt(MiddleOf(11));
    const QString cost = Space(11).Cost;
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Words(11), QStringLiteral("Acorn Lane"));
    EXPECT_EQ(Space(11).Cost, cost);
    EXPECT_EQ(InHand().UndoName(), QStringLiteral("Copy Acorn Lane to Birch Road"));
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Words(11), QStringLiteral("Birch Road"));
    EXPECT_EQ(routes.Take(), Strings());
}

TEST_F(PieceMovesTest, AMouseThatRestsMeansWhatTheBoardWasScrolledTo) {
    const QPoint mouse = At(MiddleOf(0));
    PointAt(MiddleOf(0));
    window->mnuZoom_Click(1);
    Find<QScrollBar>("vscrl").setValue(Find<QScrollBar>("vscrl").maximum());
    int under = -1;
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        BoardPlace place;
        place.m_iOverSpace = i;
        if (window->View().SeenBox(place).contains(mouse)) under = i;
    }
    ASSERT_GE(under, 0);
    ASSERT_NE(under, 0);
    Name(under, QStringLiteral("Here"));
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Here"));
}

TEST_F(PieceMovesTest, TheFrameComesAheadOfTheMouse) {
    PointAt(MiddleOf(11));
    Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    ASSERT_TRUE(Find<QFrame>("frmWalk").isVisible());
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Acorn\nLane"));
}

TEST_F(PieceMovesTest, AnotherGameTakesWhatWasCopied) {
    Name(0, QStringLiteral("Fig\r\nLane"));
    PointAt(MiddleOf(0));
    Press(Qt::Key_C, Qt::ControlModifier);
    const QByteArray bytes =
        QGuiApplication::clipboard()->mimeData()->data(QStringLiteral("application/x-tavlora-piece"));
    EXPECT_EQ(PieceContents::Read(bytes), PieceContents::Of(TheGame(), {PictureOwner::Kind::Space, 0}));
    InHand().SetSomethingChanged(false);
    ChooseMenu("mnuFile_0");
    ASSERT_NE(Words(0), QStringLiteral("Fig Lane"));
    PointAt(kLoseTurn);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TheGame().corners[1].TextAll(0), QStringLiteral("Fig\r\nLane"));
}

TEST_F(PieceMovesTest, WithoutAPieceItIsToldHowToPointAtOne) {
    PointAt(MiddleOf(kNews));
    Press(Qt::Key_C, Qt::ControlModifier);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.startsWith(QStringLiteral("Point at a space or a corner")));
    PointAt(MiddleOf(0));
    Press(Qt::Key_C, Qt::ControlModifier);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&Board(), &leave);
    const Game before = TheGame();
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(TheGame(), before);
}

TEST_F(PieceMovesTest, TheKeyboardSwapsByMenuAndFrame) {
    Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    ChooseMenu("mnuEdit_43");
    EXPECT_EQ(Says(), QStringLiteral("Swap Acorn Lane with: click another one, or walk to it and press Enter."));
    EXPECT_TRUE(Held());
    Press(Qt::Key_Tab);
    const QString other = Words(1);
    Press(Qt::Key_Return);
    EXPECT_EQ(Words(0), other);
    EXPECT_EQ(Words(1), QStringLiteral("Acorn Lane"));
    EXPECT_FALSE(Held());
    EXPECT_EQ(routes.Take(), Strings());
    Press(Qt::Key_Return);
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 1")}) << "Enter opens again";
}

TEST_F(PieceMovesTest, TheOtherOneMayBeClickedAndEscapeLeavesAllAsItIs) {
    const Game before = TheGame();
    PointAt(MiddleOf(0));
    ChooseMenu("mnuEdit_43");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Held());
    ChooseMenu("mnuEdit_43");
    ClickBoard(kLoseTurn.x(), kLoseTurn.y());
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.startsWith(QStringLiteral("A space swaps with another space")));
    EXPECT_EQ(TheGame(), before);
    PointAt(MiddleOf(0));
    ChooseMenu("mnuEdit_43");
    PointAt(MiddleOf(11));
    EXPECT_TRUE(Lit());
    ClickBoard(MiddleOf(11).x(), MiddleOf(11).y());
    EXPECT_EQ(Words(0), QStringLiteral("Birch Road"));
    EXPECT_EQ(routes.Take(), Strings());
}

TEST_F(PieceMovesTest, AChangeOfTheGameEndsTheChoice) {
    PointAt(MiddleOf(0));
    ChooseMenu("mnuEdit_43");
    Name(5, QStringLiteral("Elsewhere"));
    EXPECT_FALSE(Held());
    ClickBoard(MiddleOf(11).x(), MiddleOf(11).y());
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 11")});
}

} // namespace
