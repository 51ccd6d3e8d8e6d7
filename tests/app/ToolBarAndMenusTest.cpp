// SPDX-License-Identifier: MIT
// The toolbar, the menus and the row of buttons.
#include "MainWindowFixture.h"

namespace {

const QString kSaveFirst = QStringLiteral("Please save your changes before printing.\r\n\r\nSave them now?");

class ToolBarAndMenusTest : public MainWindowTest {
protected:
    /// Sent by hand: wherever the tests before have left the mouse, it comes from outside.
    void ComeTo(int iButton) const {
        const QPointF at(OnToolBar(iButton));
        QMouseEvent move(QEvent::MouseMove, at, ToolBar().mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(&ToolBar(), &move);
    }
};

TEST_F(ToolBarAndMenusTest, Edge_BadNewsButtonOpensGoodNewsWhileToolbarAndBoardOpenBadNews) {
    ClickButton(2);
    EXPECT_EQ(Find<QPushButton>("cmd_2").text(), QStringLiteral("&Bad News"));
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("news 0")});
    ClickToolBar(6);
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("news 1")});
    const QPointF box = MiddleOfBox(4);
    ClickBoard(box.x(), box.y());
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("news 1")});
}

TEST_F(ToolBarAndMenusTest, Edge_PrinterSetupRefusesAfterPrintingUntilTheNextStart) {
    int dialogs = 0;
    desktop.onDialog = [&](CommonDialog&) { return ++dialogs > 0; };
    ChooseMenu("mnuFile_6");
    EXPECT_EQ(dialogs, 1);
    routes.onEdit = [] { return true; };
    ClickButton(3);
    EXPECT_EQ(routes.Take(), Strings{QStringLiteral("print")});
    ChooseMenu("mnuFile_6");
    EXPECT_EQ(dialogs, 1);
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(desktop.boxes[0].iStyle, vbInformation);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Sorry, but you can't change printers once you have started the printing process.\r\n"
                             "Please stop and restart the program before changing printers."));
    Start();
    ChooseMenu("mnuFile_6");
    EXPECT_EQ(dialogs, 2);
}

TEST_F(ToolBarAndMenusTest, Edge_PressOnAnEmptyPartOfTheToolbarDoesNothing) {
    QList<QPoint> empty;
    // Left edges of the live faces, which are 23 pixels wide and stand from 2 to 23.
    for (const int left : {2, 25, 48, 77, 106, 129, 152, 178, 206, 229, 252, 275}) {
        for (const int y : {0, 1, 24, 25})
            empty.append(QPoint(left + 11, y));
    }
    // Ahead of the faces, between them, on the dead face of the exit and behind it.
    for (const int x : {0, 1, 71, 73, 76, 100, 105, 175, 177, 201, 205, 298, 303, 304, 315, 326, 329})
        empty.append(QPoint(x, 12));

    // Marks that every command of the toolbar would wipe out or leave something beside.
    const QString mark = InGames(QStringLiteral("Mark.gam"));
    Session& session = window->Commands().InHand();
    session.SetGameName(mark);
    int dialogs = 0;
    desktop.onDialog = [&](CommonDialog&) { return ++dialogs < 0; };
    for (const int zoom : {1, 2}) {
        ClickToolBar(7 + zoom);
        for (const QPoint at : empty) {
            QTest::mousePress(&ToolBar(), Qt::LeftButton, {}, at);
            QTest::mouseRelease(&ToolBar(), Qt::LeftButton, {}, at);
            const bool untouched = session.GameName() == mark && window->View().Zoom() == float(zoom) && dialogs == 0 &&
                                   routes.Take().isEmpty() && desktop.boxes.isEmpty() && !desktop.ended &&
                                   !HasFile(QStringLiteral("Mark.gam"));
            ASSERT_TRUE(untouched) << "a press at " << at.x() << ", " << at.y();
        }
    }
}

TEST_F(ToolBarAndMenusTest, FacesOfTheToolbarReachToTheirEdges) {
    desktop.onDialog = [](CommonDialog&) { return false; };
    const struct {
        int left;
        const char* door;
    } faces[] = {{77, "print"}, {106, "money"}, {129, "news 0"}, {152, "news 1"}, {178, "tokens"}};
    for (const auto& face : faces) {
        for (const QPoint at :
             {QPoint(face.left, 2), QPoint(face.left + 22, 2), QPoint(face.left, 23), QPoint(face.left + 22, 23)}) {
            QTest::mousePress(&ToolBar(), Qt::LeftButton, {}, at);
            QTest::mouseRelease(&ToolBar(), Qt::LeftButton, {}, at);
            EXPECT_EQ(routes.Take(), Strings{QString::fromLatin1(face.door)}) << at.x() << ", " << at.y();
        }
    }
}

TEST_F(ToolBarAndMenusTest, ToolbarButtonsRunTheirCommands) {
    ClickToolBar(4);
    ClickToolBar(5);
    ClickToolBar(7);
    ClickToolBar(3);
    EXPECT_EQ(routes.Take(), (Strings{QStringLiteral("money"), QStringLiteral("news 0"), QStringLiteral("tokens"),
                                      QStringLiteral("print")}));
    for (int zoom : {4, 3, 2, 1}) {
        ClickToolBar(7 + zoom);
        EXPECT_FLOAT_EQ(window->View().Zoom(), float(zoom));
    }
    QStringList dialogs;
    desktop.onDialog = [&](const CommonDialog& dialog) {
        dialogs.append(dialog.sDialogTitle);
        return false;
    };
    ClickToolBar(1);
    ClickToolBar(2);
    EXPECT_EQ(dialogs, (Strings{QStringLiteral("Open Game"), QStringLiteral("Save Game Under New Name")}));
    window->Commands().InHand().SetGameName(QStringLiteral("/old"));
    ClickToolBar(0);
    EXPECT_TRUE(window->Commands().InHand().GameName().endsWith(QStringLiteral("Game1.gam")));
}

TEST_F(ToolBarAndMenusTest, TheMouseThatComesToTheFirstButtonFirstFramesIt) {
    ComeTo(0);
    EXPECT_TRUE(Find<QWidget>("linButTop").isVisible());
    EXPECT_EQ(Find<QWidget>("linButTop").geometry().topLeft(), QPoint(2, 2));
}

TEST_F(ToolBarAndMenusTest, ToolbarFramesTheButtonUnderTheMouse) {
    auto& top = Find<QWidget>("linButTop");
    auto& right = Find<QWidget>("linButRight");
    EXPECT_FALSE(top.isVisible());
    ComeTo(1);
    EXPECT_TRUE(top.isVisible());
    EXPECT_EQ(top.geometry().topLeft(), QPoint(25, 2));
    EXPECT_EQ(right.x(), 47);
    EXPECT_EQ(top.palette().window().color(), QColor(Qt::white));
    EXPECT_EQ(ToolBar().toolTip(), QStringLiteral("Open Previous Game"));
    EXPECT_EQ(Find<QLabel>("txtToolTip").text(), QStringLiteral("Existing\r\nGame"));
    EXPECT_EQ(window->Tips().TimerInterval(), 1000);
    QTest::mousePress(&ToolBar(), Qt::LeftButton, {}, OnToolBar(1));
    EXPECT_EQ(top.palette().window().color(), QColor(128, 128, 128));
    QTest::mouseMove(&ToolBar(), QPoint(73, 12));
    EXPECT_FALSE(top.isVisible());
    EXPECT_EQ(ToolBar().toolTip(), QString());
    QTest::mouseRelease(&ToolBar(), Qt::LeftButton, {}, QPoint(73, 12));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(ToolBarAndMenusTest, ToolbarTableHoldsEveryTipAndItsTwoWords) {
    const Strings tips{QStringLiteral("New Game"),
                       QStringLiteral("Open Previous Game"),
                       QStringLiteral("Save Current Game"),
                       QStringLiteral("Print"),
                       QStringLiteral("Edit Money"),
                       QStringLiteral("Edit Good News Cards"),
                       QStringLiteral("Edit Bad News Cards"),
                       QStringLiteral("Edit Tokens"),
                       QStringLiteral("Zoom 1X"),
                       QStringLiteral("Zoom 2X"),
                       QStringLiteral("Zoom 3x"),
                       QStringLiteral("Zoom 4X")};
    const Strings words{
        QStringLiteral("New\r\nGame"),       QStringLiteral("Existing\r\nGame"), QStringLiteral("Save\r\nCurrent Game"),
        QStringLiteral("Print\r\nDialog"),   QStringLiteral("Edit\r\nMoney"),    QStringLiteral("Good News\r\nCards"),
        QStringLiteral("Bad News\r\nCards"), QStringLiteral("Tokens\r\n1X"),     QStringLiteral("Zoom\r\n1X"),
        QStringLiteral("Zoom\r\n2X"),        QStringLiteral("Zoom\r\n3X"),       QStringLiteral("Zoom\r\n4X")};
    for (int i = 0; i < ToolBarTable::kLiveButtons; ++i) {
        QTest::mouseMove(&ToolBar(), OnToolBar(i));
        EXPECT_EQ(ToolBar().toolTip(), tips[i]);
        EXPECT_EQ(Find<QLabel>("txtToolTip").text(), words[i]);
    }
}

TEST_F(ToolBarAndMenusTest, ButtonsBelowTheBoardCarryTheirCaptions) {
    const Strings captions{QStringLiteral("&Money"), QStringLiteral("&Good News"), QStringLiteral("&Bad News"),
                           QStringLiteral("Print"), QStringLiteral("E&xit")};
    for (int i = 0; i < MainLayout::kButtons; ++i)
        EXPECT_EQ(Find<QPushButton>(qPrintable(QStringLiteral("cmd_%1").arg(i))).text(), captions[i]);
}

TEST_F(ToolBarAndMenusTest, MenusCarryTheirCaptionsAndShortcuts) {
    const struct {
        const char* name;
        const char* caption;
        const char* shortcut;
        bool acts;
    } items[] = {
        {"mnuTop_0", "&File", "", true},
        {"mnuFile_0", "&New...", "Ctrl+N", true},
        {"mnuFile_1", "New Geme &Wizard", "", false},
        {"mnuFile_2", "&Open...", "Ctrl+O", true},
        {"mnuFile_3", "&Save", "Ctrl+S", true},
        {"mnuFile_4", "Save &As...", "Ctrl+Shift+S", true},
        {"mnuFile_6", "P&rinter Setup", "", true},
        {"mnuFile_7", "&Print...", "Ctrl+P", true},
        {"mnuFile_9", "E&xit", "Ctrl+Q", true},
        {"mnuFile_20", "&Duplicate", "", true},
        {"mnuFile_21", "Print &Everything...", "Ctrl+Shift+P", true},
        {"mnuFile_23", "Chec&k the Printer...", "", true},
        {"mnuFile_22", "Earlier &Versions...", "", true},
        {"mnuNewFrom", "New &From", "", true},
        {"mnuRecent", "Recen&t Games", "", true},
        {"mnuEdit", "&Edit", "", true},
        {"mnuEdit_0", "&Undo", "Ctrl+Z", false},
        {"mnuEdit_1", "&Redo", "Ctrl+Shift+Z", false},
        {"mnuEdit_42", "&Paste", "Ctrl+V", true},
        {"mnuEdit_3", "&Check My Game", "F7", true},
        {"mnuTop_1", "&View", "", true},
        {"mnuView_0", "&Zoom...", "", true},
        {"mnuZoom_0", "&1X", "Ctrl+1", true},
        {"mnuZoom_1", "&2X", "Ctrl+2", true},
        {"mnuZoom_2", "&3X", "Ctrl+3", true},
        {"mnuZoom_3", "&4X", "Ctrl+4", true},
        {"mnuView_1", "&Money", "", true},
        {"mnuView_2", "&Good News", "", true},
        {"mnuView_3", "&Bad News", "", true},
        {"mnuView_4", "&Token", "", true},
        {"mnuView_6", "&Tool Tips", "", true},
        {"mnuView_8", "&Setup", "", true},
        {"mnuView_9", "&About...", "", true},
        {"mnuTop_2", "&Help", "", true},
        {"mnuHelp_0", "&About...", "", true},
        {"mnuHelp_1", "A&ssembly Instructions", "", true},
        {"mnuHelp_2", "&Print Instruction Manual", "", false},
    };
    for (const auto& item : items) {
        const auto& action = Find<QAction>(item.name);
        EXPECT_EQ(action.text(), QString::fromLatin1(item.caption)) << item.name;
        EXPECT_EQ(action.shortcut().toString(), QString::fromLatin1(item.shortcut)) << item.name;
        EXPECT_EQ(action.isEnabled(), item.acts) << item.name;
    }
    for (const char* separator : {"mnuFile_5", "mnuFile_8", "mnuView_5", "mnuView_7"})
        EXPECT_TRUE(Find<QAction>(separator).isSeparator()) << separator;
}

TEST_F(ToolBarAndMenusTest, TheFileMenuHasAGroupForEachPurpose) {
    Strings groups{QString()};
    for (const QAction* action : Find<QAction>("mnuTop_0").menu<QMenu*>()->actions()) {
        if (action->isSeparator()) {
            groups.append(QString());
        } else {
            groups.last() += action->text().remove(u'&').remove(QStringLiteral("...")) + u'|';
        }
    }
    EXPECT_EQ(
        groups,
        (Strings{QStringLiteral("New|New Geme Wizard|New From|Open|Recent Games|Save|Save As|Duplicate|"
                                "Earlier Versions|"),
                 QStringLiteral("Deal Photos|Find Missing Pictures|"),
                 QStringLiteral("Send to a Friend|Save a Picture of the Board|Save a Picture of a Piece|"),
                 QStringLiteral("Printer Setup|Print|Print Everything|Check the Printer|"), QStringLiteral("Exit|")}));
}

TEST_F(ToolBarAndMenusTest, WhatCanBeChosenIsAskedAnewWheneverAMenuOpens) {
    auto& save = Find<QAction>("mnuFile_3");
    auto& wizard = Find<QAction>("mnuFile_1");
    save.setEnabled(false);
    wizard.setEnabled(true);
    Q_EMIT Find<QAction>("mnuTop_0").menu<QMenu*>()->aboutToShow();
    EXPECT_TRUE(save.isEnabled());
    EXPECT_FALSE(wizard.isEnabled());
}

TEST_F(ToolBarAndMenusTest, MenusRunTheirCommands) {
    for (const char* item :
         {"mnuView_1", "mnuView_2", "mnuView_3", "mnuView_4", "mnuView_8", "mnuFile_7", "mnuFile_21", "mnuFile_23"})
        ChooseMenu(item);
    EXPECT_EQ(routes.Take(), (Strings{QStringLiteral("money"), QStringLiteral("news 0"), QStringLiteral("news 1"),
                                      QStringLiteral("tokens"), QStringLiteral("setup"), QStringLiteral("print"),
                                      QStringLiteral("print everything"), QStringLiteral("check printer")}));
    for (const int nothing : {1, 5, 8})
        window->mnuFile_Click(nothing);
    window->mnuHelp_Click(2);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(ToolBarAndMenusTest, UnknownIndexEndsTheProgram) {
    const struct {
        void (frmTAVL::*click)(int);
        int index;
        const char* message;
    } calls[] = {{&frmTAVL::mnuFile_Click, 10, "Unexpected mnu_File"},
                 {&frmTAVL::mnuView_Click, 10, "Unexpected Case"},
                 {&frmTAVL::mnuHelp_Click, 3, "Unexpected Case"},
                 {&frmTAVL::cmd_Click, 5, "Unexpected Case"}};
    for (const auto& call : calls) {
        EXPECT_THROW((window.get()->*call.click)(call.index), ProgramEnded);
        EXPECT_TRUE(desktop.boxes.last().sText.contains(QString::fromLatin1(call.message)));
    }
}

TEST_F(ToolBarAndMenusTest, ButtonsRunTheirCommands) {
    ClickButton(0);
    ClickButton(1);
    EXPECT_EQ(routes.Take(), (Strings{QStringLiteral("money"), QStringLiteral("news 0")}));
    EXPECT_THROW(ClickButton(4), ProgramEnded);
    EXPECT_TRUE(desktop.boxes.isEmpty()) << "no question";
}

TEST_F(ToolBarAndMenusTest, ExitOfTheMenuAsksFirst) {
    desktop.answers = {vbNo};
    ChooseMenu("mnuFile_9");
    EXPECT_FALSE(desktop.ended);
    EXPECT_EQ(desktop.Texts(), Strings{QStringLiteral("Are you certain you want to exit Tavlora at this time?")});
    desktop.answers = {vbYes};
    EXPECT_THROW(ChooseMenu("mnuFile_9"), ProgramEnded);
}

TEST_F(ToolBarAndMenusTest, PrintIsRefusedWhileChangesAreUnsaved) {
    Edit(QStringLiteral("One"));
    desktop.answers = {vbNo};
    ClickButton(3);
    EXPECT_EQ(desktop.Texts(), Strings{kSaveFirst});
    EXPECT_TRUE(routes.Take().isEmpty());
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
}

TEST_F(ToolBarAndMenusTest, PrintGoesOnWhenTheChangesAreSavedFirst) {
    window->Commands().InHand().SetGameName(InGames(QStringLiteral("Ours.gam")));
    for (const char* item : {"mnuFile_7", "mnuFile_21"}) {
        Edit(QString::fromLatin1(item));
        desktop.answers = {vbYes};
        ChooseMenu(item);
        EXPECT_FALSE(window->Commands().InHand().IsUnsaved()) << item;
        EXPECT_TRUE(ReadFile(InGames(QStringLiteral("Ours.gam"))).contains(item));
    }
    EXPECT_EQ(desktop.Texts(), (Strings{kSaveFirst, kSaveFirst}));
    EXPECT_EQ(routes.Take(), (Strings{QStringLiteral("print"), QStringLiteral("print everything")}));
}

TEST_F(ToolBarAndMenusTest, PrintWaitsForAGameThatCouldNotBeSaved) {
    Edit(QStringLiteral("One"));
    desktop.answers = {vbYes};
    ChooseMenu("mnuFile_7");
    EXPECT_TRUE(routes.Take().isEmpty()) << "the name was asked for and not given";
    EXPECT_TRUE(window->Commands().InHand().IsUnsaved());
}

} // namespace
