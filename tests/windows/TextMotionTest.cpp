// SPDX-License-Identifier: MIT
// The keys of any text box, on lines that are typed in place.
#include "windows/editors/TextMotion.h"

#include "support/TestFixture.h"
#include "windows/editors/TypedHistory.h"
#include "windows/editors/TypedText.h"

#include <QKeyEvent>

using TextMotion::Way;

namespace {

const QString kFamily = QStringLiteral("\U0001F468‍\U0001F469‍\U0001F467");

class TextMotionTest : public TavloraTest {
protected:
    QString Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = QString()) {
        const TypedText::Key typed = TypedText::KeyOf(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
        TypedText::Take(typed, lines, selection);
        return TypedText::Selected(lines, selection);
    }
    QString Caret() const { return QStringLiteral("%1:%2").arg(selection.m_iRowEnd).arg(selection.m_iColEnd); }

    QStringList lines{QStringLiteral("Elm Tree"), QStringLiteral("Old Mill Road")};
    TextSelection selection{.m_iCol = 4, .m_iRow = 1, .m_iColEnd = 4, .m_iRowEnd = 1};
};

TEST_F(TextMotionTest, HomeAndEndGoToTheEndsOfLineAndText) {
    Press(Qt::Key_End);
    EXPECT_EQ(Caret(), QStringLiteral("1:13"));
    Press(Qt::Key_Home);
    EXPECT_EQ(Caret(), QStringLiteral("1:0"));
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Caret(), QStringLiteral("0:0"));
    Press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Caret(), QStringLiteral("1:13"));
    EXPECT_FALSE(selection.HasText());
}

TEST_F(TextMotionTest, ShiftMarksWhatLiesBetween) {
    EXPECT_EQ(Press(Qt::Key_End, Qt::ShiftModifier), QStringLiteral("Mill Road"));
    EXPECT_EQ(Press(Qt::Key_Left, Qt::ShiftModifier), QStringLiteral("Mill Roa"));
    EXPECT_EQ(Press(Qt::Key_Home, Qt::ShiftModifier), QStringLiteral("Old ")) << "the first end stays";
    EXPECT_EQ(Press(Qt::Key_Up, Qt::ShiftModifier), QStringLiteral("Elm Tree\nOld "));
    EXPECT_EQ(Press(Qt::Key_Down, Qt::ShiftModifier), QStringLiteral("Old "));
    EXPECT_EQ(Press(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier), QStringLiteral("Elm Tree\nOld "));
    EXPECT_EQ(Press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier), QStringLiteral("Mill Road"));
}

TEST_F(TextMotionTest, CtrlGoesByWords) {
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Caret(), QStringLiteral("1:9"));
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Caret(), QStringLiteral("1:13"));
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Caret(), QStringLiteral("1:13")) << "there is nothing behind";
    selection.SetCaret(6, 1);
    Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(Caret(), QStringLiteral("1:4"));
    Press(Qt::Key_Left, Qt::ControlModifier);
    Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(Caret(), QStringLiteral("0:8")) << "and over the line's start";
    EXPECT_EQ(Press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier), QStringLiteral("Tree"));
    selection.SetCaret(8, 0);
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Caret(), QStringLiteral("1:0")) << "and over its end";
}

TEST_F(TextMotionTest, LeftGoesToTheLineBeforeOnlyFromTheStartOfALine) {
    lines.append(QStringLiteral("X"));
    selection.SetCaret(1, 2);
    const char* const places[] = {"2:0", "1:13", "1:12"};
    for (const char* place : places) {
        Press(Qt::Key_Left);
        EXPECT_EQ(Caret(), QLatin1String(place));
    }
    selection.SetCaret(0, 0);
    Press(Qt::Key_Left);
    EXPECT_EQ(Caret(), QStringLiteral("0:0"));
}

TEST_F(TextMotionTest, RightGoesToTheStartOfTheLineBehindOnlyFromTheEndOfALine) {
    selection.SetCaret(7, 0);
    const char* const places[] = {"0:8", "1:0", "1:1"};
    for (const char* place : places) {
        Press(Qt::Key_Right);
        EXPECT_EQ(Caret(), QLatin1String(place));
    }
    selection.SetCaret(13, 1);
    Press(Qt::Key_Right);
    EXPECT_EQ(Caret(), QStringLiteral("1:13"));
}

TEST_F(TextMotionTest, AllIsMarkedAndReplaced) {
    EXPECT_EQ(Press(Qt::Key_A, Qt::ControlModifier, QStringLiteral("\x01")), QStringLiteral("Elm Tree\nOld Mill Road"));
    Press(Qt::Key_Delete);
    EXPECT_EQ(lines.join(u'|').remove(u'|'), QString());
}

TEST_F(TextMotionTest, WordsGoAtOnce) {
    Press(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(lines[1], QStringLiteral("Old Road"));
    Press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(lines[1], QStringLiteral("Road"));
}

TEST_F(TextMotionTest, ASecondClickMarksTheWordAThirdTheLine) {
    selection.SetCaret(5, 1);
    TextMotion::MarkWord(lines, selection);
    EXPECT_EQ(TypedText::Selected(lines, selection), QStringLiteral("Mill"));
    TextMotion::MarkLine(lines, selection);
    EXPECT_EQ(TypedText::Selected(lines, selection), QStringLiteral("Old Mill Road"));
    selection.SetCaret(13, 1);
    TextMotion::MarkWord(lines, selection);
    EXPECT_EQ(TypedText::Selected(lines, selection), QStringLiteral("Road")) << "behind its last letter";
    lines = {QString()};
    selection.SetCaret(0, 0);
    TextMotion::MarkWord(lines, selection);
    EXPECT_FALSE(selection.HasText());
}

TEST_F(TextMotionTest, LettersOfSeveralUnitsAreOneStep) {
    lines = {QStringLiteral("e\u0301") + kFamily};
    selection.SetCaret(0, 0);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(selection.m_iColEnd, 2);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(selection.m_iColEnd, lines[0].size());
    Press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(selection.m_iColEnd, 2);
}

TypedHistory::State At(const char* line, int column) {
    return {0, {QString::fromLatin1(line)}, {qint16(column), 0, qint16(column), 0}};
}

TEST(TypedHistoryTest, LettersOfAWordAreOneStep) {
    TypedHistory history;
    history.Note(At("", 0), At("E", 1), QStringLiteral("E"));
    history.Note(At("E", 1), At("El", 2), QStringLiteral("l"));
    history.Note(At("El", 2), At("El ", 3), QStringLiteral(" "));
    history.Note(At("El ", 3), At("El m", 4), QStringLiteral("m"));
    EXPECT_EQ(history.Undo(At("El m", 4))->sTextLines.first(), QStringLiteral("El "));
    EXPECT_EQ(history.Undo(At("El ", 3))->sTextLines.first(), QStringLiteral("El"));
    EXPECT_EQ(history.Undo(At("El", 2))->sTextLines.first(), QString());
    EXPECT_FALSE(history.Undo(At("", 0)));
    EXPECT_EQ(history.Redo(At("", 0))->sTextLines.first(), QStringLiteral("El"));
}

TEST(TypedHistoryTest, ALetterElsewhereIsAStepOfItsOwn) {
    TypedHistory history;
    history.Note(At("ab", 1), At("xab", 2), QStringLiteral("x"));
    history.Note(At("xab", 0), At("yxab", 1), QStringLiteral("y"));
    EXPECT_EQ(history.Undo(At("yxab", 1))->sTextLines.first(), QStringLiteral("xab"));
    EXPECT_TRUE(history.CanUndo());
    history.Note(At("xab", 0), At("zxab", 1), QStringLiteral("z"));
    EXPECT_FALSE(history.CanRedo()) << "what was typed since can't be brought again";
}

} // namespace
