// SPDX-License-Identifier: MIT
// Typing in place as in any text box, in the editors of spaces, corners, tokens and titles alike, by the events that a
// person causes.
#include "support/EditorFixture.h"
#include "windowing/PictureBox.h"
#include "windows/editors/frmEditCenter.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/EditTokenFixture.h"

#include <QAction>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>

namespace {

const QString kHebrew = QStringLiteral("\u05e9\u05dc\u05d5\u05dd");

class TypingInPlaceTest : public EditTokenTest {
protected:
    TypingInPlaceTest() { basPosit::PosInit(); }

    /// One of the editors, and the box of its text on the likeness.
    struct Kind {
        const char* name;
        QRect box;
    };

    /// Does the same in each editor, opened on the text.
    void InEach(const QString& text, const std::function<void(const Kind&)>& act) {
        basTAVL::g_oSpaces(kSpace).SetText(text);
        basTAVL::g_oCorners(kCorner).SetText(0, text);
        Token().SetText(text);
        desktop.answers = {vbNo};
        EditWindowTest::Edit(space, kSpace, [&] { ActIn({"space", QRect(18, 65, 170, 206)}, act); });
        EditWindowTest::Edit(corner, kCorner, [&] { ActIn({"corner", QRect(98, 182, 188, 86)}, act); });
        EditTokenTest::Edit([&] { ActIn({"token", QRect(60, 100, 180, 100)}, act); });
        // The subtitle takes several lines like the others.
        basPosit::SetSpecialText(2, text);
        frmEditCenter titles(session);
        window = &titles;
        InWindow([&] {
            Press(Qt::Key_Tab);
            ActIn({"titles", QRect(130, 147, 200, 74)}, act);
        });
        bool changed = false;
        titles.ShowForm(changed);
    }
    void ActIn(const Kind& kind, const std::function<void(const Kind&)>& act) {
        SCOPED_TRACE(kind.name);
        act(kind);
        Click("cmdCancel");
    }

    QWidget* Picture() {
        auto* const box = window->findChild<QWidget*>(QStringLiteral("picDest"));
        return box ? box : Find<QWidget>("picForm");
    }
    QString Text() {
        if (auto* const titles = dynamic_cast<frmEditCenter*>(window)) return titles->Typed().Text(2).sText;
        return dynamic_cast<TypingWindow*>(window)->GetTextArray().join(QStringLiteral("\r\n"));
    }
    QString Marked() {
        QGuiApplication::clipboard()->clear();
        Press(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    }
    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(Picture(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, Picture()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(Picture(), &move);
        QTest::mouseRelease(Picture(), Qt::LeftButton, {}, to);
    }
    QMenu* OpenMenu(QContextMenuEvent::Reason reason, QPoint at) {
        QWidget* const target = reason == QContextMenuEvent::Mouse ? Picture() : QApplication::focusWidget();
        QContextMenuEvent event(reason, at, Picture()->mapToGlobal(at));
        QApplication::sendEvent(target, &event);
        return window->findChild<QMenu*>(QStringLiteral("mnuText"));
    }
    void Choose(const char* entry, QPoint at) {
        QMenu* const menu = OpenMenu(QContextMenuEvent::Keyboard, at);
        ASSERT_TRUE(menu);
        auto* const action = menu->findChild<QAction*>(QLatin1String(entry));
        ASSERT_TRUE(action && action->isEnabled()) << entry;
        action->trigger();
        menu->close();
        QApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
    }

    frmEditSpace space{session};
    frmEditCorner corner{session};
};

TEST_F(TypingInPlaceTest, TheCaretStandsBehindTheTextAtOnce) {
    InEach(QStringLiteral("Mill"), [this](const Kind&) {
        Type(QStringLiteral("er"));
        EXPECT_EQ(Text(), QStringLiteral("Miller"));
    });
}

TEST_F(TypingInPlaceTest, HomeAndEndGoToTheEndsWithCtrlAndShift) {
    InEach(QStringLiteral("Old Mill\r\nLane"), [this](const Kind&) {
        Press(Qt::Key_Home, Qt::ShiftModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Lane"));
        Press(Qt::Key_Home, Qt::ShiftModifier | Qt::ControlModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Old Mill\nLane"));
        Press(Qt::Key_Home, Qt::ControlModifier);
        EXPECT_EQ(Marked(), QString());
        Press(Qt::Key_End, Qt::ShiftModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Old Mill"));
        Press(Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Old Mill\nLane"));
        Press(Qt::Key_End, Qt::ControlModifier);
        Press(Qt::Key_Home);
        Type(QStringLiteral("x"));
        EXPECT_EQ(Text(), QStringLiteral("Old Mill\r\nxLane"));
    });
}

TEST_F(TypingInPlaceTest, ShiftWithTheArrowsMarks) {
    InEach(QStringLiteral("Old Mill\r\nLane"), [this](const Kind&) {
        Press(Qt::Key_Home, Qt::ControlModifier);
        Press(Qt::Key_Right, Qt::ShiftModifier);
        Press(Qt::Key_Right, Qt::ShiftModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Ol"));
        Press(Qt::Key_Left, Qt::ShiftModifier);
        EXPECT_EQ(Marked(), QStringLiteral("O"));
        Press(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Old "));
        Press(Qt::Key_Down, Qt::ShiftModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Old Mill\nLane"));
        Press(Qt::Key_Up, Qt::ShiftModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Old "));
    });
}

TEST_F(TypingInPlaceTest, AllIsMarkedTypedOverAndTakenBack) {
    InEach(QStringLiteral("Old\r\nMill"), [this](const Kind&) {
        Press(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Old\nMill"));
        Press(Qt::Key_Delete);
        EXPECT_EQ(Text().remove(QStringLiteral("\r\n")), QString());
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Text(), QStringLiteral("Old\r\nMill"));
        Press(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(Text().remove(QStringLiteral("\r\n")), QString());
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Text(), QStringLiteral("Old\r\nMill"));
    });
}

TEST_F(TypingInPlaceTest, ASecondClickMarksTheWordAThirdTheLine) {
    InEach(QStringLiteral("Millstone"), [this](const Kind& kind) {
        Press(Qt::Key_End);
        Type(QStringLiteral(" Way"));
        const QPoint onFirst = kind.box.center() - QPoint(4, 0);
        QTest::mouseClick(Picture(), Qt::LeftButton, {}, onFirst);
        EXPECT_EQ(Marked(), QString());
        QTest::mouseDClick(Picture(), Qt::LeftButton, {}, onFirst);
        EXPECT_EQ(Marked(), QStringLiteral("Millstone"));
        QTest::mouseClick(Picture(), Qt::LeftButton, {}, onFirst);
        EXPECT_EQ(Marked(), QStringLiteral("Millstone Way"));
    });
}

TEST_F(TypingInPlaceTest, TheMenuOffersWhatTheKeysDo) {
    InEach(QStringLiteral("Mill"), [this](const Kind& kind) {
        Choose("mnuSelectAll", kind.box.center());
        Choose("mnuCopy", kind.box.center());
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Mill"));
        Choose("mnuCut", kind.box.center());
        EXPECT_EQ(Text(), QString());
        Choose("mnuUndo", kind.box.center());
        EXPECT_EQ(Text(), QStringLiteral("Mill"));
        Choose("mnuRedo", kind.box.center());
        Choose("mnuPaste", kind.box.center());
        EXPECT_EQ(Text(), QStringLiteral("Mill"));
        QMenu* const menu = OpenMenu(QContextMenuEvent::Mouse, kind.box.center());
        ASSERT_TRUE(menu) << "the right button opens it, too";
        menu->close();
        QApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
    });
}

TEST_F(TypingInPlaceTest, AnInputMethodShowsWhatItComposesAndEntersItWhole) {
    InEach(QStringLiteral("Mill"), [this](const Kind&) {
        EXPECT_TRUE(QApplication::focusWidget()->inputMethodQuery(Qt::ImEnabled).toBool());
        QInputMethodEvent composing(QStringLiteral("da"), {});
        QApplication::sendEvent(QApplication::focusWidget(), &composing);
        EXPECT_EQ(Text(), QStringLiteral("Mill"));
        bool shown = false;
        for (const QLabel* label : window->findChildren<QLabel*>())
            shown = shown || (label->isVisible() && label->text() == QStringLiteral("da"));
        EXPECT_TRUE(shown);
        QInputMethodEvent done;
        done.setCommitString(QStringLiteral("\u5927"));
        QApplication::sendEvent(QApplication::focusWidget(), &done);
        EXPECT_EQ(Text(), QStringLiteral("Mill\u5927"));
    });
}

TEST_F(TypingInPlaceTest, CombinedLettersAreOneStep) {
    InEach(QStringLiteral("Mill"), [this](const Kind&) {
        Type(QStringLiteral("e"));
        Type(QStringLiteral("\u0301"));
        Press(Qt::Key_Left);
        Type(QStringLiteral("x"));
        EXPECT_EQ(Text(), QStringLiteral("Millxe\u0301"));
        Press(Qt::Key_End);
        Press(Qt::Key_Left, Qt::ShiftModifier);
        EXPECT_EQ(Marked(), QStringLiteral("e\u0301"));
        Press(Qt::Key_End);
        Press(Qt::Key_Backspace);
        EXPECT_EQ(Text(), QStringLiteral("Millx"));
    });
}

TEST_F(TypingInPlaceTest, WordsFromTheRightHaveCaretClickAndMarkAtTheLettersThatAreSeen) {
    InEach(kHebrew, [this](const Kind& kind) {
        const QPoint right(kind.box.right(), kind.box.center().y());
        const QPoint left(kind.box.left(), kind.box.center().y());
        Drag(right, kind.box.center());
        const QString half = Marked();
        EXPECT_TRUE(half.startsWith(kHebrew[0])) << "it begins at the right";
        EXPECT_FALSE(half.contains(kHebrew[3]));
        QTest::mouseClick(Picture(), Qt::LeftButton, {}, left);
        Press(Qt::Key_Backspace);
        EXPECT_EQ(Text(), kHebrew.left(3)) << "it ends at the left";
        QTest::mouseClick(Picture(), Qt::LeftButton, {}, right);
        Press(Qt::Key_Delete);
        EXPECT_EQ(Text(), kHebrew.mid(1, 2));
    });
}

TEST_F(TypingInPlaceTest, MixedLinesMarkWhatIsSeenBetweenTwoPlaces) {
    InEach(QStringLiteral("ab ") + kHebrew, [this](const Kind& kind) {
        const QPoint left(kind.box.left(), kind.box.center().y());
        QTest::mouseClick(Picture(), Qt::LeftButton, {}, left);
        Type(QStringLiteral("c"));
        EXPECT_EQ(Text(), QStringLiteral("cab ") + kHebrew) << "words from the left begin there";
        QTest::mouseDClick(Picture(), Qt::LeftButton, {}, kind.box.center() + QPoint(8, 0));
        EXPECT_EQ(Marked(), kHebrew) << "the word that is seen at the right";
    });
}

} // namespace
