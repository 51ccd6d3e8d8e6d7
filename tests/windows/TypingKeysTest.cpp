// SPDX-License-Identifier: MIT
// Typing in place by keyboard, mouse and menu as in any text box, in the windows themselves.
#include "windowing/PictureBox.h"
#include "windows/EditSpaceFixture.h"

#include <QAction>
#include <QClipboard>
#include <QMenu>

namespace {

class TypingKeysTest : public EditSpaceTest {
protected:
    QString Text() const { return form.GetTextArray().join(u'|'); }
    QString Marked() {
        QGuiApplication::clipboard()->clear();
        Press(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    }
    /// One more press in a row at one place.
    void ClickAgain(QPoint at) { QTest::mouseDClick(Find<PictureBox>("picDest"), Qt::LeftButton, {}, at); }
    void Choose(const char* entry) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(0, 0), QPoint(0, 0));
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        auto* const menu = window->findChild<QMenu*>(QStringLiteral("mnuText"));
        ASSERT_TRUE(menu);
        auto* const action = menu->findChild<QAction*>(QLatin1String(entry));
        ASSERT_TRUE(action) << entry;
        EXPECT_TRUE(action->isEnabled()) << entry;
        action->trigger();
        menu->close();
        QApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
    }
};

TEST_F(TypingKeysTest, TheCaretStandsBehindTheNameAtOnce) {
    EXPECT_TRUE(Edit([&] {
        Type(QStringLiteral(" 7"));
        Click("cmdOK");
    }));
    EXPECT_EQ(Space().TextAll(), QStringLiteral("Elm\r\nStreet 7"));
}

// The focus goes to one of them; Space and Enter are its own then.
TEST_F(TypingKeysTest, ALetterThatTwoButtonsShareTakesTheCaretOutOfTheText) {
    Edit([&] {
        auto* const font = Find<QPushButton>("cmdChangeFont");
        auto* const ok = Find<QPushButton>("cmdOK");
        font->setText(QStringLiteral("Change &Q"));
        ok->setText(QStringLiteral("&Q"));
        Press(Qt::Key_Q, Qt::AltModifier);
        ASSERT_TRUE(font->hasFocus() || ok->hasFocus());
        Type(QStringLiteral("x\u00E9"));
        EXPECT_EQ(Text(), QStringLiteral("Elm|Street"));
    });
}

TEST_F(TypingKeysTest, AllIsMarkedAndTypedOver) {
    Edit([&] {
        Press(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(Marked(), QStringLiteral("Elm\nStreet"));
        Press(Qt::Key_Delete);
        Type(QStringLiteral("Oak"));
        EXPECT_EQ(Text().remove(u'|'), QStringLiteral("Oak"));
    });
}

TEST_F(TypingKeysTest, WhatWasTypedIsTakenBackAndBroughtAgain) {
    Edit([&] {
        Type(QStringLiteral("er way"));
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Text(), QStringLiteral("Elm|Streeter "));
        Press(Qt::Key_Z, Qt::ControlModifier);
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Text(), QStringLiteral("Elm|Street"));
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Text(), QStringLiteral("Elm|Street")) << "nothing more to take back";
        Press(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(Text(), QStringLiteral("Elm|Streeter"));
        Type(QStringLiteral("s"));
        EXPECT_EQ(Text(), QStringLiteral("Elm|Streeters")) << "the caret came along";
    });
}

TEST_F(TypingKeysTest, AnotherOpeningBeginsAnew) {
    Edit([&] {
        Type(QStringLiteral("er"));
        Click("cmdOK");
    });
    Edit([&] {
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Text(), QStringLiteral("Elm|Streeter"));
    });
}

TEST_F(TypingKeysTest, ClicksInARowMarkWordAndLine) {
    GivePicture(QString());
    Edit([&] {
        const QPoint onStreet(103, 190);
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(QStringLiteral("Old Mill"));
        ClickAgain(onStreet);
        const QString word = Marked();
        EXPECT_TRUE(word == QStringLiteral("Old") || word == QStringLiteral("Mill")) << word.toStdString();
        ClickPicture(onStreet.x(), onStreet.y());
        EXPECT_EQ(Marked(), QStringLiteral("Old Mill"));
    });
}

TEST_F(TypingKeysTest, TheMenuDoesWhatTheKeysDo) {
    Edit([&] {
        Choose("mnuSelectAll");
        Choose("mnuCut");
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Elm\nStreet"));
        EXPECT_EQ(Text().remove(u'|'), QString());
        Choose("mnuUndo");
        EXPECT_EQ(Text(), QStringLiteral("Elm|Street"));
        Choose("mnuRedo");
        Choose("mnuPaste");
        EXPECT_TRUE(Text().contains(QStringLiteral("Street")));
    });
}

TEST_F(TypingKeysTest, TheMenuOpensOnTheTextOnly) {
    Edit([&] {
        auto* const picture = Find<PictureBox>("picDest");
        QContextMenuEvent beside(QContextMenuEvent::Mouse, QPoint(3, 3), picture->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(picture, &beside);
        EXPECT_FALSE(window->findChild<QMenu*>(QStringLiteral("mnuText")));
        QContextMenuEvent on(QContextMenuEvent::Mouse, QPoint(103, 240), picture->mapToGlobal(QPoint(103, 240)));
        QApplication::sendEvent(picture, &on);
        auto* const menu = window->findChild<QMenu*>(QStringLiteral("mnuText"));
        ASSERT_TRUE(menu);
        EXPECT_FALSE(menu->findChild<QAction*>(QStringLiteral("mnuUndo"))->isEnabled());
        menu->close();
    });
}

} // namespace
