// SPDX-License-Identifier: MIT
#include "windowing/PictureBox.h"
#include "windows/EditSpaceFixture.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QPlainTextEdit>

namespace {

constexpr QPoint kBelowPicture(103, 240);
constexpr QPoint kOutside(5, 5);

TEST_F(EditSpaceTest, Edge_ClickingOutsideTheTextDropsTheCaretUntilTheNextClickInIt) {
    EXPECT_TRUE(Edit([&] {
        ClickBehindText();
        ClickPicture(kOutside.x(), kOutside.y());
        Type(QStringLiteral("lost"));
        Press(Qt::Key_Backspace);
        Press(Qt::Key_Delete);
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Elm|Street"));
        ClickBehindText();
        Type(QStringLiteral("!"));
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm\r\nStreet!"));
}

TEST_F(EditSpaceTest, Edge_DownAtTheVeryEndChangesNothingAndDrawsNothing) {
    Edit([&] {
        ClickBehindText();
        EXPECT_FALSE(Redraws([&] { Press(Qt::Key_Down); }));
        EXPECT_TRUE(Redraws([&] { Press(Qt::Key_Left); })) << "a caret that moves is seen to move";
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Elm|Street"));
        Type(QStringLiteral("x"));
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Elm|Streext"));
    });
}

TEST_F(EditSpaceTest, KeysThatDoNothingDrawNothing) {
    Edit([&] {
        ClickBehindText();
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Delete})
            EXPECT_FALSE(Redraws([&] { Press(key); })) << "at the end: " << key;
        for (int i = 0; i < 10; ++i)
            EXPECT_TRUE(Redraws([&] { Press(Qt::Key_Left); })) << "step " << i;
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up})
            EXPECT_FALSE(Redraws([&] { Press(key); })) << "at the start: " << key;
        EXPECT_TRUE(Redraws([&] { Press(Qt::Key_Delete); }));
        EXPECT_TRUE(Redraws([&] { Type(QStringLiteral("W")); }));
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Wlm|Street"));
    });
}

TEST_F(EditSpaceTest, ATypedNameReachesTheGameOnOk) {
    EXPECT_TRUE(Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("\nNo 7"));
        Press(Qt::Key_Left);
        Press(Qt::Key_Backspace);
        Click("cmdOK");
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm\r\nStreet\r\nNo7"));
    EXPECT_EQ(Space().NLines(), 3);
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(EditSpaceTest, WhileACaretStandsSpaceAndEnterBelongToTheText) {
    Edit([&] {
        ClickBehindText();
        Find<QPushButton>("cmdOK")->setFocus();
        QTest::keyClick(Find<QPushButton>("cmdOK"), Qt::Key_Space);
        QTest::keyClick(Find<QPushButton>("cmdOK"), Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Elm|Street |"));
    });
    Edit([&] {
        ClickPicture(kOutside.x(), kOutside.y());
        Press(Qt::Key_Return);
        Press(Qt::Key_Space);
        EXPECT_TRUE(form.isVisible()) << "no caret and nothing to press";
    });
}

TEST_F(EditSpaceTest, TheKeyboardReachesTheTextAndTheButtons) {
    Edit([&] {
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        Press(Qt::Key_Tab);
        Type(QStringLiteral("s"));
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Elm|Streets"));
        Press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("cmdChangeFont"));
        desktop.onDialog = [](CommonDialog& dialog) {
            dialog.bFontBold = true;
            return true;
        };
        Press(Qt::Key_Space);
        Click("cmdOK");
    });
    EXPECT_TRUE(Space().Font.Bold);
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm\r\nStreets"));
}

TEST_F(EditSpaceTest, EnterPressesTheButtonThatHasTheFocus) {
    EXPECT_TRUE(Edit([&] {
        Press(Qt::Key_Tab);
        desktop.onDialog = [](CommonDialog& dialog) {
            dialog.bFontBold = true;
            return true;
        };
        Press(Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("cmdOK"));
        Press(Qt::Key_Enter);
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_TRUE(Space().Font.Bold);
}

TEST_F(EditSpaceTest, AFortyFirstCharacterIsDroppedFromWhicheverLine) {
    const QString almost(39, u'i');
    Space().SetText(almost);
    Edit([&] {
        ClickBehindText();
        Type(QStringLiteral("xyz"));
        EXPECT_EQ(form.GetTextArray(), QStringList{almost + u'x'});
    });
    Space().SetText(almost + QStringLiteral("\r\nend"));
    Edit([&] {
        ClickBehindText();
        for (int i = 0; i < 4; ++i)
            Press(Qt::Key_Left);
        Type(QStringLiteral("xyz"));
        EXPECT_EQ(form.GetTextArray(), QStringList({almost + u'x', QStringLiteral("end")}));
    });
}

// What the key removes isn't handed back with ten lines there, so the window keeps the text as it was.
TEST_F(EditSpaceTest, EnterOnTheTenthLineTakesTheMarkingAwayAndLeavesTheText) {
    const QString tenLines = QStringList(10, QStringLiteral("line")).join(QStringLiteral("\r\n"));
    Space().SetText(tenLines);
    EXPECT_FALSE(Edit([&] {
        ClickPicture(20, 258);
        const QImage caret = Shown();
        DragPicture({20, 258}, {186, 258});
        const QImage marked = Shown();
        EXPECT_NE(marked, caret);
        Press(Qt::Key_Return);
        EXPECT_EQ(form.GetTextArray(), QStringList(10, QStringLiteral("line")));
        EXPECT_EQ(Shown(), caret) << "the caret stands where the marking began";
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().TextAll(), tenLines);
}

TEST_F(EditSpaceTest, DraggingSelectsAndTypingReplaces) {
    Edit([&] {
        DragPicture({186, 190}, {20, 190});
        Type(QStringLiteral("Road"));
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Elm|Road"));
    });
}

TEST_F(EditSpaceTest, TheClipboardIsReadAndWritten) {
    QClipboard* clipboard = QApplication::clipboard();
    Edit([&] {
        DragPicture({20, 125}, {186, 210});
        Press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(clipboard->text(), QStringLiteral("Elm\nStreet"));
        Press(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(form.GetTextArray(), QStringList{QString()});
        clipboard->setText(QStringLiteral("Oak\r\nLane\t2"));
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Oak|Lane 2"));
    });
}

TEST_F(EditSpaceTest, ComposedCharactersArrive) {
    Edit([&] {
        ClickBehindText();
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("\u00e9\u5927\U0001F3E0"));
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        EXPECT_EQ(form.GetTextArray()[1], QStringLiteral("Street\u00e9\u5927\U0001F3E0"));
        Press(Qt::Key_Backspace);
        EXPECT_EQ(form.GetTextArray()[1], QStringLiteral("Street\u00e9\u5927"));
        ClickPicture(kOutside.x(), kOutside.y());
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        EXPECT_EQ(form.GetTextArray()[1], QStringLiteral("Street\u00e9\u5927")) << "no caret";
    });
}

TEST_F(EditSpaceTest, TheHiddenBoxFeedsTheText) {
    Edit([&] {
        Find<QPlainTextEdit>("txtSpace")->setPlainText(QStringLiteral("Oak\nLane"));
        EXPECT_EQ(form.GetTextArray().join(u'|'), QStringLiteral("Oak|Lane"));
    });
}

TEST_F(EditSpaceTest, TheTipOfTheTextHidesNoLetterOfIt) {
    Edit([&] {
        MovePicture(kBelowPicture.x(), kBelowPicture.y());
        const auto* tip = Find<QLabel>("txtToolTip");
        const auto* picture = Find<PictureBox>("picDest");
        EXPECT_GE(tip->y(), picture->mapTo(window, QPoint(0, 63 + 210)).y());
        EXPECT_NEAR(tip->geometry().center().x(), picture->mapTo(window, QPoint(103, 0)).x(), 1);
    });
}

TEST_F(EditSpaceTest, ASelectionThatAKeyCollapsesIsSeenToBeGone) {
    Edit([&] {
        DragPicture({20, 125}, {186, 210});
        const QImage selected = Shown();
        // The caret stands at the start of the text already.
        Press(Qt::Key_Left);
        EXPECT_NE(Shown(), selected);
        const QImage caret = Shown();
        ClickPicture(20, 70);
        EXPECT_EQ(Shown(), caret);
    });
}

} // namespace
