// SPDX-License-Identifier: MIT
// What is typed or pasted and finds no room: a paste pushes nothing of the old text away, the caret stays in the text,
// and a line of words tells it.
#include "windowing/Clipboard.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/EditTokenFixture.h"

#include <QLabel>

namespace {

const QString kOnly40 = QStringLiteral("Only 40 letters fit on a line.");
const QString kOnly40OfLast = QStringLiteral("Only 40 letters fit on the last line.");

class TypingLossTest : public EditWindowTest {
protected:
    QString Told() { return Find<QLabel>("lblPaper")->text(); }
    QString TextOfSpace() const { return space.GetTextArray().join(QStringLiteral("\r\n")); }

    frmEditSpace space{session};
};

TEST_F(TypingLossTest, BackspaceTakesTheLastLetterAfterTypingBeyondTheLine) {
    basTAVL::g_oSpaces(kSpace).SetText(QString(38, u'a'));
    Edit(space, kSpace, [&] {
        ClickPicture(185, 210);
        Press(Qt::Key_Right);
        Type(QString(10, u'b'));
        EXPECT_EQ(TextOfSpace(), QString(38, u'a') + QStringLiteral("bb"));
        EXPECT_EQ(Told(), kOnly40);
        Press(Qt::Key_Backspace);
        EXPECT_EQ(TextOfSpace(), QString(38, u'a') + u'b');
        EXPECT_NE(Told(), kOnly40) << "it fits again";
        Click("cmdCancel");
    });
}

TEST_F(TypingLossTest, AHugePasteKeepsTheName) {
    basTAVL::g_oSpaces(kSpace).SetText(QStringLiteral("Elm Street"));
    Clipboard::SetText(QString(40000, u'x'));
    Edit(space, kSpace, [&] {
        ClickPicture(185, 210);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(TextOfSpace().size(), 40);
        EXPECT_EQ(TextOfSpace().count(u'x'), 30);
        EXPECT_EQ(Told(), kOnly40);
        Press(Qt::Key_Backspace);
        EXPECT_EQ(TextOfSpace().size(), 39) << "the caret stands in the text";
        Click("cmdCancel");
    });
}

TEST_F(TypingLossTest, AllMarkedAndPastedOverIsToldAsWell) {
    basTAVL::g_oSpaces(kSpace).SetText(QStringLiteral("Elm Street"));
    Clipboard::SetText(QString(60, u'x'));
    Edit(space, kSpace, [&] {
        ClickPicture(185, 210);
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(TextOfSpace(), QString(40, u'x'));
        EXPECT_EQ(Told(), kOnly40);
        Clipboard::SetText(QString(40, u'y'));
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(TextOfSpace(), QString(40, u'y'));
        EXPECT_NE(Told(), kOnly40) << "all of it stands, in the place of what was marked";
        Click("cmdCancel");
    });
}

TEST_F(TypingLossTest, ASignThatOnlyHalfOfItsLineIsLeftForIsTold) {
    const QString die = QStringLiteral("\U0001F3B2");
    for (const bool pasted : {true, false}) {
        basTAVL::g_oSpaces(kSpace).SetText(QString(39, u'a'));
        Clipboard::SetText(die);
        Edit(space, kSpace, [&] {
            EXPECT_NE(Told(), kOnly40) << "what was told of another piece is gone";
            ClickPicture(185, 210);
            Press(Qt::Key_End);
            if (pasted) {
                Press(Qt::Key_V, Qt::ControlModifier);
            } else {
                QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, die, Qt::NoModifier);
            }
            EXPECT_EQ(TextOfSpace(), QString(39, u'a'));
            EXPECT_EQ(Told(), kOnly40) << pasted;
            Click("cmdCancel");
        });
    }
}

TEST_F(TypingLossTest, ALetterAmidAFullLinePushesTheLastOneOffWhichIsToldAndUndone) {
    const QString full = QString(39, u'a') + u'z';
    basTAVL::g_oSpaces(kSpace).SetText(full);
    Edit(space, kSpace, [&] {
        ClickPicture(185, 210);
        Press(Qt::Key_Home);
        Type(QStringLiteral("b"));
        EXPECT_EQ(TextOfSpace(), u'b' + QString(39, u'a'));
        EXPECT_EQ(Told(), kOnly40);
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(TextOfSpace(), full);
        EXPECT_NE(Told(), kOnly40);
        Click("cmdCancel");
    });
}

TEST_F(TypingLossTest, WhatIsTakenAwayBesideAFullLineIsNoLossButLinesJoinedBeyondItAre) {
    const QString full(40, u'a');
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete}) {
        basTAVL::g_oSpaces(kSpace).SetText(full + QStringLiteral("\r\nbc"));
        Edit(space, kSpace, [&] {
            ClickPicture(185, 210);
            Press(Qt::Key_End, Qt::ControlModifier);
            Press(Qt::Key_Left);
            Press(key);
            EXPECT_EQ(TextOfSpace().size(), 43);
            EXPECT_NE(Told(), kOnly40) << key;
            Press(key == Qt::Key_Delete ? Qt::Key_Up : Qt::Key_Home);
            Press(key == Qt::Key_Delete ? Qt::Key_Up : Qt::Key_Home);
            Press(key);
            EXPECT_EQ(TextOfSpace(), full) << "one line now";
            EXPECT_EQ(Told(), kOnly40) << key;
            Click("cmdCancel");
        });
    }
}

TEST_F(TypingLossTest, OfACornerTheLastLineIsLimitedOnly) {
    frmEditCorner corner(session);
    const auto text = [&] { return corner.GetTextArray().join(u'|'); };
    basTAVL::g_oCorners(kCorner).SetText(0, QStringLiteral("Lose\r\nTurn"));
    Clipboard::SetText(QString(60, u'x'));
    Edit(corner, kCorner, [&] {
        ClickPicture(192, 225);
        Press(Qt::Key_Home, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(text(), QString(60, u'x') + QStringLiteral("Lose|Turn"));
        EXPECT_NE(Told(), kOnly40OfLast);
        Press(Qt::Key_Down);
        Press(Qt::Key_End, Qt::ControlModifier);
        Press(Qt::Key_Home);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(text(), QString(60, u'x') + QStringLiteral("Lose|") + QString(36, u'x') + QStringLiteral("Turn"))
            << "nothing of the old text goes";
        EXPECT_EQ(Told(), kOnly40OfLast);
        Clipboard::SetText(QString(60, u'y') + QStringLiteral("\nz"));
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(text(), QString(60, u'y') + QStringLiteral("|z")) << "what comes ahead of a break is no last line";
        EXPECT_NE(Told(), kOnly40OfLast);
        Clipboard::SetText(QString(60, u'w'));
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(text(), QString(40, u'w'));
        EXPECT_EQ(Told(), kOnly40OfLast);
        Click("cmdCancel");
    });
}

TEST_F(EditTokenTest, AKeyThatEntersNothingAsksBeforeAPictureGoesAndChangesNothingAtNo) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Backspace}) {
        Token().SetText(QStringLiteral("Mom"));
        Token().SetImagePath(MakePicture(QStringLiteral("quarters.bmp")));
        Token().SetText(QStringLiteral("Mom"));
        const C_Token before = Token();
        desktop.boxes.clear();
        desktop.answers = {vbNo};
        Edit([&] {
            ClickMiddle();
            Press(key);
            EXPECT_EQ(WorkingText(), QStringLiteral("Mom"));
            EXPECT_TRUE(ShowsImage());
            Click("cmdCancel");
        });
        ASSERT_EQ(desktop.boxes.size(), 1) << key << ": nothing is to be saved";
        EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Clear Image"));
        EXPECT_EQ(Token(), before);
    }
}

} // namespace
