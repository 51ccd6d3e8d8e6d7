// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Text typed straight onto a picture: one key at a time applied to an array of lines and to a caret or
/// selection. Nothing is drawn here; the window that calls redraws when it is told to.
///
/// The lines are never fewer than one, and at most ten. The selection runs from (iCol, iRow) to (iColEnd,
/// iRowEnd), in either order; a column counts the UTF-16 units ahead of it, and where both ends meet there
/// is a caret. All routines raise the subscript error for a row that the text hasn't.
namespace basEditTextArray {

constexpr int kMaxLines = 10;

/// Virtual key codes of the platform that ETA_KeyDown looks at.
enum KeyCode : int { vbKeyLeft = 37, vbKeyUp = 38, vbKeyRight = 39, vbKeyDown = 40, vbKeyDelete = 46 };
/// Characters that ETA_KeyPress treats specially.
enum KeyAscii : int { vbKeyBack = 8, vbKeyReturn = 13 };

enum class KeyResult {
    Nothing = 0,     ///< Nothing to do.
    CaretMoved = 1,  ///< Redraw.
    TextChanged = 2, ///< Write the lines back, fit them, redraw.
};

/// The four arrows and Delete, by virtual key code; any other key does nothing. Up and Down move like Left
/// and Right.
KeyResult ETA_KeyDown(QStringList& sTextLines, int iKeyCode, qint16& iCol, qint16& iRow, qint16& iColEnd,
                      qint16& iRowEnd);

/// Backspace, Enter and every other character, by its code point. iKeyAscii becomes 0 when the key was taken.
KeyResult ETA_KeyPress(QStringList& sTextLines, int& iKeyAscii, qint16& iCol, qint16& iRow, qint16& iColEnd,
                       qint16& iRowEnd);

/// Removes what lies between both ends and leaves a caret. A selection over several lines leaves two of
/// them, unless both remainders are empty.
void ETA_DeleteSelection(QStringList& sTextLines, qint16& iCol, qint16& iRow, qint16& iColEnd, qint16& iRowEnd);

} // namespace basEditTextArray
