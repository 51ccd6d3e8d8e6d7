// SPDX-License-Identifier: MIT
// What is typed or pasted and finds no room: nothing of the old text is lost, the caret stays in the text, and a line
// of words tells it.
#include "windowing/Clipboard.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/EditTokenFixture.h"

#include <QLabel>

namespace {

const QString kOnly40 = QStringLiteral("Only 40 letters fit on a line.");

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

TEST_F(TypingLossTest, ACornersLineHasNoLimitToTell) {
    frmEditCorner corner(session);
    basTAVL::g_oCorners(kCorner).SetText(0, QStringLiteral("Lose\r\nTurn"));
    Clipboard::SetText(QString(60, u'x'));
    Edit(corner, kCorner, [&] {
        ClickPicture(150, 150);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_NE(Told(), kOnly40);
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
