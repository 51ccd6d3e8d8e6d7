// SPDX-License-Identifier: MIT
#include "support/HourGlassWatch.h"
#include "windowing/PictureBox.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/EditWindowFixture.h"

namespace {

/// What the editors of a space and of a corner have in common, tried in both.
class EditBothTest : public EditWindowTest {
protected:
    struct Place {
        const char* window;
        QPoint atStart;  ///< Ahead of the first letter.
        QPoint behind;   ///< Behind the last letter.
        QPoint inMiddle; ///< Within the text.
        QPoint outside;
        QString text;
    };

    void InBoth(const std::function<void(const Place&)>& doIt) {
        const Place ofSpace{"space", {20, 66}, {186, 270}, {103, 168}, {5, 5}, QStringLiteral("Elm|Street")};
        const Place ofCorner{"corner", {98, 182}, {286, 268}, {192, 225}, {20, 30}, QStringLiteral("Lose|Turn")};
        Edit(space, kSpace, [&] { doIt(ofSpace); });
        Edit(corner, kCorner, [&] { doIt(ofCorner); });
    }
    QString Text() { return dynamic_cast<EditWindow*>(window)->GetTextArray().join(u'|'); }
    Qt::CursorShape Pointer() { return Find<PictureBox>("picDest")->cursor().shape(); }

    frmEditSpace space{session};
    frmEditCorner corner{session};
};

TEST_F(EditBothTest, CancelDropsCaretAndPointerAlsoWhereTheWindowStaysOpen) {
    InBoth([&](const Place& place) {
        SCOPED_TRACE(place.window);
        ClickPicture(place.behind.x(), place.behind.y());
        Type(QStringLiteral("s"));
        ClickPicture(place.outside.x(), place.outside.y());
        const QImage withoutCaret = Shown();
        ClickPicture(place.behind.x(), place.behind.y());
        MovePicture(place.inMiddle.x(), place.inMiddle.y());
        EXPECT_EQ(Pointer(), Qt::IBeamCursor);
        EXPECT_NE(Shown(), withoutCaret);

        desktop.answers = {vbCancel, vbNo};
        Click("cmdCancel");
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(Pointer(), Qt::ArrowCursor);
        EXPECT_EQ(Shown(), withoutCaret);
        Type(QStringLiteral("x"));
        Press(Qt::Key_Backspace);
        EXPECT_EQ(Text(), place.text + u's') << "keys go nowhere without a caret";
        Click("cmdCancel");
        EXPECT_FALSE(window->isVisible());
    });
    EXPECT_EQ(desktop.boxes.size(), 4);
}

TEST_F(EditBothTest, AMoveWithNoButtonEndsTheSelecting) {
    InBoth([&](const Place& place) {
        SCOPED_TRACE(place.window);
        MovePicture(place.inMiddle.x(), place.inMiddle.y());
        EXPECT_EQ(Pointer(), Qt::IBeamCursor);
        PressPicture(place.atStart);
        // The release went elsewhere; the next move tells that no button is down any more.
        MovePicture(place.inMiddle.x(), place.inMiddle.y());
        EXPECT_EQ(Pointer(), Qt::ArrowCursor);
        EXPECT_EQ(Tip(), QString());
        MovePictureWith(Qt::LeftButton, place.behind);
        Type(QStringLiteral("Z"));
        EXPECT_EQ(Text(), u'Z' + place.text) << "nothing was selected";
    });
}

TEST_F(EditBothTest, OnlyTheLeftButtonsReleaseEndsTheSelecting) {
    InBoth([&](const Place& place) {
        SCOPED_TRACE(place.window);
        PressPicture(place.atStart);
        QTest::mouseRelease(Find<PictureBox>("picDest"), Qt::RightButton, {}, place.atStart);
        MovePictureWith(Qt::LeftButton, place.behind);
        ReleasePicture(place.behind);
        MovePictureWith(Qt::LeftButton, place.atStart);
        Type(QStringLiteral("Z"));
        // Two lines that both are empty become one.
        EXPECT_EQ(Text(), QStringLiteral("Z")) << "all was selected, and stayed so";
    });
}

TEST_F(EditBothTest, AnAnswerThatTheQuestionHasntIsReportedAndTheWindowStays) {
    InBoth([&](const Place& place) {
        SCOPED_TRACE(place.window);
        desktop.boxes.clear();
        desktop.answers = {vbOK};
        ClickPicture(place.behind.x(), place.behind.y());
        Type(QStringLiteral("s"));
        Click("cmdCancel");
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(desktop.Texts().join(u' ').contains(QStringLiteral("'lResponse' held the following value: '1'")));
        EXPECT_EQ(Text(), place.text + u's');
    });
}

TEST_F(EditBothTest, ThePointerIsAnHourglassWhileThePictureIsDrawn) {
    InBoth([&](const Place& place) {
        SCOPED_TRACE(place.window);
        ClickPicture(place.behind.x(), place.behind.y());
        EXPECT_TRUE(window->isVisible());
        const HourGlassWatch watch;
        Press(Qt::Key_Right);
        EXPECT_EQ(watch.TimesWorking("picDest"), 0) << "nothing was drawn";
        Press(Qt::Key_Left);
        EXPECT_GT(watch.TimesWorking("picDest"), 0);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "it goes when the drawing is done";
    });
}

} // namespace
