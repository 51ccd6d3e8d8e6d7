// SPDX-License-Identifier: MIT
// What is typed or pasted into a title and finds no room, and what a paste costs there.
#include "windowing/Clipboard.h"
#include "windowing/PictureBox.h"
#include "windows/editors/frmEditCenter.h"

#include "support/EditorFixture.h"
#include "support/HourGlassWatch.h"

#include <QLabel>

namespace {

constexpr int kName = 1;
constexpr int kSubtitle = 2;
const QString kOnly40 = QStringLiteral("Only 40 letters fit on a line.");
const QString kNoMore = QStringLiteral("A title of 10 lines takes no more letters.");

class TitlesTypingTest : public EditorTest {
protected:
    TitlesTypingTest() {
        for (int i = 0; i <= 3; ++i)
            basPosit::SetSpecialText(i, QStringLiteral("Title"));
    }
    /// Does something with the caret behind the text of a title.
    void Edit(int iTitle, const QString& sText, const std::function<void()>& doIt) {
        basPosit::SetSpecialText(iTitle, sText);
        Open(iTitle, doIt);
    }
    void Open(int iTitle, const std::function<void()>& doIt) {
        WhenModal([&](QDialog& form) {
            EXPECT_EQ(Told(), QString()) << "nothing of the title before";
            if (iTitle == kSubtitle) Press(Qt::Key_Tab);
            doIt();
            form.hide();
        });
        bool changed = false;
        editor.ShowForm(changed);
    }
    QString Told() {
        const QString told = Find<QLabel>(editor, "lblPaper").text();
        return told == kOnly40 || told == kNoMore || told.startsWith(QStringLiteral("Only ")) ? told : QString();
    }
    QStringList LinesOf(int iTitle) const { return editor.Typed().Text(iTitle).Lines(); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(editor.focusWidget(), key, modifiers);
    }
    void Type(const QString& sText) { QTest::keyClicks(editor.focusWidget(), sText); }
    void Paste(const QString& sText) {
        Clipboard::SetText(sText);
        Press(Qt::Key_V, Qt::ControlModifier);
    }

    frmEditCenter editor{session};
};

TEST_F(TitlesTypingTest, AllMarkedAndPastedOverIsTold) {
    for (const int title : {kName, kSubtitle}) {
        Edit(title, QStringLiteral("Our Town"), [&] {
            Press(Qt::Key_A, Qt::ControlModifier);
            Paste(QString(60, u'x'));
            EXPECT_EQ(LinesOf(title).first(), QString(40, u'x'));
            EXPECT_EQ(Told(), kOnly40);
            Press(Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(LinesOf(title).first(), QStringLiteral("Our Town"));
            EXPECT_EQ(Told(), QString()) << "all is back";
        });
    }
}

TEST_F(TitlesTypingTest, WhatAFullLineHasNoRoomForAtAllIsTold) {
    for (const QString& text : {QStringLiteral("xyz"), QStringLiteral("\U0001F3B2")}) {
        Edit(kSubtitle, QString(40, u'a'), [&] {
            Paste(text);
            EXPECT_EQ(LinesOf(kSubtitle), QStringList{QString(40, u'a')});
            EXPECT_EQ(Told(), kOnly40);
        });
    }
}

TEST_F(TitlesTypingTest, LinesBeyondTheTenthAreTold) {
    for (const int lines : {10, 12}) {
        Edit(kSubtitle, QString(), [&] {
            Paste(QStringList(lines, QStringLiteral("ab")).join(u'\n'));
            EXPECT_EQ(LinesOf(kSubtitle), QStringList(9, QStringLiteral("ab")) + QStringList{QString()});
            EXPECT_EQ(Told(), kNoMore) << lines;
        });
    }
    Edit(kSubtitle, QString(), [&] {
        Paste(QStringList(9, QStringLiteral("ab")).join(u'\n'));
        EXPECT_EQ(LinesOf(kSubtitle), QStringList(9, QStringLiteral("ab")));
        EXPECT_EQ(Told(), QString());
    });
}

TEST_F(TitlesTypingTest, ATitleThatNoGameHasSetYetTakesAsManyLinesAsAnEmptyOne) {
    basPosit::m_CenterText(kSubtitle) = SpecialText{};
    Open(kSubtitle, [&] {
        Paste(QStringList(10, QStringLiteral("ab")).join(u'\n'));
        EXPECT_EQ(LinesOf(kSubtitle), QStringList(9, QStringLiteral("ab")) + QStringList{QString()});
        EXPECT_EQ(Told(), kNoMore);
    });
}

TEST_F(TitlesTypingTest, ShiftAndTabGoBackThroughTheThreeTitlesAndThenToTheButtons) {
    Open(kName, [&] {
        QWidget* const text = editor.focusWidget();
        Press(Qt::Key_Tab);
        Press(Qt::Key_Tab);
        Type(QStringLiteral("3"));
        for (const char* const typed : {"2", "1"}) {
            Press(Qt::Key_Backtab, Qt::ShiftModifier);
            EXPECT_EQ(editor.focusWidget(), text);
            Type(QString::fromLatin1(typed));
        }
        for (int i = 1; i <= 3; ++i)
            EXPECT_EQ(LinesOf(i), QStringList{QStringLiteral("Title%1").arg(i)});
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(editor.focusWidget(), &Find<QWidget>(editor, "cmdCancel"));
    });
}

TEST_F(TitlesTypingTest, ATitleOfTenLinesSaysThatItTakesNoMore) {
    const QString ten = QStringList(10, QStringLiteral("ab")).join(QStringLiteral("\r\n"));
    for (const bool pasted : {true, false}) {
        Edit(kSubtitle, ten, [&] {
            pasted ? Paste(QStringLiteral("c")) : Type(QStringLiteral("c"));
            EXPECT_EQ(LinesOf(kSubtitle).join(QStringLiteral("\r\n")), ten);
            EXPECT_EQ(Told(), kNoMore);
            Press(Qt::Key_Backspace);
            EXPECT_EQ(Told(), QString());
            Type(QStringLiteral("c"));
            EXPECT_EQ(Told(), kNoMore);
            Press(Qt::Key_Tab);
            EXPECT_EQ(Told(), QString()) << "of another title";
        });
    }
}

TEST_F(TitlesTypingTest, LinesThatAKeyJoinsBeyondTheLimitAreTold) {
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete}) {
        Edit(kSubtitle, QString(30, u'a') + QStringLiteral("\r\n") + QString(30, u'b'), [&] {
            Press(Qt::Key_Home);
            if (key == Qt::Key_Delete) Press(Qt::Key_Left);
            Press(key);
            EXPECT_EQ(LinesOf(kSubtitle), QStringList{QString(30, u'a') + QString(10, u'b')});
            EXPECT_EQ(Told(), kOnly40) << key;
        });
    }
}

TEST_F(TitlesTypingTest, BackspaceTakesTheLastLetterAfterTypingBeyondTheLine) {
    for (const int title : {kName, kSubtitle}) {
        Edit(title, QStringLiteral("a"), [&] {
            Type(QString(49, u'a'));
            EXPECT_EQ(LinesOf(title).first().size(), 40);
            Press(Qt::Key_Backspace);
            EXPECT_EQ(LinesOf(title).first().size(), 39);
        });
    }
}

// Five thousand fits of a title, and as many pictures of it, take seconds.
TEST_F(TitlesTypingTest, APasteIsStoredAndDrawnOnceHoweverLongItIs) {
    const auto drawnBy = [&](const QString& text) {
        int times = 0;
        Edit(kSubtitle, QStringLiteral("a"), [&] {
            Clipboard::SetText(text);
            const HourGlassWatch watch;
            Press(Qt::Key_V, Qt::ControlModifier);
            times = watch.Times("picForm");
            Press(Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(LinesOf(kSubtitle), QStringList{QStringLiteral("a")}) << "in one step";
        });
        return times;
    };
    const int letter = drawnBy(QStringLiteral("b"));
    EXPECT_GT(letter, 0);
    EXPECT_EQ(drawnBy(QString(5000, u'b')), letter);
}

TEST_F(TitlesTypingTest, EnterInTheGamesNameIsNoLoss) {
    Edit(kName, QString(40, u'a'), [&] {
        Press(Qt::Key_Return);
        EXPECT_EQ(Told(), QString());
        Paste(QStringLiteral("\n\u2028\u2029"));
        EXPECT_EQ(Told(), QString());
        EXPECT_EQ(editor.Typed().Text(kName).sText, QString(40, u'a'));
    });
}

} // namespace
