// SPDX-License-Identifier: MIT
// The board as a door to the editors, zoom and scrolling, tool tips.
#include "MainWindowFixture.h"
#include "services/basMsgQueue.h"

namespace {

TEST_F(MainWindowTest, Edge_VerySmallWindowKeepsTheBoardAt1800Twips) {
    // As on a screen that hasn't the room for a window of use.
    window->centralWidget()->setMinimumSize(1, 1);
    QApplication::processEvents();
    window->resize(10, 10);
    EXPECT_EQ(window->View().Board().size(), QSize(120, 120));
    // Told straight, where no desktop keeps a window from becoming too small.
    EXPECT_EQ(ComputeMainLayout({QSize(150, 150), QSize(150, 150), 390, 375}, 1.0F).picBoard.size(), QSize(1800, 1800));
}

TEST_F(MainWindowTest, AWindowAsSmallAsItGoesShowsItsButtonsWhole) {
    window->resize(10, 10);
    QApplication::processEvents();
    for (int i = 0; i < MainLayout::kButtons; ++i) {
        const auto& button = Find<QPushButton>(QStringLiteral("cmd_%1").arg(i).toLatin1().constData());
        const QString caption = button.text().remove(u'&');
        EXPECT_GE(button.width(), QFontMetrics(QApplication::font(&button)).horizontalAdvance(caption)) << i;
        EXPECT_TRUE(window->centralWidget()->rect().contains(button.geometry())) << i;
    }
    EXPECT_GT(window->View().Board().width(), 120) << "more than the board may be left";
}

TEST_F(MainWindowTest, Edge_ClickOnAZoomedBoardFindsWhatIsReallyThere) {
    ChooseMenu("mnuZoom_1");
    Find<QScrollBar>("hscrl").setValue(32767);
    Find<QScrollBar>("vscrl").setValue(0);
    // At the far right and top the visible quarter begins at one half of the board's width.
    const QPointF space = MiddleOf(22);
    ClickBoard((space.x() - 0.5) * 2, space.y() * 2);
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 22")});
    Find<QScrollBar>("hscrl").setValue(0);
    Find<QScrollBar>("vscrl").setValue(32767);
    const QPointF other = MiddleOf(8);
    ClickBoard(other.x() * 2, (other.y() - 0.5) * 2);
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 8")});
}

TEST_F(MainWindowTest, Edge_MouseThatDoesNotMoveChangesNoTip) {
    const QPointF money = MiddleOfBox(5);
    const QPoint at = PointOnBoard(money.x(), money.y());
    window->View().picBoard_MouseMove(0, 0, float(at.x() * 15), float(at.y() * 15));
    EXPECT_EQ(BoardTip(), QStringLiteral("Click to edit Money"));
    window->View().Board().setToolTip(QStringLiteral("untouched"));
    window->View().picBoard_MouseMove(0, 0, float(at.x() * 15), float(at.y() * 15));
    EXPECT_EQ(BoardTip(), QStringLiteral("untouched"));
    window->View().picBoard_MouseMove(0, 0, float(at.x() * 15 + 15), float(at.y() * 15));
    EXPECT_EQ(BoardTip(), QStringLiteral("Click to edit Money"));
}

TEST_F(MainWindowTest, EverySpaceOpensItsEditorOrSaysWhyNot) {
    for (int space = 0; space < basTAVL::kSpaces; ++space) {
        desktop.boxes.clear();
        const QPointF at = MiddleOf(space);
        ClickBoard(at.x(), at.y());
        const bool lotto = space == 10 || space == 24;
        const bool news = space == 3 || space == 17;
        if (!lotto && !news) {
            EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space %1").arg(space)});
            continue;
        }
        EXPECT_TRUE(routes.Take().isEmpty()) << space;
        ASSERT_EQ(desktop.boxes.size(), 1) << space;
        EXPECT_EQ(desktop.boxes[0].iStyle, vbInformation);
        EXPECT_EQ(desktop.boxes[0].sText, lotto ? QStringLiteral("The 'Lottery' spaces cannot be edited.")
                                                : QStringLiteral("The 'News' spaces cannot be edited."));
    }
}

TEST_F(MainWindowTest, EveryCornerAndBoxOpensItsEditor) {
    for (int corner = 0; corner < 4; ++corner)
        ClickBoard(kCornerMiddles[corner].x, kCornerMiddles[corner].y);
    EXPECT_EQ(routes.Take(),
              (Strings{QStringLiteral("corner 0"), QStringLiteral("corner 1"), QStringLiteral("corner 2")}));
    EXPECT_EQ(desktop.Texts(), Strings{QStringLiteral("The 'FATE!' space cannot be edited.")});
    for (int box = 1; box <= 6; ++box) {
        const QPointF at = MiddleOfBox(box);
        ClickBoard(at.x(), at.y());
    }
    EXPECT_EQ(routes.Take(), (Strings{QStringLiteral("titles"), QStringLiteral("titles"), QStringLiteral("news 0"),
                                      QStringLiteral("news 1"), QStringLiteral("money"), QStringLiteral("tokens")}));
    ClickBoard(0.5, 0.45);
    EXPECT_TRUE(routes.Take().isEmpty()) << "nothing lies there";
}

TEST_F(MainWindowTest, ChangeIsAutosavedAndSpaceRepaints) {
    routes.onEdit = [this] {
        Edit(QStringLiteral("XXXX"));
        return true;
    };
    window->View().Board().SetBackColor(Color::White());
    window->EditNews(0);
    EXPECT_TRUE(HasAutosave());
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
    const QPointF panel(0.5, 0.45);
    EXPECT_EQ(SeenAt(panel.x(), panel.y()), Color::White()) << "news don't show on the board";
    window->EditSpaceText(4);
    EXPECT_TRUE(HasBackup());
    EXPECT_EQ(SeenAt(panel.x(), panel.y()), Color::FromValue(0xFFB000));
}

TEST_F(MainWindowTest, UnchangedRecordIsNotAutosaved) {
    window->EditSpaceText(4);
    window->EditCornerText(0);
    window->EditCenterText();
    window->EditMoney();
    window->EditToken();
    EXPECT_FALSE(HasAutosave());
    EXPECT_EQ(routes.Take().size(), 5);
}

TEST_F(MainWindowTest, ThumbnailsOfTokensAreFetchedAgainAfterTheirEditorInAnyCase) {
    basTAVL::g_oTokens(2).SetImagePath(QStringLiteral(TAVLORA_DATA_DIR "/fate.dat"));
    const QString thumbnail = basTAVL::g_oTokens(2).Image.GetThumbnail(false);
    ASSERT_TRUE(QFile::remove(thumbnail)) << thumbnail.toStdString();
    window->EditToken();
    EXPECT_TRUE(QFileInfo::exists(thumbnail));
    EXPECT_FALSE(window->Commands().InHand().IsUnsaved());
}

TEST_F(MainWindowTest, BoardShowsTheColoursOfItsTables) {
    EXPECT_EQ(SeenAt(0.5, 0.45), Color::FromValue(0xFFB000)) << "the panel in the middle";
    EXPECT_EQ(SeenAt(0.01, 0.5), Color::White()) << "outside the board";
    const basPosit::BoardRect& band = basPosit::m_SpaceRect(0, basPosit::SpacePart::Band);
    EXPECT_EQ(SeenAt(double(band.x1) + 0.01, double(band.y1 + band.y2) / 2), basPosit::m_lPropColor(0));
}

TEST_F(MainWindowTest, ZoomShowsScrollBarsAndAPartOfTheBoard) {
    EXPECT_FALSE(Find<QScrollBar>("hscrl").isVisible());
    const int whole = window->View().Board().width();
    ChooseMenu("mnuZoom_2");
    EXPECT_FLOAT_EQ(window->View().Zoom(), 3.0F);
    EXPECT_TRUE(Find<QScrollBar>("hscrl").isVisible());
    EXPECT_TRUE(Find<QScrollBar>("vscrl").isVisible());
    EXPECT_EQ(window->View().Board().width(), whole - 16);
    EXPECT_EQ(Find<QScrollBar>("vscrl").geometry().left(), window->View().Board().geometry().right() + 1);
    Find<QScrollBar>("hscrl").setValue(32767);
    EXPECT_EQ(basPosit::GetOffsetX(), -2 * window->View().Board().width());
    EXPECT_EQ(SeenAt(0.99, 0.5), Color::White()) << "the margin at the right of the board";
    ChooseMenu("mnuZoom_0");
    EXPECT_FALSE(Find<QScrollBar>("hscrl").isVisible());
    EXPECT_EQ(basPosit::GetOffsetX(), 0);
    window->mnuZoom_Click(3);
    window->mnuView_Click(0);
    EXPECT_FLOAT_EQ(window->View().Zoom(), 1.0F);
}

TEST_F(MainWindowTest, WheelZoomsWithCtrlAndScrollsWithout) {
    const QPointF at = MiddleOf(5);
    const QPoint mouse = PointOnBoard(at.x(), at.y());
    Wheel(1, Qt::ControlModifier, mouse);
    EXPECT_FLOAT_EQ(window->View().Zoom(), 2.0F);
    QTest::mouseClick(&window->View().Board(), Qt::LeftButton, {}, mouse);
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("space 5")}) << "what was under the mouse stays there";
    Wheel(9, Qt::ControlModifier, mouse);
    EXPECT_FLOAT_EQ(window->View().Zoom(), 4.0F);
    Find<QScrollBar>("vscrl").setValue(0);
    Wheel(-1, {}, mouse);
    EXPECT_GT(Find<QScrollBar>("vscrl").value(), 0);
    Find<QScrollBar>("hscrl").setValue(0);
    Wheel(-1, Qt::ShiftModifier, mouse);
    EXPECT_GT(Find<QScrollBar>("hscrl").value(), 0);
    Wheel(-9, Qt::ControlModifier, mouse);
    EXPECT_FLOAT_EQ(window->View().Zoom(), 1.0F);
}

TEST_F(MainWindowTest, KeysScrollAZoomedBoard) {
    const QScrollBar& across = Find<QScrollBar>("hscrl");
    const QScrollBar& down = Find<QScrollBar>("vscrl");
    PictureBox& board = window->View().Board();
    QTest::keyClick(&board, Qt::Key_Right);
    EXPECT_EQ(across.value(), 0) << "nothing to scroll";
    QTest::keyClick(&board, Qt::Key_Escape);
    ChooseMenu("mnuZoom_1");
    Find<QScrollBar>("hscrl").setValue(0);
    Find<QScrollBar>("vscrl").setValue(0);
    QTest::keyClick(&board, Qt::Key_Right);
    QTest::keyClick(&board, Qt::Key_Down);
    EXPECT_EQ(across.value(), across.singleStep());
    EXPECT_EQ(down.value(), down.singleStep());
    QTest::keyClick(&board, Qt::Key_Right);
    QTest::keyClick(&board, Qt::Key_Down);
    QTest::keyClick(&board, Qt::Key_Left);
    QTest::keyClick(&board, Qt::Key_Up);
    EXPECT_EQ(across.value(), across.singleStep()) << "as far back as forth";
    EXPECT_EQ(down.value(), down.singleStep());
    QTest::keyClick(&board, Qt::Key_PageDown);
    EXPECT_EQ(down.value(), down.maximum());
    QTest::keyClick(&board, Qt::Key_PageUp);
    QTest::keyClick(&board, Qt::Key_Up);
    QTest::keyClick(&board, Qt::Key_Left);
    EXPECT_EQ(down.value(), 0);
    EXPECT_EQ(across.value(), 0);
    QTest::keyClick(&board, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(across.value(), across.maximum());
}

TEST_F(MainWindowTest, TipsOfTheBoardNameWhatIsUnderTheMouse) {
    const struct {
        QPointF at;
        QString tip;
        QString box;
    } places[] = {
        {MiddleOf(10), QStringLiteral("'Lottery' cannot be edited"), QString()},
        {MiddleOf(17), QStringLiteral("'News' cannot be edited"), QString()},
        {MiddleOf(0), QStringLiteral("Click to edit\"") + basPosit::m_Rent(0).DefaultName + u'"',
         QStringLiteral("Click to edit\r\n'") + basPosit::m_Rent(0).DefaultName + u'\''},
        {{0.89, 0.89}, QStringLiteral("Click to edit'Start'"), QStringLiteral("Click to edit\r\n\"Start\"")},
        {{0.11, 0.89}, QStringLiteral("Click to edit'Lose Turn'"), QStringLiteral("Click to edit\r\n\"Lose Turn\"")},
        {{0.11, 0.11}, QStringLiteral("Click to edit'Free Space'"), QStringLiteral("Click to edit\r\n\"Free Space\"")},
        {{0.89, 0.11}, QStringLiteral("'Fate!' cannot be edited"), QStringLiteral("Click to edit\r\n\"Fate!\"")},
        {MiddleOfBox(1), QStringLiteral("Click to edit Titles"), QStringLiteral("Click to edit\r\nTitles")},
        {MiddleOfBox(3), QStringLiteral("Click to edit 'Good News'"), QStringLiteral("Click to edit\r\nGood News")},
        {MiddleOfBox(4), QStringLiteral("Click to edit 'Bad News'"), QStringLiteral("Click to edit\r\nBad News")},
        {MiddleOfBox(5), QStringLiteral("Click to edit Money"), QStringLiteral("Click to edit\r\nMoney")},
        {MiddleOfBox(6), QStringLiteral("Click to edit Tokens"), QStringLiteral("Click to edit\r\nTokens")},
    };
    auto& box = Find<QLabel>("txtToolTip");
    for (const auto& place : places) {
        const QString before = box.text();
        MoveOnBoard(place.at.x(), place.at.y());
        EXPECT_EQ(BoardTip(), place.tip);
        EXPECT_EQ(box.text(), place.box.isEmpty() ? before : place.box);
        EXPECT_FALSE(box.isVisible());
    }
    MoveOnBoard(0.5, 0.45);
    EXPECT_EQ(BoardTip(), QString());
}

TEST_F(MainWindowTest, TipsGoAfterASecondAndSevenMore) {
    const QPointF money = MiddleOfBox(5);
    MoveOnBoard(money.x(), money.y());
    EXPECT_EQ(window->Tips().TimerInterval(), 1000);
    window->Tips().Timer1_Timer();
    EXPECT_EQ(window->Tips().TimerInterval(), 7000);
    EXPECT_FALSE(BoardTip().isEmpty());
    window->Tips().Timer1_Timer();
    EXPECT_EQ(window->Tips().TimerInterval(), 0);
    EXPECT_TRUE(BoardTip().isEmpty());
    const QPointF lotto = MiddleOf(10);
    MoveOnBoard(lotto.x(), lotto.y());
    EXPECT_EQ(window->Tips().TimerInterval(), 0) << "nothing editable";
    ChooseMenu("mnuView_6");
    MoveOnBoard(money.x(), money.y());
    EXPECT_EQ(window->Tips().TimerInterval(), 0) << "switched off";
    EXPECT_FALSE(Find<QAction>("mnuView_6").isChecked());
    ChooseMenu("mnuView_6");
    MoveOnBoard(money.x() + 0.01, money.y());
    EXPECT_EQ(window->Tips().TimerInterval(), 1000);
}

TEST_F(MainWindowTest, HitTestTellsWhetherAnythingChanged) {
    const float side = float(window->View().Board().width() * 15);
    window->View().WhatIsMouseOver(side * 0.5F, side * 0.45F);
    EXPECT_FALSE(window->View().IsOverSomething());
    const QPointF space = MiddleOf(4);
    window->View().WhatIsMouseOver(side * float(space.x()), side * float(space.y()));
    EXPECT_TRUE(window->View().IsOverChanged());
    EXPECT_TRUE(window->View().IsOverSomething());
    EXPECT_EQ(window->View().Over().m_iOverSpace, 4);
    window->View().WhatIsMouseOver(side * float(space.x()) + 15, side * float(space.y()));
    EXPECT_FALSE(window->View().IsOverChanged());
}

TEST_F(MainWindowTest, WindowCantBeClosedWhileAPageIsPrinted) {
    window->SetInPrint(true);
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(desktop.ended);
}

TEST_F(MainWindowTest, MessagesOfAPaintComeWhenItIsDone) {
    // Gone since they were chosen, which only a paint can find out.
    QStringList gone;
    for (const int i : {5, 12}) {
        gone.append(WriteFile(QStringLiteral("games/photo%1.bmp").arg(i), "picture"));
        basTAVL::g_oSpaces(i).Image.Let_FullPath(gone.last());
        QFile::remove(gone.last());
    }
    // The last that a paint draws.
    const auto inkOfLotto = [this] {
        int ink = 0;
        for (double y = 0.47; y < 0.53; y += 0.001)
            ink += SeenAt(0.9, y) == Color::Rgb(224, 255, 224) ? 0 : 1;
        return ink;
    };
    const int painted = inkOfLotto();
    ASSERT_GT(painted, 0);
    ASSERT_LT(painted, 60);
    desktop.boxes.clear();
    desktop.onBox = [&] {
        EXPECT_EQ(inkOfLotto(), painted);
        EXPECT_FALSE(basMsgQueue::MsgQueue_IsOpen());
    };
    window->View().Redraw();
    ASSERT_EQ(desktop.boxes.size(), 2);
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(desktop.boxes[i].sText.contains(gone[i])) << i;
    EXPECT_FALSE(QApplication::overrideCursor()) << "the hourglass is gone";
    window->View().Redraw();
    EXPECT_EQ(desktop.boxes.size(), 2) << "told once";
}

TEST_F(MainWindowTest, NothingIsClippedAtTheUsualSize) {
    for (const QSize size : {QSize(600, 600), QSize(700, 500), QSize(400, 700)}) {
        window->resize(size);
        const QRect inside = window->centralWidget()->rect();
        for (int i = 0; i < MainLayout::kButtons; ++i) {
            const auto& button = Find<QPushButton>(qPrintable(QStringLiteral("cmd_%1").arg(i)));
            EXPECT_TRUE(inside.contains(button.geometry())) << i << " at " << size.width();
            EXPECT_GE(button.y(), window->View().Board().geometry().bottom());
        }
        EXPECT_TRUE(inside.contains(window->View().Board().geometry()));
    }
}

} // namespace
