// SPDX-License-Identifier: MIT
#include "windows/editors/basEditTextArray.h"

#include "document/C_Space.h"
#include "services/basErrLog.h"
#include "services/TavloraError.h"
#include "support/GameFixture.h"
#include "windows/editors/TypedText.h"

using namespace basEditTextArray;

namespace {

class EditTextArrayTest : public GameTest {
protected:
    EditTextArrayTest() { lines = {QStringLiteral("Elm"), QStringLiteral("Street"), QStringLiteral("No 7")}; }

    void CaretAt(int column, int line) { Select(column, line, column, line); }
    void Select(int column, int line, int columnEnd, int lineEnd) {
        iCol = qint16(column);
        iRow = qint16(line);
        iColEnd = qint16(columnEnd);
        iRowEnd = qint16(lineEnd);
    }
    KeyResult Down(int iKeyCode) { return ETA_KeyDown(lines, iKeyCode, iCol, iRow, iColEnd, iRowEnd); }
    KeyResult Press(int character) {
        iKeyAscii = character;
        return ETA_KeyPress(lines, iKeyAscii, iCol, iRow, iColEnd, iRowEnd);
    }
    // Both ends as "column,row" or, where they differ, "column,row-column,row".
    QString Where() const {
        const QString from = QStringLiteral("%1,%2").arg(iCol).arg(iRow);
        const QString to = QStringLiteral("%1,%2").arg(iColEnd).arg(iRowEnd);
        return from == to ? from : from + u'-' + to;
    }
    QString Text() const { return lines.join(u'|'); }

    QStringList lines;
    int iKeyAscii = 0;
    qint16 iCol = 0;
    qint16 iRow = 0;
    qint16 iColEnd = 0;
    qint16 iRowEnd = 0;
};

TEST_F(EditTextArrayTest, Edge_BackspaceWithASelectionRemovesOneCharacterMore) {
    Select(2, 1, 4, 1);
    EXPECT_EQ(Press(vbKeyBack), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("Elm|Set|No 7"));
    EXPECT_EQ(Where(), QStringLiteral("1,1"));
    EXPECT_EQ(iKeyAscii, 0);
}

TEST_F(EditTextArrayTest, Edge_DeletingFromLine1ToLine3LeavesHeadAndTailAsTwoLines) {
    Select(2, 0, 3, 2);
    EXPECT_EQ(Down(vbKeyDelete), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("El|7"));
    EXPECT_EQ(Where(), QStringLiteral("2,0"));
}

TEST_F(EditTextArrayTest, Edge_EnterOnTheTenthLineOnlyDeletesTheSelection) {
    lines = QStringList(10, QStringLiteral("line"));
    Select(1, 9, 3, 9);
    EXPECT_EQ(Press(vbKeyReturn), KeyResult::Nothing);
    EXPECT_EQ(iKeyAscii, int(vbKeyReturn)) << "the key is passed on";
    EXPECT_EQ(lines.size(), 10);
    EXPECT_EQ(lines[9], QStringLiteral("le"));
    EXPECT_EQ(Where(), QStringLiteral("1,9"));
}

TEST_F(EditTextArrayTest, Edge_UpAtTheStartOfALineGoesToTheEndOfThePreviousOne) {
    CaretAt(0, 1);
    EXPECT_EQ(Down(vbKeyUp), KeyResult::CaretMoved);
    EXPECT_EQ(Where(), QStringLiteral("3,0"));
    CaretAt(0, 2);
    EXPECT_EQ(Down(vbKeyUp), KeyResult::CaretMoved);
    EXPECT_EQ(Where(), QStringLiteral("6,1"));
}

TEST_F(EditTextArrayTest, DownAndRightAtTheVeryEndAreReportedAsNothing) {
    for (const int code : {vbKeyDown, vbKeyRight}) {
        CaretAt(4, 2);
        EXPECT_EQ(Down(code), KeyResult::Nothing);
        EXPECT_EQ(Where(), QStringLiteral("4,2"));
    }
}

TEST_F(EditTextArrayTest, Edge_The41stCharacterIsAcceptedAndLostWhenTheTextIsStored) {
    const QString full(40, u'i');
    lines = {full, QStringLiteral("mid"), full};
    for (const int row : {0, 2}) {
        CaretAt(40, row);
        EXPECT_EQ(Press('x'), KeyResult::TextChanged);
        EXPECT_EQ(lines[row], full + u'x');
        EXPECT_EQ(Where(), QStringLiteral("41,%1").arg(row));
    }
    C_Space space;
    space.SetText(TypedText::Joined(lines));
    EXPECT_EQ(space.TextAll(), full + QStringLiteral("\r\nmid\r\n") + full);
}

TEST_F(EditTextArrayTest, Edge_DeleteAtTheEndOfTheLastLineDoesNothing) {
    CaretAt(4, 2);
    EXPECT_EQ(Down(vbKeyDelete), KeyResult::Nothing);
    EXPECT_EQ(Text(), QStringLiteral("Elm|Street|No 7"));
}

TEST_F(EditTextArrayTest, ArrowsWalkThroughTheTextCharacterByCharacter) {
    CaretAt(0, 0);
    EXPECT_EQ(Down(vbKeyLeft), KeyResult::Nothing);
    int steps = 0;
    while (Down(steps % 2 ? vbKeyRight : vbKeyDown) == KeyResult::CaretMoved)
        ++steps;
    EXPECT_EQ(steps, 3 + 1 + 6 + 1 + 4);
    EXPECT_EQ(Where(), QStringLiteral("4,2"));
    while (Down(vbKeyLeft) == KeyResult::CaretMoved)
        --steps;
    EXPECT_EQ(steps, 0);
    EXPECT_EQ(Where(), QStringLiteral("0,0"));
}

TEST_F(EditTextArrayTest, AnArrowCollapsesASelectionToItsFirstEnd) {
    Select(2, 1, 4, 2);
    EXPECT_EQ(Down(vbKeyRight), KeyResult::CaretMoved);
    EXPECT_EQ(Where(), QStringLiteral("3,1"));
    Select(0, 0, 2, 0);
    EXPECT_EQ(Down(vbKeyLeft), KeyResult::Nothing);
    EXPECT_EQ(Where(), QStringLiteral("0,0"));
}

TEST_F(EditTextArrayTest, OtherKeysDoNothingAndKeepTheSelection) {
    Select(1, 0, 2, 1);
    for (const int code : {8, 13, 35, 36, 41, 45, 47, 65})
        EXPECT_EQ(Down(code), KeyResult::Nothing) << code;
    EXPECT_EQ(Where(), QStringLiteral("1,0-2,1"));
    EXPECT_EQ(Text(), QStringLiteral("Elm|Street|No 7"));
}

TEST_F(EditTextArrayTest, DeleteTakesTheNextCharacterOrTheLineBreak) {
    CaretAt(1, 0);
    EXPECT_EQ(Down(vbKeyDelete), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("Em|Street|No 7"));
    CaretAt(2, 0);
    EXPECT_EQ(Down(vbKeyDelete), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("EmStreet|No 7"));
    EXPECT_EQ(Where(), QStringLiteral("2,0"));
}

TEST_F(EditTextArrayTest, BackspaceTakesThePreviousCharacterOrTheLineBreak) {
    CaretAt(3, 0);
    EXPECT_EQ(Press(vbKeyBack), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("El|Street|No 7"));
    CaretAt(0, 1);
    EXPECT_EQ(Press(vbKeyBack), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("ElStreet|No 7"));
    EXPECT_EQ(Where(), QStringLiteral("2,0"));
    CaretAt(0, 0);
    EXPECT_EQ(Press(vbKeyBack), KeyResult::TextChanged) << "even at the start of the text";
    EXPECT_EQ(Text(), QStringLiteral("ElStreet|No 7"));
}

TEST_F(EditTextArrayTest, EnterSplitsTheLine) {
    CaretAt(3, 1);
    EXPECT_EQ(Press(vbKeyReturn), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("Elm|Str|eet|No 7"));
    EXPECT_EQ(Where(), QStringLiteral("0,2"));
    EXPECT_EQ(iKeyAscii, 0);
}

TEST_F(EditTextArrayTest, EnterWithTenLinesSplitsWhereTheSelectionMadeRoom) {
    lines = QStringList(10, QStringLiteral("line"));
    Select(2, 0, 2, 2);
    EXPECT_EQ(Press(vbKeyReturn), KeyResult::TextChanged);
    EXPECT_EQ(lines.size(), 10);
    EXPECT_EQ(lines.mid(0, 3).join(u'|'), QStringLiteral("li||ne"));
}

TEST_F(EditTextArrayTest, ACharacterReplacesTheSelection) {
    Select(5, 1, 1, 1);
    EXPECT_EQ(Press('a'), KeyResult::TextChanged);
    EXPECT_EQ(Text(), QStringLiteral("Elm|Sat|No 7"));
    EXPECT_EQ(Where(), QStringLiteral("2,1"));
}

TEST_F(EditTextArrayTest, NoCharacterIsFiltered) {
    CaretAt(0, 0);
    Press(1);
    EXPECT_EQ(lines[0], QChar(1) + QStringLiteral("Elm"));
}

TEST_F(EditTextArrayTest, DeletingWholeLinesLeavesOneEmptyLine) {
    Select(0, 0, 6, 1);
    ETA_DeleteSelection(lines, iCol, iRow, iColEnd, iRowEnd);
    EXPECT_EQ(Text(), QStringLiteral("|No 7"));
    Select(4, 1, 0, 0);
    ETA_DeleteSelection(lines, iCol, iRow, iColEnd, iRowEnd);
    EXPECT_EQ(lines, QStringList{QString()});
    EXPECT_EQ(Where(), QStringLiteral("0,0"));
}

TEST_F(EditTextArrayTest, DeletingAtACaretChangesNothing) {
    CaretAt(2, 1);
    ETA_DeleteSelection(lines, iCol, iRow, iColEnd, iRowEnd);
    EXPECT_EQ(Text(), QStringLiteral("Elm|Street|No 7"));
    EXPECT_EQ(Where(), QStringLiteral("2,1"));
}

TEST_F(EditTextArrayTest, ColumnsNeverSplitSurrogatePairsOrCombiningSequences) {
    const QString accented = QStringLiteral("e\u0301");
    const QString house = QStringLiteral("\U0001F3E0");
    lines = {accented + house + u'z'};
    CaretAt(0, 0);
    for (const int column : {2, 4, 5}) {
        EXPECT_EQ(Down(vbKeyRight), KeyResult::CaretMoved);
        EXPECT_EQ(iCol, column);
    }
    EXPECT_EQ(Down(vbKeyLeft), KeyResult::CaretMoved);
    EXPECT_EQ(Down(vbKeyLeft), KeyResult::CaretMoved);
    EXPECT_EQ(iCol, 2);
    EXPECT_EQ(Down(vbKeyDelete), KeyResult::TextChanged);
    EXPECT_EQ(lines[0], accented + u'z');
    Press(vbKeyBack);
    EXPECT_EQ(lines[0], QStringLiteral("z"));
}

TEST_F(EditTextArrayTest, CharactersOutsideTheBasicPlaneComeWholeOrInHalves) {
    const QString house = QStringLiteral("\U0001F3E0");
    lines = {QStringLiteral("ab")};
    CaretAt(1, 0);
    Press(0x1F3E0);
    EXPECT_EQ(lines[0], u'a' + house + u'b');
    EXPECT_EQ(iCol, 3);
    Press(house[0].unicode());
    Press(house[1].unicode());
    EXPECT_EQ(lines[0], u'a' + house + house + u'b');
    EXPECT_EQ(iCol, 5);
}

TEST_F(EditTextArrayTest, AFailureTellsTheRoutineAndItsArguments) {
    CaretAt(0, 5);
    try {
        Down(vbKeyRight);
        FAIL() << "a row outside the text went through";
    } catch (const TavloraError& error) {
        EXPECT_EQ(error.Number(), ErrNumber::kSubscript);
        EXPECT_TRUE(error.Description().contains(QStringLiteral("basEditTextArray!ETA_KeyDown(ARRAY, 39, 0, 5, 0, 5)")))
            << error.Description().toStdString();
    }
}

} // namespace
