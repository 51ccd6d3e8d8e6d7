// SPDX-License-Identifier: MIT
#include "windows/editors/TypedText.h"

#include "support/TestFixture.h"

#include <QKeyEvent>

using basEditTextArray::KeyResult;
using TypedText::Key;

namespace {

class TypedTextTest : public TavloraTest {
protected:
    static Key KeyOf(int key, const QString& text = QString(), Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        return TypedText::KeyOf(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
    }
    KeyResult Feed(const QString& text) { return TypedText::Feed(lines, selection, text); }
    QString Text() const { return lines.join(u'|'); }
    static QString LossOf(const QString& text, const QStringList& before, const QStringList& stored,
                          const TextSelection& marked = {}) {
        return TypedText::Loss({before, marked, text}, stored, stored);
    }
    void CaretAt(int column, int row) { selection.SetCaret(column, row); }

    QStringList lines{QStringLiteral("Elm"), QStringLiteral("Street")};
    TextSelection selection;
    static constexpr TypedText::LineRoom kAnyRoom{TypedText::kAnyLength, TypedText::kAnyLength};
};

TEST_F(TypedTextTest, KeysAreTextOrNot) {
    EXPECT_EQ(KeyOf(Qt::Key_A, QStringLiteral("a")).sText, QStringLiteral("a"));
    EXPECT_EQ(KeyOf(Qt::Key_Left).iKeyCode, 37);
    EXPECT_EQ(KeyOf(Qt::Key_Delete, QStringLiteral("\x7f")).iKeyCode, 46);
    EXPECT_EQ(KeyOf(Qt::Key_Enter, QStringLiteral("\r")).sText, QStringLiteral("\r"));
    EXPECT_EQ(KeyOf(Qt::Key_Backspace, QStringLiteral("\b")).sText, QStringLiteral("\b"));
    EXPECT_EQ(KeyOf(Qt::Key_unknown, QStringLiteral("\U0001F3E0")).kind, Key::Kind::Press);
    for (const Key& none :
         {KeyOf(Qt::Key_Tab, QStringLiteral("\t")), KeyOf(Qt::Key_Escape, QStringLiteral("\x1b")),
          KeyOf(Qt::Key_F, QStringLiteral("f"), Qt::AltModifier),
          KeyOf(Qt::Key_B, QStringLiteral("\x02"), Qt::ControlModifier), KeyOf(Qt::Key_Insert), KeyOf(Qt::Key_Shift)})
        EXPECT_EQ(none.kind, Key::Kind::None);
}

TEST_F(TypedTextTest, PlainArrowsAndDeleteGoTheToldWay) {
    const std::pair<Qt::Key, int> keys[] = {
        {Qt::Key_Left, 37}, {Qt::Key_Up, 38}, {Qt::Key_Right, 39}, {Qt::Key_Down, 40}, {Qt::Key_Delete, 46}};
    for (const auto& [key, code] : keys) {
        EXPECT_EQ(KeyOf(key).kind, Key::Kind::Down) << code;
        EXPECT_EQ(KeyOf(key).iKeyCode, code);
    }
    EXPECT_EQ(KeyOf(Qt::Key_Delete, {}, Qt::ShiftModifier).iKeyCode, 46) << "no cut";
}

TEST_F(TypedTextTest, AltGrGivesCharacters) {
    const Key key = KeyOf(Qt::Key_At, QStringLiteral("@"), Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(key.kind, Key::Kind::Press);
    EXPECT_EQ(key.sText, QStringLiteral("@"));
}

TEST_F(TypedTextTest, TheFirstCharacterTakesThePlaceOfANameOfBlanks) {
    for (const char* entered : {"O", "Oak", "\U0001F3E0", "\u05d0"}) {
        lines = {QStringLiteral("  ")};
        CaretAt(1, 0);
        EXPECT_EQ(Feed(QString::fromUtf8(entered)), KeyResult::TextChanged);
        EXPECT_EQ(Text(), QString::fromUtf8(entered));
        EXPECT_EQ(selection.m_iCol, Text().size());
    }
}

TEST_F(TypedTextTest, BlanksEnterAndBackspaceLeaveANameOfBlanksAsItIs) {
    for (const auto& [entered, after] : {std::pair(" ", "   "), std::pair("\r", "  |"), std::pair("\b", " ")}) {
        lines = {QStringLiteral("  ")};
        CaretAt(2, 0);
        Feed(QString::fromLatin1(entered));
        EXPECT_EQ(Text(), QString::fromLatin1(after));
    }
    lines = {QString(), QString()};
    CaretAt(0, 1);
    Feed(QStringLiteral("x"));
    EXPECT_EQ(Text(), QStringLiteral("|x")) << "an empty line ahead is meant";
}

TEST_F(TypedTextTest, BlanksThatGaveWayAreNoLoss) {
    const QString full(40, u'x');
    EXPECT_EQ(LossOf(full, {QStringLiteral(" ")}, {full}), QString());
    EXPECT_NE(LossOf(full + u'y', {QStringLiteral(" ")}, {full}), QString());
}

TEST_F(TypedTextTest, ClipboardKeysAreKnown) {
    EXPECT_EQ(KeyOf(Qt::Key_C, {}, Qt::ControlModifier).kind, Key::Kind::Copy);
    EXPECT_EQ(KeyOf(Qt::Key_X, {}, Qt::ControlModifier).kind, Key::Kind::Cut);
    EXPECT_EQ(KeyOf(Qt::Key_V, {}, Qt::ControlModifier).kind, Key::Kind::Paste);
}

TEST_F(TypedTextTest, EveryKindOfLineBreakIsOneEnter) {
    lines = {QString()};
    CaretAt(0, 0);
    EXPECT_EQ(Feed(QStringLiteral("a\r\nb\nc\rd\u2029e")), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("a|b|c|d|e"));
}

TEST_F(TypedTextTest, ControlCharactersNeverReachTheText) {
    CaretAt(3, 0);
    EXPECT_EQ(Feed(QStringLiteral("\x01\x1b")), KeyResult::Nothing);
    Feed(QStringLiteral("\ta\bb"));
    EXPECT_EQ(Text(), QStringLiteral("Elm b|Street"));
}

TEST_F(TypedTextTest, WhatHasNoLineToStandOnIsLeftOut) {
    lines = QStringList(9, QStringLiteral("x"));
    CaretAt(1, 8);
    EXPECT_EQ(Feed(QStringLiteral("\nlast\nmore")), KeyResult::TextChanged);
    EXPECT_EQ(lines.size(), 10);
    EXPECT_EQ(lines.last(), QStringLiteral("last"));
}

TEST_F(TypedTextTest, TheSelectedTextIsReadInEitherDirection) {
    selection = {1, 0, 3, 1};
    EXPECT_EQ(TypedText::Selected(lines, selection), QStringLiteral("lm\nStr"));
    selection = {3, 1, 1, 0};
    EXPECT_EQ(TypedText::Selected(lines, selection), QStringLiteral("lm\nStr"));
    selection = {4, 1, 2, 1};
    EXPECT_EQ(TypedText::Selected(lines, selection), QStringLiteral("re"));
    CaretAt(2, 1);
    EXPECT_EQ(TypedText::Selected(lines, selection), QString());
    selection.Clear();
    EXPECT_EQ(TypedText::Selected(lines, selection), QString());
}

TEST_F(TypedTextTest, RemovingNeedsASelection) {
    CaretAt(2, 1);
    EXPECT_EQ(TypedText::Remove(lines, selection), KeyResult::Nothing);
    selection = {4, 1, 2, 1};
    EXPECT_EQ(TypedText::Remove(lines, selection), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("Elm|Stet"));
}

TEST_F(TypedTextTest, APasteStopsAtWhatItsLineCanHold) {
    lines = {QString(38, u'a')};
    CaretAt(2, 0);
    EXPECT_EQ(Feed(QStringLiteral("xyz\nnext")), KeyResult::TextChanged);
    EXPECT_EQ(lines, (QStringList{QStringLiteral("aaxy"), QStringLiteral("next") + QString(36, u'a')}))
        << "what stood behind the caret goes on behind the break";
}

TEST_F(TypedTextTest, AHugePasteKeepsWhatStands) {
    lines = {QStringLiteral("Elm Street")};
    CaretAt(10, 0);
    Feed(QString(40000, u'x'));
    EXPECT_EQ(lines, QStringList{QStringLiteral("Elm Street") + QString(30, u'x')});
    EXPECT_EQ(selection.m_iCol, 40);
    EXPECT_EQ(TypedText::Feed(lines, selection, QString(40000, u'y'), kAnyRoom), KeyResult::TextChanged);
    EXPECT_EQ(lines[0].size(), TypedText::kAnyLength);
}

TEST_F(TypedTextTest, APasteOverAMarkedTextHasItsRoom) {
    lines = {QString(40, u'a')};
    selection.SetCaret(0, 0);
    selection.SetEnd(40, 0);
    Feed(QStringLiteral("bcd"));
    EXPECT_EQ(lines, QStringList{QStringLiteral("bcd")});
}

TEST_F(TypedTextTest, TheCaretComesBackToTheEndOfAStoredLine) {
    selection.SetCaret(9, 1);
    TypedText::KeepWithin(selection, lines);
    EXPECT_EQ(selection.m_iCol, 6);
    selection.SetCaret(2, 5);
    TypedText::KeepWithin(selection, lines);
    EXPECT_EQ(selection.m_iRow, 1);
    EXPECT_EQ(selection.m_iCol, 2);
    selection.Clear();
    TypedText::KeepWithin(selection, lines);
    EXPECT_FALSE(selection.IsOn());
}

TEST_F(TypedTextTest, ALossIsToldByItsCause) {
    const QStringList full{QString(40, u'a')};
    const QStringList ten(10, QStringLiteral("a"));
    EXPECT_EQ(LossOf(QStringLiteral("b"), full, full), QStringLiteral("Only 40 letters fit on a line."));
    EXPECT_EQ(LossOf(QStringLiteral("b\nc"), ten, ten), QStringLiteral("Only 10 lines fit here."));
    EXPECT_EQ(LossOf(QStringLiteral("b"), {QStringLiteral("a")}, {QStringLiteral("ab")}), QString());
    EXPECT_EQ(LossOf(QStringLiteral("\n"), {QStringLiteral("ab")}, {QStringLiteral("a"), QStringLiteral("b")}),
              QString());
    EXPECT_EQ(LossOf(QStringLiteral("\b"), {QStringLiteral("ab")}, {QStringLiteral("a")}), QString()) << "on purpose";
    EXPECT_EQ(LossOf(QString(40, u'b'), full, {QString(40, u'b')}, {0, 0, 40, 0}), QString()) << "in its place";
    EXPECT_NE(LossOf(QString(41, u'b'), full, {QString(40, u'b')}, {0, 0, 40, 0}), QString());
}

} // namespace
